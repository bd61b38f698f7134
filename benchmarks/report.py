#!/usr/bin/env python3
"""Writes docs/performance/report.md and its plots from the four runs that ./bench made.

usage: report.py RUNS-FOLDER OUTPUT-FOLDER    (RUNS-FOLDER holds i686-v8.json, i686-s8.json, ...)
"""
import platform
import sys
from pathlib import Path

import plot
from results import OURS, Run

TARGETS = ("i686", "x86_64")
NOISE = 0.03  # a ratio this little below its goal is one with it
HEADER = """\
# Performance

Written by `./bench`; no figure here is typed by hand.

| | |
|---|---|
| Processor | {processor} |
| Caches | {caches} |
| Compiler | gcc {compiler} |
| C library | glibc {libc} |
| Date | {date} |

Every contender runs in one thread of one process, in turns with the others; times are medians, and a ratio is the median
of the repetitions' ratios: the peer's time divided by that of variant v8, so above 1 tavSP is faster. Arrays start on
64-byte boundaries, 8 KiB each in L1, 128 KiB each in L2 and 64 MiB each in memory. A goal is what the ratio to the best
peer, or to the C library's function where it has one, is to reach; one that is missed by less than 3 % is within noise.

No peer uses registers of more than 16 bytes: memcpy, memmove and memset are glibc's with AVX, AVX-512 and `rep movsb`
taken away (`__memcpy_ssse3`, `__memmove_ssse3`, and `__memset_sse2_unaligned` or, for 32 bits, `__memset_sse2`), VOLK runs
its SSE and SSSE3 kernels, and "loop" is the plain loop as gcc compiles it at -O3 -mssse3. liquid-dsp is Debian's build:
code without vectors, which on i686 runs on the extended-precision unit; no goal is set against it.
"""


def time_text(nanoseconds):
    for unit, size in (("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= 10 * size:
            return f"{nanoseconds / size:.1f} {unit}"
    return f"{nanoseconds:.1f} ns"


def verdict(point):
    """The goal's cell: what was to be reached, and whether it was."""
    if point.goal() is None:
        return ""
    goal, reached = point.goal()
    state = "met" if reached >= goal else "met within noise" if reached >= goal * (1 - NOISE) else "**missed**"
    return f"{goal:.2f} {state}"


def table(v8, s8):
    yield "| function | arrays | time | GB/s | elements/ns | peer time / ours | goal | s8 |"
    yield "|---|---|--:|--:|--:|---|---|--:|"
    for name, points in v8.functions.items():
        for size, point in points.items():
            if not point.place:
                continue
            time = point.time()
            peers = ", ".join(f"{peer} {point.ratio(peer):.2f}" for peer in point.peers())
            yield (f"| {name} | {point.place} | {time_text(time)} | {point.bytes / time:.1f} | {point.elements / time:.2f} "
                   f"| {peers} | {verdict(point)} | {time_text(s8.functions[name][size].time())} |")


def missed(runs):
    for target in TARGETS:
        for name, points in runs[target, "v8"].functions.items():
            for point in points.values():
                if "missed" in verdict(point):
                    goal, reached = point.goal()
                    yield f"| {target} | {name} | {point.place} | {goal:.2f} | {reached:.2f} |"


def curves(v8, s8, name):
    """Time per element against the bytes of an array: ours in both variants, then the peers."""
    def of(run, contender):
        points = sorted(run.functions[name].items())
        return [(size, point.time(contender) / point.elements) for size, point in points if contender in point.times]

    peers = next(iter(v8.functions[name].values())).peers()
    return [(f"{OURS} v8", of(v8, OURS)), (f"{OURS} s8", of(s8, OURS))] + [(peer, of(v8, peer)) for peer in peers]


def plots(runs, target, folder):
    v8, s8 = runs[target, "v8"], runs[target, "s8"]
    for name, points in v8.functions.items():
        if all(point.place for point in points.values()):
            continue
        file = f"{name}-{target}.svg"
        drawing = plot.draw(f"{name}, {target}", "bytes in each array", "ns per element", curves(v8, s8, name))
        (folder / file).write_text(drawing)
        yield f"![{name} on {target}: time per element against size]({file})"


def processor():
    facts = dict(line.split(":", 1) for line in Path("/proc/cpuinfo").read_text().split("\n\n")[0].splitlines())
    name, family, model = ({key.strip(): value.strip() for key, value in facts.items()}[key]
                           for key in ("model name", "cpu family", "model"))
    return f"{name} (family {family}, model {model})"


def header(context):
    caches = ", ".join(f"L{cache['level']} {cache['type'].lower()} {plot.size_text(cache['size'])}"
                       for cache in context["caches"])
    return HEADER.format(processor=processor(), caches=caches, compiler=context["compiler"],
                         libc=platform.libc_ver()[1], date=context["date"][:10])


def main(runs_folder, folder):
    runs = {(target, variant): Run(Path(runs_folder) / f"{target}-{variant}.json")
            for target in TARGETS for variant in ("v8", "s8")}
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    lines = [header(runs[TARGETS[0], "v8"].context)]
    below = list(missed(runs))
    lines += ["## Below goal", ""]
    lines += ["| target | function | arrays | goal | reached |", "|---|---|---|--:|--:|", *below] if below else ["None."]
    for target in TARGETS:
        lines += ["", f"## {target}", "", *table(runs[target, "v8"], runs[target, "s8"]), "", *plots(runs, target, folder)]
    (folder / "report.md").write_text("\n".join(lines) + "\n")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])

#!/usr/bin/env python3
"""Writes the report from the four runs that ./bench made: report.md, and in families/ a page and plots for each family.

usage: report.py RUNS-FOLDER OUTPUT-FOLDER    (RUNS-FOLDER holds i686-v8.json, i686-s8.json, ...)
"""
import platform
import sys
from collections import Counter
from pathlib import Path
from statistics import geometric_mean

import limits
import pages
from results import TARGETS, read

L1_LIKE = range((1 << 10) + 1, (32 << 10) + 1)  # bytes of an array
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

Contenders run in one thread of one process, in turns. Times are medians. A ratio is the median of the repetitions'
ratios, the other's time divided by that of variant v8: above 1 tavSP is faster. Arrays start on 64-byte boundaries: 8 KiB
each in L1, 128 KiB each in L2 and 64 MiB each in memory. A goal is what the ratio to the best contender, or to the C
library's function where there is one, is to reach; missed by less than 3 % counts as met, within noise.

"loop" is the plain loop as gcc compiles it at -O3 -mssse3. No peer uses registers of more than 16 bytes: memcpy, memmove
and memset are glibc's with AVX, AVX-512 and `rep movsb` taken away (`__memcpy_ssse3`, `__memmove_ssse3`, and
`__memset_sse2_unaligned` or, for 32 bits, `__memset_sse2`), VOLK runs its SSE and SSSE3 kernels. liquid-dsp is Debian's
build: code without vectors, on i686 for the extended-precision unit; no goal is set against it.
"""
SUMMARY = """\
## Summary

Geometric means over the points whose arrays have more than 1 KiB and at most 32 KiB: of the ratios to the plain loop (the
best of them where there are several), and to the best peer, with the names of those that were best. Goals are those of
all points.
"""
BELOW = """\
## Below goal

{counts}. In bold what is below its goal; the last column leads to what was tried and what the limit is.
"""


def loop_text(points):
    ratios = [point.best(point.loops())[0] for point in points if point.loops()]
    return f"{geometric_mean(ratios):.2f}" if ratios else ""


def peer_text(points):
    best = [point.best(point.peers()) for point in points if point.peers()]
    if not best:
        return ""
    names = [name for name, _ in Counter(name for _, name in best).most_common()]
    more = " and others" if len(names) > 2 else ""
    return f"{geometric_mean(ratio for ratio, _ in best):.2f} {', '.join(names[:2])}{more}"


def goals_met(rows, target):
    """(met, all)"""
    verdicts = [row.v8(target).verdict() for row in rows if row.v8(target).goal()]
    return sum(verdict != "missed" for verdict in verdicts), len(verdicts)


def goals_text(rows, target):
    met, count = goals_met(rows, target)
    return f"{met} / {count}" if count else ""


def summary(families):
    yield "| family | points | " + " | ".join(
        f"{what}, {text}" for what in ("loop", "best peer", "goals met") for text in TARGETS.values()) + " |"
    yield "|---|--:|--:|--:|---|---|--:|--:|"
    for family, rows in families.items():
        cached = [[row.v8(target) for row in rows if row.array_bytes in L1_LIKE] for target in TARGETS]
        cells = [f"[{family}](families/{limits.slug(family)}.md)", str(len(rows))]
        cells += [*map(loop_text, cached), *map(peer_text, cached), *(goals_text(rows, target) for target in TARGETS)]
        yield f"| {' | '.join(cells)} |"


def reached_text(point):
    if not point.goal():
        return ""
    return f"**{point.goal()[1]:.2f}**" if point.verdict() == "missed" else f"{point.goal()[1]:.2f}"


def below_goal(rows):
    yield f"| function | arrays | goal | {' | '.join(TARGETS.values())} | why |"
    yield "|---|---|--:|--:|--:|---|"
    for row in rows:
        points = [row.v8(target) for target in TARGETS]
        goals = [f"{point.goal()[0]:.2f}" for point in points if point.goal()]
        if any(point.goal() and point.verdict() == "missed" for point in points):
            why = limits.link(points[0].account) if points[0].account else "**no account**"
            cells = [row.name, points[0].place, pages.each(goals), *map(reached_text, points), why]
            yield f"| {' | '.join(cells)} |"


def below(rows):
    counts = "; ".join("{0} of {1} goals met on ".format(*goals_met(rows, target)) + text
                       for target, text in TARGETS.items())
    return [BELOW.format(counts=counts), *below_goal(rows)]


def processor():
    facts = dict(line.split(":", 1) for line in Path("/proc/cpuinfo").read_text().split("\n\n")[0].splitlines())
    name, family, model = ({key.strip(): value.strip() for key, value in facts.items()}[key]
                           for key in ("model name", "cpu family", "model"))
    return f"{name} (family {family}, model {model})"


def header(context):
    caches = ", ".join(f"L{cache['level']} {cache['type'].lower()} {cache['size'] >> 10} KiB"
                       for cache in context["caches"])
    return HEADER.format(processor=processor(), caches=caches, compiler=context["compiler"],
                         libc=platform.libc_ver()[1], date=context["date"][:10])


def emptied(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for file in folder.iterdir():
        file.unlink()
    return folder


def main(runs_folder, folder):
    context, families = read(runs_folder)
    page_folder = emptied(Path(folder) / "families")
    for family, rows in families.items():
        pages.write(family, rows, page_folder)
    measured = {family: [row for row in rows if row.first().place] for family, rows in families.items()}
    everything = [row for rows in measured.values() for row in rows]
    lines = [header(context), SUMMARY, *summary(measured), "", *below(everything)]
    (Path(folder) / "report.md").write_text("\n".join(lines) + "\n")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])

"""What the benchmark program measured: reading its files, medians and ratios."""
import json
from pathlib import Path
from statistics import median

OURS = "tavSP"
TARGETS = {"i686": "i686", "x86_64": "x86-64"}  # as files and as texts call them
NOISE = 0.03  # a ratio this little below its goal is one with it


class Point:
    """One function at one size: the times of each contender, in nanoseconds a call, one per repetition."""

    def __init__(self, run):
        self.place, self.family, self.account, self.plot = run["label"].split("|")
        self.elements, self.taps = int(run["elements"]), int(run.get("taps", 0))
        self.times = {}
        self.goals = {}

    def add(self, contender, run):
        self.times.setdefault(contender, []).append(run["cpu_time"])
        self.goals[contender] = run["goal"]

    def time(self, contender=OURS):
        return median(self.times[contender])

    def others(self):
        return [contender for contender in self.times if contender != OURS]

    def loops(self):
        return [other for other in self.others() if other.startswith(("loop", "plain"))]

    def peers(self):
        """Those that are neither loops nor other ways to call this library."""
        return [other for other in self.others() if other not in self.loops() and not other.startswith(OURS)]

    def ratio(self, other):
        """The other's time divided by ours: above 1 we are faster."""
        return median(theirs / ours for theirs, ours in zip(self.times[other], self.times[OURS]))

    def best(self, others):
        """(ratio, name) of the fastest of them."""
        return min((self.ratio(other), other) for other in others)

    def goal(self):
        """(goal, what we reach against the best of those that it speaks of), or None."""
        rivals = [other for other in self.others() if self.goals[other] > 0]
        return (self.goals[rivals[0]], self.best(rivals)[0]) if rivals else None

    def verdict(self):
        goal, reached = self.goal()
        return "met" if reached >= goal else "met within noise" if reached >= goal * (1 - NOISE) else "missed"


class Row:
    """One function at one size in all runs."""

    def __init__(self, name, array_bytes):
        self.name, self.array_bytes = name, array_bytes
        self.points = {}  # by target and variant

    def v8(self, target):
        return self.points[target, "v8"]

    def s8(self, target):
        return self.points[target, "s8"]

    def first(self):
        return next(iter(self.points.values()))


def read_run(path, key, rows):
    document = json.loads(path.read_text())
    measured = [run for run in document["benchmarks"] if run["run_type"] == "iteration"]
    for run in sorted(measured, key=lambda run: run["family_index"]):  # contenders in their order, sizes as they came
        name, size, contender = run["name"].split("/")[:3]
        row = rows.setdefault((name, size), Row(name, int(size)))
        row.points.setdefault(key, Point(run)).add(contender, run)
    return document["context"]


def read(folder):
    """What the runs say of the machine, and {title: [Row, ...]}: the families in their order."""
    rows, families = {}, {}
    for target in TARGETS:
        for variant in ("v8", "s8"):
            context = read_run(Path(folder) / f"{target}-{variant}.json", (target, variant), rows)
    for row in rows.values():
        families.setdefault(row.first().family, []).append(row)
    return context, families

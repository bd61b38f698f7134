"""What the benchmark program measured: reading its files, medians and ratios."""
import json
from statistics import median

OURS = "tavSP"


class Point:
    """One function at one size: the times of each contender, in nanoseconds a call, one per repetition."""

    def __init__(self, run):
        self.place = run.get("label", "")
        self.elements = int(run["elements"])
        self.bytes = run["bytes"]
        self.times = {}
        self.goals = {}

    def add(self, contender, run):
        self.times.setdefault(contender, []).append(run["cpu_time"])
        self.goals[contender] = run["goal"]

    def time(self, contender=OURS):
        return median(self.times[contender])

    def peers(self):
        return [contender for contender in self.times if contender != OURS]

    def ratio(self, peer):
        """The peer's time divided by ours: above 1 we are faster."""
        return median(theirs / ours for theirs, ours in zip(self.times[peer], self.times[OURS]))

    def goal(self):
        """(goal, what we reach against the best of the peers that it speaks of), or None."""
        rivals = [peer for peer in self.peers() if self.goals[peer] > 0]
        if not rivals:
            return None
        return self.goals[rivals[0]], min(self.ratio(peer) for peer in rivals)


class Run:
    """One run of the program: functions, each with its points by the bytes of an array."""

    def __init__(self, path):
        with open(path) as file:
            document = json.load(file)
        self.context = document["context"]
        self.functions = {}
        measured = [run for run in document["benchmarks"] if run["run_type"] == "iteration"]
        for run in sorted(measured, key=lambda run: run["family_index"]):  # contenders in their order, sizes as they came
            name, size, contender = run["name"].split("/")[:3]
            points = self.functions.setdefault(name, {})
            points.setdefault(int(size), Point(run)).add(contender, run)

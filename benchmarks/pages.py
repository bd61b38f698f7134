"""The page of a family: its plots, and all of its points with both targets side by side."""
import limits
import plot
from results import OURS, TARGETS


def time_text(nanoseconds):
    """Three figures."""
    unit, size = next(((unit, size) for unit, size in (("ms", 1e6), ("µs", 1e3)) if nanoseconds >= size), ("ns", 1))
    value = nanoseconds / size
    return f"{value:.{2 if value < 10 else 1 if value < 100 else 0}f} {unit}"


def each(texts):
    """One text where the targets agree, or else all."""
    return texts[0] if len(set(texts)) == 1 else " / ".join(texts)


def goal_text(row):
    points = [row.v8(target) for target in TARGETS if row.v8(target).goal()]
    if not points:
        return ""
    verdicts = [point.verdict().replace("missed", "**missed**") for point in points]
    return each([f"{point.goal()[0]:.2f}" for point in points]) + " " + each(verdicts)


def table(rows):
    spans = [f"{text} | others / ours" for text in TARGETS.values()]
    yield f"| function | arrays | {' | '.join(spans)} | goal | s8, {' | s8, '.join(TARGETS.values())} |"
    yield "|---|---|--:|---|--:|---|---|--:|--:|"
    last = ""
    for row in rows:
        cells = [row.name if row.name != last else "", row.first().place]
        for point in map(row.v8, TARGETS):
            ratios = [f"{other} {point.ratio(other):.2f}" for other in point.others()]
            cells += [time_text(point.time()), ", ".join(ratios)]
        cells += [goal_text(row)] + [time_text(row.s8(target).time()) for target in TARGETS]
        yield f"| {' | '.join(cells)} |"
        last = row.name


def curve(points, contender):
    """Time for each element, or for each element and tap, against the elements or the taps."""
    return sorted((point.taps or point.elements, point.time(contender) / point.elements / (point.taps or 1))
                  for point in points if contender in point.times)


def panel(rows, target):
    v8, s8 = [row.v8(target) for row in rows], [row.s8(target) for row in rows]
    others = dict.fromkeys(other for point in v8 for other in point.others())
    return {f"{OURS} v8": curve(v8, OURS), f"{OURS} s8": curve(s8, OURS), **{name: curve(v8, name) for name in others}}


def plots(rows):
    """Pairs of a title and an SVG document."""
    by_title = {}
    for row in rows:
        by_title.setdefault(row.first().plot, []).append(row)
    by_title.pop("", None)
    for title, members in by_title.items():
        by_taps = members[0].first().taps != 0
        labels = ("taps", "ns per tap and sample") if by_taps else ("elements in each array", "ns per element")
        yield title, plot.draw(title, *labels, {text: panel(members, target) for target, text in TARGETS.items()})


def write(family, rows, folder):
    report = "[performance report](../report.md)"
    lines = [f"# {family}", "", f"Part of the {report}, which says what is compared and how to read it."]
    accounts = dict.fromkeys(row.first().account for row in rows if row.first().account)
    if accounts:
        lines += ["", "What limits them: " + ", ".join(limits.link(account, "../") for account in accounts) + "."]
    for title, drawing in plots(rows):
        file = limits.slug(title) + ".svg"
        (folder / file).write_text(drawing)
        lines += ["", f"![{title}: time against size on both targets]({file})"]
    lines += ["", *table([row for row in rows if row.first().place])]
    (folder / (limits.slug(family) + ".md")).write_text("\n".join(lines) + "\n")

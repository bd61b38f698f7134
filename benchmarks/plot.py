"""Plots of time against size, as SVG: a panel for each target, with one pair of axes."""
from math import ceil, floor, log2, log10
from xml.sax.saxutils import escape

WIDTH, HEIGHT = 960, 380
LEFT, TOP, BOTTOM = 66, 62, 56
PANEL, GAP = 345, 34
COLORS = ["#0b5cad", "#5fa3e0", "#d9480f", "#2f9e44", "#862e9c", "#e0a800", "#495057", "#c2255c"]


def number_text(n):
    for unit in ("", "K"):
        if n < 1024:
            return f"{n}{unit}"
        n //= 1024
    return f"{n}M"


class Axes:
    """Where a size and a time lie: sizes by powers of two, times by powers of ten."""

    def __init__(self, sizes, times):
        self.x_range = log2(min(sizes)), log2(max(sizes))
        low, high = log10(min(times)), log10(max(times))
        self.y_range = floor(low * 4) / 4, ceil(high * 4) / 4  # quarters of decades

    def x(self, size):
        low, high = self.x_range
        return (log2(size) - low) / ((high - low) or 1) * PANEL

    def y(self, time):
        low, high = self.y_range
        return HEIGHT - BOTTOM - (log10(time) - low) / ((high - low) or 1) * (HEIGHT - TOP - BOTTOM)

    def x_ticks(self):
        low, high = ceil(self.x_range[0]), floor(self.x_range[1])
        step = 1 + (high - low) // 9
        return [2**power for power in range(low, high + 1) if power % step == 0]

    def y_ticks(self):
        decades = range(floor(self.y_range[0]), ceil(self.y_range[1]) + 1)
        ticks = [digit * 10.0**decade for decade in decades for digit in (1, 2, 5)]
        return [tick for tick in ticks if self.y_range[0] - 1e-9 <= log10(tick) <= self.y_range[1] + 1e-9]


def text(x, y, content, anchor="middle", extra=""):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" {extra}>{escape(content)}</text>'


def line(x1, y1, x2, y2, extra):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" {extra}/>'


def stroke(index):
    """Ours comes first, in both variants."""
    dashes = ' stroke-dasharray="6 4"' if index == 1 else ""
    return f'fill="none" stroke="{COLORS[index % len(COLORS)]}" stroke-width="{3 if index == 0 else 1.8}"{dashes}'


def grid(axes, left, numbered):
    bottom, faint = HEIGHT - BOTTOM, 'stroke="#dee2e6"'
    for tick in axes.x_ticks():
        yield line(left + axes.x(tick), TOP, left + axes.x(tick), bottom, faint)
        yield text(left + axes.x(tick), bottom + 18, number_text(tick))
    for tick in axes.y_ticks():
        yield line(left, axes.y(tick), left + PANEL, axes.y(tick), faint)
        if numbered:
            yield text(left - 8, axes.y(tick) + 4, f"{tick:g}", "end")
    yield f'<rect x="{left}" y="{TOP}" width="{PANEL}" height="{bottom - TOP}" fill="none" stroke="#868e96"/>'


def panel(axes, left, title, curves, numbered):
    yield text(left + PANEL / 2, TOP - 10, title, extra='font-weight="bold"')
    yield from grid(axes, left, numbered)
    for index, points in reversed(list(enumerate(curves.values()))):
        path = " ".join(f"{left + axes.x(size):.1f},{axes.y(time):.1f}" for size, time in points)
        yield f'<polyline points="{path}" {stroke(index)}/>'


def legend(names):
    left = LEFT + 2 * PANEL + GAP + 16
    for index, name in enumerate(names):
        y = TOP + 14 + 24 * index
        yield line(left, y, left + 26, y, stroke(index))
        yield text(left + 32, y + 4, name, "start")


def draw(title, x_label, y_label, panels):
    """An SVG document. `panels` is {title: {name: [(size, time), ...]}}; the first two names are drawn as our own."""
    points = [point for curves in panels.values() for curve in curves.values() for point in curve]
    axes = Axes([size for size, _ in points], [time for _, time in points])
    parts = [text(LEFT, 26, title, "start", 'font-size="17" font-weight="bold"')]
    for index, (name, curves) in enumerate(panels.items()):
        parts += panel(axes, LEFT + index * (PANEL + GAP), name, curves, index == 0)
    parts += legend(next(iter(panels.values())))
    middle = (TOP + HEIGHT - BOTTOM) / 2
    parts.append(text(LEFT + PANEL + GAP / 2, HEIGHT - 14, x_label))
    parts.append(text(18, middle, y_label, extra=f'transform="rotate(-90 18 {middle:.1f})"'))
    head = (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" width="{WIDTH}" height="{HEIGHT}" '
            'font-family="sans-serif" font-size="13" fill="#212529">')
    return "\n".join([head, f'<rect width="{WIDTH}" height="{HEIGHT}" rx="8" fill="white"/>', *parts, "</svg>"]) + "\n"

"""Plots of time against size, as SVG."""
from math import ceil, floor, log10, log2
from xml.sax.saxutils import escape

WIDTH, HEIGHT = 760, 440
LEFT, RIGHT, TOP, BOTTOM = 70, 150, 48, 56
COLORS = ["#0b5cad", "#7fb2e5", "#d9480f", "#5c940d", "#862e9c", "#495057"]


def size_text(size):
    for unit in ("B", "KiB", "MiB"):
        if size < 1024:
            return f"{size} {unit}"
        size //= 1024
    return f"{size} GiB"


class Axes:
    """Where a size and a time lie: sizes by powers of two, times by powers of ten."""

    def __init__(self, sizes, times):
        self.x_range = log2(min(sizes)), log2(max(sizes))
        low, high = log10(min(times)), log10(max(times))
        self.y_range = floor(low * 2) / 2, ceil(high * 2) / 2  # whole and half decades

    def x(self, size):
        low, high = self.x_range
        return LEFT + (log2(size) - low) / (high - low) * (WIDTH - LEFT - RIGHT)

    def y(self, time):
        low, high = self.y_range
        return HEIGHT - BOTTOM - (log10(time) - low) / (high - low) * (HEIGHT - TOP - BOTTOM)

    def x_ticks(self):
        return [2**power for power in range(ceil(self.x_range[0]), floor(self.x_range[1]) + 1) if power % 4 == 0]

    def y_ticks(self):
        decades = range(floor(self.y_range[0]), ceil(self.y_range[1]) + 1)
        ticks = [digit * 10.0**decade for decade in decades for digit in (1, 2, 5)]
        return [tick for tick in ticks if self.y_range[0] - 1e-9 <= log10(tick) <= self.y_range[1] + 1e-9]


def text(x, y, content, anchor="middle", extra=""):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" {extra}>{escape(content)}</text>'


def line(x1, y1, x2, y2, color, extra=""):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{color}" {extra}/>'


def grid(axes):
    right, bottom = WIDTH - RIGHT, HEIGHT - BOTTOM
    for tick in axes.x_ticks():
        yield line(axes.x(tick), TOP, axes.x(tick), bottom, "#dee2e6")
        yield text(axes.x(tick), bottom + 18, size_text(tick))
    for tick in axes.y_ticks():
        yield line(LEFT, axes.y(tick), right, axes.y(tick), "#dee2e6")
        yield text(LEFT - 8, axes.y(tick) + 4, f"{tick:g}", "end")
    yield f'<rect x="{LEFT}" y="{TOP}" width="{right - LEFT}" height="{bottom - TOP}" fill="none" stroke="#868e96"/>'


def curve(axes, index, name, points):
    color = COLORS[index % len(COLORS)]
    style = f'stroke-width="{3 if index == 0 else 1.8}"' + (' stroke-dasharray="6 4"' if index == 1 else "")
    path = " ".join(f"{axes.x(size):.1f},{axes.y(time):.1f}" for size, time in points)
    yield f'<polyline points="{path}" fill="none" stroke="{color}" {style}/>'
    key_x, key_y = WIDTH - RIGHT + 14, TOP + 14 + 22 * index
    yield line(key_x, key_y, key_x + 28, key_y, color, style)
    yield text(key_x + 36, key_y + 4, name, "start")


def draw(title, x_label, y_label, curves):
    """An SVG document. `curves` are pairs of a name and [(size, time), ...]; the first two are drawn as our own."""
    axes = Axes([size for _, points in curves for size, _ in points], [time for _, points in curves for _, time in points])
    parts = [text(LEFT, 28, title, "start", 'font-size="16" font-weight="bold"')]
    parts += grid(axes)
    for index, (name, points) in reversed(list(enumerate(curves))):
        parts += curve(axes, index, name, points)
    middle = (TOP + HEIGHT - BOTTOM) / 2
    parts.append(text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 14, x_label))
    parts.append(text(20, middle, y_label, "middle", f'transform="rotate(-90 20 {middle:.1f})"'))
    head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" viewBox="0 0 {WIDTH} {HEIGHT}" '
            'font-family="sans-serif" font-size="12" fill="#212529">')
    return "\n".join([head, f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>', *parts, "</svg>"]) + "\n"

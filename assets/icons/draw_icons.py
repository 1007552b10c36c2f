#!/usr/bin/env python3
"""Draws the program's icon and the hands of its pointer.

Each drawing is a list of shapes in its own units. From the same shapes come an SVG file, for
people, and pictures of whole pixels, for the program. The same script always writes the same
pictures.

    draw_icons.py [folder]      writes all files, by default beside the script
"""

import math
import pathlib
import struct
import sys
import zlib

FELT = (46, 96, 70)
FELT_EDGE = (30, 68, 48)
CARD = (255, 255, 255)
INK = (0, 0, 0)
SAMPLES = 4
ICON_SIZES = (16, 24, 32, 48, 64, 128, 256)
HAND_SIZES = (24, 48)


class Box:
    """A rectangle with round corners."""

    def __init__(self, left, top, width, height, radius, colour):
        self.left, self.top, self.width, self.height = left, top, width, height
        self.radius, self.colour = radius, colour

    def covers(self, x, y):
        nearest_x = min(max(x, self.left + self.radius), self.left + self.width - self.radius)
        nearest_y = min(max(y, self.top + self.radius), self.top + self.height - self.radius)
        if nearest_x == x or nearest_y == y:
            return abs(x - nearest_x) <= self.radius and abs(y - nearest_y) <= self.radius
        return math.hypot(x - nearest_x, y - nearest_y) <= self.radius

    def svg(self):
        return (f'<rect x="{self.left:g}" y="{self.top:g}" width="{self.width:g}" '
                f'height="{self.height:g}" rx="{self.radius:g}" fill="{name(self.colour)}"/>')


class Stroke:
    """A line with round ends."""

    def __init__(self, x1, y1, x2, y2, width, colour):
        self.ends, self.width, self.colour = (x1, y1, x2, y2), width, colour

    def covers(self, x, y):
        x1, y1, x2, y2 = self.ends
        length = (x2 - x1) ** 2 + (y2 - y1) ** 2
        along = 0 if length == 0 else ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length
        along = min(max(along, 0), 1)
        return math.hypot(x - x1 - along * (x2 - x1),
                          y - y1 - along * (y2 - y1)) <= self.width / 2

    def svg(self):
        x1, y1, x2, y2 = self.ends
        return (f'<path d="M{x1:g} {y1:g}L{x2:g} {y2:g}" stroke="{name(self.colour)}" '
                f'stroke-width="{self.width:g}" stroke-linecap="round"/>')


class Outline:
    """A closed line of curves: a start, then (control, control, end) for each curve."""

    STEPS = 24

    def __init__(self, start, curves, colour):
        self.start, self.curves, self.colour = start, curves, colour
        self.points = [start]
        for first, second, end in curves:
            begin = self.points[-1]
            for step in range(1, self.STEPS + 1):
                t = step / self.STEPS
                weights = ((1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t ** 3)
                self.points.append(tuple(
                    sum(weight * point[axis]
                        for weight, point in zip(weights, (begin, first, second, end)))
                    for axis in (0, 1)))
        self.top = min(y for _, y in self.points)
        self.bottom = max(y for _, y in self.points)

    def covers(self, x, y):
        if not self.top <= y <= self.bottom:
            return False
        inside = False
        before = self.points[-1]
        for point in self.points:
            if (point[1] > y) != (before[1] > y):
                crossing = point[0] + (y - point[1]) * (before[0] - point[0]) / (before[1] -
                                                                                point[1])
                inside ^= x < crossing
            before = point
        return inside

    def svg(self):
        path = f"M{self.start[0]:g} {self.start[1]:g}"
        for curve in self.curves:
            path += "C" + " ".join(f"{x:g} {y:g}" for x, y in curve)
        return f'<path d="{path}Z" fill="{name(self.colour)}"/>'


class Drawing:
    """Shapes from back to front in a square of that many units."""

    def __init__(self, side, shapes):
        self.side, self.shapes = side, shapes

    def colour_at(self, x, y):
        for shape in reversed(self.shapes):
            if shape.covers(x, y):
                return shape.colour
        return None

    def samples(self, column, row, scale, steps):
        return [self.colour_at((column + (right + 0.5) / SAMPLES) / scale,
                               (row + (down + 0.5) / SAMPLES) / scale)
                for down in steps for right in steps]

    def pixel(self, column, row, scale):
        """Red, green, blue and opacity: the mean of the samples in it."""
        # Where the corners agree there is no edge.
        found = self.samples(column, row, scale, (0, SAMPLES - 1))
        if len(set(found)) > 1:
            found = self.samples(column, row, scale, range(SAMPLES))
        inked = [colour for colour in found if colour is not None]
        if not inked:
            return bytes(4)
        mean = [round(sum(part) / len(inked)) for part in zip(*inked)]
        return bytes(mean + [round(255 * len(inked) / len(found))])

    def png(self, size):
        scale = size / self.side
        rows = b"".join(b"\0" + b"".join(self.pixel(column, row, scale) for column in range(size))
                        for row in range(size))
        header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
        return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
                chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))

    def svg(self):
        lines = "\n".join("  " + shape.svg() for shape in self.shapes)
        return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {self.side} {self.side}">\n'
                f"{lines}\n</svg>\n").encode()


def name(colour):
    return "#%02x%02x%02x" % colour


def chunk(kind, data):
    return (struct.pack(">I", len(data)) + kind + data +
            struct.pack(">I", zlib.crc32(kind + data)))


def ico(pictures):
    """An ICO file of PNG pictures, given as (size, bytes)."""
    place = 6 + 16 * len(pictures)
    directory, data = struct.pack("<HHH", 0, 1, len(pictures)), b""
    for size, png in pictures:
        directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(png),
                                 place + len(data))
        data += png
    return directory + data


def spade(x, y, size, colour):
    """A spade around (x, y), two sizes high."""
    def at(*points):
        return tuple((x + right * size, y + down * size) for right, down in points)

    half = [((0.14, -0.66), (0.86, -0.30), (0.86, 0.16)), ((0.86, 0.58), (0.40, 0.68),
                                                           (0.12, 0.40)),
            ((0.13, 0.66), (0.22, 0.84), (0.42, 0.98))]
    curves = [at(*curve) for curve in half]
    curves.append(at((0.2, 0.98), (-0.2, 0.98), (-0.42, 0.98)))
    ends = [(0, -1)] + [curve[2] for curve in half]
    for number in (2, 1, 0):
        first, second, _ = half[number]
        curves.append(at(*[(-right, down) for right, down in (second, first, ends[number])]))
    return Outline(at((0, -1))[0], curves, colour)


def icon():
    """A card with its heading and a spade on the felt of the table.

    The edges lie on whole pixels at the smallest size, four units each.
    """
    return Drawing(64, [
        Box(1, 1, 62, 62, 12, FELT_EDGE), Box(2.5, 2.5, 59, 59, 10.5, FELT),
        Box(12, 8, 40, 48, 2.5, CARD), Box(12, 8, 40, 12, 2.5, INK), Box(12, 14, 40, 6, 0, INK),
        spade(32, 38, 14, INK),
    ])


def hand(fingers, thumb, palm):
    """White with a dark edge: fingers and thumb are strokes, the palm is a box."""
    edge, skin, line = (24, 24, 24), (255, 255, 255), 2.2
    parts = fingers + [thumb]
    left, top, width, height, radius = palm
    shapes = [Stroke(*ends, thick + line, edge) for *ends, thick in parts]
    shapes.append(Box(left - line / 2, top - line / 2, width + line, height + line,
                      radius + line / 2, edge))
    # Each finger's edge parts it from the one before.
    for *ends, thick in parts:
        shapes += [Stroke(*ends, thick + line / 2, edge), Stroke(*ends, thick, skin)]
    return shapes + [Box(left, top, width, height, radius, skin)]


def open_hand():
    fingers = [(8.2, 13, 7.0, 6.6, 2.7), (11.3, 12, 10.9, 4.4, 2.7), (14.5, 12, 14.9, 5.0, 2.7),
               (17.4, 13, 18.7, 7.8, 2.7)]
    return Drawing(24, hand(fingers, (8.6, 17.4, 4.2, 13.2, 2.9), (6.9, 11.6, 11.9, 9.4, 4)))


def closed_hand():
    fingers = [(8.2, 13, 8.0, 10.2, 2.7), (11.3, 12, 11.2, 9.2, 2.7), (14.5, 12, 14.6, 9.4, 2.7),
               (17.4, 13, 17.7, 10.6, 2.7)]
    return Drawing(24, hand(fingers, (8.6, 16.4, 6.2, 13.8, 2.9), (6.9, 11.6, 11.9, 9.4, 4)))


def files():
    """Every file that belongs to the drawings, by name."""
    made = {}
    drawn = icon()
    pictures = [(size, drawn.png(size)) for size in ICON_SIZES]
    made["zevlin.svg"] = drawn.svg()
    made["zevlin.ico"] = ico(pictures)
    for size, picture in pictures:
        made[f"zevlin-{size}.png"] = picture
    for title, drawing in (("open-hand", open_hand()), ("closed-hand", closed_hand())):
        made[f"{title}.svg"] = drawing.svg()
        for size in HAND_SIZES:
            made[f"{title}-{size}.png"] = drawing.png(size)
    return made


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent)
    for title, content in files().items():
        (folder / title).write_bytes(content)


if __name__ == "__main__":
    main()

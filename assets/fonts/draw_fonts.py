#!/usr/bin/python3
"""Draws the symbol fonts of the card.

Zevlin Marks holds the marks that a player sets (check, filled square, ring), Zevlin Suits the
four suit signs of a player's texts, Zevlin Print Suits those among the printed words. Every measure is in font units, 2048 to the em. The same script always writes
the same bytes, so the fonts can be compared after a change.

    draw_fonts.py [folder]      writes the .ttf files, by default beside the script
"""

import math
import pathlib
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.transformPen import TransformPen
from fontTools.pens.ttGlyphPen import TTGlyphPen

EM = 2048
# A font date is counted from 1904; a fixed one keeps the files alike on every run.
FIXED_DATE = 3786912000
KAPPA = 0.5522847498

MARKS_ASCENT, MARKS_DESCENT = 1843, 430
MARK_ADVANCE, RING_ADVANCE = 1822, 1746
# Centre of square and box: 10.5 and 15.5 pixels from the left and top of their cell when the em is
# 24 pixels, so that a box on whole pixels of the picture has a square in its middle.
MARK_CENTRE = (896, MARKS_ASCENT - 1323)
# A check begins inside its box at the lower left and rises out of it at the upper right.
CHECK_CENTRE = (MARK_CENTRE[0] + 215, MARK_CENTRE[1] + 280)
# Centre of the ring: 12.5 and 16.5 pixels when the em is 29 1/3 pixels.
RING_CENTRE = (873, MARKS_ASCENT - 1152)
RING_RADIUS = 778
SQUARE_SIDE = 1110

# A suit stands on the base line of the text that it belongs to although it is four points
# larger and its label six pixels higher: this ascent is 19.28 pixels when the em is 20.
SUITS_ASCENT, SUITS_DESCENT = 1974, 410
SUIT_ADVANCE = 1070

# Among printed words a suit is as high as their capitals, and has paper before it, enough to keep
# it off a digit. Being part of the font, both leave the suit in the words' own size, and who reads
# a page by program takes digit and suit for one word.
PRINT_SUIT_SIZE = 1.24
PRINT_SUIT_AIR = round(0.07 * EM)

PRIVATE_RANGE = 0xF000
CHARACTERS = {"check": 0x2713, "ring": 0x25CB, "square": 0x25A0,
              "club": 0x2663, "diamond": 0x2666, "heart": 0x2665, "spade": 0x2660}


def glyph(draw):
    """A glyph from a function that draws cubic curves, counter-clockwise outlines reversed."""
    quadratic = TTGlyphPen(None)
    draw(Cu2QuPen(quadratic, max_err=0.6, reverse_direction=True))
    return quadratic.glyph()


def closed(pen, start, *segments):
    """One closed outline: a segment of one point is a line, of three points a curve."""
    pen.moveTo(start)
    for segment in segments:
        if len(segment) == 1:
            pen.lineTo(segment[0])
        else:
            pen.curveTo(*segment)
    pen.closePath()


def ellipse(pen, centre, radius_x, radius_y, turn=1):
    """An ellipse, counter-clockwise for a turn of 1, clockwise (a hole) for -1."""
    x, y = centre
    across, up = radius_x * KAPPA, radius_y * KAPPA * turn
    side = radius_y * turn
    closed(pen, (x + radius_x, y),
           ((x + radius_x, y + up), (x + across, y + side), (x, y + side)),
           ((x - across, y + side), (x - radius_x, y + up), (x - radius_x, y)),
           ((x - radius_x, y - up), (x - across, y - side), (x, y - side)),
           ((x + across, y - side), (x + radius_x, y - up), (x + radius_x, y)))


def ring(stroke):
    def draw(pen):
        ellipse(pen, RING_CENTRE, RING_RADIUS, RING_RADIUS)
        inner = RING_RADIUS - stroke
        ellipse(pen, RING_CENTRE, inner, inner, turn=-1)
    return draw


def square(pen):
    x, y = MARK_CENTRE
    half = SQUARE_SIDE // 2
    closed(pen, (x - half, y - half), [(x + half, y - half)], [(x + half, y + half)],
           [(x - half, y + half)])


def check(weight):
    """A pen stroke: a short press down, a long one up that thins out to the tip."""
    x, y = CHECK_CENTRE
    left, right, bottom, top = x - 700, x + 700, y - 720, y + 720

    def draw(pen):
        foot = (left + 480, bottom)
        closed(pen, foot,
               ((foot[0] + 230, bottom + 560), (right - 420, top - 420), (right, top - 60)),
               [(right - 64, top)],
               ((right - 520, top - 300), (foot[0] + 190, bottom + 760),
                (foot[0] + 20, bottom + 250 + weight)),
               ((foot[0] - 90, bottom + 420 + weight), (left + 230, bottom + 600 + weight),
                (left + 120, bottom + 560 + weight)),
               ((left + 60, bottom + 540 + weight), (left, bottom + 480), (left, bottom + 430)),
               ((left + 190, bottom + 420), (left + 300, bottom + 190),
                (foot[0] - 120, bottom + 14)),
               ((foot[0] - 80, bottom), (foot[0] - 40, bottom), foot))
    return draw


def arc(centre, radius, start, end):
    """Curves along a circle, counter-clockwise between two angles in degrees."""
    count = math.ceil((end - start) / 90)
    step = math.radians((end - start) / count)
    reach = 4 / 3 * math.tan(step / 4) * radius
    curves = []
    for number in range(count):
        one = math.radians(start) + number * step
        other = one + step
        first = point_on(centre, radius, one)
        last = point_on(centre, radius, other)
        curves.append(((first[0] - reach * math.sin(one), first[1] + reach * math.cos(one)),
                       (last[0] + reach * math.sin(other), last[1] - reach * math.cos(other)),
                       last))
    return curves


def point_on(centre, radius, angle):
    return centre[0] + radius * math.cos(angle), centre[1] + radius * math.sin(angle)


def mirrored(middle, curves, start):
    """The same curves on the other side of the middle, walked backward to the first one's start."""
    points = [start] + [point for curve in curves for point in curve]
    backward = [(2 * middle - x, y) for x, y in reversed(points)][1:]
    return [tuple(backward[at:at + 3]) for at in range(0, len(backward), 3)]


def club(pen):
    """One outline, since a font's outlines must not overlap: foot, right lobe, top, left lobe."""
    middle, lobe = SUIT_ADVANCE // 2, 250
    side, top = (middle + 235, 470), (middle, 866)
    neck_angle = 215
    apart = math.dist(side, top)
    toward = math.degrees(math.atan2(top[1] - side[1], top[0] - side[0]))
    spread = math.degrees(math.acos(apart / 2 / lobe))
    start, neck = (middle, 0), point_on(side, lobe, math.radians(neck_angle))
    right = [((middle + 80, 0), (middle + 160, 0), (middle + 230, 0)),
             ((middle + 90, 60), (neck[0] + 12, 190), neck)]
    right += arc(side, lobe, neck_angle, 360 + toward - spread)
    right += arc(top, lobe, toward + 180 + spread - 360, 90)
    closed(pen, start, *right, *mirrored(middle, right, start))


def diamond(pen):
    """Four sides that curve inward a little, which makes the points look sharp."""
    middle, half_width, top, bottom = SUIT_ADVANCE // 2, 410, 1180, -30
    waist = (top + bottom) // 2
    corners = [(middle, bottom), (middle + half_width, waist), (middle, top),
               (middle - half_width, waist), (middle, bottom)]

    def inward(one, other):
        x, y = (2 * one[0] + other[0]) / 3, (2 * one[1] + other[1]) / 3
        return x + 0.09 * (middle - x), y + 0.09 * (waist - y)

    sides = [(inward(one, other), inward(other, one), other)
             for one, other in zip(corners, corners[1:])]
    closed(pen, corners[0], *sides)


def heart(pen):
    middle, half_width, top, notch, bottom = SUIT_ADVANCE // 2, 475, 1130, 900, -20
    closed(pen, (middle, bottom),
           ((middle + 150, bottom + 240), (middle + half_width, bottom + 470),
            (middle + half_width, 810)),
           ((middle + half_width, 1010), (middle + 375, top), (middle + 246, top)),
           ((middle + 130, top), (middle + 40, top - 110), (middle, notch)),
           ((middle - 40, top - 110), (middle - 130, top), (middle - 246, top)),
           ((middle - 375, top), (middle - half_width, 1010), (middle - half_width, 810)),
           ((middle - half_width, bottom + 470), (middle - 150, bottom + 240),
            (middle, bottom)))


def spade(pen):
    middle, half_width, top, low = SUIT_ADVANCE // 2, 480, 1170, 190
    start = (middle, 0)
    right = [((middle + 80, 0), (middle + 160, 0), (middle + 240, 0)),
             ((middle + 100, 50), (middle + 50, 170), (middle + 38, 330)),
             ((middle + 90, 240), (middle + 150, low), (middle + 245, low)),
             ((middle + 380, low), (middle + half_width, 290), (middle + half_width, 460)),
             ((middle + half_width, 760), (middle + 110, top - 280), (middle, top))]
    closed(pen, start, *right, *mirrored(middle, right, start))


def missing(advance):
    def draw(pen):
        closed(pen, (100, 0), [(advance - 100, 0)], [(advance - 100, 1100)], [(100, 1100)])
        closed(pen, (180, 80), [(180, 1020)], [(advance - 180, 1020)], [(advance - 180, 80)])
    return draw


def blank(pen):
    """Nothing to draw."""


def write_font(path, family, style, ascent, descent, glyphs):
    """glyphs: (name, code or None, advance, drawing), the missing glyph first.

    A picture is asked for by the place of its code in the private range. The character that it
    shows comes first in the map, so that a printed page can be searched for it.
    """
    names = [name for name, _, _, _ in glyphs]
    shapes = {name: glyph(drawing) for name, _, _, drawing in glyphs}
    bytes_of_glyphs = {name: code for name, code, _, _ in glyphs if code is not None}
    codes = {CHARACTERS.get(name, code): name for name, code in bytes_of_glyphs.items()}
    codes.update({PRIVATE_RANGE + code: name for name, code in bytes_of_glyphs.items()})

    builder = FontBuilder(EM, isTTF=True)
    builder.setupGlyphOrder(names)
    builder.setupCharacterMap(codes)
    builder.setupGlyf(shapes)
    left = {name: getattr(shapes[name], "xMin", 0) for name in names}
    builder.setupHorizontalMetrics({name: (advance, left[name]) for name, _, advance, _ in glyphs})
    builder.setupHorizontalHeader(ascent=ascent, descent=-descent, lineGap=0)
    full_name = f"{family} {style}"
    builder.setupNameTable({
        "familyName": family, "styleName": style, "uniqueFontIdentifier": full_name,
        "fullName": full_name, "version": "Version 2.000",
        "psName": full_name.replace(" ", "") if style == "Regular" else
        f"{family.replace(' ', '')}-{style}"})
    bold = style == "Bold"
    builder.setupOS2(sTypoAscender=ascent, sTypoDescender=-descent, sTypoLineGap=0,
                     usWinAscent=ascent, usWinDescent=descent,
                     usWeightClass=700 if bold else 400, fsSelection=0x20 if bold else 0x40)
    builder.setupPost()
    builder.font["head"].macStyle = 1 if bold else 0
    builder.font["head"].created = builder.font["head"].modified = FIXED_DATE
    builder.font.recalcTimestamp = False
    builder.save(path)


def marks(stroke, weight):
    return [(".notdef", None, MARK_ADVANCE, missing(MARK_ADVANCE)),
            ("space", 32, MARK_ADVANCE // 2, blank),
            ("nobreakspace", 160, MARK_ADVANCE // 2, blank),
            ("square", 110, MARK_ADVANCE, square),
            ("ring", 161, RING_ADVANCE, ring(stroke)),
            ("check", 252, MARK_ADVANCE, check(weight))]


def suits():
    return [(".notdef", None, SUIT_ADVANCE, missing(SUIT_ADVANCE)),
            ("space", 32, SUIT_ADVANCE // 2, blank),
            ("nobreakspace", 160, SUIT_ADVANCE // 2, blank),
            ("club", 167, SUIT_ADVANCE, club),
            ("diamond", 168, SUIT_ADVANCE, diamond),
            ("heart", 169, SUIT_ADVANCE, heart),
            ("spade", 170, SUIT_ADVANCE, spade)]


def printed(draw):
    size = PRINT_SUIT_SIZE
    return lambda pen: draw(TransformPen(pen, (size, 0, 0, size, PRINT_SUIT_AIR, 0)))


def print_suits():
    advance = round(PRINT_SUIT_AIR + PRINT_SUIT_SIZE * SUIT_ADVANCE)
    return [(name, code, advance, printed(draw)) for name, code, _, draw in suits()]


def main():
    default = pathlib.Path(__file__).resolve().parent
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default
    write_font(folder / "zevlin-marks-regular.ttf", "Zevlin Marks", "Regular",
               MARKS_ASCENT, MARKS_DESCENT, marks(stroke=96, weight=0))
    write_font(folder / "zevlin-marks-bold.ttf", "Zevlin Marks", "Bold",
               MARKS_ASCENT, MARKS_DESCENT, marks(stroke=120, weight=50))
    write_font(folder / "zevlin-suits.ttf", "Zevlin Suits", "Regular",
               SUITS_ASCENT, SUITS_DESCENT, suits())
    write_font(folder / "zevlin-print-suits.ttf", "Zevlin Print Suits", "Regular",
               SUITS_ASCENT, SUITS_DESCENT, print_suits())


if __name__ == "__main__":
    main()

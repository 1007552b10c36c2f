#!/usr/bin/env python3
"""The icon's and the pointers' files are those that their script draws."""

import pathlib
import struct
import sys
import unittest
import zlib

ICONS = pathlib.Path(__file__).resolve().parents[2] / "assets" / "icons"
sys.dont_write_bytecode = True
sys.path.insert(0, str(ICONS))
import draw_icons  # noqa: E402


def pixels(png):
    """Size and pixels of a picture, however its bytes were packed."""
    at, data, header = 8, b"", b""
    while at < len(png):
        length, kind = struct.unpack(">I4s", png[at:at + 8])
        body = png[at + 8:at + 8 + length]
        header, data = (body if kind == b"IHDR" else header,
                        data + body if kind == b"IDAT" else data)
        at += length + 12
    return header, zlib.decompress(data)


def pictures(ico):
    """The pictures in an ICO file, by size."""
    _, kind, count = struct.unpack("<HHH", ico[:6])
    assert kind == 1
    found = {}
    for number in range(count):
        width, _, _, _, _, _, length, place = struct.unpack(
            "<BBBBHHII", ico[6 + 16 * number:22 + 16 * number])
        found[width or 256] = pixels(ico[place:place + length])
    return found


class Icons(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.drawn = draw_icons.files()

    def test_every_file_is_the_one_that_the_script_draws(self):
        readers = {".png": pixels, ".ico": pictures, ".svg": bytes}
        for name, content in self.drawn.items():
            with self.subTest(name):
                read = readers[pathlib.Path(name).suffix]
                self.assertEqual(read((ICONS / name).read_bytes()), read(content))

    def test_no_other_file_lies_beside_them(self):
        lying = {path.name for path in ICONS.iterdir() if path.is_file()}
        self.assertEqual(lying, set(self.drawn) | {"draw_icons.py"})

    def test_the_ico_file_holds_the_pictures(self):
        held = pictures((ICONS / "zevlin.ico").read_bytes())
        self.assertEqual(set(held), set(draw_icons.ICON_SIZES))
        for size, picture in held.items():
            self.assertEqual(picture, pixels((ICONS / f"zevlin-{size}.png").read_bytes()))

    def test_the_icon_is_felt_with_a_white_card(self):
        header, rows = pixels((ICONS / "zevlin-64.png").read_bytes())
        width = struct.unpack(">I", header[:4])[0]

        def at(x, y):
            start = y * (4 * width + 1) + 1 + 4 * x
            return tuple(rows[start:start + 4])

        self.assertEqual(at(0, 0)[3], 0)
        self.assertEqual(at(6, 32), (*draw_icons.FELT, 255))
        self.assertEqual(at(16, 24), (255, 255, 255, 255))
        self.assertEqual(at(32, 38), (0, 0, 0, 255))


if __name__ == "__main__":
    unittest.main()

"""What a Linux desktop learns from the installed files: it is asked as a file manager asks it."""

import configparser
import filecmp
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

TYPE = "application/x-zevlin-card"
ICON = "application-x-zevlin-card"


class InstallationTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="zevlin-installation-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.share = cls.folder / "usr" / "share"
        subprocess.run([os.environ.get("CMAKE", "cmake"), "--install", os.environ["ZEVLIN_BUILD"],
                        "--prefix", cls.share.parent], check=True, stdout=subprocess.DEVNULL)
        # What the system does behind the installation of a package.
        subprocess.run(["update-mime-database", cls.share / "mime"], check=True)

    def ask(self, *question):
        environment = os.environ | {"XDG_DATA_DIRS": f"{self.share}:/usr/share", "LANG": "C.UTF-8",
                                    "XDG_DATA_HOME": str(self.folder / "own"),
                                    "XDG_CONFIG_HOME": str(self.folder / "config")}
        return subprocess.run(["gio", *map(str, question)], env=environment, check=True,
                              capture_output=True, text=True).stdout

    def type_of(self, path):
        answer = self.ask("info", "-a", "standard::content-type", path)
        return answer.partition("standard::content-type: ")[2].strip()

    def copy_of(self, source, name):
        return shutil.copyfile(self.share / "zevlin" / source, self.folder / name)

    def test_a_card_is_known_by_its_extension(self):
        for name in "Jones & Smith.zev", "JONES.ZEV":
            (self.folder / name).write_text("x")
            self.assertEqual(self.type_of(self.folder / name), TYPE)
        self.assertEqual(self.type_of(self.copy_of("Two Over One.zev", "a.zev")), TYPE)

    def test_a_card_without_its_extension_is_known_by_its_content(self):
        self.assertEqual(self.type_of(self.copy_of("Two Over One.zev", "card from mail")), TYPE)

    def test_other_files_are_no_cards(self):
        for number in 12, 15:
            layout = self.copy_of(f"Definitions.Ini.{number}", f"layout{number}")
            self.assertEqual(self.type_of(layout), "text/plain")
        letter = self.folder / "letter"
        letter.write_text("This contains the settings for the card called:\n")
        self.assertEqual(self.type_of(letter), "text/plain")

    def test_a_card_has_the_programs_icon(self):
        icons = self.ask("info", "-a", "standard::icon", self.copy_of("Two Over One.zev", "b.zev"))
        self.assertIn(ICON, icons)
        hicolor = self.share / "icons" / "hicolor"
        programs = sorted(hicolor.glob("*/apps/zevlin.*"))
        self.assertEqual(len(programs), 8)
        for icon in programs:
            cards = icon.parent.parent / "mimetypes" / (ICON + icon.suffix)
            self.assertTrue(filecmp.cmp(icon, cards, shallow=False), cards)

    def test_the_program_doesnt_make_itself_the_opener(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(self.share / "applications" / "zevlin.desktop")
        self.assertNotIn("MimeType", entry["Desktop Entry"])
        # But it opens the card that a player drops on its icon.
        self.assertEqual(entry["Desktop Entry"]["Exec"], "zevlin %f")


if __name__ == "__main__":
    unittest.main()

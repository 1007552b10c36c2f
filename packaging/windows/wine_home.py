"""A home under Wine for the program of the zip, driven as every other home is."""

import os
import pathlib
import shutil
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
sys.dont_write_bytecode = True
import desktop  # noqa: E402


class WineHome(desktop.Home):
    """A Windows of its own with the program in it, as just unpacked."""

    def __init__(self, prefix, stage):
        self.prefix = prefix
        self.stage = stage
        super().__init__(prefix.parent)
        users = prefix / "drive_c" / "users"
        self.user = next(path.name for path in users.iterdir() if path.name != "Public")
        self.focuses_itself = True
        self.clipboard_kind = "bmp"
        self.data = users / self.user / "Documents" / "ZEV"

    def install(self):
        self.program = self.prefix / "drive_c" / "Zevlin"
        self.installed = self.program / "zevlin-files"
        shutil.rmtree(self.program, ignore_errors=True)
        shutil.copytree(self.stage, self.program)

    def forget(self):
        """Makes the next start the first one again, with no changes left to offer."""
        local = self.prefix / "drive_c" / "users" / self.user / "AppData" / "Local"
        for folder in (self.data, local / "Zevlin"):
            shutil.rmtree(folder, ignore_errors=True)
        self.install()

    def run(self, *command):
        """Another program of that Windows: its exit code and what it says."""
        ended = subprocess.run(["wine", *command], env=self.usual_environment() | self.environment,
                               capture_output=True, timeout=120)
        return ended.returncode, ended.stdout.decode("cp437").replace("\r", "")

    def command(self):
        return ["wine", r"C:\Zevlin\zevlin.exe"]

    def named(self, path):
        return "Z:" + str(path).replace("/", "\\")

    def opening(self, name):
        # Windows takes either separator, and both in one name.
        return f"C:\\users\\{self.user}/Documents\\ZEV/{name}.zev"

    def usual_environment(self):
        return {"HOME": str(self.folder), "PATH": "/usr/bin:/bin", "LANG": "C.UTF-8",
                "DISPLAY": os.environ["DISPLAY"], "WINEPREFIX": str(self.prefix),
                "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "winemenubuilder.exe=;mscoree=;mshtml="}

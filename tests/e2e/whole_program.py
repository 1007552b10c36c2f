"""What the whole-program tests share: a home of its own for each test, and what is left of it after
a failure."""

import pathlib
import shutil
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
import desktop  # noqa: E402

KEPT = desktop.ROOT / "build" / "e2e"
FAILURE = 1  # exit code of a program that can't go on


class WholeProgramTest(unittest.TestCase):
    """A test of the staged program. The trace must hold no error at its end."""

    announced_error = None  # a text that an error line of the trace may hold
    home_type = desktop.Home
    program_type = desktop.Program

    def run(self, result=None):
        result = result or self.defaultTestResult()
        self.programs = []
        self.home = self.home_type(pathlib.Path(tempfile.mkdtemp(prefix="zevlin-")) / "home")
        failures = len(result.failures) + len(result.errors)
        try:
            super().run(result)
            if len(result.failures) + len(result.errors) > failures:
                self.keep()
        finally:
            for program in reversed(self.programs):
                program.kill()
            shutil.rmtree(self.home.folder.parent, ignore_errors=True)
        return result

    def tearDown(self):
        errors = [line for line in self.home.trace().splitlines() if line[9:].startswith("Error")
                  and not (self.announced_error and self.announced_error in line)]
        self.assertEqual(errors, [])

    def start(self, *arguments, **settings):
        program = self.program_type(self.home, *arguments, **settings)
        self.programs.append(program)
        return program

    def start_for_the_first_time(self, **settings):
        """The program with its help page closed and a blank card shown."""
        program = self.start(**settings)
        desktop.wait_for("the options file", (self.home.data / "ZEV.Ini").exists)
        program.wait_for_title(r"\(unnamed\)$")
        program.close_help()
        return program

    def leave(self, program):
        program.close()
        self.assertEqual(program.wait_for_end(), 0)

    def keep(self):
        folder = KEPT / self.id().rpartition(".")[2]
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        desktop.save_screenshot(folder / "screen.png")
        shutil.copytree(self.home.folder, folder / "home",
                        ignore=lambda folder, names: names if folder == str(self.home.runtime) else [])
        print(f"The screen and the home are kept in {folder}", file=sys.stderr)


main = unittest.main

"""A screen that goes away with its server, beside the one on which the tests run."""

import os
import subprocess

from whole_program import desktop


class Screen:
    def __enter__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-nolisten", "tcp"],
                                       pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as numbers:
            self.name = f":{numbers.readline().strip()}"
        return self

    def wait_for_window(self, program):
        command = ["xdotool", "search", "--onlyvisible", "--pid", str(program.pid), "--name",
                   r"^Zevlin  \("]
        environment = os.environ | {"DISPLAY": self.name}
        desktop.wait_for("the window", lambda: subprocess.run(
            command, env=environment, capture_output=True, timeout=20).stdout)

    def __exit__(self, *failure):
        self.server.kill()
        self.server.wait(timeout=10)

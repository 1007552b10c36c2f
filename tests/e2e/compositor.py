"""A Wayland compositor on the virtual screen, as large as that. What xdotool does with mouse and keys
there reaches the compositor's window, and so the program as a Wayland desktop's own."""

import os
import subprocess

import whole_program  # noqa: F401 (where desktop lies)
import desktop

SOCKET = "wayland-test"
GROUND = (0x33, 0x66, 0x55)  # what is seen beside all windows
# Where a busy machine brings the release of a key late, the key would repeat.
SETTINGS = f"""[core]
idle-time=0
[keyboard]
repeat-rate=0
[shell]
panel-position=none
background-color=0xff{''.join(f'{part:02x}' for part in GROUND)}
locking=false
animation=none
startup-animation=none
close-animation=none
focus-animation=none
"""


class Compositor:
    """Runs from its start to its end. Its socket lies in the folder."""

    def __init__(self, folder):
        settings = folder / "weston.ini"
        settings.write_text(SETTINGS)
        width, height = desktop.xdotool("getdisplaygeometry").split()
        self.process = subprocess.Popen(
            ["weston", "--backend=x11-backend.so", "--use-pixman", "--fullscreen",
             f"--width={width}", f"--height={height}", f"--socket={SOCKET}",
             f"--config={settings}", f"--log={folder / 'weston.log'}"],
            env=os.environ | {"XDG_RUNTIME_DIR": str(folder)})
        try:
            desktop.wait_for("the compositor's socket", (folder / SOCKET).exists)
            desktop.wait_for("the compositor's ground", self.is_ground_shown)
        except Exception:
            self.kill()
            raise
        # It follows the pointer's steps, not its place: so that both agree, the pointer goes where
        # neither can go on.
        desktop.xdotool("mousemove", int(width) - 1, int(height) - 1, "mousemove", 0, 0)

    @staticmethod
    def is_ground_shown():
        picture = desktop.screenshot()
        # In the middle stands the pointer.
        return picture.pixel(picture.width // 4, picture.height // 4) == bytes(GROUND)

    def kill(self):
        self.process.terminate()
        try:
            self.process.wait(timeout=10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()

"""scripts/start-game, the second half of ./play: the demonstration where there is no display, and a null sink where
there is a display but no sound."""

import glob
import os
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

from game_test_case import GameTestCase, stage

START = stage.REPOSITORY / "scripts" / "start-game"
PICTURES = stage.REPOSITORY / "demo-pictures"


def processes_that_mention(text):
    """The command lines of running processes that hold a text."""
    found = []
    for path in glob.glob("/proc/[0-9]*/cmdline"):
        try:
            line = Path(path).read_bytes().replace(b"\0", b" ").decode(errors="replace")
        except OSError:
            continue
        if text in line:
            found.append(line)
    return found


class StartGame(GameTestCase):
    def setUp(self):
        super().setUp()
        self.temporary = self.stage.folder / "temporary"
        self.temporary.mkdir()
        self.environment = {name: value for name, value in os.environ.items()
                            if name not in ("DISPLAY", "WAYLAND_DISPLAY", "PULSE_SERVER")}
        self.environment["TMPDIR"] = str(self.temporary)

    def test_without_a_display_it_plays_a_demonstration_and_cleans_up(self):
        shutil.rmtree(PICTURES, ignore_errors=True)
        run = subprocess.run([sys.executable, START, "/diag"], env=self.environment, capture_output=True, text=True,
                             stdin=subprocess.DEVNULL, timeout=300, check=False)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        self.assertIn("There is no display here", run.stdout)
        self.assertIn(str(PICTURES), run.stdout)
        pictures = sorted(PICTURES.glob("*.png"))
        self.assertGreaterEqual(len(pictures), 3)
        self.assertGreater(len({picture.read_bytes() for picture in pictures}), 2, "the pictures differ")
        self.assert_nothing_left()

    def test_with_a_display_but_no_sound_it_gives_the_game_a_null_sink(self):
        with open(self.stage.folder / "said.txt", "w+") as said:
            run = subprocess.Popen(
                [sys.executable, START], stdin=subprocess.DEVNULL, stdout=said, stderr=said,
                env={**self.environment, **self.screen.environment, "PULSE_SERVER": "unix:/nowhere",
                     "GDK_BACKEND": "none", "XDG_DATA_HOME": str(self.stage.data_home)})
            self.addCleanup(stage.end, run)
            log = self.stage.data_home / "vandrel" / "vandrel.log"
            words = Path(said.name)
            stage.wait_for(lambda: "Changed video mode" in words.read_text() or run.poll() is not None, "the display")

            def left_by_escape():
                self.screen.hold(0.2, "Escape")
                return stage.poll(lambda: run.poll() is not None, 0.5)

            stage.wait_for(left_by_escape, "the end of the game")
        self.assertEqual(run.returncode, 0, words.read_text())
        self.assertNotIn("An exception", log.read_text())
        if not glob.glob("/dev/snd/pcm*p"):
            self.assertIn("the game plays to a null sink and will be silent", words.read_text())
        self.assert_nothing_left()

    def assert_nothing_left(self):
        self.assertEqual(list(self.temporary.iterdir()), [])
        self.assertEqual(processes_that_mention(str(self.temporary)), [])


if __name__ == "__main__":
    unittest.main()

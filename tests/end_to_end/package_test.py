"""The Debian package, put into an empty root: the game starts from there, its replay tool works without a screen, and
nothing stays when it is removed."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

import game_test_case
import stage

BUILD = Path(os.environ.get("VANDREL_BUILD", stage.REPOSITORY / "build" / "release"))
FONT = Path("usr/share/fonts/truetype/ocr-a/OCRA.ttf")
GOLDEN_ROUND = stage.REPOSITORY / "tests" / "replays" / "1.1.1.2.replay"


def run(*command):
    """Runs a command to its end and gives what it printed. Raises CalledProcessError with what it said if it fails."""
    return subprocess.run([str(part) for part in command], check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True).stdout


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if not path.is_dir()}


class PackageTest(game_test_case.GameTestCase):
    def setUp(self):
        super().setUp()
        folder = tempfile.TemporaryDirectory(prefix="vandrel-package-")
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name) / "root"
        packages = Path(folder.name) / "packages"
        run("cpack", "--config", BUILD / "CPackConfig.cmake", "-B", packages)
        [self.package] = packages.glob("vandrel_*.deb")
        (self.root / "var/lib/dpkg/updates").mkdir(parents=True)
        (self.root / "var/lib/dpkg/info").mkdir()
        (self.root / "var/lib/dpkg/status").touch()
        # What another package brings.
        (self.root / FONT).parent.mkdir(parents=True)
        (self.root / FONT).symlink_to("/" / FONT)

    def dpkg(self, *arguments):
        """Works on the empty root, in which none of the libraries stand that the package depends on."""
        dpkg = ["dpkg", f"--root={self.root}", "--force-depends", "--log=/dev/null", *arguments]
        run(*dpkg if os.geteuid() == 0 else ["unshare", "--map-root-user", *dpkg])

    def test_the_installed_game_runs_and_leaves_nothing(self):
        before = files_below(self.root / "usr")
        self.dpkg("--install", self.package)

        verified = run(self.root / "usr/games/vandrel-replay", "verify", GOLDEN_ROUND)
        self.assertIn(GOLDEN_ROUND.name, verified)

        # From a folder where there is nothing: the launcher finds the pictures and the sounds.
        game = self.stage.start(self.root / "usr/games/vandrel", working_directory=self.stage.folder)
        self.wait_for_picture(game, game_test_case.has_light, "the splash")
        self.menus(game).wait_for_first_run()
        game.close()

        self.dpkg("--purge", "vandrel")
        self.assertEqual(files_below(self.root / "usr"), before)


if __name__ == "__main__":
    unittest.main()

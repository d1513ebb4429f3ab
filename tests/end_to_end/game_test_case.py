"""What the end-to-end tests share: a stage for each test, the program of this build, and the arena as it is seen on the
screen. The stage itself is scripts/stage.py."""

import os
import shutil
import sys
import tempfile
import time
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import stage  # noqa: E402  (the path above leads to it)
from key_player import KEY_SETS  # noqa: E402
from menu_keys import MenuKeys  # noqa: E402

PROGRAM = Path(os.environ.get("VANDREL_PROGRAM", stage.REPOSITORY / "build" / "release" / "bin" / "vandrel"))

# The round that a quick start opens, with the options as they are, has an arena of this many squares. A screen of just
# that size shows it pixel by pixel.
SQUARES = (27, 15)
SQUARE = 32
ARENA_SCREEN = (SQUARES[0] * SQUARE, SQUARES[1] * SQUARE)

# The key sets of the first two players.
FIRST_PLAYER, SECOND_PLAYER = KEY_SETS[:2]

# A variable that the dialogs of the platform look at: with it no box opens that somebody would have to answer, and the
# text of a box stands on standard error alone.
NO_BOXES = {"GDK_BACKEND": "none"}


# In a configuration: the first run's question has been asked, and the option of a quick start is shown.
KNOWN_PLAYERS = "[lootbox]\ncatsEnabled=1\n[other]\nshowQuickStartOption=1\n"


class GameTestCase(unittest.TestCase):
    """A test with a stage of its own, with a screen of SCREEN pixels. All that was started ends with the test."""

    SCREEN = (1280, 720)

    def setUp(self):
        self.stage = stage.Stage(*self.SCREEN)
        self.addCleanup(self.stage.close)
        self.screen = self.stage.screen

    def start(self, *arguments, **options):
        """Starts the game; the options are those of Stage.start."""
        return self.stage.start(PROGRAM, arguments, **options)

    def configure(self, text):
        """Writes the configuration file that the game will find."""
        folder = self.stage.data_home / "vandrel"
        folder.mkdir(exist_ok=True)
        (folder / "vandrel.cfg").write_text(text)

    def copy_of_working_directory(self):
        """A new copy of the game's working directory, in which files can be spoiled."""
        copy = Path(tempfile.mkdtemp(dir=self.stage.folder))
        shutil.copytree(stage.WORKING_DIRECTORY, copy, dirs_exist_ok=True)
        return copy

    def wait_for_picture(self, game, fits, what):
        """Waits until the screen shows a picture that `fits`, and gives it."""
        def look():
            if not game.running():
                raise stage.StageError(f"the game ended while the test waited for {what}:\n{game.errors()}")
            picture = self.screen.picture()
            return picture if fits(picture) else None

        return stage.wait_for(look, what)

    def wait_for_lasting_picture(self, game, fits, seconds, what):
        """Waits until every picture of so many seconds on end `fits`: what passes by, such as a flame, does not."""
        since = [None]

        def lasts(picture):
            if not fits(picture):
                since[0] = None
                return False
            since[0] = since[0] or time.monotonic()
            return time.monotonic() - since[0] >= seconds

        return self.wait_for_picture(game, lasts, what)

    def press_until(self, key, condition, what):
        """Presses a key again and again until the condition holds."""
        def pressed():
            self.screen.hold(0.05, key)
            return stage.poll(condition, 0.5)

        stage.wait_for(pressed, what)

    def leave(self, game):
        """Leaves the game as a player does, and gives its exit code."""
        self.menus(game).quit_game()
        return game.wait_for_end()

    def menus(self, game):
        """The keys of the menus of a running game."""
        return MenuKeys(self.screen, game)


class ArenaTestCase(GameTestCase):
    """A test that looks at the squares of the arena."""

    SCREEN = ARENA_SCREEN

    def start_round(self):
        """Starts the game without music, and in it a match, and waits until the arena stands on the screen. Gives the
        game and that picture."""
        self.configure("[sound]\nsoundEffectsVolume=100\nmusicVolume=0\n" + KNOWN_PLAYERS)
        game = self.start()
        menus = self.menus(game)
        menus.wait_for_main_menu()
        menu = self.screen.picture()
        menus.start_match()
        game.wait_for_line(f"{SQUARES[0]}x{SQUARES[1]}; {ARENA_SCREEN[0]}x{ARENA_SCREEN[1]}\n")
        arena = self.wait_for_picture(game, lambda picture: square_differs(picture, menu, (0, 0)), "the arena")
        return game, self.settled(game, arena)

    def settled(self, game, before):
        """The next picture in which the whole arena is there, so that later ones can be compared with it."""
        previous = [before]

        def stands(picture):
            same = picture.rows == previous[0].rows
            previous[0] = picture
            return same

        return self.wait_for_picture(game, stands, "a picture of the arena that stands still")

    def walk(self, game, key, square, before):
        """Holds a key until the player stands on a square: until that looks other than in the picture `before`."""
        self.screen.press(key)
        try:
            return self.wait_for_picture(game, lambda picture: square_differs(picture, before, square),
                                         f"a player on the square {square} by the key {key}")
        finally:
            self.screen.release(key)


def has_light(picture):
    """Whether anything but black is to be seen."""
    return any(row[channel::4].strip(b"\0") for row in picture.rows for channel in range(3))


def square_of(picture, square):
    return picture.part(square[0] * SQUARE, square[1] * SQUARE, SQUARE, SQUARE)


def square_differs(picture, other, square, share=0.25):
    """Whether more than a share of a square's pixels differ between two pictures."""
    return square_of(picture, square).differing_pixels(square_of(other, square)) > share * SQUARE * SQUARE


def turned(square):
    """The square that lies as `square` does when the arena is turned by half a circle."""
    return SQUARES[0] - 1 - square[0], SQUARES[1] - 1 - square[1]

"""The ways through the game on which the pictures of the documents are taken: with real keys, and with replays, whose rounds
are always the same. Each tour is a function that gives its shots by name. Used by scripts/take-pictures."""

import contextlib
import os
import shutil
import time
from collections import namedtuple

import stage
from demonstration import FIRST, SECOND, Album, Match, show_splash, shows_arena
from key_player import KEY_SETS
from menu_keys import CLASSIC, MenuKeys
from pads import Pads

BUILD = stage.REPOSITORY / "build" / "release"
PROGRAM = BUILD / "bin" / "vandrel"
TEST_PADS = BUILD / "tests" / "end_to_end" / "libtest_pads.so"
GOLDEN = stage.REPOSITORY / "tests" / "replays"

SQUARE = 32
NO_BOXES = {"GDK_BACKEND": "none"}  # nobody is there to answer one
KNOWN_PLAYERS = "[lootbox]\ncatsEnabled=1\n[other]\nshowQuickStartOption=1\n"

REPLAYS, SETTINGS, CREDITS, QUIT = range(1, 5)  # rows of the main menu

# Rows of the menus by their distance from the first, the picture of what opens there, the key that closes it, and what is
# opened in it.
Opened = namedtuple("Opened", "row name close inner", defaults=("Escape", ()))
IN_START_GAME = [
    Opened(7, "everything"),
    Opened(12.5, "level", inner=[Opened(9.5, "player"), Opened(10.5, "snake-hunter"), Opened(11.5, "powerups")])]
IN_SETTINGS = [
    Opened(1, "display", inner=[Opened(1, "screen-mode"), Opened(2, "high-rates")]),
    Opened(2, "sound"),
    Opened(3, "replay-settings"),
    Opened(4, "accessibility", inner=[
        Opened(2, "team-colours", inner=[Opened(0, "edit-colour", close=None)]),
        Opened(9, "flashing"), Opened(10.5, "slow")]),
    Opened(5, "phobias"),
    Opened(6, "debug")]

LISTED = [10, 14, 16, 19, 22, 25, 33, 50]  # golden rounds in the list of replays
LISTED_AT = 1795204800                     # the newest of them, as seconds since 1970


class Tour:
    """The game on a stage of its own, and the shots taken of it. A context: all ends with it."""

    def __init__(self, size=(1280, 720), configuration=KNOWN_PLAYERS):
        self.stage = stage.Stage(*size)
        self.screen = self.stage.screen
        self.home = self.stage.data_home / "vandrel"
        (self.home / "replays").mkdir(parents=True)
        if configuration:
            (self.home / "vandrel.cfg").write_text(configuration)
        self.shots = {}

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stage.close()

    def start(self, environment=None):
        self.game = self.stage.start(PROGRAM, environment={**NO_BOXES, **(environment or {})})
        self.menus = MenuKeys(self.screen, self.game)

    def put_replay(self, replay, then):
        """Adds a round with its proof to the list of replays, as one of that time in seconds since 1970."""
        for suffix in ("", ".verifyZ"):
            shutil.copy(f"{replay}{suffix}", self.home / "replays")
        os.utime(self.home / "replays" / replay.name, (then, then))

    def take(self, name):
        self.shots[name] = self.screen.picture()

    def press(self, key):
        """Holds a key until anything on the screen has changed for good."""
        self.menus.step(key, lambda: self.screen.picture().rows)

    def show(self, opened):
        """Opens a menu, takes its picture, shows what is opened in it and closes it."""
        for menu in opened:
            self.menus.go_to_row(menu.row, menu.name)
            self.menus.enter()
            self.take(menu.name)
            self.show(menu.inner)
            if menu.close:
                self.menus.step(menu.close)
            else:
                self._leave_colour()

    def _leave_colour(self):
        """The editor of a colour knows no key that leaves it; its fourth row does."""
        for _ in range(3):
            self.menus.step("Down")
        self.menus.enter()

    def wait_for_picture(self, fits, what):
        def look():
            picture = self.screen.picture()
            return picture if fits(picture) else None

        return stage.wait_for(look, what)


def menus():
    """Every menu of the game from its first start on, the list of replays and the credits."""
    with Tour(configuration=None) as tour:
        for age, number in enumerate(LISTED):
            tour.put_replay(GOLDEN / f"{number}.1.1.2.replay", LISTED_AT - 1000 * age)
        tour.start()
        album = Album(tour.screen)
        show_splash(tour.screen, tour.game, album)
        tour.shots["splash"] = album.last("splash")
        tour.menus.wait_for_first_run()
        tour.take("first-run")
        tour.menus.answer_first_run()
        tour.take("main")
        tour.show([Opened(0, "start-game", inner=IN_START_GAME), Opened(REPLAYS, "replays"),
                   Opened(SETTINGS, "settings", inner=IN_SETTINGS), Opened(CREDITS, "credits"), Opened(QUIT, "quit")])
        return tour.shots


def lobby():
    """Four players at one keyboard walk to the marks of the teams."""
    with Tour() as tour:
        tour.start()
        tour.menus.wait_for_main_menu()
        tour.menus.open_start_game()
        tour.menus.go_to_row(CLASSIC + 1, "Capture the Flag")
        tour.menus.enter()
        tour.game.wait_for_line("playerJoinScreen: grid\n")
        stage.wait_for(lambda: tour.menus.highlight() is None, "the lobby")
        for keys in KEY_SETS:
            tour.press(keys["bomb"])
        walks = [keys["down"] for keys in KEY_SETS]
        tour.screen.press(*walks)
        tour.wait_for_picture(all_near_marks, "four players near the marks")
        tour.screen.release(*walks)
        tour.press("n")
        tour.screen.hold(0.5, "Left", "l", "h")
        tour.take("lobby")
        return tour.shots


def pause():
    """The pause of a match of two, and the way to another device."""
    with Tour() as tour:
        tour.start()
        tour.menus.wait_for_main_menu()
        tour.menus.join_match([FIRST["bomb"], SECOND["bomb"]])
        tour.wait_for_picture(shows_arena, "the arena")
        tour.press("Escape")
        stage.wait_for(tour.menus.highlight, "the pause")
        tour.take("pause")
        tour.menus.step("Down")
        tour.menus.step("Down")
        tour.menus.enter()
        tour.take("players")
        tour.menus.enter()
        tour.take("devices")
        return tour.shots


def lost_pad():
    """A pad is pulled in a match; what stands at the feet of its player, twice as large."""
    with Tour((27 * SQUARE, 15 * SQUARE)) as tour:
        with contextlib.closing(Pads(TEST_PADS, tour.stage.folder, plugged=2)) as pads:
            tour.start(pads.environment)
            tour.menus.wait_for_main_menu()
            tour.menus.start_match()
            arena = tour.wait_for_picture(shows_arena, "the arena")
            pads.act("axis", 0, 0, 0, 1)  # the left stick to the right, since the words need room on both sides
            tour.wait_for_picture(lambda picture: differs(picture, arena, 3, 1), "the player to walk away from the edge")
            pads.act("axis", 0, 0, 0, 0)
            pads.act("pull", 0)
            tour.game.wait_for_line("1 controls invalidated\n")
            tour.wait_for_picture(lambda picture: white(picture) > white(arena) + 50, "the mark of the lost pad")
            tour.shots["lost"] = tour.screen.picture()
        return tour.shots


def loot():
    """The cash is counted to where the first pictures are won."""
    with Tour(configuration=KNOWN_PLAYERS + "[lootbox]\nlootboxPoints=940\n") as tour:
        tour.start()
        tour.menus.wait_for_main_menu()
        tour.menus.go_to_row(SETTINGS, "the settings")
        tour.menus.enter()
        tour.menus.go_to_row(6, "the debug options")
        tour.menus.enter()
        tour.menus.go_to_row(3, "the points")
        for _ in range(10):
            tour.menus.step("Right")
        tour.menus.go_to_row(4, "the lootbox room")
        tour.menus.enter()
        tour.wait_for_picture(lambda picture: white(picture) > 0, "the count")
        tour.take("count")
        tour.wait_for_picture(shows_photograph, "the first picture")
        for number in range(4):
            tour.take(f"won-{number}")
            tour.menus.step("space")
        return tour.shots


def trophies():
    """The table behind a match that was won, as the demonstration plays one."""
    with Tour() as tour:
        tour.start()
        tour.menus.wait_for_main_menu()
        album = Album(tour.screen)
        tour.menus.join_match([FIRST["bomb"], SECOND["bomb"]], lambda: album.take_once("lobby"))
        Match(tour.stage, tour.game, album, time.monotonic() + 300).play()
        return {"final": album.last("the-score-after-round-")}


def differs(picture, other, column, row):
    """Whether a square of an arena that is shown pixel by pixel looks other than in another picture."""
    one, two = (each.part(column * SQUARE, row * SQUARE, SQUARE, SQUARE) for each in (picture, other))
    return one.differing_pixels(two) > SQUARE * SQUARE // 4


def all_near_marks(picture):
    """Whether a figure stands in each of the four columns of the lobby, just above the marks of the teams."""
    return all(len(picture.part(column, 585, 40, 10).colours()) > 3 for column in (240, 477, 714, 951))


def white(picture):
    """About how many pixels are white."""
    return sum(row.count(b"\xff\xff\xff") for row in picture.rows)


def shows_photograph(picture):
    """Whether most of the middle of the screen is not black."""
    middle = picture.part(picture.width * 4 // 10, picture.height * 4 // 10, picture.width // 5, picture.height // 5)
    return middle.colours().get((0, 0, 0), 0) < middle.width * middle.height // 2

"""Every screen of the menus, opened and left by keys, and which settings outlive the process."""

import configparser
import time
import unittest

from game_test_case import FIRST_PLAYER, KNOWN_PLAYERS, SECOND_PLAYER, GameTestCase, has_light, stage
from menu_keys import FIRST_ROW, ROW_HEIGHT, ROW_STEP, placement

BOTTOM = 1079  # the last line of the menus' screen


class Screen:
    """A list-style screen: its rows as a text of "#" for a heading, "-" for a gap and numbers for so many rows that can be
    selected; the screens behind rows, by the number of the row; and the row that leaves it."""

    def __init__(self, name, rows, children=None, back=-1, top=FIRST_ROW, step=ROW_STEP, escape=True):
        self.name = name
        self.children = children or {}
        self.top = top
        self.escape = escape
        self.rows = []  # from the top, before it is scrolled
        y = top
        for word in rows.split():
            if word == "-":
                y += step // 2
                continue
            for _ in range(1 if word == "#" else int(word)):
                if word != "#":
                    self.rows.append(y)
                y += step
        self.back = back % len(self.rows)


class OpenScreen:
    """Which row of a screen is selected, and how far the screen is scrolled."""

    def __init__(self, screen):
        self.screen = screen
        self.row = 0
        self.scroll = 0
        self.select(0)

    def select(self, row):
        self.row = row % len(self.screen.rows)
        y = self.screen.rows[self.row]
        if y + ROW_HEIGHT + self.scroll > BOTTOM:
            self.scroll = BOTTOM - ROW_HEIGHT - y
        elif y + self.scroll < self.screen.top:
            self.scroll = self.screen.top - y

    def line(self):
        """Where the selected row is shown."""
        return self.screen.rows[self.row] + self.scroll


def colour_editor(name):
    return Screen(name, "5", back=3, escape=False)


SETTINGS = Screen("settings", "# 9", {
    0: Screen("display settings", "# 5", {
        0: Screen("screen mode", "4", top=200, step=44),
        1: Screen("high frame rates", "# # # # # # 4"),
    }),
    1: Screen("audio settings", "# 3"),
    2: Screen("replay settings", "# 3"),
    3: Screen("accessibility", "# 9 - 1 - # # # 4 - 1", {
        1: Screen("team colours", "11", {0: colour_editor("team colour")}),
        2: Screen("player colours", "# # 101", {0: colour_editor("player colour")}),
        4: colour_editor("outline colour"),
        6: colour_editor("bomb colour"),
        8: Screen("flashing background", "# # # # # # # # 2"),
        9: Screen("slow motion", "# 5"),
    }),
    4: Screen("phobias", "# # # 6"),
    5: Screen("debug options", "# 6"),
})
START_GAME = Screen("start game", "# 7 - # 4 - 1", {
    6: Screen("everything options", "# 4 - 4 - # - 2"),
    10: Screen("level options", "# 8 - 3 - 1", {
        8: Screen("player options", "# 6 - 1"),
        9: Screen("snake hunter options", "# 11 - 1"),
        10: Screen("customise powerups", "# 20 - 1", step=40),
    }),
})
MAIN_MENU = Screen("main menu", "5", {0: START_GAME, 1: Screen("replays", "1", step=40), 2: SETTINGS})
CREDITS, QUIT = 3, 4  # rows of the main menu


class MenusTest(GameTestCase):
    def open_menus(self, configuration=KNOWN_PLAYERS):
        self.configure("[sound]\nmusicVolume=0\n" + configuration)
        self.game = self.start()
        self.keys = self.menus(self.game)
        self.keys.wait_for_main_menu()
        return OpenScreen(MAIN_MENU)

    def is_shown(self, line):
        """Whether the highlight is at that line of the menus' screen."""
        picture = self.screen.picture()
        found = self.keys.highlight(picture)
        scale, above = placement(picture)
        return found is not None and abs(found[0] - above - line * scale) <= 3

    def wait_for(self, shown):
        stage.wait_for(lambda: self.is_shown(shown.line()), f"row {shown.row} of {shown.screen.name}")

    def go_to(self, shown, row):
        """Selects a row of the screen on show, by the shorter way. A key held for too long goes several rows."""
        row %= len(shown.screen.rows)
        for _ in range(60):
            self.wait_for(shown)
            if shown.row == row:
                return
            down = (row - shown.row) % len(shown.screen.rows)
            way = 1 if down <= len(shown.screen.rows) // 2 else -1
            self.keys.step("Down" if way == 1 else "Up")
            shown.select(shown.row + way)
            for _ in range(3):
                if stage.poll(lambda: self.is_shown(shown.line()), 1):
                    break
                shown.select(shown.row + way)
        self.fail(f"never came to row {row} of {shown.screen.name}")

    def open_child(self, shown, row):
        self.go_to(shown, row)
        self.keys.enter()
        child = OpenScreen(shown.screen.children[row])
        self.wait_for(child)
        return child

    def walk(self, shown):
        """Opens every screen below and leaves it, once by its last row and once by Escape."""
        for row, child in shown.screen.children.items():
            with self.subTest(child.name):
                opened = self.open_child(shown, row)
                self.walk(opened)
                self.go_to(opened, child.back)
                if not child.escape:
                    before = self.keys.highlight()
                    self.screen.hold(0.5, "Escape")
                    self.assertEqual(self.keys.highlight(), before, "Escape does nothing here")
                self.keys.enter()
                self.wait_for(shown)
                if child.escape:
                    self.open_child(shown, row)
                    self.keys.step("Escape")
                    self.wait_for(shown)

    def test_every_screen_is_left_by_its_last_row_and_by_escape(self):
        shown = self.open_menus("[lootbox]\ncatsEnabled=1\n")
        self.walk(shown)

        self.go_to(shown, CREDITS)
        self.keys.enter()
        stage.wait_for(lambda: self.keys.highlight() is None, "the credits")
        self.keys.step("Escape")
        self.wait_for(shown)

        self.go_to(shown, QUIT)
        for answer in ("Escape", "Return"):
            self.keys.enter()
            stage.wait_for(lambda: self.keys.highlight() is None, "the question")
            self.keys.step(answer)
            if answer == "Escape":
                self.wait_for(shown)
        self.assertEqual(self.game.wait_for_end(), 0)
        self.assertNotIn("An exception", self.game.errors())

    def test_settings_outlive_the_process_where_they_should(self):
        shown = self.open_menus("[lootbox]\ncatsEnabled=1\n[other]\ndiagnostic=0\n")
        settings = self.open_child(shown, 2)
        changes = [
            (0, [2, 3]),        # show FPS; vertical sync, which is not stored
            (2, [0, 1]),        # recording off, the replay test on
            (4, [1]),           # no dogs
            (5, [0, 1, 2, 4]),  # the debug switches and points are not stored, the option of a quick start is
            (3, [0, 3, 5, 7, 10]),  # of the looks nothing is stored without "Save"; loading them at start-up is
        ]
        for row, rows in changes:
            opened = self.open_child(settings, row)
            for changed in rows:
                self.go_to(opened, changed)
                self.keys.enter()
            self.keys.step("Escape")
            self.wait_for(settings)
        self.go_to(settings, 6)
        self.keys.enter()  # from any controller round to the first
        written = {"menucontrolmode": "1", "replayrecordingenabled": "0", "showreplaytestoptions": "1", "alwaysshowfps": "1"}
        self.assertFalse(written.keys() & self.stored().keys(), "stored when the settings are closed")
        self.keys.step("Escape")
        self.wait_for(shown)
        expected = {"musicvolume": "0", "catsenabled": "1", "diagnostic": "0", "dogsenabled": "0",
                    "showquickstartoption": "1", "autoload": "1", **written}
        self.assertEqual(self.stored(), expected)

        self.keys.quit_game()
        game = self.start()
        self.menus(game).wait_for_main_menu()
        self.wait_for_picture(game, lambda picture: has_light(picture.part(0, 0, 100, 20)), "the frame rate")
        self.assertEqual(self.leave(game), 0)
        self.assertEqual(self.stored(), expected)

    def test_a_screen_mode_is_stored_once_it_is_confirmed(self):
        shown = self.open_menus("[lootbox]\ncatsEnabled=1\n")
        modes = self.open_child(self.open_child(self.open_child(shown, 2), 0), 0)
        before = self.stored()
        for answer, said in (("Escape", "Mode change cancelled\n"), ("y", "Mode change confirmed\n")):
            self.go_to(modes, 1)
            self.keys.step("Return", lambda: self.screen.picture().rows)  # a window, as is told at the left
            self.go_to(modes, 2)
            self.keys.enter()
            stage.wait_for(lambda: self.keys.highlight() is None, "the question")
            self.assertEqual(self.stored(), before)
            self.keys.step(answer)
            self.game.wait_for_line(said)
            self.wait_for(modes)
        self.assertEqual(self.stored(), {**before, "width": "1280", "height": "720", "windowed": "1", "display": "-1"})
        self.assertEqual(self.leave(self.game), 0)

    def test_the_pause_leads_to_its_screens_and_back_into_the_round(self):
        self.open_menus()
        self.keys.join_match([FIRST_PLAYER["bomb"], SECOND_PLAYER["bomb"]])
        for _ in range(2):  # the second time shows that the round had gone on
            self.screen.press("Escape")
            root = stage.wait_for(self.keys.highlight, "the pause")
            self.screen.release("Escape")
            for _ in range(2):  # sound and controls
                self.keys.step("Down")
                before = self.keys.look()
                self.keys.enter()
                stage.wait_for(self.keys.highlight, "the screen behind the row")
                self.keys.step("Escape")
                stage.wait_for(lambda look=before: self.keys.look() == look, "the pause behind its screen")
            for _ in range(4):
                if self.keys.highlight() == root:
                    break
                self.keys.step("Up")
            self.keys.enter()
            stage.wait_for(lambda: self.keys.highlight() is None, "the round")
        self.assertNotIn("Quit\n", self.game.errors())
        self.assertEqual(self.leave(self.game), 0)

    def test_keys_that_are_held_when_another_window_takes_them_are_let_go_of(self):
        self.open_child(self.open_menus(), 0)
        before = self.keys.look()
        self.screen.press("Down")
        stage.wait_for(lambda: self.keys.look() != before, "the menu to move")
        with self.screen.other_window():
            stage.wait_for(self.stands_still, "the menu to stand still without the keys", timeout=20)
            self.screen.release("Down")
        stage.wait_for(self.stands_still, "the menu to stand still with the keys again", timeout=20)
        self.keys.step("Down")
        self.assertEqual(self.leave(self.game), 0)

    def stands_still(self):
        """Whether the menu looks the same for longer than a held key needs for some ways round it, at times that do not
        keep step with it."""
        before = self.keys.look()
        for pause in (0.11, 0.19, 0.31, 0.07, 0.41, 0.23, 0.13, 0.37, 0.29):
            time.sleep(pause)
            if self.keys.look() != before:
                return False
        return True

    def stored(self):
        """The keys of the configuration file with their values."""
        parser = configparser.ConfigParser()
        parser.read_string(self.game.configuration_file.read_text())
        return {key: value for section in parser.sections() for key, value in parser[section].items()}


if __name__ == "__main__":
    unittest.main()

"""The lobby before a match, by the keys of two players: they join, try bombs, form teams, get ready, and go back."""

import unittest

from game_test_case import ARENA_SCREEN, FIRST_PLAYER, SECOND_PLAYER, GameTestCase
from menu_keys import CLASSIC

CAPTURE_THE_FLAG = CLASSIC + 1

# Of the lobby for the four key sets of a keyboard, whose arena has the size of this screen.
SPOTS = [(160, 48), (320, 48)]
PLAYER = (32, 32)
REFUSAL = (0, 310, ARENA_SCREEN[0], 75)  # two lines
REFUSAL_RED = (255, 32, 32)
FLOOR = (0, 32, 0)
BELOW_MARKERS = 424  # where nothing has the colour of a team but what belongs to a member
FIRST_TEAM, SECOND_TEAM = (255, 0, 0), (0, 0, 255)


class Lobby(GameTestCase):
    SCREEN = ARENA_SCREEN

    def setUp(self):
        super().setUp()
        self.configure("[sound]\nsoundEffectsVolume=0\nmusicVolume=0\n")
        self.game = self.start()
        self.menu = self.menus(self.game)
        self.menu.answer_first_run()
        self.menu.open_start_game()

    def enter_lobby(self, row):
        """Goes from the choice of modes into the lobby, and gives the picture of it with nobody in it."""
        self.menu.go_to_row(row, "the mode")
        return self.press_until_seen("Return", lambda picture: picture.pixel(5, 300) == FLOOR, "the lobby")

    def join(self, number, keys, before):
        """Joins a key set on its spot and gives the picture with the player there."""
        self.screen.press(keys["bomb"])
        try:
            return self.wait_for_picture(self.game, lambda picture: differs(picture, before, SPOTS[number], PLAYER),
                                         f"player {number} on the spot")
        finally:
            self.screen.release(keys["bomb"])

    def walk(self, key, fits, what):
        self.screen.press(key)
        try:
            return self.wait_for_picture(self.game, fits, what)
        finally:
            self.screen.release(key)

    def ask_in_vain(self, lines):
        """Asks for the match to begin until the refusal stands there, in so many lines."""
        def refuses(picture):
            part = picture.part(*REFUSAL)
            rows = [y for y in range(part.height) if REFUSAL_RED in part.part(0, y, part.width, 1).colours()]
            return bool(rows) and (rows[-1] >= 40) == (lines == 2)

        self.press_until_seen("space", refuses, f"a refusal of {lines} lines")

    def press_until_seen(self, key, fits, what):
        """Presses a key until the screen shows what `fits`, and gives that picture."""
        self.press_until(key, lambda: fits(self.screen.picture()), what)
        return self.screen.picture()

    def begin(self, *players):
        """Has the players hold their bomb keys until the round begins."""
        self.screen.press(*[keys["bomb"] for keys in players])
        self.game.wait_for_line("Begin game\n")
        self.screen.release_all()

    def test_two_key_sets_join_try_a_bomb_and_begin_a_match(self):
        empty = self.enter_lobby(CLASSIC)
        first = self.join(0, FIRST_PLAYER, empty)
        self.ask_in_vain(lines=1)

        x, y = SPOTS[0]
        self.screen.press(FIRST_PLAYER["bomb"])
        beside = (x + 32, y + 16), (16, 32)
        self.wait_for_picture(self.game, lambda picture: differs(picture, empty, *beside), "a flame beside the player")
        self.screen.release(FIRST_PLAYER["bomb"])
        self.wait_for_picture(self.game, lambda picture: not differs(picture, empty, *beside), "the flame to go out")
        after = self.wait_for_picture(self.game, lambda picture: not differs(picture, first, (x, y - 24), (32, 48)),
                                      "the player, who has come to no harm")

        self.join(1, SECOND_PLAYER, after)
        self.begin(FIRST_PLAYER, SECOND_PLAYER)
        self.assertEqual(self.leave(self.game), 0)

    def test_teams_are_formed_at_the_markers(self):
        empty = self.enter_lobby(CAPTURE_THE_FLAG)
        self.join(0, FIRST_PLAYER, empty)
        self.join(1, SECOND_PLAYER, empty)
        self.ask_in_vain(lines=2)
        self.walk(SECOND_PLAYER["down"], lambda picture: stands_in(picture, SECOND_TEAM, 242),
                  "the second player in the second team")
        self.walk(FIRST_PLAYER["down"], lambda picture: differs(picture, empty, (160, BELOW_MARKERS), PLAYER, 0.2),
                  "the first player beside the first marker")
        self.walk(FIRST_PLAYER["left"], lambda picture: stands_in(picture, FIRST_TEAM, 32),
                  "the first player in the first team")
        self.begin(FIRST_PLAYER, SECOND_PLAYER)
        self.menu.quit_match(CAPTURE_THE_FLAG)
        self.assertEqual(self.leave(self.game), 0)

    def test_a_lobby_that_was_left_is_empty_the_next_time(self):
        empty = self.enter_lobby(CLASSIC)
        self.join(0, FIRST_PLAYER, empty)
        self.menu.quit_match()
        again = self.enter_lobby(CLASSIC)
        self.assertFalse(differs(again, empty, (0, 0), ARENA_SCREEN, 0))
        self.menu.quit_match()
        self.assertNotIn("Begin game\n", self.game.errors())
        self.assertEqual(self.leave(self.game), 0)


def differs(picture, other, corner, size, share=0.1):
    """Whether more than a share of the pixels of a rectangle differ between two pictures."""
    return picture.part(*corner, *size).differing_pixels(other.part(*corner, *size)) > share * size[0] * size[1]


def stands_in(picture, team, x):
    """Whether a player in that quarter of the lobby, from `x` on, has the ring and the line of the team's colour."""
    return picture.part(x, BELOW_MARKERS, 170, 32).colours().get(team, 0) >= 20


if __name__ == "__main__":
    unittest.main()

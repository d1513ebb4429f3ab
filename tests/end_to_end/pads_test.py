"""Pads at the real program: they steer, they are pulled in the middle of a match, and they come back to their player."""

import unittest

from game_test_case import ARENA_SCREEN, PROGRAM, SQUARE, ArenaTestCase, square_differs
from pads import Pads

LIBRARY = PROGRAM.parents[1] / "tests" / "end_to_end" / "libtest_pads.so"

LEFT_STICK = 0


class PadsTest(ArenaTestCase):
    def setUp(self):
        super().setUp()
        self.pads = Pads(LIBRARY, self.stage.folder, plugged=2)
        self.addCleanup(self.pads.close)

    def start(self, *arguments, **options):
        return super().start(*arguments, environment=self.pads.environment, **options)

    def steer(self, game, position, square, before):
        """Moves the left stick of the first pad sideways until its player stands on a square."""
        self.pads.act("axis", 0, LEFT_STICK, 0, position)
        try:
            return self.wait_for_picture(game, lambda picture: square_differs(picture, before, square),
                                         f"the player of the pad on the square {square}")
        finally:
            self.pads.act("axis", 0, LEFT_STICK, 0, 0)

    def test_a_pad_is_pulled_in_a_match_and_comes_back(self):
        game, arena = self.start_round()
        self.assertIn("New player: 1, controls: Test pad\n", game.errors())
        there = self.steer(game, 1, (3, 1), arena)

        self.pads.act("pull", 0)
        game.wait_for_line("1 controls invalidated\n")
        lost = self.wait_for_picture(game, lambda picture: white_below(picture, 1) > white_below(there, 1) + 50,
                                     "the mark of the lost pad")
        self.pads.act("axis", 0, LEFT_STICK, 0, -1)
        self.pads.act("plug", 0)
        game.wait_for_line("Player 0 regained controls\n")
        self.wait_for_picture(game, lambda picture: square_differs(picture, lost, (1, 1)), "the player to drive on")
        self.pads.act("axis", 0, LEFT_STICK, 0, 0)
        self.wait_for_picture(game, lambda picture: white_below(picture, 1) < white_below(lost, 1) - 50,
                              "the mark to go")
        self.assertEqual(self.leave(game), 0)


def white_below(picture, row):
    """White pixels in the line of squares below a row of squares."""
    return picture.part(0, (row + 1) * SQUARE, ARENA_SCREEN[0], SQUARE).colours().get((255, 255, 255), 0)


if __name__ == "__main__":
    unittest.main()

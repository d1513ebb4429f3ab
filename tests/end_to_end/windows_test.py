"""What others do to the window: the picture fits into whatever size it is given."""

import unittest

from game_test_case import GameTestCase, has_light

WINDOW = (500, 700)
PICTURE = (0, 209, 500, 282)  # of 16 to 9, as large as fits, in the middle


class Windows(GameTestCase):
    def test_the_picture_fits_into_a_window_that_another_program_resized(self):
        self.configure("[lootbox]\ncatsEnabled=1\n")
        game = self.start()
        self.menus(game).wait_for_main_menu()
        self.screen.resize_window("Vandrel", *WINDOW)

        def fits(picture):
            left, top, width, height = PICTURE
            above = picture.part(left, 0, width, top)
            below = picture.part(left, top + height, width, WINDOW[1] - top - height)
            # The bar behind the chosen row goes from edge to edge.
            edges = [picture.part(left, top, 1, height), picture.part(left + width - 1, top, 1, height)]
            return all(map(has_light, edges)) and not has_light(above) and not has_light(below)

        self.wait_for_picture(game, fits, "the whole picture in the resized window")
        self.screen.resize_window("Vandrel", *self.SCREEN)
        self.menus(game).wait_for_main_menu()
        self.assertEqual(self.leave(game), 0)

    def test_a_monitor_that_is_gone_is_replaced_by_the_default_one(self):
        self.configure("[lootbox]\ncatsEnabled=1\n[video]\ndisplay=1\n")
        game = self.start()
        game.wait_for_line("Adapter 1 is not there: the default one is taken\n")
        self.menus(game).wait_for_main_menu()
        self.assertEqual(self.leave(game), 0)


if __name__ == "__main__":
    unittest.main()

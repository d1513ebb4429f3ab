"""The way from the main menu into a match, by keys: what was chosen on the screens is what the round was played with,
and after the match the player stands where the match was started."""

import json
import subprocess
import unittest

from game_test_case import PROGRAM, GameTestCase, has_light
from menu_keys import MenuKeys

START_GAME_ROWS = {"Capture the Flag": 2, "EVERYTHING": 7, "Arena Size": 9.5, "Custom Game Options": 12.5,
                   "Quick Start": 15}
LEVEL_ROWS = {"first": 1, "Player options": 9.5}
PLAYER_ROWS = {"first": 1, "Start with shield": 2, "Back": 7.5}
EVERYTHING_ROWS = {"first": 1, "Battle Royale": 2, "Begin game": 11.5}


class StartScreens(GameTestCase):
    def test_a_match_is_played_with_what_was_chosen(self):
        game, menu = self.open_start_screen()
        self.change(menu, START_GAME_ROWS, "Arena Size", "Right")  # Tiny
        self.change(menu, START_GAME_ROWS, "Quick Start", "Right", "Right")  # three players
        self.open(menu, START_GAME_ROWS, "Custom Game Options", LEVEL_ROWS, key="Up")
        self.open(menu, LEVEL_ROWS, "Player options", PLAYER_ROWS)
        self.change(menu, PLAYER_ROWS, "Start with shield", "Return")
        menu.go_to_row(PLAYER_ROWS["Back"], "the row Back", "Up")
        menu.enter()
        menu.wait_for_row(LEVEL_ROWS["Player options"], "the level options, by the row Back")
        menu.step("Escape")
        menu.wait_for_row(START_GAME_ROWS["Custom Game Options"], "the start screen, by Escape")

        self.open(menu, START_GAME_ROWS, "EVERYTHING", EVERYTHING_ROWS, key="Up")
        self.change(menu, EVERYTHING_ROWS, "Battle Royale", "Left")
        menu.go_to_row(EVERYTHING_ROWS["Begin game"], "the row Begin game", "Up")
        menu.enter()
        game.wait_for_line("Begin game\n")
        menu.quit_match(EVERYTHING_ROWS["Begin game"])
        menu.quit_game()
        self.assertEqual(game.wait_for_end(), 0)

        played = self.recorded_round()
        self.assertEqual(played["mode"], "EVERYTHING")
        options = played["options"]
        self.assertEqual((options["grid_squares_x"], options["grid_squares_y"]), (19, 11))
        self.assertEqual(options["numPlayers"], 3)
        self.assertTrue(options["startWithShield"])
        self.assertFalse(options["everythingBattleRoyale"])
        self.assertTrue(options["everythingCTF"])

    def test_a_crowd_without_room_is_told_and_stands_on_the_start_screen_again(self):
        game, menu = self.open_start_screen()
        self.change(menu, START_GAME_ROWS, "Arena Size", "Right")  # Tiny
        self.change(menu, START_GAME_ROWS, "Quick Start", "Left")  # a hundred players
        menu.go_to_row(START_GAME_ROWS["Capture the Flag"], "the row Capture the Flag", "Up")
        menu.enter()
        game.wait_for_line("New round")
        self.wait_for_picture(game, lambda picture: menu.highlight(picture) is None and has_light(picture),
                              "the message")
        menu.step("Return")
        menu.wait_for_row(START_GAME_ROWS["Capture the Flag"], "the screen that started the match")
        menu.quit_game()
        self.assertEqual(game.wait_for_end(), 0)
        self.assertNotIn("Begin game\n", game.errors())

    def open_start_screen(self):
        self.configure("[lootbox]\ncatsEnabled=1\n[sound]\nsoundEffectsVolume=0\nmusicVolume=0\n"
                       "[other]\nshowQuickStartOption=1\nreplayRecordingEnabled=1\n")
        game = self.start()
        menu = MenuKeys(self.screen, game)
        menu.wait_for_main_menu()
        menu.open_start_game()
        return game, menu

    def change(self, menu, rows, name, *keys):
        menu.go_to_row(rows[name], f"the row {name}")
        for key in keys:
            menu.step(key)

    def open(self, menu, rows, name, opened, key="Down"):
        menu.go_to_row(rows[name], f"the row {name}", key)
        menu.enter()
        menu.wait_for_row(opened["first"], f"what {name} opens")

    def recorded_round(self):
        """What the header of the one replay that was recorded says."""
        replays = list(self.stage.data_home.rglob("*.replay"))
        self.assertEqual(len(replays), 1)
        tool = PROGRAM.with_name("vandrel-replay")
        told = subprocess.run([tool, "info", replays[0]], capture_output=True, text=True, check=True, timeout=60)
        return json.loads(told.stdout)


if __name__ == "__main__":
    unittest.main()

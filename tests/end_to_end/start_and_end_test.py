"""The life of the process: what a first run shows, writes and logs, and how it ends."""

import unittest

from game_test_case import FIRST_PLAYER, KNOWN_PLAYERS, SECOND_PLAYER, GameTestCase, has_light

FIRST_CONFIGURATION = """[video]
colourdepth=32
sync=1
width=0
height=0
windowed=0
updaterate=60
[sound]
soundEffectsVolume=60
musicVolume=100
[controls]
menuControlMode=2
xinputDpadEnabled=1
[other]
diagnostic=0
replayRecordingEnabled=1
showReplayTestOptions=0
alwaysShowFPS=0
"""

# What the log of a whole run holds, in this order.
LOG_OF_A_RUN = [
    "Log file opened\n", "Player: ", "SteamListener init\n", "Allegro init\n", "Registering trace handler\n",
    "Vandrel 1.1.2 Compiled on ", "Getting config settings\n", "Installing sound\n",
    "Detected desktop resolution: 1280x720\n", "Available gfx modes:\n", "Changing video mode to fullscreen window\n",
    "Setting display flags\n", "Adapter: -1\n", "Create display: 1280 720\n", "Register event sources\n",
    "Changed video mode to fullscreen window, ", "New game\n", "playerJoinScreen\n", "Begin game\n", "Quit\n", "Game ended\n",
    "Shut down sound\n", "Destroying shaders\n",
    "Destroying bitmaps\n", "Closing log file\n",
]


def lit_rectangle(picture):
    """The left, top, right and bottom of what is not black."""
    lit = [(x, y) for y, row in enumerate(picture.rows) if any(row)
           for x in range(picture.width) if any(picture.pixel(x, y))]
    return (min(x for x, _ in lit), min(y for _, y in lit), max(x for x, _ in lit), max(y for _, y in lit))


class StartAndEnd(GameTestCase):
    def test_a_first_run_shows_the_splash_and_writes_configuration_and_log(self):
        game = self.start()
        splash = self.wait_for_picture(game, has_light, "the splash")
        configuration = "".join(line for line in game.configuration_file.read_text().splitlines(keepends=True)
                                if line.strip())
        self.assertEqual(configuration, FIRST_CONFIGURATION)

        left, top, right, bottom = lit_rectangle(splash)
        self.assertIn((255, 255, 255), splash.colours())
        self.assertAlmostEqual((left + right) / 2, 640, delta=8, msg="the splash is centred")
        self.assertGreater(right - left, 800, "the whole line of 20 letters, 46 pixels apart, is there")
        self.assertGreaterEqual(top, 280)
        self.assertLess(bottom, 280 + 80, "one line, its top 80 pixels above the middle")

        self.menus(game).answer_first_run()
        self.menus(game).join_match([FIRST_PLAYER["bomb"], SECOND_PLAYER["bomb"]])
        self.assertEqual(self.leave(game), 0)
        self.assert_in_order(LOG_OF_A_RUN, game.log())
        self.assertTrue(game.log().endswith("Closing log file\n"))
        self.assertNotIn("An exception", game.errors())

    def test_the_log_begins_anew_with_every_start(self):
        for switch in ("/first", "/second"):
            game = self.start(switch, environment={"DISPLAY": None})
            game.wait_for_end()
        self.assertEqual(game.log().count("Log file opened\n"), 1)

    def test_a_round_is_left_by_the_close_button(self):
        game = self.start_match()
        self.screen.close_window("Vandrel")
        game.wait_for_line("Game ended\n")
        self.assertEqual(self.leave(game), 0)
        self.assertTrue(game.log().endswith("Closing log file\n"))

    def test_the_switch_that_limits_the_frames_ends_the_round(self):
        game = self.start_match("/fastForward", "/advanceLimit", "300")
        game.wait_for_line("Game ended\n")
        self.assertEqual(self.leave(game), 0)
        self.assertIn("\n300: ", game.log())
        self.assertTrue(game.log().endswith("Closing log file\n"))

    def start_match(self, *arguments):
        self.configure(KNOWN_PLAYERS)
        game = self.start(*arguments)
        self.menus(game).wait_for_main_menu()
        self.menus(game).start_match()
        return game

    def assert_in_order(self, lines, text):
        at = 0
        for line in lines:
            found = text.find(line, at)
            self.assertGreaterEqual(found, 0, f"{line!r} is missing behind {text[:at][-200:]!r}")
            at = found + len(line)


if __name__ == "__main__":
    unittest.main()

"""What a user, a spoiled installation or a poor machine can do to the game: each ends as it should, with its text on
standard error and in the log."""

import unittest

from game_test_case import FIRST_PLAYER, NO_BOXES, SECOND_PLAYER, GameTestCase

# One fault in the working directory each: what is done to which file, and the text that the player gets.
SPOILED_FILES = [
    ("an image is missing", "images", "Pilsbry.png", None, "Image not found: Pilsbry"),
    ("an image is no image", "images", "Pilsbry.png", b"no picture", "Error loading "),
    ("a sound is missing", "newSound", "Beat2.wav", None, "File not found: newSound/Beat2.wav"),
    ("a sound is no sound", "newSound", "Beat2.wav", b"no sound", "Error loading newSound/Beat2.wav"),
    ("the font is missing", "fonts", "OCRA.ttf", None, "Error loading fonts!"),
    ("a shader is missing", "shaders", "pixel_recolour.glsl", None, "al_attach_shader_source_file failed: "),
    ("a shader is nonsense", "shaders", "pixel_recolour.glsl", b"no shader", "al_attach_shader_source_file failed: "),
    ("a shader misses a part", "shaders", "pixel_recolour.glsl",
     b"vec4 nowhere(); void main() { gl_FragColor = nowhere(); }", "al_build_shader failed: "),
]

# Faults of the machine: the environment that the game gets, and the text.
POOR_MACHINES = [
    ("no sound system",
     {"PULSE_SERVER": "unix:/nowhere", "ALSA_CONFIG_PATH": "/dev/null"}, ["Error initialising sound system",
                                                                        "al_create_voice failed"]),
    ("no display", {"DISPLAY": None, "WAYLAND_DISPLAY": None}, ["Failed to create display"]),
]

# Configurations that no menu would write. The game runs with each.
ABSURD_CONFIGURATIONS = {
    "words for numbers": "[video]\nwidth=wide\nheight=high\nupdaterate=fast\n[sound]\nmusicVolume=loud\n",
    "numbers out of all bounds": "[video]\nwidth=-5\nheight=99999999999\nupdaterate=-60\ndisplay=99\n"
                                 "[controls]\nmenuControlMode=7\n[lootbox]\nlootboxPoints=-1\n",
    "the largest numbers": "[video]\nupdaterate=2147483647\n[lootbox]\nlootboxPoints=2147483647\n",
    "no configuration at all": "\0\1\2]]][[[\n====\nwidth\n",
    "an empty file": "",
}


class BadInput(GameTestCase):
    SCREEN = (640, 360)

    def test_a_spoiled_file_ends_the_game_with_its_name(self):
        for name, folder, file, content, text in SPOILED_FILES:
            with self.subTest(name):
                copy = self.copy_of_working_directory()
                spoiled = next((copy / folder).rglob(file))
                spoiled.unlink() if content is None else spoiled.write_bytes(content)
                game = self.start(working_directory=copy, environment=NO_BOXES)
                self.assert_ends_with_report(game, [text])
                if folder == "newSound":
                    self.assertNotIn("Create display", game.log(), "sound comes up before the display")

    def test_a_poor_machine_ends_the_game_with_what_is_missing(self):
        for name, environment, texts in POOR_MACHINES:
            with self.subTest(name):
                game = self.start(environment={**NO_BOXES, **environment})
                self.assert_ends_with_report(game, texts)

    def test_an_unknown_switch_ends_the_game_before_there_is_a_display(self):
        game = self.start("/diag", "/whatever", environment=NO_BOXES)
        self.assertEqual(game.wait_for_end(), 0)
        self.assertIn("Unknown command: /whatever\n", game.errors())
        self.assertIn("Getting config settings\n", game.log())
        self.assertNotIn("Installing sound\n", game.log())

    def test_a_box_is_shown_and_can_be_answered(self):
        game = self.start("/whatever")
        game.wait_for_line("Unknown command: /whatever\n")
        self.screen.confirm_box()
        self.assertEqual(game.wait_for_end(), 0)

    def test_the_game_runs_with_an_absurd_configuration(self):
        for name, text in ABSURD_CONFIGURATIONS.items():
            with self.subTest(name):
                self.configure(text)
                self.assert_plays(self.start(environment=NO_BOXES))

    def test_an_unreadable_configuration_is_as_none(self):
        (self.stage.data_home / "vandrel" / "vandrel.cfg").mkdir(parents=True)
        self.assert_plays(self.start(environment=NO_BOXES))

    def test_the_game_runs_without_a_log_that_cannot_be_created(self):
        (self.stage.data_home / "vandrel" / "vandrel.log").mkdir(parents=True)
        game = self.start(environment=NO_BOXES)
        game.wait_for_line("Warning: couldn't create log file\n")
        self.assert_plays(game)

    def test_a_data_directory_that_cannot_be_created_ends_the_game(self):
        game = self.start(environment={**NO_BOXES, "XDG_DATA_HOME": "/dev/null/home"})
        self.assertEqual(game.wait_for_end(), 0)
        self.assertIn("Warning: couldn't create log file\n", game.errors())
        self.assertRegex(game.errors(), r"An exception occurred:\n.*create_directory.*\nPlease send /dev/null/home/vandrel/"
                                        r"vandrel.log to support@quillmere.example\n")

    def test_a_prize_without_its_picture_ends_the_game_and_stays_won(self):
        copy = self.copy_of_working_directory()
        next((copy / "images").rglob("Alien1.png")).unlink()
        self.configure("[lootbox]\ncatsEnabled=1\nlootboxPoints=9\n")
        game = self.start(working_directory=copy, environment=NO_BOXES)
        menus = self.menus(game)
        menus.wait_for_main_menu()
        for row, name in ((2, "the settings"), (6, "the debug options"), (3, "the points")):
            menus.go_to_row(row, name)
            menus.step("Right" if row == 3 else "Return")  # a point more wins the first prize
        menus.go_to_row(4, "the way to the room")
        self.screen.hold(0.3, "Return")
        self.assert_ends_with_report(game, ["Image not found: Alien1"])
        configuration = game.configuration_file.read_text()
        self.assertIn("\nAlien1=1\n", configuration)
        self.assertIn("\nlootboxPoints=9\n", configuration)

    def assert_ends_with_report(self, game, texts):
        """The game ends by itself, having told one of `texts` in the three lines of a failure, and shuts down."""
        self.assertEqual(game.wait_for_end(), 0, game.errors())
        report = f"Please send {game.log_file} to support@quillmere.example\n"
        for said in (game.log(), game.errors()):
            self.assertIn("An exception occurred:\n", said)
            told = said.split("An exception occurred:\n", 1)[1]
            self.assertTrue(any(told.startswith(text) for text in texts), told)
            self.assertIn(report, told)
        self.assertEqual(game.errors().count(report), 2, "once as a line of the log and once as the text of the box")
        self.assertTrue(game.log().endswith("Closing log file\n"))

    def assert_plays(self, game):
        """The game gets as far as a round and is left in good order."""
        self.menus(game).answer_first_run()
        self.menus(game).join_match([FIRST_PLAYER["bomb"], SECOND_PLAYER["bomb"]])
        self.assertEqual(self.leave(game), 0, game.errors())
        self.assertNotIn("An exception", game.errors())


if __name__ == "__main__":
    unittest.main()

"""Recorded rounds from the main menu: recorded by playing, listed, played to their end, deleted, and tested all in a row."""

import os
import re
import shutil
import time
import unittest

from game_test_case import KNOWN_PLAYERS, NO_BOXES, GameTestCase, stage

GOLDEN = stage.REPOSITORY / "tests" / "replays"
SILENT = "[sound]\nsoundEffectsVolume=0\nmusicVolume=0\n"
REPLAYS_ROW = 1        # of the main menu
LIST_STEP = 40         # pixels from row to row of the list
ROUNDS_TO_PLAY = 3


class Replays(GameTestCase):
    def setUp(self):
        super().setUp()
        self.folder = self.stage.data_home / "vandrel" / "replays"
        self.folder.mkdir(parents=True)

    def start_menus(self, options="", environment=None):
        self.configure(SILENT + KNOWN_PLAYERS + options)
        game = self.start(environment=environment)
        menus = self.menus(game)
        menus.wait_for_main_menu()
        return game, menus

    def open_list(self, menus):
        menus.go_to_row(REPLAYS_ROW, "the replays")
        menus.enter()
        menus.wait_for_row(0, "the first replay", step=LIST_STEP)

    def go_to(self, menus, row):
        for _ in range(10):
            if menus.is_on_row(row, step=LIST_STEP):
                return
            menus.step("Down")
        self.fail(f"never came to row {row}")

    def put_golden(self, number, age):
        """A copy of a golden round, `age` seconds old."""
        name = f"{number}.1.1.2.replay"
        for suffix in ("", ".verifyZ"):
            shutil.copy(GOLDEN / (name + suffix), self.folder / (name + suffix))
        then = time.time() - age
        os.utime(self.folder / name, (then, then))
        return self.folder / name

    def test_rounds_that_were_played_are_listed_played_and_deleted(self):
        game, menus = self.start_menus()
        for number in range(ROUNDS_TO_PLAY):
            if number == 0:
                menus.start_match()
            else:
                menus.enter()  # the mode is still highlighted
            stage.wait_for(lambda n=number: game.errors().count("Begin game\n") == n + 1, "the round")
            recorded = self.folder / f"{number}.1.1.2.replay"
            before = recorded.stat().st_size
            stage.wait_for(lambda r=recorded, b=before: r.stat().st_size > b + 60, "some frames on disk")
            menus.quit_match()
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()),
                         sorted(f"{n}.1.1.2.replay{s}" for n in range(ROUNDS_TO_PLAY) for s in ("", ".verifyZ")))

        (self.folder / "9.1.1.2.replay").touch()
        os.utime(self.folder / "9.1.1.2.replay", (0, 0))
        menus.step("Escape")
        menus.wait_for_main_menu()
        self.open_list(menus)

        menus.enter()  # the newest
        game.wait_for_line(f"New game, replay: {self.folder}/2.1.1.2.replay\n")
        game.wait_for_line("Replay ended early\n")  # as it was quit
        menus.wait_for_row(0, "the list behind the replay", step=LIST_STEP)
        self.assertNotIn("Assertion failed", game.errors())

        self.go_to(menus, 1)
        menus.step("Delete")
        self.assertTrue((self.folder / "1.1.1.2.replay").exists(), "nothing is deleted before the answer")
        menus.step("y")
        stage.wait_for(lambda: not (self.folder / "1.1.1.2.replay.verifyZ").exists(), "the deletion")
        self.assertFalse((self.folder / "1.1.1.2.replay").exists())

        self.go_to(menus, 3)
        menus.enter()
        self.wait_for_picture(game, lambda _: menus.highlight() is None, "the broken one's errors")
        menus.step("Return")
        menus.wait_for_row(3, "the list behind the errors", step=LIST_STEP)
        self.assertEqual(self.leave(game), 0)
        self.assertEqual(len(list(self.folder.iterdir())), 2 * (ROUNDS_TO_PLAY - 1) + 1)

    def test_the_mass_test_plays_all_golden_rounds_and_ends_with_its_line(self):
        numbers = sorted(int(path.name.split(".")[0]) for path in GOLDEN.glob("*.replay"))
        for age, number in enumerate(numbers):
            self.put_golden(number, 100 + age)
        (self.folder / "999.1.1.2.replay").touch()
        game, menus = self.start_menus("showReplayTestOptions=1\n")
        self.open_list(menus)
        menus.enter()
        game.wait_for_line("Test all replays: ", timeout=300)
        played = re.findall(r"New game, replay: .*/(\d+)\.1\.1\.2\.replay\n", game.errors())
        self.assertEqual(played, [str(number) for number in numbers], "newest first, but for the broken one")
        self.assertRegex(game.errors(), r"Test all replays: \d+\.\d{6} seconds\n")
        self.assertEqual(self.leave(game), 0)

    def test_the_mass_test_stops_where_a_round_no_longer_comes_out(self):
        self.put_golden(14, 100)
        changed = self.put_golden(10, 50)
        data = bytearray(changed.read_bytes())
        data[data.index(b"ENDPP") + len(b"ENDPP") + 2 * 100] ^= 64  # whose record it is
        changed.write_bytes(data)
        game, menus = self.start_menus("showReplayTestOptions=1\n", environment=NO_BOXES)
        self.open_list(menus)
        menus.enter()
        game.wait_for_end()
        self.assertIn("Assertion failed: 'dummyCurPlayer == num' at line ", game.log())
        self.assertIn("replayInput pos ", game.log())
        self.assertNotIn("Test all replays: ", game.log())
        self.assertNotIn("14.1.1.2.replay", game.log())


if __name__ == "__main__":
    unittest.main()

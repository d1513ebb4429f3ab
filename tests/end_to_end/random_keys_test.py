"""Random keys through menus, lobbies and matches, drawn from a fixed seed: whatever is pressed, the game ends by its
own menus, without a fault, and the rounds that it recorded on the way play back as they were.

By hand for longer, or with other keys: VANDREL_RANDOM_KEYS_SECONDS=1200 VANDREL_RANDOM_KEYS_SEED=7 and this file."""

import os
import random
import re
import subprocess
import time
import unittest

from game_test_case import NO_BOXES, PROGRAM, GameTestCase, has_light, stage
from key_player import KEY_SETS

SECONDS = float(os.environ.get("VANDREL_RANDOM_KEYS_SECONDS", "35"))
SEED = int(os.environ.get("VANDREL_RANDOM_KEYS_SEED", "3"))

ONE_START = (20, 60)   # seconds from a start of the game to the way out
WAY_OUT_LIMIT = 120    # seconds; under a sanitizer the shows at the end of a match take long
LONG_LOBBY = 12        # phrases
SHOWN_PRESSES = 80     # of a failure
SHOWN_CHARACTERS = 8000

# Leads out from everywhere when it is repeated: Escape leaves every menu, the main menu too, and opens the pause in a
# match or a lobby, where it does no more. Up and Return are the last row, which leaves the pause, and in time the row
# that leaves the colours, which know no Escape. Space ends the shows after a round and a match, Return a message
# without a choice.
WAY_OUT = ["Escape", "Escape", "Up", "Return", "space"]

FAULTS = re.compile(r"exception|Assertion failed|Sanitizer|runtime error:|terminate called", re.IGNORECASE)

# What the log says of places, and what is counted of them.
PLACES = {"playerJoinScreen: grid\n": "lobby", "Begin game\n": "match", "Game ended\n": "menus"}
COUNTED = {
    "lobbies": "playerJoinScreen\n", "rounds begun": "Begin game\n", "rounds over": "Round over\n",
    "matches ended": "Game ended\n", "matches quit": "Quit\n", "replays played": "Loading replay: ",
    "replays tested": "Test all replays", "screen modes": "Changing video mode", "profiles": "Profile\n",
    "auctions": "Auction: ", "snakes of the computer": "Make AI snake\n",
}


class RandomKeys:
    """Somebody who presses keys without looking, except that the log tells what it may be good for to press."""

    def __init__(self, screen, seed):
        self._screen = screen
        self._random = random.Random(seed)
        self._began = time.monotonic()
        self._phrases_in_lobby = 0
        self._joining = KEY_SETS
        self.presses = []
        self._phrases = {
            "menus": [(self.choose, 16), (self.confirm, 3), (self.back, 2), (self.delete, 1), (self.play, 1)],
            "lobby": [(self.begin, 8), (self.gather, 5), (self.play, 1), (self.choose, 1), (self.pause, 1)],
            "match": [(self.play, 16), (self.fast_forward, 3), (self.pause, 1), (self.confirm, 4), (self.choose, 1)],
        }

    def seconds_of_one_start(self):
        return self._random.uniform(*ONE_START)

    def press_something(self, place):
        """Presses for up to some seconds. A lobby is left for the menus without a word, so it is not believed for long,
        and no place is believed always."""
        if place == "lobby" and self._phrases_in_lobby == 0:
            self._joining = self._random.sample(KEY_SETS, self._random.choice([2, 2, 3, 4]))
        self._phrases_in_lobby = self._phrases_in_lobby + 1 if place == "lobby" else 0
        if self._random.random() < 0.1 or self._phrases_in_lobby > LONG_LOBBY:
            place = self._random.choice(list(self._phrases))
        phrases, weights = zip(*self._phrases[place])
        self._random.choices(phrases, weights)[0]()

    def tap(self, *keys):
        """Long enough for the game, which looks at the keys in each update; now and then so long that it repeats."""
        seconds = self._random.uniform(0.04, 0.12) if self._random.random() < 0.9 else self._random.uniform(0.4, 1.2)
        self._hold(seconds, *keys)
        time.sleep(self._random.uniform(0.03, 0.1))

    def choose(self):
        for _ in range(self._random.choice([0, 0, 0, 1, 1, 2, 3, 5])):
            self.tap(self._random.choice(["Down", "Down", "Up", "Left", "Right"]))
        self.tap("Return")

    def confirm(self):
        self.tap(self._random.choice(["space", "space", "Return", "y"]))

    def back(self):
        self.tap("Escape")

    def delete(self):
        self.tap("Delete")
        self.confirm()

    def pause(self):
        self.tap("Escape")
        self.choose()

    def fast_forward(self):
        self.tap("F8")

    def begin(self):
        """All join who have not, and ask to begin by holding on or by Space."""
        self._hold(self._random.choice([0.3, 2]), *[keys["bomb"] for keys in self._joining])
        self.tap("space")

    def gather(self):
        """All walk down, where the teams gather in a lobby, and some a little to the side."""
        self._hold(3.2, *[keys["down"] for keys in self._joining])
        for keys in self._random.sample(self._joining, self._random.randrange(len(self._joining))):
            self._hold(self._random.uniform(0.2, 1), keys[self._random.choice(["left", "right"])])

    def play(self):
        """Fingers of several players that go down and up at any time."""
        down = []
        for _ in range(self._random.randrange(10, 50)):
            key = self._random.choices(list(self._random.choice(KEY_SETS).values()), [4, 4, 4, 4, 4, 1])[0]
            if key in down:
                down.remove(key)
                self._screen.release(key)
            else:
                down.append(key)
                self._note(key)
                self._screen.press(key)
            time.sleep(self._random.uniform(0.02, 0.15))
        self._screen.release_all()

    def take_way_out(self):
        for key in WAY_OUT:
            self.tap(key)

    def _hold(self, seconds, *keys):
        self._note(*keys)
        self._screen.hold(seconds, *keys)

    def _note(self, *keys):
        self.presses.append(f"{time.monotonic() - self._began:.2f} {'+'.join(keys)}")


class RandomKeysTest(GameTestCase):
    SCREEN = (960, 640)

    def test_whatever_is_pressed_the_game_goes_on_and_ends_in_order(self):
        self.configure("[other]\nshowQuickStartOption=1\nshowReplayTestOptions=1\n")
        keys = RandomKeys(self.screen, SEED)
        counts = dict.fromkeys(["starts", *COUNTED], 0)
        until = time.monotonic() + SECONDS
        while time.monotonic() < until or is_worth_more(counts, until):
            game = self.start(environment=NO_BOXES)
            self.wait_for_picture(game, has_light, "anything to be seen")
            self.play(game, keys, max(ONE_START[0], min(keys.seconds_of_one_start(), until - time.monotonic())))
            self.assert_ends_in_order(game, keys)
            counts["starts"] += 1
            for name, text in COUNTED.items():
                counts[name] += game.errors().count(text)
            print(f"{time.strftime('%T')} seed {SEED}: {counts}", flush=True)
        self.assertGreater(counts["rounds begun"], 0, f"seed {SEED}: the keys never came into a round: {counts}")
        self.assert_replays_hold()

    @staticmethod
    def play(game, keys, seconds):
        until = time.monotonic() + seconds
        while game.running() and time.monotonic() < until:
            keys.press_something(place_of(game))

    def assert_ends_in_order(self, game, keys):
        def ended():
            if game.running():
                keys.take_way_out()
            return not game.running()

        found = None
        if not stage.poll(ended, WAY_OUT_LIMIT):
            found = "no way out"
        elif game.process.returncode != 0:
            found = f"exit code {game.process.returncode}"
        elif fault := FAULTS.search(game.errors() + game.log()):
            found = fault.group()
        elif not game.log().endswith("Closing log file\n"):
            found = "the log breaks off"
        self.assertIsNone(found, self.story(game, keys))

    def assert_replays_hold(self):
        """The recorded rounds play back the same. One whose arena had no room for its players was never played, and has
        no end; deleting may have left none at all."""
        replays = sorted((self.stage.data_home / "vandrel" / "replays").glob("*.replay"))
        if not replays:
            return
        result = subprocess.run([PROGRAM.with_name("vandrel-replay"), "verify", *replays], stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
        print(result.stdout.splitlines()[-1], flush=True)
        failed = [line for line in result.stdout.splitlines()
                  if "FAILED" in line and "without its end mark" not in line]
        self.assertFalse(failed, f"seed {SEED}:\n{result.stdout}")

    @staticmethod
    def story(game, keys):
        return (f"seed {SEED}\nlast keys: {', '.join(keys.presses[-SHOWN_PRESSES:])}\n"
                f"end of what the game said:\n{game.errors()[-SHOWN_CHARACTERS:]}")


def is_worth_more(counts, until):
    """Whether no round has begun yet, as on a slow machine, and there is still time for one."""
    return counts["rounds begun"] == 0 and time.monotonic() < until + 120


def place_of(game):
    """Where the game said last that it goes."""
    said = game.errors()
    return PLACES[max(PLACES, key=said.rfind)] if any(text in said for text in PLACES) else "menus"


if __name__ == "__main__":
    unittest.main()

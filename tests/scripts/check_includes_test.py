"""scripts/check-includes against small source trees, each with one fault planted in it."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).resolve().parents[2] / "scripts" / "check-includes"

# A house in order: the meant circle of arena and players, painting beside the rules, and a header of the simulation
# that takes no more of the library than a plain struct.
SOUND_HOUSE = {
    "base/colour.h": "#include <allegro5/color.h>\n",
    "base/vector2.h": "",
    "shell/log.h": "",
    "shell/display.h": '#include <allegro5/allegro.h>\n#include "shell/log.h"\n',
    "shell/main.cpp": '#include "frontend/menu.h"\n#include "shell/display.h"\n',
    "presentation/bitmaps.h": "#include <allegro5/allegro.h>\n",
    "presentation/play_sample.h": "",
    "match/options/game_options.h": '#include "base/vector2.h"\n',
    "replay/unit/streams.h": '#include "match/options/game_options.h"\n',
    "arena/bomb.h": '#include "base/vector2.h"\n',
    "arena/game.h": '#include "arena/bomb.h"\n',
    "arena/game.cpp": '#include "arena/game.h"\n#include "players/player.h"\n#include "presentation/play_sample.h"\n',
    "arena/game_drawing.cpp": '#include "arena/game.h"\n#include "presentation/bitmaps.h"\n',
    "players/player.h": '#include "base/colour.h"\n',
    "players/player.cpp": '#include "arena/game.h"\n#include "players/player.h"\n',
    "frontend/menu.h": '#include "shell/display.h"\n',
}

# What is planted, as files that are put over the house, and the words that the complaint must hold.
FAULTS = {
    "two headers in a loop": (
        {"arena/game.h": '#include "players/player.h"\n', "players/player.h": '#include "arena/game.h"\n'},
        ["in a loop", "arena/game.h", "players/player.h"]),
    "a header that includes itself": ({"base/vector2.h": '#include "base/vector2.h"\n'}, ["in a loop", "base/vector2.h"]),
    "a loop of three": (
        {"base/a.h": '#include "base/b.h"\n', "base/b.h": '#include "base/c.h"\n', "base/c.h": '#include "base/a.h"\n'},
        ["in a loop", "base/a.h", "base/b.h", "base/c.h"]),
    "the ground floor knows a rule": (
        {"shell/log.h": '#include "match/options/game_options.h"\n'}, ["shell/log.h", "may not know options"]),
    "base knows the shell": ({"base/vector2.h": '#include "shell/log.h"\n'}, ["base/vector2.h", "may not know"]),
    "a screen knows the roof": (
        {"frontend/menu.cpp": '#include "shell/shutdown.h"\n', "shell/shutdown.h": ""},
        ["frontend/menu.cpp", "may not know roof"]),
    "the replay unit knows the game": (
        {"replay/unit/streams.h": '#include "arena/game.h"\n'}, ["replay/unit/streams.h", "may not know arena"]),
    "a rule includes a drawing header": (
        {"arena/game_drawing.h": "", "players/player.cpp": '#include "arena/game_drawing.h"\n'},
        ["players/player.cpp", "arena/game_drawing.h"]),
    "a rule includes pictures": (
        {"arena/game.cpp": '#  include "presentation/bitmaps.h"\n'}, ["arena/game.cpp", "presentation/bitmaps.h"]),
    "a rule reaches the library through another header": (
        {"presentation/play_sample.h": "#include <allegro5/allegro_audio.h>\n"},
        ["arena/game.cpp", "<allegro5/allegro_audio.h>", "presentation/play_sample.h ->"]),
    "the replay unit reaches the library": (
        {"base/vector2.h": "#include <allegro5/allegro.h>\n"}, ["the replay unit reaches <allegro5/allegro.h>"]),
    "a listed source of the simulation includes the library": (
        {"CMakeLists.txt": "list(APPEND simulation_sources\n    shell/log.cpp)\n",
         "shell/log.cpp": "#include <allegro5/allegro.h>\n"}, ["shell/log.cpp", "<allegro5/allegro.h>"]),
    "an include that is no file": ({"base/vector2.h": '#include "vector3.h"\n'}, ["vector3.h", "no file of the sources"]),
    "a file in no room": ({"misc/things.h": ""}, ["misc/things.h", "no room"]),
}


def check(files):
    """Runs the check on a tree of these files; gives its exit code and what it said."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            path = Path(folder) / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True, check=False)
        return run.returncode, run.stdout + run.stderr


class CheckIncludes(unittest.TestCase):
    def test_a_house_in_order_passes(self):
        code, said = check(SOUND_HOUSE)
        self.assertEqual(code, 0, said)

    def test_each_planted_fault_is_found_and_named(self):
        for name, (files, words) in FAULTS.items():
            with self.subTest(name):
                code, said = check({**SOUND_HOUSE, **files})
                self.assertEqual(code, 1, said)
                for word in words:
                    self.assertIn(word, said)

    def test_a_directory_without_sources_is_no_success(self):
        code, said = check({"README": "nothing here"})
        self.assertEqual(code, 1, said)


if __name__ == "__main__":
    unittest.main()

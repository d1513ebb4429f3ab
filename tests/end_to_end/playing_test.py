"""Two players at one keyboard: real keys, real pixels, and the sound that the game really makes."""

import unittest
from collections import Counter

from game_test_case import FIRST_PLAYER, SECOND_PLAYER, SQUARES, ArenaTestCase, square_differs, square_of, stage, turned

# Both players start in opposite corners with two free squares each way, so what one does the other can do turned.
PLAYERS = [
    ("the first player", FIRST_PLAYER, lambda square: square,
     {"up": "up", "down": "down", "left": "left", "right": "right"}),
    ("the second player", SECOND_PLAYER, turned,
     {"up": "down", "down": "up", "left": "right", "right": "left"}),
]

WALL = (4, 1)  # behind the free squares; a bomb on (3, 1) reaches it
CRACKED = 0.05  # of a wall's pixels: one in twelve takes three bombs, looks like the others until then, and only cracks
LOUD = 500  # of 32,768: above any dither of the mixers


class Playing(ArenaTestCase):
    def test_keys_walk_the_players_round_their_corners(self):
        game, arena = self.start_round()
        for name, keys, place, way in PLAYERS:
            with self.subTest(name):
                empty = place((1, 1))
                picture = self.walk(game, keys[way["right"]], place((3, 1)), arena)
                self.assertTrue(square_differs(picture, arena, empty), "the start is empty once the player has gone")
                self.walk(game, keys[way["left"]], empty, picture)
                self.walk(game, keys[way["down"]], place((1, 3)), arena)
        self.assertEqual(self.leave(game), 0)

    def test_a_bomb_is_heard_and_damages_a_wall(self):
        game, arena, (_, keys, place, way) = self.round_with_a_wall_to_damage()
        recording = self.stage.sound.record()
        self.addCleanup(recording.close)
        quiet_until = self.wait_for_silence(recording)

        self.walk(game, keys[way["right"]], place((3, 1)), arena)
        self.screen.press(keys["bomb"])
        back = self.walk(game, keys[way["left"]], place((1, 1)), self.screen.picture())
        self.screen.release(keys["bomb"])
        self.walk(game, keys[way["down"]], place((1, 3)), back)

        stage.wait_for(lambda: recording.loudest(quiet_until) > LOUD, "the sound of the bomb")
        wall = place(WALL)
        self.wait_for_lasting_picture(game, lambda picture: square_differs(picture, arena, wall, CRACKED), 2,
                                      "the wall to crumble or crack")
        self.assertEqual(self.leave(game), 0)

    def test_who_stands_on_a_bomb_dies_and_the_round_ends(self):
        game, arena = self.start_round()
        start = (1, 1)
        self.screen.press(FIRST_PLAYER["bomb"])
        self.wait_for_picture(game, lambda picture: square_differs(picture, arena, start), "the bomb")
        self.screen.release(FIRST_PLAYER["bomb"])
        game.wait_for_line("Round over\n")
        self.press_until("space", lambda: game.errors().count("Begin game\n") == 2, "the next round to begin")
        self.assertEqual(self.leave(game), 0)

    @staticmethod
    def wait_for_silence(recording):
        """Waits until nothing was heard for half a second, as once the sounds of the menus have gone; gives the length
        of the recording by then."""
        heard = [recording.length()]

        def silent():
            length = recording.length()
            if recording.loudest(heard[0]) >= LOUD:
                heard[0] = length
            return length if length - heard[0] > recording.BYTES_A_SECOND / 2 else None

        return stage.wait_for(silent, "silence before the bomb")

    def round_with_a_wall_to_damage(self):
        """A round in which at least one player has a brick wall behind the free squares: the picture that most squares
        share. Gives the game, its first picture and that player."""
        for _ in range(20):
            game, arena = self.start_round()
            squares = Counter(b"".join(square_of(arena, (x, y)).rows)
                              for x in range(1, SQUARES[0] - 1) for y in range(1, SQUARES[1] - 1))
            wall_picture = squares.most_common(1)[0][0]
            for player in PLAYERS:
                if b"".join(square_of(arena, player[2](WALL)).rows) == wall_picture:
                    return game, arena, player
            self.leave(game)
        raise stage.StageError("no level had a wall to crumble")


if __name__ == "__main__":
    unittest.main()

"""What goes on in the round that the game plays and records right now, read from the files that it writes: the arena and its
hidden powerups from the replay, the players' places from the verification text, which grows with every update. So a program can
play by pressing keys, and a test can know what it should see. Used by the demonstration and the end-to-end tests."""

import struct
from pathlib import Path

EMPTY, PILLAR, EDGE, WALL, HARD_WALL = 0, 1, 2, 3, 4
HEADER_BYTES = 92
PLAYER_BYTES = 28


class RoundInProgress:
    """The newest round in the folder of replays. Only rounds without teams are understood. `grid[x][y]` and `bonus[x][y]` are
    as the round began; who plays on keeps them up to date."""

    def __init__(self, replay):
        self.replay = Path(replay)
        data = self.replay.read_bytes()
        players, self.width, self.height = data[8], data[9], data[10]
        at = HEADER_BYTES + PLAYER_BYTES * players
        if data[at:at + 3] != b"***":
            raise ValueError(f"{replay} is not a round without teams")
        at += 3 + 21
        squares = struct.unpack_from(f"{2 * self.width * self.height}B", data, at)
        columns = [squares[2 * self.height * x:2 * self.height * (x + 1)] for x in range(self.width)]
        self.grid = [list(column[0::2]) for column in columns]
        self.bonus = [list(column[1::2]) for column in columns]
        self.places = {}
        self.updates = 0
        self._met = set()
        self._last_met = {}
        self._text = open(f"{replay}.verify", "rb")  # closed with the object
        self._rest = b""
        self._numbers = []

    def follow(self):
        """Reads what was written since the last call; `places` then holds each living player's pixel position, and `updates`
        counts the updates of the round."""
        lines = (self._rest + self._text.read()).split(b"\n")
        self._rest = lines.pop()
        for line in lines:
            if b" " in line or not line.isdigit():
                continue  # the body of a snake, or the end
            self._numbers.append(int(line))
            if len(self._numbers) == 3:
                number, x, y = self._numbers
                self._numbers = []
                self._count(number)
                self.places[number] = (x, y)

    def _count(self, number):
        """An update is over when a player is met again who was met since the last; the dead write nothing."""
        if number in self._met:
            self.updates += 1
            self._met = set()
        self._met.add(number)
        self._last_met[number] = self.updates

    def silent_updates(self, number):
        """For how many updates nothing was written of this player: the dead write nothing."""
        return self.updates - self._last_met.get(number, self.updates)

    def square(self, number):
        """The square on which the player mainly stands."""
        x, y = self.places[number]
        return (x + 16) // 32, (y + 16) // 32

    def is_free(self, square):
        return self.grid[square[0]][square[1]] == EMPTY

    def is_over(self):
        """Whether the game has finished the files of this round."""
        return Path(f"{self.replay}.verifyZ").exists()


def newest_replay(data_home):
    """The replay with the highest number, or None."""
    replays = (Path(data_home) / "vandrel" / "replays").glob("*.replay")
    return max(replays, key=lambda path: int(path.name.split(".")[0]), default=None)

"""Moments of recorded rounds, as the game shows them when it plays the replay. Used by scripts/take-pictures."""

import subprocess
import tempfile
import time
from collections import namedtuple
from pathlib import Path

import stage
from picture_tours import BUILD, GOLDEN, REPLAYS, SQUARE, Tour

LEAST_WIDTH = 800  # of a screen on which the menus can be read

CROWD = ["--mode", "Deathmatch", "--players", "40", "--arena", "Larger", "--set", "respawnTime=3",
         "--set", "initialSpeed=3", "--set", "startWithShield=1", "--powerups", "Bomb,Range,Speed,Shield,Cash,Superman",
         "--bombs-every", "60", "--frames", "1500", "--seed", "7"]


def redness(picture):
    """How much more red than green the picture has."""
    return sum(sum(row[2::4]) - sum(row[1::4]) for row in picture.rows[::8])


def calmness(picture):
    return -redness(picture)


def flames(picture):
    """How many pixels have the yellow of flames."""
    return sum(row.count(b"\x40\xd0\xff") for row in picture.rows)


def half_closed(picture):
    """How near the classic arena, shown twice as large, is to being half closed: by the squares that look as its corner
    does."""
    size = 2 * SQUARE
    corner = picture.rows[size // 2][:4 * size]
    closed = sum(picture.rows[y][4 * x:4 * (x + size)] == corner
                 for y in range(size // 2, picture.height, size) for x in range(0, picture.width, size))
    return -abs(closed - 165)


# A golden round, or the words by which one is recorded, and the seconds since it began between which the picture with the
# highest score is taken.
Moment = namedtuple("Moment", "round since until score", defaults=(None, None))

MOMENTS = {
    "crowd": Moment(CROWD, 4, 9, flames),
    "explosion": Moment(35, 8, 18, flames),
    "warning": Moment(23, 15, 30, redness),
    "no-warning": Moment(23, 15, 30, calmness),
    "one-spiral": Moment(54, 20, 45, half_closed),
    "four-spirals": Moment(53, 20, 45, half_closed),
    "snakes": Moment(56, 16),
    "people-as-snakes": Moment(34, 15),
    "flag": Moment(14, 16),
    "royale": Moment(16, 8),
    "hill": Moment(19, 10),
    "hunter": Moment(22, 10),
    "deathmatch": Moment(50, 8),
    "everything": Moment(25, 12),
    "auction": Moment(31, 8),
}


def play(name):
    """The picture of a moment, pixel by pixel or twice as large."""
    moment = MOMENTS[name]
    with tempfile.TemporaryDirectory(prefix="vandrel-round-") as folder:
        replay = replay_of(moment.round, Path(folder))
        columns, rows = replay.read_bytes()[9:11]
        scale = 1 if columns * SQUARE >= LEAST_WIDTH else 2
        with Tour((columns * SQUARE * scale, rows * SQUARE * scale)) as tour:
            tour.put_replay(replay, time.time())
            tour.start()
            tour.menus.wait_for_main_menu()
            tour.menus.go_to_row(REPLAYS, "the replays")
            tour.menus.enter()
            begin(tour)
            return best_picture(tour.screen, moment)


def begin(tour):
    """Plays the highlighted replay. A key that is held on since the last step is not seen, so it is tried anew."""
    def tried():
        tour.screen.press("Return")
        try:
            return stage.poll(lambda: "Begin game\n" in tour.game.errors(), 2)
        finally:
            tour.screen.release("Return")

    stage.wait_for(tried, "the round", interval=0.1)


def replay_of(kept, folder):
    """The file of a golden round, or of one that is recorded now into the folder."""
    if isinstance(kept, int):
        return GOLDEN / f"{kept}.1.1.2.replay"
    replay = folder / "1.1.1.2.replay"
    subprocess.run([BUILD / "bin" / "vandrel-replay", "play-random", *kept, replay], check=True,
                   stdout=subprocess.DEVNULL)
    return replay


def best_picture(screen, moment):
    """The picture with the highest score of those between the two times, or the one of the first time if there is no
    score. The round began just now."""
    began = time.monotonic()
    stage.wait_for(lambda: time.monotonic() >= began + moment.since, "the moment", timeout=moment.since + 1)
    best = screen.picture()
    while moment.score and time.monotonic() < began + moment.until:
        best = max(best, screen.picture(), key=moment.score)
    return best

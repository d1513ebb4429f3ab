"""The demonstration that ./play gives where there is no display: the real game on a virtual screen, two players at one
keyboard with real key presses, and pictures of it in a folder. Used by scripts/start-game."""

import shutil
import time

import stage

PICTURES = stage.REPOSITORY / "demo-pictures"

# The two key sets that the first two players get: up, down, left, right, bomb.
FIRST = {"up": "Up", "down": "Down", "left": "Left", "right": "Right", "bomb": "Control_R"}
SECOND = {"up": "w", "down": "s", "left": "a", "right": "d", "bomb": "Control_L"}

# The first player starts in the top left corner and the second in the bottom right one, so one script serves both: the
# second player's hands do everything turned by half a circle.
TURNED = {"up": "down", "down": "up", "left": "right", "right": "left", "bomb": "bomb"}

# What the hands do: the control that is held and the seconds, or a picture's name. A bomb takes one and a half seconds
# to go off, and flames reach along the row and the column only, so a player is safe around a corner.
SCRIPT = [
    ("picture", "arena"),
    ("right", 0.3), ("bomb", 0.1), ("picture", "bombs-laid"), ("left", 0.5), ("down", 0.5), ("picture", "round-the-corner"),
    ("wait", 0.6), ("picture", "explosions"), ("wait", 0.25), ("picture", "walls-crumbling"), ("wait", 0.5),
    ("bomb", 0.1), ("up", 0.5), ("right", 0.5), ("wait", 0.8), ("picture", "second-bombs"), ("wait", 0.8),
    ("left", 0.5), ("down", 1.0), ("picture", "walking"), ("bomb", 0.1), ("up", 1.0), ("right", 0.6), ("wait", 1.2),
    ("picture", "third-bombs"), ("wait", 0.8), ("right", 1.0), ("bomb", 0.1), ("left", 1.0), ("down", 0.6),
    ("wait", 1.2), ("picture", "later"), ("bomb", 0.1), ("wait", 1.6), ("picture", "the-end-of-both"), ("wait", 1.0),
    ("picture", "afterwards"),
]


class Album:
    """The folder of pictures, numbered in their order."""

    def __init__(self, screen):
        self._screen = screen
        self._taken = 0
        shutil.rmtree(PICTURES, ignore_errors=True)
        PICTURES.mkdir()

    def take(self, name):
        self._taken += 1
        path = PICTURES / f"{self._taken:02}-{name}.png"
        self._screen.picture().save(path)
        print(f"  {path.name}", flush=True)


def run(program, arguments):
    """Plays the demonstration with the built `program` and gives the exit code for the whole command."""
    print("There is no display here (neither DISPLAY nor WAYLAND_DISPLAY is set).")
    print("Playing a demonstration on a virtual screen instead, with a null sound sink and real key presses.")
    print(f"Pictures of it are written to {PICTURES}", flush=True)
    with stage.Stage() as the_stage:
        game = the_stage.start(program, arguments)
        album = Album(the_stage.screen)
        begins = show_opening(the_stage, game, album)
        if begins:
            play_script(the_stage.screen, game, album)
            leave(the_stage.screen, game)
        if game.running():
            print("The game did not end when it was asked to.")
            return 1
        if game.process.returncode != 0 or "An exception occurred:" in game.errors():
            print(f"The game failed:\n{game.errors()}")
            return 1
    print("The demonstration is over.")
    return 0


def show_opening(the_stage, game, album):
    """The splash, and the wait for what follows it. False when the game has ended by itself."""
    empty = the_stage.screen.picture()
    splash = first_change(the_stage.screen, game, empty)
    if splash is None:
        return False
    album.take("splash")
    return first_change(the_stage.screen, game, splash) is not None


def first_change(screen, game, before):
    """The next picture that is not `before`, once it is fully there; None when the game has ended."""
    def changed():
        return not game.running() or screen.picture().rows != before.rows

    stage.wait_for(changed, "the game to show something", timeout=30)
    time.sleep(0.3)
    return screen.picture() if game.running() else None


def play_script(screen, game, album):
    for action, value in SCRIPT:
        if not game.running():
            return
        if action == "picture":
            album.take(value)
        elif action == "wait":
            time.sleep(value)
        else:
            screen.hold(value, FIRST[action], SECOND[TURNED[action]])


def leave(screen, game):
    """Leaves the game as a player does."""
    for _ in range(10):
        if not game.running():
            return
        screen.hold(0.1, "Escape")
        try:
            game.wait_for_end(timeout=2)
        except stage.StageError:
            continue

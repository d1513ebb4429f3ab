"""The demonstration that ./play gives where there is no display: the real game on a virtual screen, two players at one
keyboard with real key presses, and pictures of it in a folder. Used by scripts/start-game."""

import shutil
import time

import stage

PICTURES = stage.REPOSITORY / "demo-pictures"

# The two key sets that the first two players get: up, down, left, right, bomb.
FIRST = {"up": "Up", "down": "Down", "left": "Left", "right": "Right", "bomb": "Control_R"}
SECOND = {"up": "w", "down": "s", "left": "a", "right": "d", "bomb": "Control_L"}

# The first player starts in the top left corner and the second in the bottom right one, each with two free squares along
# either wall. So one script serves both: the second player's hands do everything turned by half a circle.
SQUARES = (27, 15)
TURNED = {"up": "down", "down": "up", "left": "right", "right": "left", "bomb": "bomb"}
CORNER, ALONG, DOWN = (1, 1), (3, 1), (1, 3)

# What happens, step by step. A walk goes on until the player is seen on the square; "lay" presses the bomb key, which is
# held until the next walk is over. A burst is a picture taken once a good part of the screen has changed. Flames reach
# along the row and the column only, so a player is safe around a corner; who stays beside the last bombs is not.
SCRIPT = [
    ("picture", "arena"),
    ("walk", "right", ALONG), ("lay",), ("walk", "left", CORNER), ("picture", "bombs-laid"), ("walk", "down", DOWN),
    ("picture", "round-the-corner"), ("burst", "explosions"), ("wait", 0.2), ("picture", "walls-crumbling"), ("wait", 0.6),
    ("lay",), ("walk", "up", CORNER), ("walk", "right", ALONG), ("burst", "second-bombs"), ("wait", 0.8),
    ("lay",), ("walk", "left", CORNER), ("walk", "down", DOWN), ("burst", "third-bombs"), ("wait", 0.8),
    ("picture", "what-is-left"), ("lay",), ("wait", 0.3), ("burst", "the-end-of-both"), ("wait", 0.5),
    ("picture", "particles"),
]

LAST_SECOND = 45  # of the demonstration, on however slow a machine
LONGEST_STEP = 5  # seconds
AGAINST_THE_WALL = 0.2  # seconds that a walk into the corner goes on after the player has come into sight there
BURST_PIXELS = 6000  # about three squares of the arena


class Album:
    """The pictures, in their order. They are written at the end: it takes longer than a player can wait beside a bomb."""

    def __init__(self, screen):
        self._screen = screen
        self._pictures = []

    def take(self, name):
        self._pictures.append((name, self._screen.picture()))

    def write(self):
        shutil.rmtree(PICTURES, ignore_errors=True)
        PICTURES.mkdir()
        for number, (name, picture) in enumerate(self._pictures, start=1):
            path = PICTURES / f"{number:02}-{name}.png"
            picture.save(path)
            print(f"  {path.name}", flush=True)


class Hands:
    """The hands of both players on the one keyboard, with an eye on the screen."""

    def __init__(self, screen, album):
        self._screen = screen
        self._album = album

    def do(self, action, *details):
        getattr(self, action)(*details)

    def picture(self, name):
        self._album.take(name)

    def wait(self, seconds):
        time.sleep(seconds)

    def lay(self):
        self._screen.press(FIRST["bomb"], SECOND["bomb"])

    def burst(self, name):
        self._screen.release_all()
        before = self._screen.picture()
        self._poll(lambda picture: picture.differing_pixels(before) > BURST_PIXELS)
        self._album.take(name)

    def walk(self, control, square):
        """Both players walk until both are seen where they want to go. Each lets go when it is there, but in the corner,
        where the wall stops it."""
        before = self._screen.picture()
        to_go = {FIRST[control]: square, SECOND[TURNED[control]]: turned(square)}
        self._screen.press(*to_go)

        def all_there(picture):
            there = [key for key, target in to_go.items() if square_has_changed(before, picture, target)]
            if there and square != CORNER:
                self._screen.release(*there)
            for key in there:
                del to_go[key]
            return not to_go

        self._poll(all_there)
        time.sleep(AGAINST_THE_WALL if square == CORNER else 0)
        self._screen.release_all()

    def _poll(self, fits):
        stage.poll(lambda: fits(self._screen.picture()), LONGEST_STEP)


def turned(square):
    return SQUARES[0] - 1 - square[0], SQUARES[1] - 1 - square[1]


def square_has_changed(before, now, square):
    """Whether a quarter of the square looks other than before. The arena fills the screen as far as its shape allows."""
    side = min(now.width / SQUARES[0], now.height / SQUARES[1])
    left = (now.width - side * SQUARES[0]) / 2 + side * square[0]
    top = (now.height - side * SQUARES[1]) / 2 + side * square[1]
    place = int(left), int(top), int(side), int(side)
    return now.part(*place).differing_pixels(before.part(*place)) > side * side / 4


def run(program, arguments):
    """Plays the demonstration with the built `program` and gives the exit code for the whole command."""
    print("There is no display here (neither DISPLAY nor WAYLAND_DISPLAY is set).")
    print("Playing a demonstration on a virtual screen instead, with a null sound sink and real key presses.")
    print(f"Pictures of it are written to {PICTURES}", flush=True)
    begun = time.monotonic()
    with stage.Stage() as the_stage:
        # A box that reports a failure would wait for somebody to answer it; its text stands on standard error as well.
        game = the_stage.start(program, arguments, environment={"GDK_BACKEND": "none"})
        album = Album(the_stage.screen)
        if show_opening(the_stage.screen, game, album):
            hands = Hands(the_stage.screen, album)
            for step in SCRIPT:
                if game.running() and time.monotonic() - begun < LAST_SECOND:
                    hands.do(*step)
            leave(the_stage.screen, game)
        album.write()
        if game.running():
            print("The game did not end when it was asked to.")
            return 1
        if game.process.returncode != 0 or "An exception" in game.errors():
            print(f"The game failed:\n{game.errors()}")
            return 1
    print(f"The demonstration is over. The pictures lie in {PICTURES}")
    return 0


def show_opening(screen, game, album):
    """The splash, and the wait for what follows it. False when the game has ended by itself."""
    empty = screen.picture()
    splash = first_change(screen, game, empty)
    if splash is None:
        return False
    album.take("splash")
    return first_change(screen, game, splash) is not None


def first_change(screen, game, before):
    """The next picture that is not `before`, once it is fully there; None when the game has ended."""
    def changed():
        return not game.running() or screen.picture().rows != before.rows

    stage.wait_for(changed, "the game to show something", timeout=30)
    time.sleep(0.3)
    return screen.picture() if game.running() else None


def leave(screen, game):
    """Leaves the game as a player does."""
    screen.release_all()
    for _ in range(5):
        if not game.running():
            return
        screen.press("Escape")
        stage.poll(lambda: not game.running(), 1)
        screen.release("Escape")

"""The demonstration that ./play gives where there is no display: the real game on a virtual screen, a whole match of two players
at one keyboard with real key presses, and pictures of it in a folder. Used by scripts/start-game."""

import shutil
import time

import stage
from key_player import KEY_SETS, KeyPlayer
from menu_keys import MenuKeys
from round_in_progress import RoundInProgress, newest_replay

PICTURES = stage.REPOSITORY / "demo-pictures"

FIRST, SECOND = KEY_SETS[:2]
FAST_FORWARD = "F8"
CORNER = 32  # pixels
BRIGHT = 100  # of 255

POWERUPS = {1: "extra-bomb", 2: "extra-range", 3: "speed", 7: "shield", 8: "cash", 17: "hidden-shield"}

LAST_SECOND = 60    # of the demonstration, on however slow a machine
FIRST_ROUND = 20    # seconds in which both gather powerups, unless they are quicker
ENOUGH_KINDS = 5    # of powerups
TABLE = 3.2         # seconds until the score table shows its new trophies and may be left
BOMB_STAGES = {30: "bomb", 93: "explosion", 104: "walls-crumbling"}  # by updates since the bomb was laid


class Album:
    """The pictures, in their order. They are written at the end: it takes longer than a player can wait beside a bomb."""

    def __init__(self, screen):
        self._screen = screen
        self._pictures = []

    def take(self, name):
        self._pictures.append((name, self._screen.picture()))

    def has(self, name):
        return any(name == taken for taken, _ in self._pictures)

    def take_once(self, name):
        if not self.has(name):
            self.take(name)

    def last(self, beginning):
        """The last picture whose name begins so."""
        return [picture for name, picture in self._pictures if name.startswith(beginning)][-1]

    def write(self):
        shutil.rmtree(PICTURES, ignore_errors=True)
        PICTURES.mkdir()
        for number, (name, picture) in enumerate(self._pictures, start=1):
            path = PICTURES / f"{number:02}-{name}.png"
            picture.save(path)
            print(f"  {path.name}", flush=True)


def shows_arena(picture):
    """Whether the edge of an arena lies in the corner. Lobby and score table are dark there."""
    channels = [channel for row in picture.part(0, 0, CORNER, CORNER).rows for channel in row[1::4]]
    return sum(channels) / len(channels) > BRIGHT


class Match:
    """A match played through the keyboard: one round of gathering, then short ones, which the second player loses, until
    somebody has won it."""

    def __init__(self, the_stage, game, album, deadline):
        self._stage = the_stage
        self._screen = the_stage.screen
        self._game = game
        self._album = album
        self._deadline = deadline
        self._players = [KeyPlayer(self._screen, FIRST, 0), KeyPlayer(self._screen, SECOND, 1)]
        self._replay = None
        self._round = None

    def play(self):
        if not self._next_round():
            return
        self._take_arena("arena")
        self._gather()
        self._lose()
        self._screen.hold(0.05, FAST_FORWARD)
        while self._next_round():
            self._take_arena(f"round-{self._number()}")
            self._lose()

    def _take_arena(self, name):
        """The round is recorded before its first frame stands on the screen."""
        stage.poll(lambda: not self._goes_on() or shows_arena(self._screen.picture()), 10)
        self._album.take(name)

    def _goes_on(self):
        return self._game.running() and time.monotonic() < self._deadline and "Game ended" not in self._game.errors()

    def _times_said(self, line):
        return self._game.errors().count(line + "\n")

    def _number(self):
        return self._replay.name.split(".")[0]

    def _leave_table(self):
        """Shows the score table and leaves it. Behind the last one the cash is counted, where some was taken."""
        time.sleep(TABLE)
        self._album.take(f"the-score-after-round-{self._number()}")
        self._screen.hold(0.05, "space")
        while not stage.poll(lambda: not self._goes_on() or self._a_round_runs(), 0.5):
            self._album.take_once("the-cash-is-counted")
            self._screen.hold(0.05, "space")

    def _a_round_runs(self):
        return self._times_said("Begin game") > self._times_said("Round over")

    def _next_round(self):
        """Waits for the next round to begin; False when there is none."""
        while self._goes_on():
            if not self._a_round_runs() and self._times_said("Round over") > 0:
                self._leave_table()
                continue
            replay = newest_replay(self._stage.data_home)
            if replay is not None and replay != self._replay and self._has_begun(replay):
                self._replay = replay
                self._round = RoundInProgress(replay)
                for player in self._players:
                    player.start(self._round)
                return True
            time.sleep(0.02)
        return False

    @staticmethod
    def _has_begun(replay):
        text = replay.with_name(replay.name + ".verify")
        return text.exists() and text.stat().st_size > 0

    def _gather(self):
        """Both play for powerups until they have found enough kinds."""
        end = min(time.monotonic() + FIRST_ROUND, self._deadline)
        while self._goes_on() and time.monotonic() < end and not self._round.is_over():
            self._round.follow()
            if len(self._round.places) < len(self._players):
                continue
            for player in self._players:
                player.advance()
            self._watch()
            if len({POWERUPS[bonus] for player in self._players for bonus in player.taken}) >= ENOUGH_KINDS:
                break
            time.sleep(0.005)
        for player in self._players:
            player.stop()

    def _watch(self):
        """Takes a picture of what has just happened for the first time."""
        for player in self._players:
            laid = player.bomb_laid_at()
            if laid is not None:
                for age, name in BOMB_STAGES.items():
                    if age <= self._round.updates - laid < age + 8:
                        self._album.take_once(name)
            for bonus in player.taken:
                self._album.take_once(f"takes-{POWERUPS[bonus]}")

    def _lose(self):
        """The second player lays a bomb and stays beside it, as often as it takes."""
        loser = self._players[1]
        started = self._round.updates
        while self._goes_on() and not self._round.is_over():
            self._round.follow()
            if self._round.updates >= started:
                loser.lay_bomb()
                started = self._round.updates + 60
            if self._is_dead(loser):
                self._album.take(f"the-end-of-round-{self._number()}")
                break
            time.sleep(0.005)

    def _is_dead(self, player):
        return self._round.silent_updates(player.number) > 5


def run(program, arguments):
    """Plays the demonstration with the built `program` and gives the exit code for the whole command."""
    print("There is no display here (neither DISPLAY nor WAYLAND_DISPLAY is set).")
    print("Playing a demonstration on a virtual screen instead, with a null sound sink and real key presses.")
    print(f"Pictures of it are written to {PICTURES}", flush=True)
    deadline = time.monotonic() + LAST_SECOND
    with stage.Stage() as the_stage:
        # A box that reports a failure would wait for somebody to answer it; its text stands on standard error as well.
        game = the_stage.start(program, arguments, environment={"GDK_BACKEND": "none"})
        album = Album(the_stage.screen)
        menus = MenuKeys(the_stage.screen, game)
        if show_splash(the_stage.screen, game, album):
            show_menus(menus, album)
            Match(the_stage, game, album, deadline).play()
        the_stage.screen.release_all()
        menus.quit_game()
        stage.poll(lambda: not game.running(), 10)
        album.write()
        if game.running():
            print("The game did not end when it was asked to.")
            return 1
        if game.process.returncode != 0 or "An exception" in game.errors():
            print(f"The game failed:\n{game.errors()}")
            return 1
    print(f"The demonstration is over. The pictures lie in {PICTURES}")
    return 0


def show_splash(screen, game, album):
    """Waits for the splash. False when the game has ended by itself."""
    empty = screen.picture()
    stage.wait_for(lambda: not game.running() or screen.picture().rows != empty.rows, "the game to show something",
                   timeout=30)
    time.sleep(0.3)
    album.take("splash")
    return game.running()


def show_menus(menus, album):
    """Goes through the menus and the lobby as the first players do, into the first round."""
    menus.wait_for_first_run()
    album.take("first-run")
    menus.answer_first_run()
    album.take("main-menu")
    menus.join_match([FIRST["bomb"], SECOND["bomb"]], lambda: album.take_once("lobby"))

"""A player in front of a menu: presses keys and looks at the screen for what they did, so that a slow machine only takes
longer. Used by the demonstration and by tests/end_to_end."""

import time

import stage

MENU_SIZE = (1920, 1080)  # of the menus' screen, which the display shows scaled, in the middle
FIRST_ROW = 300           # pixels of that screen from its top to the first row of most menus
ROW_STEP = 48
ROW_HEIGHT = 51
GREY = 64                 # each channel of the highlighted row

# Rows by their distance from the first, in steps.
PHOBIAS_FIRST = 3         # of the first run's question: the headings stand above
PHOBIAS_DONE = 8
START_GAME = 0            # of the main menu
CLASSIC = 1               # of the start game screen
CLASSIC_SCROLLED = 0      # behind a way round through the end of it: the heading does not come back
QUICK_START = 15 - 64 / ROW_STEP  # of the same, when it is scrolled to its end
QUIT_MATCH = 3            # of the pause


class MenuKeys:
    """The keys of a menu on a `screen` that `game` shows."""

    def __init__(self, screen, game):
        self._screen = screen
        self._game = game

    def highlight(self, picture=None):
        """The first and last line of the display that belong to the highlighted row; None where there is none."""
        picture = picture or self._screen.picture()
        # The texts of the row and the borders of the display hide some of these columns.
        runs = [longest_grey_run(picture, picture.width * share // 100) for share in (3, 15, 85, 97)]
        longest = max(runs, key=lambda run: run[1] - run[0] if run else -1)
        least = ROW_HEIGHT * placement(picture)[0] * 0.7
        return longest if longest and longest[1] - longest[0] >= least else None

    def wait_for_row(self, row, what, top=FIRST_ROW, step=ROW_STEP):
        """Waits until a menu of the menus' screen highlights that row, counted from 0 with headings and half steps for
        gaps."""
        def there():
            self._check_running(what)
            return self.is_on_row(row, top, step)

        stage.wait_for(there, what)

    def is_on_row(self, row, top=FIRST_ROW, step=ROW_STEP):
        picture = self._screen.picture()
        found = self.highlight(picture)
        scale, above = placement(picture)
        return found is not None and abs((found[0] - above) / scale - (top + row * step)) < step / 4

    def step(self, key, look=None):
        """Holds a key until something has changed in the menu, by `look` if what changes is not in the usual part of
        it: one step of the selection, of a value, or of the way through the menus. A key that is held on since the last
        step is not seen, so it is tried anew now and then."""
        look = look or self.look
        before = look()

        def changed():
            return not self._game.running() or look() != before

        def tried():
            self._screen.press(key)
            try:
                return stage.poll(changed, 2)
            finally:
                self._screen.release(key)

        stage.wait_for(tried, f"the key {key} to be seen", interval=0.1)
        self._settle(look)

    @staticmethod
    def _settle(look):
        """Waits until nothing changes any more: the key was perhaps held for a step too many, or a menu goes from its
        heading to its first row. A screen with something that moves is not waited for."""
        def stands():
            before = look()
            time.sleep(0.07)  # some frames
            return look() == before

        stage.poll(stands, 1)

    def go_to_row(self, row, what, key="Down"):
        """Steps until the row is highlighted; a key that was held for too long only makes the way longer."""
        for _ in range(100):
            if self.is_on_row(row):
                return
            self._check_running(what)
            self.step(key)
        raise stage.StageError(f"never came to {what}")

    def enter(self):
        self.step("Return")

    def answer_first_run(self):
        """Leaves the first run's question as it stands."""
        self.wait_for_first_run()
        self.go_to_row(PHOBIAS_DONE, "the end of the question", "Up")
        self.enter()
        self.wait_for_main_menu()

    def wait_for_first_run(self):
        self.wait_for_row(PHOBIAS_FIRST, "the first run's question")

    def wait_for_main_menu(self):
        self.wait_for_row(START_GAME, "the main menu")

    def start_match(self):
        """From the main menu into a classic match of the first two key sets, by the option of a quick start, which the
        configuration must show."""
        self.open_start_game()
        self.go_to_row(QUICK_START, "the quick start", "Up")
        self.enter()  # from "Off" to two players
        self.go_to_row(CLASSIC_SCROLLED, "the first mode")
        self.enter()
        self._game.wait_for_line("Begin game\n")

    def open_start_game(self):
        self.enter()
        self.wait_for_row(CLASSIC, "the choice of modes")

    def join_match(self, bomb_keys, in_lobby=lambda: None):
        """From the main menu through the lobby of a classic match into its first round. Everybody with one of the keys
        joins; `in_lobby` is called when they have."""
        self.open_start_game()
        self.join_chosen_match(bomb_keys, in_lobby)

    def join_chosen_match(self, bomb_keys, in_lobby=lambda: None):
        """The same from the row of any mode that needs no teams."""
        self.enter()
        self._game.wait_for_line("playerJoinScreen: grid\n")
        stage.wait_for(lambda: self.highlight() is None, "the lobby")
        begun = self._game.errors().count("Begin game\n")

        def asked_to_begin():
            self._screen.hold(0.3, *bomb_keys)
            in_lobby()
            self._screen.hold(0.2, "space")
            return stage.poll(lambda: self._game.errors().count("Begin game\n") > begun, 1)

        stage.wait_for(asked_to_begin, "the match to begin")

    def is_in_match(self):
        """Whether a match is under way that has come to its first round."""
        said = self._game.errors()
        return said.rfind("Begin game\n") > said.rfind("Game ended\n")

    def _pause(self):
        """Opens the pause of a round or of the lobby, and gives where its highlighted row lies. A score table and the
        count of the cash have no pause and are left; None when the match ends behind them."""
        ended = self._game.errors().count("Game ended\n")

        def opened():
            self._screen.press("Escape")
            try:
                row = stage.poll(self.highlight, 2)
            finally:
                self._screen.release("Escape")
            if self._game.errors().count("Game ended\n") > ended:
                return [None]
            if row is None:
                self._screen.hold(0.05, "space")
            return row and [row]

        return stage.wait_for(opened, "the pause menu")[0]

    def quit_match(self, *started_from):
        """From a round or the lobby back to the menus, by the last row of the pause, unless the match ends before. They
        highlight the row that the match was started from, one of those given, or that of the first mode."""
        row = self._pause()
        if row is None:
            return
        first, end = row
        step = (end - first) / ROW_HEIGHT * ROW_STEP

        def is_on_quit():
            found = self.highlight()
            return found is not None and abs(found[0] - first - QUIT_MATCH * step) < step / 2

        for _ in range(20):
            if is_on_quit():
                break
            self.step("Up")
        self.enter()
        rows = started_from or (CLASSIC, CLASSIC_SCROLLED)
        stage.wait_for(lambda: any(map(self.is_on_row, rows)), "the menu behind the match")

    def quit_game(self):
        """Leaves a match, then every open menu by Escape, the last of them the main menu, which ends the game."""
        if self._game.running() and self.is_in_match():
            self.quit_match()
        for _ in range(20):
            if not self._game.running():
                return
            self.step("Escape")

    def look(self):
        """What tells one state of a menu from another: all but the figure at the left and the line of figures that may
        stand at the top."""
        picture = self._screen.picture()
        left, top = picture.width * 36 // 100, picture.height * 6 // 100
        return picture.part(left, top, picture.width - left, picture.height - top).rows

    def _check_running(self, what):
        if not self._game.running():
            raise stage.StageError(f"the game ended before {what}:\n{self._game.errors()}")


def placement(picture):
    """How large a pixel of the menus' screen is on the display, and how many lines of it stay free above."""
    scale = min(picture.width / MENU_SIZE[0], picture.height / MENU_SIZE[1])
    return scale, (picture.height - int(MENU_SIZE[1] * scale)) // 2


def longest_grey_run(picture, x):
    """The first and last line of the longest run of highlight grey in a column; None if there is none."""
    best = None
    start = None
    for y in range(picture.height + 1):
        if y < picture.height and all(abs(channel - GREY) <= 2 for channel in picture.pixel(x, y)):
            start = y if start is None else start
        elif start is not None:
            if best is None or y - 1 - start > best[1] - best[0]:
                best = (start, y - 1)
            start = None
    return best

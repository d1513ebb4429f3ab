"""Somebody who plays the game by pressing keys: goes to where a bomb opens a wall with a powerup under it, lays it, waits round
the corner and takes what comes out. Knows the round from the files that the game writes. Used by the demonstration and the
end-to-end tests."""

from collections import deque

from round_in_progress import EMPTY, HARD_WALL, WALL

# The key sets of the keyboard in the order in which players get them, by the X names of their keys.
KEY_SETS = [
    {"up": "Up", "left": "Left", "down": "Down", "right": "Right", "bomb": "Control_R", "button 2": "Shift_R"},
    {"up": "w", "left": "a", "down": "s", "right": "d", "bomb": "Control_L", "button 2": "Shift_L"},
    {"up": "i", "left": "j", "down": "k", "right": "l", "bomb": "n", "button 2": "m"},
    {"up": "t", "left": "f", "down": "g", "right": "h", "bomb": "c", "button 2": "v"},
]

DIRECTIONS = {"right": (1, 0), "left": (-1, 0), "down": (0, 1), "up": (0, -1)}
FUSE_UPDATES = 90
FLAME_UPDATES = 40  # the flames of the ranges met here, and the crumbling of what they hit, with some to spare
LONGEST_ESCAPE = 5  # squares that are walked within a fuse at the slowest speed

# Bombs, range, speed, shields and cash. All others would change the rules by which this player reckons where it is safe.
WANTED = {1, 2, 3, 7, 8, 17}


def neighbours(square):
    return [(square[0] + dx, square[1] + dy) for dx, dy in DIRECTIONS.values()]


class KeyPlayer:
    """One player. `advance` is called again and again; it looks, presses and lets go, and never waits."""

    def __init__(self, screen, keys, number):
        self._screen = screen
        self._keys = keys
        self.number = number
        self.taken = []  # the powerups taken, as numbers
        self._held = None
        self._round = None

    def start(self, round_in_progress):
        self._round = round_in_progress
        self._range = 2
        self._path = []
        self._bomb = None  # square, and the update at which all is over
        self._plan = None

    def stop(self):
        self._hold(None)

    def lay_bomb(self):
        """Lays a bomb where the player stands and does nothing about it."""
        self._screen.hold(0.05, self._keys["bomb"])

    def bomb_laid_at(self):
        """The update in which this player's last bomb was laid, as long as it or its flames are there; else None."""
        return self._bomb[1] - FUSE_UPDATES - FLAME_UPDATES if self._bomb is not None else None

    def advance(self):
        here = self._round.square(self.number)
        self._take(here)
        if self._bomb is not None and self._round.updates >= self._bomb[1]:
            self._open_walls(self._bomb[0])
            self._bomb = None
        if self._path:
            self._walk(here)
        elif self._bomb is not None:
            self._hold(None)
        elif self._plan is not None and here == self._plan:
            self._lay(here)
        else:
            self._choose(here)

    # What there is to do.

    def _take(self, here):
        bonus = self._round.bonus[here[0]][here[1]]
        if bonus and self._round.is_free(here):
            self._round.bonus[here[0]][here[1]] = 0
            self.taken.append(bonus)
            if bonus == 2:
                self._range += 1

    def _choose(self, here):
        paths = self._paths_from(here, None)
        loose = [square for square in paths if self._round.bonus[square[0]][square[1]] in WANTED]
        if loose:
            self._plan = None
            self._path = paths[min(loose, key=lambda square: len(paths[square]))]
            return
        worth = {square: self._worth(square) for square in paths if self._escape(square) is not None}
        if not worth:
            self._hold(None)
            return
        best = max(worth, key=lambda square: worth[square] - 0.3 * len(paths[square]))
        self._plan = best
        self._path = paths[best]

    def _worth(self, square):
        """What a bomb there opens: walls, and much more for those with a powerup under them."""
        value = 0
        for x, y in self._walls_hit(square):
            value += 5 if self._round.bonus[x][y] in WANTED and self._round.grid[x][y] == WALL else 1
        loose = [(x, y) for x, y in self._burning(square)
                 if self._round.bonus[x][y] in WANTED and self._round.is_free((x, y))]
        return value - 5 * len(loose) if value else -100

    def _lay(self, here):
        self._hold(None)
        self._screen.hold(0.05, self._keys["bomb"])
        self._plan = None
        self._bomb = here, self._round.updates + FUSE_UPDATES + FLAME_UPDATES
        self._path = self._escape(here) or []

    # Where flames reach.

    def _rays(self, square):
        for dx, dy in DIRECTIONS.values():
            ray = []
            for step in range(1, self._range + 1):
                at = square[0] + dx * step, square[1] + dy * step
                ray.append(at)
                if not self._round.is_free(at):
                    break
            yield ray

    def _burning(self, square):
        return {square} | {at for ray in self._rays(square) for at in ray}

    def _walls_hit(self, square):
        ends = [ray[-1] for ray in self._rays(square)]
        return [(x, y) for x, y in ends if WALL <= self._round.grid[x][y] <= HARD_WALL + 2]

    def _open_walls(self, square):
        for x, y in self._walls_hit(square):
            kind = self._round.grid[x][y]
            self._round.grid[x][y] = EMPTY if kind in (WALL, HARD_WALL + 2) else kind + 1

    # Ways.

    def _paths_from(self, here, bomb):
        """The shortest way to each square that can be reached, as the squares to walk."""
        paths = {here: []}
        queue = deque([here])
        while queue:
            square = queue.popleft()
            for near in neighbours(square):
                if near not in paths and near != bomb and self._may_enter(near):
                    paths[near] = paths[square] + [near]
                    queue.append(near)
        return paths

    def _may_enter(self, square):
        bonus = self._round.bonus[square[0]][square[1]]
        return self._round.is_free(square) and (not bonus or bonus in WANTED)

    def _escape(self, bomb):
        """The way from a bomb to the nearest square that does not burn; None if there is none near enough."""
        burning = self._burning(bomb)
        paths = self._paths_from(bomb, bomb)
        safe = [path for square, path in paths.items() if square not in burning and len(path) <= LONGEST_ESCAPE]
        return min(safe, key=len, default=None)

    # Fingers.

    def _walk(self, here):
        while self._path and self._path[0] == here:
            self._path.pop(0)
        if not self._path:
            self._hold(None)
            return
        target = self._path[0]
        step = target[0] - here[0], target[1] - here[1]
        direction = next((name for name, way in DIRECTIONS.items() if way == step), None)
        if direction is None:
            self._path = []  # pushed off the way; think again
        self._hold(direction)

    def _hold(self, direction):
        key = self._keys[direction] if direction else None
        if key == self._held:
            return
        if self._held:
            self._screen.release(self._held)
        if key:
            self._screen.press(key)
        self._held = key

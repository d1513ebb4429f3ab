"""A stage for the game where there is no screen and no loudspeaker: a virtual screen whose pixels can be read, a null
sound sink that can be recorded, keys that are really pressed, and the game itself on top of them.

Used by scripts/start-game (the demonstration) and by tests/end_to_end. Everything that is started here is stopped by
the owner of the object, by process, never by name.
"""

import array
import contextlib
import ctypes
import os
import select
import shutil
import struct
import subprocess
import tempfile
import time
import zlib
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parent.parent
WORKING_DIRECTORY = REPOSITORY / "game"


class StageError(Exception):
    """Something that the stage needs did not come up, or a condition was not met in time."""


def wait_for(condition, what, timeout=60.0, interval=0.02):
    """Asks `condition` until it gives something true, and gives that. Raises StageError naming `what` after `timeout`
    seconds: a limit for a broken run, so it is generous. Nothing waits for a time to pass."""
    result = poll(condition, timeout, interval)
    if not result:
        raise StageError(f"waited {timeout:.0f} s in vain for {what}")
    return result


def poll(condition, timeout, interval=0.02):
    """Asks `condition` until it gives something true or `timeout` seconds are over; gives what it gave last."""
    deadline = time.monotonic() + timeout
    while True:
        result = condition()
        if result or time.monotonic() > deadline:
            return result
        time.sleep(interval)


def end(process, timeout=10.0):
    """Ends a process of ours, politely at first. Nothing happens when it has ended already."""
    if process is None or process.poll() is not None:
        return
    process.terminate()
    try:
        process.wait(timeout)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


class Picture:
    """What the screen showed at one moment: rows of four bytes a pixel, blue, green, red and one that means nothing."""

    def __init__(self, width, height, rows):
        self.width = width
        self.height = height
        self.rows = rows

    def pixel(self, x, y):
        """Red, green and blue of one pixel."""
        row = self.rows[y]
        return row[4 * x + 2], row[4 * x + 1], row[4 * x]

    def part(self, left, top, width, height):
        """The rectangle as a picture of its own."""
        rows = [row[4 * left:4 * (left + width)] for row in self.rows[top:top + height]]
        return Picture(width, height, rows)

    def colours(self):
        """How many pixels there are of each colour, as {(red, green, blue): count}."""
        counts = {}
        for row in self.rows:
            for at in range(0, 4 * self.width, 4):
                colour = row[at + 2], row[at + 1], row[at]
                counts[colour] = counts.get(colour, 0) + 1
        return counts

    def differing_pixels(self, other):
        """The number of pixels that differ from a picture of the same size."""
        return sum(1 for mine, theirs in zip(self.rows, other.rows) if mine != theirs
                   for at in range(0, 4 * self.width, 4) if mine[at:at + 3] != theirs[at:at + 3])

    def save(self, path):
        """Writes a PNG file."""
        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        lines = bytearray()
        for row in self.rows:
            line = bytearray(3 * self.width)
            line[0::3], line[1::3], line[2::3] = row[2::4], row[1::4], row[0::4]
            lines += b"\0" + line
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        Path(path).write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
                               + chunk(b"IDAT", zlib.compress(bytes(lines), 6)) + chunk(b"IEND", b""))


class Keyboard:
    """Keys of an X server, pressed as if by hand."""

    def __init__(self, display_name):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._xtest = ctypes.CDLL("libXtst.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XStringToKeysym.restype = ctypes.c_ulong
        self._x11.XKeysymToKeycode.restype = ctypes.c_ubyte
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(display_name.encode()))
        if not self._display:
            raise StageError(f"no connection to the screen {display_name}")

    def send(self, key, down):
        """Presses or lets go of the key of that X name."""
        symbol = ctypes.c_ulong(self._x11.XStringToKeysym(key.encode()))
        code = self._x11.XKeysymToKeycode(self._display, symbol)
        if code == 0:
            raise StageError(f"there is no key named {key}")
        self._xtest.XTestFakeKeyEvent(self._display, ctypes.c_uint(code), ctypes.c_int(down), ctypes.c_ulong(0))
        self._x11.XSync(self._display, 0)

    def close(self):
        self._x11.XCloseDisplay(self._display)


class VirtualScreen:
    """An X server that draws into memory. There is no window manager, so the window under the pointer gets the keys."""

    def __init__(self, folder, width=1280, height=720):
        reader, writer = os.pipe()
        self._frame_buffer = Path(folder) / "Xvfb_screen0"
        with open(Path(folder) / "screen.txt", "wb") as output:
            self._process = subprocess.Popen(
                ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{width}x{height}x24", "-fbdir", str(folder),
                 "-nolisten", "tcp", "-noreset"],
                pass_fds=[writer], stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        os.close(writer)
        try:
            number = self._line(reader)
        finally:
            os.close(reader)
        if not number:
            self.close()
            raise StageError("the virtual screen did not start: " + (Path(folder) / "screen.txt").read_text())
        self.environment = {"DISPLAY": f":{number}"}
        self._held = []
        self._keyboard = None

    @staticmethod
    def _line(reader, timeout=60.0):
        """The whole line that the X server writes: it gives up if nobody waits for the end of it."""
        text = b""
        while not text.endswith(b"\n"):
            ready, _, _ = select.select([reader], [], [], timeout)
            more = os.read(reader, 16) if ready else b""
            if not more:
                return ""
            text += more
        return text.decode().strip()

    def close(self):
        if self._keyboard is not None:
            self._keyboard.close()
            self._keyboard = None
        end(self._process)

    def picture(self):
        """What the screen shows now. The X server keeps its pixels in a file in the format of `xwd`."""
        data = self._frame_buffer.read_bytes()
        words = struct.unpack(">25I", data[:100])
        header_size, width, height, bytes_per_line, colours = words[0], words[4], words[5], words[12], words[19]
        start = header_size + 12 * colours
        rows = [data[start + y * bytes_per_line:start + y * bytes_per_line + 4 * width] for y in range(height)]
        return Picture(width, height, rows)

    def press(self, *keys):
        """Presses keys, by their X names, and leaves them down."""
        self._keys(True, keys)
        self._held.extend(keys)

    def release(self, *keys):
        """Lets go of keys."""
        self._keys(False, keys)
        self._held = [key for key in self._held if key not in keys]

    def hold(self, seconds, *keys):
        """Holds keys down for a time that is part of what is shown, such as the length of a walk."""
        self.press(*keys)
        time.sleep(seconds)
        self.release(*keys)

    def release_all(self):
        if self._held:
            self.release(*self._held)

    def confirm_box(self):
        """Answers the message box that a program shows with Return. It does not lie under the pointer, and without a
        window manager it gets the keys only when they are turned to it."""
        self._xdotool("windowfocus", "--sync", str(self._window("--onlyvisible", "--class", "vandrel")))
        self.hold(0.05, "Return")

    def close_window(self, title):
        """Asks the window of that title to close, as the button in its frame does: a message to its program."""
        window = self._window("--name", f"^{title}$")
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XInternAtom.restype = ctypes.c_ulong
        display = ctypes.c_void_p(x11.XOpenDisplay(self.environment["DISPLAY"].encode()))
        protocols = x11.XInternAtom(display, b"WM_PROTOCOLS", 0)
        delete = x11.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
        client_message, message_format = 33, 32
        event = struct.pack("@iLiPLLi5l", client_message, 0, 0, 0, window, protocols, message_format,
                            delete, 0, 0, 0, 0)
        x11.XSendEvent(display, ctypes.c_ulong(window), 0, ctypes.c_long(0), event.ljust(192, b"\0"))
        x11.XCloseDisplay(display)

    def resize_window(self, title, width, height):
        """Gives the window of that title another size, as a tiling window manager does."""
        self._xdotool("windowsize", str(self._window("--name", f"^{title}$")), str(width), str(height))

    @contextlib.contextmanager
    def other_window(self):
        """Another window, in the corner, that has the keys as long as the context lasts. They go back to the one under
        the pointer."""
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XDefaultRootWindow.restype = ctypes.c_ulong
        x11.XCreateSimpleWindow.restype = ctypes.c_ulong
        display = ctypes.c_void_p(x11.XOpenDisplay(self.environment["DISPLAY"].encode()))
        root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
        size, revert_to_pointer = 20, 1
        window = ctypes.c_ulong(x11.XCreateSimpleWindow(display, root, 0, 0, size, size, 0, ctypes.c_ulong(0),
                                                        ctypes.c_ulong(0)))
        x11.XMapRaised(display, window)
        x11.XSetInputFocus(display, window, revert_to_pointer, ctypes.c_ulong(0))
        x11.XSync(display, 0)
        try:
            yield
        finally:
            x11.XCloseDisplay(display)

    def _window(self, *search):
        """The number of the window that a search of xdotool finds, once there is one."""
        def found():
            numbers = self._xdotool("search", *search, check=False).stdout.split()
            return int(numbers[-1]) if numbers else None

        return wait_for(found, f"a window ({' '.join(search)})")

    def _keys(self, down, keys):
        """Goes to the X server directly: starting a program for each key takes longer than a player may hesitate."""
        if self._keyboard is None:
            self._keyboard = Keyboard(self.environment["DISPLAY"])
        for key in keys:
            self._keyboard.send(key, down)

    def _xdotool(self, *commands, check=True):
        return subprocess.run(["xdotool", *commands], env={**os.environ, **self.environment}, check=check,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)


class NullSound:
    """A sound server of our own with one sink that nobody hears."""

    def __init__(self, folder):
        self._folder = Path(folder) / "sound"
        self._folder.mkdir(mode=0o700)
        socket = self._folder / "native"
        self.environment = {"PULSE_SERVER": f"unix:{socket}"}
        own = {"HOME": str(self._folder), "XDG_RUNTIME_DIR": str(self._folder), "PULSE_RUNTIME_PATH": str(self._folder)}
        with open(self._folder / "server.txt", "wb") as output:
            self._process = subprocess.Popen(
                ["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                 "--disallow-exit", "--log-target=stderr",
                 "--load=module-null-sink sink_name=nobody rate=44100 channels=2",
                 f"--load=module-native-protocol-unix socket={socket} auth-anonymous=1"],
                env={**os.environ, **own}, stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        try:
            wait_for(self._answers, "the sound server")
        except StageError as error:
            self.close()
            raise StageError(f"{error}: {(self._folder / 'server.txt').read_text()}") from error

    def _answers(self):
        if self._process.poll() is not None:
            raise StageError("the sound server ended by itself")
        return sound_server_answers(self.environment)

    def close(self):
        end(self._process)

    def record(self):
        """Starts to record what the sink gets. The caller closes the recording."""
        return Recording(self._folder / "recording.raw", self.environment)


class Recording:
    """What a null sink gets from now on: 44,100 Hz, stereo, 16 bits."""

    BYTES_A_SECOND = 44100 * 2 * 2

    def __init__(self, path, environment):
        self._path = path
        with open(path, "wb") as output:
            self._process = subprocess.Popen(
                ["parec", "--device=nobody.monitor", "--raw", "--format=s16le", "--rate=44100", "--channels=2",
                 "--latency-msec=20"],
                env={**os.environ, **environment}, stdin=subprocess.DEVNULL, stdout=output)
        try:
            wait_for(lambda: self.length() > 0, "the recording to begin")
        except StageError:
            self.close()
            raise

    def close(self):
        end(self._process)

    def length(self):
        """Bytes recorded so far."""
        return self._path.stat().st_size // 4 * 4

    def loudest(self, since=0):
        """The greatest amplitude, 0 to 32,768, that was recorded behind the byte `since`."""
        with open(self._path, "rb") as data:
            data.seek(since)
            sound = data.read()
        values = array.array("h", sound[:len(sound) // 4 * 4])
        return max(max(values), -min(values)) if values else 0


def sound_server_answers(environment=None):
    """Whether a sound server answers, the user's own or that of `environment`."""
    if shutil.which("pactl") is None:
        return False
    try:
        answer = subprocess.run(["pactl", "info"], env={**os.environ, **(environment or {})}, stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False, timeout=30)
    except subprocess.TimeoutExpired:  # a server that hangs
        return False
    return answer.returncode == 0


class Stage:
    """A virtual screen, a null sound sink and a private data home. A context: everything ends with it."""

    def __init__(self, width=1280, height=720):
        self.folder = Path(tempfile.mkdtemp(prefix="vandrel-stage-"))
        self.data_home = self.folder / "data"
        self.data_home.mkdir()
        self.screen = None
        self.sound = None
        self._games = []
        try:
            self.screen = VirtualScreen(self.folder, width, height)
            self.sound = NullSound(self.folder)
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        for game in self._games:
            game.close()
        for part in (self.sound, self.screen):
            if part is not None:
                part.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, program, arguments=(), working_directory=None, environment=None):
        """Starts the game on this stage. In `environment` a variable without a value is one that the game shall not
        have."""
        wanted = {**os.environ, **self.screen.environment, **self.sound.environment,
                  "XDG_DATA_HOME": str(self.data_home), "LIBGL_ALWAYS_SOFTWARE": "1", **(environment or {})}
        game = Game(program, arguments, working_directory or WORKING_DIRECTORY,
                    {name: value for name, value in wanted.items() if value is not None},
                    self.data_home / "vandrel", self.folder / f"errors{len(self._games)}.txt")
        self._games.append(game)
        return game


class Game:
    """The running game, with what it says: its log and its standard error."""

    def __init__(self, program, arguments, working_directory, environment, data, errors):
        self.log_file = data / "vandrel.log"
        self.configuration_file = data / "vandrel.cfg"
        self._errors = errors
        with open(errors, "wb") as output:
            self.process = subprocess.Popen([str(program), *arguments], cwd=working_directory, env=environment,
                                            stdin=subprocess.DEVNULL, stdout=output, stderr=output)

    def close(self):
        end(self.process)

    def log(self):
        """The text of the log file so far; empty when there is none."""
        return self.log_file.read_text(errors="replace") if self.log_file.exists() else ""

    def errors(self):
        """What was written to standard error so far. Log lines stand here at once, in the file when it is flushed."""
        return self._errors.read_text(errors="replace")

    def running(self):
        return self.process.poll() is None

    def wait_for_line(self, text, timeout=60.0):
        """Waits until the game has said `text`."""
        def said():
            if text in self.errors():
                return True
            if not self.running() and text not in self.errors():
                raise StageError(f"the game ended without saying {text!r}:\n{self.errors()}")
            return False

        wait_for(said, f"the game to say {text!r}", timeout)

    def wait_for_end(self, timeout=60.0):
        """Waits for the end of the process and gives its exit code."""
        wait_for(lambda: not self.running(), "the game to end", timeout)
        return self.process.returncode

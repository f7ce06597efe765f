"""A player of the real program: starts it on a display of its own, moves the mouse, presses keys, reads the
console and looks at the screen. The clock of the game runs faster than the wall's, so that scenes of half a
minute can be waited for."""

import ctypes
import math
import os
import pathlib
import re
import signal
import subprocess
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
BINARY = pathlib.Path(os.environ.get("TOLVANE", ROOT / "build/release/src/tolvane"))
SHOTS = pathlib.Path(os.environ.get("TOLVANE_SHOTS", ROOT / "build/shots"))

SCREEN = (1280, 1024)
WINDOW = (1024, 768)
FIELD = 3.5
GRID_HEIGHT = 0.3

# The starting view: 30 units from a centre one unit above the board, tilted by 40 degrees.
EYE = (0.0, 1.0 + 30.0 * math.sin(math.radians(40.0)), 30.0 * math.cos(math.radians(40.0)))
FIELD_OF_VIEW = 60.0

RED, GREEN, BLUE = (1, 0, 0), (0, 1, 0), (0, 0, 1)


def field_of(name):
    """Column and row of a field such as "e4"."""
    return "abcdefgh".index(name[0]), int(name[1]) - 1


def corner(name, across, up):
    """A point of a field at the grid's height: 0 to 1 from its left to its right and from White's side."""
    column, row = field_of(name)
    return (-14.0 + FIELD * (column + across), GRID_HEIGHT, 14.0 - FIELD * (row + up))


def project(point):
    """Where the starting view shows a point of the world, in pixels from the window's top left."""
    tilt = math.radians(40.0)
    x, y, z = (p - e for p, e in zip(point, EYE))
    depth = -y * math.sin(tilt) - z * math.cos(tilt)
    height = y * math.cos(tilt) - z * math.sin(tilt)
    scale = WINDOW[1] / 2 / math.tan(math.radians(FIELD_OF_VIEW / 2)) / depth
    return WINDOW[0] / 2 + x * scale, WINDOW[1] / 2 - height * scale


class ClientMessage(ctypes.Structure):
    """XClientMessageEvent of Xlib, as long as its union of all events."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5), ("padding", ctypes.c_long * 12)]


def ask_to_close(display_name, window):
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XInternAtom.restype = ctypes.c_ulong
    display = ctypes.c_void_p(x11.XOpenDisplay(display_name.encode()))
    message = ClientMessage(type=33, window=window, format=32,
                            message_type=x11.XInternAtom(display, b"WM_PROTOCOLS", 0))
    message.data[0] = x11.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
    x11.XSendEvent(display, ctypes.c_ulong(window), 0, ctypes.c_long(0), ctypes.byref(message))
    x11.XCloseDisplay(display)


class Picture:
    def __init__(self, raw):
        self.raw = raw

    def at(self, x, y):
        offset = (int(y) * SCREEN[0] + int(x)) * 3
        return tuple(self.raw[offset:offset + 3])

    def differences(self, other, box=(0, 0) + WINDOW, tolerance=24):
        """How many pixels of a box differ."""
        left, top, right, bottom = box
        return sum(
            max(abs(a - b) for a, b in zip(self.at(x, y), other.at(x, y))) > tolerance
            for y in range(top, bottom, 2) for x in range(left, right, 2)) * 4


class Player:
    """One run of the program. Use it in a with block."""

    def __init__(self, name, speed=8, answer="", environment=None):
        self.name = name
        self.speed = speed
        self.answer = answer
        self.extra = environment or {}
        self.lines = []
        self.errors = []
        self.shots = 0

    def __enter__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-noreset", "-displayfd", str(write), "-screen", "0", f"{SCREEN[0]}x{SCREEN[1]}x24"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            display = ":" + pipe.readline().strip()
        self.environment = dict(os.environ, DISPLAY=display, SDL_AUDIODRIVER="dummy")
        self.environment.update(self.extra)
        data = os.environ.get("TOLVANE_DATA", ROOT / "data")
        command = [str(BINARY)]
        if self.speed != 1:
            command = ["faketime", "-f", f"+0 x{self.speed}"] + command
        self.program = subprocess.Popen(
            command, cwd=data, env=self.environment, text=True, errors="replace",
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, start_new_session=True)
        for stream, lines in ((self.program.stdout, self.lines), (self.program.stderr, self.errors)):
            threading.Thread(target=self._collect, args=(stream, lines), daemon=True).start()
        self.say(self.answer)
        return self

    def __exit__(self, *_):
        try:
            os.killpg(self.program.pid, signal.SIGKILL)  # what speeds up the clock runs the game as its child
        except ProcessLookupError:
            pass
        self.program.wait()
        self.program.stdin.close()
        self.server.kill()
        self.server.wait()

    @staticmethod
    def _collect(stream, lines):
        with stream:
            for line in stream:
                lines.append(line.rstrip("\n"))

    # What a person does

    def say(self, text):
        """A line typed at the console."""
        try:
            self.program.stdin.write(text + "\n")
            self.program.stdin.flush()
        except BrokenPipeError:
            pass

    def press(self, key):
        self._xdotool("key", key)

    def hold(self, key, seconds):
        self._xdotool("keydown", key)
        time.sleep(seconds)
        self._xdotool("keyup", key)

    def click_at(self, x, y, button=1):
        self._xdotool("mousemove", str(int(x)), str(int(y)), "click", str(button))

    def click(self, field, button=1):
        self.click_at(*self.place_of(field), button=button)

    def drag(self, source, target):
        """Presses on one field and lets go on another."""
        start, end = ([str(int(n)) for n in self.place_of(field)] for field in (source, target))
        self._xdotool("mousemove", *start, "mousedown", "1", "mousemove", *end, "mouseup", "1")

    @staticmethod
    def place_of(field):
        """The figure's knees or, without a figure, the far half of the field: nothing stands before these."""
        x, _, z = corner(field, 0.5, 0.5)
        return project((x, 0.7, z))

    def close(self):
        """The close button: what a window manager would send to the window."""
        window = subprocess.run(["xdotool", "search", "--name", "^Tolvane$"], env=self.environment, check=True,
                                capture_output=True, text=True).stdout.split()[0]
        ask_to_close(self.environment["DISPLAY"], int(window))

    def _xdotool(self, *arguments):
        subprocess.run(["xdotool", *arguments], env=self.environment, check=True,
                       stdout=subprocess.DEVNULL)

    # What a person sees

    def text(self):
        return "\n".join(self.lines)

    def look(self):
        raw = subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], env=self.environment,
                             check=True, capture_output=True).stdout
        return Picture(raw)

    def shoot(self, label):
        """Keeps a picture of the screen for people to look at."""
        SHOTS.mkdir(parents=True, exist_ok=True)
        self.shots += 1
        path = SHOTS / f"{self.name}-{self.shots:02d}-{label}.png"
        subprocess.run(["import", "-window", "root", "-crop", f"{WINDOW[0]}x{WINDOW[1]}+0+0", str(path)],
                       env=self.environment, check=True)

    def frame_colour(self, field, picture=None):
        """Which frame marks a field: red, green, blue or None. Reads the strip between field and margin."""
        picture = picture or self.look()
        column, _ = field_of(field)
        votes = {RED: 0, GREEN: 0, BLUE: 0}
        places = [(across, 0.075) for across in (0.2, 0.35, 0.5, 0.65, 0.8)]
        places += [(0.075 if column >= 4 else 0.925, up) for up in (0.15, 0.3, 0.45)]
        for across, up in places:
            inside = picture.at(*project(corner(field, across, up)))
            high = max(inside)
            for colour, channel in ((RED, 0), (GREEN, 1), (BLUE, 2)):
                others = [inside[c] for c in range(3) if c != channel]
                if inside[channel] == high and high > 90 and high - max(others) > 45:
                    votes[colour] += 1
        best = max(votes, key=votes.get)
        return best if votes[best] >= 3 else None

    # Waiting

    def until(self, condition, what, seconds=60.0):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            if condition():
                return
            if self.program.poll() is not None and not condition():
                raise AssertionError(f"the program ended while waiting for {what}\n" + self.report())
            time.sleep(0.1)
        self.shoot("timeout")
        raise AssertionError(f"waited in vain for {what}\n" + self.report())

    def report(self):
        return "\n".join(self.lines[-12:] + self.errors[-12:])

    def wait_for_line(self, pattern, seconds=60.0, count=1):
        self.until(lambda: len(re.findall(pattern, self.text())) >= count, f'"{pattern}"', seconds)

    def wait_for_board(self):
        """Until the first frames have been drawn."""
        self.wait_for_line("textues loaded", seconds=120)
        self.until(lambda: sum(self.look().at(WINDOW[0] // 2, WINDOW[1] // 2)) > 60, "the first picture")

    def comes(self, condition, seconds=2.0):
        """Whether something happens within a short while."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            if condition():
                return True
            time.sleep(0.1)
        return False

    def select(self, field):
        """Clicks a figure until it is picked: that is, until the mouse has come back. A second click would
        drop it again, so each is given the time to show."""
        def picked():
            if self.frame_colour(field) == RED:
                return True
            self.click(field)
            return self.comes(lambda: self.frame_colour(field) == RED)
        self.until(picked, f"{field} to be picked", seconds=180)

    def plays(self):
        return len(re.findall("Player is CHECK: ", self.text()))

    def refusals(self):
        return len(re.findall(r"\+\+\+\+ CHESSGAME ERRORHANDLING \+\+\+\+", self.text()))

    def move(self, source, target):
        """Picks and moves, and waits until the rules have taken the move; the scene runs on."""
        self._ask(source, target, self.plays)

    def try_move(self, source, target):
        """Picks and asks for a move that is to be refused."""
        self._ask(source, target, self.refusals)

    def _ask(self, source, target, answers):
        before = answers()

        def answered():
            self.select(source)
            self.click(target)
            return self.comes(lambda: answers() > before, seconds=5.0)
        self.until(answered, f"an answer to {source}-{target}", seconds=180)

    def play(self, moves):
        """Moves such as "e2e4 e7e5"."""
        for move in moves.split():
            self.move(move[:2], move[2:4])

    def sees_prompt(self):
        """Whether the promotion's choices are on the screen: its green letters in their corner."""
        picture = self.look()
        letters = sum(g > 180 and r < 80 and b < 80 for r, g, b in
                      (picture.at(x, y) for y in range(20, 170) for x in range(580, 780)))
        return letters > 100

    def promote(self, key):
        self.until(self.sees_prompt, "the prompt", seconds=120)
        self.press(key)
        self.until(lambda: not self.sees_prompt(), "the choice to be taken")

    def leave(self, key="Escape"):
        """Quits, waits for the console's question, answers it, and tells the exit code."""
        self.press(key)
        self.wait_for_line('Press "Enter" to exit')
        self.say("")
        return self.program.wait(timeout=30)

"""Pictures of every scene at its height, close enough to judge. Run by hand: all scenes, or those that are
named on the command line."""

import dataclasses
import math
import os
import pathlib
import subprocess
import sys
import tempfile
import time

from player import FIELD, FIELD_OF_VIEW, SCREEN, SHOTS, WINDOW, Player, field_of

PAN_SPEED = 4.5  # units a second
TURN_SPEED = 15.0  # degrees or units a second


def middle(*fields):
    """The point of the floor between the centres of some fields."""
    places = [field_of(field) for field in fields]
    return (sum(-12.25 + FIELD * column for column, _ in places) / len(places),
            sum(12.25 - FIELD * row for _, row in places) / len(places))


@dataclasses.dataclass
class View:
    """The point looked at, the side the eye is on (0 White's, 90 the right, 180 Black's), how high and far."""
    x: float = 0.0
    z: float = 0.0
    y: float = 1.0
    turn: float = 0.0
    tilt: float = 40.0
    distance: float = 30.0

    def axes(self):
        turn, tilt = math.radians(self.turn), math.radians(self.tilt)
        right = (math.cos(turn), 0.0, -math.sin(turn))
        to_eye = (math.sin(turn) * math.cos(tilt), math.sin(tilt), math.cos(turn) * math.cos(tilt))
        up = (-math.sin(turn) * math.sin(tilt), math.cos(tilt), -math.cos(turn) * math.sin(tilt))
        return right, up, to_eye

    def project(self, point):
        """Where it shows a point of the world, in pixels from the window's top left."""
        from_centre = [p - c for p, c in zip(point, (self.x, self.y, self.z))]
        across, height, nearness = (sum(a * b for a, b in zip(axis, from_centre)) for axis in self.axes())
        scale = WINDOW[1] / 2 / math.tan(math.radians(FIELD_OF_VIEW / 2)) / (self.distance - nearness)
        return WINDOW[0] / 2 + across * scale, WINDOW[1] / 2 - height * scale


def on(*fields, **rest):
    """A view of the figures on some fields."""
    x, z = middle(*fields)
    return View(**(dict(x=x, z=z, y=1.3, turn=0.0, tilt=20.0, distance=9.0) | rest))


class PacedPlayer(Player):
    """A player whose clock changes its pace during the game: fast to where a scene begins, slow while the
    camera is led to it and pictures are taken."""

    FAST, SLOW = 6.0, 0.5

    def __init__(self, name):
        self.folder = tempfile.TemporaryDirectory()
        self.pace = pathlib.Path(self.folder.name) / "pace"
        library = subprocess.run(["faketime", "-f", "+0", "printenv", "LD_PRELOAD"], check=True,
                                 capture_output=True, text=True).stdout.strip()
        super().__init__(name, speed=1, environment={
            "LD_PRELOAD": library, "FAKETIME_TIMESTAMP_FILE": str(self.pace), "FAKETIME_NO_CACHE": "1"})
        self.kept = []
        self.pace.write_text("+0 x1\n")
        self.shown = 0.0  # what the game's clock has counted by the last change of pace

    def __enter__(self):
        super().__enter__()
        self.begun = self.changed = time.monotonic()
        del self.environment["LD_PRELOAD"]  # the hands on mouse and keys keep the wall's time
        return self

    def set_pace(self, pace):
        now = time.monotonic()
        # A little is added at each change: the game's clock must not run back where the two starts differ.
        self.shown += (now - self.changed) * self.speed + 0.2
        self.changed = now
        self.speed = pace
        new = self.pace.with_suffix(".new")
        new.write_text(f"{self.shown - (now - self.begun) * pace:+.3f} x{pace}\n")
        os.replace(new, self.pace)

    def shoot(self, label):
        """Keeps the picture for later: to write it takes longer than some moments last."""
        self.shots += 1
        self.kept.append((f"{self.name}-{self.shots:02d}-{label}.png", self.look()))

    def __exit__(self, *details):
        super().__exit__(*details)
        self.folder.cleanup()
        SHOTS.mkdir(parents=True, exist_ok=True)
        for name, picture in self.kept:
            subprocess.run(["convert", "-depth", "8", "-size", f"{SCREEN[0]}x{SCREEN[1]}", "rgb:-",
                            "-define", "png:compression-level=1", "-crop", f"{WINDOW[0]}x{WINDOW[1]}+0+0",
                            "+repage", str(SHOTS / name)], input=picture.raw, check=True)


class Camera:
    """Goes from view to view by holding the camera's keys."""

    def __init__(self, player):
        self.player = player
        self.view = View()

    def _hold(self, *wishes):
        """Keys, each for its own time: (key for more, key for less, amount, speed)."""
        held = sorted((abs(amount) / speed / self.player.speed, more if amount > 0 else less)
                      for more, less, amount, speed in wishes if abs(amount) > 0.01)
        command = [word for _, key in held for word in ("keydown", key)]
        passed = 0.0
        for seconds, key in held:
            command += ["sleep", f"{seconds - passed:.3f}", "keyup", key]
            passed = seconds
        if command:
            self.player._xdotool(*command)

    def go(self, view):
        right, _, _ = self.view.axes()
        x, z = view.x - self.view.x, view.z - self.view.z
        self._hold(("Right", "Left", x * right[0] + z * right[2], PAN_SPEED),
                   ("Down", "Up", -x * right[2] + z * right[0], PAN_SPEED),
                   ("Prior", "Next", view.y - self.view.y, PAN_SPEED),
                   ("w", "s", view.tilt - self.view.tilt, TURN_SPEED),
                   ("x", "c", view.distance - self.view.distance, TURN_SPEED),
                   ("d", "a", view.turn - self.view.turn, TURN_SPEED) if abs(x) + abs(z) < 0.01 else
                   ("d", "a", 0.0, TURN_SPEED))
        self.view = dataclasses.replace(view, turn=self.view.turn if abs(x) + abs(z) >= 0.01 else view.turn)
        if self.view.turn != view.turn:
            self._hold(("d", "a", view.turn - self.view.turn, TURN_SPEED))
            self.view = view

    def act(self, source, target, view):
        """Picks in the starting view, goes near, and asks for the move there, so that none of it is missed."""
        player = self.player
        player.select(source)
        before = player.plays()
        self.go(view)
        x, z = middle(target)
        player.shoot("near")
        for height in (1.0, 0.4, 1.6, 0.2):
            across, down = view.project((x, height, z))
            player.click_at(min(max(across, 0), WINDOW[0] - 1), min(max(down, 0), WINDOW[1] - 1))
            if player.comes(lambda: player.plays() > before):
                return
        player.shoot("missed")
        raise AssertionError(f"no answer to {source}-{target}\n" + player.report())


def series(player, seconds, step, label="t", over=lambda: False):
    """Shoots over some seconds of the game, or until something is over. The label tells the tenth of a
    second."""
    start = time.monotonic()
    for index in range(int(seconds / step)):
        time.sleep(max(0.0, start + index * step / player.speed - time.monotonic()))
        passed = (time.monotonic() - start) * player.speed
        if over() or passed > seconds:
            return
        player.shoot(f"{label}-{passed * 10:03.0f}")


@dataclasses.dataclass
class Fight:
    """A move that is worth a look: what leads to it, where it is seen from, and for how long."""
    before: str
    source: str
    target: str
    view: View
    seconds: float
    step: float = 0.5


FIGHTS = {
    "pawn": Fight("e2e4 d7d5", "e4", "d5", on("e4", "d5", turn=-30.0, distance=7.0), 5.0, 0.12),
    "bishop": Fight("e2e4 e7e5 f1c4 d7d5", "c4", "d5", on("c4", "d5", turn=45.0, distance=7.0), 4.0, 0.12),
    "rook": Fight("h2h4 g7g5 h4g5 a7a6", "h1", "h7", on("h6", "h7", turn=60.0, tilt=25.0), 25.0, 1.0),
    "king": Fight("e2e4 f7f5 e1e2 f5f4 e2f3 a7a6", "f3", "f4", on("f3", "f4", turn=60.0, distance=8.0), 12.0),
    "en-passant": Fight("e2e4 a7a6 e4e5 d7d5", "e5", "d6", on("e5", "d5", turn=20.0), 12.0, 0.7),
}

# Moves that leave each text on the boards.
TEXTS = {
    "next-white": "",
    "next-black": "e2e4",
    "white-check": "e2e4 e7e5 d2d3 f8b4",
    "black-check": "e2e4 f7f6 d1h5",
    "white-mate": "f2f3 e7e5 g2g4 d8h4",
    "black-mate": "e2e4 g7g5 d2d4 f7f6 d1h5",
}

# What is seen of the figures at rest.
NEAR = {
    "white-pawn": on("e2", turn=150.0, distance=5.0),
    "white-king": on("e1", turn=20.0, y=2.0, distance=6.0),
    "white-queen": on("d1", turn=-20.0, y=1.8, distance=6.0),
    "white-bishop": on("c1", turn=-20.0, y=1.6, distance=5.5),
    "white-knight": on("b1", turn=-30.0, y=1.5, distance=5.5),
    "white-rook": on("a1", turn=-40.0, y=1.5, distance=5.5),
}
NEAR_BLACK = {
    "black-pawns": on("d7", turn=10.0, distance=6.0),
    "black-king": on("e8", turn=10.0, y=2.2, tilt=30.0, distance=6.0),
    "black-queen": on("d8", turn=10.0, y=2.2, tilt=30.0, distance=6.0),
    "black-bishop": on("c8", turn=10.0, y=1.8, tilt=30.0, distance=6.0),
    "black-knight": on("b8", turn=10.0, y=1.8, tilt=30.0, distance=6.0),
    "black-rook": on("a8", turn=10.0, y=1.6, tilt=30.0, distance=6.0),
}


def show_fight(name):
    fight = FIGHTS[name]
    with PacedPlayer(name) as player:
        player.wait_for_board()
        player.set_pace(player.FAST)
        player.play(fight.before)
        player.select(fight.source)
        player.set_pace(player.SLOW)
        Camera(player).act(fight.source, fight.target, fight.view)
        series(player, fight.seconds, fight.step)


def show_queen(name):
    """Her charge, then her victim, the can and the saucer."""
    with PacedPlayer(name) as player:
        player.wait_for_board()
        player.set_pace(player.FAST)
        player.play("e2e4 e7e5 d1h5 a7a6")
        player.select("h5")
        player.set_pace(player.SLOW)
        camera = Camera(player)
        camera.act("h5", "e5", on("f5", "g5", turn=-20.0, y=1.6, distance=14.0))
        camera.go(on("h5", "g5", turn=-40.0, y=1.6, distance=7.0))
        series(player, 4.0, 0.6, "charge")
        camera.go(on("e5", turn=-40.0, y=1.6, distance=6.0))
        series(player, 10.0, 0.8, "victim")
        camera.go(on("e5", turn=-40.0, y=5.0, distance=16.0))
        series(player, 30.0, 1.0, "saucer")


def show_mate(name):
    """The mated king's end, and what the boards say of it."""
    with PacedPlayer(name) as player:
        player.wait_for_board()
        player.set_pace(player.FAST)
        player.play("f2f3 e7e5 g2g4")
        player.select("d8")
        player.set_pace(1.0)
        player.click("h4")
        player.wait_for_line("Player is CHECK-MATE: 0")
        camera = Camera(player)
        camera.go(on("e1", y=2.0, turn=30.0, tilt=15.0, distance=9.0))
        series(player, 22.0, 0.7)
        camera.go(View(y=5.0, turn=90.0, tilt=6.0, distance=1.0))
        player.shoot("board")


def show_demo(name):
    """Fights of pawn, knight and bishop on one field, and both castlings."""
    with PacedPlayer(name) as player:
        player.wait_for_board()
        player.press("space")
        camera = Camera(player)
        player.set_pace(2.0)
        camera.go(on("f5", turn=-45.0, y=1.6, distance=9.0))
        for count, label in ((5, "pawn"), (6, "knight"), (7, "bishop")):
            player.set_pace(player.FAST)
            player.until(lambda: player.plays() >= count, label, seconds=120)
            player.set_pace(player.SLOW)
            series(player, 15.0, 0.5, label, lambda: player.plays() > count)
        for count, label, field, side in ((12, "short", "g8", 180.0), (21, "long", "c1", 0.0)):
            player.set_pace(2.0)
            camera.go(on(field, turn=side, tilt=25.0, distance=12.0))
            player.set_pace(player.FAST)
            player.until(lambda: player.plays() >= count, label, seconds=240)
            player.set_pace(1.0)
            series(player, 24.0, 1.5, label, lambda: player.plays() > count)


def show_texts(name):
    with PacedPlayer("board-" + name) as player:
        player.wait_for_board()
        player.set_pace(player.FAST)
        player.play(TEXTS[name])
        time.sleep(3.0)  # until the last move's scene has ended
        player.set_pace(1.0)
        camera = Camera(player)
        for side, turn in (("left", 90.0), ("right", -90.0)):
            camera.go(View(y=5.0, turn=turn, tilt=6.0, distance=1.0))
            player.shoot(side)


def show_near(name, views):
    with PacedPlayer(name) as player:
        player.wait_for_board()
        player.set_pace(player.SLOW)
        camera = Camera(player)
        for label, view in views.items():
            camera.go(view)
            time.sleep(0.3)
            player.shoot(label)
            time.sleep(0.5)
            player.shoot(label + "-later")


def show_start(name):
    """The starting view twice, for what flickers, and the flames under the board's corners."""
    with PacedPlayer(name) as player:
        player.wait_for_board()
        player.press("F2")
        time.sleep(6.0)
        player.shoot("view")
        time.sleep(0.5)
        player.shoot("view-later")
        Camera(player).go(View(turn=25.0, tilt=6.0, distance=40.0))
        player.shoot("thrusters")


def show_promotion(name):
    with Player(name, speed=6) as player:
        player.wait_for_board()
        player.play("g2g4 h7h5 g4h5 g7g6 h5g6 a7a6 g6g7 a6a5 g7h8")
        player.until(player.sees_prompt, "the prompt", seconds=120)
        player.shoot("prompt")
        player.promote("1")
        time.sleep(0.5)
        player.shoot("queen")


SCENES = {name: show_fight for name in FIGHTS}
SCENES |= {"board-" + name: lambda scene: show_texts(scene.removeprefix("board-")) for name in TEXTS}
SCENES |= {"queen": show_queen, "demo": show_demo, "king-end": show_mate, "start": show_start,
           "promotion": show_promotion,
           "near-white": lambda name: show_near(name, NEAR), "near-black": lambda name: show_near(name, NEAR_BLACK)}


def main():
    for name in sys.argv[1:] or SCENES:
        SCENES[name](name)


if __name__ == "__main__":
    main()

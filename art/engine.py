"""The engine that carries a score board: a slim tank between a pump head and a bell whose lower half is petals, so that
the fire inside shows between them. It stands left and right of a screen, so both its sides hold clamps."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *  # noqa: E402,F403

MOUTH = -7.3
SIDES = 12

PALETTE = {
    "plate": (0.74, 0.74, 0.76),
    "trim": (0.44, 0.45, 0.50),
    "metal": (0.66, 0.48, 0.28),
    "dark": (0.13, 0.13, 0.15),
    "chrome": (0.78, 0.79, 0.82),
    "light": (0.80, 0.66, 1.00),
    "mark": (0.16, 0.17, 0.22),
    "wear": (0.86, 0.85, 0.84),
    "grime": (0.16, 0.13, 0.11),
    "dust": (0.40, 0.38, 0.38),
    "line": (0.12, 0.12, 0.14),
    "stripe": (0.86, 0.62, 0.16),
    "hot": (1.00, 0.66, 0.30),
}


def body():
    """A quarter of throat, pump, tank and dome; the joints between quarters lie under the strakes."""
    profile = [
        (0.46, -4.75),
        (0.86, -4.45),
        (0.86, -3.55),
        (0.62, -3.35),
        (0.62, -2.95),
        (0.90, -2.70),
        (0.90, 2.75),
        (0.70, 3.00),
        (0.70, 3.30),
        (0.86, 3.45),
        (0.74, 4.05),
        (0.36, 4.45),
        (0.10, 4.55),
        (0, 5.05),
    ]
    bands = [
        "metal",
        "trim",
        "dark",
        "dark",
        "metal",
        "plate",
        "metal",
        "dark",
        "metal",
        "trim",
        "plate",
        "plate",
        "chrome",
    ]
    return lathe(profile, SIDES // 4, start=0, arc=90, close=False, bands=bands)


def bell():
    """The whole upper part of the nozzle, outside and inside."""
    return lathe(
        [(0.30, -4.95), (0.94, -5.55), (1.06, -5.55), (0.52, -4.72)],
        SIDES,
        start=15,
        close=False,
        bands=["hot", "metal", "metal"],
    )


def core():
    """The glowing needle round which the flame stands."""
    return lathe([(0, MOUTH), (0.12, -5.9), (0.28, -4.95)], 6, close=False, bands=["hot", "hot"])


def petal():
    """One of six blades of the lower bell, on the +z side."""
    spine = [(1.00, -5.40, 0.26), (1.34, -6.40, 0.30), (1.52, MOUTH, 0.16)]
    v = []
    for r, y, half in spine:
        v += [(-half, y, r - 0.10), (half, y, r - 0.10), (half * 0.94, y, r + 0.04), (-half * 0.94, y, r + 0.04)]
    f = []
    for i in range(len(spine) - 1):
        for k in range(4):
            j = (k + 1) % 4
            f.append([4 * i + k, 4 * i + j, 4 * i + 4 + j, 4 * i + 4 + k])
    f.append([8, 9, 10, 11])
    return Mesh(v, f).paint("hot", lambda c, n: n[2] < -0.6)


def body_detail():
    parts = []
    for y in (-2.2, -0.2, 1.8):
        parts.append(
            lathe([(0.90, y - 0.10), (0.95, y - 0.07), (0.95, y + 0.07), (0.90, y + 0.10)], 24, close=False).material(
                "metal"
            )
        )
    for k in range(12):
        turn = 30 * k
        parts.append(
            rivets([(0, y, 0.945) for y in (-2.2, -0.2, 1.8)], (0, 0, 1), 0.035).rotate(y=turn).material("chrome")
        )
    for turn in (45,):
        parts.append(vent(0.34, 0.62, 6, 0.05).move(0, -4.0, 0.83).rotate(y=turn).material("trim"))
        parts.append(plate(chamfered(0.36, 1.1, 0.06), 0.06, 0.02).move(0, 0.8, 0.88).rotate(y=turn).material("trim"))
        parts.append(vent(0.26, 0.5, 5, 0.04).move(0, -1.3, 0.885).rotate(y=turn).material("trim"))
    parts.append(lathe([(0.80, 3.62), (0.86, 3.66), (0.86, 3.78), (0.80, 3.82)], 24, close=False).material("metal"))
    return join(*parts)


def feed_pipe():
    """From the tank's foot down to the throat, on the diagonal."""
    path = [(0.0, -2.35, 0.86), (0.0, -2.75, 1.10), (0.0, -3.6, 1.14), (0.0, -4.5, 0.98), (0.0, -5.15, 0.72)]
    return tube(path, 0.11, 4, caps=False).material("metal")


def clamp():
    """A bracket towards +x that grips the frame of the screen."""
    arm = box(0.46, 0.34, 0.44, top=(1.0, 0.8)).move(1.00, 0, 0)
    jaw = box(0.16, 0.70, 0.62, top=(1.0, 0.8)).move(1.28, 0, 0).material("metal")
    return arm + jaw


def strake():
    """A rib with conduits along the tank."""
    return box(0.30, 5.0, 0.18, top=(0.8, 0.6)).drop(lambda c, n: n[2] < -0.5).move(0, 0.05, 0.95)


def build():
    figure = Figure("engine", 0.3, seed=21, home="engine")
    for k in range(4):
        figure.part(
            f"body.{k}",
            body().rotate(y=90 * k),
            bevel=0.02,
            smooth=34,
            detail=None if k else body_detail(),
            like="body.0" if k else None,
            density=1.5,
        )
    figure.part("bell", bell(), material="metal", bevel=0.015, smooth=34)
    figure.part("core", core(), material="hot", bevel=0.0, smooth=60, density=0.6)
    for k in range(6):
        figure.part(
            f"petal.{k}",
            petal().rotate(y=30 + 60 * k),
            material="metal",
            bevel=0.015,
            like="petal.0" if k else None,
            density=1.1,
        )
    for k in range(4):
        figure.part(
            f"pipe.{k}",
            feed_pipe().rotate(y=45 + 90 * k),
            bevel=0.0,
            smooth=70,
            like="pipe.0" if k else None,
            density=0.7,
        )
        strip_detail = join(*[box(0.34, 0.10, 0.04).move(0, y, 1.03) for y in np.arange(-2.1, 2.4, 0.6)]).material(
            "metal"
        )
        figure.part(
            f"strake.{k}",
            strake().rotate(y=90 * k),
            material="trim",
            bevel=0.02,
            detail=None if k else strip_detail,
            like="strake.0" if k else None,
            density=0.7,
        )
    for number, (y, turn) in enumerate(((3.3, 0), (3.3, 180), (-3.3, 0), (-3.3, 180))):
        figure.part(
            f"clamp.{number}",
            clamp().move(0, y, 0).rotate(y=turn),
            material="trim",
            bevel=0.02,
            like="clamp.0" if number else None,
        )
    figure.clip("frame", 1, lambda pose, i: None)
    return figure


def decorate(paint):
    body_mask = paint.part("body")
    for y in (-2.62, 2.66):
        paint.lines(body_mask * paint.band("y", y, 0.03))
    for y in (-1.2, 0.8):
        paint.lines(body_mask * paint.band("y", y, 0.025) * paint.material("plate"))
    angle = np.degrees(np.arctan2(paint.pos[..., 0], paint.pos[..., 2]))
    seam = np.abs(np.mod(angle + 15, 30) - 15) * np.pi / 180 * 0.9
    paint.lines(body_mask * paint.material("plate") * paint.soft(seam, 0.012) * paint.above("y", -2.6))
    paint.lay(body_mask * paint.band("y", 2.25, 0.36) * paint.material("plate"), "stripe", 0.9)
    paint.hazard(body_mask * paint.band("y", -2.48, 0.22) * paint.material("plate"), (1, 1, 1), 0.3, "stripe")
    for turn, words, y, height in (
        (15, "PLASMA", 0.35, 0.17),
        (75, "64", -1.75, 0.26),
        (15, "64", -1.75, 0.26),
        (75, "CRYO", 0.35, 0.17),
    ):
        out = np.array([np.sin(np.radians(turn)), 0, np.cos(np.radians(turn))])
        right, up = np.array([out[2], 0, -out[0]]), np.array([0, 1, 0])
        along, across = (right, up) if len(words) == 2 else (-up, right)
        paint.text(words, out * 0.87 + (0, y, 0), along, across, height, parts=("body",))
        paint.lamps(paint.part("body") * paint.near(out * 0.84 + (0, 3.62, 0), 0.08))
    bell_mask = paint.part("bell") * paint.material("metal")
    for y in (-4.98, -5.26):
        paint.lines(bell_mask * paint.band("y", y, 0.03))
    cooling = np.abs(np.mod(angle, 7.5) - 3.75) * np.pi / 180 * np.hypot(paint.pos[..., 0], paint.pos[..., 2])
    paint.lay(bell_mask * paint.soft(cooling, 0.014) * (paint.pos[..., 1] < -4.98), "line", 0.45)
    paint.lay(bell_mask * smoothstep(-5.30, -5.56, paint.pos[..., 1]), "dark", 0.35)
    heat = smoothstep(-5.6, -6.9, paint.pos[..., 1]) * paint.part("petal", "bell") * (1 - paint.material("hot"))
    paint.lay(heat, (0.30, 0.20, 0.22), 0.55)
    paint.lay(heat * smoothstep(0.45, 0.7, paint.grain(0.3, 3, 5)), (0.34, 0.26, 0.50), 0.5)
    inside = paint.material("hot")
    paint.lay(inside * smoothstep(-5.3, -7.2, paint.pos[..., 1]), (0.62, 0.24, 0.12), 0.75)


def main():
    figure = build()
    maps = figure.bake(size=512, samples=12, bevel=0.04, reach=0.4, extrude=0.08, floor=False, shade_reach=1.5)
    figure.write(maps.uv)
    paint = Paint(figure, maps, PALETTE, 8)
    decorate(paint)
    write_tga(figure.folder() / "engine.tga", paint.finish(dust=0, streaks=0.9, spill=0.2))


if __name__ == "__main__":
    main()

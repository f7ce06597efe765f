"""The rook: a siege tower on tracks, battlements on top, a cannon on either side, a shield in front."""

import math
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

SPEED = 1.7
RUN_FRAMES = 12
SHOES = 6
LOOP = SPEED / FRAMES_A_SECOND * RUN_FRAMES  # the track goes round once in the clip
TURN_R = 0.27  # of the shoes' path about the end wheels
STRAIGHT = (LOOP - 2 * math.pi * TURN_R) / 2
TRACK_X, SHOE_H = 0.80, 0.07
MOUTHS = {"R": (1.25, 0.80, -1.2), "L": (-1.25, 0.80, -1.2)}


def track_place(s):
    """Centre (y, z) and tilt in degrees of a shoe's outer face, s along the loop from the front of the floor run."""
    s %= LOOP
    r = TURN_R
    if s < STRAIGHT:
        return 0.0, -STRAIGHT / 2 + s, 0.0
    s -= STRAIGHT
    if s < math.pi * r:
        a = s / r
        return r - r * math.cos(a), STRAIGHT / 2 + r * math.sin(a), -math.degrees(a)
    s -= math.pi * r
    if s < STRAIGHT:
        return 2 * r, STRAIGHT / 2 - s, -180.0
    a = (s - STRAIGHT) / r
    return r + r * math.cos(a), -STRAIGHT / 2 - r * math.sin(a), -180.0 - math.degrees(a)


def skeleton():
    rig = Rig().bone("root", (0, 0, 0)).bone("hull", (0, 0.35, 0), "root").bone("tower", (0, 0.70, 0), "hull")
    rig.bone("crown", (0, 1.75, 0), "tower").bone("shield", (0, 0.62, -0.62), "hull")
    for i in range(6):
        a = math.radians(30 + 60 * i)
        rig.bone(f"merlon{i}", (0.64 * math.sin(a), 2.1, 0.64 * math.cos(a)), "crown")
    for side, (x, y, z) in MOUTHS.items():
        rig.bone(f"sponson.{side}", (x * 0.6, 0.85, 0.1), "hull").bone(f"cannon.{side}", (x, y, 0.1), f"sponson.{side}")
        rig.bone(f"track.{side}", (math.copysign(TRACK_X, x), TURN_R, 0), "root")
        for i in range(SHOES):
            y0, z0, _ = track_place(LOOP * i / SHOES)
            rig.bone(f"shoe{i}.{side}", (math.copysign(TRACK_X, x), y0, z0), f"track.{side}")
    return rig


def track():
    r, half = TURN_R - 0.03, STRAIGHT / 2
    outline = [(half + r * math.sin(a), r - r * math.cos(a)) for a in (math.radians(d) for d in range(0, 181, 45))]
    outline += [(-half - r * math.sin(a), r + r * math.cos(a)) for a in (math.radians(d) for d in range(0, 181, 45))]
    return prism(outline, 0.34, inset=0.03, bevel=0.03).rotate(y=-90).move(0, 0.03, 0).rotate(y=180)


def shoe(i):
    y, z, tilt = track_place(LOOP * i / SHOES)
    body = box(0.42, SHOE_H, 0.34, top=(0.94, 0.8)).rotate(z=180).move(0, SHOE_H / 2, 0)
    return body.drop(lambda c, n: n[1] > 0.9).rotate(x=tilt).move(TRACK_X, y, z)


def build():
    figure = Figure("rook", 0.45, skeleton(), seed=23)
    wheels = join(*[lathe([(0.17, 0), (0.17, 0.03), (0.11, 0.03), (0.10, 0.015), (0.05, 0.015), (0.04, 0.04), (0, 0.045)],
                          14, close=False).rotate(z=-90).move(0.168, TURN_R, z) for z in (-0.42, 0, 0.42)]).material("metal")
    figure.pair("track", track().move(TRACK_X), "track", material="dark", bevel=0.01, detail=wheels.move(TRACK_X))
    for i in range(SHOES):
        for side in ("R", "L"):
            figure.part(f"shoe{i}.{side}", shoe(i) if side == "R" else shoe(i).move(-2 * TRACK_X), f"shoe{i}.{side}",
                        material="metal", bevel=0.012, like=None if (i, side) == (0, "R") else "shoe0.R")
    hull = prism([(-0.62, -0.20), (0.62, -0.20), (0.66, 0.05), (0.52, 0.26), (-0.52, 0.26), (-0.66, 0.05)], 1.36, front=0.92,
                 back=0.86).move(0, 0.42, 0)
    figure.part("hull", hull, "hull", material="trim", bevel=0.02)
    fender = prism([(-0.72, 0.0), (-0.55, 0.09), (0.55, 0.09), (0.72, 0.0), (0.62, -0.03), (-0.62, -0.03)], 0.46, front=0.96)
    figure.pair("fender", fender.rotate(y=90).move(TRACK_X + 0.01, 0.625, 0), "sponson", bevel=0.015)
    wall = lathe([(0.70, 0.62), (0.60, 0.78), (0.54, 1.10), (0.51, 1.55), (0.58, 1.70)], 12, start=15, close=False,
                 bands=["trim", "plate", "plate", "metal"])
    figure.part("tower", wall, "tower", bevel=0.02, smooth=33)
    crown = lathe([(0.56, 1.68), (0.70, 1.86), (0.72, 2.12), (0.55, 2.12), (0.55, 1.98), (0, 1.95)], 12, start=15, close=False,
                  bands=["plate", "plate", "plate", "dark", "trim"])
    figure.part("crown", crown, "crown", bevel=0.015, smooth=33)
    for i in range(6):
        merlon = box(0.37, 0.40, 0.19, top=(0.94, 0.9)).drop(lambda c, n: n[1] < -0.9)
        figure.part(f"merlon{i}", merlon.move(0, 2.30, 0.615).rotate(y=30 + 60 * i), f"merlon{i}", bevel=0.02,
                    like="merlon0" if i else None)
    shield = plate([(-0.46, -0.36), (0.46, -0.36), (0.54, 0.05), (0.40, 0.38), (-0.40, 0.38), (-0.54, 0.05)], 0.14,
                   0.05).rotate(y=180).rotate(x=-6).move(0, 1.0, -0.68)
    figure.part("shield", shield, "shield", bevel=0.015)
    sponson = prism([(-0.30, -0.20), (0.26, -0.20), (0.34, -0.05), (0.30, 0.16), (0.10, 0.24), (-0.30, 0.24)], 0.80,
                    front=0.85).move(1.0, 0.86, 0.12)
    figure.pair("sponson", sponson, "sponson", bevel=0.025)
    cannon = lathe([(0.17, 0), (0.17, 0.22), (0.12, 0.30), (0.105, 0.95), (0.165, 0.98), (0.165, 1.24), (0.115, 1.26), (0, 1.10)],
                   10, close=False, bands=["metal", "metal", "trim", "metal", "plate", "plate", "dark"])
    figure.pair("cannon", cannon.rotate(x=-90).move(1.25, 0.80, 0.06), "cannon", bevel=0.012)
    engine = prism([(-0.42, -0.24), (0.42, -0.24), (0.42, 0.10), (0.30, 0.26), (-0.30, 0.26), (-0.42, 0.10)], 0.30, inset=0.07,
                   bevel=0.08).move(0, 0.86, 0.66)
    figure.part("engine", engine, "hull", material="trim", bevel=0.02,
                detail=join(*[vent(0.24, 0.26, 5).move(x, 0.82, 0.80) for x in (-0.16, 0.16)]))
    return figure


def roll(p, distance):
    """Both tracks go forward by a distance."""
    for side in ("R", "L"):
        for i in range(SHOES):
            y0, z0, t0 = track_place(LOOP * i / SHOES)
            y, z, t = track_place(LOOP * i / SHOES + distance)
            p.move(f"shoe{i}.{side}", y=y - y0, z=z - z0).turn(f"shoe{i}.{side}", x=t - t0)


def stand(p, i):
    p.move("hull", y=0.008 * wave(i, 16))
    p.turn("crown", y=keys(i, (0, 0), (2, 0), (5, 22), (8, 22), (11, -18), (13, -18), (16, 0)))


def run(p, i):
    roll(p, SPEED / FRAMES_A_SECOND * i)
    p.move("hull", y=0.018 * wave(i, 4)).turn("hull", x=-1.2 + 0.9 * wave(i, 6), z=0.7 * wave(i, 4, 0.3))
    p.turn("crown", x=0.7 * wave(i, 6, 0.6), y=4 * wave(i, 12))


def damage(p, i):
    back = keys(i, (0, 0), (1, 1, ease_out), (3, -0.35), (5, 0.12), (6, 0))
    p.turn("hull", x=5 * back).move("hull", z=0.07 * back).turn("tower", x=3 * back).turn("crown", x=3 * back, y=5 * back)


def attack(p, i):
    blast = keys(i, (0, 0.15), (1, 1, ease_out), (2, 0.75), (6, 0.05), (9, 0))
    rock = keys(i, (0, 0), (1, 1, ease_out), (3, -0.4), (5, 0.15), (7, 0))
    for side in ("R", "L"):
        p.move(f"cannon.{side}", z=0.34 * blast)
    p.turn("hull", x=6 * rock).move("hull", z=0.10 * max(rock, 0)).turn("crown", x=3 * rock)
    roll(p, -0.08 * max(0.0, rock))


def death(p, i):
    fall = keys(i, (0, 0), (1, 0.1), (5, 0.85, ease_in), (6, 1), (7, 0.96), (8, 1))
    p.move("hull", y=-0.20 * fall).turn("hull", z=-5 * fall, x=4 * fall)
    p.turn("tower", x=16 * fall, z=9 * fall).move("tower", y=-0.20 * fall)
    p.turn("crown", z=-14 * fall, y=18 * fall)
    p.turn("shield", x=-70 * fall)
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"sponson.{side}", z=-sign * 14 * fall, x=-6 * fall)
        p.turn(f"track.{side}", z=-sign * 10 * fall).move(f"track.{side}", x=sign * 0.06 * fall)


def decorate(paint, army):
    for side in (-1, 1):
        paint.lamps(paint.band("y", 1.32, 0.26) * paint.soft(abs(paint.pos[:, :, 0]), 0.035) * paint.part("tower")
                    * paint.facing(z=side))
    return {}


if __name__ == "__main__":
    rook = build()
    print("triangles", rook.triangles())
    for name, count, pose in (("stand", 16, stand), ("run", RUN_FRAMES, run), ("damage", 7, damage), ("attack", 10, attack),
                              ("death", 24, death)):
        rook.clip(name, count, pose)
    baked = rook.bake()
    write_pictures(rook, baked, decorate)
    rook.write(baked.uv)

"""The rook: a siege tower on tracks, battlements on top, a cannon on either side, a shield in front."""

import math
import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

SPEED = 1.7
RUN_FRAMES = 12
SHOES = 6
LOOP = SPEED / FRAMES_A_SECOND * RUN_FRAMES  # the track goes round once in the clip
TURN_R = 0.27  # of the shoes' path about the end wheels
STRAIGHT = (LOOP - 2 * math.pi * TURN_R) / 2
TRACK_X, SHOE_H = 0.80, 0.07
MOUTH_X = 1.25
SLITS = (0, 90, 180, 270)  # headings of the lit arrow slits


def track_place(s):
    """Place (y, z) and tilt in degrees of a shoe's outer face, s along the loop from the front of the floor run."""
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
    rig.bone("crown", (0, 1.80, 0), "tower").bone("beacon", (0, 2.1, 0), "crown").bone("shield", (0, 0.64, -0.66), "hull")
    for i in range(6):
        a = math.radians(60 * i)
        rig.bone(f"merlon{i}", (0.69 * math.sin(a), 2.1, 0.69 * math.cos(a)), "crown")
    for side, sign in (("R", 1), ("L", -1)):
        rig.bone(f"sponson.{side}", (sign * 0.75, 0.85, 0.1), "hull")
        rig.bone(f"cannon.{side}", (sign * MOUTH_X, 0.80, 0.1), f"sponson.{side}")
        rig.bone(f"track.{side}", (sign * TRACK_X, TURN_R, 0), "root")
        for i in range(SHOES):
            y0, z0, _ = track_place(LOOP * i / SHOES)
            rig.bone(f"shoe{i}.{side}", (sign * TRACK_X, y0, z0), f"track.{side}")
    return rig


def track():
    """The belt under the shoes, a rounded bar along z."""
    r, half = TURN_R - 0.03, STRAIGHT / 2
    outline = [(half + r * math.sin(a), r - r * math.cos(a)) for a in (math.radians(d) for d in range(0, 181, 45))]
    outline += [(-half - r * math.sin(a), r + r * math.cos(a)) for a in (math.radians(d) for d in range(0, 181, 45))]
    return prism(outline, 0.34, inset=0.03, bevel=0.03).rotate(y=90).move(TRACK_X, 0.03, 0)


def shoe(i):
    y, z, tilt = track_place(LOOP * i / SHOES)
    body = box(0.42, SHOE_H, 0.40, top=(0.92, 0.78)).rotate(z=180).move(0, SHOE_H / 2, 0)
    return body.drop(lambda c, n: n[1] > 0.9).rotate(x=tilt).move(TRACK_X, y, z)


def tower(figure):
    wall = lathe([(0.70, 0.62), (0.61, 0.76), (0.54, 1.10), (0.51, 1.50), (0.56, 1.62)], 12, start=15, close=False,
                 bands=["trim", "plate", "plate", "metal"])
    wall = wall + lathe([(0.55, 1.60), (0, 1.60)], 12, start=15, close=False).material("dark")
    figure.part("tower", wall, "tower", bevel=0.02, smooth=33)
    rib = prism([(-0.085, 0.70), (0.085, 0.70), (0.075, 1.05), (0.045, 1.60), (-0.045, 1.60), (-0.075, 1.05)], 0.10,
                front=0.9).drop(lambda c, n: n[2] < -0.9)
    rib = rib.warp(lambda x, y, z: (x, y, z + 0.575 + 0.32 * max(0.0, 1.05 - y) ** 1.4))
    for i, heading in enumerate((45, 135, 225, 315)):
        figure.part(f"rib{i}", rib.rotate(y=heading), "tower", material="metal", bevel=0.012, like="rib0" if i else None)
    crown = lathe([(0.55, 1.62), (0.75, 1.82), (0.80, 1.88), (0.80, 2.04), (0.62, 2.04), (0.61, 1.86), (0.20, 1.86)], 12,
                  start=15, close=False, bands=["trim", "metal", "plate", "plate", "dark", "dark"])
    under = lathe([(0, 1.62), (0.55, 1.62)], 12, start=15, close=False).material("dark")
    figure.part("crown", crown + under, "crown", bevel=0.015, smooth=33)
    figure.part("beacon", lathe([(0.22, 1.85), (0.20, 1.92), (0.11, 1.95), (0.09, 2.04), (0, 2.08)], 7, close=False,
                                bands=["trim", "trim", "light", "light"]), "beacon", bevel=0.0)
    merlon = box(0.42, 0.48, 0.20, top=(0.93, 0.86)).drop(lambda c, n: n[1] < -0.9).move(0, 2.26, 0.69)
    for i in range(6):
        figure.part(f"merlon{i}", merlon.rotate(y=60 * i), f"merlon{i}", bevel=0.02, like="merlon0" if i else None,
                    density=1.15)


def front(figure):
    shield = plate([(-0.42, -0.36), (0.42, -0.36), (0.56, 0.04), (0.43, 0.36), (0.16, 0.44), (-0.16, 0.44), (-0.43, 0.36),
                    (-0.56, 0.04)], 0.13, 0.05)
    boss = plate([(-0.13, -0.22), (0.13, -0.22), (0.19, 0.05), (0, 0.26), (-0.19, 0.05)], 0.06, 0.025).move(0, 0.0, 0.075)
    shield = shield + boss.drop(lambda c, n: n[2] < -0.9).material("metal")
    figure.part("shield", shield.rotate(y=180).rotate(x=-7).move(0, 1.0, -0.655), "shield", bevel=0.012,
                detail=rivets([(x, y, -0.75 + 0.12 * (1.0 - y)) for x in (-0.36, 0.36) for y in (0.78, 1.22)], (0, 0.1, -1), 0.028))
    for side, sign in (("R", 1), ("L", -1)):
        lamp_box = lathe([(0.08, 0), (0.10, 0.12), (0.07, 0.13), (0, 0.10)], 6, close=False,
                         bands=["metal", "metal", "light"]).rotate(x=-90).move(sign * 0.42, 0.50, -0.60)
        figure.part(f"headlamp.{side}", lamp_box, "hull", bevel=0.0, like=None if sign > 0 else "headlamp.R")


def rear(figure):
    engine = prism([(-0.42, -0.24), (0.42, -0.24), (0.42, 0.10), (0.30, 0.26), (-0.30, 0.26), (-0.42, 0.10)], 0.30, inset=0.07,
                   bevel=0.08).drop(lambda c, n: n[2] < -0.9).move(0, 0.84, 0.66)
    grilles = [vent(0.26, 0.28, 5).move(x, 0.80, 0.81) for x in (-0.16, 0.16)]
    figure.part("engine", engine, "hull", material="trim", bevel=0.02, detail=join(*grilles))
    stack = lathe([(0.075, 0.70), (0.075, 1.22), (0.10, 1.26), (0.10, 1.42), (0.06, 1.43), (0, 1.34)], 6, close=False,
                  bands=["trim", "metal", "metal", "metal", "dark"])
    hose = tube(curve([(0.40, 1.02, 0.60), (0.62, 1.16, 0.50), (0.74, 1.02, 0.36)], 2), 0.05, 5, caps=False)
    for side, sign in (("R", 1), ("L", -1)):
        figure.part(f"hose.{side}", hose if sign > 0 else hose.mirror(), "hull", material="rubber", bevel=0.0, smooth=60,
                    like=None if sign > 0 else "hose.R", mirrored=sign < 0)
        figure.part(f"stack.{side}", stack.rotate(x=5).move(sign * 0.52, 0, 0.60), "hull", bevel=0.01,
                    like=None if sign > 0 else "stack.R")


def build():
    figure = Figure("rook", 0.45, skeleton(), seed=23, lift=0.55)
    wheels = join(*[lathe([(0.17, 0), (0.17, 0.03), (0.11, 0.03), (0.10, 0.015), (0.05, 0.015), (0.04, 0.04), (0, 0.045)],
                          14, close=False).rotate(z=-90).move(0.168, TURN_R, z) for z in (-0.42, 0, 0.42)]).material("metal")
    figure.pair("track", track(), "track", material="rubber", bevel=0.01, detail=wheels.move(TRACK_X), density=0.8)
    for i in range(SHOES):
        for side in ("R", "L"):
            figure.part(f"shoe{i}.{side}", shoe(i) if side == "R" else shoe(i).move(-2 * TRACK_X), f"shoe{i}.{side}",
                        material="metal", bevel=0.012, like=None if (i, side) == (0, "R") else "shoe0.R", density=0.8)
    hull = prism([(-0.60, -0.20), (0.60, -0.20), (0.64, 0.05), (0.52, 0.24), (-0.52, 0.24), (-0.64, 0.05)], 1.40, front=0.90,
                 back=0.84, inset=0.06, bevel=0.10).move(0, 0.42, 0)
    figure.part("hull", hull, "hull", material="trim", bevel=0.02)
    fender = prism([(-0.78, -0.10), (-0.60, 0.08), (0.60, 0.08), (0.78, -0.10), (0.70, -0.12), (0.55, 0.02), (-0.55, 0.02),
                    (-0.70, -0.12)], 0.48).rotate(y=90).move(TRACK_X + 0.01, 0.615, 0)
    figure.pair("fender", fender, "sponson", bevel=0.012)
    tower(figure)
    front(figure)
    rear(figure)
    sponson = prism([(-0.42, -0.18), (-0.34, -0.24), (0.34, -0.24), (0.42, -0.10), (0.36, 0.16), (0.16, 0.24), (-0.42, 0.20)],
                    0.60, front=0.86, inset=0.03, bevel=0.05).rotate(y=90).move(1.06, 0.88, 0.12)
    figure.pair("sponson", sponson, "sponson", bevel=0.025, detail=join(
        vent(0.26, 0.16, 4).rotate(y=90).move(1.36, 0.86, 0.26), rivets(row((1.34, 0.98, -0.16), (1.34, 0.98, 0.06), 3),
                                                                         (1, 0.2, 0), 0.02)))
    cannon = lathe([(0.19, 0.08), (0.13, 0.20), (0.11, 0.80), (0.16, 0.84), (0.17, 1.12), (0.115, 1.14), (0, 0.98)], 9,
                   close=False, bands=["metal", "trim", "metal", "plate", "metal", "dark"])
    recoil = lathe([(0.055, 0), (0.055, 0.34), (0.035, 0.34), (0.035, 0.66), (0, 0.68)], 5, close=False,
                   bands=["metal", "metal", "chrome", "metal"])
    figure.pair("cannon", cannon.rotate(x=-90).move(MOUTH_X, 0.80, -0.08), "cannon", bevel=0.012)
    figure.pair("recoil", recoil.rotate(x=-90).move(MOUTH_X - 0.02, 0.985, -0.12), "sponson", bevel=0.0)
    return figure


def roll(p, distance):
    """Both tracks go forward by a distance."""
    for side in ("R", "L"):
        for i in range(SHOES):
            y0, z0, t0 = track_place(LOOP * i / SHOES)
            y, z, t = track_place(LOOP * i / SHOES + distance)
            p.move(f"shoe{i}.{side}", y=y - y0, z=z - z0).turn(f"shoe{i}.{side}", x=t - t0)


def stand(p, i):
    """The crown keeps watch, to one side, then the other; the cannons breathe."""
    p.move("hull", y=0.008 * wave(i, 16))
    p.turn("crown", y=keys(i, (0, 0), (2, 0), (5, 28), (7, 28), (10, -24), (13, -24), (16, 0)))
    for side, phase in (("R", 0.0), ("L", 0.5)):
        p.turn(f"cannon.{side}", x=1.2 + 1.2 * wave(i, 16, phase - 0.25))


def run(p, i):
    roll(p, SPEED / FRAMES_A_SECOND * i)
    p.move("hull", y=0.020 * wave(i, 4)).turn("hull", x=-1.2 + 1.0 * wave(i, 6), z=0.8 * wave(i, 4, 0.3))
    p.turn("crown", x=0.8 * wave(i, 6, 0.6), y=5 * wave(i, 12))
    for side, phase in (("R", 0.2), ("L", 0.55)):
        p.turn(f"cannon.{side}", x=0.8 * wave(i, 6, phase))


def damage(p, i):
    """The shield is driven in, the tower rocks back on its springs and forward again."""
    back = keys(i, (0, 0), (1, 1, ease_out), (3, -0.4), (5, 0.12), (6, 0))
    dent = keys(i, (0, 0), (1, 1, ease_out), (4, 0.1), (6, 0))
    p.turn("hull", x=5 * back, z=1.5 * back).move("hull", z=0.08 * back, y=-0.02 * abs(back)).turn("tower", x=3.5 * back)
    p.turn("crown", x=4 * back, y=7 * back).move("shield", z=0.05 * dent).turn("shield", x=5 * dent, z=-3 * dent)
    roll(p, -0.08 * max(0.0, back))


def attack(p, i):
    """Both barrels at once: they are driven home, the hull rears, the barrels run out slowly."""
    blast = keys(i, (0, 0.10), (1, 1, ease_out), (2, 0.85), (6, 0.05), (9, 0))
    rock = keys(i, (0, 0), (1, 1, ease_out), (3, -0.45), (5, 0.15), (7, 0))
    for side in ("R", "L"):
        p.move(f"cannon.{side}", z=0.36 * blast)
    p.turn("hull", x=7 * rock).move("hull", z=0.11 * max(rock, 0), y=-0.03 * abs(rock)).turn("crown", x=4 * rock)
    p.turn("tower", x=2 * rock).turn("shield", x=-4 * rock)
    roll(p, -0.11 * max(0.0, rock))


def death(p, i):
    """The crown slides off behind and breaks, the shield falls flat, the tower sags into the hull."""
    sag = keys(i, (0, 0), (1, 0.25, ease_out), (2, 0.2), (5, 0.9, ease_in), (6, 1.05), (7, 0.98), (8, 1))
    p.move("hull", y=-0.10 * sag).turn("hull", z=-6 * sag, x=-4 * sag)
    p.turn("tower", x=13 * sag, z=8 * sag).move("tower", y=-0.24 * sag)
    slide = keys(i, (0, 0), (1, 0.04), (3, 0.42, ease_in), (5, 1, ease_in), (6, 1.03), (8, 1.12, ease_out))
    drop = keys(i, (0, 0), (2, 0.06), (5, 1, ease_in), (6, 0.88), (7, 1.0, ease_in))
    p.throw("crown", x=0.22 * slide, y=0.10 * sag * (1 - slide) - 1.00 * drop, z=1.02 * slide,
            turn=(104 * keys(i, (0, 0), (2, 0.06), (5, 0.92, ease_in), (8, 1)), 0, -14 * slide))
    for k, (away, spin) in enumerate((((0.55, 0, 0.10), 110), ((-0.50, 0, 0.35), -95))):
        fall = keys(i, (0, 0), (2, 0), (5, 1, ease_in))
        out = keys(i, (0, 0), (1, 0.05), (5, 0.9, linear), (8, 1, ease_out))
        p.throw(f"merlon{(1, 5)[k]}", away[0] * out, 0.25 * (out - fall) - 2.05 * fall, away[2] * out,
                (spin * out * 0.8, 0, -spin * out))
    p.turn("shield", x=-78 * keys(i, (0, 0), (2, 0.05), (5, 1, ease_in), (6, 0.93), (7, 1)))
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"sponson.{side}", z=-sign * 12 * sag, x=-5 * sag).turn(f"cannon.{side}", x=-13 * sag)
        p.turn(f"track.{side}", z=-sign * 9 * sag).move(f"track.{side}", x=sign * 0.05 * sag)


def castle(size):
    """The army's mark: a small tower, about `size` high."""
    points = [(-5, -6), (5, -6), (4, -3), (3, 2), (5, 3), (5, 6), (3, 6), (3, 4.6), (1, 4.6), (1, 6), (-1, 6), (-1, 4.6),
              (-3, 4.6), (-3, 6), (-5, 6), (-5, 3), (-3, 2), (-4, -3)]
    return [(x * size / 12, y * size / 12) for x, y in points]


def decorate(paint, army):
    white = army == "white"
    wall = paint.part("tower") * paint.material("plate")
    paint.courses(wall, (0.78, 0.96, 1.14, 1.32, 1.50), 10)
    crown = paint.part("crown") * paint.material("plate")
    paint.courses(crown * (1 - paint.facing(y=1)), (1.885, 1.96, 2.035), 12, 0.012)
    blank = paint.part("shield", "sponson", "hull", "fender", "engine", "merlon")
    paint.lines(paint.inset(0.045, 0.011) * blank * paint.material("plate", "trim"))
    tops = paint.part("merlon") * paint.facing(y=1)
    paint.lay(tops, "edge", 0.8 if white else 0.5)
    paint.lay(tops * (1 - paint.inset(0.02)), "metal", 0.9 if white else 0.4)
    paint.lay(paint.band("y", 2.07, 0.05) * paint.part("merlon"), "metal", 0.9)
    paint.lay(paint.part("fender") * paint.inset(0.03), "stripe" if white else "trim", 0.0 if white else 0.7)

    for heading in SLITS:
        out = rotation(y=heading) @ (0, 0, 1)
        across = rotation(y=heading) @ (1, 0, 0)
        u, v, here = paint.sheet((0.53 * out[0], 1.30, 0.53 * out[2]), across, (0, 1, 0))
        here = here * paint.part("tower")
        cross = np.maximum(paint.soft(abs(u), 0.030) * paint.soft(abs(v), 0.14),
                           paint.soft(abs(u), 0.085) * paint.soft(abs(v - 0.035), 0.026))
        rim = np.maximum(paint.soft(abs(u), 0.058) * paint.soft(abs(v), 0.168),
                         paint.soft(abs(u), 0.113) * paint.soft(abs(v - 0.035), 0.054))
        paint.lay(rim * here, "metal").lamps(cross * here)
    deck = np.hypot(paint.pos[:, :, 0], paint.pos[:, :, 2])
    floor = paint.part("crown") * paint.material("dark") * paint.facing(y=1)
    paint.lay(floor * paint.soft(abs(deck - 0.50), 0.035), "metal", 0.8)
    paint.lay(floor * paint.soft(abs(deck - 0.36), 0.016), "stripe", 0.7)

    face, up = (0, 1.0, -0.74), (0, 1, 0)
    if white:
        paint.outline(castle(0.27), face, (-1, 0, 0), up, "stripe", 0.95, 0.3, ("shield",))
        for x in (-0.33, 0.33):
            paint.outline([(-0.025, -0.28), (0.025, -0.28), (0.025, 0.26), (-0.025, 0.26)], (x, 1.0, -0.74), (-1, 0, 0), up,
                          "stripe", 0.9, 0.3, ("shield",))
        paint.text("R1", (-0.2, 0.72, -0.7), (-1, 0, 0), up, 0.075, depth=0.3, parts=("shield",))
        paint.outline([(-0.30, -0.03), (0.22, -0.03), (0.22, 0.03), (-0.30, 0.03)], (1.4, 0.80, 0.14), (0, 0, -1), up,
                      "stripe", 0.9, 0.3, ("sponson",))
        paint.text("XX", (1.4, 0.965, 0.24), (0, 0, -1), up, 0.085, depth=0.3, parts=("sponson",))
        paint.outline(castle(0.15), (0, 0.98, 0.8), (1, 0, 0), up, "stripe", 0.9, 0.3, ("engine",))
    else:
        for dy in (-0.20, -0.10, 0.20):
            paint.outline([(-0.40, dy - 0.10), (0, dy), (0.40, dy - 0.10), (0.40, dy - 0.05), (0, dy + 0.05), (-0.40, dy - 0.05)],
                          face, (-1, 0, 0), up, "mark", 0.85, 0.3, ("shield",))
        paint.outline(castle(0.22), face, (-1, 0, 0), up, "dark", 0.9, 0.3, ("shield",))
        paint.text("0-0", (1.4, 0.965, 0.24), (0, 0, -1), up, 0.10, depth=0.3, parts=("sponson",))
        paint.hazard(paint.part("sponson") * paint.above("z", -0.24) * (1 - paint.above("z", -0.12)), (0, 0.7, 0.7), 0.07)
        paint.text("04", (0, 0.98, 0.8), (1, 0, 0), up, 0.11, depth=0.3, parts=("engine",))
    paint.hazard(paint.part("hull") * paint.facing(z=-1, least=0.5) * (1 - paint.above("y", 0.33)), (0.7, 0.7, 0), 0.12,
                 "stripe", 0.8)
    for angle in range(0, 360, 30):
        out = rotation(y=angle + 15) @ (0, 0, 1)
        paint.rivets([(0.80 * out[0], 2.0, 0.80 * out[2])], 0.018, paint.part("crown"))
    return {"spill": 0.10, "gain": 1.15, "wear": 1.0 if white else 0.75}


if __name__ == "__main__":
    rook = build()
    print("triangles", rook.triangles())
    rook.clip("stand", 16, stand).clip("run", RUN_FRAMES, run).clip("damage", 7, damage).clip("attack", 10, attack)
    rook.clip("death", 24, death, ground=True)
    baked = rook.bake()
    write_pictures(rook, baked, decorate)
    rook.write(baked.uv)

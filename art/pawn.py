"""The pawn: a foot soldier with a ball head on a round collar, two guns beside its cheeks, short strong legs."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

HEAD = (0, 1.64, 0)
HEAD_R = 0.36
MUZZLES = {"R": (0.375, 1.44, -0.21), "L": (-0.335, 1.44, -0.21)}
HIP, KNEE, ANKLE = (0.19, 0.84, 0.02), (0.26, 0.46, -0.13), (0.31, 0.13, 0.07)
SPEED = 2.5


def skeleton():
    rig = Rig().bone("root", (0, 0, 0)).bone("body", (0, 0.84, 0), "root").bone("chest", (0, 0.95, 0.02), "body")
    rig.bone("collar", (0, 1.24, 0), "chest").bone("head", HEAD, "collar")
    for side, sign in (("R", 1), ("L", -1)):
        rig.bone(f"gun.{side}", MUZZLES[side], "collar").bone(f"ear.{side}", HEAD, "head")
        hip, knee, ankle = ((sign * x, y, z) for x, y, z in (HIP, KNEE, ANKLE))
        rig.leg(side, f"thigh.{side}", f"shin.{side}", f"foot.{side}", "body", hip, knee, ankle)
        rig.bone(f"tasset.{side}", (sign * 0.20, 0.90, 0), "body")
    return rig


def gun(mouth):
    x, y, z = mouth
    barrel = lathe([(0.042, 0), (0.042, 0.14), (0.066, 0.17), (0.066, 0.27), (0.042, 0.27), (0, 0.22)], 7, close=False,
                   bands=["chrome", "metal", "metal", "metal", "dark"]).rotate(x=-90).move(x, y, z + 0.27)
    breech = prism(chamfered(0.155, 0.18, 0.045), 0.28, back=0.8).move(x, y - 0.005, z + 0.27)
    mount = box(0.10, 0.12, 0.17).drop(lambda c, n: abs(n[1]) > 0.9).move(x * 0.92, y - 0.13, z + 0.26).material("dark")
    return barrel + breech + mount


def torso(figure):
    ruff = lathe([(0.20, 1.19), (0.43, 1.225), (0.505, 1.265), (0.505, 1.305), (0.41, 1.32), (0.17, 1.345)], 13, close=False,
                 bands=["dark", "metal", "metal", "plate", "plate"])
    figure.part("collar", ruff, "collar", bevel=0.012, smooth=30)
    hull = lathe([(0.17, 0.86), (0.27, 0.97), (0.36, 1.11), (0.31, 1.225)], 9, start=20, close=False,
                 bands=["trim", "plate", "plate"]).scale(1.0, 1, 0.86)
    figure.part("torso", hull, "chest", bevel=0.02, smooth=33)
    breast = plate([(-0.17, 0.14), (-0.20, 0.02), (-0.09, -0.17), (0.09, -0.17), (0.20, 0.02), (0.17, 0.14)], 0.08, 0.03)
    breast = breast.drop(lambda c, n: n[2] < -0.9).rotate(y=180).rotate(x=-7).move(0, 1.07, -0.30)
    figure.part("breast", breast, "chest", bevel=0.012)
    pelvis = prism([(-0.21, 0.07), (-0.12, -0.11), (0.12, -0.11), (0.21, 0.07), (0.12, 0.10), (-0.12, 0.10)], 0.26)
    figure.part("pelvis", pelvis.move(0, 0.83, 0.01), "body", material="metal", bevel=0.015)
    tasset = plate([(-0.10, 0.10), (-0.13, -0.10), (-0.05, -0.17), (0.09, -0.12), (0.10, 0.10)], 0.05)
    figure.pair("tasset", tasset.rotate(x=-12).rotate(y=62).move(0.285, 0.83, 0.03), "tasset", bevel=0.01)
    pack = prism([(-0.20, -0.17), (0.20, -0.17), (0.23, 0.02), (0.15, 0.15), (-0.15, 0.15), (-0.23, 0.02)], 0.22, inset=0.05,
                 bevel=0.06).drop(lambda c, n: n[2] < -0.9)
    tank = lathe([(0.04, -0.16), (0.07, -0.12), (0.07, 0.10), (0.03, 0.15)], 6).move(0.235, 1.04, 0.33)
    figure.part("pack", pack.move(0, 1.05, 0.34), "chest", material="trim", bevel=0.015, detail=join(
        vent(0.20, 0.10, 4, 0.02).move(0, 0.98, 0.445), rivets([(x, 1.15, 0.44) for x in (-0.13, 0.13)], (0, 0, 1), 0.018)))
    for side, sign in (("R", 1), ("L", -1)):
        figure.part(f"tank.{side}", tank if sign > 0 else tank.move(-0.47), "chest", material="metal", bevel=0.01,
                    like=None if sign > 0 else "tank.R")


def legs(figure):
    thigh = prism([(-0.10, -0.09), (0.10, -0.09), (0.12, 0.03), (0.07, 0.12), (-0.07, 0.12), (-0.12, 0.03)], 0.36, front=0.78)
    figure.pair("thigh", thigh.rotate(x=90).move(0, 0.18, 0).aim(HIP, KNEE), "thigh", material="metal", bevel=0.015)
    cap = prism([(-0.09, -0.10), (0.09, -0.10), (0.12, 0.02), (0.06, 0.12), (-0.06, 0.12), (-0.12, 0.02)], 0.16, front=0.72)
    figure.pair("knee", cap.rotate(y=180).rotate(x=-8).move(KNEE[0], KNEE[1] + 0.01, KNEE[2] - 0.035), "shin", material="trim",
                bevel=0.015)
    greave = prism([(-0.075, 0.19), (-0.15, -0.10), (-0.17, -0.17), (0.17, -0.17), (0.15, -0.10), (0.075, 0.19)], 0.27, front=0.80,
                   back=0.66).rotate(x=-24).move(ANKLE[0] - 0.02, 0.30, -0.02)
    figure.pair("greave", greave, "shin", bevel=0.02, detail=join(
        vent(0.12, 0.10, 3, 0.015).rotate(x=-24).move(ANKLE[0] - 0.02, 0.25, 0.125)))
    foot = prism([(-0.12, -0.25), (0.12, -0.25), (0.18, -0.10), (0.16, 0.17), (0.09, 0.22), (-0.09, 0.22), (-0.16, 0.17),
                  (-0.18, -0.10)], 0.15, front=0.62).rotate(x=-90).move(ANKLE[0], 0.075, ANKLE[2] - 0.06)
    figure.pair("foot", foot, "foot", bevel=0.02)


def build():
    figure = Figure("pawn", 0.27, skeleton(), seed=11)
    figure.part("head", ball(HEAD_R, 12, 7).move(*HEAD), "head", bevel=0.0, smooth=50, density=1.2)
    bolt = lathe([(0.105, 0), (0.085, 0.045), (0.05, 0.05), (0, 0.03)], 7, close=False).rotate(z=-90)
    figure.pair("ear", bolt.move(HEAD_R - 0.02, HEAD[1] + 0.02, 0), "ear", material="metal", bevel=0.008)
    torso(figure)
    hose = tube(curve([(-0.10, 1.18, 0.38), (-0.14, 1.40, 0.46), (-0.10, 1.52, 0.32)], 2), 0.03, 4, caps=False)
    figure.part("hose", hose, "collar", material="rubber", bevel=0.0, smooth=60)
    for side in ("R", "L"):
        figure.part(f"gun.{side}", gun(MUZZLES[side]), f"gun.{side}", bevel=0.012, like=None if side == "R" else "gun.R")
    legs(figure)
    return figure


def stand(p, i):
    """It breathes and looks about, one way and the other, with a start in between."""
    p.move("body", y=-0.014 + 0.014 * wave(i, 16))
    look = keys(i, (0, 0), (3, 0), (5, 22, overshoot), (8, 22), (10, -18, overshoot), (13, -18), (16, 0))
    p.turn("head", y=look, x=2.5 * wave(i, 16, 0.1), z=-0.15 * look)
    p.turn("chest", y=look * 0.22, x=1.2 * wave(i, 16, 0.2))
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"tasset.{side}", z=sign * 1.5 * wave(i, 16, 0.4))
    p.plant("R").plant("L")


def run(p, i):
    """Three quick double steps."""
    for side, offset, sign in (("R", 0.0, 1), ("L", 0.5, -1)):
        z, y, pitch = stride(i, 4, SPEED, offset, 0.5, lift=0.17)
        p.plant(side, 0, y, z, pitch=20 * pitch)
        p.turn(f"tasset.{side}", x=8 * wave(i, 4, offset), z=sign * (6 if i % 2 else 1))
        p.move(f"gun.{side}", y=0.012 if i % 2 else -0.008)
    p.move("body", y=-0.11 if i % 2 == 0 else -0.03, z=-0.02)
    p.turn("body", x=-8, y=7 * wave(i, 4, 0.25), z=3.5 * wave(i, 4))
    p.turn("chest", y=-11 * wave(i, 4, 0.25), x=-2 if i % 2 == 0 else 1)
    p.turn("head", x=8 if i % 2 == 0 else 5, y=3 * wave(i, 12) + 4 * wave(i, 4, 0.25))


def damage(p, i):
    back = keys(i, (0, 0), (1, 1, ease_out), (3, 0.25), (5, -0.14), (6, 0))
    p.move("body", z=0.15 * back, y=-0.08 * abs(back))
    p.turn("body", x=11 * back).turn("chest", x=13 * back, y=12 * back).turn("head", x=17 * back, y=-15 * back, z=6 * back)
    p.plant("R", z=keys(i, (0, 0), (1, 0.12), (4, 0.12), (6, 0)), y=keys(i, (0, 0), (4, 0), (5, 0.05), (6, 0)))
    p.plant("L")


def attack(p, i):
    """Right and left, a quarter of a second apart: frame 1 and 2.5; a braced crouch, then it shakes itself straight."""
    right, left = kick(i, 1, 1.0, 0.9), kick(i, 2, 0.7, 1.0) + kick(i, 3, 0.4, 0.9)
    brace = keys(i, (0, 0), (1, 1, ease_out), (4, 0.85), (6, -0.1), (7, 0))
    p.move("gun.R", z=0.15 * right).move("gun.L", z=0.15 * left)
    p.move("body", y=-0.07 * abs(brace), z=0.03 * (right + left))
    p.turn("body", x=-6 * brace).turn("chest", x=5 * (right + left), y=-11 * right + 11 * left)
    p.turn("head", x=3 * brace, y=8 * right - 8 * left)
    p.plant("R").plant("L")


def death(p, i):
    """Hit off its feet: it sits down hard, falls on its back, and the head comes off, hops and rolls aside."""
    sit = keys(i, (0, 0), (1, 0.25, ease_out), (3, 1, ease_in), (4, 0.92), (5, 1))
    back = keys(i, (0, 0), (2, 0.1), (5, 1, ease_in), (6, 0.94), (7, 1))
    p.move("body", z=0.30 * sit).turn("body", x=18 * sit + 58 * back, z=5 * back)
    p.turn("chest", x=-8 * sit + 10 * back, y=8 * back)
    p.turn("thigh.R", x=38 * sit - 26 * back, z=9 * back).turn("thigh.L", x=30 * sit - 30 * back, z=-12 * back)
    p.turn("shin.R", x=-50 * sit + 40 * back).turn("shin.L", x=-20 * sit + 4 * back)
    p.turn("foot.R", x=8 * sit + 20 * back).turn("foot.L", x=-12 * sit + 20 * back)
    p.turn("gun.R", z=-30 * back).turn("gun.L", z=16 * back)
    p.turn("collar", x=8 * back)
    if i > 1:
        away = keys(i, (1, 0), (4, 0.55, linear), (8, 0.92, ease_out), (12, 1, ease_out))
        height = keys(i, (1, 0), (2, 0.16, ease_out), (4, -1.28, ease_in), (5, -1.02, ease_out), (6, -1.28, ease_in),
                      (7, -1.22), (8, -1.28))
        p.throw("head", x=0.62 * away, y=height, z=0.10 + 0.62 * away, turn=(250 * away, 35 * away, -40 * away))


def decorate(paint, army):
    white = army == "white"
    x, y, z = HEAD
    head = paint.part("head")
    front = head * paint.facing(z=-1, least=0.25)
    paint.lay(paint.above("y", y + 0.17) * head, "trim", 0.0 if white else 0.8)
    paint.lines(paint.band("y", y + 0.175, 0.012) * head)
    paint.lines(paint.band("y", y - 0.13, 0.012) * head)
    back = head * (1 - paint.facing(z=-1, least=0.0))
    paint.lines(paint.band("x", 0.0, 0.011) * back * paint.above("y", y - 0.13))
    u, v = abs(paint.pos[:, :, 0]), paint.pos[:, :, 1] - y - 0.035
    slot = paint.soft(np.maximum(u / 0.26, abs(v) / (0.075 if white else 0.062)), 1.0)
    paint.lay(paint.soft(np.maximum(u / 0.285, abs(v) / 0.105), 1.0) * front, "metal", 0.95)
    paint.lay(slot * front, "dark")
    if white:
        paint.lamps(paint.soft(abs(v), 0.030) * paint.soft(u, 0.19) * front)
    else:
        paint.lamps(paint.soft(abs(v + 0.06 * (u - 0.12)), 0.026) * paint.soft(abs(u - 0.125), 0.068) * front)
    for k in range(3):
        paint.lay(paint.band("y", y - 0.19 - 0.035 * k, 0.016) * paint.soft(u, 0.09 - 0.015 * k) * front, "dark", 0.9)
    up, ahead, behind = (0, 1, 0), (-1, 0, 0), (1, 0, 0)
    crown = paint.facing(y=1, least=0.0) * head
    if white:
        paint.lay(paint.soft(abs(paint.pos[:, :, 0]), 0.045) * crown * paint.above("y", y + 0.185), "stripe", 0.95)
        paint.lay(paint.band("y", y + 0.205, 0.022) * head, "stripe", 0.95)
    else:
        paint.lay(paint.soft(abs(abs(paint.pos[:, :, 0]) - 0.075), 0.022) * crown * paint.above("y", y + 0.185), "mark", 0.9)
    paint.text("07" if white else "P4", (0, y - 0.01, 0.34), behind, up, 0.15, "stripe" if white else "mark", 0.9, 0.2, ("head",))

    plates = paint.material("plate", "trim")
    paint.lines(paint.inset(0.035, 0.010) * paint.part("greave", "foot", "breast", "tasset", "pack", "knee") * plates)
    collar = paint.part("collar") * paint.material("plate")
    radius = np.hypot(paint.pos[:, :, 0], paint.pos[:, :, 2])
    paint.lines(paint.soft(abs(radius - 0.40), 0.006) * collar * paint.facing(y=1))
    if white:
        paint.lay(paint.soft(abs(radius - 0.46), 0.018) * collar * paint.facing(y=1), "stripe", 0.95)
    else:
        angle = np.arctan2(paint.pos[:, :, 0], paint.pos[:, :, 2])
        blocks = np.abs(angle / np.radians(24) - np.floor(angle / np.radians(24)) - 0.5) < 0.25
        paint.lay(paint.soft(abs(radius - 0.452), 0.038) * collar * paint.facing(y=1) * blocks, "mark", 0.85)
    paint.rivets([(0.36 * np.sin(a), 1.327, 0.36 * np.cos(a)) for a in np.radians(np.arange(0, 360, 36))], 0.014, collar)
    torso = paint.part("torso")
    paint.lines(paint.band("y", 1.10, 0.011) * torso)
    pawn = [(-5, -6), (5, -6), (4, -4), (1.6, -1.5), (1.4, 1), (2.6, 3.4), (1.5, 5.6), (-1.5, 5.6), (-2.6, 3.4), (-1.4, 1),
            (-1.6, -1.5), (-4, -4)]
    paint.outline([(a * 0.014, b * 0.014) for a, b in pawn], (0, 1.075, -0.35), ahead, up, "stripe" if white else "mark", 0.95, 0.2,
                  ("breast",))
    paint.text("R-07" if white else "IV", (0, 1.115, 0.45), behind, up, 0.05 if white else 0.065, parts=("pack",))
    lamps = [(sx, 1.115, 0.45) for sx in (-0.155, 0.155)]
    for lamp_at in lamps:
        paint.lamps(paint.near(lamp_at, 0.03) * paint.part("pack"))
    greave = paint.part("greave")
    if white:
        paint.lay(greave * paint.band("y", 0.235, 0.035) * paint.facing(z=-1, least=0.3), "stripe", 0.9)
        paint.lay(paint.part("tasset") * paint.inset(0.05), "stripe", 0.85)
    else:
        paint.hazard(greave * paint.facing(z=-1, least=0.3) * (1 - paint.above("y", 0.26)), (0.7, 0.7, 0), 0.09)
        paint.lay(paint.part("tasset") * paint.inset(0.05), "trim", 0.9)
    return {"spill": 0.08, "wear": 1.0 if white else 0.75}


if __name__ == "__main__":
    pawn = build()
    print("triangles", pawn.triangles())
    pawn.clip("stand", 16, stand).clip("run", 12, run).clip("damage", 7, damage).clip("attack", 8, attack)
    pawn.clip("death", 24, death, ground=True)
    baked = pawn.bake()
    write_pictures(pawn, baked, decorate)
    pawn.write(baked.uv)

"""The bishop: a tall walker under a mitre with a glowing slit, a mantle, robe plates and two gatling guns."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

SPEED = 2.8
MOUTHS = {"R": (0.525, 1.98, -0.65), "L": (-0.525, 1.98, -0.65)}
HIP, KNEE, ANKLE = (0.17, 1.14, 0.03), (0.22, 0.65, -0.13), (0.25, 0.13, 0.06)
SLIT = np.array((0.02, 2.42, 0.0))
TILT = 38.0  # of the slit, degrees
GAP = 0.085


def skeleton():
    rig = Rig().bone("root", (0, 0, 0)).bone("body", (0, 1.15, 0), "root").bone("chest", (0, 1.38, 0), "body")
    rig.bone("mantle", (0, 1.85, 0), "chest").bone("head", (0, 2.02, 0), "mantle").bone("cap", (0, 2.45, 0), "head")
    rig.bone("lappets", (0, 2.10, 0.25), "head")
    rig.bone("robe.front", (0, 1.32, -0.2), "body").bone("robe.back", (0, 1.32, 0.2), "body")
    for side, sign in (("R", 1), ("L", -1)):
        hip, knee, ankle = ((sign * x, y, z) for x, y, z in (HIP, KNEE, ANKLE))
        rig.leg(side, f"thigh.{side}", f"shin.{side}", f"foot.{side}", "body", hip, knee, ankle)
        rig.bone(f"robe.{side}", (sign * 0.2, 1.32, 0), "body")
        x, y, z = MOUTHS[side]
        rig.bone(f"gun.{side}", (x, y, 0.1), "mantle").bone(f"barrels.{side}", (x, y, 0), f"gun.{side}")
    return rig


def head(figure):
    """The mitre in two pieces about the slit, in which a lit core shows; a circlet, a finial, two lappets behind."""
    shape = lathe([(0.16, 2.0), (0.31, 2.09), (0.37, 2.24), (0.355, 2.37), (0.275, 2.53), (0.15, 2.665), (0.05, 2.74), (0, 2.745)],
                  12, start=15)
    up = rotation(z=TILT) @ (0, 1, 0)
    figure.part("face", shape.clip(SLIT - up * GAP / 2, up, cap="light"), "head", bevel=0.012, smooth=45, density=1.2)
    upper = shape.clip(SLIT + up * GAP / 2, -up, cap="light").scale(0.90, 1, 0.90)  # the lit ledge below shows from above
    figure.part("mitre", upper, "cap", bevel=0.012, smooth=45, density=1.2)
    figure.part("core", lathe([(0.22, 2.18), (0.265, 2.36), (0.13, 2.56)], 8, close=False), "head", material="light", bevel=0)
    figure.part("finial", ball(0.062, 7, 4).move(0, 2.768, 0), "cap", material="metal", bevel=0, smooth=60)
    circlet = lathe([(0.28, 2.03), (0.345, 2.075), (0.37, 2.14), (0.33, 2.155)], 12, start=15, close=False)
    figure.part("circlet", circlet, "head", material="metal", bevel=0.008, smooth=33)
    lappet = plate([(-0.065, -0.46), (0.0, -0.52), (0.065, -0.46), (0.045, 0.02), (-0.045, 0.02)], 0.03)
    lappet = lappet.drop(lambda c, n: n[1] > 0.9).rotate(x=-13)
    for side, sign in (("R", 1), ("L", -1)):
        figure.part(f"lappet.{side}", lappet.rotate(z=sign * 9).move(sign * 0.105, 2.11, 0.37), "lappets", bevel=0.006)


def panel(arc, centre, low, r_low, swell=0.40):
    """A robe plate about the legs: `arc` degrees wide, centred on a heading (0 is the back, 180 the front)."""
    turned = dict(start=centre - arc / 2, arc=arc, close=False)
    outer = lathe([(r_low, low), (swell, 1.0), (0.27, 1.36)], 3, **turned)
    inner = lathe([(0.24, 1.36), (r_low - 0.045, low)], 3, **turned).material("dark")
    hem = lathe([(r_low - 0.045, low), (r_low, low)], 3, **turned).material("metal")
    return outer + inner + hem


def body(figure):
    mantle = lathe([(0.30, 1.60), (0.475, 1.64), (0.495, 1.69), (0.41, 1.87), (0.25, 1.98), (0.22, 2.07)], 12, start=15, close=False,
                   bands=["dark", "metal", "plate", "plate", "trim"]).scale(1.05, 1, 0.86)
    figure.part("mantle", mantle, "mantle", bevel=0.012, smooth=33)
    torso = lathe([(0.15, 1.34), (0.19, 1.44), (0.31, 1.62), (0.33, 1.70)], 10, close=False,
                  bands=["dark", "trim", "trim"]).scale(1.0, 1, 0.85)
    ribs = join(*[lathe([(0.155 + 0.03 * k, 1.37 + 0.035 * k), (0.185 + 0.03 * k, 1.38 + 0.035 * k)], 16) for k in range(2)])
    figure.part("torso", torso, "chest", bevel=0.015, detail=ribs.material("metal"))
    figure.part("belt", lathe([(0.20, 1.16), (0.30, 1.27), (0.30, 1.36), (0.15, 1.42)], 10, close=False,
                              bands=["dark", "metal", "metal"]), "body", bevel=0.012)
    buckle = plate([(-0.10, -0.09), (0.10, -0.09), (0.10, 0.05), (0, 0.11), (-0.10, 0.05)], 0.06, 0.02).drop(
        lambda c, n: n[2] < -0.9).rotate(y=180)
    figure.part("buckle", buckle.move(0, 1.30, -0.30), "body", material="metal", bevel=0.008)
    cross = plate([(-0.10, 0.16), (-0.16, 0.05), (-0.055, -0.20), (0.055, -0.20), (0.16, 0.05), (0.10, 0.16)], 0.07, 0.025).drop(
        lambda c, n: n[2] < -0.9).rotate(y=180).rotate(x=-18)
    figure.part("pectoral", cross.move(0, 1.60, -0.335), "chest", bevel=0.01)
    figure.part("robe.front", panel(56, 180, 0.60, 0.50), "robe.front", bevel=0.01)
    figure.part("robe.back", panel(84, 0, 0.44, 0.56, 0.42), "robe.back", bevel=0.01)
    figure.pair("robe", panel(66, 90, 0.76, 0.53), "robe", bevel=0.01)
    pack = prism([(-0.17, -0.20), (0.17, -0.20), (0.21, 0.05), (0.13, 0.22), (-0.13, 0.22), (-0.21, 0.05)], 0.22, inset=0.05,
                 bevel=0.07).drop(lambda c, n: n[2] < -0.9).move(0, 1.62, 0.36)
    figure.part("pack", pack, "chest", material="trim", detail=vent(0.18, 0.18, 4).move(0, 1.58, 0.465))


def gun(figure):
    barrel = tube([(0, 0.058, 0.60), (0, 0.058, 0)], 0.030, 4).drop(lambda c, n: n[2] > 0.9)
    barrels = join(*[barrel.rotate(z=60 * i) for i in range(6)]).material("metal")
    clamp = lathe([(0.05, 0), (0.105, 0.01), (0.105, 0.06), (0.05, 0.07)], 8, close=False).rotate(x=90).move(0, 0, 0.09)
    body_outline = [(-0.13, -0.10), (-0.06, -0.15), (0.08, -0.15), (0.15, -0.06), (0.15, 0.08), (0.08, 0.15), (-0.06, 0.15),
                    (-0.13, 0.08)]
    pod = prism(body_outline, 0.50, back=0.78, front=0.85).move(MOUTHS["R"][0], 1.98, 0.19)
    feed = tube(curve([(0.50, 1.86, 0.30), (0.44, 1.70, 0.42), (0.22, 1.62, 0.42)], 2), 0.05, 5, caps=False).material("metal")
    figure.pair("gun", pod, "gun", bevel=0.015, detail=join(
        vent(0.16, 0.12, 3).rotate(y=90).move(0.665, 1.99, 0.22), rivets(row((0.62, 2.105, 0.05), (0.62, 2.105, 0.35), 3),
                                                                          (0.3, 1, 0), 0.018)))
    strut = box(0.16, 0.16, 0.18).move(0.44, 1.84, 0.12)
    figure.pair("strut", strut + feed, "gun", material="dark", bevel=0.01)
    for side in ("R", "L"):
        figure.part(f"barrels.{side}", (barrels + clamp.material("dark")).move(*MOUTHS[side]), f"barrels.{side}", bevel=0.0,
                    like=None if side == "R" else "barrels.R")


def legs(figure):
    thigh = prism([(-0.09, -0.09), (0.09, -0.09), (0.11, 0.0), (0.07, 0.11), (-0.07, 0.11), (-0.11, 0.0)], 0.50, front=0.72)
    figure.pair("thigh", thigh.rotate(x=90).move(0, 0.25, 0).aim(HIP, KNEE), "thigh", material="metal", bevel=0.015)
    knee = lathe([(0.06, 0), (0.085, 0.04), (0.085, 0.14), (0.06, 0.18)], 7).rotate(z=-90).move(KNEE[0] - 0.09, KNEE[1], KNEE[2])
    figure.pair("knee", knee, "shin", material="metal", bevel=0.01)
    shin = prism([(-0.06, 0.28), (-0.12, 0.14), (-0.09, -0.22), (-0.12, -0.32), (0.12, -0.32), (0.09, -0.22), (0.12, 0.14),
                  (0.06, 0.28)], 0.21, front=0.80, back=0.62).rotate(x=-19).move(KNEE[0] + 0.015, 0.40, -0.04)
    figure.pair("shin", shin, "shin", bevel=0.018)
    foot = prism([(-0.05, -0.30), (0.05, -0.30), (0.13, -0.10), (0.11, 0.18), (0.06, 0.22), (-0.06, 0.22), (-0.11, 0.18),
                  (-0.13, -0.10)], 0.14, front=0.58).rotate(x=-90).move(ANKLE[0], 0.07, ANKLE[2] - 0.05)
    figure.pair("foot", foot, "foot", bevel=0.015)


def build():
    figure = Figure("bishop", 0.35, skeleton(), seed=37)
    head(figure)
    body(figure)
    gun(figure)
    legs(figure)
    return figure


def stand(p, i):
    """It breathes, bows its head a little, looks to one side and to the other; the robe follows late."""
    p.move("body", y=-0.012 + 0.012 * wave(i, 16))
    look = keys(i, (0, 0), (2, 0), (5, -16), (7, -16), (10, 13), (13, 13), (16, 0))
    p.turn("head", x=keys(i, (0, 0), (4, 5), (8, -3), (12, 4), (16, 0)), y=look).turn("lappets", x=2 * wave(i, 8, 0.2))
    p.turn("chest", y=0.25 * look, x=1.0 * wave(i, 16, 0.2))
    p.turn("robe.front", x=1.5 * wave(i, 16, 0.1)).turn("robe.back", x=-1.5 * wave(i, 16, 0.1))
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"gun.{side}", x=2 * wave(i, 16, 0.3 * sign))
    p.plant("R").plant("L")


def run(p, i):
    """Long brisk steps; the robe is blown back, the mantle turns against the hips."""
    for side, offset in (("R", 0.0), ("L", 0.5)):
        z, y, pitch = stride(i, 5, SPEED, offset, 0.5, lift=0.20)
        p.plant(side, 0, y, z, pitch=22 * pitch)
        p.turn(f"robe.{side}", x=10 * wave(i, 5, offset), z=(4 if side == "R" else -4))
    bob = wave(i, 2.5, -0.25)
    p.move("body", y=-0.11 + 0.03 * bob).turn("body", x=-7, y=8 * wave(i, 5, 0.25), z=2.5 * wave(i, 5))
    p.turn("chest", y=-13 * wave(i, 5, 0.25), x=-2).turn("head", x=8, y=5 * wave(i, 5, 0.25))
    p.turn("lappets", x=18 + 5 * wave(i, 2.5))
    p.turn("robe.front", x=-26 + 9 * wave(i, 2.5)).turn("robe.back", x=24 + 8 * wave(i, 2.5, 0.3))


def damage(p, i):
    back = keys(i, (0, 0), (1, 1, ease_out), (3, 0.25), (5, -0.14), (6, 0))
    p.move("body", z=0.16 * back, y=-0.07 * abs(back)).turn("body", x=8 * back)
    p.turn("chest", x=11 * back, y=-10 * back).turn("head", x=15 * back, z=6 * back)
    p.turn("robe.front", x=-18 * back).turn("robe.back", x=8 * back).turn("lappets", x=25 * max(0.0, back))
    p.plant("R").plant("L", z=keys(i, (0, 0), (1, 0.12), (4, 0.12), (6, 0)), y=keys(i, (0, 0), (4, 0), (5, 0.05), (6, 0)))


def attack(p, i):
    """Six shots, right and left by turns, 0.19 s apart: about one for each frame; the barrels spin up and run down."""
    brace = keys(i, (0, 0), (1, 1, ease_out), (7, 0.9), (9, 0))
    p.move("body", y=-0.09 * brace, z=0.03 * brace).turn("body", x=-5 * brace)
    for side, sign, shots in (("R", 1, (0.4, 2.3, 4.6)), ("L", -1, (1.1, 3.4, 5.7))):
        shake = sum(kick(i, shot, 1.0, 0.6) for shot in shots)
        p.turn(f"barrels.{side}", z=sign * keys(i, (0, 0), (1, 40, ease_in), (7, 330, linear), (9, 360, ease_out)))
        p.move(f"gun.{side}", z=0.09 * min(1.0, shake)).turn(f"gun.{side}", x=3 * min(1.0, shake))
        p.turn("chest", y=-sign * 5 * min(1.0, shake))
    p.turn("head", x=5 * brace).turn("robe.front", x=-6 * brace).turn("lappets", x=8 * brace)
    p.plant("R").plant("L")


def death(p, i):
    """The knees give way, it sways, topples on its face, and the mitre's crown rolls away."""
    kneel = keys(i, (0, 0), (1, 0.15), (3, 1, ease_in), (4, 0.95), (5, 1))
    topple = keys(i, (0, 0), (3, 0), (4, 0.12), (7, 1, ease_in), (8, 0.95), (9, 1))
    p.move("body", z=-0.10 * kneel - 0.25 * topple).turn("body", x=10 * kneel * (1 - topple) - 80 * topple, z=9 * topple)
    p.turn("chest", x=14 * kneel * (1 - topple) + 6 * topple, y=14 * topple).turn("head", x=20 * kneel * (1 - topple) + 18 * topple)
    for side, splay in (("R", 5), ("L", -9)):
        p.turn(f"thigh.{side}", x=28 * kneel - 20 * topple, z=splay * topple)
        p.turn(f"shin.{side}", x=-104 * kneel + 84 * topple)
        p.turn(f"foot.{side}", x=-28 * kneel - 10 * topple)
        p.turn(f"gun.{side}", x=-16 * kneel - 14 * topple)
    p.turn("robe.front", x=42 * kneel - 30 * topple).turn("robe.back", x=-6 * kneel)
    out = keys(i, (0, 0), (5, 0), (7, 0.6, linear), (11, 1, ease_out))
    if i > 5:
        p.throw("cap", x=0.05 + 0.30 * out, y=-1.2 - 1.15 * keys(i, (5, 0), (7, 1, ease_in)), z=-0.95 - 0.45 * out,
                turn=(-100 - 160 * out, 40 * out, 30))


def decorate(paint, army):
    white = army == "white"
    plates = paint.material("plate", "trim")
    paint.lines(paint.inset(0.035, 0.010) * paint.part("gun", "shin", "foot", "pack", "pectoral") * plates)
    robe = paint.part("robe") * paint.material("plate")
    paint.lay((1 - paint.inset(0.030)) * robe, "metal", 0.95)
    paint.lines(paint.inset(0.042, 0.010) * robe)
    mantle = paint.part("mantle") * paint.material("plate")
    angle = np.degrees(np.arctan2(paint.pos[:, :, 0], paint.pos[:, :, 2] / 0.82))
    seams = np.abs((angle / 30) - np.rint(angle / 30)) * np.radians(30) * 0.43
    paint.lines(paint.soft(seams, 0.005) * mantle)
    paint.lines(paint.band("y", 1.765, 0.012) * mantle)

    both = paint.part("mitre", "face")
    paint.lay(paint.soft(abs(paint.pos[:, :, 0]), 0.055) * both, "metal" if white else "trim", 0.95)
    paint.lines(paint.soft(abs(abs(paint.pos[:, :, 0]) - 0.058), 0.005) * both)
    paint.lines(paint.soft(abs(abs(paint.pos[:, :, 2]) - 0.012), 0.005) * both * paint.facing(x=1, least=0.5))
    visor = paint.facing(z=-1, least=0.45) * paint.part("face")
    u, v = paint.pos[:, :, 0], paint.pos[:, :, 1] - 2.225
    slot = paint.soft(np.maximum(abs(u) / 0.20, abs(v - 0.12 * abs(u)) / 0.042), 1.0)
    paint.lay(slot * visor, "dark", 0.95)
    paint.lamps(visor * paint.soft(abs(v - 0.12 * abs(u)), 0.018) * paint.soft(abs(abs(u) - 0.095), 0.055))

    up, front, back = (0, 1, 0), (-1, 0, 0), (1, 0, 0)
    cross = [(-1, -5), (1, -5), (1, 1), (3.5, 1), (3.5, 3), (1, 3), (1, 5), (-1, 5), (-1, 3), (-3.5, 3), (-3.5, 1), (-1, 1)]

    def mark(size, centre, right, tone, parts):
        paint.outline([(x * size / 10, y * size / 10) for x, y in cross], centre, right, up, tone, 0.95, 0.3, parts)

    if white:
        mark(0.30, (0, 0.98, -0.44), front, "stripe", ("robe.front",))
        mark(0.40, (0, 0.86, 0.46), back, "stripe", ("robe.back",))
        mark(0.17, (0, 1.62, -0.37), front, "stripe", ("pectoral",))
        paint.lay(paint.band("y", 1.665, 0.0) * mantle, "stripe")
        paint.text("VII", (0, 1.72, 0.46), back, up, 0.06, parts=("pack",), depth=0.3)
        paint.lay(paint.part("lappet") * paint.facing(z=1) * paint.inset(0.014), "stripe", 0.9)
    else:
        for k in range(3):
            y = 0.62 + 0.13 * k
            for place, parts, right in (((0, y, 0.48), ("robe.back",), back), ((0, y + 0.12, -0.45), ("robe.front",), front)):
                paint.outline([(-0.22, 0.0), (0, 0.10), (0.22, 0.0), (0.22, 0.045), (0, 0.145), (-0.22, 0.045)], place, right, up,
                              "mark", 0.85, 0.3, parts)
        mark(0.17, (0, 1.62, -0.37), front, "mark", ("pectoral",))
        paint.text("B-2", (0, 1.72, 0.46), back, up, 0.065, parts=("pack",), depth=0.3)
        paint.lay(paint.part("lappet") * paint.facing(z=1) * paint.inset(0.014), "trim", 0.9)
        paint.hazard(paint.part("gun") * paint.above("z", -0.07) * (1 - paint.above("z", 0.0)), (0.5, 0.5, 0.7), 0.06)
    for side in (1, -1):
        paint.text("V" if white else "808", (side * 0.69, 2.0, 0.19), (0, 0, -side), up, 0.10, parts=("gun",), depth=0.3)
    paint.lamps(paint.near((0, 1.31, -0.34), 0.045) * paint.part("buckle"))
    paint.rivets([(0.475 * np.sin(a) * 1.05, 1.70, 0.475 * np.cos(a) * 0.86) for a in np.radians(np.arange(0, 360, 30))], 0.015,
                 mantle)
    return {"spill": 0.055, "wear": 1.0 if white else 0.75}


if __name__ == "__main__":
    bishop = build()
    print("triangles", bishop.triangles())
    bishop.clip("stand", 16, stand).clip("run", 10, run).clip("damage", 7, damage).clip("attack", 10, attack)
    bishop.clip("death", 24, death, ground=True)
    baked = bishop.bake()
    write_pictures(bishop, baked, decorate)
    bishop.write(baked.uv)

"""The bishop: a tall walker under a mitre with a glowing slit, a mantle, robe plates and two gatling guns."""

import math
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

SPEED = 2.8
MOUTHS = {"R": (0.525, 1.98, -0.65), "L": (-0.525, 1.98, -0.65)}
HIP, KNEE, ANKLE = (0.17, 1.14, 0.03), (0.22, 0.65, -0.13), (0.25, 0.13, 0.06)
SLIT = (0.0, 2.37, 0.0)
TILT = 32.0  # of the slit, degrees


def skeleton():
    rig = Rig().bone("root", (0, 0, 0)).bone("body", (0, 1.15, 0), "root").bone("chest", (0, 1.38, 0), "body")
    rig.bone("mantle", (0, 1.85, 0), "chest").bone("head", (0, 2.02, 0), "mantle")
    rig.bone("robe.front", (0, 1.32, -0.2), "body").bone("robe.back", (0, 1.32, 0.2), "body")
    for side, sign in (("R", 1), ("L", -1)):
        hip, knee, ankle = ((sign * x, y, z) for x, y, z in (HIP, KNEE, ANKLE))
        rig.leg(side, f"thigh.{side}", f"shin.{side}", f"foot.{side}", "body", hip, knee, ankle)
        rig.bone(f"robe.{side}", (sign * 0.2, 1.32, 0), "body")
        x, y, z = MOUTHS[side]
        rig.bone(f"gun.{side}", (x, y, 0.1), "mantle").bone(f"barrels.{side}", (x, y, 0), f"gun.{side}")
    return rig


def mitre():
    """The head in two pieces about the slit."""
    shape = lathe([(0.15, 2.0), (0.27, 2.10), (0.325, 2.28), (0.29, 2.46), (0.17, 2.64), (0.05, 2.74), (0, 2.75)], 12, start=15)
    up = rotation(z=TILT) @ (0, 1, 0)
    half = up * 0.04
    lower = shape.clip(half * -1 + SLIT, up, cap="dark")
    upper = shape.clip(half + SLIT, -up, cap="dark")
    return lower, upper


def panel(arc, centre, low=0.62, r_low=0.50):
    """A robe plate about the legs: `arc` degrees wide, centred on an angle (0 is the back, 180 the front)."""
    outer = lathe([(r_low, low), (0.40, 1.0), (0.27, 1.36)], 3, start=centre - arc / 2, arc=arc, close=False)
    inner = lathe([(0.24, 1.36), (r_low - 0.05, low)], 3, start=centre - arc / 2, arc=arc, close=False).material("dark")
    hem = lathe([(r_low - 0.05, low), (r_low, low)], 3, start=centre - arc / 2, arc=arc, close=False).material("metal")
    return outer + inner + hem


def build():
    figure = Figure("bishop", 0.35, skeleton(), seed=37)
    lower, upper = mitre()
    figure.part("face", lower, "head", bevel=0.01, smooth=45)
    figure.part("mitre", upper, "head", bevel=0.01, smooth=45)
    figure.part("core", lathe([(0.22, 2.16), (0.245, 2.36), (0.15, 2.58)], 8, close=False), "head", material="light", bevel=0)
    figure.part("finial", ball(0.062, 8, 4).move(0, 2.765, 0), "head", material="metal", bevel=0, smooth=60)
    mantle = lathe([(0.47, 1.66), (0.485, 1.70), (0.40, 1.88), (0.22, 2.0), (0.15, 2.06)], 12, start=15, close=False,
                   bands=["metal", "plate", "plate", "metal"]).scale(1.05, 1, 0.85)
    figure.part("mantle", mantle, "mantle", bevel=0.012, smooth=33)
    torso = lathe([(0.15, 1.34), (0.20, 1.44), (0.31, 1.66), (0.36, 1.80)], 10, close=False,
                  bands=["dark", "plate", "plate"]).scale(1.0, 1, 0.85)
    figure.part("torso", torso, "chest", bevel=0.015)
    figure.part("belt", lathe([(0.22, 1.18), (0.29, 1.28), (0.29, 1.36), (0.16, 1.42)], 10, close=False,
                              bands=["dark", "metal", "metal"]), "body", bevel=0.012)
    figure.part("robe.front", panel(58, 180, 0.66), "robe.front", bevel=0.01)
    figure.part("robe.back", panel(80, 0, 0.50, 0.54), "robe.back", bevel=0.01)
    figure.pair("robe", panel(66, 90, 0.78), "robe", bevel=0.01)
    for side, sign in (("R", 1), ("L", -1)):
        x, y, z = MOUTHS[side]
        barrel = tube([(0, 0.055, 0.62), (0, 0.055, 0)], 0.028, 4)
        barrels = join(*[barrel.rotate(z=60 * i) for i in range(6)]).material("metal")
        clamp = lathe([(0.05, 0), (0.095, 0.01), (0.095, 0.06), (0.05, 0.07)], 8, close=False).rotate(x=90).move(0, 0, 0.10)
        figure.part(f"barrels.{side}", (barrels + clamp.material("dark")).move(x, y, z), f"barrels.{side}", bevel=0.0,
                    like=None if side == "R" else "barrels.R")
    body = prism(chamfered(0.22, 0.26, 0.06), 0.42, front=0.8, inset=0.03, bevel=0.04).move(MOUTHS["R"][0], 1.98, 0.16)
    figure.pair("gun", body, "gun", material="trim", bevel=0.015)
    thigh = prism(chamfered(0.17, 0.20, 0.04), 0.52, front=0.75).rotate(x=90).move(0, 0, 0)
    figure.pair("thigh", thigh.move(0, 0.26, 0).aim(KNEE, HIP), "thigh", material="metal")
    shin = prism([(-0.07, 0.24), (-0.12, -0.20), (-0.08, -0.27), (0.08, -0.27), (0.12, -0.20), (0.07, 0.24)], 0.20, front=0.85,
                 back=0.7).rotate(x=-19).move(KNEE[0] + 0.015, 0.40, -0.03)
    figure.pair("shin", shin, "shin", bevel=0.02)
    foot = prism([(-0.08, -0.26), (0.08, -0.26), (0.13, -0.08), (0.11, 0.20), (-0.11, 0.20), (-0.13, -0.08)], 0.14,
                 front=0.6).rotate(x=-90).move(ANKLE[0], 0.07, ANKLE[2] - 0.05)
    figure.pair("foot", foot, "foot", bevel=0.02)
    pack = prism([(-0.17, -0.18), (0.17, -0.18), (0.20, 0.05), (0.12, 0.20), (-0.12, 0.20), (-0.20, 0.05)], 0.20, inset=0.05,
                 bevel=0.06).move(0, 1.66, 0.33)
    figure.part("pack", pack, "chest", material="trim", detail=vent(0.18, 0.16, 4).move(0, 1.62, 0.43))
    return figure


def stand(p, i):
    p.move("body", y=-0.010 + 0.010 * wave(i, 16))
    nod = keys(i, (0, 0), (4, 4), (9, -3), (16, 0))
    p.turn("head", x=nod, y=keys(i, (0, 0), (4, -9), (8, -9), (11, 8), (14, 8), (16, 0)))
    p.turn("robe.front", x=1.5 * wave(i, 16)).turn("robe.back", x=-1.5 * wave(i, 16))
    p.plant("R").plant("L")


def run(p, i):
    for side, offset in (("R", 0.0), ("L", 0.5)):
        z, y, pitch = stride(i, 5, SPEED, offset, 0.5, lift=0.20)
        p.plant(side, 0, y, z, pitch=20 * pitch)
    p.move("body", y=-0.11 + 0.03 * wave(i, 2.5, 0.0)).turn("body", x=-6, y=7 * wave(i, 5, 0.25))
    p.turn("chest", y=-10 * wave(i, 5, 0.25)).turn("head", x=5, y=4 * wave(i, 5, 0.25))
    p.turn("robe.front", x=-24 + 8 * wave(i, 2.5)).turn("robe.back", x=20 + 8 * wave(i, 2.5, 0.3))


def damage(p, i):
    back = keys(i, (0, 0), (1, 1, ease_out), (3, 0.2), (5, -0.12), (6, 0))
    p.move("body", z=0.15 * back, y=-0.06 * abs(back)).turn("body", x=8 * back)
    p.turn("chest", x=10 * back, y=-8 * back).turn("head", x=13 * back)
    p.turn("robe.front", x=-16 * back).turn("robe.back", x=6 * back)
    p.plant("R").plant("L", z=keys(i, (0, 0), (1, 0.1), (4, 0.1), (6, 0)))


def attack(p, i):
    brace = keys(i, (0, 0), (1, 1), (7, 0.9), (9, 0))
    p.move("body", y=-0.08 * brace).turn("body", x=-4 * brace)
    for side, sign, first in (("R", 1, 0), ("L", -1, 1)):
        p.turn(f"barrels.{side}", z=sign * keys(i, (0, 0), (9, 360), ease=linear))
        shake = 0.06 * brace * (1 if (i + first) % 2 == 0 else 0.2)
        p.move(f"gun.{side}", z=shake)
    p.plant("R").plant("L")


def death(p, i):
    fall = keys(i, (0, 0), (2, 0.15), (6, 0.9, ease_in), (7, 1), (8, 0.97), (9, 1))
    p.move("body", y=-0.85 * fall, z=-0.1 * fall).turn("body", x=-60 * fall, z=18 * fall)
    p.turn("thigh.R", x=65 * fall).turn("thigh.L", x=50 * fall)
    p.turn("shin.R", x=-70 * fall).turn("shin.L", x=-60 * fall)
    p.turn("head", x=-20 * fall)


def decorate(paint, army):
    return {}


if __name__ == "__main__":
    bishop = build()
    print("triangles", bishop.triangles())
    for name, count, pose in (("stand", 16, stand), ("run", 10, run), ("damage", 7, damage), ("attack", 10, attack),
                              ("death", 24, death)):
        bishop.clip(name, count, pose)
    baked = bishop.bake()
    write_pictures(bishop, baked, decorate)
    bishop.write(baked.uv)

"""The pawn: a foot soldier with a ball head on a round collar, two guns beside its cheeks, short strong legs."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

HEAD = (0, 1.645, 0)
HEAD_R = 0.355
GUN_R, GUN_L = (0.375, 1.44, -0.21), (-0.335, 1.44, -0.21)
HIP, KNEE, ANKLE = (0.19, 0.84, 0.02), (0.25, 0.46, -0.13), (0.29, 0.13, 0.07)
SPEED = 2.5


def skeleton():
    rig = Rig().bone("root", (0, 0, 0)).bone("body", (0, 0.84, 0), "root").bone("chest", (0, 0.95, 0.02), "body")
    rig.bone("collar", (0, 1.24, 0), "chest").bone("head", (0, 1.36, 0), "collar")
    rig.bone("gun.R", GUN_R, "collar").bone("gun.L", GUN_L, "collar")
    for side, sign in (("R", 1), ("L", -1)):
        hip, knee, ankle = ((sign * x, y, z) for x, y, z in (HIP, KNEE, ANKLE))
        rig.leg(side, f"thigh.{side}", f"shin.{side}", f"foot.{side}", "body", hip, knee, ankle)
    return rig


def head():
    low = ball(HEAD_R, 12, 7).move(*HEAD)
    return low


def gun(mouth):
    x, y, z = mouth
    barrel = lathe([(0.045, 0), (0.045, 0.2), (0.066, 0.2), (0.066, 0.30), (0.04, 0.30), (0, 0.25)], 8, close=False,
                   bands=["metal", "metal", "metal", "metal", "dark"]).rotate(x=-90).move(x, y, z + 0.30)
    breech = prism(chamfered(0.15, 0.17, 0.04), 0.26, back=0.8).move(x, y - 0.005, z + 0.27)
    mount = box(0.09, 0.14, 0.16).move(x * 0.93, y - 0.12, z + 0.26).material("dark")
    return barrel + breech + mount


def thigh():
    upper = prism(chamfered(0.21, 0.24, 0.05), 0.36, front=0.78, back=1.0).rotate(x=-90)
    return upper.aim((HIP[0] + 0.01, HIP[1] + 0.02, HIP[2] - 0.01), (KNEE[0] + 0.01, KNEE[1], KNEE[2])).move(
        (KNEE[0] - HIP[0]) / 2, (KNEE[1] - HIP[1]) / 2, (KNEE[2] - HIP[2]) / 2)


def build():
    figure = Figure("pawn", 0.27, skeleton(), seed=11)
    figure.part("head", head(), "head", bevel=0.0, smooth=50, density=1.25,
                detail=vent(0.12, 0.06, 3, 0.012).move(0, 1.56, HEAD_R - 0.012))
    ruff = lathe([(0.20, 1.20), (0.44, 1.235), (0.50, 1.27), (0.50, 1.305), (0.40, 1.345), (0.20, 1.375)], 14, close=False,
                 bands=["metal", "metal", "metal", "plate", "plate"])
    figure.part("collar", ruff, "collar", bevel=0.012, smooth=30)
    torso = lathe([(0.17, 0.86), (0.28, 0.98), (0.355, 1.12), (0.30, 1.225)], 10, close=False,
                  bands=["trim", "plate", "plate"]).scale(1.0, 1, 0.88)
    figure.part("torso", torso, "chest", bevel=0.02, smooth=40, detail=rivets(
        [(0.30 * sx, 1.16, -0.10) for sx in (-1, 1)], (0, 0, -1)))
    figure.part("pelvis", prism([(-0.20, 0.06), (-0.13, -0.09), (0.13, -0.09), (0.20, 0.06), (0.12, 0.10), (-0.12, 0.10)],
                                0.26).move(0, 0.83, 0.01), "body", material="metal", bevel=0.015)
    pack = prism([(-0.20, -0.15), (0.20, -0.15), (0.23, 0.02), (0.15, 0.15), (-0.15, 0.15), (-0.23, 0.02)], 0.20, inset=0.05,
                 bevel=0.06).move(0, 1.06, 0.34)
    figure.part("pack", pack, "chest", material="trim", detail=vent(0.20, 0.12, 4, 0.02).move(0, 1.03, 0.44))
    for side, mouth in (("R", GUN_R), ("L", GUN_L)):
        figure.part(f"gun.{side}", gun(mouth), f"gun.{side}", bevel=0.012, like=None if side == "R" else "gun.R")
    figure.pair("thigh", thigh(), "thigh", material="trim")
    knee = lathe([(0.085, 0), (0.105, 0.05), (0.105, 0.15), (0.085, 0.20)], 8).rotate(z=-90).move(KNEE[0] - 0.10, KNEE[1], KNEE[2])
    figure.pair("knee", knee, "shin", material="metal", bevel=0.01)
    greave = prism([(-0.09, 0.17), (-0.15, -0.13), (-0.11, -0.17), (0.11, -0.17), (0.15, -0.13), (0.09, 0.17)], 0.24, front=0.85,
                   back=0.7).rotate(x=-26).move(ANKLE[0] - 0.015, 0.31, -0.02)
    figure.pair("greave", greave, "shin", bevel=0.02)
    foot = prism([(-0.13, -0.23), (0.13, -0.23), (0.17, -0.10), (0.15, 0.17), (0.09, 0.22), (-0.09, 0.22), (-0.15, 0.17),
                  (-0.17, -0.10)], 0.15, front=0.62).rotate(x=-90).move(ANKLE[0], 0.075, ANKLE[2] - 0.06)
    figure.pair("foot", foot, "foot", bevel=0.02)
    return figure


def stand(p, i):
    p.move("body", y=-0.012 + 0.012 * wave(i, 16))
    look = keys(i, (0, 0), (3, 0), (5, 14), (8, 14), (10, -10), (13, -10), (16, 0))
    p.turn("head", y=look, x=2 * wave(i, 16, 0.1))
    p.turn("chest", y=look * 0.2, x=1.2 * wave(i, 16, 0.2))
    p.plant("R").plant("L")


def run(p, i):
    for side, offset in (("R", 0.0), ("L", 0.5)):
        z, y, pitch = stride(i, 4, SPEED, offset, 0.5, lift=0.17)
        p.plant(side, 0, y, z, pitch=18 * pitch)
    p.move("body", y=-0.10 if i % 2 == 0 else -0.03, z=-0.02)
    p.turn("body", x=-7, y=6 * wave(i, 4, 0.25), z=3 * wave(i, 4))
    p.turn("chest", y=-9 * wave(i, 4, 0.25))
    p.turn("head", x=6, y=3 * wave(i, 12))


def damage(p, i):
    back = keys(i, (0, 0), (1, 1, ease_out), (3, 0.25), (5, -0.12), (6, 0))
    p.move("body", z=0.14 * back, y=-0.07 * abs(back))
    p.turn("body", x=10 * back).turn("chest", x=12 * back, y=10 * back).turn("head", x=14 * back, y=-12 * back)
    p.plant("R", z=keys(i, (0, 0), (1, 0.10), (4, 0.10), (6, 0)), y=keys(i, (0, 0), (1, 0), (4, 0), (5, 0.05), (6, 0)))
    p.plant("L")


def attack(p, i):
    right, left = kick(i, 1, 1.0, 1.1), kick(i, 2, 1.0, 1.1)
    brace = keys(i, (0, 0), (1, 1), (4, 0.8), (7, 0))
    p.move("gun.R", z=0.13 * right).move("gun.L", z=0.13 * left)
    p.move("body", y=-0.06 * brace, z=0.03 * (right + left))
    p.turn("body", x=-5 * brace).turn("chest", x=5 * (right + left), y=-9 * right + 9 * left)
    p.turn("head", x=2 * brace, y=6 * right - 6 * left)
    p.plant("R").plant("L")


def death(p, i):
    fall = keys(i, (0, 0), (1, 0.12), (4, 0.75, ease_in), (6, 1, ease_in), (7, 0.96), (8, 1))
    p.move("body", y=-0.62 * fall, z=0.25 * fall)
    p.turn("body", x=78 * fall, z=10 * fall)
    p.turn("chest", x=6 * keys(i, (0, 0), (1, 2), (4, 0), (6, -1), (8, 0)))
    p.turn("thigh.R", x=-70 * fall).turn("thigh.L", x=-50 * fall, z=-8 * fall)
    p.turn("shin.R", x=45 * fall).turn("shin.L", x=70 * fall)


def decorate(paint, army):
    x, y, z = HEAD
    eye = paint.part("head") * paint.facing(z=-1, least=0.35)
    slot = paint.band("y", y + 0.03, 0.11) * eye
    paint.lay(slot, "dark")
    paint.lamps(paint.band("y", y + 0.03, 0.055) * paint.soft(abs(paint.pos[:, :, 0]), 0.17) * eye)
    paint.lines(paint.band("y", y - 0.12, 0.012) * paint.part("head"))
    paint.text("07" if army == "white" else "P-4", (0, 1.10, 0.44), (1, 0, 0), (0, 1, 0), 0.07, parts=("pack",))
    return {}


if __name__ == "__main__":
    pawn = build()
    print("triangles", pawn.triangles())
    for name, count, pose in (("stand", 16, stand), ("run", 12, run), ("damage", 7, damage), ("attack", 8, attack),
                              ("death", 24, death)):
        pawn.clip(name, count, pose)
    baked = pawn.bake()
    write_pictures(pawn, baked, decorate)
    pawn.write(baked.uv)

"""The king: the heaviest machine, a walking throne room with crown and cross, a reactor on its back and a mace."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

SPEED = 0.9
CYCLE = 12
HIP, KNEE, ANKLE = (0.34, 1.28, 0.02), (0.43, 0.74, -0.16), (0.47, 0.19, 0.08)
SHOULDER, ELBOW, WRIST = (0.66, 2.20, 0.03), (0.92, 1.76, 0.10), (1.03, 1.40, -0.36)
GRIP = np.array((1.04, 1.32, -0.44))
REACTOR = (0, 1.70, 0.60)
HAMMER = 2.30  # height of the mace's head while its butt stands on the floor


def skeleton():
    rig = Rig().bone("root", (0, 0, 0)).bone("body", (0, 1.30, 0), "root").bone("chest", (0, 1.55, 0), "body")
    rig.bone("reactor", REACTOR, "chest").bone("head", (0, 2.46, -0.02), "chest").bone("crown", (0, 2.85, 0), "head")
    rig.bone("cross", (0, 2.92, 0), "crown").bone("tabard", (0, 1.34, -0.34), "body")
    for side, sign in (("R", 1), ("L", -1)):
        def at(point):
            return (sign * point[0], *point[1:])
        rig.leg(side, f"thigh.{side}", f"shin.{side}", f"foot.{side}", "body", at(HIP), at(KNEE), at(ANKLE))
        rig.bone(f"shoulder.{side}", at((0.56, 2.26, 0.02)), "chest").bone(f"tasset.{side}", at((0.36, 1.40, 0)), "body")
        rig.leg(f"arm.{side}", f"upper.{side}", f"fore.{side}", f"hand.{side}", "chest", at(SHOULDER), at(ELBOW), at(WRIST))
        rig.bone(f"cape.{side}", at((0.36, 2.22, 0.42)), "chest")
    return rig


def crown(figure):
    band = lathe([(0.29, 2.69), (0.385, 2.71), (0.43, 2.90), (0.37, 2.90), (0.33, 2.81)], 10, start=18, close=False,
                 bands=["metal", "plate", "metal", "dark"])
    figure.part("band", band, "crown", bevel=0.01, smooth=40, density=1.2)
    point = plate([(-0.10, 0), (0.10, 0), (0.145, 0.13), (0, 0.34), (-0.145, 0.13)], 0.055)
    point = point.drop(lambda c, n: n[1] < -0.9).rotate(x=14).move(0, 2.875, 0.385)
    for i in range(6):
        figure.part(f"point{i}", point.rotate(y=60 * i), "crown", material="metal", bevel=0.008, like="point0" if i else None,
                    density=1.1)
    cap = lathe([(0.345, 2.80), (0.24, 2.865), (0.07, 2.875)], 8, close=False).material("stripe")
    figure.part("cap", cap, "crown", bevel=0.0, smooth=50)
    figure.part("orb", lathe([(0.07, 2.86), (0.135, 2.95), (0.05, 3.05)], 6, close=False), "cross", material="metal",
                bevel=0.0, smooth=60)
    arms = [(-0.045, 0.075), (-0.085, 0.235), (0.085, 0.235), (0.045, 0.075), (0.045, 0.055), (0.075, 0.045), (0.235, 0.085),
            (0.235, -0.085), (0.075, -0.045), (0.045, -0.055), (0.095, -0.235), (-0.095, -0.235), (-0.045, -0.055),
            (-0.075, -0.045), (-0.235, -0.085), (-0.235, 0.085), (-0.075, 0.045), (-0.045, 0.055)]
    outline = [p for k, p in enumerate(arms) if k not in (0, 3, 5, 8, 12, 17)]
    cross = prism(outline, 0.12).scale(1.34, 1.34, 1.15).rotate(x=-12).move(0, 3.34, -0.04)
    figure.part("cross", cross, "cross", material="metal", bevel=0.014, density=1.5)


def helmet(figure):
    helm = lathe([(0.23, 2.40), (0.285, 2.56), (0.30, 2.76)], 8, start=22.5, close=False).scale(0.96, 1, 1.04)
    figure.part("helm", helm, "head", bevel=0.012, smooth=50, density=1.3)
    visor = loft([section([(-0.235, -0.02), (-0.09, -0.12), (0.09, -0.12), (0.235, -0.02), (0.235, 0.10), (-0.235, 0.10)],
                          (0, 2.60, -0.20), (0, 0, -1)),
                  section([(-0.15, -0.04), (-0.05, -0.15), (0.05, -0.15), (0.15, -0.04), (0.17, 0.08), (-0.17, 0.08)],
                          (0, 2.60, -0.345), (0, 0, -1))], caps=(False, True))
    figure.part("visor", visor, "head", bevel=0.012, density=1.4)
    beard = plate([(-0.17, 0.0), (0.17, 0.0), (0.13, -0.16), (0, -0.30), (-0.13, -0.16)], 0.07).drop(
        lambda c, n: n[2] < -0.9).rotate(y=180).rotate(x=12)
    figure.part("beard", beard.move(0, 2.47, -0.32), "head", material="metal", bevel=0.008)


def torso(figure):
    hull = lathe([(0.36, 1.42), (0.42, 1.66), (0.52, 2.06), (0.47, 2.28), (0.20, 2.44), (0, 2.41)], 10, start=18, close=False,
                 bands=["trim", "plate", "plate", "plate", "dark"]).scale(1.15, 1, 0.86)
    steps = [(0.022 * k, 0.075 * k) for k in range(3)]
    ribs = join(*[lathe([(0.365 + r, 1.46 + y), (0.385 + r, 1.485 + y), (0.375 + r, 1.51 + y)],
                        20, close=False) for r, y in steps]).scale(1.13, 1, 0.85).material("metal")
    vents = join(*[vent(0.20, 0.16, 4).rotate(x=-12).rotate(y=180 + s * 38).move(s * 0.31, 1.78, -0.285) for s in (-1, 1)])
    figure.part("torso", hull, "chest", bevel=0.015, smooth=48, detail=ribs + vents)
    breast = plate([(-0.30, 0.25), (-0.40, 0.02), (-0.20, -0.26), (0, -0.36), (0.20, -0.26), (0.40, 0.02), (0.30, 0.25)], 0.14,
                   0.06).drop(lambda c, n: n[2] < -0.9).rotate(y=180).rotate(x=-6)
    figure.part("breast", breast.move(0, 2.08, -0.42), "chest", bevel=0.015, detail=rivets(
        [(x, 2.24 - abs(x) * 0.1, -0.475) for x in (-0.30, 0.30)], (0, 0, -1), 0.025))
    figure.part("belt", lathe([(0.42, 1.22), (0.45, 1.40), (0.30, 1.48)], 10, start=18, close=False,
                              bands=["metal", "dark"]).scale(1.08, 1, 0.92), "body", bevel=0.012)
    tabard = plate([(-0.20, 0.0), (-0.25, -0.52), (0, -0.72), (0.25, -0.52), (0.20, 0.0)], 0.06)
    figure.part("tabard", tabard.rotate(y=180).rotate(x=6).move(0, 1.36, -0.40), "tabard", bevel=0.008)
    tasset = plate([(-0.30, 0.0), (-0.33, -0.42), (-0.14, -0.54), (0.14, -0.54), (0.33, -0.42), (0.30, 0.0)], 0.08)
    tasset = tasset.drop(lambda c, n: n[2] < -0.9).rotate(x=-16).rotate(y=90).move(0.45, 1.40, 0.02)
    figure.pair("tasset", tasset, "tasset", bevel=0.012)
    collar = lathe([(0.44, 2.26), (0.47, 2.47), (0.40, 2.47), (0.36, 2.30)], 5, start=-80, arc=160, close=False,
                   bands=["plate", "metal", "dark"]).scale(1, 1, 0.92)
    figure.part("collar", collar, "chest", bevel=0.008)


def back(figure):
    drum = lathe([(0.34, 0.0), (0.34, 0.16), (0.25, 0.24), (0.15, 0.16), (0, 0.30)], 10, close=False,
                 bands=["metal", "plate", "dark", "light"])
    bolts = rivets([(0.295 * np.sin(a), 1.70 + 0.295 * np.cos(a), 0.512) for a in np.radians(np.arange(15, 360, 30))],
                   (0, 0, 1), 0.022)
    figure.part("reactor", drum.rotate(x=90).move(0, 1.70, 0.31), "reactor", bevel=0.01, density=1.1, detail=bolts.material("metal"))
    stack = lathe([(0.075, 0.0), (0.10, 0.40), (0.10, 0.54), (0, 0.44)], 6, close=False,
                  bands=["trim", "metal", "dark"]).rotate(x=14)
    for side, sign in (("R", 1), ("L", -1)):
        figure.part(f"stack.{side}", stack.rotate(z=-sign * 8).move(sign * 0.20, 2.10, 0.42), "chest", bevel=0.008,
                    like=None if sign > 0 else "stack.R")
        figure.part(f"pipe.{side}", tube([(sign * 0.20, 1.55, 0.48), (sign * 0.29, 1.38, 0.50), (sign * 0.26, 1.28, 0.28)],
                                         0.055, 4, caps=False), "chest", material="dark", bevel=0.0)
    cape = loft([[(x * w, y, z - abs(x - 0.5) * 0.14) for x, z in ((0.0, 0), (0.5, 0.06), (1.0, 0.0))]
                 + [(x * w, y, z - 0.05 - abs(x - 0.5) * 0.14) for x, z in ((1.0, 0), (0.5, 0.06), (0.0, 0.0))]
                 for w, y, z in ((0.42, 0.55, 0.66), (0.44, 1.30, 0.58), (0.36, 2.26, 0.34))])
    cape = cape.warp(lambda x, y, z: (x + 0.30 + 0.05 * (2.26 - y), y - 0.09 * (x > 0.2) * (y < 0.6), z - 0.14 * max(0, x - 0.2)))
    figure.pair("cape", cape, "cape", material="stripe", bevel=0.008)


def arms(figure):
    dome = lathe([(0.42, -0.14), (0.41, 0.02), (0.28, 0.22), (0, 0.31)], 8, close=False, bands=["metal", "plate", "plate"])
    dome = dome.scale(1.0, 1.0, 0.98).rotate(z=-24).move(0.68, 2.28, 0.03)
    ridge = prism([(-0.30, 0.0), (-0.20, 0.14), (0.0, 0.20), (0.20, 0.14), (0.30, 0.0)],
                  0.08).rotate(y=90).rotate(z=-24).move(0.80, 2.44, 0.03)
    turns = np.radians(np.arange(0, 360, 30))
    studs = rivets([(0.415 * np.sin(a), -0.06, 0.405 * np.cos(a)) for a in turns], (0, 1, 0), 0.022)
    figure.pair("shoulder", dome, "shoulder", bevel=0.015, smooth=50,
                detail=studs.move(y=0.075).rotate(z=-24).move(0.68, 2.28, 0.03))
    figure.pair("ridge", ridge.drop(lambda c, n: n[1] < -0.8), "shoulder", material="metal", bevel=0.008)
    upper = loft([section(oval(w, w, 6), at, np.subtract(ELBOW, SHOULDER), (0, 0, -1)) for w, at in (
        (0.14, SHOULDER), (0.165, (0.80, 1.96, 0.08)), (0.12, ELBOW))], caps=(False, False))
    figure.pair("upper", upper, "upper", material="trim", bevel=0.012)
    elbow = cylinder(0.125, 0.30, 6).move(y=-0.15).rotate(z=-90).move(*ELBOW)
    figure.pair("elbow", elbow, "fore", material="metal", bevel=0.01)
    fore = loft([section(oval(w, w, 6), at, np.subtract(WRIST, ELBOW), (0, 1, 0)) for w, at in (
        (0.11, (0.925, 1.75, 0.08)), (0.215, (0.95, 1.64, -0.04)), (0.18, (1.03, 1.40, -0.34)))], bands=["trim", "plate"],
                caps=(False, True))
    figure.pair("fore", fore, "fore", bevel=0.015)
    fist = prism(oval(0.175, 0.16, 6), 0.30, front=0.85, back=0.9).move(*GRIP)
    knuckles = join(*[box(0.06, 0.15, 0.05).move(GRIP[0] - 0.09 + 0.06 * k, GRIP[1], GRIP[2] - 0.13) for k in range(4)])
    figure.pair("fist", fist, "hand", material="metal", bevel=0.02, detail=knuckles.material("trim"))


def mace(figure):
    x, _, z = GRIP
    shaft = lathe([(0, 0.0), (0.08, 0.12), (0.045, 0.22), (0.045, HAMMER - 0.20)], 5, close=False,
                  bands=["metal", "metal", "dark"])
    figure.part("shaft", shaft.move(x, 0.02, z), "hand.R", material="metal", bevel=0.0)
    core = lathe([(0.05, -0.28), (0.12, -0.18), (0.12, 0.19), (0.0, 0.36)], 6, close=False, bands=["metal", "light", "metal"])
    figure.part("mace", core.move(x, HAMMER, z), "hand.R", bevel=0.0)
    flange = plate([(0.08, -0.22), (0.25, -0.10), (0.29, 0.08), (0.08, 0.20)], 0.06)
    flange = flange.drop(lambda c, n: n[0] < -0.9)
    for i in range(5):
        figure.part(f"flange{i}", flange.rotate(y=72 * i + 18).move(x, HAMMER, z), "hand.R", bevel=0.008,
                    like="flange0" if i else None)


def legs(figure):
    figure.part("pelvis", prism([(-0.40, 0.10), (-0.30, -0.12), (-0.12, -0.22), (0.12, -0.22), (0.30, -0.12), (0.40, 0.10)], 0.44,
                                front=0.9, back=0.9).drop(lambda c, n: n[1] > 0.9).move(0, 1.22, 0), "body", material="dark",
                                bevel=0.015)
    thigh = loft([section(oval(w, h, 6), at, np.subtract(KNEE, HIP), (0, 0, -1)) for w, h, at in (
        (0.18, 0.19, (0.345, 1.24, 0.01)), (0.21, 0.23, (0.375, 1.05, -0.05)), (0.15, 0.16, (0.42, 0.80, -0.14)))],
        caps=(False, False))
    hose = tube(curve([(0.44, 1.16, -0.20), (0.50, 1.02, -0.24), (0.47, 0.86, -0.26)], 4), 0.028, 6).material("dark")
    figure.pair("thigh", thigh, "thigh", material="trim", bevel=0.018, detail=hose)
    knee = cylinder(0.15, 0.38, 7).move(y=-0.19).rotate(z=-90).move(*KNEE)
    figure.pair("knee", knee, "shin", material="metal", bevel=0.012)
    cop = prism([(-0.13, -0.12), (0.13, -0.12), (0.16, 0.04), (0, 0.20), (-0.16, 0.04)], 0.10,
                front=0.7).drop(lambda c, n: n[2] < -0.9)
    figure.pair("cop", cop.rotate(y=180).rotate(x=-8).move(KNEE[0], KNEE[1] + 0.02, KNEE[2] - 0.15), "shin", bevel=0.012)
    shin = loft([section(chamfered(w, h, 0.08), at, (0.04, -0.55, 0.24), (0, 0, -1)) for w, h, at in (
        (0.28, 0.28, (0.435, 0.68, -0.13)), (0.45, 0.44, (0.445, 0.48, -0.04)), (0.42, 0.40, (0.47, 0.16, 0.07)))],
                bands=["trim", "plate"], caps=(False, True))
    calf = vent(0.17, 0.20, 4).rotate(x=14).move(0.455, 0.40, 0.205)
    studs = rivets(row((0.60, 0.56, 0.02), (0.61, 0.26, 0.09), 3), (1, 0.2, 0.5), 0.02)
    figure.pair("shin", shin, "shin", bevel=0.018, detail=calf + studs)
    foot = loft([section([(-w, -0.02), (w, -0.02), (w, h * 0.55), (w * 0.62, h), (-w * 0.62, h), (-w, h * 0.55)],
                         (ANKLE[0], 0.02, z), (0, 0, -1)) for w, h, z in
                 ((0.18, 0.17, 0.36), (0.26, 0.26, -0.02), (0.22, 0.12, -0.34))])
    toes = join(*[box(0.02, 0.03, 0.22).rotate(x=-22).move(ANKLE[0] + x, 0.215, -0.16) for x in (-0.08, 0.0, 0.08)])
    figure.pair("foot", foot, "foot", bevel=0.02, detail=toes.material("metal"))


def build():
    figure = Figure("king", 0.48, skeleton(), seed=61)
    crown(figure)
    helmet(figure)
    torso(figure)
    back(figure)
    arms(figure)
    mace(figure)
    legs(figure)
    return figure


def hold(p, x=0.0, y=0.0, z=0.0, pitch=0.0, yaw=0.0, roll=0.0):
    """The hand with the mace, its place relative to standing."""
    p.plant("arm.R", x, y, z, pitch, yaw, roll, knee=(0.3, 0, 0.3))


def stand(p, i):
    """It breathes like a bellows, surveys the field; the hand stays on the mace."""
    breath = sway(i, 16)
    p.move("body", y=0.014 * sway(i, 16, 0.25))
    look = keys(i, (0, 0), (2, 0), (5, 17), (8, 17), (11, -14), (14, -14), (16, 0))
    p.turn("chest", x=1.3 * sway(i, 16, 0.2), y=0.18 * look).turn("head", y=0.8 * look, x=2.0 * sway(i, 8, 0.1))
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"shoulder.{side}", z=sign * (2.5 * sway(i, 16, 0.15)))
        p.turn(f"cape.{side}", x=1.5 * sway(i, 16, 0.3))
    p.turn("upper.L", x=3 * sway(i, 16, 0.1), z=2.0 * sway(i, 16, 0.25)).turn("fore.L", x=5 * sway(i, 16, 0.2))
    hold(p, y=0.004 * breath)
    p.plant("R").plant("L")


def run(p, i):
    """Two great steps; the mace goes along as a staff, set down with the left foot."""
    for side, offset in (("R", 0.0), ("L", 0.5)):
        z, y, pitch = stride(i, CYCLE, SPEED, offset, 0.62, lift=0.20)
        p.plant(side, 0, y, z, pitch=14 * pitch)
    z, y, _ = stride(i, CYCLE, SPEED, 0.5, 0.62, lift=0.16)
    hold(p, y=y - 0.02, z=0.5 * z - 0.06, pitch=-np.degrees(np.arcsin(0.38 * z)))
    step = abs(wave(i, CYCLE, 0.22))
    p.move("body", x=-0.07 * wave(i, CYCLE, 0.0), y=-0.17 + 0.07 * step)
    p.turn("body", x=-4, y=6 * wave(i, CYCLE, 0.25), z=3.0 * wave(i, CYCLE))
    p.turn("chest", y=-9 * wave(i, CYCLE, 0.25), z=-3.0 * wave(i, CYCLE, 0.05))
    p.turn("head", y=4 * wave(i, CYCLE, 0.25), x=3 - 3 * step)
    p.turn("upper.L", x=16 * wave(i, CYCLE, 0.25)).turn("fore.L", x=12 + 10 * wave(i, CYCLE, 0.15))
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"cape.{side}", x=-6 + 5 * wave(i, CYCLE, 0.1 + 0.25 * sign))
        p.turn(f"shoulder.{side}", z=sign * 4 * wave(i, 6, 0.2))
        p.turn(f"tasset.{side}", z=sign * (4 + 4 * wave(i, CYCLE, 0.25 * sign)))
    p.turn("tabard", x=4 + 5 * wave(i, 6, 0.2))


def damage(p, i):
    """A king does not step back: the blow goes through him, and he straightens up."""
    hit = keys(i, (0, 0), (1, 1, ease_out), (3, 0.35), (5, -0.16), (7, 0))
    p.move("body", z=0.11 * hit, y=-0.08 * abs(hit)).turn("body", x=6 * hit).turn("chest", x=11 * hit, y=-9 * hit)
    p.turn("head", x=16 * hit, z=5 * hit).turn("upper.L", x=-20 * hit, z=-14 * abs(hit)).turn("fore.L", x=24 * abs(hit))
    hold(p, x=0.02 * hit, z=0.06 * hit, pitch=5 * hit)
    for side in ("R", "L"):
        p.turn(f"cape.{side}", x=9 * abs(hit)).turn(f"shoulder.{side}", z=(6 if side == "R" else -6) * abs(hit))
    p.turn("tabard", x=-12 * hit)
    p.plant("R").plant("L")


def attack(p, i):
    """The mace goes up in the first frame and comes down on the field ahead in the second."""
    up = keys(i, (0, 0), (1, 1, ease_out), (2, 0, ease_in))
    down = keys(i, (0, 0), (1, 0), (2, 1), (3, 0.94), (4, 1), (5, 0.9), (8, 0.12), (9, 0))
    x, y, z = keys(i, (0, (0, 0, 0)), (1, (-0.10, 1.18, 0.02)), (2, (-0.42, -0.10, -1.22)), (3, (-0.42, -0.02, -1.20)),
                   (4, (-0.42, -0.06, -1.20)), (5, (-0.36, 0.10, -1.0)), (7, (-0.05, 0.25, -0.22)), (9, (0, 0, 0)))
    hold(p, x, y, z, pitch=keys(i, (0, 0), (1, 38), (2, -112), (3, -104), (4, -109), (5, -86), (7, -16), (9, 0)),
         roll=keys(i, (0, 0), (1, 0), (2, 8), (5, 6), (8, 0)))
    p.move("body", y=0.02 * up - 0.21 * down, z=0.10 * up - 0.52 * down).turn("body", x=7 * up - 14 * down, y=-10 * up + 12 * down)
    p.turn("chest", x=8 * up - 16 * down, y=-16 * up + 20 * down).turn("head", x=10 * down - 4 * up, y=10 * up - 16 * down)
    p.turn("upper.L", x=-22 * down + 20 * up, z=-18 * down).turn("fore.L", x=30 * down)
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"cape.{side}", x=-14 * down + 8 * up)
        p.turn(f"shoulder.{side}", z=sign * 10 * (up if side == "R" else down * 0.5))
    p.turn("tabard", x=16 * down)
    step = keys(i, (0, 0), (1, 0.5), (2, 1), (6, 1), (9, 0))
    p.plant("L", z=-0.55 * step, y=keys(i, (0, 0), (1, 0.16), (2, 0), (6, 0), (7.5, 0.12), (9, 0)))
    p.plant("R", z=0.04 * down, pitch=-10 * down)


def kneel(p, k, shake=0.0, i=0):
    """Down on the right knee, bent over the mace: k from 0 (standing) to 1."""
    p.move("body", y=-0.60 * k, z=-0.06 * k).turn("body", x=-9 * k, z=3 * k)
    p.turn("chest", x=-14 * k, y=5 * k).turn("head", x=-18 * k)
    p.turn("thigh.R", x=-9 * k).turn("shin.R", x=-55 * k).turn("foot.R", x=52 * k)
    if k == 0.0:
        p.plant("R")
    p.plant("L", z=-0.34 * k, x=-0.02 * k)
    hold(p, x=0.0, y=-0.03 * k, z=-0.26 * k, pitch=10 * k)
    p.turn("upper.L", x=-10 * k, z=-8 * k).turn("fore.L", x=34 * k)
    for side in ("R", "L"):
        p.turn(f"cape.{side}", x=-6 * k)
    p.turn("tabard", x=20 * k)


def death(p, i):
    """He falters, sinks on one knee and leans on the mace."""
    kneel(p, keys(i, (0, 0), (2, 0.14), (3, 0.10), (7, 1.04, ease_in), (9, 0.97), (11, 1)))


def death_shakes(p, i):
    """The reactor runs away: he shakes, harder and harder, and rears up at the end."""
    kneel(p, 1.0)
    rage = i / 11.0
    rear = keys(i, (0, 0), (7, 0.1), (11, 1, ease_in))
    jolt = np.sin(np.array((2.1, 3.7, 5.3)) * i * 1.9) * rage * (1 - 0.4 * rear)
    p.turn("chest", x=26 * rear + 3.0 * jolt[0], y=5.0 * jolt[1], z=4.0 * jolt[2])
    p.turn("head", x=34 * rear + 5 * jolt[1], z=6 * jolt[0])
    p.move("reactor", z=0.05 * rage + 0.03 * jolt[2]).size("reactor", 1 + 0.10 * rage + 0.04 * jolt[0])
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"shoulder.{side}", z=sign * (12 * rear + 8 * abs(jolt[1]))).turn(f"cape.{side}", x=-18 * rear + 6 * jolt[0])
    p.turn("upper.L", x=-16 * rear, z=-38 * rear + 6 * jolt[2]).turn("fore.L", x=-18 * rear)
    p.turn("crown", z=4 * jolt[1] * rage)


PIECES = {  # blown off in the last death: velocity in units a frame, spin in degrees a frame, height of rest
    "crown": ((0.05, 0.42, -0.16), (-21, 8, 5), 0.12), "cross": ((-0.16, 0.56, 0.04), (13, 7, 32), 0.10),
    "head": ((0.03, 0.26, -0.20), (-17, 5, 9), 0.24), "shoulder.R": ((0.30, 0.30, 0.06), (5, 9, -20), 0.20),
    "shoulder.L": ((-0.31, 0.33, 0.02), (8, -6, 22), 0.20), "hand.R": ((0.22, 0.20, -0.12), (7, 11, -14), 0.20),
    "upper.R": ((0.21, 0.19, 0.13), (14, 6, -12), 0.16), "upper.L": ((-0.25, 0.24, -0.10), (-12, 9, 16), 0.16),
    "cape.R": ((0.15, 0.28, 0.30), (-25, 4, 6), 0.06), "cape.L": ((-0.15, 0.32, 0.27), (-22, -5, -7), 0.06),
    "reactor": ((-0.02, 0.40, 0.27), (24, 3, 0), 0.18), "tasset.R": ((0.20, 0.16, -0.05), (4, 10, -15), 0.08),
    "tasset.L": ((-0.21, 0.15, 0.05), (4, -10, 15), 0.08), "tabard": ((0.02, 0.13, -0.22), (-16, 3, 0), 0.06)}


def death_bursts(p, i):
    """He comes apart; what is left of the body folds up."""
    death_shakes(p, 11)
    start = p.matrices()
    fold = keys(i, (0, 0), (2, -0.15), (6, 1, ease_in), (8, 0.94), (10, 1))
    p.turn("body", x=-20 * fold, z=16 * fold).turn("chest", x=-46 * fold, z=10 * fold)
    p.move("body", y=-0.30 * max(0.0, fold))
    if i > 0:
        for bone, (velocity, spin, rest) in PIECES.items():
            p.fling(bone, start, i, velocity, spin, rest)
        p.goals.pop("arm.R")


def decorate(paint, army):
    white = army == "white"
    armour = paint.material("plate", "trim")
    paint.lines(paint.inset(0.040, 0.011) * paint.part("shin", "fore", "foot", "thigh", "upper", "visor", "cop") * armour)
    edged = paint.part("breast", "tasset", "tabard", "flange", "collar") * paint.material("plate")
    border = "metal" if white else "trim"
    paint.lay((1 - paint.inset(0.034)) * edged, border, 0.95)
    paint.lines(paint.inset(0.044, 0.010) * edged)
    cape = paint.part("cape") * paint.material("stripe")
    if not white:
        paint.lay(cape, paint.tone("stripe") * 0.40)
    paint.lay((1 - paint.inset(0.045)) * cape, border, 0.9)
    for y in (0.95, 1.40, 1.85):
        paint.lines(paint.band("y", y, 0.014) * cape)
    hull = paint.part("torso") * paint.material("plate")
    paint.lines(paint.band("y", 1.92, 0.014) * hull).lines(paint.soft(abs(paint.pos[:, :, 0]), 0.008) * hull * paint.facing(z=-1))
    heading = np.degrees(np.arctan2(paint.pos[:, :, 0] / 1.15, paint.pos[:, :, 2] / 0.86))
    girth = np.hypot(paint.pos[:, :, 0], paint.pos[:, :, 2])
    seams = paint.soft(np.abs(heading / 36 - np.rint(heading / 36)) * np.radians(36) * girth, 0.006)
    paint.lines(seams * hull * paint.above("y", 1.67) * (1 - paint.above("y", 2.06)))
    paint.lines(paint.band("y", 2.06, 0.012) * hull).lines(paint.band("y", 1.67, 0.012) * hull)
    paint.lay(hull * paint.above("y", 1.93) * (1 - paint.above("y", 2.05)) * paint.facing(z=1, least=-0.4), "trim", 0.9)
    paint.rivets([(1.15 * 0.515 * np.sin(a), 2.02, 0.86 * 0.515 * np.cos(a)) for a in np.radians(np.arange(-60, 61, 20))],
                 0.020, hull)
    helm = paint.part("helm")
    paint.lines(helm * paint.band("y", 2.56, 0.010)).lines(helm * paint.soft(abs(paint.pos[:, :, 0]), 0.006))
    slits = helm * paint.facing(z=1, least=0.3) * paint.soft(abs(abs(paint.pos[:, :, 0]) - 0.12), 0.06)
    for y in (2.46, 2.495, 2.53):
        paint.lay(slits * paint.band("y", y, 0.016), "dark", 0.95)
    rim = paint.part("band") * (1 - paint.facing(y=1, least=0.6))
    paint.lines(rim * paint.band("y", 2.735, 0.011)).lines(rim * paint.band("y", 2.865, 0.011))
    paint.rivets([(0.415 * np.sin(a), 2.80, 0.415 * np.cos(a)) for a in np.radians(np.arange(30, 360, 60))], 0.022, rim)
    dome = paint.part("shoulder") * paint.material("plate")
    for centre in ((0.80, 2.52, 0.03), (-0.80, 2.52, 0.03)):
        paint.lines(paint.ring(centre, 0.36, 0.014) * dome)
    paint.lay(paint.part("band") * paint.material("plate"), "metal")
    gems = [(0.405 * np.sin(a), 2.79, 0.405 * np.cos(a)) for a in np.radians(np.arange(0, 360, 60))]
    for gem in gems:
        paint.lay(paint.near(gem, 0.066) * paint.part("band"), "line", 0.8)
        paint.lamps(paint.near(gem, 0.050) * paint.part("band"))
    paint.lines(paint.part("point") * paint.inset(0.026, 0.009))
    core = paint.part("cross") * np.maximum(paint.facing(z=1, y=0.2, least=0.8), paint.facing(z=-1, y=-0.2, least=0.8))
    paint.lines(core * paint.inset(0.020, 0.010))
    paint.lamps(core * paint.inset(0.028))

    u, v = paint.pos[:, :, 0], paint.pos[:, :, 1] - 2.625
    face = paint.part("visor") * paint.facing(z=-1, least=0.6)
    paint.lay(face * paint.soft(abs(u), 0.15) * paint.soft(abs(v - 0.10 * abs(u)), 0.040), "dark", 0.95)
    paint.lamps(face * paint.soft(abs(abs(u) - 0.075), 0.050) * paint.soft(abs(v - 0.10 * abs(u)), 0.020))
    for y in (2.50, 2.535):
        paint.lines(face * paint.band("y", y, 0.014) * paint.soft(abs(u), 0.05))

    drum = np.hypot(paint.pos[:, :, 0], paint.pos[:, :, 1] - 1.70)
    reactor = paint.part("reactor")
    angle = np.degrees(np.arctan2(paint.pos[:, :, 0], paint.pos[:, :, 1] - 1.70))
    teeth = paint.soft(np.abs(angle / 30 - np.rint(angle / 30)) * np.radians(30) * drum, 0.014)
    paint.lines(teeth * reactor * paint.material("plate", "metal"))
    paint.lamps(reactor * paint.material("dark") * paint.soft(abs(drum - 0.20), 0.018))

    up, front, behind = (0, 1, 0), (-1, 0, 0), (1, 0, 0)
    cross = [(-1, -5), (1, -5), (1, 1), (4, 1), (4, 3), (1, 3), (1, 5.5), (-1, 5.5), (-1, 3), (-4, 3), (-4, 1), (-1, 1)]

    def mark(size, centre, right, tone, parts):
        paint.outline([(x * size / 10, y * size / 10) for x, y in cross], centre, right, up, tone, 0.95, 0.3, parts)

    tone = "stripe" if white else "mark"
    cap, turn = paint.part("cap"), np.degrees(np.arctan2(paint.pos[:, :, 0], paint.pos[:, :, 2]))
    paint.lay(cap, paint.tone("stripe") * 0.42)
    seam = np.abs(turn / 60 - np.rint(turn / 60)) * np.radians(60) * np.hypot(paint.pos[:, :, 0], paint.pos[:, :, 2])
    paint.lay(cap * paint.soft(seam, 0.012), "dark")
    mark(0.36, (0, 2.06, -0.48), front, tone, ("breast",))
    mark(0.34, (0, 0.98, -0.45), front, tone, ("tabard",))
    for side in (1, -1):
        mark(0.24, (side * 0.52, 1.10, 0.02), (0, 0, -side), tone, ("tasset",))
        if not white:
            paint.hazard(paint.part("foot") * paint.above("y", 0.02) * (1 - paint.above("z", -0.20)), (0.7, 0.3, 0.7), 0.09)
    paint.text("I", (0.42, 1.95, 0.45), behind, up, 0.12, "plate" if white else "mark", depth=0.3, parts=("cape",))
    studs = np.radians((20, 60, 120, 160, 200, 240, 300, 340))
    paint.rivets([(0.46 * np.sin(a), 1.33, 0.40 * np.cos(a)) for a in studs], 0.022,
                 paint.part("belt"))
    paint.lamps(paint.near((0, 1.33, -0.40), 0.06) * paint.part("belt"))
    return {"spill": 0.05, "wear": 1.0 if white else 0.75}


if __name__ == "__main__":
    king = build()
    print("triangles", king.triangles())
    king.clip("stand", 16, stand).clip("run", CYCLE, run).clip("damage", 8, damage).clip("attack", 10, attack)
    king.clip("death", 12, death, ground=True).clip("deathII", 12, death_shakes, ground=True)
    king.clip("deathIII", 40, death_bursts, ground=True)
    baked = king.bake()
    write_pictures(king, baked, decorate)
    king.write(baked.uv)

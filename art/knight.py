"""The knight: a hover machine with the head and the legs of a war horse, a jet and a gun under its belly."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

# Fore and hind leg of the right side: hip, knee, ankle
FORE = ((0.37, 1.34, -0.28), (0.47, 0.80, -0.38), (0.50, 0.20, -0.26))
HIND = ((0.37, 1.34, 0.62), (0.47, 0.84, 0.46), (0.50, 0.20, 0.70))
NECK, NAPE = (0, 1.62, -0.16), np.array((0, 1.95, -0.40))
BROW, NOSE_DOWN = (0, 2.27, -0.46), 34.0
LARGE = 1.18  # the head is larger than life, for it names the piece
GAZE = 52.0  # it looks past the side it stands on, so that the profile shows from both ends of the board


def grown(thing):
    """What belongs to the head, as a point or a mesh, at its size and place."""
    if isinstance(thing, Mesh):
        return Mesh(NAPE + (thing.v - NAPE) * LARGE - (0, 0.10, 0), thing.f, thing.m)
    return NAPE + (np.asarray(thing) - NAPE) * LARGE - (0, 0.10, 0)


def skeleton():
    rig = Rig().bone("root", (0, 0, 0)).bone("body", (0, 1.35, 0.1), "root").bone("jet", (0, 1.2, 0), "body")
    rig.bone("neck", NECK, "body").bone("crest", grown((0, 2.0, -0.38)), "neck").bone("head", grown((0, 2.24, -0.42)), "crest")
    rig.bone("jaw", grown((0, 2.06, -0.62)), "head").bone("tail", (0, 1.66, 0.80), "body").bone("tail.end", (0, 1.50, 1.06), "tail")
    for side, sign in (("R", 1), ("L", -1)):
        for leg, chain in (("fore", FORE), ("hind", HIND)):
            points = [(sign * x, y, z) for x, y, z in chain]
            rig.leg(f"{leg}.{side}", f"{leg}thigh.{side}", f"{leg}shin.{side}", f"{leg}hoof.{side}", "body", *points)
        rig.bone(f"pod.{side}", (sign * 0.44, 1.52, 0.22), "body").bone(f"ear.{side}", grown((sign * 0.10, 2.30, -0.36)), "head")
    return rig


def hull_section(w, h, y, z):
    """Eight corners of the barrel: narrow above, broad in the flanks, flat below."""
    outline = [(-0.45 * w, -h), (0.45 * w, -h), (w, -0.35 * h), (w, 0.30 * h), (0.55 * w, h), (-0.55 * w, h), (-w, 0.30 * h),
               (-w, -0.35 * h)]
    return section(outline, (0, y, z), (0, 0, -1))


def body(figure):
    hull = loft([hull_section(0.16, 0.14, 1.60, 0.92), hull_section(0.36, 0.28, 1.53, 0.76), hull_section(0.39, 0.30, 1.49, 0.34),
                 hull_section(0.36, 0.31, 1.47, -0.20), hull_section(0.27, 0.27, 1.50, -0.48),
                 hull_section(0.13, 0.14, 1.54, -0.62)],
                bands=["trim", "plate", "plate", "plate", "trim"])
    flanks = vent(0.26, 0.13, 5).rotate(y=90).move(0.378, 1.505, 0.14)
    flanks = flanks + flanks.mirror() + vent(0.22, 0.12, 4).rotate(x=14).move(0, 1.44, 0.835)
    figure.part("hull", hull, "body", bevel=0.02, smooth=40, detail=flanks)
    breast = prism([(-0.26, 0.16), (-0.29, -0.02), (0, -0.30), (0.29, -0.02), (0.26, 0.16), (0, 0.24)], 0.14, front=0.72)
    figure.part("breast", breast.drop(lambda c, n: n[2] < -0.9).rotate(y=180).rotate(x=8).move(0, 1.48, -0.62), "body", bevel=0.015)
    saddle = lathe([(0.415, 0.02), (0.425, 0.54)], 6, start=-66, arc=132, close=False).rotate(x=-90).scale(1, 0.86, 1)
    saddle = saddle.move(0, 1.50, 0.52)
    figure.part("saddle", saddle, "body", material="stripe", bevel=0.0, smooth=60)
    croup = lathe([(0.27, 0.0), (0.20, 0.10), (0.0, 0.15)], 6, start=30, close=False).scale(0.95, 1, 1.1)
    figure.part("croup", croup.rotate(x=26).move(0, 1.72, 0.74), "body", bevel=0.012, smooth=70)
    nozzle = lathe([(0.20, 0.0), (0.24, 0.10), (0.17, 0.17), (0.22, 0.30), (0.17, 0.30), (0.10, 0.14), (0, 0.12)], 9, close=False,
                   bands=["trim", "metal", "metal", "plate", "dark", "light"])
    figure.part("jet", nozzle.aim((0, 1.27, 0), (0, 0.95, 0)), "jet", bevel=0.01)
    pod = lathe([(0.0, -0.34), (0.11, -0.28), (0.165, -0.30), (0.175, -0.10), (0.165, 0.14), (0.10, 0.20), (0, 0.16)], 8,
                close=False,
                bands=["light", "dark", "plate", "plate", "metal", "dark"]).rotate(x=62).move(0.53, 1.55, 0.24)
    studs = rivets([(0.175 * np.sin(a), -0.07, 0.175 * np.cos(a)) for a in np.radians(np.arange(22, 360, 45))], (0, 1, 0), 0.018)
    figure.pair("pod", pod, "pod", bevel=0.012, detail=studs.rotate(x=62).move(0.53, 1.55, 0.24))


def neck(figure):
    def ring(w, d, y, z, along):
        return section([(-w, -0.3 * d), (-0.5 * w, -d), (0.5 * w, -d), (w, -0.3 * d), (0.8 * w, 0.5 * d), (0.25 * w, d),
                        (-0.25 * w, d),
                        (-0.8 * w, 0.5 * d)], (0, y, z), along, (0, 0.3, 1))
    lower = loft([ring(0.20, 0.24, 1.46, -0.16, (0, 1, -0.6)), ring(0.235, 0.31, 1.78, -0.33, (0, 1, -0.45)),
                  ring(0.185, 0.27, 2.04, -0.42, (0, 1, -0.1))], caps=(False, True))
    hoses = join(*[tube(curve([(s * 0.245, 1.74, -0.40), (s * 0.225, 1.85, -0.47), (s * 0.195, 1.99, -0.52)], 4), 0.024,
                        6) for s in (-1, 1)])
    figure.part("neck", lower, "neck", bevel=0.012, smooth=45, detail=hoses.material("dark"))
    upper = loft([ring(0.165, 0.215, 1.97, -0.385, (0, 1, -0.2)), ring(0.165, 0.24, 2.16, -0.42, (0, 1, 0.0)),
                  ring(0.13, 0.17, 2.33, -0.38, (0, 1, 0.3))])
    figure.part("crest", grown(upper), "crest", bevel=0.012, smooth=45)
    fin = plate([(-0.02, -0.10), (0.20, -0.02), (0.27, 0.16), (0.06, 0.14), (-0.02, 0.12)], 0.07).drop(lambda c, n: n[0] < -0.9)
    spots = ((1.70, 0.06, "neck", -58, 1.0), (1.90, -0.10, "neck", -70, 1.05), (2.07, -0.17, "crest", -82, 1.05),
             (2.23, -0.19, "crest", -98, 1.0),
             (2.37, -0.25, "crest", -128, 0.85))
    for k, (y, z, bone, tilt, size) in enumerate(spots):
        mane = fin.scale(size).rotate(y=-90).rotate(x=tilt + 84).move(0, y, z)
        figure.part(f"mane{k}", grown(mane) if bone == "crest" else mane, bone, material="stripe", bevel=0.008,
                    like="mane0" if k else None)


def head(figure):
    """Built along -z from the poll and tilted down: forehead, cheeks, nose."""
    def ring(w, h, y, z, top=0.55):
        return section([(-w, -0.35 * h), (-0.5 * w, -h), (0.5 * w, -h), (w, -0.35 * h), (w * 0.95, 0.35 * h), (top * w, h),
                        (-top * w, h),
                        (-w * 0.95, 0.35 * h)], (0, y, z), (0, 0, -1))
    skull = loft([ring(0.12, 0.15, 0.03, 0.10), ring(0.19, 0.23, 0.0, -0.10), ring(0.175, 0.20, 0.01, -0.30),
                  ring(0.115, 0.135, 0.02, -0.56),
                  ring(0.135, 0.14, 0.005, -0.74), ring(0.10, 0.10, -0.01, -0.86)])

    def put(mesh):
        return grown(mesh.rotate(x=-NOSE_DOWN).move(*BROW))
    figure.part("skull", put(skull), "head", bevel=0.012, smooth=42, density=1.5)
    jaw = loft([section(chamfered(w, h, 0.03), (0, y, z), (0, 0, -1)) for w, h, y, z in (
        (0.24, 0.18, -0.19, -0.14), (0.17, 0.10, -0.17, -0.46), (0.15, 0.08, -0.145, -0.78))])
    figure.part("jaw", put(jaw), "jaw", material="metal", bevel=0.008)
    chamfron = prism([(-0.075, 0.31), (-0.115, 0.14), (-0.05, -0.36), (0.05, -0.36), (0.115, 0.14), (0.075, 0.31)], 0.07, front=0.6)
    chamfron = chamfron.drop(lambda c, n: n[2] < -0.9).rotate(x=-90).rotate(y=180)
    figure.part("chamfron", put(chamfron.rotate(x=-7).move(0, 0.190, -0.25)), "head", material="metal", bevel=0.008)
    ear = loft([section([(-0.055, -0.03), (0.055, -0.03), (0.0, 0.07)], (0, 0, 0), (0, 1, 0), (0, 0, 1)),
                section([(-0.07, -0.035), (0.07, -0.035), (0.0, 0.05)], (0, 0.10, 0), (0, 1, 0), (0, 0, 1)),
                section([(-0.008, -0.01), (0.008, -0.01), (0.0, 0.01)], (0, 0.23, 0.02), (0, 1, 0), (0, 0, 1))], caps=(False, True))
    figure.pair("ear", grown(ear.rotate(x=4).rotate(z=-14).move(0.095, 2.30, -0.42)), "ear", bevel=0.006)
    bit = lathe([(0.05, 0.0), (0.06, 0.02), (0.06, 0.05), (0, 0.055)], 7, close=False).rotate(z=-90).move(0.125, -0.07, -0.66)
    figure.part("bit.R", put(bit), "head", material="metal", bevel=0.006)
    figure.part("bit.L", put(bit).mirror(), "head", material="metal", bevel=0.006, like="bit.R", mirrored=True)


def leg(figure, kind, chain, bulk):
    hip, knee, ankle = (np.array(p) for p in chain)
    thigh = loft([section(oval(w, d, 6), at, knee - hip, (0, 0, -1)) for w, d, at in (
        (0.13 * bulk, 0.20 * bulk, hip + (0.0, 0.10, 0)), (0.15 * bulk, 0.23 * bulk, hip * 0.75 + knee * 0.25),
        (0.085, 0.10, knee))],
        bands=["plate", "plate"])
    figure.pair(f"{kind}thigh", thigh, f"{kind}thigh", bevel=0.015, smooth=45)
    joint = cylinder(0.10, 0.22, 7).move(y=-0.11).rotate(z=-90).move(*knee)
    figure.pair(f"{kind}joint", joint, f"{kind}shin", material="metal", bevel=0.01)
    down = ankle - knee
    shin = loft([section(oval(w, d, 6), at, down, (0, 0, -1)) for w, d, at in (
        (0.085, 0.095, knee - down * 0.02), (0.10, 0.13, knee + down * 0.35), (0.055, 0.06, knee + down * 0.70),
        (0.085, 0.10, ankle))],
        bands=["trim", "plate", "metal"], caps=(False, False))
    rod = tube([knee + (0, 0.02, 0.09), knee + down * 0.80 + (0, 0, 0.055)], 0.026, 4, caps=False)
    figure.pair(f"{kind}rod", rod, f"{kind}shin", material="chrome", bevel=0.0)
    figure.pair(f"{kind}shin", shin, f"{kind}shin", bevel=0.012, smooth=40)
    x, _, z = ankle
    hoof = loft([section([(-w, -d * 0.7), (-w * 0.5, -d), (w * 0.5, -d), (w, -d * 0.7), (w * 0.8, d * 0.8), (-w * 0.8, d * 0.8)],
                         (x, y, z + dz), (0, 1, 0), (0, 0, 1)) for w, d, y,
                         dz in ((0.15, 0.20, 0.0, -0.05), (0.115, 0.145, 0.22, -0.01))])
    figure.pair(f"{kind}hoof", hoof, f"{kind}hoof", material="plate", bevel=0.012)


def build():
    figure = Figure("knight", 0.6, skeleton(), seed=71)
    head(figure)
    neck(figure)
    body(figure)
    leg(figure, "fore", FORE, 1.0)
    leg(figure, "hind", HIND, 1.18)
    dock = loft([section(oval(w, d, 6), at, along, (0, 1, 0)) for w, d, at, along in (
        (0.07, 0.07, (0, 1.64, 0.80), (0, 0.3, 1)), (0.11, 0.09, (0, 1.64, 0.98), (0, -0.4, 1)),
        (0.10, 0.09, (0, 1.48, 1.09), (0, -1, 0.4)))],
        caps=(False, False))
    figure.part("tail", dock, "tail", material="stripe", bevel=0.008)
    for side in (1, -1):
        cable = tube(curve([(side * 0.16, 1.86, -0.20), (side * 0.24, 1.80, 0.0), (side * 0.22, 1.72, 0.12)], 2), 0.035,
                     5, caps=False)
        figure.part("cable.R" if side > 0 else "cable.L", cable, "neck", material="dark", bevel=0.0)
    plume = loft([section(oval(w, d, 6), at, along, (0, 0, 1)) for w, d, at, along in (
        (0.115, 0.08, (0, 1.52, 1.08), (0, -1, 0.3)), (0.135, 0.09, (0, 1.20, 1.14), (0, -1, 0.1)),
        (0.02, 0.02, (0, 0.84, 1.16), (0, -1, 0)))])
    figure.part("plume", plume, "tail.end", material="stripe", bevel=0.008)
    return figure


LEGS = ("fore.R", "fore.L", "hind.R", "hind.L")


def look(p, turn, nod=0.0):
    """Neck and head turned to one side by shares."""
    p.turn("neck", y=0.22 * turn, x=0.4 * nod).turn("crest", y=0.43 * turn, x=0.2 * nod)
    p.turn("head", y=0.50 * turn, x=0.5 * nod, z=0.10 * turn)


def stand(p, i):
    """A horse at rest: it watches to one side, tosses its head, shifts a hoof, swings its tail."""
    breath = sway(i, 16)
    toss = keys(i, (0, 0), (9, 0), (10, 1, ease_out), (11, -0.25), (12, 0.7), (13, -0.2), (15, 0), (16, 0))
    p.move("body", y=0.012 * sway(i, 16, 0.25))
    look(p, GAZE + 4 * sway(i, 16, 0.2), 4 * sway(i, 16, 0.1) - 15 * toss)
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"ear.{side}", x=8 * sway(i, 8, 0.25 * sign) + 10 * toss, z=-3 * sign * sway(i, 16, 0.3))
    p.turn("jaw", x=-5 * max(0.0, toss))
    p.turn("tail", y=7 * sway(i, 8), x=2 * breath).turn("tail.end", y=5 * sway(i, 8, -0.15), x=-4 * sway(i, 16, 0.3))
    for name in LEGS:
        p.plant(name)
    paw = keys(i, (0, 0), (2, 0), (3, 1), (4, 0.2), (5, 1), (6, 0), (16, 0))
    p.plant("fore.L", y=0.10 * paw, z=-0.05 * paw, pitch=-24 * paw)


def hover(p, k, i=0):
    """Legs drawn up as in a leap, pods open: k from 0 (standing) to 1."""
    bob = sway(i, 12) * k
    p.move("body", y=0.05 * k + 0.035 * bob)
    p.turn("body", x=3 * k + 1.6 * sway(i, 12, 0.25) * k, z=1.5 * sway(i, 12, 0.4) * k)
    look(p, GAZE * (1 - 0.55 * k), 10 * k + 2 * sway(i, 12, 0.15) * k)
    p.turn("tail", x=52 * k + 4 * sway(i, 12, 0.3) * k)
    p.turn("tail.end", x=14 * k + 7 * sway(i, 12, 0.1) * k, y=5 * sway(i, 12, 0.5) * k)
    for side, sign in (("R", 1), ("L", -1)):
        swing = 2.5 * sway(i, 12, 0.2 * sign) * k
        p.turn(f"forethigh.{side}", x=(70 if sign > 0 else 58) * k + swing, z=4 * sign * k)
        p.turn(f"foreshin.{side}", x=-(122 if sign > 0 else 108) * k + swing).turn(f"forehoof.{side}", x=-22 * k)
        p.turn(f"hindthigh.{side}", x=22 * k - swing, z=6 * sign * k)
        p.turn(f"hindshin.{side}", x=-(96 if sign > 0 else 88) * k + swing).turn(f"hindhoof.{side}", x=-26 * k)
        p.turn(f"pod.{side}", x=-52 * k + 5 * sway(i, 6, 0.3 * sign) * k, z=8 * sign * k)
        p.turn(f"ear.{side}", x=22 * k)


def run_start(p, i):
    """It crouches, kicks off, and draws up its legs; the body hangs in its place, for the board lifts it."""
    crouch = keys(i, (0, 0), (3, 1), (5, 0.0, ease_in), (11, 0))
    k = keys(i, (0, 0), (3, 0.0), (8, 1.06), (11, 1))
    hover(p, max(0.0, k))
    p.move("body", y=-0.17 * crouch).turn("body", x=-4 * crouch)
    p.turn("neck", x=-9 * crouch).turn("tail", x=10 * crouch)
    for side in ("R", "L"):
        p.turn(f"pod.{side}", x=-30 * crouch)
    if i <= 4:
        for name in LEGS:
            p.plant(name)


def run(p, i):
    hover(p, 1.0, i)


def run_end(p, i):
    """The legs come down, take the weight with a dip, and the head goes back to its watch."""
    k = keys(i, (0, 1), (5, 0.0), (11, 0))
    dip = keys(i, (0, 0), (4, 0), (6, 1), (8, -0.10), (11, 0))
    hover(p, k)
    p.move("body", y=-0.15 * dip).turn("body", x=-2 * dip).turn("neck", x=-10 * dip).turn("tail", x=-8 * dip)
    if i >= 5:
        for name in LEGS:
            p.plant(name)


def damage(p, i):
    hit = keys(i, (0, 0), (1, 1, ease_out), (3, 0.4), (5, -0.18), (7, 0))
    p.move("body", z=0.13 * hit, y=-0.05 * abs(hit)).turn("body", x=9 * hit, z=4 * hit)
    look(p, GAZE - 66 * max(0.0, hit), 34 * max(0.0, hit))
    p.turn("jaw", x=-16 * max(0.0, hit)).turn("tail", x=20 * abs(hit)).turn("tail.end", x=16 * hit)
    for side in ("R", "L"):
        p.turn(f"ear.{side}", x=34 * max(0.0, hit)).turn(f"pod.{side}", x=-20 * max(0.0, hit))
    for name in LEGS:
        p.plant(name)
    p.plant("fore.L", y=0.14 * max(0.0, hit), pitch=-20 * max(0.0, hit))


def attack(p, i):
    """In the air: it bows its head, the gun pours down for half a second and lifts the body, and it steadies."""
    aim = keys(i, (0, 0), (1, 1, ease_out), (5, 0.9), (9, 0))
    thrust = keys(i, (0, 0), (1, 0.8), (2, 1), (4, 0.85), (6, -0.25), (9, 0))
    shake = (0.0, 0.8, -1.0, 0.9, -0.6, 0.3, 0.0, 0.0, 0.0, 0.0)[i]
    hover(p, 1.0)
    p.move("body", y=0.13 * thrust, x=0.012 * shake).turn("body", x=3 * thrust + 1.2 * shake, z=1.5 * shake)
    p.move("jet", y=0.03 * shake - 0.05 * aim)
    look(p, -8 * aim, -40 * aim)
    p.turn("jaw", x=-12 * aim).turn("tail", x=14 * thrust)
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"forethigh.{side}", x=16 * thrust).turn(f"hindthigh.{side}", x=-12 * thrust, z=7 * sign * thrust)
        p.turn(f"pod.{side}", x=-12 * thrust + 4 * shake).turn(f"ear.{side}", x=16 * aim)


def death(p, i):
    """It rears, the hind legs give way, and it crashes on its side; the head beats the ground once."""
    rear = keys(i, (0, 0), (1, -0.15), (4, 1, ease_out), (5, 0.98), (8, 0.15, ease_in), (9, 0))
    fall = keys(i, (0, 0), (4, 0), (5, 0.08), (8, 1, ease_in), (9, 0.94), (10, 1))
    beat = keys(i, (0, 0), (8, 0), (9, 1, ease_out), (11, 0, ease_in), (12, 0.25), (13, 0))
    p.turn("body", x=34 * rear, z=-84 * fall, y=-14 * fall).move("body", y=-0.10 * rear, x=0.30 * fall, z=0.10 * rear)
    look(p, GAZE - 60 * rear - 56 * fall, 30 * rear - 16 * fall)
    p.turn("neck", z=14 * fall + 14 * beat).turn("head", z=10 * fall + 8 * beat)
    p.turn("jaw", x=-18 * max(rear, 0.5 * fall))
    for side, sign, stiff in (("R", 1, 0.5), ("L", -1, 1.0)):
        p.turn(f"forethigh.{side}", x=(48 + 14 * sign) * rear + 26 * fall * stiff, z=-8 * fall)
        p.turn(f"foreshin.{side}", x=-90 * rear - 36 * fall * stiff).turn(f"forehoof.{side}", x=-20 * rear - 20 * fall)
        p.turn(f"hindthigh.{side}", x=-30 * rear - 16 * fall * stiff).turn(f"hindshin.{side}", x=-4 * rear + 18 * fall)
        p.turn(f"pod.{side}", x=-40 * rear - 20 * fall).turn(f"ear.{side}", x=26 * max(rear, fall))
    p.turn("tail", x=-16 * rear + 12 * fall, y=-20 * fall).turn("tail.end", y=-16 * fall)
    if i > 8:
        start = p.rig.pose()
        death(start, 8)
        p.fling("pod.L", start.matrices(), i - 8, (-0.20, 0.24, 0.05), (12, 18, 10), 0.17)


def decorate(paint, army):
    white = army == "white"
    armour = paint.material("plate", "trim")
    paint.lines(paint.inset(0.034, 0.010) * paint.part("forehoof", "hindhoof", "breast", "ear") * armour)
    hull = paint.part("hull") * paint.material("plate")
    for z in (0.56, 0.06, -0.30):
        paint.lines(paint.band("z", z, 0.013) * hull)
    paint.lines(paint.band("y", 1.40, 0.012) * hull)
    paint.lay(hull * (1 - paint.above("y", 1.39)), "trim", 0.9)
    saddle = paint.part("saddle")
    paint.lay(saddle * (1 - paint.inset(0.040)), "metal", 0.95).lines(saddle * paint.inset(0.054, 0.010))
    tone = "stripe" if white else "mark"
    paint.lay(paint.part("breast") * (1 - paint.inset(0.026)), "metal", 0.9)
    up = (0, 1, 0)
    paint.outline(horseshoe(0.26), (0, 1.48, -0.70), (-1, 0, 0), up, tone, 0.95, 0.3, ("breast",))
    paint.outline(horseshoe(0.24), (0, 1.84, 0.80), (1, 0, 0), (0, 0.44, -0.90), tone, 0.95, 0.3, ("croup",))
    thighs = paint.part("forethigh", "hindthigh")
    paint.lines(thighs * paint.band("y", 1.12, 0.013))
    for z in (-0.30, 0.60):
        paint.text("II" if white else "A", (0.52, 1.27, z), (0, 0, -1), up, 0.10, depth=0.3, parts=("forethigh", "hindthigh"))
    if not white:
        paint.hazard(thighs * paint.above("y", 1.01) * (1 - paint.above("y", 1.10)), (0, 0.7, 0.7), 0.08)
    else:
        paint.lay(thighs * paint.above("y", 1.03) * (1 - paint.above("y", 1.10)), "stripe", 0.9)
    shins = paint.part("foreshin", "hindshin")
    paint.lines(shins * paint.band("y", 0.56, 0.012))
    paint.lay(paint.part("forehoof", "hindhoof") * (1 - paint.above("y", 0.055)), "metal", 0.9)

    neck = paint.part("neck", "crest") * armour
    for at, direction in (((0, 1.68, -0.28), (0, 1, -0.5)), ((0, 1.79, -0.35), (0, 1, -0.4)), ((0, 2.05, -0.42), (0, 1, -0.05))):
        d = np.array(direction) / np.linalg.norm(direction)
        paint.lines(paint.band(d, float(np.dot(at, d)), 0.013) * neck)
    mane = paint.part("mane")
    paint.lines(mane * paint.inset(0.020, 0.008))

    tilt = rotation(x=-NOSE_DOWN)
    along, high = tilt @ (0, 0, -1), tilt @ (0, 1, 0)
    place = (paint.pos - grown(BROW)) / LARGE
    a, h, u = place @ along, place @ high, place[:, :, 0]
    skull = paint.part("skull")
    paint.lines(skull * paint.soft(abs(a - 0.38), 0.007)).lines(skull * paint.soft(abs(a - 0.66), 0.007))
    paint.lines(skull * paint.soft(abs(h + 0.075 - 0.06 * a), 0.006) * paint.soft(abs(a - 0.3), 0.36))
    cheek = skull * paint.facing(x=1, least=0.3) + skull * paint.facing(x=-1, least=0.3)
    paint.lines(cheek * paint.soft(abs(np.hypot(a - 0.10, h + 0.04) - 0.155), 0.006))
    eye = np.maximum(abs(a - 0.26) / 0.085, abs(h - 0.075 + 0.25 * (a - 0.26)) / 0.045)
    paint.lay(cheek * paint.soft(eye * 0.06, 0.085), "dark", 0.95)
    paint.lamps(cheek * paint.soft(eye * 0.05, 0.035))
    nostril = np.hypot(a - 0.80, (h - 0.02) * 1.2)
    paint.lay(cheek * paint.soft(nostril, 0.040), "dark", 0.95).lamps(cheek * paint.soft(nostril, 0.016))
    paint.lay(skull * paint.soft(abs(a - 0.52), 0.030), "stripe" if white else "trim", 0.9)
    paint.lines(paint.part("chamfron") * paint.inset(0.020, 0.008))
    star = np.abs(u) + np.abs(a - 0.10)
    paint.lamps(paint.part("chamfron") * paint.soft(star, 0.040) * paint.facing(*high, least=0.6))

    pod = paint.part("pod")
    paint.lines(pod * paint.inset(0.024, 0.009) * paint.material("plate"))
    paint.text("8" if white else "X", (0.71, 1.55, 0.24), (0, 0, -1), up, 0.11, depth=0.3, parts=("pod",))
    for k in np.radians(np.arange(0, 360, 45)):
        paint.rivets([(0.24 * np.sin(k), 1.17, 0.24 * np.cos(k))], 0.016, paint.part("jet"))
    for x in (-0.30, 0.30):
        for z in (-0.10, 0.16, 0.42, 0.66):
            paint.rivets([(x * 1.2, 1.60, z)], 0.018, hull)
    return {"spill": 0.08, "wear": 0.95 if white else 0.75}


def horseshoe(size):
    """The army's mark: a horseshoe, about `size` high, open below."""
    outer = [(5 * np.cos(a), 1 + 5 * np.sin(a)) for a in np.radians(np.linspace(-58, 238, 12))]
    inner = [(2.9 * np.cos(a), 1 + 2.9 * np.sin(a)) for a in np.radians(np.linspace(238, -58, 12))]
    return [(x * size / 11, y * size / 11) for x, y in outer + inner]


if __name__ == "__main__":
    knight = build()
    print("triangles", knight.triangles())
    knight.clip("stand", 16, stand).clip("run_start", 12, run_start).clip("run", 12, run).clip("run_end", 12, run_end)
    knight.clip("damage", 8, damage).clip("attack", 10, attack).clip("death", 24, death, ground=True)
    baked = knight.bake()
    write_pictures(knight, baked, decorate)
    knight.write(baked.uv)

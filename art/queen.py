"""The queen: slender, in a gown of armour petals, under a coronet of pearls; she flies on the jet in her train."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *

ATTACK = 92
SHOULDER, ELBOW, WRIST = (0.34, 2.24, 0.02), (0.50, 1.86, 0.14), (0.47, 1.62, -0.22)
JET = np.array((0, 0.30, 0.60))
HEADINGS = {"back": 0, "back.R": 58, "side.R": 116, "front": 180, "side.L": 244, "back.L": 302}
FLIGHT = 0.22  # how high she hovers


def skeleton():
    rig = Rig().bone("root", (0, 0, 0)).bone("body", (0, 1.45, 0), "root").bone("gown", (0, 1.45, 0), "body")
    for name, heading in HEADINGS.items():
        out = rotation(y=heading) @ (0, 0, 1)
        rig.bone(f"petal.{name}", (0.20 * out[0], 1.36, 0.20 * out[2]), "gown")
    rig.bone("jet", (0, 0.72, 0.34), "gown").bone("chest", (0, 1.58, 0), "body").bone("fan", (0, 2.28, 0.16), "chest")
    rig.bone("head", (0, 2.46, 0), "chest").bone("coronet", (0, 2.82, 0.02), "head")
    for side, sign in (("R", 1), ("L", -1)):
        def at(point):
            return (sign * point[0], *point[1:])
        rig.bone(f"shoulder.{side}", at((0.27, 2.28, 0.02)), "chest").bone(f"ribbon.{side}", at((0.20, 2.16, 0.22)), "chest")
        rig.leg(f"arm.{side}", f"upper.{side}", f"fore.{side}", f"hand.{side}", "chest", at(SHOULDER), at(ELBOW), at(WRIST))
    return rig


def petal(low, reach, width, hem, knee=(0.62, 0.50)):
    """A plate of the gown, hanging from the waist towards +z; its point touches y = `low`."""
    stations = ((1.44, 0.205, 0.10), (1.12, 0.29, 0.20), (*knee, width), (hem, reach - 0.02, width * 0.92), (low, reach + 0.05, 0.0))
    v, f, m = [], [], []
    for y, z, w in stations:
        bow = 0.30 * w
        if w > 0:
            v += [(-w, y, z - bow), (0, y, z), (w, y, z - bow)]
    point = len(v)
    v.append((0, low, reach + 0.05))
    rows = point // 3
    for level in range(rows - 1):
        for k in range(2):
            a = level * 3 + k
            f.append((a + 3, a + 4, a + 1, a))
            m.append(None)
    last = (rows - 1) * 3
    f += [(last, point, last + 1), (last + 1, point, last + 2)]
    m += [None, None]
    outer = Mesh(v, f, m)
    inner = Mesh(np.array(v) - (0, 0, 0.05), [face[::-1] for face in f], ["trim"] * len(f))
    rim, shift = [], len(v)
    ring = [3 * k for k in range(rows)] + [point] + [3 * k + 2 for k in reversed(range(rows))]
    for a, b in zip(ring, ring[1:]):
        rim.append((a + shift, b + shift, b, a))
    return Mesh(np.vstack([outer.v, inner.v]), outer.f + [[i + shift for i in face] for face in inner.f] + rim,
                outer.m + inner.m + ["metal"] * len(rim))


def gown(figure):
    core = lathe([(0.40, 0.34), (0.36, 0.42), (0.27, 0.95), (0.17, 1.40)], 8, start=22.5, bands=["light", "trim", "trim"])
    figure.part("core", core.drop(lambda c, n: n[1] > 0.95), "gown", bevel=0.0, density=0.5)
    broad, narrow = petal(0.0, 0.70, 0.29, 0.22), petal(0.0, 0.62, 0.25, 0.26)
    for name, heading in HEADINGS.items():
        if name == "back":
            train = petal(0.72, 0.45, 0.21, 0.84, (0.98, 0.345)).rotate(y=heading)
            figure.part("petal.back", train, "petal.back", bevel=0.008)
            continue
        shape, first = (broad, "petal.back.R") if name.startswith("back") else (narrow, "petal.side.R")
        if name == "front":
            shape, first = narrow, "petal.side.R"
        figure.part(f"petal.{name}", shape.rotate(y=heading), f"petal.{name}", bevel=0.008,
                    like=None if name == first[6:] else first)
    nozzle = lathe([(0.10, 0.0), (0.15, 0.16), (0.13, 0.30), (0.21, 0.50), (0.17, 0.50), (0.07, 0.30)], 9, close=False,
                   bands=["trim", "metal", "metal", "plate", "light"])
    start = JET + 0.5 * np.array((0, 0.894, -0.447))
    figure.part("jet", nozzle.aim(start, JET), "jet", bevel=0.008)
    mount = loft([section(oval(0.10, 0.08, 5), (0, 0.98, 0.22), (0, -1, 0.3), (0, 0, -1)),
                  section(oval(0.12, 0.10, 5), (0, 0.70, 0.40), (0, -1, 0.4), (0, 0, -1))], caps=(False, False))
    figure.part("mount", mount, "jet", material="dark", bevel=0.0)


def torso(figure):
    waist = lathe([(0.23, 1.36), (0.175, 1.52), (0.20, 1.70), (0.275, 1.98), (0.285, 2.10), (0.22, 2.26), (0.09, 2.36)],
                  10, start=18,
                  close=False, bands=["trim", "plate", "plate", "plate", "plate", "metal"]).scale(1.12, 1, 0.78)
    hoops = join(*[lathe([(0.176 + r, 1.53 + 0.06 * k), (0.186 + r, 1.545 + 0.06 * k), (0.176 + r, 1.56 + 0.06 * k)], 20,
                         close=False)
                   for k, r in enumerate((0.0, 0.006, 0.014))]).scale(1.12, 1, 0.78).material("metal")
    figure.part("torso", waist, "chest", bevel=0.01, smooth=42, detail=hoops)
    figure.part("girdle", lathe([(0.245, 1.36), (0.262, 1.44), (0.20, 1.50)], 10, start=18, close=False), "body", material="metal",
                bevel=0.008)
    stomacher = prism([(-0.17, 0.17), (-0.06, -0.24), (0, -0.34), (0.06, -0.24), (0.17, 0.17), (0, 0.22)], 0.06, front=0.82)
    figure.part("stomacher", stomacher.drop(lambda c, n: n[2] < -0.9).rotate(y=180).rotate(x=-9).move(0, 1.93, -0.222), "chest",
                material="metal", bevel=0.008)
    figure.part("neck", cylinder(0.085, 0.20, 6, top=0.075).move(0, 2.30, 0), "chest", material="dark", bevel=0.0)
    blade = plate([(-0.06, 0.0), (0.06, 0.0), (0.125, 0.42), (0, 0.60), (-0.125, 0.42)], 0.035)
    blade = blade.drop(lambda c, n: n[1] < -0.9)
    for k in range(5):
        lean = -68 + 34 * k
        height = 1.0 if k == 2 else 0.96 if k in (1, 3) else 0.86
        turned = blade.scale(1, height, 1).rotate(x=20).rotate(z=-lean).rotate(y=lean * 0.35)
        figure.part(f"blade{k}", turned.move(0, 2.26, 0.17), "fan",
                    bevel=0.006, like="blade0" if k else None)
    ribbon = loft([[(x - w, y, z), (x + w, y, z), (x + w, y, z + 0.03), (x - w, y, z + 0.03)] for w, x, y, z in (
        (0.11, 0.46, 0.80, 0.52), (0.085, 0.36, 1.28, 0.40), (0.07, 0.26, 1.75, 0.33), (0.055, 0.20, 2.20, 0.19))])
    ribbon = ribbon.flip().warp(lambda x, y, z: (x, y - 0.16 * (x > 0.46) * (y < 0.9), z))
    figure.pair("ribbon", ribbon, "ribbon", material="stripe", bevel=0.004)
    spine = plate([(-0.10, 0.20), (-0.13, 0.0), (-0.05, -0.30), (0.05, -0.30), (0.13, 0.0), (0.10, 0.20)], 0.10, 0.03)
    figure.part("spine", spine.drop(lambda c, n: n[2] < -0.9).rotate(x=7).move(0, 2.04, 0.24), "chest", material="trim", bevel=0.01)


def head(figure):
    mask = loft([section(oval(w, d, 8, 22.5), (0, y, z), (0, 1, 0), (0, 0, -1)) for w, d, y, z in (
        (0.045, 0.05, 2.405, -0.10), (0.125, 0.155, 2.50, -0.035), (0.185, 0.225, 2.66, 0.0), (0.18, 0.225, 2.80, 0.015))],
        caps=(True, False))
    figure.part("head", mask, "head", bevel=0.008, smooth=50, density=1.5)
    hair = loft([section(oval(w, d, 6), (0, y, z), n, (0, 0, 1)) for w, d, y, z, n in (
        (0.15, 0.10, 2.82, 0.10, (0, -1, 0.2)), (0.17, 0.13, 2.68, 0.20, (0, -1, 0.5)), (0.10, 0.08, 2.46, 0.25, (0, -1, 0.0)))],
        caps=(False, True))
    figure.part("hair", hair, "head", material="metal", bevel=0.0, smooth=50)
    band = lathe([(0.205, 2.76), (0.245, 2.79), (0.30, 2.93), (0.255, 2.93), (0.21, 2.84)], 10, start=18, close=False,
                 bands=["plate", "metal", "metal", "dark"])
    figure.part("band", band.move(0, 0, 0.02), "coronet", material="metal", bevel=0.008, smooth=40, density=1.3)
    crest = lathe([(0.225, 2.84), (0.15, 2.95), (0.0, 2.99)], 8, close=False).material("stripe")
    figure.part("crest", crest.move(0, 0, 0.02), "coronet", bevel=0.0, smooth=60)
    spike = Mesh([(-0.075, 0, 0.0), (0.075, 0, 0.0), (0, 0, 0.035), (0, 0.27, 0.02)], [(0, 2, 3), (2, 1, 3), (1, 0, 3)])
    pearl = Mesh([(0, 0.075, 0), (0, -0.06, 0), (0.072, 0, 0), (0, 0, 0.072), (-0.072, 0, 0), (0, 0, -0.072)],
                 [(0, 3, 2), (0, 4, 3), (0, 5, 4), (0, 2, 5), (1, 2, 3), (1, 3, 4), (1, 4, 5), (1, 5, 2)]).material("light")
    point = (spike + pearl.move(0, 0.30, 0.02)).rotate(x=22).move(0, 2.915, 0.275)
    for k in range(8):
        figure.part(f"point{k}", point.rotate(y=45 * k + 22.5).move(0, 0, 0.02), "coronet", material="metal", bevel=0.0, smooth=60,
                    like="point0" if k else None, density=1.3)
    pearl_top = ball(0.075, 6, 4).move(0, 3.03, 0.02).material("light")
    figure.part("pearl", pearl_top, "coronet", bevel=0.0, smooth=70)


def arms(figure):
    cap = lathe([(0.155, -0.10), (0.16, 0.0), (0.10, 0.10), (0, 0.14)], 8, close=False, bands=["metal", "plate", "plate"])
    figure.pair("shoulder", cap.rotate(z=-32).move(0.335, 2.24, 0.02), "shoulder", bevel=0.008, smooth=45)
    upper = loft([section(oval(w, w, 6), at, np.subtract(ELBOW, SHOULDER), (0, 0, -1)) for w, at in (
        (0.07, SHOULDER), (0.082, (0.42, 2.05, 0.08)), (0.055, ELBOW))], caps=(False, False))
    figure.pair("upper", upper, "upper", material="trim", bevel=0.0)
    along = np.subtract(WRIST, ELBOW)
    fore = loft([section(oval(w, w, 7), at, along, (0, 1, 0)) for w, at in (
        (0.075, np.array(ELBOW) - along * 0.12), (0.115, np.array(ELBOW) + along * 0.25), (0.065, np.array(WRIST)))],
        bands=["metal", "plate"])
    figure.pair("fore", fore, "fore", bevel=0.008, smooth=45)
    palm = loft([section(chamfered(w, h, 0.02), np.array(WRIST) + (x, y, z), (0, -0.1, -1), (0, 1, 0)) for w, h, x, y, z in (
        (0.08, 0.07, 0, 0, 0.0), (0.13, 0.07, 0, 0, -0.10))], caps=(False, True))
    fingers = join(*[tube([np.array(WRIST) + p for p in ((x, 0.0, -0.09), (x * 1.3, 0.015, -0.18), (x * 1.2, -0.03, -0.26))],
                          (0.020, 0.018, 0.006), 3, caps=False) for x in (-0.045, 0.0, 0.045)])
    thumb = tube([np.array(WRIST) + p for p in ((-0.055, 0.0, -0.04), (-0.10, 0.02, -0.12))], (0.020, 0.006), 3, caps=False)
    figure.pair("hand", palm + fingers + thumb, "hand", material="metal", bevel=0.0)


def build():
    figure = Figure("queen", 2.6, skeleton(), seed=53)
    head(figure)
    torso(figure)
    arms(figure)
    gown(figure)
    return figure


def hands(p, x=0.0, y=0.0, z=0.0, pitch=0.0, yaw=0.0, roll=0.0, lift=0.0):
    """Both hands, mirrored, relative to standing; `lift` raises the left one more."""
    for side, sign in (("R", 1), ("L", -1)):
        p.plant(f"arm.{side}", sign * x, y + (lift if sign < 0 else 0.0), z, pitch, sign * yaw, sign * roll,
                knee=(sign * 0.6, -0.3, 0.2))


def ribbons(p, back=0.0, spread=0.0, i=0, stir=0.0, period=16):
    """The two streamers behind her shoulders."""
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"ribbon.{side}", x=-back + stir * sway(i, period, 0.2 * sign), z=sign * (spread + 0.6 * stir * sway(i, period, 0.3)))


def petals(p, spread=0.0, back=0.0, i=0, stir=0.0, period=16):
    """The gown opens by `spread` degrees and is blown back by `back`."""
    for k, (name, heading) in enumerate(HEADINGS.items()):
        out = rotation(y=heading) @ (0, 0, 1)
        open_by = spread + stir * sway(i, period, 0.17 * k)
        p.turn(f"petal.{name}", x=-open_by * out[2] - back * (1.0 if out[2] < 0.5 else 0.6), z=open_by * out[0])


def stand(p, i):
    """She stands on the points of her gown and breathes; the head follows the game, the hands are ready."""
    breath = sway(i, 16)
    look = keys(i, (0, 0), (2, 0), (5, -20), (8, -20), (11, 15), (14, 15), (16, 0))
    p.turn("chest", x=1.2 * breath, y=0.2 * look, z=1.2 * sway(i, 16, 0.25)).move("chest", y=0.012 * breath)
    p.turn("head", y=0.8 * look, x=2.5 * sway(i, 8, 0.2), z=0.12 * look).turn("fan", x=1.5 * sway(i, 16, 0.4))
    ribbons(p, 0.0, 0.0, i, 2.0)
    hands(p, x=0.02 * sway(i, 16, 0.1), y=0.02 * breath, z=0.015 * sway(i, 16, 0.3), pitch=6 * sway(i, 16, 0.3),
          lift=0.02 * sway(i, 16, 0.4))


def fly(p, k, i=0):
    """Hovering flight: k from 0 (standing) to 1; i moves the bob."""
    bob = sway(i, 12) * k
    p.move("body", y=k * FLIGHT + 0.045 * bob, z=-0.20 * k)
    p.turn("body", x=-14 * k + 1.5 * sway(i, 12, 0.2) * k, z=1.5 * sway(i, 12, 0.35) * k)
    p.turn("chest", x=-3 * k + 1.2 * sway(i, 12, 0.3) * k).turn("head", x=15 * k - 1.5 * sway(i, 12, 0.3) * k)
    p.turn("fan", x=6 * k + 2.0 * sway(i, 6, 0.1) * k)
    petals(p, 6 * k, 13 * k, i, 2.5 * k, 12)
    ribbons(p, 26 * k, 6 * k, i, 6.0 * k, 6)
    p.move("jet", y=-0.34 * k - 0.03 * bob, z=-0.10 * k).turn("jet", x=14 * k)  # the nozzle comes out to where its flame is
    hands(p, x=0.18 * k, y=0.36 * k + 0.03 * bob, z=0.34 * k + 0.02 * sway(i, 12, 0.4) * k, pitch=-40 * k, roll=26 * k)


def run_start(p, i):
    """A dip to gather strength, then up."""
    fly(p, keys(i, (0, 0), (1, -0.0), (2, 0.55, ease_in), (4, 1, ease_out)))
    dip = keys(i, (0, 0), (1, 1), (2, 0.2), (3, 0))
    p.turn("chest", x=-8 * dip).turn("head", x=-6 * dip).move("chest", y=-0.05 * dip)


def run(p, i):
    fly(p, 1.0, i)


def run_end(p, i):
    """She settles with a sway and stands."""
    fly(p, keys(i, (0, 1), (1, 0.72), (3, 0.10), (4, 0)))
    brake = keys(i, (0, 0), (1, 1), (2, 0.8), (4, 0))
    p.turn("body", x=9 * brake).turn("head", x=-6 * brake)


def damage(p, i):
    hit = keys(i, (0, 0), (1, 1, ease_out), (3, 0.3), (5, -0.18), (7, 0))
    p.move("body", z=0.15 * hit, y=0.03 * abs(hit)).turn("body", x=8 * hit, y=-6 * hit)
    p.turn("gown", x=-8 * hit).turn("chest", x=15 * hit, y=-14 * hit).turn("head", x=18 * hit, y=10 * hit, z=-8 * hit)
    p.turn("fan", x=-10 * hit)
    petals(p, 4 * abs(hit), -7 * hit)
    ribbons(p, -12 * hit, 10 * abs(hit))
    hands(p, x=0.12 * abs(hit), y=0.34 * abs(hit), z=0.04 * hit, pitch=61 * abs(hit), lift=0.12 * abs(hit))


def attack(p, i):
    """She rises a little, lifts her hands about the place before her, at (0, 1.8, -1.5), gathers and
    holds, and lowers them at the end."""
    up = keys(i, (0, 0), (2, -0.10), (8, 1.04, ease_out), (12, 1), (ATTACK - 6, 1), (ATTACK - 1, 0))
    gather = keys(i, (8, 0), (16, 1), (ATTACK - 10, 1), (ATTACK - 4, 0))
    strain = gather * (1.0 + 0.5 * keys(i, (20, 0), (52, 1), (60, 0.2)))
    slow, quick = wave(i, 23), wave(i, 4, 0.1) * strain
    p.move("body", y=0.16 * max(0.0, up) + 0.035 * slow * gather, z=-0.16 * up)
    p.turn("body", x=-8 * up + 1.5 * slow * gather, z=1.2 * wave(i, 31) * gather)
    p.turn("chest", x=-3 * up + 1.2 * wave(i, 17) * gather - 3 * strain * 0.5, y=2.5 * wave(i, 37) * gather)
    p.turn("head", x=11 * up + 1.5 * wave(i, 19) * gather - 5 * keys(i, (14, 0), (30, 1), (70, 1), (84, 0)),
           y=2 * wave(i, 41) * gather)
    p.turn("fan", x=-14 * up + 1.2 * quick)
    petals(p, 9 * max(0.0, up) + 3 * gather, 0.0, i, 2.0 * gather, 23)
    ribbons(p, 14 * up + 16 * gather, 10 * up, i, 5.0 * gather, 8)
    squeeze = 0.045 * wave(i, 13) * gather
    hands(p, x=-0.13 * up - 0.10 * gather + squeeze, y=0.15 * up + 0.012 * quick + 0.02 * slow * gather,
          z=-0.84 * up + 0.012 * quick, pitch=14 * up + 3 * quick, yaw=20 * up, roll=-62 * up, lift=0.03 * wave(i, 29) * gather)


def death(p, i):
    """She throws up her hands, the jet fails, she turns, sinks into her gown and falls aside; the coronet rolls away."""
    gasp = keys(i, (0, 0), (2, 1, ease_out), (4, 0.9), (7, 0))
    sink = keys(i, (0, 0), (2, -0.12), (6, 1, ease_in), (7, 0.94), (8, 1))
    fall = keys(i, (0, 0), (6, 0), (7, 0.08), (11, 1, ease_in), (12, 0.95), (13, 1))
    p.move("body", x=-0.30 * fall, y=-0.34 * sink - 0.36 * fall).turn("body", z=80 * fall, y=-35 * sink, x=-6 * sink)
    p.turn("chest", x=20 * gasp - 20 * sink * (1 - fall), z=10 * fall)
    p.turn("head", x=26 * gasp - 26 * sink * (1 - 0.4 * fall), z=16 * fall).turn("fan", x=-16 * sink)
    petals(p, 30 * max(0.0, sink) * (1 - 0.55 * fall), 0.0)
    ribbons(p, 20 * gasp + 12 * fall, 20 * gasp)
    for side, sign in (("R", 1), ("L", -1)):
        p.turn(f"upper.{side}", z=sign * (70 * gasp + 14 * fall), x=30 * sink - 20 * fall)
        p.turn(f"fore.{side}", x=30 * gasp - 20 * sink)
    if i > 7:
        start = p.rig.pose()
        death(start, 7)
        p.fling("coronet", start.matrices(), i - 7, (-0.17, 0.20, -0.10), (-7, 12, 22), 0.16)


def decorate(paint, army):
    white = army == "white"
    plates = paint.material("plate")
    leaves = paint.part("petal") * plates
    border = "metal" if white else "trim"
    paint.lay((1 - paint.inset(0.026)) * leaves, border, 0.95)
    paint.lines(paint.inset(0.038, 0.009) * leaves)
    round_axis = np.hypot(paint.pos[:, :, 0], paint.pos[:, :, 2])
    for y in (0.55, 0.89, 1.02):
        paint.lines(paint.band("y", y, 0.011) * leaves)
    paint.lay(paint.above("y", 0.905) * (1 - paint.above("y", 1.01)) * leaves, "stripe" if white else "mark", 0.85)
    for name, heading in HEADINGS.items():
        if name not in ("back.R", "side.R", "back"):
            continue
        out, across = rotation(y=heading) @ (0, 0, 1), rotation(y=heading) @ (1, 0, 0)
        middle = paint.soft(np.abs(paint.pos @ across), 0.010)
        paint.lines(middle * leaves * paint.part(f"petal.{name}") * (1 - paint.above("y", 0.86)))
        if name == "back":
            paint.outline(crest_mark(0.15), (0, 0.90, 0.40), across, (0, 1, 0), "mark", 0.95, 0.4, ("petal.back",))
            continue
        place = out * (0.60 if name == "back.R" else 0.54) + (0, 0.40, 0)
        paint.outline(crest_mark(0.22), place, across, (0, 1, 0), "stripe" if white else "mark", 0.95, 0.4, (f"petal.{name}",))
    paint.lamps(paint.soft(abs(paint.rim - 0.055), 0.006) * leaves * (1 - paint.above("y", 0.50)))

    corset = paint.part("torso") * plates
    angle = np.degrees(np.arctan2(paint.pos[:, :, 0], paint.pos[:, :, 2] * 1.4))
    ribs = paint.soft(np.abs(angle / 36 - np.rint(angle / 36)) * np.radians(36) * round_axis, 0.005)
    paint.lines(ribs * corset * (1 - paint.above("y", 1.98)))
    paint.lines(paint.band("y", 1.98, 0.010) * corset)
    paint.lay(corset * (1 - paint.above("y", 1.98)) * paint.above("y", 1.60), "stripe" if white else "trim", 0.85)
    paint.lines(paint.part("stomacher") * paint.inset(0.022, 0.008))
    paint.lamps(paint.near((0, 1.99, -0.25), 0.048) * paint.part("stomacher"))
    blades = paint.part("blade")
    paint.lay(blades * (1 - paint.inset(0.020)), border, 0.9)
    ribbon = paint.part("ribbon")
    paint.lay(ribbon * (1 - paint.inset(0.018)), border, 0.9)
    if not white:
        paint.lay(ribbon * paint.inset(0.018), paint.tone("stripe") * 0.55)
    paint.lay(blades * paint.material("plate") * paint.inset(0.034) * np.maximum(paint.facing(z=1), paint.facing(z=-1)),
              "stripe" if white else "trim", 0.85)
    paint.lines(paint.part("shoulder", "fore", "spine") * paint.inset(0.022, 0.008) * paint.material("plate", "trim"))
    for side in (1, -1):
        down = (np.array(WRIST) - ELBOW) * (side, 1, 1)
        down /= np.linalg.norm(down)
        for t in (0.17, 0.30):
            place = float(np.dot(np.array(ELBOW) * (side, 1, 1), down)) + t
            own = paint.part("fore") * plates * (paint.pos[:, :, 0] * side > 0)
            paint.lamps(paint.band(down, place, 0.016) * own)

    u, v = paint.pos[:, :, 0], paint.pos[:, :, 1]
    face = paint.part("head") * paint.facing(z=-1, least=0.35)
    paint.lines(face * paint.soft(abs(u), 0.004) * (1 - paint.above("y", 2.56)))
    paint.lines(paint.part("head") * paint.soft(abs(abs(u) - 0.125 + 0.25 * (2.66 - v)), 0.006) * (1 - paint.above("y", 2.62)))
    slant = v - 2.645 - 0.22 * (abs(u) - 0.08)
    paint.lay(face * paint.soft(abs(slant), 0.036) * paint.soft(abs(abs(u) - 0.083), 0.066), "dark", 0.95)
    paint.lamps(face * paint.soft(abs(slant), 0.019) * paint.soft(abs(abs(u) - 0.083), 0.046))
    paint.lay(face * paint.soft(abs(v - 2.475), 0.012) * paint.soft(abs(u), 0.036), "wear" if white else "mark", 0.9)
    paint.lay(paint.part("crest"), paint.tone("stripe") * 0.42)
    hair = paint.part("hair")
    paint.lines(hair * paint.soft(np.abs(u / 0.05 - np.rint(u / 0.05)) * 0.05, 0.005))
    for a in np.radians(np.arange(0, 360, 45)):
        gem = (0.272 * np.sin(a), 2.855, 0.272 * np.cos(a) + 0.02)
        paint.lay(paint.near(gem, 0.042) * paint.part("band"), "line", 0.8).lamps(paint.near(gem, 0.030) * paint.part("band"))
    for a in np.radians(np.arange(0, 360, 36)):
        paint.rivets([(0.255 * np.sin(a), 1.405, 0.255 * np.cos(a))], 0.014, paint.part("girdle"))
    return {"spill": 0.045, "gain": 1.25 if white else 1.15, "wear": 0.55 if white else 0.45, "grime": 0.7, "dust": 0.3,
            "streaks": 0.3}


def crest_mark(size):
    """The army's mark: a small coronet, about `size` wide."""
    points = [(-5, -3), (5, -3), (6, 3), (3, 0), (0, 5), (-3, 0), (-6, 3)]
    return [(x * size / 12, y * size / 12) for x, y in points]


if __name__ == "__main__":
    queen = build()
    print("triangles", queen.triangles())
    queen.clip("stand", 16, stand).clip("run_start", 5, run_start).clip("run", 12, run).clip("run_end", 5, run_end)
    queen.clip("damage", 8, damage).clip("attack", ATTACK, attack).clip("death", 24, death, ground=True)
    baked = queen.bake()
    write_pictures(queen, baked, decorate)
    queen.write(baked.uv)

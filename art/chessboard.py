"""The board: a floating arena. Sixty-four stone fields in metal joints, a band of engraved coordinates, a walkway with
hatches and gratings, a parapet with lamps, machinery on the flanks, four corner towers and their pylons.

Fields, band and walkway are flush at y = 0: figures stand and walk there. All of relief on them is in the picture."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *  # noqa: E402,F403

FIELD = 3.5
STEP = (FIELD / 20, FIELD / 40, FIELD / 20)  # grid of the packed vertices: planes and field edges lie on it
LOW = (-22.4, -18.8125, -22.4)
EDGE, BAND, WALK, RIM = 14.0, 15.4, 17.85, 19.25  # from the middle: fields, coordinates, walkway, parapet end here
TOWER = 18.2  # the middle of a corner tower, along both axes
FLAMES = ((-19.2, 19.45), (-19.2, -18.9), (18.35, -19.05), (18.35, 19.25))
MOUTH = -18.8

PALETTE = {
    "stone_light": (0.70, 0.68, 0.65),
    "stone_dark": (0.41, 0.42, 0.48),
    "plate": (0.50, 0.51, 0.56),
    "trim": (0.36, 0.37, 0.43),
    "metal": (0.62, 0.47, 0.29),
    "dark": (0.12, 0.12, 0.14),
    "chrome": (0.74, 0.75, 0.78),
    "light": (0.80, 0.66, 1.00),
    "mark": (1.00, 0.93, 0.72),
    "wear": (0.80, 0.80, 0.82),
    "grime": (0.12, 0.10, 0.10),
    "dust": (0.40, 0.38, 0.40),
    "line": (0.10, 0.10, 0.12),
    "stripe": (0.78, 0.58, 0.20),
    "hot": (1.00, 0.62, 0.24),
}


def quad(x0, x1, z0, z1, y=0.0):
    """A level rectangle that faces up."""
    return Mesh([(x0, y, z0), (x0, y, z1), (x1, y, z1), (x1, y, z0)], [(0, 1, 2, 3)])


def slab(x0, x1, z0, z1, top=0.0, thick=0.14):
    """A plate of the twin."""
    return box(x1 - x0, thick, z1 - z0).move((x0 + x1) / 2, top - thick / 2, (z0 + z1) / 2)


def bed(x0, x1, z0, z1, depth=0.14):
    """What shows in the joints between the plates of the twin."""
    return quad(x0, x1, z0, z1, -depth).material("dark")


# Fields


def field_centre(column, row):
    return -12.25 + FIELD * column, 12.25 - FIELD * row


def field_twin(x, z, kind):
    """A stone slab in a metal joint, with a stud in each corner."""
    half = FIELD / 2
    joint = join(
        *[slab(x - half, x + half, z - 0.05, z + 0.05, -0.01).move(0, 0, side * (half - 0.05)) for side in (-1, 1)],
        *[slab(x - 0.05, x + 0.05, z - half, z + half, -0.01).move(side * (half - 0.05)) for side in (-1, 1)],
    )
    stone = prism(chamfered(FIELD - 0.30, FIELD - 0.30, 0.30), 0.14).rotate(x=-90).move(x, -0.07, z)
    studs = join(
        *[
            lathe([(0.115, -0.1), (0.115, -0.015), (0.08, 0.01), (0, 0.01)], 12, close=False).move(
                x + sx * (half - 0.17), 0, z + sz * (half - 0.17)
            )
            for sx in (-1, 1)
            for sz in (-1, 1)
        ]
    )
    return (
        stone.material(kind)
        + joint.material("metal")
        + studs.material("metal")
        + bed(x - half, x + half, z - half, z + half)
    )


def add_fields(figure):
    """Eight slabs have pictures of their own, the rest are those again, turned about."""
    rng = np.random.default_rng(64)
    first = {}
    for row in range(8):
        for column in range(8):
            kind = "stone_dark" if (row + column) % 2 == 0 else "stone_light"
            x, z = field_centre(column, row)
            half = FIELD / 2
            variant = (kind, int(rng.integers(4)))
            turn = 90 * int(rng.integers(4))
            if variant not in first:
                first[variant] = (f"field.{column}{row}", x, z)
                figure.part(
                    first[variant][0],
                    quad(x - half, x + half, z - half, z + half),
                    material=kind,
                    bevel=0.035,
                    high=field_twin(x, z, kind),
                )
                continue
            name, x0, z0 = first[variant]
            copy = figure.get(name).mesh.rotate(y=turn, about=(x0, 0, z0)).move(x - x0, 0, z - z0)
            figure.part(f"field.{column}{row}", copy, material=kind, like=name)


# The band of coordinates


def arc(cx, cy, rx, ry, start, end, n=14):
    a = np.radians(np.linspace(start, end, n))
    return [(cx + rx * np.cos(t), cy + ry * np.sin(t)) for t in a]


BOWL = arc(0.5, 0.5, 0.5, 0.5, 0, 360, 24)
GLYPHS = {
    "a": (BOWL, [(1, 1), (1, 0)]),
    "b": (BOWL, [(0, 1.6), (0, 0)]),
    "c": (arc(0.5, 0.5, 0.5, 0.5, 45, 315),),
    "d": (BOWL, [(1, 1.6), (1, 0)]),
    "e": ([(0, 0.5), (1, 0.5)], arc(0.5, 0.5, 0.5, 0.5, 0, 315)),
    "f": (arc(0.78, 1.2, 0.4, 0.4, 60, 180) + [(0.38, 0)], [(0.05, 0.95), (0.85, 0.95)]),
    "g": (BOWL, [(1, 1), (1, 0)] + arc(0.5, -0.08, 0.5, 0.45, 0, -150)),
    "h": ([(0, 1.6), (0, 0)], arc(0.5, 0.5, 0.5, 0.5, 180, 0) + [(1, 0)]),
    "1": ([(0.12, 1.25), (0.52, 1.6), (0.52, 0)], [(0.12, 0), (0.92, 0)]),
    "2": (arc(0.5, 1.13, 0.48, 0.47, 165, -38) + [(0.02, 0), (1, 0)],),
    "3": (arc(0.48, 1.22, 0.42, 0.38, 150, -90), arc(0.48, 0.42, 0.5, 0.42, 90, -150)),
    "4": ([(0.74, 0), (0.74, 1.6), (0, 0.5), (1, 0.5)],),
    "5": ([(0.92, 1.6), (0.14, 1.6), (0.08, 0.88)] + arc(0.48, 0.5, 0.5, 0.5, 140, -145),),
    "6": (BOWL, arc(0.92, 0.5, 0.92, 1.12, 180, 98)),
    "7": ([(0, 1.6), (1, 1.6), (0.36, 0)],),
    "8": (arc(0.5, 1.2, 0.4, 0.4, 0, 360, 24), arc(0.5, 0.4, 0.5, 0.4, 0, 360, 24)),
}
LETTER = 0.56  # world units for a unit of the glyphs: tall ones stand 0.9 high


def stroke_distance(u, v, glyph):
    """Distance of points from the strokes of a glyph that is centred on the origin, in its own units."""
    points = np.concatenate([np.array(line) for line in GLYPHS[glyph]])
    middle = (points.min(axis=0) + points.max(axis=0)) / 2
    nearest = np.full(u.shape, np.inf)
    for line in GLYPHS[glyph]:
        for (x0, y0), (x1, y1) in zip(np.array(line) - middle, (np.array(line) - middle)[1:]):
            t = np.clip(((u - x0) * (x1 - x0) + (v - y0) * (y1 - y0)) / ((x1 - x0) ** 2 + (y1 - y0) ** 2 + 1e-9), 0, 1)
            nearest = np.minimum(nearest, np.hypot(u - x0 - t * (x1 - x0), v - y0 - t * (y1 - y0)))
    return nearest


def band_twin(x):
    """White's side: a plate for each letter between two lamps' sockets."""
    half = FIELD / 2
    tile = prism(chamfered(2.3, BAND - EDGE - 0.22, 0.25), 0.14).rotate(x=-90).move(x, -0.07, (EDGE + BAND) / 2)
    ends = join(
        *[slab(x - 0.22, x + 0.22, EDGE + 0.11, BAND - 0.11, -0.02).move(side * (half - 0.30)) for side in (-1, 1)]
    )
    rails = join(*[slab(x - half, x + half, z - 0.035, z + 0.035, -0.01) for z in (EDGE + 0.05, BAND - 0.05)])
    bolts = rivets(
        [(x + sx * (half - 0.30), -0.02, (EDGE + BAND) / 2 + sz * 0.42) for sx in (-1, 1) for sz in (-1, 1)],
        (0, 1, 0),
        0.07,
        8,
    )
    return (
        tile.material("trim")
        + ends.material("plate")
        + rails.material("metal")
        + bolts.material("chrome")
        + bed(x - half, x + half, EDGE, BAND)
    )


def add_band(figure):
    """Letters before White and Black, each upright for its own player; numbers on the left hand of each."""
    for k in range(8):
        x = -12.25 + FIELD * k
        flat = quad(x - FIELD / 2, x + FIELD / 2, EDGE, BAND)
        figure.part(f"letter.{k}", flat, material="trim", bevel=0.03, high=band_twin(x), density=1.1)
        figure.part(f"letter.far.{k}", flat.rotate(y=180).move(2 * x), material="trim", like=f"letter.{k}")
        z = 12.25 - FIELD * k
        left = quad(z - FIELD / 2, z + FIELD / 2, EDGE, BAND).rotate(y=-90)
        figure.part(f"number.{k}", left, material="trim", bevel=0.03, high=band_twin(z).rotate(y=-90), density=1.1)
        figure.part(f"number.far.{k}", left.rotate(y=180).move(0, 0, 2 * z), material="trim", like=f"number.{k}")


# The walkway


def walk_grating(x):
    half = FIELD / 2
    z0, z1 = BAND, WALK
    edges = join(
        slab(x - half + 0.05, x + half - 0.05, z0 + 0.06, z0 + 0.50),
        slab(x - half + 0.05, x + half - 0.05, z1 - 0.62, z1 - 0.06),
    )
    bars = join(
        *[
            box(0.05, 0.10, z1 - z0 - 1.22).move(bx, -0.06, (z0 + z1) / 2 - 0.06)
            for bx in np.arange(x - half + 0.12, x + half - 0.06, 0.17)
        ]
    )
    beams = join(*[box(FIELD - 0.1, 0.08, 0.09).move(x, -0.07, bz) for bz in (z0 + 0.88, z0 + 1.50)])
    pipe = tube([(x - half, -0.30, z0 + 1.15), (x + half, -0.30, z0 + 1.15)], 0.13, 8)
    return (
        edges.material("plate")
        + bars.material("trim")
        + beams.material("trim")
        + pipe.material("metal")
        + bed(x - half, x + half, z0, z1, 0.42)
    )


def walk_hatch(x):
    half, middle = FIELD / 2, (BAND + WALK) / 2
    plates = join(
        *[slab(x - half + 0.05, x - 1.02, BAND + 0.06, WALK - 0.06).move(side) for side in (0, half + 1.02 - 0.05)],
        slab(x - 0.97, x + 0.97, BAND + 0.06, BAND + 0.40),
        slab(x - 0.97, x + 0.97, WALK - 0.40, WALK - 0.06),
    )
    lid = prism(chamfered(1.78, 1.50, 0.36), 0.12).rotate(x=-90).move(x, -0.05, middle)
    rib = join(
        *[slab(x - 0.5, x + 0.5, middle - 0.05 + dz, middle + 0.05 + dz, 0.045, 0.06) for dz in (-0.30, 0.0, 0.30)]
    )
    grip = tube(
        curve(
            [
                (x - 0.62, 0.0, middle - 0.2),
                (x - 0.62, 0.05, middle - 0.12),
                (x - 0.62, 0.05, middle + 0.12),
                (x - 0.62, 0.0, middle + 0.2),
            ]
        ),
        0.03,
        6,
    )
    bolts = rivets(
        [(x + sx * 0.78, 0.01, middle + sz * 0.5) for sx in (-1, 1) for sz in (-1, 1)]
        + [(x + sx * (half - 0.2), 0, middle + sz) for sx in (-1, 1) for sz in (-0.95, -0.3, 0.3, 0.95)],
        (0, 1, 0),
        0.06,
        8,
    )
    return (
        plates.material("plate")
        + lid.material("trim")
        + rib.material("metal")
        + grip.material("chrome")
        + bolts.material("chrome")
        + bed(x - half, x + half, BAND, WALK)
    )


def walk_plates(x):
    half = FIELD / 2
    left = slab(x - half + 0.05, x - 0.35, BAND + 0.06, WALK - 0.75)
    right = slab(x - 0.27, x + half - 0.05, BAND + 0.06, WALK - 1.25)
    lower = slab(x - 0.27, x + half - 0.05, WALK - 1.17, WALK - 0.75)
    trench = join(*[tube([(x - half, -0.16, z), (x + half, -0.16, z)], 0.075, 8) for z in (WALK - 0.60, WALK - 0.42)])
    clamps = join(*[box(0.14, 0.06, 0.62).move(x + dx, -0.05, WALK - 0.47) for dx in (-1.3, -0.4, 0.5, 1.4)])
    grille = vent(0.9, 0.5, 6, 0.05).rotate(x=-90).move(x + 0.75, -0.01, BAND + 0.55)
    bolts = rivets(
        [(x - half + 0.2, 0, z) for z in (BAND + 0.25, WALK - 0.95)]
        + [(x - 0.55, 0, z) for z in (BAND + 0.25, WALK - 0.95)],
        (0, 1, 0),
        0.06,
        8,
    )
    return (
        join(left, right, lower).material("plate")
        + trench.material("dark")
        + clamps.material("metal")
        + grille.material("trim")
        + bolts.material("chrome")
        + bed(x - half, x + half, BAND, WALK, 0.26)
    )


WALK_KINDS = (walk_plates, walk_grating, walk_hatch)
WALK_ORDER = (0, 1, 2, 0, 1, 0, 2, 1)


def add_walkway(figure):
    first = {}
    for side in range(4):
        for k in range(8):
            kind = WALK_ORDER[k]
            x = -12.25 + FIELD * k
            flat = quad(x - FIELD / 2, x + FIELD / 2, BAND, WALK)
            name = f"walk{kind}.{side}{k}"
            if kind not in first:
                first[kind] = (name, x)
                figure.part(name, flat, bevel=0.025, high=WALK_KINDS[kind](x))
                continue
            original, x0 = first[kind]
            figure.part(name, figure.get(original).mesh.move(x - x0).rotate(y=90 * side), like=original)
    corner = quad(EDGE, WALK, EDGE, WALK)
    twin = join(
        slab(EDGE + 0.06, BAND - 0.05, EDGE + 0.06, WALK - 0.06),
        slab(BAND + 0.05, WALK - 0.06, EDGE + 0.06, BAND - 0.05),
        slab(BAND + 0.05, WALK - 0.06, BAND + 0.05, WALK - 0.06),
    ).material("plate")
    twin = twin + lathe([(0.62, 0), (0.55, 0.04), (0.38, 0.04), (0.33, -0.06)], 24, close=False).move(
        14.72, 0, 14.72
    ).material("metal")
    twin = twin + lathe([(0.33, -0.04), (0.2, 0.0), (0, 0.02)], 24, close=False).move(14.72, 0, 14.72).material("light")
    for side in range(4):
        figure.part(
            f"corner.{side}",
            corner.rotate(y=90 * side),
            like="corner.0" if side else None,
            bevel=0.03,
            high=None if side else twin + bed(EDGE, WALK, EDGE, WALK),
        )


# The parapet

PROFILE = (
    (WALK, 0.0),
    (WALK, 0.35),
    (18.025, 0.7),
    (18.9, 0.7),
    (RIM, 0.35),
    (RIM, -1.05),
    (18.9, -1.4),
    (18.9, -2.1),
    (14.0, -4.2),
)


def strip(profile, x0, x1):
    """A profile of (z, y) points, from the inside out, drawn along x."""
    v = [(x, y, z) for z, y in profile for x in (x0, x1)]
    return Mesh(v, [(2 * i, 2 * i + 1, 2 * i + 3, 2 * i + 2) for i in range(len(profile) - 1)]).flip()


def rim_panels(x, buttress):
    """Relief of a piece of parapet: plates inside and outside, a grille, conduits."""
    half = FIELD / 2
    parts = []
    inner = box(FIELD - 0.5, 0.20, 0.04).move(x, 0.16, WALK).material("trim")
    cap = join(
        *[slab(x - half + 0.06 + s * 1.16, x - half + 1.10 + s * 1.16, 18.10, 18.84, 0.73, 0.06) for s in range(3)]
    ).material("plate")
    parts += [inner, cap]
    if not buttress:
        parts.append(vent(1.9, 0.55, 7, 0.07).move(x, -0.35, RIM).material("trim"))
        parts.append(join(*[box(0.5, 0.62, 0.05).move(x + s * 1.35, -0.35, RIM) for s in (-1, 1)]).material("plate"))
    parts.append(tube([(x - half, -0.86, RIM + 0.02), (x + half, -0.86, RIM + 0.02)], 0.06, 8).material("metal"))
    parts.append(tube([(x - half, -1.75, 18.92), (x + half, -1.75, 18.92)], 0.11, 8).material("dark"))
    parts.append(join(*[box(0.12, 0.30, 0.12).move(x + dx, -1.75, 18.95) for dx in (-1.2, 0, 1.2)]).material("metal"))
    parts.append(
        rivets([(x + dx, 0.70, 18.97) for dx in (-1.5, -0.75, 0, 0.75, 1.5)], (0, 1, 0), 0.05, 8).material("chrome")
    )
    return join(*parts)


def add_parapet(figure):
    """Nine pieces a side between the towers; every second one carries a buttress outside and a lamp on top."""
    for side in range(4):
        for k in range(9):
            x = -EDGE + FIELD * k
            buttress = k % 2 == 0
            kind = "b" if buttress else "p"
            name = f"rim.{kind}.{side}{k}"
            original = f"rim.{kind}.0{0 if buttress else 1}"
            x0 = -EDGE + (0 if buttress else FIELD)
            low = strip(PROFILE, x - FIELD / 2, x + FIELD / 2).paint("trim", lambda c, n: n[1] < -0.2 or c[1] < -1.2)
            if name == original:
                figure.part(name, low, bevel=0.04, density=0.85, detail=rim_panels(x, buttress))
            else:
                figure.part(name, low.rotate(y=90 * side), like=original)
            if not buttress:
                continue
            lamp_box = rim_lamp(x)
            fin = buttress_fin(x)
            if name == original:
                figure.part("lamp.00", lamp_box, material="metal", bevel=0.03, density=1.6)
                figure.part(
                    "fin.00",
                    fin,
                    bevel=0.04,
                    detail=vent(0.42, 0.7, 5, 0.05).move(x, -0.45, RIM + 0.35).material("metal"),
                )
            else:
                figure.part(f"lamp.{side}{k}", lamp_box.rotate(y=90 * side), material="metal", like="lamp.00")
                figure.part(f"fin.{side}{k}", fin.rotate(y=90 * side), like="fin.00")


def rim_lamp(x):
    """A lamp housing on the parapet, with glass towards the fields and towards space."""
    body = box(0.7, 0.35, 0.525, top=(0.75, 0.5)).move(x, 0.875, 18.4625)
    return body.paint("light", lambda c, n: abs(n[2]) > 0.3).drop(lambda c, n: n[1] < -0.9)


def buttress_fin(x):
    """A rib on the outer wall."""
    profile = [
        (RIM - 0.35, 0.7),
        (RIM + 0.175, 0.35),
        (RIM + 0.35, 0.0),
        (RIM + 0.35, -1.05),
        (RIM, -1.75),
        (RIM - 0.525, -2.275),
    ]
    low = strip(profile, x - 0.525, x + 0.525)
    side = [(z, y) for z, y in profile]
    ends = []
    for x_end, turn in ((x - 0.525, -1), (x + 0.525, 1)):
        ends.append(Mesh([(x_end, y, z) for z, y in side], [list(range(len(side)))[::turn]]))
    return join(low, *ends)


# Machinery on the flanks


def generator(z):
    """A generator housing on the right flank: a chamfered hull between two drums, low enough to look over."""
    hull = prism([(-0.7, 0), (0.7, 0), (0.7, 0.35), (0.35, 0.7), (-0.35, 0.7), (-0.7, 0.35)], 2.8).move(16.8, 0, z)
    hull = hull.drop(lambda c, n: n[1] < -0.9)
    drums = []
    for s in (-1, 1):
        drums.append(
            lathe(
                [(0.7, 0), (0.7, 0.525), (0.525, 0.7), (0.35, 0.7), (0.35, 0.6125), (0, 0.6125)],
                8,
                start=22.5,
                close=False,
                bands=["trim", "metal", "metal", "dark", "light"],
            ).move(16.8, 0, z + s * 2.275)
        )
    return hull + join(*drums)


def generator_detail(z):
    grille = join(*[vent(0.8, 0.42, 5, 0.05).rotate(y=90).rotate(z=45).move(17.33, 0.53, z + dz) for dz in (-0.7, 0.7)])
    other = join(
        *[vent(0.8, 0.42, 5, 0.05).rotate(y=-90).rotate(z=-45).move(16.27, 0.53, z + dz) for dz in (-0.7, 0.7)]
    )
    bands = join(*[box(0.72, 0.05, 0.14).move(16.8, 0.70, z + dz) for dz in (-1.25, 0, 1.25)])
    return grille.material("trim") + other.material("trim") + bands.material("metal")


def add_machinery(figure):
    """Two generators on each flank, with cables to the towers."""
    first = None
    for sx in (1, -1):
        for z in (-7.0, 7.0):
            hull = generator(z) if sx > 0 else generator(z).rotate(y=180).move(0, 0, 2 * z)
            name = f"generator.{sx}.{z:+.0f}"
            if first is None:
                first = name
                figure.part(name, hull, bevel=0.04, detail=generator_detail(z), density=0.9)
            else:
                figure.part(name, hull, like=first)
            sign = 1 if z > 0 else -1
            path = [
                (16.45 * sx, 0.175, z + sign * 2.8),
                (16.8 * sx, 0.0875, z + sign * 3.85),
                (17.15 * sx, 0.0875, z + sign * 6.3),
                (17.15 * sx, 0.175, z + sign * 8.75),
            ]
            cable = tube(path, 0.175, 4, caps=False)
            first_cable = f"cable.1.{-7.0:+.0f}"
            figure.part(
                f"cable.{sx}.{z:+.0f}",
                cable,
                material="dark",
                density=0.5,
                smooth=60,
                like=None if name == first else first_cable,
            )


# Corner towers, pylons, thrusters


def tower():
    """An octagonal bastion on White's right corner, with a beacon."""
    profile = [
        (1.4, -3.15),
        (2.45, -2.1),
        (2.84, -1.225),
        (2.84, 0.35),
        (2.45, 0.7),
        (1.75, 0.7),
        (1.575, 1.3125),
        (0.7, 1.6625),
        (0.6, 2.1875),
        (0, 2.45),
    ]
    bands = ["trim", "trim", "plate", "metal", "trim", "plate", "metal", "light", "light"]
    return lathe(profile, 8, start=22.5, close=False, bands=bands).move(TOWER, 0, TOWER)


def tower_detail():
    parts = []
    for i in range(8):
        turn = 45 * i
        parts.append(vent(0.9, 0.5, 5, 0.06).move(0, -0.35, 2.63).rotate(y=turn).material("trim"))
        parts.append(box(0.5, 0.28, 0.05).move(0, 0.98, 1.55).rotate(x=0).rotate(y=turn).material("metal"))
        parts.append(
            rivets([(dx, 0.70, 1.95) for dx in (-0.5, 0, 0.5)], (0, 1, 0), 0.06, 8).rotate(y=turn).material("chrome")
        )
        parts.append(tube([(-1.0, -0.85, 2.64), (1.0, -0.85, 2.64)], 0.06, 8).rotate(y=turn).material("metal"))
    return join(*parts).move(TOWER, 0, TOWER)


def loft(sections, n, start, x_of, bands):
    """A round shape whose middle shifts with the height: sections are (radius, y), from the top down."""
    shape = lathe([(r, y) for r, y in sections[::-1]], n, start, close=False, bands=bands[::-1])
    return shape.warp(lambda x, y, z: (x + x_of(y)[0], y, z + x_of(y)[1]))


PYLON = (
    (1.05, -2.45),
    (1.05, -3.85),
    (1.575, -4.2),
    (1.4, -6.825),
    (0.875, -7.175),
    (0.875, -8.05),
    (1.3125, -8.4),
    (1.05, -10.675),
)
PYLON_BANDS = ("dark", "metal", "plate", "metal", "dark", "metal", "plate")
COWL = ((0.875, -10.675), (0.875, -11.2), (1.75, -12.25), (1.75, -12.95), (1.4, -13.475), (0.7, -12.95))
COWL_BANDS = ("dark", "plate", "plate", "metal", "hot")
SPIKE = ((0.7, -12.95), (0.35, -14.0), (0.175, -16.8), (0.0, MOUTH))


def add_corners(figure):
    """A tower at each corner; from it a pylon leans out to where its thruster burns. The flame stands round a thin
    spike, in the open between three vanes that end at the mouth."""
    corners = ((0, 18.35, 19.25), (1, 18.35, -19.05), (2, -19.2, -18.9), (3, -19.2, 19.45))
    for number, tx, tz in corners:
        original = number == 0
        like = (lambda name: None) if original else (lambda name: f"{name}.0")
        sx, sz = (1 if tx > 0 else -1), (1 if tz > 0 else -1)

        def middle(y):
            t = min(1.0, max(0.0, (-2.45 - y) / (10.675 - 2.45)))
            return sx * TOWER + (tx - sx * TOWER) * t, sz * TOWER + (tz - sz * TOWER) * t

        def turned(mesh):
            return mesh.rotate(y=90 * number)

        figure.part(
            f"tower.{number}",
            turned(tower()),
            like=like("tower"),
            bevel=0.05,
            density=0.8,
            detail=tower_detail() if original else None,
        )

        def leaning(sections, bands, n=8):
            upright = loft(sections, n, 180 / n, lambda y: (0, 0), bands).rotate(y=90 * number)
            return upright.warp(lambda x, y, z: (x + middle(y)[0], y, z + middle(y)[1]))

        figure.part(
            f"pylon.{number}",
            leaning(PYLON, PYLON_BANDS),
            like=like("pylon"),
            bevel=0.06,
            density=0.55,
            detail=pylon_detail(middle) if original else None,
        )
        figure.part(
            f"cowl.{number}",
            leaning(COWL, COWL_BANDS),
            like=like("cowl"),
            bevel=0.05,
            density=0.55,
            detail=cowl_detail(tx, tz) if original else None,
        )
        figure.part(
            f"spike.{number}",
            leaning(SPIKE, ("hot", "hot", "hot"), 6),
            like=like("spike"),
            bevel=0.0,
            density=0.5,
            smooth=60,
            material="hot",
        )
        vane = vane_mesh()
        for k in range(3):
            first = original and k == 0
            mesh = vane.rotate(y=90 * number + 45 + 120 * k).move(tx, 0, tz)
            figure.part(
                f"vane.{number}{k}", mesh, like=None if first else "vane.00", bevel=0.03, density=0.6, material="metal"
            )


def vane_mesh():
    """One of the three prongs that hold the flame, on the +z side of a thruster: out, down and in to the mouth."""
    spine = [(1.575, -12.25, 0.35), (2.1, -14.0, 0.35), (2.1, -16.275, 0.2625), (1.575, MOUTH, 0.175)]
    v = []
    for r, y, half in spine:
        v += [(-half, y, r - 0.175), (half, y, r - 0.175), (half * 0.5, y, r + 0.175), (-half * 0.5, y, r + 0.175)]
    f = []
    for i in range(len(spine) - 1):
        for k in range(4):
            j = (k + 1) % 4
            f.append([4 * i + k, 4 * i + j, 4 * i + 4 + j, 4 * i + 4 + k])
    f.append([12, 13, 14, 15])
    return Mesh(v, f).paint("hot", lambda c, n: n[2] < -0.5)


def pylon_detail(middle):
    parts = []
    for y, r, size in ((-5.6, 1.42, 0.5), (-9.5, 1.16, 0.36)):
        for i in range(8):
            plate = prism(chamfered(size * 1.3, size * 2.6, 0.12), 0.10, inset=0.04, bevel=0.04).move(0, y, r)
            parts.append(
                plate.rotate(y=45 * i)
                .material("plate" if i % 2 else "trim")
                .warp(lambda x, py, z: (x + middle(py)[0], py, z + middle(py)[1]))
            )
    return join(*parts)


def cowl_detail(tx, tz):
    slats = [vent(0.7, 0.5, 4, 0.07).move(0, -12.6, 1.62).rotate(y=45 * i).material("trim") for i in range(8)]
    return join(*slats).move(tx, 0, tz)


def add_hull(figure):
    """The underside, seen by nobody but a falling figure: flat, dark."""
    low = quad(-14.0, 14.0, -14.0, 14.0, -4.2).flip()
    figure.part("hull", low, material="trim", bevel=0.0, density=0.06)


# Paint


def decorate(paint):
    stones(paint)
    letters(paint)
    floor_marks(paint)
    parapet_marks(paint)
    corner_marks(paint)


class Patch:
    """A few texels of a picture, so that what belongs to one part is worked out for that part alone."""

    def __init__(self, paint, where):
        self.paint, self.at = paint, np.nonzero(where)
        self.pos = paint.pos[self.at]

    def soft(self, distance, width):
        return np.clip(0.5 + (width - distance) / self.paint.texel, 0, 1)

    def lay(self, mask, tone, strength=1.0):
        cover = np.clip(mask * strength, 0, 1)[:, None]
        self.paint.color[self.at] = self.paint.color[self.at] * (1 - cover) + self.paint.tone(tone) * cover


# Veins of the two stones: scale, fineness, width, strength, colour.
VEINS = {
    "stone_light": ((1.9, 71, 0.012, 0.50, (0.46, 0.42, 0.41)), (0.8, 73, 0.010, 0.24, (0.54, 0.47, 0.42))),
    "stone_dark": ((1.9, 71, 0.010, 0.50, (0.62, 0.62, 0.70)), (0.8, 73, 0.010, 0.25, (0.26, 0.26, 0.33))),
}


def stones(paint):
    for kind, veins in VEINS.items():
        patch = Patch(paint, paint.material(kind) > 0)
        cloud = fractal(patch.pos / 0.9 + 63, 4, 63)
        paint.color[patch.at] *= (1 + 0.24 * (cloud - 0.5))[:, None]
        bend = patch.pos + fractal(patch.pos / 1.6 + 61, 3, 61)[:, None] * np.array([1.3, 0.0, -1.1])
        for scale, seed, width, strength, tone in veins:
            vein = np.abs(fractal(bend / scale + seed, 5, seed) - 0.5)
            patch.lay(np.exp(-vein / width), tone, strength)
        paint.color[patch.at] *= (1 + 0.16 * (fractal(patch.pos / 0.05 + 65, 2, 65) - 0.5))[:, None]
        speck = smoothstep(0.70, 0.80, fractal(patch.pos / 0.055 + 67, 2, 67))
        patch.lay(speck, veins[0][4], 0.3)
        worn = smoothstep(0.15, 0.6, paint.maps.edge[patch.at]) * smoothstep(
            0.3, 0.6, fractal(patch.pos / 0.3 + 69, 3, 69)
        )
        patch.lay(worn, (0.92, 0.90, 0.88), 0.5)


def letters(paint):
    """Letters and numbers: cut in, dark on the side of the light, inlaid with pale metal."""
    names = [(f"letter.{k}", "abcdefgh"[k], -12.25 + FIELD * k, (EDGE + BAND) / 2) for k in range(8)]
    names += [(f"number.{k}", "12345678"[k], -(EDGE + BAND) / 2, 12.25 - FIELD * k) for k in range(8)]
    for part, glyph, x, z in names:
        patch = Patch(paint, paint.part(part) > 0)
        u, v = (patch.pos[:, 0] - x) / LETTER, (z - patch.pos[:, 2]) / LETTER
        cut = stroke_distance(u, v, glyph) * LETTER
        patch.lay(patch.soft(cut, 0.115), "line", 0.9)
        patch.lay(patch.soft(stroke_distance(u, v + 0.05, glyph) * LETTER, 0.10), "wear", 0.35)
        patch.lay(patch.soft(stroke_distance(u, v - 0.05, glyph) * LETTER, 0.10), "line", 0.9)
        patch.lay(patch.soft(cut, 0.078), "mark")
        paint.height[patch.at] -= patch.soft(cut, 0.09)


def floor_marks(paint):
    """Lamps sunk in the walkway, warning stripes, stencils."""
    for kind in range(3):
        part, x = paint.part(f"walk{kind}"), walk_place(kind)
        lamp_at = np.array([x + FIELD / 2 - 0.30, 0, BAND + 0.30])
        paint.lay(part * paint.near(lamp_at, 0.15), "dark")
        paint.lamps(part * paint.near(lamp_at, 0.10))
    diagonal = paint.band((1, 0, 1), 2 * WALK - 2.1, 0.34) * (paint.pos[..., 0] > BAND)
    paint.hazard(paint.part("corner") * diagonal, (1, 0, -1), 0.5, "stripe")
    paint.hazard(paint.part("walk2") * paint.band("z", WALK - 0.23, 0.22), "x", 0.36, "stripe", 0.8)
    paint.text("T-64", (walk_place(2) - 1.36, 0, 16.6), (0, 0, -1), (-1, 0, 0), 0.30, parts=("walk2",))
    paint.text("LIFT 07", (walk_place(0) - 1.05, 0, BAND + 0.55), (1, 0, 0), (0, 0, -1), 0.17, parts=("walk0",))


def walk_place(kind):
    """The middle, along x, of the piece of walkway that has its kind's picture."""
    return -12.25 + FIELD * WALK_ORDER.index(kind)


def parapet_marks(paint):
    """A line of light at the foot of the parapet, all round the arena."""
    along = np.abs(np.mod(paint.pos[..., 0] + FIELD / 2, FIELD) - FIELD / 2)
    inner = paint.part("rim") * paint.facing(z=-1, least=0.6) * paint.soft(along, 1.35)
    paint.lay(inner * paint.band("y", 0.15, 0.19), "dark")
    paint.lamps(inner * paint.band("y", 0.15, 0.11))


def corner_marks(paint):
    """Lamps round the tower, a lantern with ribs and a cap on it, warning stripes on the pylon, glowing metal."""
    away = paint.pos[..., (0, 2)] - TOWER
    turn = np.degrees(np.arctan2(away[..., 0], away[..., 1]))
    off = np.abs(np.mod(turn, 45) - 22.5)  # degrees from the nearest corner of the octagon
    tower = paint.part("tower.0")
    paint.lamps(tower * paint.band("y", 0.46, 0.09) * paint.soft(off, 7.0))
    paint.text("07", (TOWER, -0.35, 21.0), (1, 0, 0), (0, 1, 0), 0.5, depth=0.3, parts=("tower.0",))
    ribs = paint.soft(np.radians(off) * np.linalg.norm(away, axis=2), 0.05)
    rings = paint.above("y", 2.33) + paint.band("y", 2.19, 0.09) + paint.band("y", 1.68, 0.10)
    frame = tower * paint.material("light") * np.clip(ribs + rings, 0, 1)
    paint.lay(frame, "metal")
    paint.lit *= 1 - frame
    paint.hazard(paint.part("pylon") * paint.band("y", -6.5, 0.4), (1, 0.5, 1), 0.7, "stripe", 0.8)
    cooling = smoothstep(-12.8, -18.6, paint.pos[..., 1])
    paint.lay(paint.material("hot") * cooling, (0.45, 0.16, 0.10), 0.75)


def windows(paint, picture):
    """Rows of small warm windows in the outer walls: someone lives here."""
    pos = paint.pos
    wall = paint.part("rim.p") * paint.facing(z=1, least=0.8) * paint.band("y", 0.125, 0.17)
    cell = np.mod(pos[..., 0], 0.35) - 0.175
    along = np.abs(np.mod(pos[..., 0] + FIELD / 2, FIELD) - FIELD / 2)
    lit = wall * paint.soft(np.abs(cell), 0.105) * paint.soft(along, 1.22)
    angle = np.degrees(np.arctan2(pos[..., 0] - TOWER, pos[..., 2] - TOWER))
    tower = paint.part("tower") * (pos[..., 1] > -1.2) * (pos[..., 1] < 0.3) * paint.band("y", 0.13, 0.11)
    lit = lit + tower * paint.soft(np.abs(np.mod(angle, 7.5) - 3.75), 2.0)
    number = np.floor(pos[..., 0] / 0.35) * 13 + paint.part("tower") * np.floor(angle / 7.5) * 7
    awake = (np.mod(number * 0.618034, 1) < 0.78) * 0.75 + 0.25
    cover = np.clip(lit * awake, 0, 1)[..., None]
    return picture * (1 - cover) + np.array([1.0, 0.84, 0.52]) * cover


def build():
    figure = Figure("chessboard", 0.8, seed=5)
    add_fields(figure)
    add_band(figure)
    add_walkway(figure)
    add_parapet(figure)
    add_machinery(figure)
    add_corners(figure)
    add_hull(figure)
    figure.clip("frame", 1, lambda pose, i: None)
    return figure


def main():
    figure = build()
    maps = figure.bake(size=1024, samples=6, bevel=0.06, reach=0.5, extrude=0.16, floor=False, shade_reach=2.5)
    figure.write(maps.uv, low=LOW, step=STEP)
    paint = Paint(figure, maps, PALETTE, 3)
    decorate(paint)
    picture = windows(paint, paint.finish(dust=0, wear=0.9, grime=0.6, spill=0.5))
    write_tga(figure.folder() / "chessboard.tga", picture)
    write_tga(figure.folder() / "chessboard_normal.tga", paint.normal_picture())


if __name__ == "__main__":
    main()

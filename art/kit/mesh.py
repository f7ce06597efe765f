"""Mesh parts. Everything is numpy, in the game's axes: x right, y up, z towards White; faces run
counter-clockwise as seen from outside (the MD2 writer turns them round)."""

import math

import numpy as np


class Mesh:
    """Vertices `v` (n by 3), polygons `f` (lists of indices) and a material name for each polygon (`m`,
    None means the part's own material). Operations that move return a new mesh, so that they chain."""

    def __init__(self, v=(), f=(), m=None):
        self.v = np.asarray(v, dtype=float).reshape(-1, 3)
        self.f = [list(map(int, face)) for face in f]
        self.m = list(m) if m is not None else [None] * len(self.f)

    def copy(self):
        return Mesh(self.v.copy(), self.f, self.m)

    def material(self, name):
        """All polygons get the material."""
        return Mesh(self.v, self.f, [name] * len(self.f))

    def paint(self, name, where):
        """The polygons whose centre and normal satisfy `where(centre, normal)` get the material."""
        materials = list(self.m)
        for i, face in enumerate(self.f):
            if where(self.v[face].mean(axis=0), face_normal(self.v, face)):
                materials[i] = name
        return Mesh(self.v, self.f, materials)

    def drop(self, where):
        """Without the polygons whose centre and normal satisfy `where(centre, normal)`: faces that are
        never seen need no triangles."""
        kept = [(face, mat) for face, mat in zip(self.f, self.m)
                if not where(self.v[face].mean(axis=0), face_normal(self.v, face))]
        used = sorted({i for face, _ in kept for i in face})
        index = {old: new for new, old in enumerate(used)}
        return Mesh(self.v[used], [[index[i] for i in face] for face, _ in kept], [mat for _, mat in kept])

    def move(self, x=0.0, y=0.0, z=0.0):
        return Mesh(self.v + (x, y, z), self.f, self.m)

    def scale(self, x, y=None, z=None):
        factors = np.array((x, x if y is None else y, x if z is None else z), dtype=float)
        flipped = np.prod(factors) < 0
        faces = [face[:1] + face[:0:-1] for face in self.f] if flipped else self.f
        return Mesh(self.v * factors, faces, self.m)

    def rotate(self, x=0.0, y=0.0, z=0.0, about=(0, 0, 0)):
        """Degrees, about the x, then the y, then the z axis through `about`."""
        about = np.asarray(about, dtype=float)
        return Mesh((self.v - about) @ rotation(x, y, z).T + about, self.f, self.m)

    def mirror(self):
        """The other side's twin: x changes its sign."""
        return self.scale(-1, 1, 1)

    def flip(self):
        """Turned inside out: what faced one way faces the other."""
        return Mesh(self.v, [face[::-1] for face in self.f], self.m)

    def warp(self, function):
        """Each vertex through `function(x, y, z)`, which answers the new triple: tapers, bends, dents."""
        return Mesh([function(*p) for p in self.v], self.f, self.m)

    def aim(self, start, end):
        """A mesh that was built along +y from the origin is set on `start`, pointing at `end`."""
        start, end = np.asarray(start, dtype=float), np.asarray(end, dtype=float)
        return Mesh(self.v @ frame_along(end - start).T + start, self.f, self.m)

    def clip(self, point, normal, cap=None):
        """What lies behind the plane (on the side the normal leaves); the cut of a convex piece is closed with the
        material `cap`."""
        normal = np.asarray(normal, dtype=float)
        height = (self.v - np.asarray(point, dtype=float)) @ normal
        v, f, m, cuts, made = list(map(tuple, self.v)), [], [], [], {}
        for face, mat in zip(self.f, self.m):
            kept, cut = [], []
            for a, b in zip(face, face[1:] + face[:1]):
                if height[a] <= 0:
                    kept.append(a)
                if (height[a] <= 0) != (height[b] <= 0):
                    key = (min(a, b), max(a, b))
                    if key not in made:
                        t = height[a] / (height[a] - height[b])
                        made[key] = len(v)
                        v.append(tuple(self.v[a] + (self.v[b] - self.v[a]) * t))
                    kept.append(made[key])
                    cut.append(made[key])
            if len(kept) > 2:
                f.append(kept)
                m.append(mat)
            if len(cut) == 2:
                cuts += cut
        if cap is not None and made:
            rim = sorted(set(cuts))
            centre = np.mean([v[i] for i in rim], axis=0)
            frame = frame_along(normal)
            rim.sort(key=lambda i: math.atan2(*((np.array(v[i]) - centre) @ frame[:, [0, 2]])))
            f.append(rim)
            m.append(cap)
        return Mesh(v, f, m).drop(lambda c, n: False)

    def __add__(self, other):
        shift = len(self.v)
        return Mesh(np.vstack([self.v, other.v]), self.f + [[i + shift for i in face] for face in other.f],
                    self.m + other.m)

    def triangles(self):
        """Number of triangles after triangulation."""
        return sum(len(face) - 2 for face in self.f)


def join(*meshes):
    """One mesh of all that are given."""
    result = Mesh()
    for mesh in meshes:
        result = result + mesh
    return result


def rotation(x=0.0, y=0.0, z=0.0):
    """3 by 3 matrix that turns about x, then y, then z (degrees)."""
    cx, sx = math.cos(math.radians(x)), math.sin(math.radians(x))
    cy, sy = math.cos(math.radians(y)), math.sin(math.radians(y))
    cz, sz = math.cos(math.radians(z)), math.sin(math.radians(z))
    rx = np.array([[1, 0, 0], [0, cx, -sx], [0, sx, cx]])
    ry = np.array([[cy, 0, sy], [0, 1, 0], [-sy, 0, cy]])
    rz = np.array([[cz, -sz, 0], [sz, cz, 0], [0, 0, 1]])
    return rz @ ry @ rx


def frame_along(direction, hint=(0, 0, 1)):
    """3 by 3 matrix whose second column is the direction; the third is as near to `hint` as can be."""
    up = np.asarray(direction, dtype=float)
    up = up / np.linalg.norm(up)
    side = np.asarray(hint, dtype=float) - up * np.dot(hint, up)
    if np.linalg.norm(side) < 1e-6:
        side = np.array([1.0, 0, 0]) - up * up[0]
    side /= np.linalg.norm(side)
    return np.column_stack([np.cross(up, side), up, side])


def face_normal(v, face):
    """Unit normal of a polygon by Newell's sum."""
    points = v[face]
    following = np.roll(points, -1, axis=0)
    normal = np.cross(points, following).sum(axis=0)
    length = np.linalg.norm(normal)
    return normal / length if length > 1e-12 else np.array([0.0, 1.0, 0.0])


def box(sx, sy, sz, top=(1.0, 1.0), shift=(0.0, 0.0)):
    """Box centred on the origin; its upper face is scaled by `top` (x, z) and moved by `shift`: 12 triangles."""
    x, y, z = sx / 2, sy / 2, sz / 2
    v = [(-x, -y, -z), (x, -y, -z), (x, -y, z), (-x, -y, z)]
    v += [(px * top[0] + shift[0], y, pz * top[1] + shift[1]) for px, _, pz in v]
    f = [(0, 1, 2, 3), (7, 6, 5, 4), (1, 0, 4, 5), (2, 1, 5, 6), (3, 2, 6, 7), (0, 3, 7, 4)]
    return Mesh(v, f)


def prism(outline, depth, front=1.0, back=1.0, inset=0.0, bevel=0.0):
    """Extrudes an outline of (x, y) points along z, centred. `front` (+z) and `back`
    scale the outline at the ends; with `inset` and `bevel` the front face shrinks by `inset` over the last
    `bevel` of depth: a plate with a chamfered face."""
    points = counter_clockwise(outline)
    centre = points.mean(axis=0)
    n = len(points)
    rings = [(back, 0.0, -depth / 2), (front, 0.0, depth / 2 - bevel)]
    if bevel > 0:
        rings.append((front, inset, depth / 2))
    v = []
    for factor, shrink, z in rings:
        ring = centre + (points - centre) * factor
        if shrink > 0:
            ring = shrink_outline(ring, shrink)
        v += [(x, y, z) for x, y in ring]
    f = [[n - 1 - i for i in range(n)], [(len(rings) - 1) * n + i for i in range(n)]]
    for level in range(len(rings) - 1):
        for i in range(n):
            j = (i + 1) % n
            f.append([level * n + i, level * n + j, (level + 1) * n + j, (level + 1) * n + i])
    return Mesh(v, f)


def counter_clockwise(outline):
    """The outline, turned round if it runs clockwise."""
    points = np.asarray(outline, dtype=float)
    x, y = points.T
    return points if np.sum(x * np.roll(y, -1) - np.roll(x, -1) * y) > 0 else points[::-1]


def shrink_outline(points, distance):
    """The outline moved inwards by the distance (convex or gently concave outlines)."""
    points = np.asarray(points, dtype=float)
    result = []
    for i in range(len(points)):
        before, here, after = points[i - 1], points[i], points[(i + 1) % len(points)]
        d1 = (here - before) / (np.linalg.norm(here - before) + 1e-12)
        d2 = (after - here) / (np.linalg.norm(after - here) + 1e-12)
        n1, n2 = np.array([-d1[1], d1[0]]), np.array([-d2[1], d2[0]])
        middle = n1 + n2
        middle /= np.linalg.norm(middle) + 1e-12
        result.append(here + middle * distance / max(0.3, np.dot(middle, n1)))
    return np.array(result)


def plate(outline, thickness, bevel=0.0):
    """Armour plate in the x, y plane, its face towards +z with a chamfer of `bevel`."""
    return prism(outline, thickness, inset=bevel, bevel=bevel)


def lathe(profile, n, start=0.0, arc=360.0, close=True, bands=None):
    """Turns a profile of (radius, y) points, from the bottom up, about the y axis in n steps. A radius of 0
    makes a pole. With `arc` below 360 it is an open shell. `close` caps open ends of a full turn. `bands`
    names a material for each pair of neighbouring points."""
    full = arc >= 360.0
    columns = n if full else n + 1
    v, rows, f, m = [], [], [], []
    for r, y in profile:
        if r <= 1e-9:
            rows.append([len(v)] * columns)
            v.append((0, y, 0))
            continue
        rows.append(list(range(len(v), len(v) + columns)))
        for i in range(columns):
            a = math.radians(start + arc * i / n)
            v.append((r * math.sin(a), y, r * math.cos(a)))
    for level in range(len(rows) - 1):
        low, high = rows[level], rows[level + 1]
        for i in range(n):
            j = (i + 1) % columns
            face = [low[i], low[j], high[j], high[i]]
            unique = [p for k, p in enumerate(face) if p != face[k - 1]]
            if len(unique) > 2:
                f.append(unique)
                m.append(bands[level] if bands else None)
    if close and full:
        if profile[0][0] > 1e-9:
            f.append(rows[0][::-1])
            m.append(bands[0] if bands else None)
        if profile[-1][0] > 1e-9:
            f.append(list(rows[-1]))
            m.append(bands[-1] if bands else None)
    return Mesh(v, f, m)


def cylinder(r, h, n=8, top=None, start=0.0):
    """Upright cylinder or, with another radius at the top, a cone's stump; it stands on the origin."""
    return lathe([(r, 0), (r if top is None else top, h)], n, start)


def ball(r, n=10, rings=6, low=-90.0, high=90.0):
    """Sphere about the origin, or the zone of it between two latitudes."""
    profile = []
    for i in range(rings + 1):
        a = math.radians(low + (high - low) * i / rings)
        profile.append((max(0.0, r * math.cos(a)) if abs(math.cos(a)) > 1e-6 else 0.0, r * math.sin(a)))
    return lathe(profile, n)


def tube(path, r, n=6, caps=True):
    """Cable or pipe along a path of points. `r` is a radius or one for each point."""
    path = np.asarray(path, dtype=float)
    radii = np.broadcast_to(np.asarray(r, dtype=float), (len(path),))
    v, f = [], []
    hint = np.array([0.31, 0.17, 0.94])
    for i, point in enumerate(path):
        direction = path[min(i + 1, len(path) - 1)] - path[max(i - 1, 0)]
        frame = frame_along(direction, hint)
        hint = frame[:, 2]
        for k in range(n):
            a = 2 * math.pi * k / n
            v.append(point + radii[i] * (frame[:, 2] * math.cos(a) + frame[:, 0] * math.sin(a)))
    for i in range(len(path) - 1):
        for k in range(n):
            j = (k + 1) % n
            f.append([i * n + k, i * n + j, (i + 1) * n + j, (i + 1) * n + k])
    if caps:
        f.append([k for k in range(n)][::-1])
        f.append([(len(path) - 1) * n + k for k in range(n)])
    return Mesh(v, f)


def section(outline, at, along, up=(0, 1, 0)):
    """An outline of (u, v) points, counter-clockwise, set in space across the direction `along`: v goes with `up`."""
    along = np.asarray(along, dtype=float) / np.linalg.norm(along)
    v = np.asarray(up, dtype=float) - along * np.dot(up, along)
    v /= np.linalg.norm(v)
    u = np.cross(v, along)
    return np.array([np.asarray(at, dtype=float) + u * a + v * b for a, b in outline])


def loft(sections, caps=(True, True), bands=None):
    """A skin through sections of equally many points, the first closed by caps[0], the last by caps[1]: necks,
    heads, hulls. `bands` names a material for each span."""
    n = len(sections[0])
    f, m = [], []
    for level in range(len(sections) - 1):
        for k in range(n):
            j = (k + 1) % n
            f.append([level * n + k, level * n + j, (level + 1) * n + j, (level + 1) * n + k])
            m.append(bands[level] if bands else None)
    if caps[0]:
        f.append(list(range(n))[::-1])
        m.append(bands[0] if bands else None)
    if caps[1]:
        f.append([(len(sections) - 1) * n + k for k in range(n)])
        m.append(bands[-1] if bands else None)
    return Mesh(np.concatenate(sections), f, m)


def curve(points, steps=4):
    """A smooth path through the points (Catmull-Rom), `steps` pieces for each span: cables hang on it."""
    p = np.asarray(points, dtype=float)
    p = np.vstack([2 * p[0] - p[1], p, 2 * p[-1] - p[-2]])
    path = []
    for i in range(1, len(p) - 2):
        for s in range(steps):
            t = s / steps
            path.append(0.5 * (2 * p[i] + (p[i + 1] - p[i - 1]) * t
                               + (2 * p[i - 1] - 5 * p[i] + 4 * p[i + 1] - p[i + 2]) * t * t
                               + (3 * p[i] - p[i - 1] - 3 * p[i + 1] + p[i + 2]) * t ** 3))
    path.append(p[-2])
    return np.array(path)


def piston(start, end, r, n=6, sleeve=0.55):
    """A sleeve from `start` and a thinner rod to `end`; the rod has the material "chrome"."""
    start, end = np.asarray(start, dtype=float), np.asarray(end, dtype=float)
    length = np.linalg.norm(end - start)
    outer = cylinder(r, length * sleeve, n).aim(start, end)
    inner = tube([start + (end - start) * sleeve, end], r * 0.6, n, caps=False).material("chrome")
    return outer + inner


def rivets(points, normal, r=0.02, n=6):
    """Flat round heads on a surface, for the detailed twin."""
    head = lathe([(r, 0), (r * 0.95, r * 0.35), (r * 0.55, r * 0.6)], n)
    normal = np.asarray(normal, dtype=float)
    return join(*[head.aim(p, np.asarray(p, dtype=float) + normal) for p in points])


def row(start, end, count):
    """`count` points from start to end: rivets, slats, lamps."""
    return [tuple(p) for p in np.linspace(np.asarray(start, float), np.asarray(end, float), count)]


def vent(width, height, slats, depth=0.02):
    """A grille in the x, y plane facing +z, for the detailed twin: a dark back, tilted slats and a frame."""
    back = box(width, height, 0.004).material("dark")
    parts = [back]
    for i in range(slats):
        y = -height / 2 + height * (i + 0.5) / slats
        parts.append(box(width * 0.94, height / slats * 0.5, depth * 0.5).rotate(x=-30).move(0, y, depth * 0.4))
    rim = min(width, height) * 0.09
    for side in (-1, 1):
        parts.append(box(rim, height + rim, depth).move(side * width / 2, 0, depth / 2))
        parts.append(box(width + rim, rim, depth).move(0, side * height / 2, depth / 2))
    return join(*parts)


def lamp(r, n=8, depth=0.03):
    """A round lamp in the x, y plane facing +z: a rim and a lens of the material "light"."""
    rim = lathe([(r * 1.35, 0), (r * 1.3, depth), (r, depth), (r * 0.95, depth * 0.4)], n, close=False)
    lens = lathe([(r * 0.96, depth * 0.4), (r * 0.6, depth * 0.7), (0, depth * 0.8)], n, close=False)
    return (rim + lens.material("light")).rotate(x=90)


def ring_of(mesh, count, start=0.0):
    """`count` copies of a mesh about the y axis."""
    return join(*[mesh.rotate(y=start + 360.0 * i / count) for i in range(count)])


def oval(rx, ry, n=12, start=0.0):
    """Outline of an ellipse, counter-clockwise."""
    return [(rx * math.cos(math.radians(start) + 2 * math.pi * i / n),
             ry * math.sin(math.radians(start) + 2 * math.pi * i / n)) for i in range(n)]


def chamfered(width, height, cut):
    """Outline of a rectangle about the origin with its corners cut off."""
    x, y = width / 2, height / 2
    return [(-x, -y + cut), (-x + cut, -y), (x - cut, -y), (x, -y + cut), (x, y - cut), (x - cut, y),
            (-x + cut, y), (-x, y - cut)]

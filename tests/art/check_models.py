#!/usr/bin/env python3
"""Checks every model and picture under data/: what the game reads, where it fires its effects, how it plays clips.

    tests/art/check_models.py [data] [subject ...]

Prints one line for each fault and ends with 1 if there is any. Only the standard library is used."""

import math
import struct
import sys
from pathlib import Path

SKIN = 4096
GRID = 256
CONTACT = 0.15  # world units between a contact point and the nearest surface
FOOTPRINT = 1.55  # a standing figure keeps inside this radius
GUN = 0.45  # what is nearer than this to a contact point may stand out of the footprint
FAULTY = 0.01  # share of triangles that may be degenerate or flipped
LIGHTNESS = 40  # levels between the mean lightness of the two armies

WALKER = (("stand", 12, 20), ("run", 10, 12), ("damage", 6, 8), ("attack", 8, 12), ("death", 22, 26))
HOVERER = (("stand", 12, 20), ("run_start", 2, 12), ("run", 10, 12), ("run_end", 2, 12), ("damage", 6, 8),
           ("attack", 8, 12), ("death", 22, 26))
ARMIES = ("white.tga", "black.tga", "normal.tga")
LABELS = ("coke.tga", "cokeVanilla.tga", "fanta.tga", "sprite.tga", "bitterLemon.tga", "tonicWater.tga")


class Subject:
    """What is asked of a model. `height` and `low` are the top and bottom of the first frame with a tolerance,
    `radius` of the footprint, `contacts` points in world units, `floor` says that it stands on y = 0."""

    def __init__(self, folder, scale, groups, triangles, pictures, size, height=None, low=None, contacts=(), floor=False,
                 radius=None, army=False, glows=False):
        self.folder, self.scale, self.groups, self.triangles = folder, scale, groups, triangles
        self.pictures, self.size, self.height, self.low = pictures, size, height, low
        self.contacts, self.floor, self.radius, self.army, self.glows = contacts, floor, radius, army, glows

    @property
    def name(self):
        return Path(self.folder).name


def figure(name, scale, height, groups, contacts, triangles=(1000, 1500), contact_floor=True):
    return Subject(f"models/chess3d/{name}", scale, groups, triangles, ARMIES, 512, (height, 0.15), (0.0, 0.04), contacts,
                   contact_floor, FOOTPRINT, True)


SUBJECTS = (
    figure("pawn", 0.27, 2.0, WALKER, ((0.34, 1.45, -0.2), (-0.25, 1.45, -0.2)), (700, 1000)),
    figure("rook", 0.45, 2.5, WALKER, ((1.3, 0.8, -1.2), (-1.2, 0.8, -1.2), (0, 1, -0.75))),
    figure("bishop", 0.35, 2.8, WALKER, ((0.53, 1.98, -0.65), (-0.52, 1.98, -0.65))),
    figure("knight", 0.6, 2.5, HOVERER, ((0, 1, 0),)),
    figure("queen", 2.6, 3.3, (("stand", 12, 20), ("run_start", 2, 5), ("run", 10, 12), ("run_end", 2, 5), ("damage", 6, 8),
                               ("attack", 88, 96), ("death", 22, 26)), ()),
    figure("king", 0.48, 3.6, (("stand", 12, 20), ("run", 10, 12), ("damage", 6, 8), ("attack", 8, 12), ("death", 12, 12),
                               ("deathII", 12, 12), ("deathIII", 40, 40)), ((0, 1.7, 0.6),)),
    Subject("models/chess3d/chessboard", 0.8, None, (1, 4000), ("chessboard.tga", "chessboard_normal.tga"), 1024,
            contacts=((0, 0, 0), (-13.9, 0, 13.9), (13.9, 0, 13.9), (-13.9, 0, -13.9), (13.9, 0, -13.9), (0, 0, 17.4),
                      (0, 0, -17.4), (-19.2, -18.8, 19.45), (-19.2, -18.8, -18.9), (18.35, -18.8, -19.05),
                      (18.35, -18.8, 19.25))),
    Subject("models/engine", 0.3, None, (1, 800), ("engine.tga",), 512, (5.0, 1.5), (-7.3, 0.15)),
    Subject("models/can", 0.12, (("stand", 4, 8), ("run", 12, 20)), (1, 400), LABELS + ("normal.tga",), 512, (1.1, 0.1),
            (0.0, 0.03)),
    Subject("models/ufo", 0.25, (("run", 8, 16),), (1, 1000), ("ufo.tga", "normal.tga"), 512, contacts=((0, -0.1, 0),),
            glows=True),
    Subject("models/sun", 0.125, None, (1, 600), ("orange_star.tga", "orange_star_normal.tga"), 512, (2.0, 0.3), (-2.0, 0.3)),
)


class Md2:
    """An MD2 file, its points in world units."""

    def __init__(self, path, scale):
        data = path.read_bytes()
        self.header = struct.unpack_from("<17i", data)
        (self.ident, self.version, self.skin_width, self.skin_height, self.frame_size, _, self.vertices, self.coords,
         self.count, _, self.frame_count, _, at_st, at_tri, at_frames, _, self.end) = self.header
        self.bytes = len(data)
        self.st = [struct.unpack_from("<2h", data, at_st + 4 * i) for i in range(self.coords)]
        rows = [struct.unpack_from("<6H", data, at_tri + 12 * i) for i in range(self.count)]
        self.triangles, self.st_of = [r[:3] for r in rows], [r[3:] for r in rows]
        self.names, self.frames, self.normals, self.grids = [], [], [], set()
        for i in range(self.frame_count):
            at = at_frames + i * (40 + 4 * self.vertices)
            grid = struct.unpack_from("<6f", data, at)
            self.grids.add(grid)
            self.names.append(data[at + 24:at + 40].split(b"\0")[0].decode("latin-1"))
            body = data[at + 40:at + 40 + 4 * self.vertices]
            axes = [[(k * grid[a] + grid[a + 3]) * scale for k in range(GRID)] for a in range(3)]
            self.frames.append(list(zip((axes[0][k] for k in body[0::4]), (axes[1][k] for k in body[1::4]),
                                        (axes[2][k] for k in body[2::4]))))
            self.normals.append(body[3::4])
        self.step = max(grid[a] for a in range(3)) * scale

    def groups(self):
        """Groups in file order: (name, first, last), by the rule by which the game reads frame names."""
        found = []
        for i, name in enumerate(self.names):
            p = next((k for k, c in enumerate(name) if c in "0123456789"), len(name))
            if p == len(name) - 3 and name[p] != "0":
                p += 1
            if found and found[-1][0] == name[:p]:
                found[-1][2] = i
            else:
                found.append([name[:p], i, i])
        return found


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def sub(a, b):
    return (a[0] - b[0], a[1] - b[1], a[2] - b[2])


def distance_to_triangle(p, a, b, c):
    """From a point to the nearest point of a triangle."""
    ab, ac, ap = sub(b, a), sub(c, a), sub(p, a)
    n = cross(ab, ac)
    area = dot(n, n)
    if area > 1e-18:
        u, v = dot(cross(ap, ac), n) / area, dot(cross(ab, ap), n) / area
        if u >= 0 and v >= 0 and u + v <= 1:
            return abs(dot(ap, n)) / math.sqrt(area)
    best = math.inf
    for o, q in ((a, b), (b, c), (c, a)):
        d, op = sub(q, o), sub(p, o)
        t = min(1.0, max(0.0, dot(op, d) / max(dot(d, d), 1e-18)))
        best = min(best, math.dist(p, (o[0] + d[0] * t, o[1] + d[1] * t, o[2] + d[2] * t)))
    return best


def read_tga(path):
    """(type, width, height, depth, descriptor, bytes of the pixels)"""
    data = path.read_bytes()
    width, height, depth, descriptor = struct.unpack_from("<HHBB", data, 12)
    return data[2], width, height, depth, descriptor, data[18 + data[0]:]


class Checker:
    def __init__(self, data, normals):
        self.data, self.table, self.faults = data, normals, []

    def fault(self, what, text):
        self.faults.append(f"{what}: {text}")

    def check(self, subject):
        path = self.data / subject.folder / f"{subject.name}.md2"
        if not path.exists():
            return self.fault(subject.name, f"{path} is missing")
        model = Md2(path, subject.scale)
        self.header(subject, model)
        self.clips(subject, model)
        self.size(subject, model)
        self.contacts(subject, model)
        self.surface(subject, model)
        self.pictures(subject)

    def header(self, subject, model):
        name = subject.name
        if model.ident != 0x32504449 or model.version != 8:
            self.fault(name, "not an MD2 file of version 8")
        if (model.skin_width, model.skin_height) != (SKIN, SKIN):
            self.fault(name, f"the header's picture is {model.skin_width} by {model.skin_height}, not {SKIN}")
        if model.frame_size != 40 + 4 * model.vertices or model.end != model.bytes:
            self.fault(name, "the header's sizes do not fit the file")
        low, high = subject.triangles
        if not low <= model.count <= high:
            self.fault(name, f"{model.count} triangles, {low} to {high} are allowed")
        if len(model.grids) != 1:
            self.fault(name, f"{len(model.grids)} grids, all frames share one")
        if any(not 0 <= s <= SKIN or not 0 <= t <= SKIN for s, t in model.st):
            self.fault(name, "a texture coordinate leaves the picture")
        if any(max(t) >= model.vertices for t in model.triangles) or any(max(t) >= model.coords for t in model.st_of):
            self.fault(name, "a triangle has an index out of range")
        if any(max(n, default=0) >= len(self.table) for n in model.normals):
            self.fault(name, "a normal index is out of range")

    def clips(self, subject, model):
        name = subject.name
        if subject.groups is None:
            if model.frame_count != 1:
                self.fault(name, f"{model.frame_count} frames, it needs one")
            return
        groups = model.groups()
        if [g[0] for g in groups] != [g[0] for g in subject.groups]:
            return self.fault(name, f"groups {[g[0] for g in groups]}, not {[g[0] for g in subject.groups]}")
        for (group, first, last), (_, least, most) in zip(groups, subject.groups):
            if not least <= last - first + 1 <= most:
                self.fault(name, f"{group} has {last - first + 1} frames, {least} to {most} are allowed")
            for i in range(first, last + 1):
                if model.names[i] != f"{group}{i - first:02d}":
                    self.fault(name, f"frame {i} is named {model.names[i]}, not {group}{i - first:02d}")

    def size(self, subject, model):
        name, first = subject.name, model.frames[0]
        low, high = min(p[1] for p in first), max(p[1] for p in first)
        if subject.height and abs(high - subject.height[0]) > subject.height[1]:
            self.fault(name, f"top at {high:.2f}, not {subject.height[0]}")
        if subject.low and abs(low - subject.low[0]) > subject.low[1]:
            self.fault(name, f"bottom at {low:.2f}, not {subject.low[0]}")
        middle = (min(p[2] for p in first) + max(p[2] for p in first)) / 2
        if abs(middle) > 0.4:
            self.fault(name, f"the first frame's middle lies at z = {middle:.2f}")
        if subject.radius is None:
            return
        group, start, end = model.groups()[0]
        for frame in model.frames[start:end + 1]:
            far = max((math.hypot(p[0], p[2]) for p in frame
                       if all(math.dist(p, c) > GUN for c in subject.contacts)), default=0.0)
            if far > subject.radius + model.step:
                self.fault(name, f"{group} reaches {far:.2f} from its middle")
                break
        if subject.floor:
            for frame, title in zip(model.frames[start:end + 1], model.names[start:end + 1]):
                bottom = min(p[1] for p in frame)
                if abs(bottom) > 0.05:
                    self.fault(name, f"{title} stands at {bottom:.2f}, not on the floor")
            for frame, title in zip(model.frames, model.names):
                bottom = min(p[1] for p in frame)
                if bottom < -0.12:
                    self.fault(name, f"{title} reaches {bottom:.2f}, into the floor")

    def contacts(self, subject, model):
        first = model.frames[0]
        for point in subject.contacts:
            nearest = min(distance_to_triangle(point, *(first[i] for i in t)) for t in model.triangles)
            if nearest > CONTACT:
                self.fault(subject.name, f"nothing is near {point}: {nearest:.2f} away")

    def surface(self, subject, model):
        """Winding and shape of the triangles in the first frame: clockwise from outside means that the face normal
        of a, b, c points against the vertex normals, and that the enclosed volume counts negative."""
        name, first, normals = subject.name, model.frames[0], model.normals[0]
        degenerate, flipped, volume = 0, 0, 0.0
        for triangle in model.triangles:
            a, b, c = (first[i] for i in triangle)
            n = cross(sub(b, a), sub(c, a))
            volume += dot(a, cross(b, c)) / 6
            if math.sqrt(dot(n, n)) / 2 < 1e-8 * max(1.0, subject.scale):
                degenerate += 1
                continue
            shading = [sum(self.table[normals[i]][k] for i in triangle) for k in range(3)]
            if dot(n, shading) >= 0:
                flipped += 1
        if degenerate + flipped > FAULTY * model.count:
            self.fault(name, f"{degenerate} degenerate and {flipped} flipped triangles of {model.count}")
        if volume >= 0:
            self.fault(name, "wound counter-clockwise: inside out")

    def picture(self, path, size):
        """The pixels of a picture that is as it must be, or None."""
        if not path.exists():
            return self.fault(path.name, f"{path} is missing")
        kind, width, height, depth, descriptor, pixels = read_tga(path)
        label = str(path.relative_to(self.data))
        if kind != 2 or depth != 24:
            return self.fault(label, f"TGA type {kind} with {depth} bits, not plain 24 bits")
        if descriptor & 0x30:
            self.fault(label, "the first row is not at the bottom left")
        if (width, height) != (size, size):
            return self.fault(label, f"{width} by {height}, not {size} by {size}")
        if len(pixels) < size * size * 3:
            return self.fault(label, "cut short")
        return pixels

    def pictures(self, subject):
        light = {}
        for name in subject.pictures:
            pixels = self.picture(self.data / subject.folder / name, subject.size)
            if pixels is None:
                continue
            blue, green, red = (sum(pixels[k::3]) / (len(pixels) // 3) for k in range(3))
            light[name] = 0.2126 * red + 0.7152 * green + 0.0722 * blue
            label = f"{subject.name}/{name}"
            if "normal" in name:
                if blue < 180 or abs(red - 128) > 25 or abs(green - 128) > 25:
                    self.fault(label, f"mean colour ({red:.0f}, {green:.0f}, {blue:.0f}) is no normal picture's")
            elif max(pixels) - min(pixels) < 60:
                self.fault(label, "a flat picture")
        if subject.army and {"white.tga", "black.tga"} <= light.keys():
            if light["white.tga"] - light["black.tga"] < LIGHTNESS:
                self.fault(subject.name, f"lightness {light['white.tga']:.0f} and {light['black.tga']:.0f}: too alike")

    # The sky: pictures by file, and the places that the corners (0, 0), (1, 0), (0, 1) of each have on the cube

    SKY = {"up": ((1, 1, 1), (1, 1, -1), (-1, 1, 1)), "down": ((-1, -1, 1), (-1, -1, -1), (1, -1, 1)),
           "front": ((-1, -1, -1), (-1, 1, -1), (1, -1, -1)), "back": ((1, -1, 1), (1, 1, 1), (-1, -1, 1)),
           "left": ((1, -1, -1), (1, 1, -1), (1, -1, 1)), "right": ((-1, -1, 1), (-1, 1, 1), (-1, -1, -1))}

    def sky(self):
        size, edges = 1024, {}
        for name, (origin, right, up) in self.SKY.items():
            pixels = self.picture(self.data / f"textures/skybox/verypurple_{name}2.tga", size)
            if pixels is None:
                return
            far = tuple(r + u - o for o, r, u in zip(origin, right, up))

            def row(x, y, dx, dy):
                return [tuple(pixels[3 * ((y + dy * i) * size + x + dx * i) + k] for k in range(3)) for i in range(size)]

            for ends, line in (((origin, right), row(0, 0, 1, 0)), ((up, far), row(0, size - 1, 1, 0)),
                               ((origin, up), row(0, 0, 0, 1)), ((right, far), row(size - 1, 0, 0, 1))):
                if ends[0] > ends[1]:
                    ends, line = ends[::-1], line[::-1]
                edges.setdefault(ends, []).append((name, line))
        if len(edges) != 12 or any(len(pair) != 2 for pair in edges.values()):
            raise AssertionError("the cube's corners are listed wrong")
        for (one, a), (two, b) in edges.values():
            off = sum(abs(x - y) for p, q in zip(a, b) for x, y in zip(p, q)) / (3 * size)
            if off > 3.0:
                self.fault("sky", f"{one} and {two} differ by {off:.1f} levels where they meet")

    def effects(self):
        """Effect pictures are drawn in additive light: black at the edge, or a square shows."""
        for path in sorted((self.data / "textures/effects").glob("*.tga")):
            kind, width, height, depth, descriptor, pixels = read_tga(path)
            label = str(path.relative_to(self.data))
            if kind != 2 or depth not in (24, 32) or descriptor & 0x30:
                self.fault(label, "not a plain TGA with the first row at the bottom left")
                continue
            if width & (width - 1) or height & (height - 1):
                self.fault(label, f"{width} by {height}: sides are no powers of two")
            each = depth // 8
            at = [(x, y) for x in range(width) for y in (0, height - 1)] + [(x, y) for y in range(height)
                                                                            for x in (0, width - 1)]
            if max(max(pixels[(y * width + x) * each:(y * width + x) * each + 3]) for x, y in at) > 0:
                self.fault(label, "not black at its edge")


def normal_table(root):
    return [tuple(map(float, line.split())) for line in (root / "art/kit/md2_normals.txt").read_text().splitlines()]


def main(arguments):
    root = Path(__file__).resolve().parents[2]
    data = Path(arguments[0]) if arguments else root / "data"
    wanted = set(arguments[1:])
    checker = Checker(data, normal_table(root))
    for subject in SUBJECTS:
        if not wanted or subject.name in wanted:
            checker.check(subject)
    if not wanted or "sky" in wanted:
        checker.sky()
    if not wanted or "effects" in wanted:
        checker.effects()
    for fault in checker.faults:
        print(fault)
    print(f"{len(checker.faults)} faults")
    return 1 if checker.faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

"""A model: parts on bones, its clips, and the files that come of them."""

import hashlib
import os
import pickle
from pathlib import Path

import numpy as np

from . import files
from .anim import Rig
from .mesh import face_normal

ART = Path(__file__).resolve().parent.parent
DATA = Path(os.environ.get("TOLVANE_DATA", ART.parent / "data"))
WORK = Path(os.environ.get("TOLVANE_ART_WORK", ART / "work"))


class Maps:
    """What a bake answers. Pictures are size by size, rows from the bottom up:
    uv: for each part, for each polygon, corner coordinates; part: index of the part, -1 outside all islands;
    pos, nrm: rest position and normal; polygon: number within the part; rim: distance to a sharp edge; material: index into `materials`; edge: 0 to 1 at worn edges of the
    twin; ao: occlusion by the part itself; shade: occlusion by all parts and the floor; tangent: normals of the
    twin in the low mesh's tangent space, 0 to 1."""


class Part:
    """A rigid piece of a model: its low mesh, what only the detailed twin has, and how it is unwrapped."""

    def __init__(self, name, mesh, bone, material, bevel, detail, high, smooth, density, like,
                 mirrored):
        self.name, self.mesh, self.bone, self.material = name, mesh, bone, material
        self.bevel, self.detail, self.high, self.smooth = bevel, detail, high, smooth
        self.density, self.like, self.mirrored = density, like, mirrored


class Figure:
    """A model in the making. Geometry is in world units, standing as in the first frame of "stand"; `scale` is
    the factor that the game multiplies the model with, taken out again when the file is written."""

    def __init__(self, name, scale, rig=None, seed=1, home=None, lift=0.35):
        """`home` is the folder below "models" where the files go, "chess3d/<name>" by itself. The game's only light
        stands straight above, so that an upright wall would get none of it: `lift` is how far the written normals
        lean upwards to catch some; level faces and those of the material "dark" stay as they are."""
        self.name, self.scale, self.rig, self.seed = name, scale, rig or Rig().bone("root", (0, 0, 0)), seed
        self.home = home or f"chess3d/{name}"
        self.lift = lift
        self.parts, self.clips = [], []

    # Parts

    def part(self, name, mesh, bone="root", material="plate", bevel=0.02, detail=None, high=None, smooth=35.0,
             density=1.0, like=None, mirrored=False):
        """Adds a part. `bevel` is the width by which the detailed twin's sharp edges are rounded; `detail` is a
        mesh that only the twin has; `high` replaces the twin's body; `smooth` is the angle (degrees) below which
        edges are shaded soft; `density` weighs its share of the picture; `like` names a part of the same build
        (copied or moved, or with `mirrored` its twin by `Mesh.mirror`) whose piece of the picture it uses too."""
        if any(p.name == name for p in self.parts):
            raise ValueError(f"two parts are named {name}")
        original = self.get(like) if like else None
        if original and [len(f) for f in original.mesh.f] != [len(f) for f in mesh.f]:
            raise ValueError(f"{name} is not built like {like}")
        self.rig.pivots[bone]
        self.parts.append(Part(name, mesh, bone, material, bevel, detail, high, smooth, density, original,
                               mirrored))
        return self

    def pair(self, name, mesh, bone, **options):
        """A part for the right side ("name.R", bone with ".R") and its mirrored twin for the left, which shares
        the picture. The mesh is the right one."""
        self.part(name + ".R", mesh, bone + ".R", **options)
        options.pop("detail", None)
        options.pop("high", None)
        self.part(name + ".L", mesh.mirror(), bone + ".L", like=name + ".R", mirrored=True, **options)
        return self

    def get(self, name):
        """The part of that name."""
        return next(p for p in self.parts if p.name == name)

    def triangles(self):
        return sum(p.mesh.triangles() for p in self.parts)

    # Motion

    def clip(self, name, count, pose, ground=False):
        """Adds a group of frames: `pose(p, i)` sets the pose p of frame i, 0 to count - 1. With `ground` the body is
        raised or lowered until its lowest point lies on the floor, and thrown pieces do not sink into it: for falls."""
        self.clips.append((name, count, pose, ground))
        return self

    # Geometry as it is written

    def corner_data(self):
        """Triangles of all parts: (part, polygon, corner) rows by threes, and the normal at each corner."""
        rows, normals = [], []
        for index, part in enumerate(self.parts):
            corner_normals = split_normals(part.mesh, part.smooth)
            for polygon, face in enumerate(part.mesh.f):
                for triangle in triangulate(part.mesh.v, face):
                    for corner in triangle:
                        rows.append((index, polygon, corner))
                        normals.append(corner_normals[polygon][corner])
        return np.array(rows), np.array(normals)

    def write(self, uv, low=None, step=None):
        """Writes the model; `uv` is a list for each part of lists for each polygon of corner coordinates. `low` and
        `step`, in world units, fix the grid of the packed vertices where planes must lie on a step."""
        rows, normals = self.corner_data()
        vertices, vertex_index, vertex_of, lifts = [], {}, [], []
        coords, coord_index, coord_of = [], {}, []
        for (part, polygon, corner), normal in zip(rows, normals):
            hollow = (self.parts[part].mesh.m[polygon] or self.parts[part].material) == "dark"
            vertex = (part, self.parts[part].mesh.f[polygon][corner], hollow, *np.round(normal, 2))
            vertex_of.append(vertex_index.setdefault(vertex, len(vertex_index)))
            if len(vertex_index) > len(vertices):
                vertices.append((part, self.parts[part].mesh.v[self.parts[part].mesh.f[polygon][corner]], normal))
                lifts.append(0.0 if hollow else self.lift)
            coord = tuple(np.round(uv[part][polygon][corner] * files.SKIN).astype(int))
            coord_of.append(coord_index.setdefault(coord, len(coord_index)))
            if len(coord_index) > len(coords):
                coords.append(uv[part][polygon][corner])
        rest = np.array([v for _, v, _ in vertices])
        rest_normals = np.array([n for _, _, n in vertices])
        bones = [self.parts[p].bone for p, _, _ in vertices]
        frames = []
        for clip, count, pose_at, ground in self.clips:
            for i in range(count):
                pose = self.rig.pose()
                pose_at(pose, i)
                matrices = pose.matrices()
                stack = np.stack([matrices[b] for b in bones])
                points = np.einsum("nij,nj->ni", stack[:, :3, :3], rest) + stack[:, :3, 3]
                if ground:
                    points = grounded(points, [pose.loose()[b] for b in bones])
                turned = np.einsum("nij,nj->ni", stack[:, :3, :3], rest_normals)
                turned /= np.linalg.norm(turned, axis=1, keepdims=True)
                turned[:, 1] += np.array(lifts) * (1 - turned[:, 1] ** 2)
                turned /= np.linalg.norm(turned, axis=1, keepdims=True)
                frames.append((f"{clip}{i:02d}", points / self.scale, turned))
        corners = np.stack([np.array(vertex_of).reshape(-1, 3), np.array(coord_of).reshape(-1, 3)], axis=2)
        path = self.folder() / f"{self.name}.md2"
        grid = [None if g is None else np.asarray(g, dtype=float) / self.scale for g in (low, step)]
        files.write_md2(path, frames, corners, np.array(coords), *grid)
        print(f"{self.name}: {len(corners)} triangles, {len(vertices)} vertices, {len(frames)} frames")
        return path

    def folder(self):
        """Where the model's files go."""
        return DATA / "models" / self.home

    # Unwrapping and baking

    def bake(self, **options):
        """Unwraps and bakes, or answers what an earlier run made of the same geometry. See Maps."""
        from . import bake
        key = hashlib.sha256(pickle.dumps([
            [(p.name, p.mesh.v.round(6).tobytes(), p.mesh.f, p.mesh.m, p.material, p.bevel, p.smooth, p.density,
              p.like.name if p.like else None, p.mirrored, _signature(p.detail), _signature(p.high)) for p in self.parts],
            sorted(options.items()), *(Path(bake.__file__).with_name(n).read_bytes() for n in ("bake.py", "raster.py"))
        ])).hexdigest()
        cache = WORK / f"{self.name}-{key[:16]}.pickle"
        if cache.exists():
            return pickle.loads(cache.read_bytes())
        maps = bake.bake(self, **options)
        WORK.mkdir(parents=True, exist_ok=True)
        for old in WORK.glob(f"{self.name}-????????????????.pickle"):
            old.unlink()
        cache.write_bytes(pickle.dumps(maps))
        return maps


def grounded(points, pieces):
    """The body's points (piece None) set on the floor; thrown pieces raised out of it."""
    points = points.copy()
    for piece in set(pieces):
        own = np.array([p == piece for p in pieces])
        lowest = points[own, 1].min()
        if piece is None or lowest < 0:
            points[own, 1] -= lowest
    return points


def _signature(mesh):
    return (mesh.v.round(6).tobytes(), mesh.f, mesh.m) if mesh is not None else None


def split_normals(mesh, smooth):
    """Normal of each corner of each polygon: neighbours within the angle are averaged by area."""
    limit = np.cos(np.radians(smooth))
    face_normals, weights = [], []
    for face in mesh.f:
        points = mesh.v[face]
        area = np.cross(points, np.roll(points, -1, axis=0)).sum(axis=0)
        weights.append(np.linalg.norm(area))
        face_normals.append(face_normal(mesh.v, face))
    face_normals, weights = np.array(face_normals), np.array(weights)
    place = {}
    around = {}
    keys = []
    for i, point in enumerate(np.round(mesh.v, 5)):
        keys.append(place.setdefault(tuple(point), len(place)))
    for polygon, face in enumerate(mesh.f):
        for vertex in face:
            around.setdefault(keys[vertex], []).append(polygon)
    result = []
    for polygon, face in enumerate(mesh.f):
        corners = []
        for vertex in face:
            near = np.array(around[keys[vertex]])
            near = near[face_normals[near] @ face_normals[polygon] >= limit - 1e-9]
            normal = (face_normals[near] * weights[near][:, None]).sum(axis=0)
            corners.append(normal / np.linalg.norm(normal))
        result.append(corners)
    return result


def triangulate(v, face):
    """Triangles (corner numbers) of a polygon by cutting off ears, so that concave outlines work."""
    if len(face) == 3:
        return [(0, 1, 2)]
    normal = face_normal(v, face)
    points = v[face]
    left = list(range(len(face)))
    triangles = []
    while len(left) > 3:
        best = None
        for k in range(len(left)):
            a, b, c = left[k - 1], left[k], left[(k + 1) % len(left)]
            ab, bc = points[b] - points[a], points[c] - points[b]
            turn = np.dot(np.cross(ab, bc), normal)
            if turn <= 1e-12 or _holds(points, left, (a, b, c), normal):
                continue
            quality = turn / (np.dot(ab, ab) + np.dot(bc, bc) + np.dot(points[c] - points[a], points[c] - points[a]))
            if best is None or quality > best[0] + 1e-9:
                best = (quality, k)
        k = best[1] if best else 0
        triangles.append((left[k - 1], left[k], left[(k + 1) % len(left)]))
        left.pop(k)
    triangles.append(tuple(left))
    return triangles


def _holds(points, left, triangle, normal):
    a, b, c = (points[i] for i in triangle)
    for i in left:
        if i in triangle:
            continue
        p = points[i]
        if all(np.dot(np.cross(q - o, p - o), normal) > -1e-9 for o, q in ((a, b), (b, c), (c, a))):
            return True
    return False

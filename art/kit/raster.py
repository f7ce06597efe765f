"""From the unwrapped low mesh to texels: where each lies on the model."""

import numpy as np

from .figure import split_normals, triangulate
from .mesh import face_normal


def originals(figure):
    return [(i, p) for i, p in enumerate(figure.parts) if p.like is None]


def covered(points, size):
    """Pixels of a triangle (pixel coordinates) with the barycentric weights of their centres."""
    low = np.clip(np.floor(points.min(axis=0)).astype(int), 0, size - 1)
    high = np.clip(np.ceil(points.max(axis=0)).astype(int), 0, size - 1)
    xs, ys = np.meshgrid(np.arange(low[0], high[0] + 1), np.arange(low[1], high[1] + 1))
    (ax, ay), (bx, by), (cx, cy) = points
    area = (bx - ax) * (cy - ay) - (cx - ax) * (by - ay)
    if abs(area) < 1e-12:
        return
    px, py = xs + 0.5, ys + 0.5
    wb = ((px - ax) * (cy - ay) - (cx - ax) * (py - ay)) / area
    wc = ((bx - ax) * (py - ay) - (px - ax) * (by - ay)) / area
    wa = 1 - wb - wc
    inside = (wa >= -1e-6) & (wb >= -1e-6) & (wc >= -1e-6)
    if inside.any():
        yield ys[inside], xs[inside], np.stack([wa[inside], wb[inside], wc[inside]], axis=1)


def rasterise(figure, maps):
    """Fills the maps that follow from the low mesh alone; `rim` is the distance to the polygon's nearest sharp
    edge, `polygon` its number in its part."""
    size = maps.size
    maps.part = np.full((size, size), -1)
    maps.pos = np.zeros((size, size, 3))
    maps.nrm = np.zeros((size, size, 3))
    maps.own_material = np.zeros((size, size), int)
    maps.polygon = np.zeros((size, size), int)
    maps.rim = np.full((size, size), 9.0)
    for index, part in originals(figure):
        normals = split_normals(part.mesh, part.smooth)
        edges = sharp_edges(part)
        for polygon, face in enumerate(part.mesh.f):
            name = part.mesh.m[polygon] or part.material
            for triangle in triangulate(part.mesh.v, face):
                points = maps.uv[index][polygon][list(triangle)] * size
                for rows, columns, weights in covered(points, size):
                    maps.part[rows, columns] = index
                    here = weights @ part.mesh.v[[face[c] for c in triangle]]
                    maps.pos[rows, columns] = here
                    maps.polygon[rows, columns] = polygon
                    maps.rim[rows, columns] = distance_to(here, edges[polygon])
                    maps.nrm[rows, columns] = weights @ np.array([normals[polygon][c] for c in triangle])
                    maps.own_material[rows, columns] = maps.materials.index(name)
    length = np.linalg.norm(maps.nrm, axis=2, keepdims=True)
    maps.nrm /= np.maximum(length, 1e-9)


def sharp_edges(part):
    """For each polygon of a part its edges that are shaded hard or open: (start, end) points."""
    mesh = part.mesh
    normals = [face_normal(mesh.v, face) for face in mesh.f]
    keys, index = [], {}
    for point in np.round(mesh.v, 5):
        keys.append(index.setdefault(tuple(point), len(index)))
    sides = {}
    for polygon, face in enumerate(mesh.f):
        for a, b in zip(face, face[1:] + face[:1]):
            sides.setdefault((keys[a], keys[b]), []).append(polygon)
    limit = np.cos(np.radians(part.smooth))
    result = []
    for polygon, face in enumerate(mesh.f):
        found = []
        for a, b in zip(face, face[1:] + face[:1]):
            others = sides.get((keys[b], keys[a]), [])
            if not others or min(normals[polygon] @ normals[o] for o in others) < limit:
                found.append((mesh.v[a], mesh.v[b]))
        result.append(found)
    return result


def distance_to(points, edges):
    """Distance of each point to the nearest of the edges; 9 where there are none."""
    best = np.full(len(points), 9.0)
    for a, b in edges:
        along = b - a
        t = np.clip((points - a) @ along / max(along @ along, 1e-12), 0, 1)
        best = np.minimum(best, np.linalg.norm(points - a - t[:, None] * along, axis=1))
    return best

"""Contact sheets from finished files: what an MD2 with its picture looks like, drawn in software.

    /usr/bin/python3 art/kit/preview.py data/models/chess3d/pawn --scale 0.27 --out pawn.png

One row for each group of frames, columns front, back, side and the starting camera's angle in both paints. Only
what is wound clockwise is drawn, as holes are what a wrong winding looks like."""

import argparse
import sys
from pathlib import Path

import numpy as np

if __package__:
    from . import files
    from .mesh import rotation
else:
    sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
    from kit import files
    from kit.mesh import rotation

# What the game's light from straight above gives: ambient, diffuse, highlight and its exponent, by model.
LIGHT = {"rook": (0.12, 0.64, 0.64, 20), "queen": (0.24, 0.40, 0.64, 20)}
FIGURE_LIGHT = (0.42, 0.72, 0.80, 10)
BACKGROUND = np.array([0.21, 0.20, 0.30])


def render(points, normals, triangles, uv, picture, view, width, height, zoom, centre=(0, 1.1, 0), soft=2,
           light=FIGURE_LIGHT):
    """Draws one mesh with parallel projection. `view` turns model space so that the viewer looks along -z; `zoom`
    is pixels a unit; `soft` is samples a pixel along each axis; `light` is as in LIGHT, or None for the bare picture. Answers pixels from the top row down."""
    w, h = width * soft, height * soft
    seen = (points - centre) @ view.T
    screen = np.stack([seen[:, 0] * zoom * soft + w / 2, h / 2 - seen[:, 1] * zoom * soft, seen[:, 2]], axis=1)
    p = screen[triangles]
    area = ((p[:, 1, 0] - p[:, 0, 0]) * (p[:, 2, 1] - p[:, 0, 1]) - (p[:, 2, 0] - p[:, 0, 0]) * (p[:, 1, 1] - p[:, 0, 1]))
    keep = area > 1e-9  # clockwise on a screen whose y runs down
    p, area, uv3, n3 = p[keep], area[keep], uv[keep], normals[triangles[keep]]
    low = np.clip(np.floor(p[:, :, :2].min(axis=1)).astype(int), 0, (w - 1, h - 1))
    high = np.clip(np.ceil(p[:, :, :2].max(axis=1)).astype(int), 0, (w - 1, h - 1))
    span = high - low + 1
    counts = span[:, 0] * span[:, 1]
    owner = np.repeat(np.arange(len(p)), counts)
    local = np.arange(counts.sum()) - np.repeat(np.cumsum(counts) - counts, counts)
    x, y = low[owner, 0] + local % span[owner, 0], low[owner, 1] + local // span[owner, 0]
    a, b, c = p[owner, 0], p[owner, 1], p[owner, 2]
    px, py = x + 0.5, y + 0.5
    wb = ((px - a[:, 0]) * (c[:, 1] - a[:, 1]) - (c[:, 0] - a[:, 0]) * (py - a[:, 1])) / area[owner]
    wc = ((b[:, 0] - a[:, 0]) * (py - a[:, 1]) - (px - a[:, 0]) * (b[:, 1] - a[:, 1])) / area[owner]
    wa = 1 - wb - wc
    hit = (wa >= 0) & (wb >= 0) & (wc >= 0)
    owner, x, y, wa, wb, wc = owner[hit], x[hit], y[hit], wa[hit], wb[hit], wc[hit]
    depth = wa * p[owner, 0, 2] + wb * p[owner, 1, 2] + wc * p[owner, 2, 2]
    order = np.argsort(depth, kind="stable")
    pixel = (y * w + x)[order]
    last = np.full(w * h, -1)
    last[pixel] = order
    found = last >= 0
    k = last[found]
    weights = np.stack([wa[k], wb[k], wc[k]], axis=1)[:, :, None]
    coordinates = (uv3[owner[k]] * weights).sum(axis=1)
    normal = (n3[owner[k]] @ view.T * weights).sum(axis=1)
    normal /= np.maximum(np.linalg.norm(normal, axis=1, keepdims=True), 1e-9)
    colour = sample(picture, coordinates)
    if light:
        ambient, diffuse, highlight, exponent = light
        up = np.clip(normal @ view[:, 1], 0, 1)
        half = view[:, 1] + (0, 0, 1)
        shine = np.clip(normal @ (half / np.linalg.norm(half)), 0, 1) ** exponent * (up > 0)
        colour = np.minimum(colour * np.minimum(ambient + diffuse * up, 1)[:, None] + highlight * shine[:, None], 1)
    image = np.tile(BACKGROUND, (w * h, 1))
    image[found] = colour
    return image.reshape(height, soft, width, soft, 3).mean(axis=(1, 3))


def sample(picture, uv):
    """Bilinear look-up, v upwards, rows of the picture from the bottom up."""
    size_y, size_x = picture.shape[:2]
    x, y = uv[:, 0] * size_x - 0.5, uv[:, 1] * size_y - 0.5
    x0, y0 = np.floor(x).astype(int), np.floor(y).astype(int)
    fx, fy = (x - x0)[:, None], (y - y0)[:, None]
    x0, x1 = np.clip(x0, 0, size_x - 1), np.clip(x0 + 1, 0, size_x - 1)
    y0, y1 = np.clip(y0, 0, size_y - 1), np.clip(y0 + 1, 0, size_y - 1)
    return ((picture[y0, x0] * (1 - fx) + picture[y0, x1] * fx) * (1 - fy)
            + (picture[y1, x0] * (1 - fx) + picture[y1, x1] * fx) * fy)


VIEWS = {"front": rotation(y=180), "back": np.eye(3), "side": rotation(y=90), "left": rotation(y=-90),
         "camera": rotation(x=40), "camera_front": rotation(x=40) @ rotation(y=180),
         "quarter": rotation(x=20) @ rotation(y=-145), "quarter_back": rotation(x=20) @ rotation(y=35),
         "top": rotation(x=90)}


def load(folder, scale):
    """The model of a folder, with its pictures by name."""
    folder = Path(folder)
    model = files.Md2(folder / f"{folder.name}.md2")
    model.frames = [f * scale for f in model.frames]
    model.light = LIGHT.get(folder.name, FIGURE_LIGHT)
    pictures = {path.stem: files.read_tga(path) / 255.0 for path in sorted(folder.glob("*.tga"))}
    return model, pictures


def tile(model, picture, frame, view, size=220, units=3.6, centre=(0, 1.2, 0)):
    """One picture of one frame, `units` of the world across."""
    return render(model.frames[frame], model.normals[frame], model.triangles, model.uv, picture, VIEWS[view], size, size,
                  size / units, centre, light=model.light)


def sheet(folder, scale, out, size=200, units=3.6, centre=(0, 1.2, 0), per_group=6, groups=None, view="quarter"):
    """Still views in both paints above, then one row of frames for each group, seen from `view`."""
    model, pictures = load(folder, scale)
    white = pictures.get("white", next(iter(pictures.values())))
    black = pictures.get("black", white)
    still = ("front", "back", "side", "camera", "quarter", "quarter_back")
    rows = [[tile(model, white, 0, v, size, units, centre) for v in still],
            [tile(model, black, 0, v if v != "camera" else "camera_front", size, units, centre) for v in still]]
    for name, (first, last) in model.groups.items():
        if groups is not None and name not in groups:
            continue
        picked = np.unique(np.linspace(first, last, min(per_group, last - first + 1)).round().astype(int))
        row = [tile(model, white, f, view, size, units, centre) for f in picked]
        rows.append(row)
    width = max(len(r) for r in rows)
    blank = np.tile(BACKGROUND, (size, size, 1))
    image = np.concatenate([np.concatenate(r + [blank] * (width - len(r)), axis=1) for r in rows])
    files.write_png(out, image)


def small(folder, scale, out, zoom=22.0):
    """The starting camera's size, twice enlarged beside itself: white from behind, black from the front."""
    model, pictures = load(folder, scale)
    tiles = []
    for name, view in (("white", "camera"), ("black", "camera_front")):
        image = render(model.frames[0], model.normals[0], model.triangles, model.uv, pictures[name], VIEWS[view], 90, 90, zoom,
                       light=model.light)
        tiles.append(image.repeat(3, axis=0).repeat(3, axis=1))
    files.write_png(out, np.concatenate(tiles, axis=1))


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description="Contact sheet of a model")
    parser.add_argument("folder")
    parser.add_argument("--scale", type=float, required=True)
    parser.add_argument("--out", required=True)
    parser.add_argument("--size", type=int, default=200)
    parser.add_argument("--units", type=float, default=3.6)
    parser.add_argument("--groups", nargs="*")
    parser.add_argument("--frames", type=int, default=6)
    parser.add_argument("--view", default="quarter")
    parser.add_argument("--small", action="store_true", help="only the starting camera's size")
    options = parser.parse_args()
    if options.small:
        small(options.folder, options.scale, options.out)
    else:
        sheet(options.folder, options.scale, options.out, options.size, options.units, per_group=options.frames,
              groups=options.groups, view=options.view)

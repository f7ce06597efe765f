"""The can that a beaten figure becomes, with the labels of six drinks that nobody has ever bottled.

One shape, one layout, six pictures. The labels are laid round the can by angle and height."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *  # noqa: E402,F403

RADIUS, LOW, HIGH = 0.30, 0.10, 0.93
WALL = 2 * np.pi * RADIUS

ALU = {
    "plate": (0.80, 0.80, 0.82),
    "trim": (0.74, 0.74, 0.77),
    "metal": (0.80, 0.80, 0.83),
    "dark": (0.18, 0.18, 0.20),
    "chrome": (0.86, 0.86, 0.88),
    "light": (1.0, 1.0, 1.0),
    "mark": (0.2, 0.2, 0.2),
    "wear": (0.90, 0.90, 0.92),
    "grime": (0.40, 0.38, 0.37),
    "dust": (0.5, 0.5, 0.5),
    "line": (0.40, 0.40, 0.42),
    "stripe": (0.8, 0.8, 0.8),
}


def build():
    figure = Figure("can", 0.12, Rig().bone("root", (0, 0, 0)), seed=41, home="can")
    wall = lathe(
        [
            (0.235, 0.035),
            (0.245, 0.0),
            (RADIUS, LOW),
            (RADIUS, HIGH),
            (0.235, 1.045),
            (0.24, 1.075),
            (0.222, 1.075),
            (0.205, 1.04),
            (0, 1.04),
        ],
        16,
        close=False,
        bands=["metal", "metal", "plate", "metal", "chrome", "chrome", "metal", "metal"],
    )
    base = lathe([(0, 0.075), (0.235, 0.035)], 16, close=False)
    opening = (
        lathe([(0.075, 0.001), (0.075, 0.004), (0.06, 0.004), (0.055, 0.001)], 16, close=False)
        .scale(1, 1, 0.8)
        .move(0, 1.04, 0.105)
    )
    rim = lathe([(0.19, -0.004), (0.185, 0.006), (0.175, 0.006), (0.17, -0.004)], 32, close=False).move(0, 1.04, 0)
    figure.part("wall", wall, bevel=0.006, smooth=40, detail=(opening + rim).material("metal"))
    figure.part("base", base, material="metal", bevel=0.0)
    tab = prism(
        [(-0.035, -0.075), (0.035, -0.075), (0.055, 0.0), (0.04, 0.06), (-0.04, 0.06), (-0.055, 0.0)], 0.014
    ).rotate(x=-90)
    figure.part("tab", tab.move(0, 1.056, 0.0), material="chrome", bevel=0.004)
    figure.clip("stand", 4, lambda pose, i: None)
    figure.clip("run", 18, drop)
    return figure


def drop(pose, i):
    """It hangs upright, falls, bounces twice, tips on its edge, swings over to the other and comes to rest."""
    height = keys(
        i,
        (0, 0.42),
        (1, 0.40),
        (4, 0.0, ease_in),
        (6, 0.20, ease_out),
        (8, 0.0, ease_in),
        (9, 0.055, ease_out),
        (10, 0.0, ease_in),
    )
    tilt = keys(i, (4, 0.0), (6, 7.0), (8, 13.0), (10, 17.0), (12, -11.0), (14, 6.0), (15, -2.5), (17, 0.0))
    lift = edge_lift(tilt)
    pose.turn("root", z=-tilt).move("root", y=height + lift)
    # It tips about the edge of its foot, not about its middle.
    pose.move("root", x=0.245 * np.sign(tilt) * (1 - np.cos(np.radians(tilt))))


def edge_lift(tilt):
    """How far the middle of the foot rises when the can stands on its edge."""
    return 0.245 * np.sin(np.radians(abs(tilt)))


class Label:
    """Paint on the wall by angle and height: x in world units round the can from the middle of the front, y from the
    foot of the label to its top."""

    def __init__(self, paint):
        self.paint = paint
        pos = paint.pos
        self.x = np.arctan2(pos[..., 0], pos[..., 2]) * RADIUS
        self.y = pos[..., 1]
        self.mask = paint.part("wall") * paint.material("plate")
        self.grey = 0.0

    def twice(self, offset=0.0):
        """x as seen from the nearer of two faces, front and back: a motif that stands there twice."""
        half = WALL / 2
        return np.mod(self.x - offset + half / 2, half) - half / 2

    def lay(self, mask, tone, strength=1.0):
        self.paint.lay(self.mask * np.clip(mask, 0, 1), tone, strength)

    def inside(self, distance):
        return self.paint.soft(distance, 0.0)

    def words(self, text, y, height, tone, x=None, wide=1.0):
        """Round letters made of strokes, twice round the can."""
        u = self.twice() if x is None else x
        dot = height / 4.0
        pen = np.full(u.shape, np.inf)
        start = -len(text) * 3.0 * wide / 2 + 0.45 * wide
        for number, letter in enumerate(text):
            for line in STROKES[letter]:
                for (x0, y0), (x1, y1) in zip(line, line[1:]):
                    ax, bx = start + number * 3.0 * wide + x0 * wide, start + number * 3.0 * wide + x1 * wide
                    px, py = u / dot, (self.y - y) / dot + 2
                    t = np.clip(
                        ((px - ax) * (bx - ax) + (py - y0) * (y1 - y0)) / ((bx - ax) ** 2 + (y1 - y0) ** 2 + 1e-9), 0, 1
                    )
                    pen = np.minimum(pen, np.hypot(px - ax - t * (bx - ax), py - y0 - t * (y1 - y0)))
        self.lay(self.inside(pen * dot - 0.36 * dot), tone)


# Letters on a grid 2 wide and 4 high.
STROKES = {
    "A": [[(0, 0), (0, 3), (1, 4), (2, 3), (2, 0)], [(0, 1.7), (2, 1.7)]],
    "B": [
        [(0, 0), (0, 4), (1.5, 4), (2, 3.5), (2, 2.6), (1.5, 2.1), (0, 2.1)],
        [(1.5, 2.1), (2, 1.6), (2, 0.5), (1.5, 0), (0, 0)],
    ],
    "C": [[(2, 3.3), (1.4, 4), (0.6, 4), (0, 3.3), (0, 0.7), (0.6, 0), (1.4, 0), (2, 0.7)]],
    "E": [[(2, 4), (0, 4), (0, 0), (2, 0)], [(0, 2.1), (1.6, 2.1)]],
    "G": [[(2, 3.3), (1.4, 4), (0.6, 4), (0, 3.3), (0, 0.7), (0.6, 0), (1.4, 0), (2, 0.7), (2, 1.9), (1.2, 1.9)]],
    "I": [[(1, 0), (1, 4)]],
    "L": [[(0, 4), (0, 0), (2, 0)]],
    "M": [[(0, 0), (0, 4), (1, 2.2), (2, 4), (2, 0)]],
    "N": [[(0, 0), (0, 4), (2, 0), (2, 4)]],
    "O": [[(0.6, 0), (0, 0.7), (0, 3.3), (0.6, 4), (1.4, 4), (2, 3.3), (2, 0.7), (1.4, 0), (0.6, 0)]],
    "R": [[(0, 0), (0, 4), (1.4, 4), (2, 3.4), (2, 2.6), (1.4, 2), (0, 2)], [(1.0, 2), (2, 0)]],
    "T": [[(0, 4), (2, 4)], [(1, 4), (1, 0)]],
    "V": [[(0, 4), (0, 2), (1, 0), (2, 2), (2, 4)]],
    "Z": [[(0, 4), (2, 4), (0, 0), (2, 0)]],
    "U": [[(0, 4), (0, 0.7), (0.6, 0), (1.4, 0), (2, 0.7), (2, 4)]],
    "D": [[(0, 0), (0, 4), (1.2, 4), (2, 3.2), (2, 0.8), (1.2, 0), (0, 0)]],
    " ": [],
}


def rings(label, top, foot):
    """The bands at the upper and lower end that all the drinks share."""
    label.lay(label.inside(HIGH - 0.035 - label.y), top)
    label.lay(label.inside(label.y - LOW - 0.035), foot)


def cola(label):
    """Night brown, a copper planet with a ring."""
    label.lay(1.0, (0.17, 0.07, 0.09))
    u, v = label.twice(), label.y - 0.62
    label.lay(label.inside(np.hypot(u, v) - 0.150), (0.76, 0.40, 0.20))
    label.lay(label.inside(np.hypot(u + 0.04, v - 0.035) - 0.100), (0.90, 0.58, 0.32))
    tilted = u * 0.94 - v * 0.34, u * 0.34 + v * 0.94
    ring = np.abs(np.hypot(tilted[0] / 0.235, tilted[1] / 0.062) - 1) * 0.07
    front = np.where((np.hypot(u, v) < 0.15) & (tilted[1] > 0), 1.0, 0.0)
    label.lay(label.inside(ring - 0.011) * (1 - front), (0.98, 0.90, 0.74))
    label.words("COLA", 0.30, 0.14, (0.98, 0.90, 0.74))
    rings(label, (0.76, 0.40, 0.20), (0.76, 0.40, 0.20))


def vanilla(label):
    """Cream above, brown below, a six-leaved blossom."""
    label.lay(1.0, (0.95, 0.88, 0.72))
    wave_line = label.y - 0.36 - 0.03 * np.sin(label.x / WALL * 2 * np.pi * 6)
    label.lay(label.inside(wave_line), (0.30, 0.16, 0.12))
    label.lay(label.inside(np.abs(wave_line - 0.03) - 0.008), (0.80, 0.58, 0.30))
    u, v = label.twice(), label.y - 0.66
    angle, far = np.arctan2(u, v), np.hypot(u, v)
    leaf = far - 0.075 - 0.085 * np.abs(np.cos(3 * angle)) ** 0.7
    label.lay(label.inside(leaf), (0.99, 0.97, 0.92))
    label.lay(label.inside(np.abs(leaf) - 0.006), (0.62, 0.42, 0.20))
    label.lay(label.inside(far - 0.040), (0.93, 0.70, 0.22))
    label.words("VANILLA", 0.245, 0.105, (0.97, 0.90, 0.74), wide=0.88)
    label.words("COLA", 0.475, 0.075, (0.42, 0.24, 0.16))
    rings(label, (0.30, 0.16, 0.12), (0.80, 0.58, 0.30))


def orange(label):
    """A sun of segments on warm orange."""
    label.lay(1.0, (0.96, 0.50, 0.10))
    u, v = label.twice(), label.y - 0.62
    angle, far = np.arctan2(u, v), np.hypot(u, v)
    rays = np.abs(np.mod(angle * 16 / (2 * np.pi), 1) - 0.5) * 2
    label.lay(np.clip((rays - 0.5) * 6, 0, 1) * smoothstep(0.42, 0.20, far), (1.00, 0.68, 0.22), 0.8)
    label.lay(label.inside(far - 0.165), (1.00, 0.93, 0.78))
    segment = np.abs(np.mod(angle * 8 / (2 * np.pi) + 0.5, 1) - 0.5) * far * 2 * np.pi / 8
    label.lay(label.inside(far - 0.145) * label.inside(0.010 - segment) * label.inside(0.022 - far), (0.98, 0.58, 0.12))
    label.words("ORANGE", 0.28, 0.115, (1.00, 0.96, 0.86), wide=0.94)
    rings(label, (0.62, 0.20, 0.10), (0.62, 0.20, 0.10))


def lemon_lime(label):
    """Slanted bands of two greens on white, a slice of each fruit."""
    label.lay(1.0, (0.93, 0.97, 0.92))
    slant = np.mod(label.x + 0.55 * label.y, WALL / 4) / (WALL / 4)
    label.lay(smoothstep(0.48, 0.50, slant) * smoothstep(0.76, 0.74, slant), (0.20, 0.62, 0.50))
    label.lay(smoothstep(0.80, 0.82, slant) * smoothstep(0.94, 0.92, slant), (0.74, 0.84, 0.22))
    label.lay(label.inside(np.abs(label.y - 0.335) - 0.115), (0.07, 0.33, 0.33))
    for dx, dy, skin, flesh in (
        (-0.085, 0.66, (0.93, 0.84, 0.20), (0.99, 0.96, 0.66)),
        (0.095, 0.615, (0.34, 0.66, 0.20), (0.82, 0.93, 0.58)),
    ):
        u, v = label.twice() - dx, label.y - dy
        angle, far = np.arctan2(u, v), np.hypot(u, v)
        label.lay(label.inside(far - 0.135), (0.07, 0.33, 0.33))
        label.lay(label.inside(far - 0.122), skin)
        label.lay(label.inside(far - 0.104), (0.98, 0.99, 0.94))
        segment = np.abs(np.mod(angle * 8 / (2 * np.pi) + 0.5, 1) - 0.5) * far * 2 * np.pi / 8
        label.lay(label.inside(far - 0.094) * label.inside(0.007 - segment), flesh)
    label.words("LEMON", 0.385, 0.078, (0.97, 0.95, 0.55))
    label.words("LIME", 0.275, 0.078, (0.70, 0.92, 0.50))
    rings(label, (0.20, 0.62, 0.50), (0.74, 0.84, 0.22))


def bitter_lemon(label):
    """Charcoal with a honeycomb of pale yellow, thinning upwards."""
    label.lay(1.0, (0.16, 0.17, 0.19))
    pitch = WALL / 18
    row = np.floor(label.y / (pitch * 0.866))
    u = np.mod(label.x + row * pitch / 2, pitch) - pitch / 2
    v = np.mod(label.y, pitch * 0.866) - pitch * 0.433
    size = pitch * (0.50 - 0.42 * smoothstep(0.42, 0.95, label.y))
    hexagon = np.maximum(np.abs(u), np.maximum(np.abs(0.5 * u + 0.866 * v), np.abs(0.5 * u - 0.866 * v)))
    label.lay(label.inside(hexagon - size) * label.inside(0.42 - label.y), (0.93, 0.90, 0.46))
    label.lay(label.inside(label.y - 0.42), (0.93, 0.90, 0.46))
    label.words("BITTER", 0.345, 0.088, (0.16, 0.17, 0.19))
    label.words("LEMON", 0.215, 0.088, (0.16, 0.17, 0.19))
    rings(label, (0.93, 0.90, 0.46), (0.16, 0.17, 0.19))


def tonic(label):
    """Ice blue into indigo, with bubbles that rise."""
    label.lay(1.0, (0.80, 0.90, 0.96))
    label.lay(smoothstep(0.75, 0.15, label.y), (0.17, 0.20, 0.46))
    rng = np.random.default_rng(12)
    for _ in range(46):
        bx, by, size = rng.uniform(-WALL / 4, WALL / 4), rng.uniform(0.42, 0.88), rng.uniform(0.008, 0.034)
        far = np.hypot(label.twice() - bx, label.y - by)
        label.lay(label.inside(far - size), (0.93, 0.97, 1.00), 0.55)
        label.lay(label.inside(np.abs(far - size) - 0.003), (0.30, 0.38, 0.66), 0.8)
        shine = np.hypot(label.twice() - bx + size * 0.35, label.y - by - size * 0.35)
        label.lay(label.inside(shine - size * 0.25), (1.0, 1.0, 1.0))
    label.words("TONIC", 0.29, 0.13, (0.94, 0.97, 1.00))
    rings(label, (0.17, 0.20, 0.46), (0.80, 0.90, 0.96))


DRINKS = (
    ("coke", cola),
    ("cokeVanilla", vanilla),
    ("fanta", orange),
    ("sprite", lemon_lime),
    ("bitterLemon", bitter_lemon),
    ("tonicWater", tonic),
)


def small_print(label):
    """Lines of text too small to read, a code of bars, on the seam between the two faces."""
    u = label.twice(WALL / 4)
    rng = np.random.default_rng(9)
    box_mask = label.inside(np.maximum(np.abs(u) - 0.085, np.abs(label.y - 0.40) - 0.075))
    label.lay(box_mask, (0.97, 0.97, 0.97))
    bars = rng.random(29) > 0.45
    index = np.clip(((u + 0.072) / 0.144 * 29).astype(int), 0, 28)
    label.lay(
        label.inside(np.maximum(np.abs(u) - 0.072, np.abs(label.y - 0.41) - 0.052)) * bars[index], (0.08, 0.08, 0.08)
    )
    for k in range(7):
        length = rng.uniform(0.05, 0.085)
        label.lay(
            label.inside(np.maximum(np.abs(u) - length, np.abs(label.y - 0.72 + 0.030 * k) - 0.006)),
            (0.96, 0.96, 0.94),
            0.65,
        )


def main():
    figure = build()
    maps = figure.bake(size=512, samples=12, bevel=0.008, reach=0.12, extrude=0.02, floor=True, shade_reach=0.5)
    figure.write(maps.uv)
    for number, (name, design) in enumerate(DRINKS):
        paint = Paint(figure, maps, ALU, 50)
        label = Label(paint)
        design(label)
        small_print(label)
        # The sheet's own sheen: a broad highlight on each side, as printed metal has.
        angle = np.arctan2(paint.pos[..., 0], paint.pos[..., 2])
        paint.color *= (1 + 0.10 * label.mask * np.cos(4 * angle))[..., None]
        write_tga(figure.folder() / f"{name}.tga", paint.finish(dust=0, wear=0.25, grime=0.35, streaks=0.0, spill=0))
        if number == 0:
            write_tga(figure.folder() / "normal.tga", paint.normal_picture())


if __name__ == "__main__":
    main()

"""The four effect pictures: flame puff, spark, beam grain and glow.

They are drawn in additive light and multiplied by the particle's colour, so they are nearly grey: white where the
particle is hottest, true black along the edge, soft between. Dozens lie over each other, so each one stays thin.
"""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit.figure import DATA  # noqa: E402
from kit.files import write_tga  # noqa: E402

SEED = 7311


def plane(size):
    """x, y, distance and angle of the texels; the circle of radius 1 just misses the outermost texels."""
    axis = (np.arange(size) + 0.5 - size / 2) / (size / 2 - 1)
    x, y = np.meshgrid(axis, axis)
    return x, y, np.hypot(x, y), np.arctan2(y, x)


def fade(radius, start):
    """1 up to `start`, from there a soft way down to exactly 0 at radius 1."""
    t = np.clip((1 - radius) / (1 - start), 0, 1)
    return t * t * (3 - 2 * t)


def value_noise(rng, x, y, cells):
    """Smooth noise, 0 to 1, over -1 to 1 in x and y."""
    grid = rng.random((cells + 3, cells + 3))
    px, py = (np.clip(a * 0.5 + 0.5, 0, 1) * cells for a in (x, y))
    ix, iy = px.astype(int), py.astype(int)
    fx, fy = px - ix, py - iy
    fx, fy = fx * fx * (3 - 2 * fx), fy * fy * (3 - 2 * fy)
    low = grid[iy, ix] * (1 - fx) + grid[iy, ix + 1] * fx
    high = grid[iy + 1, ix] * (1 - fx) + grid[iy + 1, ix + 1] * fx
    return low * (1 - fy) + high * fy


def billows(rng, x, y, cells, octaves):
    total, weight, norm = 0.0, 1.0, 0.0
    for octave in range(octaves):
        total = total + weight * value_noise(rng, x, y, cells * 2**octave)
        norm += weight
        weight *= 0.55
    return total / norm


def picture(light, tint):
    """Grey light to pixels: the dim parts take the tint, the hot parts go white."""
    light = np.clip(light, 0, 1)[..., None]
    return light * (np.array(tint) * (1 - light) + light)


def flame():
    """A puff of a thruster's fire: tongues that lick downwards out of a soft round body, hollow places between them."""
    rng = np.random.default_rng(SEED)
    x, y, r, _ = plane(128)
    y = -y
    sway = billows(rng, x, y, 2, 3) - 0.5
    licks = billows(rng, np.clip(1.1 * x + 0.5 * sway, -1, 1), np.clip(0.42 * y + 0.3 * sway, -1, 1), 6, 4)
    tongues = np.clip((licks - 0.30) * 2.4, 0, 1) ** 1.6
    # Narrower towards the tip, its weight above the middle, its lower edge ragged.
    width = 0.86 - 0.34 * np.clip(y, -0.6, 1)
    ragged = np.hypot(x / width, (y + 0.10) / (0.72 + 0.42 * licks))
    core = np.exp(-((np.hypot(x * 1.2, y + 0.22) / 0.40) ** 2))
    light = fade(ragged, 0.05) * (0.10 + 0.46 * tongues + 0.16 * core)
    return picture(light * fade(r, 0.6), (1.0, 0.88, 0.74))


def spark():
    """A shot: a hard white point, a tight glow, faint crossed rays."""
    x, y, r, _ = plane(64)
    point = np.exp(-((r / 0.20) ** 2))
    glow = 0.60 * np.exp(-r / 0.26)
    rays = 0.28 * (np.exp(-np.abs(x) / 0.035 - np.abs(y) / 0.34) + np.exp(-np.abs(y) / 0.035 - np.abs(x) / 0.34))
    return picture((1.15 * point + glow + rays) * fade(r, 0.35), (1.0, 0.93, 0.88))


def grain():
    """A grain of the beam: a small bright mote in a wide thin veil, so that many make a shaft of light."""
    rng = np.random.default_rng(SEED + 6)
    x, y, r, _ = plane(64)
    mote = np.exp(-((r / 0.10) ** 2))
    veil = 0.34 * np.exp(-((r / 0.48) ** 2)) * (0.75 + 0.5 * billows(rng, x, y, 5, 3))
    return picture((mote + veil) * fade(r, 0.45), (0.86, 0.93, 1.0))


def glow():
    """Gathered energy: a round light without an edge, with threads that run out from its heart."""
    rng = np.random.default_rng(SEED + 7)
    x, y, r, angle = plane(128)
    turns = (angle + 0.9 * r) / np.pi
    threads = billows(rng, np.abs((turns + 1) % 2 - 1) * 2 - 1, 0.25 * r, 9, 3)
    heart = 0.26 * np.exp(-((r / 0.16) ** 2))
    body = 0.24 * np.exp(-((r / 0.50) ** 2)) * (0.72 + 0.62 * np.clip(threads - 0.35, 0, 1))
    return picture((heart + body + 0.06 * (1 - r).clip(0)) * fade(r, 0.30), (0.90, 0.92, 1.0))


def main():
    for number, make in ((3, flame), (4, spark), (6, grain), (7, glow)):
        write_tga(DATA / f"textures/effects/particle{number}.tga", make())


if __name__ == "__main__":
    main()

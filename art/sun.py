"""The sun: a small star that hangs over the board. It is drawn unlit, so all of its light is in the picture."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *  # noqa: E402,F403

RADIUS = 2.0

# From the dark of a sunspot to the white of a flare.
HEAT = (
    (0.00, (0.30, 0.05, 0.01)),
    (0.22, (0.72, 0.20, 0.03)),
    (0.45, (0.98, 0.48, 0.08)),
    (0.68, (1.00, 0.74, 0.26)),
    (0.86, (1.00, 0.91, 0.60)),
    (1.00, (1.00, 0.99, 0.92)),
)


def build():
    figure = Figure("sun", 0.125, seed=31, home="sun")
    figure.part("ball", ball(RADIUS, 24, 13), bevel=0.0, smooth=80)
    figure.clip("frame", 1, lambda pose, i: None)
    return figure


def surface(pos):
    """Heat of the star's surface: boiling cells, currents between them, dark spots, bright flares."""
    d = pos / np.maximum(np.linalg.norm(pos, axis=2, keepdims=True), 1e-9)
    flow = np.stack([fractal(d * 2.2 + shift, 4, seed) for shift, seed in ((3, 1), (19, 2), (37, 3))], axis=-1) - 0.5
    bent = d + 0.55 * flow
    cells = 1 - np.abs(2 * fractal(bent * 5.5 + 7, 4, 11) - 1)
    fine = 1 - np.abs(2 * fractal(bent * 17 + 9, 3, 13) - 1)
    currents = fractal(bent * 2.1 + 23, 4, 17)
    spots = smoothstep(0.62, 0.74, fractal(bent * 2.6 + 41, 3, 19)) * np.exp(-((d[..., 1] / 0.55) ** 2))
    flare = smoothstep(0.60, 0.80, currents)
    heat = 0.30 + 0.34 * cells**2 + 0.16 * fine**2 + 0.30 * (currents - 0.4) + 0.30 * flare
    return heat * (1 - 0.75 * spots) + 0.10 * spots * fine


def colour_of(heat):
    stops = np.array([at for at, _ in HEAT])
    return np.stack([np.interp(heat, stops, [c[k] for _, c in HEAT]) for k in range(3)], axis=-1)


def main():
    figure = build()
    maps = figure.bake(size=512, samples=2, floor=False)
    figure.write(maps.uv)
    paint = Paint(figure, maps, WHITE)
    heat = surface(paint.pos)
    write_tga(figure.folder() / "orange_star.tga", colour_of(heat))
    paint.height = heat * 6
    write_tga(figure.folder() / "orange_star_normal.tga", paint.normal_picture(0.5))


if __name__ == "__main__":
    main()

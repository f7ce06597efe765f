"""The sky: a deep purple nebula around the whole arena, as six pictures of a cube.

Colour is a function of the direction alone, so neighbouring faces agree where they meet. Texel centres run from
edge to edge of a face: the outermost texels lie exactly on the cube's edges and both faces hold the same colour there.

Depth comes from layers, far to near: a faint glow without form, star dust, a lit cloud along a tilted band, filaments,
lanes of dust that swallow what is behind them and catch light on their rims, and a few near stars over all.
"""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit.figure import DATA  # noqa: E402
from kit.files import write_tga  # noqa: E402

SIZE = 1024
COARSE = 342  # soft layers are computed on every third texel: 3 * (342 - 1) + 1 = 1024
ROWS = 16  # painted at a time: what is in work then stays in the processor's cache
SEED = 20261

# What the cube shows where: the corners of each picture at (u, v) = (0, 0), (1, 0) and (0, 1).
FACES = {
    "up": ((1, 1, 1), (1, 1, -1), (-1, 1, 1)),
    "down": ((-1, -1, 1), (-1, -1, -1), (1, -1, 1)),
    "front": ((-1, -1, -1), (-1, 1, -1), (1, -1, -1)),
    "back": ((1, -1, 1), (1, 1, 1), (-1, -1, 1)),
    "left": ((1, -1, -1), (1, 1, -1), (1, -1, 1)),
    "right": ((-1, -1, 1), (-1, 1, 1), (-1, -1, -1)),
}

# The band of the nebula: it passes low behind Black's side, where the starting camera looks, and high behind White's.
BAND_NORMAL = np.array([0.33, 0.90, -0.27]) / np.linalg.norm([0.33, 0.90, -0.27])

# The board is looked down upon, so the band sags below the plane that its normal tells.
BAND_SAG = 0.07

# A fainter, bluer arm crosses the depths behind White, where the camera looks from Black's side.
ARM_NORMAL = np.array([-0.34, 0.86, 0.36]) / np.linalg.norm([-0.34, 0.86, 0.36])

# Where young stars crowd: direction, spread in radians, number of stars, colour.
CLUSTERS = (
    ((-0.46, -0.17, -0.87), 0.050, 150, (0.78, 0.86, 1.00)),
    ((0.62, -0.42, -0.66), 0.085, 190, (0.95, 0.80, 0.95)),
    ((-0.80, 0.10, 0.45), 0.045, 130, (0.80, 0.88, 1.00)),
    ((0.35, 0.22, 0.90), 0.070, 170, (1.00, 0.86, 0.80)),
    ((-0.30, -0.85, -0.30), 0.060, 120, (0.84, 0.82, 1.00)),
    ((0.93, 0.16, 0.22), 0.038, 110, (0.80, 0.90, 1.00)),
)

# The few bright stars: direction, brightness, colour.
BRIGHT_STARS = (
    ((-0.30, -0.26, -0.92), 1.00, (0.82, 0.90, 1.00)),
    ((0.48, -0.20, -0.85), 0.72, (1.00, 0.88, 0.74)),
    ((0.16, -0.08, -0.98), 0.50, (0.85, 0.86, 1.00)),
    ((-0.74, -0.34, -0.57), 0.66, (0.92, 0.84, 1.00)),
    ((0.86, -0.30, -0.40), 0.85, (0.80, 0.90, 1.00)),
    ((0.95, 0.24, 0.10), 0.60, (1.00, 0.82, 0.70)),
    ((0.60, 0.30, 0.74), 0.90, (0.84, 0.90, 1.00)),
    ((-0.12, 0.18, 0.97), 0.62, (1.00, 0.92, 0.82)),
    ((-0.66, 0.22, 0.71), 0.75, (0.86, 0.86, 1.00)),
    ((-0.97, -0.06, 0.20), 0.70, (0.80, 0.88, 1.00)),
    ((-0.90, 0.30, -0.30), 0.48, (1.00, 0.90, 0.86)),
    ((0.30, -0.88, 0.36), 0.64, (0.84, 0.88, 1.00)),
    ((-0.52, -0.70, 0.48), 0.56, (1.00, 0.86, 0.78)),
    ((0.25, -0.70, -0.66), 0.52, (0.86, 0.90, 1.00)),
)


def directions(face, size):
    """Unit directions of a face's texels, (size, size, 3), row 0 at v = 0."""
    origin, along_u, along_v = (np.array(corner, dtype=np.float64) for corner in FACES[face])
    step = np.arange(size) / (size - 1.0)
    cube = origin + step[None, :, None] * (along_u - origin) + step[:, None, None] * (along_v - origin)
    return (cube / np.linalg.norm(cube, axis=2, keepdims=True)).astype(np.float32)


class GradientNoise:
    """Smooth noise in space, about -1 to 1, that repeats after 64 units."""

    PERIOD = 64

    def __init__(self, rng):
        gradients = rng.normal(size=(3, self.PERIOD**3))
        self.gradients = (gradients / np.linalg.norm(gradients, axis=0)).astype(np.float32)

    def __call__(self, points):
        cells, insides, fades = [], [], []
        for axis, stride in enumerate((self.PERIOD**2, self.PERIOD, 1)):
            along = points[..., axis]
            cell = np.floor(along)
            inside = along - cell
            cell = cell.astype(np.int32)
            cells.append([((cell + end) & (self.PERIOD - 1)) * stride for end in (0, 1)])
            insides.append((inside, inside - 1))
            fades.append(inside * inside * inside * (inside * (inside * 6 - 15) + 10))

        def slope(x, y, z):
            at = cells[0][x] + cells[1][y] + cells[2][z]
            gx, gy, gz = self.gradients
            return gx[at] * insides[0][x] + gy[at] * insides[1][y] + gz[at] * insides[2][z]

        def between(low, high, fade):
            return low + (high - low) * fade

        def along_z(x, y):
            return between(slope(x, y, 0), slope(x, y, 1), fades[2])

        def along_y(x):
            return between(along_z(x, 0), along_z(x, 1), fades[1])

        return between(along_y(0), along_y(1), fades[0]) * np.float32(1.5)


def layered(noise, points, octaves, gain=0.5, lacunarity=2.03, ridged=False):
    """Octaves of noise on top of each other: soft billows, or sharp crests when `ridged` (then 0 to 1)."""
    total = np.zeros(points.shape[:-1], dtype=np.float32)
    weight, norm = 1.0, 0.0
    for octave in range(octaves):
        layer = noise(points * lacunarity**octave + 11.7 * octave)
        total += weight * ((1 - np.abs(layer)) ** 2 if ridged else layer)
        norm += weight
        weight *= gain
    return total / norm


def smoothstep(low, high, value):
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def enlarge(coarse):
    """From every third texel to every texel, straight lines between: the same along a shared edge for both faces."""

    def along_rows(field):
        out = np.empty((3 * (field.shape[0] - 1) + 1,) + field.shape[1:], dtype=field.dtype)
        for third in range(3):
            t = third / 3.0
            out[third:-1:3] = field[:-1] * (1 - t) + field[1:] * t
        out[-1] = field[-1]
        return out

    return np.swapaxes(along_rows(np.swapaxes(along_rows(coarse), 0, 1)), 0, 1)


def colour(*rgb):
    return np.array(rgb, dtype=np.float32)


class Nebula:
    """The cloud, without its stars."""

    def __init__(self):
        rng = np.random.default_rng(SEED)
        self.noise = [GradientNoise(rng) for _ in range(4)]

    def soft(self, direction):
        """What changes slowly: height over the band, folds of space, and the large masses, stacked in one array."""
        fold = np.stack([layered(noise, direction * 1.7 + 5, 4) for noise in self.noise[:3]], axis=-1)
        bent = direction + 0.42 * fold
        height = bent @ BAND_NORMAL.astype(np.float32) + np.float32(BAND_SAG)
        mass = layered(self.noise[3], bent * 2.3, 4)
        hue = layered(self.noise[0], bent * 1.15 + 31, 3)
        far = layered(self.noise[1], direction * 1.3 + 17, 3)
        return np.stack([height, mass, hue, far, *np.moveaxis(bent, -1, 0)], axis=-1)

    def paint(self, direction, soft):
        height, mass, hue, far = (soft[..., k] for k in range(4))
        bent = soft[..., 4:7]
        fine = layered(self.noise[2], bent * 9.5, 5, gain=0.6)
        crests = layered(self.noise[3], bent * 4.2 + 3, 5, gain=0.55, ridged=True)
        threads = layered(self.noise[0], bent * 7.0 + 0.9 * fine[..., None], 3, gain=0.5, ridged=True)

        band = np.exp(-((height / 0.30) ** 2))
        heart = np.exp(-((height / 0.11) ** 2))
        cloud = band * smoothstep(-0.42, 0.52, mass + 0.28 * fine)
        lit = cloud * (0.50 + 0.80 * smoothstep(0.45, 0.85, crests)) + 0.40 * heart * smoothstep(-0.2, 0.5, mass)

        # Dust in front: thick near the heart of the band, with ragged edges.
        dust_field = layered(self.noise[1], bent * 3.4 + 8, 3) + 0.36 * (threads - 0.5) + 0.20 * fine
        dust_place = np.exp(-(((height - 0.03) / 0.20) ** 2))
        dust = smoothstep(0.10, 0.34, dust_field + 0.16 * dust_place) * (0.30 + 0.70 * dust_place)
        rim = smoothstep(0.02, 0.12, dust_field + 0.16 * dust_place) - smoothstep(
            0.12, 0.26, dust_field + 0.16 * dust_place
        )

        arm = np.exp(-(((bent @ ARM_NORMAL.astype(np.float32)) / 0.24) ** 2)) * (1 - band)
        arm = arm * smoothstep(-0.35, 0.40, 0.30 * fine - mass) * (0.45 + 0.75 * smoothstep(0.45, 0.85, crests))

        warm = smoothstep(-0.15, 0.40, hue)[..., None]
        cool = smoothstep(0.05, 0.45, -hue)[..., None]
        violet = colour(0.250, 0.080, 0.420)
        magenta = colour(0.460, 0.105, 0.390)
        indigo = colour(0.095, 0.105, 0.430)
        body = violet + warm * (magenta - violet) + cool * (indigo - violet)

        glow = (0.036 + 0.062 * smoothstep(-0.5, 0.6, far))[..., None] * colour(0.42, 0.22, 0.95)
        glow = glow + colour(0.004, 0.003, 0.009)
        light = glow + (0.78 * lit)[..., None] * body
        light = light + (0.34 * heart * cloud * threads)[..., None] * colour(0.55, 0.32, 0.62)
        light = light + (0.85 * arm)[..., None] * (0.45 * indigo + 0.55 * violet)
        light = light * (1 - 0.80 * dust)[..., None]
        light = light + (0.26 * np.clip(rim, 0, 1) * cloud)[..., None] * colour(0.62, 0.20, 0.44)

        top = 1 - 0.82 * smoothstep(0.45, 0.95, direction[..., 1])
        return light * top[..., None], dust, cloud


def star_field(nebula):
    """Directions, brightness, colours and sizes of all point stars."""
    rng = np.random.default_rng(SEED + 1)

    def random_directions(count):
        d = rng.normal(size=(count, 3))
        return d / np.linalg.norm(d, axis=1, keepdims=True)

    def temperatures(count):
        mix = rng.random((count, 1))
        return np.where(
            mix < 0.5,
            np.array([0.72, 0.82, 1.0]) + mix * np.array([0.5, 0.3, 0.0]),
            np.array([1.0, 0.95, 0.95]) - (mix - 0.5) * np.array([0.0, 0.35, 0.55]),
        )

    everywhere = random_directions(5200)
    crowd = random_directions(60000)
    crowd = crowd[rng.random(60000) < np.exp(-((crowd @ BAND_NORMAL / 0.26) ** 2)) * 0.42]
    points = np.concatenate([everywhere, crowd])
    shine = 0.10 + 0.055 * (rng.pareto(1.9, len(points)))
    shine[len(everywhere) :] *= 0.62
    tint = temperatures(len(points))

    soft = nebula.soft(points.astype(np.float32))
    _, dust, _ = nebula.paint(points.astype(np.float32), soft)
    shine *= 1 - 0.88 * dust

    for centre, spread, count, hue in CLUSTERS:
        centre = np.array(centre) / np.linalg.norm(centre)
        radius = spread * np.abs(rng.standard_t(2.4, (count, 1))).clip(0, 5) * 0.6
        aside = random_directions(count)
        group = centre + radius * aside
        points = np.concatenate([points, group / np.linalg.norm(group, axis=1, keepdims=True)])
        shine = np.concatenate([shine, 0.14 + 0.085 * rng.pareto(1.7, count).clip(0, 8)])
        tint = np.concatenate([tint, np.clip(np.array(hue) + rng.normal(0, 0.05, (count, 3)), 0, 1)])
    return points, shine.clip(0, 0.95), tint


def draw_star(picture, view, centre, reach, profile, tint):
    """Adds light round `centre` to a face, if the star or its glow touches it. `profile` maps radians to brightness."""
    origin, along_u, along_v = (np.array(corner, dtype=np.float64) for corner in FACES[view.face])
    axis = (along_u + along_v) / 2  # the middle of the face, at distance 1
    depth = centre @ axis
    if depth < 0.25:
        return
    on_face = centre / depth
    u = (on_face - axis) @ (along_u - origin) / 4 + 0.5
    v = (on_face - axis) @ (along_v - origin) / 4 + 0.5
    margin = int(np.ceil(reach * SIZE / 2 / depth**2)) + 1
    column, row = int(round(u * (SIZE - 1))), int(round(v * (SIZE - 1)))
    left, right = max(column - margin, 0), min(column + margin + 1, SIZE)
    low, high = max(row - margin, 0), min(row + margin + 1, SIZE)
    if left >= right or low >= high:
        return
    apart = np.linalg.norm(view.direction[low:high, left:right] - centre.astype(np.float32), axis=2)
    picture[low:high, left:right] += profile(apart)[..., None] * tint.astype(np.float32)


class View:
    def __init__(self, face):
        self.face = face
        self.direction = directions(face, SIZE)


def add_stars(picture, view, stars):
    texel = 2.0 / SIZE
    for centre, shine, tint in zip(*stars):
        width = texel * (0.47 + 0.20 * shine)
        draw_star(picture, view, centre, 4 * width, lambda r: shine * np.exp(-0.5 * (r / width) ** 2), tint)
    for centre, shine, tint in BRIGHT_STARS:
        centre = np.array(centre) / np.linalg.norm(centre)
        tint = np.array(tint)

        def core(r):
            return 1.9 * shine * np.exp(-0.5 * (r / (texel * (0.58 + 0.34 * shine))) ** 2)

        def halo(r):
            spread = np.exp(-r / (texel * 2.6)) * 0.30 + np.exp(-r / (texel * 12)) * 0.075
            return shine * spread * np.clip(1 - r / (texel * 60), 0, 1)

        draw_star(picture, view, centre, 6 * texel, core, np.ones(3) * 0.6 + tint * 0.4)
        draw_star(picture, view, centre, 60 * texel, halo, tint * np.array([0.80, 0.72, 1.0]))


def add_cluster_haze(light, direction):
    for centre, spread, _, hue in CLUSTERS:
        centre = (np.array(centre) / np.linalg.norm(centre)).astype(np.float32)
        apart = np.linalg.norm(direction - centre, axis=2)
        haze = 0.10 * np.exp(-((apart / (1.1 * spread)) ** 2)) + 0.035 * np.exp(-((apart / (3.0 * spread)) ** 2))
        light += haze[..., None] * colour(*hue) * colour(0.72, 0.58, 1.0)
    return light


def to_bytes(light, direction):
    """Shoulder for the brightest light, then 8 bits; a grain that belongs to the direction hides the steps."""
    shown = 1 - np.exp(-1.25 * np.clip(light, 0, None))
    key = np.round(direction.astype(np.float64) * 40000).astype(np.int64)
    grain = (key[..., 0] * 73856093 ^ key[..., 1] * 19349663 ^ key[..., 2] * 83492791) % 997 / 997.0 - 0.5
    return np.clip(np.round(shown * 255 + 0.9 * grain[..., None]), 0, 255).astype(np.uint8)


def main():
    nebula = Nebula()
    stars = star_field(nebula)
    for face in FACES:
        view = View(face)
        soft = enlarge(nebula.soft(directions(face, COARSE)))
        light = np.concatenate(
            [nebula.paint(view.direction[row : row + ROWS], soft[row : row + ROWS])[0] for row in range(0, SIZE, ROWS)]
        )
        light = add_cluster_haze(light, view.direction)
        add_stars(light, view, stars)
        write_tga(DATA / f"textures/skybox/verypurple_{face}2.tga", to_bytes(light, view.direction))


if __name__ == "__main__":
    main()

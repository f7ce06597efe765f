"""Painting: colour and normal pictures from baked maps, by masks over the rest position of each texel.

Distances are in world units, so a panel line or a stencil is placed in space and not in the picture."""

import numpy as np

from . import files

# Materials of both armies, red green blue. "plate" is the armour, "trim" its second tone, "edge" its worn edges, "metal" what lies under
# it (brass, gunmetal), "dark" hollows, "rubber" belts and hoses, "chrome" rods, "light" lamps, "mark" stencils, "wear" what shows
# where the paint has gone, "grime" what gathers in corners, "dust" what the floor leaves on feet.
WHITE = {"plate": (0.84, 0.80, 0.71), "trim": (0.72, 0.66, 0.55), "metal": (0.76, 0.55, 0.25), "dark": (0.19, 0.17, 0.16),
         "rubber": (0.23, 0.20, 0.18), "chrome": (0.80, 0.78, 0.73), "light": (0.30, 0.92, 1.00), "mark": (0.10, 0.30, 0.40),
         "wear": (0.62, 0.45, 0.20), "edge": (0.96, 0.93, 0.87), "grime": (0.36, 0.27, 0.17), "dust": (0.52, 0.46, 0.41),
         "line": (0.28, 0.21, 0.15), "stripe": (0.12, 0.44, 0.55)}
BLACK = {"plate": (0.175, 0.18, 0.20), "trim": (0.255, 0.26, 0.285), "metal": (0.34, 0.355, 0.38), "dark": (0.08, 0.08, 0.09),
         "rubber": (0.11, 0.11, 0.12), "chrome": (0.50, 0.52, 0.55), "light": (1.00, 0.60, 0.10), "mark": (0.80, 0.50, 0.15),
         "wear": (0.48, 0.49, 0.52), "edge": (0.37, 0.38, 0.41), "grime": (0.07, 0.06, 0.055), "dust": (0.28, 0.25, 0.26),
         "line": (0.04, 0.04, 0.045), "stripe": (0.72, 0.41, 0.08)}
ARMIES = (("white", WHITE), ("black", BLACK))

FONT = dict(zip("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-./+", (
    "01110100011000111111100011000110001 11110100011000111110100011000111110 01110100011000010000100001000101110 "
    "11110100011000110001100011000111110 11111100001000011110100001000011111 11111100001000011110100001000010000 "
    "01110100011000010111100011000101111 10001100011000111111100011000110001 01110001000010000100001000010001110 "
    "00111000100001000010000101001001100 10001100101010011000101001001010001 10000100001000010000100001000011111 "
    "10001110111010110101100011000110001 10001110011010110011100011000110001 01110100011000110001100011000101110 "
    "11110100011000111110100001000010000 01110100011000110001101011001001101 11110100011000111110101001001010001 "
    "01111100001000001110000010000111110 11111001000010000100001000010000100 10001100011000110001100011000101110 "
    "10001100011000110001100010101000100 10001100011000110101101011101110001 10001100010101000100010101000110001 "
    "10001100010101000100001000010000100 11111000010001000100010001000011111 "
    "01110100011001110101110011000101110 00100011000010000100001000010001110 01110100010000100110010001000011111 "
    "11110000010000101110000010000111110 00010001100101010010111110001000010 11111100001111000001000011000101110 "
    "01110100001000011110100011000101110 11111000010001000100010000100001000 01110100011000101110100011000101110 "
    "01110100011000101111000010000101110 00000000000000011111000000000000000 00000000000000000000000000110001100 "
    "00001000010001000100010001000010000 00000001000010011111001000010000000").split()))


def smoothstep(low, high, x):
    t = np.clip((x - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def noise(points, seed=0):
    """Smooth value noise, 0 to 1, one cell a unit, over points (..., 3)."""
    base = np.floor(points).astype(np.int64)
    t = points - base
    t = t * t * (3 - 2 * t)
    key = [(base[..., a].astype(np.uint64), m) for a, m in enumerate((0x9E3779B1, 0x85EBCA77, 0xC2B2AE3D))]
    sides = [((q * np.uint64(m), (q + np.uint64(1)) * np.uint64(m)), (1 - t[..., a], t[..., a]))
             for a, (q, m) in enumerate(key)]
    result = np.zeros(points.shape[:-1])
    for corner in range(8):
        x, y, z = corner & 1, corner >> 1 & 1, corner >> 2
        h = (sides[0][0][x] ^ sides[1][0][y] ^ sides[2][0][z]) + np.uint64(seed * 7919 + 17)
        h *= np.uint64(0x27D4EB2F165667C5)
        h ^= h >> np.uint64(29)
        h *= np.uint64(0x165667B19E3779F9)
        h ^= h >> np.uint64(32)
        result += sides[0][1][x] * sides[1][1][y] * sides[2][1][z] * (h & np.uint64(0xFFFFFF))
    return result / 0xFFFFFF


def fractal(points, octaves=4, seed=0):
    """Sum of noises, each twice as fine and half as strong; 0 to 1."""
    total, weight = 0.0, 0.0
    for i in range(octaves):
        total = total + noise(points * 2 ** i, seed + i) * 0.5 ** i
        weight += 0.5 ** i
    return total / weight


class Paint:
    """The picture of a figure for one army. Masks are 0 to 1 over all texels; operations lay paint over what is
    there; `finish` adds wear, occlusion, dirt and lamps."""

    def __init__(self, figure, maps, palette, seed=0):
        self.figure, self.maps, self.seed = figure, maps, seed
        self.palette = {"edge": np.array(palette["plate"]) * 0.6 + 0.4} | palette
        self.inside = maps.part >= 0
        self.nearest = nearest(self.inside)
        self.pos, self.nrm, self.parts = (field[self.nearest] for field in (maps.pos, maps.nrm, maps.part))
        self.nrm /= np.maximum(np.linalg.norm(self.nrm, axis=2, keepdims=True), 1e-9)
        self.materials = maps.material
        self.rim = maps.rim[self.nearest]
        self.texel = self._texel()
        self.color = np.zeros((maps.size, maps.size, 3))
        self.height = np.zeros((maps.size, maps.size))
        self.lit = np.zeros((maps.size, maps.size))
        self.worn = np.ones((maps.size, maps.size))
        for name in maps.materials:
            self.color[self.materials == maps.materials.index(name)] = self.tone(name)
        self.lit += self.material("light")
        place = np.stack([self.parts * 3.7, maps.polygon[self.nearest] * 2.3, self.parts * 0.7], axis=-1) + 0.5
        self.color *= (1 + 0.12 * (noise(place, seed) - 0.5))[:, :, None]

    def _texel(self):
        areas, texels = 0.0, self.inside.sum()
        for part in self.figure.parts:
            if part.like is None:
                for face in part.mesh.f:
                    p = part.mesh.v[face]
                    areas += np.linalg.norm(np.cross(p, np.roll(p, -1, axis=0)).sum(axis=0)) / 2
        return float(np.sqrt(areas / texels))

    def tone(self, name):
        """Colour of a palette entry; a triple is its own colour."""
        return np.array(self.palette[name] if isinstance(name, str) else name, dtype=float)

    # Masks

    def material(self, *names):
        """Texels of these materials."""
        wanted = [self.maps.materials.index(n) for n in names if n in self.maps.materials]
        return np.isin(self.materials, wanted).astype(float)

    def part(self, *names):
        """Texels of the parts whose names begin with one of these."""
        wanted = [i for i, p in enumerate(self.figure.parts) if p.name.startswith(names)]
        return np.isin(self.parts, wanted).astype(float)

    def soft(self, distance, width):
        """1 where the distance is below the width, with an edge one texel wide."""
        return np.clip(0.5 + (width - distance) / self.texel, 0, 1)

    def band(self, axis, at, width):
        """A stripe square to an axis ("x", "y", "z" or a vector)."""
        return self.soft(np.abs(self.pos @ self._axis(axis) - at), width / 2)

    def above(self, axis, at):
        """Where the coordinate along the axis is greater than `at`."""
        return self.soft(at - self.pos @ self._axis(axis), 0.0)

    def near(self, point, radius):
        """Inside a ball."""
        return self.soft(np.linalg.norm(self.pos - point, axis=2), radius)

    def ring(self, point, radius, width):
        """On the shell of a ball: circles on surfaces."""
        return self.soft(np.abs(np.linalg.norm(self.pos - point, axis=2) - radius), width / 2)

    def inset(self, at, width=0.0):
        """A line on each polygon at a distance from its sharp edges; without a width all that is farther from them."""
        return self.soft(np.abs(self.rim - at), width / 2) if width else self.soft(at - self.rim, 0.0)

    def facing(self, x=0.0, y=0.0, z=0.0, least=0.5):
        """Where the surface faces the direction."""
        d = np.array((x, y, z), dtype=float)
        return smoothstep(least - 0.1, least + 0.1, self.nrm @ (d / np.linalg.norm(d)))

    def grain(self, size, octaves=4, seed=0, stretch=(1, 1, 1)):
        """Noise over space with features of `size`, 0 to 1; `stretch` lengthens them along an axis."""
        result = np.zeros(self.inside.shape)
        places = self.pos[self.inside] / (size * np.asarray(stretch, float)) + 31.7 * (seed + 1)
        result[self.inside] = fractal(places, octaves, self.seed + seed)
        return result[self.nearest]

    def _axis(self, axis):
        vector = {"x": (1, 0, 0), "y": (0, 1, 0), "z": (0, 0, 1)}.get(axis, axis) if isinstance(axis, str) else axis
        return np.asarray(vector, dtype=float)

    # Laying paint

    def lay(self, mask, tone, strength=1.0):
        """Paint of a palette name or colour where the mask is."""
        cover = (np.clip(mask, 0, 1) * strength)[:, :, None]
        self.color = self.color * (1 - cover) + self.tone(tone) * cover
        return self

    def lines(self, mask, depth=1.0):
        """Panel lines: dark, cut in."""
        self.lay(mask, "line", 0.8)
        self.height -= np.clip(mask, 0, 1) * depth
        return self

    def courses(self, mask, heights, count, width=0.014, depth=1.0):
        """Seams of blocks about the y axis: rings at the heights, and between each two of them `count` upright
        joints, staggered from course to course."""
        angle = np.arctan2(self.pos[:, :, 0], self.pos[:, :, 2]) / (2 * np.pi)
        radius = np.hypot(self.pos[:, :, 0], self.pos[:, :, 2])
        seams = np.zeros(angle.shape)
        for number, (low, high) in enumerate(zip(heights, heights[1:])):
            seams = np.maximum(seams, self.band("y", low, width))
            place = angle * count + number * 0.5
            off = np.abs(place - np.rint(place)) / count * 2 * np.pi * radius
            within = (self.pos[:, :, 1] > low) & (self.pos[:, :, 1] < high)
            seams = np.maximum(seams, self.soft(off, width / 2) * within)
        return self.lines(np.maximum(seams, self.band("y", heights[-1], width)) * mask, depth)

    def rivets(self, points, radius, mask=1.0):
        """Round heads in relief."""
        for p in points:
            distance = np.linalg.norm(self.pos - p, axis=2)
            head = self.soft(distance, radius) * mask
            self.lay(self.soft(distance, radius * 1.5) * mask, "line", 0.45)
            self.lay(head, "wear", 0.55)
            self.height += head * 0.8
        return self

    def lamps(self, mask):
        """Lit glass."""
        self.lit = np.maximum(self.lit, np.clip(mask, 0, 1))
        return self

    def sheet(self, centre, right, up, depth=0.15):
        """Coordinates of a flat stencil held against the model: (u, v) in world units and where it applies: near
        its plane, on surfaces that face it."""
        right, up = np.asarray(right, float), np.asarray(up, float)
        right, up = right / np.linalg.norm(right), up / np.linalg.norm(up)
        out = np.cross(right, up)
        away = self.pos - np.asarray(centre, dtype=float)
        here = (np.abs(away @ out) < depth) & (self.nrm @ out > 0.35)
        return away @ right, away @ up, here.astype(float)

    def text(self, words, centre, right, up, height, tone="mark", strength=0.9, depth=0.15, parts=None):
        """Stencilled letters, `height` tall, centred."""
        u, v, here = self.sheet(centre, right, up, depth)
        dot = height / 7
        column = u / dot + (len(words) * 6 - 1) / 2
        line = 3.5 - v / dot
        mask = np.zeros(u.shape)
        for du, dv in ((-0.25, -0.25), (0.25, -0.25), (-0.25, 0.25), (0.25, 0.25)):
            c, r = np.floor(column + du).astype(int), np.floor(line + dv).astype(int)
            ok = (c >= 0) & (c < len(words) * 6) & (r >= 0) & (r < 7) & (c % 6 < 5)
            glyphs = np.array([[int(bit) for bit in FONT.get(ch, "0" * 35)] for ch in words])
            found = glyphs[np.clip(c // 6, 0, len(words) - 1), np.clip(r, 0, 6) * 5 + np.clip(c % 6, 0, 4)]
            mask += ok * found / 4
        if parts:
            here = here * self.part(*parts)
        return self.lay(mask * here, tone, strength)

    def outline(self, points, centre, right, up, tone="mark", strength=0.9, depth=0.15, parts=None):
        """A filled polygon stencil, points in world units on the sheet."""
        u, v, here = self.sheet(centre, right, up, depth)
        mask = inside_polygon(u, v, points, self.texel)
        if parts:
            here = here * self.part(*parts)
        return self.lay(mask * here, tone, strength)

    def hazard(self, mask, axis, pitch, tone="mark", strength=0.85):
        """Slanted warning stripes inside a mask; the axis says which way they change."""
        place = (self.pos @ self._axis(axis)) / pitch
        stripes = np.clip(0.5 + (0.25 - np.abs(place - np.floor(place) - 0.5)) * pitch / self.texel, 0, 1)
        return self.lay(mask * stripes, tone, strength)

    # The end

    def finish(self, wear=1.0, grime=1.0, dust=0.5, streaks=0.6, spill=0.12, occlusion=1.0, gain=1.0):
        """Edge wear, occlusion, grime in corners, streaks that run down, dust on what is near the floor, lamps and
        the light they spill. `gain` brightens the paint of a figure whose material returns little light. Answers the finished picture, filled out between the islands."""
        maps = self.maps
        armour = self.material("plate", "trim", "stripe")
        bare = self.material("metal", "chrome", "dark")
        broken, mottle = self.grain(0.09, 3, 5), self.grain(0.22, 4, 2)
        self.color *= (1 + 0.13 * (mottle - 0.5))[:, :, None]

        hollow = 1 - np.clip(maps.ao, 0, 1)
        shade = np.clip(maps.shade, 0, 1)
        corners = np.clip(hollow * 1.2 + (1 - shade) * 0.30, 0, 1) * smoothstep(0.30, 0.75, self.grain(0.16, 3, 21))
        self.lay(corners * 0.6 * grime, "grime")
        side = np.clip(1 - np.abs(self.nrm[:, :, 1]) * 1.1, 0, 1)
        runs = smoothstep(0.58, 0.80, self.grain(0.05, 2, 31, (1, 9, 1))) * smoothstep(0.4, 0.65, self.grain(0.3, 2, 33))
        self.lay(runs * side * 0.5 * streaks * (1 - self.material("dark")), "grime")
        low = np.exp(-np.maximum(self.pos[:, :, 1], 0) / 0.20) * smoothstep(0.2, 0.6, self.grain(0.12, 3, 41))
        self.lay(low * dust, "dust")

        dark = (0.42 + 0.58 * np.clip(maps.ao, 0, 1) ** occlusion) * (0.48 + 0.52 * shade ** occlusion)
        tops = 1 - 0.20 * np.clip(self.nrm[:, :, 1], 0, 1)  # the game's light stands above and is bright enough there
        self.color *= (dark * tops * gain)[:, :, None]

        ridge = np.clip(np.maximum(maps.edge, self.soft(self.rim, 0.007) * (maps.ao > 0.75)), 0, 1) * self.worn
        self.lay(ridge * smoothstep(0.15, 0.5, broken) * armour * wear, "edge", 0.6)
        self.lay(ridge * bare * (0.4 + 0.6 * broken), "wear", 0.45 * min(1.0, wear))
        bite = self.soft(self.rim, 0.030 * smoothstep(0.52, 0.85, broken) * wear)
        chips = smoothstep(0.70, 0.75, self.grain(0.05, 3, 9)) * smoothstep(0.58, 0.75, self.grain(0.45, 2, 11)) * wear
        gone = np.clip(np.maximum(ridge * smoothstep(0.55, 0.7, broken), np.maximum(bite * (broken > 0.56), 0.5 * chips)), 0, 1)
        self.lay(gone * armour * self.worn, "wear", 0.8)

        glass = np.clip(self.lit, 0, 1)
        if spill > 0 and glass.max() > 0:
            self._spill(glass * self.inside, spill)
        hot = np.clip(self.tone("light") * 0.72 + 0.30, 0, 1)
        core = smoothstep(0.5, 1.0, blur(glass, 2))
        lamp = self.tone("light") * (1 - core[:, :, None]) + hot * core[:, :, None]
        self.color = self.color * (1 - glass[:, :, None]) + lamp * glass[:, :, None]
        self.picture = spread(np.clip(self.color, 0, 1), self.inside, self.nearest)
        return self.picture

    def _spill(self, glass, reach):
        """Light that lamps throw on what is near: from a few hundred sample texels of the lamps."""
        rows, columns = np.nonzero(glass > 0.5)
        if len(rows) == 0:
            return
        step = max(1, len(rows) // 240)
        points, weight = self.pos[rows[::step], columns[::step]], step * self.texel ** 2
        normals = self.nrm[rows[::step], columns[::step]]
        light = np.zeros(glass.shape)
        here = self.pos[self.inside]
        facing = self.nrm[self.inside]
        total = np.zeros(len(here))
        for p, n in zip(points, normals):
            away = here - p
            square = (away * away).sum(axis=1)
            close = square < (4 * reach) ** 2
            distance = np.sqrt(square[close]) + 0.04
            front = np.clip((away[close] @ n) + 0.04, 0, None) / distance
            turned = np.clip(0.25 - (away[close] * facing[close]).sum(axis=1) / distance, 0, 1)
            total[close] += front * turned * np.exp(-square[close] / reach ** 2)
        light[self.inside] = 1 - np.exp(-total * weight / reach ** 2 * 9.0)
        cover = (light * (1 - glass) * 0.7)[:, :, None]
        grey = self.color.mean(axis=2, keepdims=True)
        self.color = self.color * (1 - 0.6 * cover) + cover * self.tone("light") * (0.30 + 0.70 * grey)

    def normal_picture(self, strength=1.0):
        """The twin's baked normals with the relief of lines and rivets on top, 0 to 1."""
        base = self.maps.tangent * 2 - 1
        base[~self.inside] = (0, 0, 1)
        base[np.linalg.norm(base, axis=2) < 0.5] = (0, 0, 1)
        height = blur(self.height + 0.10 * self.grain(0.04, 2, 51), 1)
        dx = (np.roll(height, -1, axis=1) - np.roll(height, 1, axis=1)) / 2
        dy = (np.roll(height, -1, axis=0) - np.roll(height, 1, axis=0)) / 2
        base[:, :, 0] -= dx * strength
        base[:, :, 1] -= dy * strength
        base /= np.linalg.norm(base, axis=2, keepdims=True)
        return spread(base * 0.5 + 0.5, self.inside, self.nearest)


def inside_polygon(u, v, points, edge):
    """Coverage of a polygon with an edge `edge` wide: signed distance to the outline."""
    points = np.asarray(points, dtype=float)
    distance = np.full(u.shape, np.inf)
    inside = np.zeros(u.shape, bool)
    for (x0, y0), (x1, y1) in zip(points, np.roll(points, -1, axis=0)):
        t = np.clip(((u - x0) * (x1 - x0) + (v - y0) * (y1 - y0)) / ((x1 - x0) ** 2 + (y1 - y0) ** 2 + 1e-12), 0, 1)
        distance = np.minimum(distance, np.hypot(u - x0 - t * (x1 - x0), v - y0 - t * (y1 - y0)))
        if y0 != y1:
            crosses = ((y0 > v) != (y1 > v)) & (u < (x1 - x0) * (v - y0) / (y1 - y0) + x0)
            inside ^= crosses
    return np.clip(0.5 + np.where(inside, distance, -distance) / edge, 0, 1)


def blur(a, radius):
    """Box blur, twice, of a single channel."""
    for _ in range(2):
        for axis in (0, 1):
            a = sum(np.roll(a, s, axis=axis) for s in range(-radius, radius + 1)) / (2 * radius + 1)
    return a


def nearest(inside):
    """Row and column of the nearest texel inside, for every texel (jump flooding)."""
    size = inside.shape[0]
    rows, columns = np.mgrid[0:size, 0:size]
    found_row, found_column = np.where(inside, rows, -4 * size), np.where(inside, columns, -4 * size)
    best = np.where(inside, 0, 1 << 40)
    jump = size // 2
    for step in [1] + [jump >> k for k in range(jump.bit_length())]:
        for dy in (-step, 0, step):
            for dx in (-step, 0, step):
                if dy == dx == 0:
                    continue
                to_y, to_x = slice(max(0, dy), size + min(0, dy)), slice(max(0, dx), size + min(0, dx))
                from_y, from_x = slice(max(0, -dy), size + min(0, -dy)), slice(max(0, -dx), size + min(0, -dx))
                r, c = found_row[from_y, from_x], found_column[from_y, from_x]
                distance = (r - rows[to_y, to_x]) ** 2 + (c - columns[to_y, to_x]) ** 2
                closer = distance < best[to_y, to_x]
                best[to_y, to_x][closer] = distance[closer]
                found_row[to_y, to_x][closer] = r[closer]
                found_column[to_y, to_x][closer] = c[closer]
    return found_row, found_column


def spread(picture, inside, where=None):
    """Fills what is outside all islands from the nearest texel inside, so that smaller versions of the picture
    stay clean. `where` is what `nearest` answered, if it is at hand."""
    return picture[where or nearest(inside)]


def write_pictures(figure, maps, decorate, seed=0):
    """Paints both armies and the normal picture and writes them. `decorate(paint, army)` lays what is the figure's
    own and answers the options of `finish`."""
    for number, (army, palette) in enumerate(ARMIES):
        paint = Paint(figure, maps, palette, seed + number)
        options = decorate(paint, army) or {}
        files.write_tga(figure.folder() / f"{army}.tga", paint.finish(**options))
        if army == "white":
            files.write_tga(figure.folder() / "normal.tga", paint.normal_picture())

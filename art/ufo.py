"""The saucer that collects the cans: a chrome disc with a glass dome and its pilot, lamps that run round the rim, and
the lens of its tractor beam below."""

import sys
from pathlib import Path

import numpy as np

sys.path.insert(0, str(Path(__file__).resolve().parent))
from kit import *  # noqa: E402,F403

SIDES, SECTORS = 20, 5
LAMPS = 10
FRAMES = 12

PALETTE = {
    "plate": (0.66, 0.69, 0.72),
    "trim": (0.40, 0.44, 0.50),
    "metal": (0.70, 0.52, 0.30),
    "dark": (0.10, 0.11, 0.13),
    "chrome": (0.84, 0.86, 0.88),
    "light": (0.72, 0.90, 1.00),
    "mark": (0.10, 0.30, 0.34),
    "wear": (0.86, 0.88, 0.90),
    "grime": (0.16, 0.15, 0.14),
    "dust": (0.4, 0.4, 0.4),
    "line": (0.12, 0.13, 0.15),
    "stripe": (0.16, 0.55, 0.52),
    "glass": (0.22, 0.52, 0.50),
    "red": (1.00, 0.34, 0.20),
    "green": (0.40, 1.00, 0.46),
}


def hull():
    """A fifth of the disc, from the lens below to the collar of the dome."""
    profile = [
        (0, -0.10),
        (0.42, -0.10),
        (0.50, -0.02),
        (0.56, 0.05),
        (1.20, 0.10),
        (1.90, 0.30),
        (2.20, 0.43),
        (2.20, 0.51),
        (1.85, 0.65),
        (1.00, 0.86),
        (0.86, 0.98),
    ]
    bands = ["light", "metal", "dark", "trim", "plate", "trim", "chrome", "plate", "plate", "metal"]
    return lathe(profile, SIDES // SECTORS, start=-180 / SECTORS, arc=360 / SECTORS, close=False, bands=bands)


def hull_detail():
    """Rivets along the panels, a grille and two hatches above, grilles below, the collar of the lens."""
    parts = []
    for turn in (-27, -9, 9, 27):
        parts.append(
            rivets(
                [(dx, 0.655 + (1.85 - r) * 0.247, r) for r in (1.10, 1.36, 1.50, 1.77) for dx in (-0.14 * r, 0.14 * r)],
                (0, 0.97, 0.24),
                0.022,
            )
            .rotate(y=turn)
            .material("chrome")
        )
    parts.append(vent(0.46, 0.22, 6, 0.04).rotate(x=-76).move(0, 0.785, 1.34).material("trim"))
    for turn in (-23, 23):
        parts.append(
            plate(chamfered(0.34, 0.30, 0.07), 0.05, 0.02)
            .rotate(x=-76)
            .move(0, 0.755, 1.46)
            .rotate(y=turn)
            .material("stripe")
        )
        parts.append(box(0.20, 0.02, 0.03).rotate(x=14).move(0, 0.79, 1.46).rotate(y=turn).material("chrome"))
        parts.append(vent(0.26, 0.34, 5, 0.04).rotate(x=104).move(0, 0.185, 1.55).rotate(y=turn).material("trim"))
    parts.append(plate(chamfered(0.44, 0.40, 0.10), 0.04, 0.02).rotate(x=104).move(0, 0.175, 1.50).material("trim"))
    parts.append(lathe([(0.62, 0.055), (0.62, 0.03), (0.72, 0.03), (0.72, 0.065)], 64, close=False).material("metal"))
    return join(*parts)


def dome():
    """Glass, with a frame of ribs in the picture."""
    return lathe(
        [(0.84, 0.95), (0.80, 1.16), (0.62, 1.38), (0.34, 1.53), (0, 1.58)], 12, close=False, bands=["glass"] * 4
    )


def lamp_bead(kind):
    """Half a bead on the rim, on the +z side."""
    bead = lathe([(0.12, 0), (0.09, 0.07), (0, 0.10)], 6, close=False).rotate(x=62).move(0, 0.575, 2.055)
    return bead.material(kind)


def fin():
    """One of three landing feet, folded under the disc."""
    leg = prism([(-0.09, 0), (0.09, 0), (0.06, 0.16), (-0.06, 0.16)], 0.62, front=0.7).move(0, -0.02, 1.05).rotate(x=-7)
    pad = lathe([(0.17, -0.04), (0.13, 0.04)], 8).move(0, 0.02, 1.34)
    return leg + pad.material("dark")


def rig():
    return Rig().bone("root", (0, 0, 0)).bone("lamps", (0, 0, 0), "root")


def build():
    figure = Figure("ufo", 0.25, rig(), seed=51, home="ufo")
    for k in range(SECTORS):
        figure.part(
            f"hull.{k}",
            hull().rotate(y=360 / SECTORS * k),
            bevel=0.02,
            smooth=32,
            detail=None if k else hull_detail(),
            like="hull.0" if k else None,
        )
    figure.part("dome", dome(), material="glass", bevel=0.0, smooth=50, density=1.3)
    kinds = ("light", "red")
    for k in range(LAMPS):
        kind = kinds[k % 2]
        figure.part(
            f"lamp.{k}",
            lamp_bead(kind).rotate(y=360.0 * k / LAMPS),
            "lamps",
            material=kind,
            bevel=0.0,
            smooth=60,
            density=1.2,
            like=f"lamp.{k % 2}" if k > 1 else None,
        )
    for k in range(3):
        figure.part(f"fin.{k}", fin().rotate(y=60 + 120 * k), material="trim", bevel=0.015, like="fin.0" if k else None)
    mast = tube([(0, 1.55, 0), (0, 1.80, 0)], 0.03, 4, caps=False).material("chrome") + ball(0.06, 6, 3).move(
        0, 1.83, 0
    ).material("red")
    figure.part("mast", mast, material="chrome", bevel=0.0)
    figure.clip("run", FRAMES, fly)
    return figure


def fly(pose, i):
    """The lamps run on by one pair in a loop; the disc rocks like a plate that has just been set down."""
    pose.turn("lamps", y=2 * 360.0 / LAMPS * i / FRAMES)
    pose.turn("root", x=3.0 * wave(i, FRAMES), z=3.0 * wave(i, FRAMES, 0.25))
    pose.move("root", y=0.03 * wave(i, FRAMES / 2))


def decorate(paint):
    pos = paint.pos
    angle = np.arctan2(pos[..., 0], pos[..., 2])
    radius = np.hypot(pos[..., 0], pos[..., 2])
    hull_mask = paint.part("hull")
    top = hull_mask * (paint.nrm[..., 1] > 0.3)
    below = hull_mask * (paint.nrm[..., 1] < -0.3)
    for r in (1.02, 1.42, 1.84):
        paint.lines(top * paint.soft(np.abs(radius - r), 0.010))
    for r in (0.85, 1.22, 1.88):
        paint.lines(below * paint.soft(np.abs(radius - r), 0.010))
    seam = np.abs(np.mod(angle / (2 * np.pi) * 10 + 0.5, 1) - 0.5) / 10 * 2 * np.pi * radius
    paint.lines(top * paint.soft(seam, 0.009) * (radius > 1.02))
    paint.lines(below * paint.soft(seam, 0.009) * (radius > 0.85))
    paint.lay(top * paint.soft(np.abs(radius - 1.93), 0.055), "stripe", 0.9)
    paint.lay(top * paint.soft(np.abs(radius - 1.14), 0.035), "stripe", 0.8)
    # Concentric rings of the lens, and the lamps of the underside.
    lens = hull_mask * paint.material("light")
    rings = lens * np.clip(paint.soft(np.abs(np.mod(radius, 0.11) - 0.055), 0.012) + paint.soft(radius, 0.06), 0, 1)
    paint.lay(rings, (0.16, 0.38, 0.66))
    paint.lit *= 1 - rings
    dots = np.hypot((np.mod(angle / (2 * np.pi) * 15, 1) - 0.5) / 15 * 2 * np.pi * radius, radius - 1.05)
    paint.lamps(below * paint.soft(dots, 0.045))
    paint.text("SCRAP-9", (0, 0.68, 1.70), (1, 0, 0), (0, 0.2, -1), 0.12, depth=0.12, parts=("hull",))
    glass(paint, angle)


def glass(paint, angle):
    """The dome: a pilot behind it, dim; ribs over it; the sky's light on its crown."""
    pos = paint.pos
    here = paint.part("dome")
    height = pos[..., 1]
    paint.lay(here * smoothstep(1.35, 0.95, height), (0.06, 0.16, 0.18), 0.85)
    # A head with two wide eyes, in front and behind, so that someone always looks back.
    for side in (0.0, np.pi):
        off = np.mod(angle - side + np.pi, 2 * np.pi) - np.pi
        u, v = off * 0.72, height - 1.20
        head = np.hypot(u / 0.20, (v - 0.02) / 0.17) - 1
        chin = np.hypot(u / 0.11, (v + 0.11) / 0.13) - 1
        body = np.hypot(u / 0.26, (v + 0.30) / 0.14) - 1
        pilot = np.minimum(np.minimum(head, chin), body)
        paint.lay(here * np.clip(0.5 - pilot * 9, 0, 1), (0.36, 0.62, 0.42), 0.9)
        for s in (-1, 1):
            eu, ev = u - s * 0.085, v + 0.01
            eye = np.hypot((eu * 0.88 + ev * 0.47 * s) / 0.062, (ev * 0.88 - eu * 0.47 * s) / 0.042) - 1
            paint.lay(here * np.clip(0.5 - eye * 6, 0, 1), (0.02, 0.03, 0.04))
            paint.lay(here * paint.soft(np.hypot(eu + 0.015, ev - 0.015), 0.011), (0.9, 1.0, 0.95))
    rib = np.abs(np.mod(angle / (2 * np.pi) * 6 + 0.25, 1) - 0.5) / 6 * 2 * np.pi * np.hypot(pos[..., 0], pos[..., 2])
    paint.lay(here * paint.soft(np.minimum(rib, 9.0), 0.022) * (height < 1.52), "chrome")
    paint.lay(here * paint.soft(np.abs(height - 1.40), 0.018), "chrome")
    paint.lay(here * smoothstep(0.55, 0.95, paint.nrm[..., 1]) * 0.55, (0.74, 0.94, 0.96))
    gleam = np.exp(-(((angle - 0.85) / 0.22) ** 2)) + np.exp(-(((angle + 2.3) / 0.20) ** 2))
    paint.lay(here * gleam * smoothstep(0.98, 1.12, height) * smoothstep(1.40, 1.30, height) * 0.5, (0.85, 0.98, 1.0))


def main():
    figure = build()
    maps = figure.bake(size=512, samples=12, bevel=0.03, reach=0.3, extrude=0.06, floor=False, shade_reach=1.0)
    figure.write(maps.uv)
    paint = Paint(figure, maps, PALETTE, 60)
    decorate(paint)
    picture = paint.finish(dust=0, wear=0.8, grime=0.8, streaks=0.2, spill=0.25)
    write_tga(figure.folder() / "ufo.tga", picture)
    write_tga(figure.folder() / "normal.tga", paint.normal_picture())


if __name__ == "__main__":
    main()

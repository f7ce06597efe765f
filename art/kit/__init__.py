"""The shared kit of all art scripts.

A subject script builds a `Figure`, adds parts on bones and clips, bakes, paints and writes:

    from kit import *

    rig = Rig().bone("root", (0, 0, 0)).bone("head", (0, 1.3, 0), "root")
    figure = Figure("pawn", scale=0.27, rig=rig)
    figure.part("base", lathe([(0.5, 0), (0.4, 0.3)], 12), "root", material="plate", bevel=0.02)
    figure.part("head", ball(0.35).move(y=1.65), "head", detail=rivets([(0, 1.6, 0.35)], (0, 0, 1)))
    figure.clip("stand", 12, lambda p, i: p.turn("head", y=5 * wave(i, 12)))
    maps = figure.bake()
    write_pictures(figure, maps, lambda paint, army: paint.text("7", (0, 0.2, 0.45), (1, 0, 0), (0, 1, 0), 0.1))
    figure.write(maps.uv)

run with

    blender -b -noaudio --factory-startup --python-exit-code 3 --python art/pawn.py

Geometry is in world units and the game's axes (x right, y up, z towards White, a figure looks along -z), faces are
counter-clockwise from outside; the writer divides by the scale and turns the faces round. A part is a low mesh whose
triangles reach the game, and a detailed twin (sharp edges rounded by `bevel`, plus `detail`: rivets, vents, cables)
that only the pictures see. Bakes are kept in art/work under a hash of the geometry, so work on paint and motion costs
seconds. The folder of the results is data/, or TOLVANE_DATA.

    mesh.py     parts: box, prism, plate, lathe, cylinder, ball, tube, curve, loft, piston, rivets, vent, lamp,
                 ring_of
    figure.py   Figure: part, pair, clip, bake, write
    anim.py     Rig, Pose (turn, move, plant, throw), keys, wave, sway, kick, stride, easing
    bake.py     unwrapping and baking (Blender)
    raster.py   from the unwrapped low mesh to texels
    paint.py    Paint: masks and layers, write_pictures
    files.py    MD2, TGA and PNG
    preview.py  contact sheets (plain /usr/bin/python3)
"""

from .anim import (FRAMES_A_SECOND, Rig, ease_in, ease_out, keys, kick, linear, overshoot, smooth, stride, sway,
                   wave)
from .figure import Figure
from .files import Md2, read_tga, write_md2, write_png, write_tga
from .mesh import (Mesh, ball, box, chamfered, curve, cylinder, join, lathe, lamp, loft, oval, piston, plate, prism, ring_of,
                   rivets, rotation, row, section, shrink_outline, tube, vent)
from .paint import ARMIES, BLACK, WHITE, Paint, fractal, noise, smoothstep, spread, write_pictures

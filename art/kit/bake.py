"""Unwrapping and baking in Blender: the low mesh gets its coordinates, the detailed twin gives its pictures.

Parts are set apart from each other for the bake of the twin, so that no ray finds a neighbour; the occlusion
between parts comes from a second bake of the low mesh as it stands, on a floor."""

import math

import bmesh
import bpy
import numpy as np

from .figure import Maps, split_normals, triangulate
from .raster import covered, originals, rasterise

PADDING = 4  # pixels between two islands, at the size of the picture
APART = 16.0  # distance between parts while the twin is baked, at least


def bake(figure, size=512, samples=8, bevel=0.03, reach=0.3, extrude=0.06, floor=True, shade_reach=1.2):
    """Unwraps a figure and bakes its maps. `bevel` is the width of edge wear, `reach` the distance of occlusion,
    `extrude` how far detail may stand out of the low mesh."""
    bpy.ops.wm.read_factory_settings(use_empty=True)
    scene = bpy.context.scene
    scene.render.engine = "CYCLES"
    scene.cycles.device = "CPU"
    scene.cycles.seed = figure.seed
    scene.cycles.use_denoising = False
    scene.cycles.use_adaptive_sampling = False
    scene.world = bpy.data.worlds.new("world")
    scene.world.light_settings.distance = shade_reach
    maps = Maps()
    maps.size = size
    maps.uv = unwrap(figure, size)
    low = low_object(figure, maps.uv, apart(figure))
    twin, maps.materials = twin_object(figure)
    picture = attach_picture(low, size)
    settings = scene.render.bake
    settings.margin = 6
    settings.margin_type = "EXTEND"
    settings.use_selected_to_active = True
    settings.use_cage = False
    settings.cage_extrusion = extrude
    settings.max_ray_distance = extrude * 3

    wear_material(twin, bevel, reach)
    wear = run(low, [twin], picture, "EMIT", samples)
    maps.edge, maps.ao = wear[:, :, 0], wear[:, :, 1]
    index_material(twin)
    found = run(low, [twin], picture, "EMIT", 1)[:, :, 0]
    maps.tangent = run(low, [twin], picture, "NORMAL", 4)
    bpy.data.objects.remove(twin)
    bpy.data.objects.remove(low)

    low = low_object(figure, maps.uv, 0.0, shared=True)
    attach_picture(low, size, picture)
    if floor:
        add_floor()
    settings.use_selected_to_active = False
    maps.shade = run(low, [], picture, "AO", samples * 2)[:, :, 0]

    rasterise(figure, maps)
    material = np.rint(found * 64).astype(int) - 1
    inside = maps.part >= 0
    unknown = (material < 0) | (material >= len(maps.materials))
    material[unknown] = maps.own_material[unknown]
    maps.material = material
    for name, picture_map in (("edge", maps.edge), ("ao", maps.ao), ("shade", maps.shade)):
        if not picture_map[inside].mean() > 0 or not np.isfinite(picture_map).all():
            raise RuntimeError(f"{figure.name}: the {name} bake is black")
    return maps


def apart(figure):
    """How far the parts are set from each other: no two may meet, however large the model."""
    return max(APART, 2.5 * max(np.abs(p.mesh.v[:, 0]).max() for p in figure.parts))


def unwrap(figure, size):
    """Unwraps the parts that have a piece of the picture of their own; copies take over their original's. Curved
    parts may fold over themselves at a wide angle: a narrower one cuts them into more islands."""
    for angle in (60, 48, 36, 24):
        uv = unwrap_at(figure, size, angle)
        if uv is not None:
            return uv
    raise RuntimeError(f"{figure.name}: islands overlap")


def unwrap_at(figure, size, angle):
    """One attempt, or None if islands overlap."""
    mesh = bpy.data.meshes.new("unwrap")
    vertices, faces, owners = [], [], []
    for index, part in originals(figure):
        faces += [[i + len(vertices) for i in face] for face in part.mesh.f]
        owners += [index] * len(part.mesh.f)
        vertices += [tuple(p + np.array([apart(figure) * index, 0, 0])) for p in part.mesh.v]
    mesh.from_pydata(vertices, [], faces)
    layer = mesh.uv_layers.new(name="uv")
    thing = bpy.data.objects.new("unwrap", mesh)
    bpy.context.collection.objects.link(thing)
    only(thing)
    bpy.ops.object.mode_set(mode="EDIT")
    bpy.ops.mesh.select_all(action="SELECT")
    bpy.ops.uv.smart_project(angle_limit=math.radians(angle), island_margin=0.0, area_weight=0.5)
    bpy.ops.uv.average_islands_scale()
    bpy.ops.object.mode_set(mode="OBJECT")
    weigh(figure, mesh, owners)
    margin = 0.004
    for _ in range(8):
        bpy.ops.object.mode_set(mode="EDIT")
        bpy.ops.mesh.select_all(action="SELECT")
        bpy.ops.uv.select_all(action="SELECT")
        bpy.ops.uv.pack_islands(rotate=True, margin=margin)
        bpy.ops.object.mode_set(mode="OBJECT")
        gap = smallest_gap(mesh, size)
        if gap >= PADDING:
            break
        margin *= max(1.15, 1.03 * PADDING / max(gap, 1.0))
    else:
        raise RuntimeError(f"{figure.name}: islands stay closer than {PADDING} pixels")
    bpy.ops.object.mode_set(mode="EDIT")
    bpy.ops.uv.select_all(action="DESELECT")
    bpy.ops.uv.select_overlap()
    bpy.ops.object.mode_set(mode="OBJECT")
    layer = mesh.uv_layers.active
    if any(loop.select for loop in layer.data):
        bpy.data.objects.remove(thing)
        return None
    coordinates = np.empty(len(mesh.loops) * 2)
    layer.data.foreach_get("uv", coordinates)
    coordinates = coordinates.reshape(-1, 2)
    uv = [None] * len(figure.parts)
    polygon = 0
    for index, part in originals(figure):
        uv[index] = []
        for face in part.mesh.f:
            start = mesh.polygons[polygon].loop_start
            uv[index].append(np.clip(coordinates[start:start + len(face)], 0, 1))
            polygon += 1
    for index, part in enumerate(figure.parts):
        if part.like is not None:
            source = uv[figure.parts.index(part.like)]
            uv[index] = [np.roll(corners[::-1], 1, axis=0) for corners in source] if part.mirrored else source
    bpy.data.objects.remove(thing)
    return uv


def weigh(figure, mesh, owners):
    """Scales the islands of parts with a density of their own, before packing."""
    layer = mesh.uv_layers.active
    for polygon, owner in zip(mesh.polygons, owners):
        factor = figure.parts[owner].density
        if factor != 1.0:
            for loop in polygon.loop_indices:
                layer.data[loop].uv = layer.data[loop].uv * factor


def islands(mesh):
    """Number of the island of each polygon: polygons that share an edge in the picture."""
    layer = mesh.uv_layers.active
    parent = list(range(len(mesh.polygons)))

    def root(i):
        while parent[i] != i:
            parent[i] = parent[parent[i]]
            i = parent[i]
        return i

    seen = {}
    for polygon in mesh.polygons:
        loops = list(polygon.loop_indices)
        ends = [(mesh.loops[k].vertex_index, round(layer.data[k].uv[0], 5), round(layer.data[k].uv[1], 5))
                for k in loops]
        for k in range(len(ends)):
            edge = tuple(sorted((ends[k - 1], ends[k])))
            if edge in seen:
                parent[root(polygon.index)] = root(seen[edge])
            seen[edge] = polygon.index
    return [root(i) for i in range(len(mesh.polygons))]


def smallest_gap(mesh, size):
    """The least distance between two islands, in pixels, up to 8."""
    layer = mesh.uv_layers.active
    owner = np.full((size, size), -1)
    for polygon, island in zip(mesh.polygons, islands(mesh)):
        points = np.array([layer.data[k].uv[:] for k in polygon.loop_indices]) * size
        for k in range(1, len(points) - 1):
            for rows, columns, _ in covered(points[[0, k, k + 1]], size):
                owner[rows, columns] = island
    for distance in range(1, 9):
        for dy in range(-distance, distance + 1):
            for dx in range(-distance, distance + 1):
                if max(abs(dx), abs(dy)) != distance or (dy, dx) < (0, 0):
                    continue
                a = owner[max(0, dy):size + min(0, dy), max(0, dx):size + min(0, dx)]
                b = owner[max(0, -dy):size + min(0, -dy), max(0, -dx):size + min(0, -dx)]
                if ((a != b) & (a >= 0) & (b >= 0)).any():
                    return distance - 1
    return 8


def low_object(figure, uv, apart, shared=False):
    """The low mesh, triangulated, with the same corner normals that the model file gets. Only `shared` brings in
    the parts that use another's piece of the picture, as shadow casters without coordinates."""
    vertices, triangles, coordinates, normals = [], [], [], []
    casters, caster_faces = [], []
    for index, part in enumerate(figure.parts):
        if part.like is not None:
            caster_faces += [[i + len(casters) for i in face] for face in part.mesh.f]
            casters += [tuple(p) for p in part.mesh.v]
            continue
        corner_normals = split_normals(part.mesh, part.smooth)
        for polygon, face in enumerate(part.mesh.f):
            for triangle in triangulate(part.mesh.v, face):
                triangles.append([face[c] + len(vertices) for c in triangle])
                coordinates += [tuple(uv[index][polygon][c]) for c in triangle]
                normals += [tuple(corner_normals[polygon][c]) for c in triangle]
        vertices += [tuple(p + np.array([apart * index, 0, 0])) for p in part.mesh.v]
    mesh = bpy.data.meshes.new("low")
    mesh.from_pydata(vertices, [], triangles)
    layer = mesh.uv_layers.new(name="uv")
    layer.data.foreach_set("uv", np.array(coordinates).ravel())
    mesh.polygons.foreach_set("use_smooth", [True] * len(mesh.polygons))
    mesh.use_auto_smooth = True
    mesh.normals_split_custom_set(normals)
    thing = bpy.data.objects.new("low", mesh)
    bpy.context.collection.objects.link(thing)
    if shared and casters:
        other = bpy.data.meshes.new("casters")
        other.from_pydata(casters, [], caster_faces)
        bpy.context.collection.objects.link(bpy.data.objects.new("casters", other))
    return thing


def twin_object(figure):
    """The detailed twin of all parts with a picture of their own, and the names of all materials in use."""
    names = []
    for part in figure.parts:
        for mesh in (part.mesh, part.detail, part.high):
            for name in mesh.m if mesh is not None else ():
                name = name or part.material
                if name not in names:
                    names.append(name)
    joined = bmesh.new()
    for index, part in originals(figure):
        body = part.high or part.mesh
        piece = bmesh.new()
        add(piece, body, part.material, names)
        if part.bevel > 0:
            sharp = [e for e in piece.edges if len(e.link_faces) == 2 and e.calc_face_angle(0) > math.radians(part.smooth)]
            bmesh.ops.bevel(piece, geom=sharp, offset=part.bevel, offset_type="OFFSET", segments=2, profile=0.6,
                            affect="EDGES", clamp_overlap=True, material=-1)
        if part.detail is not None:
            add(piece, part.detail, part.material, names)
        for vertex in piece.verts:
            vertex.co.x += apart(figure) * index
        temporary = bpy.data.meshes.new("piece")
        piece.to_mesh(temporary)
        piece.free()
        joined.from_mesh(temporary)
        bpy.data.meshes.remove(temporary)
    mesh = bpy.data.meshes.new("twin")
    joined.to_mesh(mesh)
    joined.free()
    mesh.polygons.foreach_set("use_smooth", [True] * len(mesh.polygons))
    mesh.use_auto_smooth = True
    mesh.auto_smooth_angle = math.radians(38)
    thing = bpy.data.objects.new("twin", mesh)
    bpy.context.collection.objects.link(thing)
    for name in names:
        mesh.materials.append(bpy.data.materials.new(name))
    return thing, names


def add(piece, mesh, material, names):
    vertices = [piece.verts.new(p) for p in mesh.v]
    for face, name in zip(mesh.f, mesh.m):
        try:
            made = piece.faces.new([vertices[i] for i in face])
        except ValueError:
            continue
        made.material_index = names.index(name or material)
    piece.verts.index_update()
    piece.normal_update()


def emission(material, colour_of):
    """The material shines with what `colour_of(nodes, links)` answers, an output socket."""
    material.use_nodes = True
    nodes, links = material.node_tree.nodes, material.node_tree.links
    nodes.clear()
    shine, out = nodes.new("ShaderNodeEmission"), nodes.new("ShaderNodeOutputMaterial")
    links.new(colour_of(nodes, links), shine.inputs["Color"])
    links.new(shine.outputs[0], out.inputs["Surface"])


def wear_material(twin, bevel, reach):
    """Red: how much the surface turns within the bevel's width, at ridges only; green: occlusion."""
    def colour(nodes, links):
        round_off = nodes.new("ShaderNodeBevel")
        round_off.samples = 6
        round_off.inputs["Radius"].default_value = bevel
        geometry = nodes.new("ShaderNodeNewGeometry")
        dot = nodes.new("ShaderNodeVectorMath")
        dot.operation = "DOT_PRODUCT"
        links.new(round_off.outputs[0], dot.inputs[0])
        links.new(geometry.outputs["Normal"], dot.inputs[1])
        turn = nodes.new("ShaderNodeMapRange")
        turn.inputs["From Min"].default_value, turn.inputs["From Max"].default_value = 1.0, 0.75
        links.new(dot.outputs["Value"], turn.inputs["Value"])
        hollow = nodes.new("ShaderNodeAmbientOcclusion")
        hollow.samples = 4
        hollow.inputs["Distance"].default_value = bevel * 2
        ridge = nodes.new("ShaderNodeMapRange")
        ridge.inputs["From Min"].default_value, ridge.inputs["From Max"].default_value = 0.82, 0.97
        links.new(hollow.outputs["AO"], ridge.inputs["Value"])
        both = nodes.new("ShaderNodeMath")
        both.operation = "MULTIPLY"
        links.new(turn.outputs[0], both.inputs[0])
        links.new(ridge.outputs[0], both.inputs[1])
        wide = nodes.new("ShaderNodeAmbientOcclusion")
        wide.samples = 4
        wide.inputs["Distance"].default_value = reach
        rgb = nodes.new("ShaderNodeCombineColor")
        links.new(both.outputs[0], rgb.inputs[0])
        links.new(wide.outputs["AO"], rgb.inputs[1])
        return rgb.outputs[0]

    for material in twin.data.materials:
        emission(material, colour)


def index_material(twin):
    """Red: number of the material, from 1, in 64ths."""
    for number, material in enumerate(twin.data.materials):
        def colour(nodes, links, value=(number + 1) / 64):
            rgb = nodes.new("ShaderNodeCombineColor")
            rgb.inputs[0].default_value = value
            return rgb.outputs[0]

        emission(material, colour)


def attach_picture(low, size, picture=None):
    """One material with one picture node, selected and active: where a bake writes."""
    if picture is None:
        picture = bpy.data.images.new("bake", size, size, float_buffer=True)
        picture.colorspace_settings.name = "Non-Color"
    material = bpy.data.materials.new("low")
    material.use_nodes = True
    node = material.node_tree.nodes.new("ShaderNodeTexImage")
    node.image = picture
    for other in material.node_tree.nodes:
        other.select = other == node
    material.node_tree.nodes.active = node
    low.data.materials.append(material)
    return picture


def only(*things):
    """Selects these; the first is active."""
    for thing in bpy.context.scene.objects:
        thing.select_set(thing in things)
    bpy.context.view_layer.objects.active = things[0]


def run(low, sources, picture, kind, samples):
    """One bake; answers its pixels."""
    only(low, *sources)
    bpy.context.scene.cycles.samples = samples
    bpy.ops.object.bake(type=kind)
    size = picture.size[0]
    pixels = np.empty(size * size * 4, np.float32)
    picture.pixels.foreach_get(pixels)
    return pixels.reshape(size, size, 4)[:, :, :3].astype(float)


def add_floor():
    """A large plane just below y = 0: the ground darkens what is near it."""
    mesh = bpy.data.meshes.new("floor")
    mesh.from_pydata([(-9, -0.01, 9), (9, -0.01, 9), (9, -0.01, -9), (-9, -0.01, -9)], [], [(0, 1, 2, 3)])
    bpy.context.collection.objects.link(bpy.data.objects.new("floor", mesh))

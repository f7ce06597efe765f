"""Writers and readers of the files that the game opens: MD2 models and TGA pictures; PNG for previews."""

import struct
import zlib
from pathlib import Path

import numpy as np

NORMALS = np.loadtxt(Path(__file__).with_name("md2_normals.txt"))
SKIN = 4096  # the header's picture size: texture coordinates keep an eighth of a pixel of a 512 picture


def write_tga(path, picture):
    """Writes 8-bit or 0-to-1 float pixels (rows from the bottom up, red green blue) as a 24-bit TGA whose
    first row is at the bottom."""
    picture = to_bytes(picture)
    height, width = picture.shape[:2]
    header = struct.pack("<BBBHHBHHHHBB", 0, 0, 2, 0, 0, 0, 0, 0, width, height, 24, 0)
    Path(path).parent.mkdir(parents=True, exist_ok=True)
    Path(path).write_bytes(header + picture[:, :, 2::-1].tobytes())


def read_tga(path):
    """Pixels of a 24-bit uncompressed TGA, rows from the bottom up, red green blue."""
    data = Path(path).read_bytes()
    width, height, depth = struct.unpack_from("<HHB", data, 12)
    if data[2] != 2 or depth != 24:
        raise ValueError(f"{path}: not a plain 24-bit TGA")
    pixels = np.frombuffer(data, np.uint8, width * height * 3, 18 + data[0]).reshape(height, width, 3)
    if data[17] & 32:
        pixels = pixels[::-1]
    return pixels[:, :, ::-1]


def to_bytes(picture):
    picture = np.asarray(picture)
    if picture.dtype == np.uint8:
        return picture
    return np.clip(np.rint(picture * 255), 0, 255).astype(np.uint8)


def write_png(path, picture):
    """Writes pixels, rows from the top down, as a PNG to look at."""
    picture = to_bytes(picture)[:, :, :3]
    height, width = picture.shape[:2]
    rows = np.concatenate([np.zeros((height, 1), np.uint8), picture.reshape(height, width * 3)], axis=1)

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    Path(path).parent.mkdir(parents=True, exist_ok=True)
    Path(path).write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
                           + chunk(b"IDAT", zlib.compress(rows.tobytes(), 6)) + chunk(b"IEND", b""))


def nearest_normals(normals):
    """Index of the nearest of the 162 directions for each unit vector."""
    return np.argmax(normals @ NORMALS.T, axis=1).astype(np.uint8)


def write_md2(path, frames, corners, uv, low=None, step=None):
    """Writes an MD2 file of version 8.

    `frames` is a list of (name, positions, normals), positions and normals n by 3; `corners` is t by 3 by 2,
    vertex and texture coordinate index of each corner, counter-clockwise as seen from outside; `uv` is k by 2
    with v upwards. One grid serves all frames; `low` and `step` fix it where planes must lie on a step."""
    positions = np.stack([p for _, p, _ in frames])
    floor = positions.min(axis=(0, 1)) if low is None else np.asarray(low, dtype=float)
    if step is None:
        size = (positions.max(axis=(0, 1)) - floor) / 255.0
        size = np.maximum(size, 1e-6)
    else:
        size = np.broadcast_to(np.asarray(step, dtype=float), (3,)).copy()
    if len({name for name, _, _ in frames}) != len(frames):
        raise ValueError("two frames share a name")
    st = np.empty((len(uv), 2), np.int16)
    st[:, 0] = np.clip(np.rint(uv[:, 0] * SKIN), 0, SKIN)
    st[:, 1] = np.clip(np.rint((1 - uv[:, 1]) * SKIN), 0, SKIN)
    clockwise = corners[:, ::-1, :]
    count, triangles = positions.shape[1], len(clockwise)
    tri = np.concatenate([clockwise[:, :, 0], clockwise[:, :, 1]], axis=1).astype("<u2")
    frame_size = 40 + 4 * count
    at_st = 68
    at_tri = at_st + 4 * len(st)
    at_frames = at_tri + 12 * triangles
    end = at_frames + frame_size * len(frames)
    body = [struct.pack("<17i", 0x32504449, 8, SKIN, SKIN, frame_size, 0, count, len(st), triangles, 0, len(frames),
                        68, at_st, at_tri, at_frames, end, end), st.astype("<i2").tobytes(), tri.tobytes()]
    for name, points, normals in frames:
        packed = np.empty((count, 4), np.uint8)
        grid = np.rint((points - floor) / size)
        if grid.min() < 0 or grid.max() > 255:
            raise ValueError(f"frame {name} leaves the grid")
        packed[:, :3] = grid
        packed[:, 3] = nearest_normals(normals)
        body.append(struct.pack("<6f16s", *size, *floor, name.encode()) + packed.tobytes())
    Path(path).parent.mkdir(parents=True, exist_ok=True)
    Path(path).write_bytes(b"".join(body))


class Md2:
    """What an MD2 file holds, unpacked: `triangles` (vertex indices, clockwise), `uv` for each corner as the
    game uses it, `names`, `frames` (positions), `normals` (directions), `groups` (name to first and last)."""

    def __init__(self, path):
        data = Path(path).read_bytes()
        self.header = struct.unpack_from("<17i", data)
        (self.ident, self.version, self.skin_width, self.skin_height, _, _, self.vertex_count, st_count, tri_count,
         _, frame_count, _, at_st, at_tri, at_frames, _, _) = self.header
        st = np.frombuffer(data, "<i2", st_count * 2, at_st).reshape(-1, 2)
        tri = np.frombuffer(data, "<u2", tri_count * 6, at_tri).reshape(-1, 6)
        self.triangles, self.st_indices = tri[:, :3].astype(int), tri[:, 3:].astype(int)
        self.st = st
        self.uv = np.stack([st[:, 0] / self.skin_width, 1 - st[:, 1] / self.skin_height], 1)[self.st_indices]
        self.names, self.frames, self.normals, self.scales = [], [], [], []
        self.groups = {}
        for i in range(frame_count):
            at = at_frames + i * (40 + 4 * self.vertex_count)
            numbers = np.array(struct.unpack_from("<6f", data, at))
            name = data[at + 24:at + 40].split(b"\0")[0].decode()
            packed = np.frombuffer(data, np.uint8, self.vertex_count * 4, at + 40).reshape(-1, 4)
            self.names.append(name)
            self.frames.append(packed[:, :3] * numbers[:3] + numbers[3:])
            self.normals.append(NORMALS[packed[:, 3]])
            self.scales.append(numbers)
            group = name.rstrip("0123456789")
            first, _ = self.groups.get(group, (i, i))
            self.groups[group] = (first, i)

"""Poses and motion: easing, keyed values, bones with forward kinematics, planted legs with two bones."""

import math

import numpy as np

from .mesh import rotation

# The player gives a drawable 4/5 of real time in one step of at most one frame for each five drawn frames: at 60
# drawn frames a second six model frames pass a second at speed 1.
FRAMES_A_SECOND = 6.0


def smooth(t):
    """Slow in, slow out."""
    t = min(1.0, max(0.0, t))
    return t * t * (3 - 2 * t)


def ease_in(t):
    """Starts slowly: things that fall."""
    t = min(1.0, max(0.0, t))
    return t * t


def ease_out(t):
    """Ends slowly: things that are thrown or braked."""
    t = min(1.0, max(0.0, t))
    return 1 - (1 - t) * (1 - t)


def linear(t):
    return min(1.0, max(0.0, t))


def overshoot(t):
    """Shoots a tenth past the goal and settles back."""
    t = min(1.0, max(0.0, t))
    return 1 + 2.7 * (t - 1) ** 3 + 1.7 * (t - 1) ** 2


def keys(frame, *track, ease=smooth):
    """Value of a keyed track at a frame. A key is (frame, value) or (frame, value, ease); the easing belongs to
    the span that ends at the key. Values are numbers or tuples."""
    if frame <= track[0][0]:
        return _value(track[0][1])
    for before, after in zip(track, track[1:]):
        if frame <= after[0]:
            how = after[2] if len(after) > 2 else ease
            t = how((frame - before[0]) / (after[0] - before[0]))
            a, b = _value(before[1]), _value(after[1])
            return a + (b - a) * t
    return _value(track[-1][1])


def _value(x):
    return np.asarray(x, dtype=float) if isinstance(x, (tuple, list)) else float(x)


def wave(frame, period, phase=0.0):
    """Sine with a period in frames; loops when the period divides the length of the clip."""
    return math.sin(2 * math.pi * (frame / period + phase))


def sway(frame, period, phase=0.0):
    """A wave that is 0 at frame 0, wherever in its period it begins there: what comes before and after meets it."""
    return wave(frame, period, phase) - wave(0, period, phase)


def kick(frame, start, size, fall=2.0):
    """A recoil: nothing before `start`, `size` at it, dying away over `fall` frames."""
    return 0.0 if frame < start else size * math.exp(-(frame - start) / fall)


def stride(frame, cycle, speed, offset=0.0, duty=0.5, lift=0.2, rate=FRAMES_A_SECOND):
    """Where a walking foot is, relative to its stance: (z, y, pitch) in the units of `speed` (units a second).
    `cycle` is the length of a cycle in frames, `offset` the foot's place in it (0 to 1), `duty` the share of the
    cycle on the ground. On the ground z moves backwards at exactly the walking speed, so the foot does not slide:
    a figure that looks along -z has its foot move towards +z."""
    phase = (frame / cycle + offset) % 1.0
    reach = speed / rate * cycle * duty / 2
    if phase < duty:
        return -reach + 2 * reach * phase / duty, 0.0, 0.0
    t = (phase - duty) / (1 - duty)
    return reach - 2 * reach * smooth(t), lift * math.sin(math.pi * t), -math.sin(2 * math.pi * t)


class Rig:
    """Bones: name, the point about which it turns in the rest pose, its parent, and for a leg the chain."""

    def __init__(self):
        self.pivots, self.parents, self.legs = {}, {}, {}

    def bone(self, name, pivot, parent=None):
        """A bone that turns about `pivot` (rest pose, model space) and follows `parent`. Parents come first."""
        if parent is not None and parent not in self.pivots:
            raise ValueError(f"{name}: unknown parent {parent}")
        self.pivots[name], self.parents[name] = np.asarray(pivot, dtype=float), parent
        return self

    def leg(self, name, thigh, shin, foot, parent, hip, knee, ankle):
        """Three bones for a leg of two limbs: `thigh` turns about the hip, `shin` about the knee, `foot` about
        the ankle. The knee bends in the plane that the rest pose shows."""
        self.bone(thigh, hip, parent).bone(shin, knee, thigh).bone(foot, ankle, shin)
        self.legs[name] = (thigh, shin, foot)
        return self

    def pose(self):
        return Pose(self)


class Pose:
    """One pose of a rig: local turns and shifts of bones, and goals for feet."""

    def __init__(self, rig):
        self.rig, self.turns, self.shifts, self.goals, self.scales, self.thrown = rig, {}, {}, {}, {}, {}

    def turn(self, bone, x=0.0, y=0.0, z=0.0):
        """Turns a bone about its pivot, degrees about x, then y, then z; turns add up in order."""
        self._known(bone)
        self.turns[bone] = rotation(x, y, z) @ self.turns.get(bone, np.eye(3))
        return self

    def move(self, bone, x=0.0, y=0.0, z=0.0):
        """Shifts a bone in its parent's axes."""
        self._known(bone)
        self.shifts[bone] = self.shifts.get(bone, np.zeros(3)) + (x, y, z)
        return self

    def size(self, bone, factor):
        """Scales a bone about its pivot, its children with it."""
        self._known(bone)
        self.scales[bone] = factor
        return self

    def plant(self, leg, x=0.0, y=0.0, z=0.0, pitch=0.0, yaw=0.0, roll=0.0, knee=(0.0, 0.0, 0.0)):
        """The leg's ankle goes to its rest place plus (x, y, z) in model space, whatever the body does; the foot
        is turned by pitch, yaw and roll against the ground. `knee` pushes the knee's direction."""
        self.goals[leg] = (np.array((x, y, z), dtype=float), rotation(pitch, yaw, roll), np.asarray(knee, float))
        return self

    def throw(self, bone, x=0.0, y=0.0, z=0.0, turn=(0.0, 0.0, 0.0)):
        """A piece that has come off: its pivot lies (x, y, z) from its rest place in model space, turned by `turn`,
        whatever its parent does. Bones below it stay with it."""
        self._known(bone)
        self.thrown[bone] = (np.array((x, y, z), dtype=float), rotation(*turn))
        return self

    def fling(self, bone, start, frame, velocity, spin, rest=0.1, fall=0.15):
        """A piece that is blown off at frame 0 out of the pose whose matrices are `start`: it flies (units a frame,
        degrees a frame about x, y, z), falls faster by `fall` a frame, and slides to rest with its pivot at `rest`."""
        self._known(bone)
        pivot, velocity, spin = self.rig.pivots[bone], np.asarray(velocity, float), np.asarray(spin, float)
        origin = start[bone][:3, :3] @ pivot + start[bone][:3, 3]
        drop = max(0.0, origin[1] - rest)
        landing = (velocity[1] + math.sqrt(velocity[1] ** 2 + 2 * fall * drop)) / fall
        after = max(0.0, frame - landing)
        flown, slid = min(frame, landing), 2.0 * (1 - math.exp(-after / 2.0))
        place = origin + velocity * flown
        place[1] = max(min(rest, origin[1]), origin[1] + velocity[1] * flown - fall * flown ** 2 / 2)
        place[1] += 0.10 * math.sin(math.pi * min(1.0, after / 3.0))
        place[[0, 2]] += velocity[[0, 2]] * 0.35 * slid
        self.thrown[bone] = (place - pivot, rotation(*(spin * (flown + 0.4 * slid))) @ start[bone][:3, :3])
        return self

    def loose(self):
        """For each bone the thrown piece that carries it, or None."""
        result = {}
        for bone, parent in self.rig.parents.items():
            result[bone] = bone if bone in self.thrown else result[parent] if parent else None
        return result

    def _known(self, bone):
        if bone not in self.rig.pivots:
            raise ValueError(f"unknown bone {bone}")

    def matrices(self):
        """4 by 4 matrix from rest pose to posed model space for each bone."""
        result = {}
        feet = {bone: leg for leg in self.goals for bone in self.rig.legs[leg]}
        for bone, parent in self.rig.parents.items():
            if bone in feet:
                if bone == self.rig.legs[feet[bone]][0]:
                    self._solve(feet[bone], result)
                continue
            pivot = self.rig.pivots[bone]
            if bone in self.thrown:
                offset, turn = self.thrown[bone]
                result[bone] = np.eye(4)
                result[bone][:3, :3] = turn
                result[bone][:3, 3] = pivot + offset - turn @ pivot
                continue
            local = np.eye(4)
            local[:3, :3] = self.turns.get(bone, np.eye(3)) * self.scales.get(bone, 1.0)
            local[:3, 3] = pivot - local[:3, :3] @ pivot + self.shifts.get(bone, 0.0)
            result[bone] = result[parent] @ local if parent else local
        return result

    def _solve(self, leg, result):
        thigh, shin, foot = self.rig.legs[leg]
        hip0, knee0, ankle0 = (self.rig.pivots[b] for b in (thigh, shin, foot))
        parent = result[self.rig.parents[thigh]]
        offset, turn, push = self.goals[leg]
        hip = parent[:3, :3] @ hip0 + parent[:3, 3]
        ankle = ankle0 + offset
        upper, lower = np.linalg.norm(knee0 - hip0), np.linalg.norm(ankle0 - knee0)
        reach = ankle - hip
        distance = np.linalg.norm(reach)
        longest = (upper + lower) * 0.999
        if distance > longest:
            ankle = hip + reach * (longest / distance)
            reach, distance = ankle - hip, longest
        axis = reach / distance
        bend = parent[:3, :3] @ _across(knee0 - hip0, ankle0 - hip0) + push
        bend -= axis * np.dot(bend, axis)
        bend /= np.linalg.norm(bend)
        along = (upper ** 2 - lower ** 2 + distance ** 2) / (2 * distance)
        knee = hip + axis * along + bend * math.sqrt(max(0.0, upper ** 2 - along ** 2))
        rest_bend = _across(knee0 - hip0, ankle0 - hip0)
        result[thigh] = _carry(hip0, knee0, rest_bend, hip, knee, bend)
        result[shin] = _carry(knee0, ankle0, rest_bend, knee, ankle, bend)
        planted = np.eye(4)
        planted[:3, :3] = turn
        planted[:3, 3] = ankle - turn @ ankle0
        result[foot] = planted


def _across(v, axis):
    """Unit vector: the part of v that is square to the axis."""
    axis = axis / np.linalg.norm(axis)
    rest = v - axis * np.dot(v, axis)
    length = np.linalg.norm(rest)
    if length < 1e-6:
        raise ValueError("a leg's knee must be bent in the rest pose")
    return rest / length


def _basis(direction, bend):
    direction = direction / np.linalg.norm(direction)
    bend = bend - direction * np.dot(bend, direction)
    bend = bend / np.linalg.norm(bend)
    return np.column_stack([np.cross(direction, bend), direction, bend])


def _carry(a0, b0, bend0, a, b, bend):
    turn = _basis(b - a, bend) @ _basis(b0 - a0, bend0).T
    matrix = np.eye(4)
    matrix[:3, :3] = turn
    matrix[:3, 3] = a - turn @ a0
    return matrix

#!/usr/bin/env python3
"""Checks every sound of the game as a player would hear it: format, length, ends, loops, levels.

Needs python3 (standard library only) and oggdec of vorbis-tools.
Usage: tests/sound/check_media.py     any unittest option may follow
"""

import array
import math
import operator
import os
import subprocess
import sys
import tempfile
import unittest
import wave

RATE = 44100
MEDIA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data", "media")
FULL = 32768.0

LOOPS = {  # name: length in seconds
    "rookMove": 2.5,
    "bishopMove": 2.5,
    "knightMoveShort": 1.3,
    "kingMove": 2.0,
    "queenMove": 3.6,
    "queenUfo": 4.0,
}
ONCE = {  # name: shortest and longest length in seconds
    "pawnMove": (2.9, 3.1),
    "queenTransformation": (7.9, 8.1),
    "queenUfoBeam": (6.9, 7.1),
    "queenUfoEngage": (2.9, 3.1),
    "queenDropCan": (1.4, 1.6),
    "kingSelfDestructStart": (3.4, 3.6),
    "kingExplode": (2.9, 3.1),
    "pawnshot2": (0.25, 0.35),
    "pawnshot": (0.12, 0.18),
    "rookshot3": (0.75, 0.85),
    "knightAttack": (0.95, 1.05),
    "kingAttack": (0.75, 0.85),
    "dying": (1.0, 2.0),
    "bishopDeath": (1.0, 2.0),
    "rookdeath": (1.0, 2.0),
    "rookdeath1": (1.0, 2.0),
    "explosionSmall": (1.0, 2.0),
    "knightStartEnd": (0.95, 1.05),
}
CUES = ("beep1", "beep3", "error0", "error1", "error2", "check0", "check1", "checkMate0")
VOICES = (
    "pawnSelected0",
    "pawnSelected1",
    "pawnAck0",
    "pawnAck1",
    "rookSelected0",
    "rookAck0",
    "rookAck1",
    "bishopSelected0",
    "bishopSelected1",
    "bishopAck0",
    "knightSelected0",
    "knightSelected1",
    "knightAck0",
    "kingSelected0",
    "kingAck0",
    "queenSelected0",
    "queenSelected1",
    "queenAck0",
    "queenAck1",
    "queenAck2",
)
LENGTHS = {
    **{name: (seconds - 0.01, seconds + 0.01) for name, seconds in LOOPS.items()},
    **ONCE,
    **{name: (0.2, 2.0) for name in CUES},
    **{name: (0.5, 1.2) for name in VOICES},
}
MUSIC = "music0.ogg"
MUSIC_LENGTH = (120.0, 240.0)

PEAK = 10 ** (-1 / 20)  # -1 dB
END = 0.004  # a start or an end this near zero cannot click
DRIFT = 0.002  # the mean of a sound, of full scale
SPREAD = 6.0  # dB between the softest and the loudest effect
STEADY = 5.0  # dB that four seconds of music may lie from its middle loudness
SILENCE = 10 ** (-60 / 20)  # a hundredth of a second below this is silent


class Sound:
    def __init__(self, path):
        with wave.open(path) as source:
            self.rate = source.getframerate()
            self.width = source.getsampwidth()
            self.channels = source.getnchannels()
            self.frames = source.getnframes()
            self.samples = array.array("h", source.readframes(self.frames))
        if sys.byteorder == "big":
            self.samples.byteswap()
        self.sides = [self.samples[k :: self.channels] for k in range(self.channels)]

    @property
    def seconds(self):
        return self.frames / self.rate

    @property
    def peak(self):
        return max(abs(max(self.samples)), abs(min(self.samples))) / FULL


def block_powers(side, seconds):
    """The mean power of one block after the other; what is left at the end is a block of its own."""
    size = int(RATE * seconds)
    blocks = (side[at : at + size] for at in range(0, len(side), size))
    return [sum(map(operator.mul, block, block)) / len(block) / FULL**2 for block in blocks]


def as_heard(side):
    """The side through a small speaker and the ear: bass below 130 Hz falls away, treble counts up to 4 dB more."""
    w = math.tan(math.pi * 130.0 / RATE)
    scale = 1.0 / (1.0 + math.sqrt(2.0) * w + w * w)
    a1, a2 = 2.0 * (w * w - 1.0) * scale, (1.0 - math.sqrt(2.0) * w + w * w) * scale
    v = math.tan(math.pi * 1500.0 / RATE)
    pole, lift = (v - 1.0) / (v + 1.0), (10 ** (4 / 20) - 1.0) / (1.0 + v)
    out = array.array("d", bytes(8 * len(side)))
    s1 = s2 = before = high = 0.0
    for k, sample in enumerate(side):
        x = sample * scale
        y = x + s1
        s1 = s2 - 2.0 * x - a1 * y
        s2 = x - a2 * y
        high = lift * (y - before) - pole * high
        before = y
        out[k] = y + high
    return out


def loudness(sound):
    """dB of the loudest fifth of a second; what is shorter counts as if silence followed."""
    powers = [sum(pair) / sound.channels for pair in zip(*(block_powers(as_heard(s), 0.01) for s in sound.sides))]
    powers += [0.0] * (20 - len(powers))
    loudest = max(sum(powers[k : k + 20]) / 20 for k in range(len(powers) - 19))
    return 10 * math.log10(loudest + 1e-12)


def seam_shows(side):
    """Whether the step from the end to the start, or the bend in it, exceeds what the signal does near by anyway."""
    near = list(side[-RATE // 20 :]) + list(side[: RATE // 20])
    seam = RATE // 20
    step = [b - a for a, b in zip(near, near[1:])]
    bend = [b - a for a, b in zip(step, step[1:])]
    others = step[: seam - 1] + step[seam:]
    bends = bend[: seam - 2] + bend[seam:]
    return abs(step[seam - 1]) > max(map(abs, others)) or max(map(abs, bend[seam - 2 : seam])) > max(map(abs, bends))


def longest_run_at_peak(side):
    """How many neighbours in a row stand on the highest or the lowest value: a clipped wave has flat tops."""
    longest = run = 0
    top, bottom = max(side), min(side)
    before = None
    for sample in side:
        if sample in (top, bottom):
            run = run + 1 if sample == before else 1
            longest = max(longest, run)
        before = sample
    return longest


class Effects(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.sounds = {name: Sound(os.path.join(MEDIA, name + ".wav")) for name in LENGTHS}

    def none(self, fails, names=LENGTHS):
        """Expects that no sound of these names fails."""
        self.assertEqual([name for name in names if fails(self.sounds[name])], [])

    def test_fifty_two_stand_beside_the_music_and_nothing_else(self):
        self.assertEqual(len(LENGTHS), 52)
        self.assertEqual(sorted(os.listdir(MEDIA)), sorted([name + ".wav" for name in LENGTHS] + [MUSIC]))

    def test_are_sixteen_bit_at_44100(self):
        self.none(lambda sound: (sound.width, sound.rate) != (2, RATE) or sound.channels not in (1, 2))

    def test_last_as_long_as_their_scene_needs(self):
        lengths = {name: sound.seconds for name, sound in self.sounds.items()}
        wrong = {name: length for name, length in lengths.items() if not LENGTHS[name][0] <= length <= LENGTHS[name][1]}
        self.assertEqual(wrong, {})

    def test_peak_below_one_decibel(self):
        self.none(lambda sound: sound.peak > PEAK)

    def test_never_clip(self):
        self.none(lambda sound: any(longest_run_at_peak(side) > 3 for side in sound.sides))

    def test_that_play_once_begin_and_end_near_zero(self):
        once = [name for name in LENGTHS if name not in LOOPS]
        self.none(lambda sound: any(max(abs(side[0]), abs(side[-1])) > END * FULL for side in sound.sides), once)

    def test_that_loop_step_over_the_seam_as_they_step_elsewhere(self):
        self.none(lambda sound: any(map(seam_shows, sound.sides)), LOOPS)

    def test_do_not_drift(self):
        self.none(lambda sound: any(abs(sum(side) / len(side)) > DRIFT * FULL for side in sound.sides))

    def test_sound_most_of_the_time_and_do_not_trail_off_in_silence(self):
        def mostly_silent(sound):
            powers = block_powers(sound.samples, 0.01 * sound.channels)
            sounding = [k for k, power in enumerate(powers) if power > SILENCE**2]
            return len(sounding) < 0.6 * len(powers) or sounding[0] > 5 or len(powers) - sounding[-1] > 25

        self.none(mostly_silent)

    def test_are_evenly_loud(self):
        heard = {name: loudness(sound) for name, sound in self.sounds.items()}
        softest, loudest = min(heard, key=heard.get), max(heard, key=heard.get)
        self.assertLessEqual(
            heard[loudest] - heard[softest],
            SPREAD,
            f"{softest} {heard[softest]:.1f} dB, {loudest} {heard[loudest]:.1f} dB",
        )


class Music(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "music.wav")
            subprocess.run(["oggdec", "-Q", "-o", path, os.path.join(MEDIA, MUSIC)], check=True)
            cls.sound = Sound(path)

    def levels(self, span=1):
        """dB of each stretch of so many seconds, one beginning every second; the last ones run into the start."""
        seconds = [sum(pair) / 2 for pair in zip(*(block_powers(side, 1.0) for side in self.sound.sides))]
        ring = seconds + seconds[: span - 1]
        return [10 * math.log10(sum(ring[k : k + span]) / span + 1e-12) for k in range(len(seconds))]

    def test_is_stereo_at_44100(self):
        self.assertEqual((self.sound.channels, self.sound.rate), (2, RATE))

    def test_lasts_two_to_four_minutes(self):
        self.assertGreaterEqual(self.sound.seconds, MUSIC_LENGTH[0])
        self.assertLessEqual(self.sound.seconds, MUSIC_LENGTH[1])

    def test_peaks_below_one_decibel_and_never_clips(self):
        self.assertLessEqual(self.sound.peak, PEAK)
        for side in self.sound.sides:
            self.assertLess(longest_run_at_peak(side), 4)

    def test_begins_again_without_a_seam(self):
        for side in self.sound.sides:
            self.assertFalse(seam_shows(side))
        levels = self.levels()
        jumps = [abs(b - a) for a, b in zip(levels, levels[1:])]
        self.assertLess(abs(levels[0] - levels[-1]), max(jumps))

    def test_does_not_drift(self):
        for side in self.sound.sides:
            self.assertLess(abs(sum(side) / len(side)) / FULL, DRIFT)

    def test_stays_steadily_loud(self):
        levels = self.levels(4)
        middle = sorted(levels)[len(levels) // 2]
        for second, level in enumerate(levels):
            self.assertLess(abs(level - middle), STEADY, f"at second {second}")


if __name__ == "__main__":
    unittest.main()

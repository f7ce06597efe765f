"""The music: calm and tense, for a game that is won by waiting.

Sixty bars of four beats at 90 beats a minute, two minutes and forty seconds, in d minor that keeps looking over its
shoulder. Everything is laid on circular tracks, so what rings past the last bar rings on in the first, and the last
chord leans towards the first one.

    bars  0-7   opening      a pedal, bells in the distance, the clock begins
    bars  8-19  theme        flute over clockwork strings and bass
    bars 20-27  middle game  a chord a bar, away from home; the tension builds
    bars 28-39  attack       drum, octaves, a counter voice
    bars 40-47  rest         f sharp minor, far from everything; only pads and bells
    bars 48-59  endgame      the theme in pieces, layer by layer back to the pedal
"""

import os
import subprocess
import tempfile
import wave

import numpy as np

from instruments import bass, bell, brush, drone, flute, heart, pad, pluck, tick, tide
from kit import (
    MEDIA,
    RATE,
    Track,
    above,
    below,
    boost,
    circling,
    comb,
    db,
    dice,
    filtered,
    limited,
    moving_low,
    room,
    samples,
)

BEAT = 60 / 90
BAR = 4 * BEAT
BARS = 60
LENGTH = BARS * BAR

NAMES = {"c": 0, "d": 2, "e": 4, "f": 5, "g": 7, "a": 9, "b": 11}


def number(name):
    """ "eb4" to its MIDI number."""
    alter = name.count("#") - name[1:].count("b")
    return 12 * (int(name[-1]) + 1) + NAMES[name[0]] + alter


# fmt: off
# (bars, bass note, voicing from below). The clockwork strings walk through the voicing as well.
CHORDS = (
    # opening
    (2, "d2", "d3 a3 e4 f4 a4"), (2, "d2", "d3 bb3 d4 f4 a4"), (2, "d2", "d3 bb3 d4 f4 g4"),
    (1, "a1", "d3 a3 d4 e4 g4"), (1, "a1", "c#3 a3 e4 g4 a4"),
    # theme
    (2, "d2", "d3 a3 e4 f4 a4"), (2, "bb1", "d3 a3 c4 f4 a4"), (2, "f2", "c3 a3 c4 g4 a4"),
    (2, "c2", "c3 g3 d4 e4 g4"), (2, "g1", "d3 bb3 d4 f4 a4"), (1, "a1", "d3 a3 d4 e4 g4"),
    (1, "a1", "c#3 g3 c#4 e4 a4"),
    # middle game
    (1, "f2", "c3 a3 c4 e4 g4"), (1, "e2", "d3 bb3 d4 e4 g4"), (1, "eb2", "d3 bb3 d4 g4 a4"),
    (1, "d2", "d3 a3 c4 f4 a4"), (1, "g1", "d3 bb3 d4 f4 a4"), (1, "c2", "eb3 bb3 d4 g4 bb4"),
    (1, "bb1", "d3 bb3 d4 f4 a4"), (1, "a1", "c#3 bb3 c#4 g4 a4"),
    # attack
    (1, "d2", "d3 a3 d4 f4 a4"), (1, "c2", "d3 a3 d4 f4 a4"), (1, "bb1", "d3 a3 d4 f4 a4"),
    (1, "g1", "d3 bb3 d4 f4 a4"), (1, "a1", "d3 a3 d4 f4 a4"), (1, "ab1", "c3 g3 d4 eb4 g4"),
    (1, "g1", "bb2 f3 d4 f4 a4"), (1, "a1", "c#3 g3 d4 e4 a4"), (1, "bb1", "d3 bb3 d4 f4 a4"),
    (1, "c2", "e3 g3 d4 e4 bb4"), (1, "eb2", "eb3 bb3 d4 g4 a4"), (1, "a1", "d3 g3 c#4 e4 a4"),
    # rest
    (2, "f#2", "c#3 a3 c#4 e4 g#4"), (2, "d2", "d3 a3 c#4 f#4 g#4"), (2, "b1", "d3 a3 c#4 f#4 a4"),
    (1, "bb1", "d3 a3 d4 e4 f4"), (1, "a1", "d3 a3 d4 e4 g4"),
    # endgame
    (2, "d2", "d3 a3 e4 f4 a4"), (2, "bb1", "d3 a3 c4 f4 a4"), (2, "g1", "d3 bb3 d4 f4 a4"),
    (2, "f2", "c3 a3 c4 e4 a4"), (2, "eb2", "d3 bb3 d4 g4 a4"), (1, "a1", "d3 a3 d4 e4 g4"),
    (1, "a1", "d3 g3 c#4 e4 a4"),
)

# The theme: (beat, length in beats, note), beats counted from the first bar of its section.
THEME = (
    (0, 1.5, "a4"), (1.5, 0.5, "d5"), (2, 2, "e5"), (4, 1.5, "f5"), (5.5, 0.5, "e5"), (6, 2, "c5"),
    (8, 1.5, "d5"), (9.5, 0.5, "a4"), (10, 2.5, "bb4"), (12.5, 0.5, "c5"), (13, 1, "a4"), (14, 2, "f4"),
    (16, 1.5, "c5"), (17.5, 0.5, "f5"), (18, 2, "g5"), (20, 1.5, "a5"), (21.5, 0.5, "g5"), (22, 2, "e5"),
    (24, 1.5, "g5"), (25.5, 0.5, "e5"), (26, 2.5, "d5"), (28.5, 0.5, "c5"), (29, 3, "g4"),
    (32, 1.5, "d5"), (33.5, 0.5, "f5"), (34, 2, "a5"), (36, 1, "g5"), (37, 1, "f5"), (38, 2, "d5"),
    (40, 1.5, "e5"), (41.5, 0.5, "d5"), (42, 1, "e5"), (43, 1, "g5"), (44, 3.5, "a5"),
)
ANSWER = (  # middle game: the head of the theme, left hanging, then driven upwards
    (0, 1.5, "g4"), (1.5, 0.5, "c5"), (2, 2, "e5"), (4, 1.5, "d5"), (5.5, 0.5, "bb4"), (6, 2, "g4"),
    (9, 3, "g5"), (12, 1, "f5"), (13, 2.5, "a4"),
    (16, 1, "d5"), (17, 1, "f5"), (18, 2, "a5"), (20, 1, "g5"), (21, 2.5, "eb5"),
    (24, 1, "f5"), (25, 1, "d5"), (26, 2, "a5"), (28, 1.5, "g5"), (29.5, 0.5, "e5"), (30, 1.75, "c#5"),
)
ATTACK = (
    (0, 1, "a5"), (1, 0.5, "f5"), (1.5, 0.5, "d5"), (2, 2, "e5"), (4, 3, "f5"), (7, 0.5, "e5"), (7.5, 0.5, "d5"),
    (8, 1.5, "f5"), (9.5, 1.5, "d5"), (11, 1, "c5"), (12, 3.5, "d5"),
    (17, 0.5, "a4"), (17.5, 0.5, "d5"), (18, 2, "f5"), (20, 3, "g5"), (23, 1, "eb5"),
    (24, 1.5, "d5"), (25.5, 0.5, "f5"), (26, 2, "a5"), (28, 3, "g5"), (31, 0.5, "e5"), (31.5, 0.5, "c#5"),
    (32, 1.5, "d5"), (33.5, 0.5, "f5"), (34, 2, "bb5"), (36, 1.5, "g5"), (37.5, 1.5, "e5"), (39, 1, "bb4"),
    (40, 3, "a5"), (43, 0.5, "g5"), (43.5, 0.5, "d5"), (44, 1.5, "e5"), (45.5, 2.25, "a4"),
)
COUNTER = (  # attack: a slow descent against the theme
    (0, 4, "d4"), (4, 4, "c4"), (8, 4, "bb3"), (12, 4, "bb3"), (16, 4, "a3"), (20, 4, "c4"),
    (24, 4, "bb3"), (28, 4, "c#4"), (32, 4, "d4"), (36, 4, "e4"), (40, 4, "eb4"), (44, 4, "c#4"),
)
REST = (  # rest: the theme's head on bells, slowly
    (0, "c#5"), (3, "f#5"), (4, "g#5"), (8, "a5"), (11, "g#5"), (12, "f#5"), (16, "d5"), (19, "f#5"),
    (20, "a5"), (22, "g#5"), (24, "e5"), (27, "a5"), (28, "e5"), (30, "d5"),
)
ENDGAME = (
    (2, 1.5, "a4"), (3.5, 0.5, "d5"), (4, 3, "e5"), (10, 1.5, "d5"), (11.5, 0.5, "a4"), (12, 3, "bb4"),
    (18, 1.5, "f5"), (19.5, 0.5, "d5"), (20, 3, "a4"), (26, 1.5, "c5"), (27.5, 0.5, "e5"), (28, 3, "g5"),
    (34, 1.5, "d5"), (35.5, 0.5, "bb4"), (36, 3, "a4"),
)
DISTANT = (  # opening and endgame: bells far off
    (0, "a5"), (6, "e5"), (10, "d6"), (15, "a5"), (18, "bb5"), (22, "f5"), (26, "e5"), (29, "a5"),
)

# What the strings do in each bar: which sixteenths sound (the grouping 3 3 4 3 3 pulls against the clock).
SPARSE = "x.....x.....x..."
WALK = "x..x..x...x..x.."
RUN = "x.xx.xx.xxx.xx.x"
FULL = "xxxxxxxxxxxxxxxx"
STRINGS = ([""] * 2 + [SPARSE] * 4 + [WALK] * 2 + [WALK] * 4 + [RUN] * 8 + [RUN] * 4 + [FULL] * 4 + [FULL] * 12 +
           [""] * 4 + [SPARSE] * 4 + [WALK] * 6 + [SPARSE] * 4 + [""] * 2)
ORDER = (0, 2, 4, 1, 3, 2, 4, 3, 1, 4, 2, 3, 0, 3, 2, 1)

# fmt: on


def chord_at(bar):
    for bars, low, voicing in CHORDS:
        if bar < bars:
            return low, [number(n) for n in voicing.split()]
        bar -= bars
    raise IndexError(bar)


class Band:
    """One circular stereo track for each instrument."""

    def __init__(self):
        self.stems = {}

    def play(self, stem, sound, gain, bar, beat=0.0):
        track = self.stems.setdefault(stem, Track(LENGTH, circle=True, stereo=True))
        track.add(sound, gain, bar * BAR + beat * BEAT)


def play_chords(band):
    rng = dice("pads")
    bar = 0
    for bars, low, voicing in CHORDS:
        opening = 0.75 if 20 <= bar < 40 else 0.45
        for k, name in enumerate(voicing.split()):
            band.play("pad", pad(number(name), bars * BAR, rng, opening), (0.9, 1.0, 0.9, 0.8, 0.7)[k], bar)
        bar += bars
    assert bar == BARS
    for start, bars in ((0, 8), (54, 6)):
        band.play("drone", drone(number("d2"), bars * BAR), 0.8, start)
    band.play("drone", drone(number("f#2"), 4 * BAR), 0.5, 40)


def play_bass(band):
    for bar in range(BARS):
        low = number(chord_at(bar)[0])
        if bar < 6 or 40 <= bar < 46 or bar >= 56:
            pattern = ((0, 3.6, 0.75),) if bar % 2 == 0 else ()
        elif bar < 20 or bar >= 46:
            pattern = ((0, 1.3, 1.0), (1.5, 0.9, 0.6), (3, 0.8, 0.7))
        elif bar < 28:
            pattern = ((0, 0.7, 1.0), (0.75, 0.6, 0.6), (1.5, 0.8, 0.8), (2.5, 0.4, 0.55), (3, 0.7, 0.75))
        else:
            pattern = tuple((k * 0.5, 0.42, 1.0 if k in (0, 3, 6) else 0.62) for k in range(8))
        for beat, length, gain in pattern:
            lift = 12 if 28 <= bar < 40 and beat in (1.5, 3.0) else 0
            band.play("bass", bass(low + lift, length * BEAT), gain, bar, beat)


def play_strings(band):
    rng = dice("strings")
    for bar, pattern in enumerate(STRINGS):
        notes = chord_at(bar)[1]
        tension = 0.7 if 24 <= bar < 40 else 0.35
        for k, mark in enumerate(pattern):
            if mark != "x":
                continue
            accent = 1.0 if k in (0, 3, 6, 10, 13) else 0.55
            high = (k + bar) % 7 == 3 or (28 <= bar < 40 and k % 4 == 2)
            note = notes[ORDER[(k + 5 * (bar % 2)) % 16]] + (12 if high else 0)
            side = 0.7 * np.sin(2 * np.pi * (k / 16 + bar / 8))
            gain = accent * rng.uniform(0.85, 1.0) * (0.8 if 28 <= bar < 40 else 1.0)
            band.play("strings", pluck(note, round(side, 1), tension), gain, bar, k / 4)


def sing(band, stem, notes, bar, gain, shift=0):
    before = None
    for beat, length, name in notes:
        note = number(name) + shift
        slide = before if before is not None and abs(before - note) <= 7 else None
        band.play(stem, flute(note, length * BEAT, slide), gain * (0.85 if note >= number("g5") else 1.0), bar, beat)
        before = note


def play_melodies(band):
    sing(band, "flute", THEME, 8, 1.0)
    sing(band, "flute", ANSWER, 20, 0.95)
    sing(band, "flute", ATTACK, 28, 0.9)
    sing(band, "flute", ATTACK, 28, 0.4, -12)
    sing(band, "counter", COUNTER, 28, 0.8)
    sing(band, "flute", ENDGAME, 48, 0.9)
    for start, beats in ((0, DISTANT), (52, DISTANT)):
        for k, (beat, name) in enumerate(beats):
            band.play("bells", bell(number(name), (-0.6, 0.5, -0.2, 0.7)[k % 4]), 0.6, start, beat)
    for k, (beat, name) in enumerate(REST):
        band.play("bells", bell(number(name), (-0.4, 0.4)[k % 2]), 1.0, 40, beat)
        band.play("bells", bell(number(name) - 12, (0.3, -0.3)[k % 2]), 0.45, 40, beat)
    for bar in range(28, 40, 2):
        band.play("bells", bell(chord_at(bar)[1][4] + 12, 0.5), 0.45, bar)


def play_percussion(band):
    rng = dice("percussion")
    for bar in range(BARS):
        if bar >= 4 and not 40 <= bar < 44:
            for beat in range(4):
                pitch = 1320 if beat % 2 == 0 else 1080
                band.play("clock", tick(rng, pitch, 0.35 if beat % 2 == 0 else -0.35), 0.5 if beat else 0.65, bar, beat)
                if 20 <= bar < 40:
                    for part in (0.25, 0.5, 0.75):
                        band.play(
                            "clock",
                            tick(rng, 1900, rng.uniform(-0.7, 0.7)),
                            0.16 * rng.uniform(0.6, 1),
                            bar,
                            beat + part,
                        )
        if 12 <= bar < 40 or 48 <= bar < 54:
            band.play("drum", heart(), 0.8 if bar >= 20 else 0.55, bar, 0.0)
            band.play("drum", heart(), 0.45 if bar >= 20 else 0.3, bar, 0.5)
            if 28 <= bar < 40:
                band.play("drum", heart(), 0.7, bar, 2.5)
                if bar % 4 == 3:
                    band.play("drum", heart(), 0.5, bar, 3.5)
        if 16 <= bar < 40:
            for k in range(8):
                band.play("brush", brush(rng, 0.16, rng.uniform(-0.5, 0.5)), 0.5 if k % 2 else 0.25, bar, k / 2)
    for into, bars in ((8, 2), (20, 2), (28, 4), (40, 2), (48, 2), (60, 2)):
        band.play("tide", tide(rng, (bars + 0.6) * BAR), 1.0, into - bars)


# fmt: off
# stem: (level in dB, send to the hall in dB)
MIX = {
    "pad": (-17.0, -9.0), "drone": (-23.0, -10.0), "bass": (-18.5, -30.0), "strings": (-18.5, -9.0),
    "flute": (-16.5, -6.0), "counter": (-20.5, -7.0), "bells": (-19.5, -4.0), "clock": (-28.5, -9.0),
    "drum": (-20.5, -22.0), "brush": (-33.0, -10.0), "tide": (-31.0, -6.0),
}
# fmt: on


def loudest_mean(x):
    """The level of a stem where it plays: the mean power of its louder half of seconds."""
    power = np.mean(x**2, axis=1)
    seconds = power[: len(power) // RATE * RATE].reshape(-1, RATE).mean(axis=1)
    return 10 * np.log10(np.mean(np.sort(seconds)[-max(8, len(seconds) // 4) :]))


def echoes(x):
    """The strings bounce between the ears, three sixteenths apart, darker each time."""
    dark = filtered(x, below(2600, 1), above(250, 1), circle=True)
    late = np.stack([comb(side, 6 * BEAT / 4 * 1000, 0.45, circle=True) for side in dark.T], axis=1)
    step = samples(3 * BEAT / 4)
    return x + 0.38 * np.stack([np.roll(late[:, 1], step), np.roll(late[:, 0], 2 * step)], axis=1)


def mixed(parts):
    """Plays the parts one after the other, sets each stem's level, and puts all into one hall."""
    rng = dice("hall")
    dry = np.zeros((samples(LENGTH), 2))
    send = np.zeros_like(dry)
    for part in parts:
        band = Band()
        part(band)
        for stem, track in band.stems.items():
            x = track.out
            if stem == "strings":
                x = echoes(x)
            if stem == "pad":
                wander = 1500 * 2 ** (1.1 * circling(LENGTH, rng, 9.0))
                x = np.stack([moving_low(side, wander, circle=True, order=1) for side in x.T], axis=1)
            decibels, hall = MIX[stem]
            x *= db(decibels - loudest_mean(x))
            dry += x
            send += x * db(hall)
    hall = room(filtered(send, above(180, 1), circle=True), 3.6, 1.0, rng, bright=4200, early=0.04, circle=True) - send
    return dry + hall


def even(x):
    """Leans against slow changes of loudness, so that no section drops away under the effects."""
    power = np.mean(filtered(x, above(130, 1), circle=True) ** 2, axis=1)
    window = np.exp(-0.5 * (np.fft.fftfreq(len(power), 1 / len(power)) / (2.5 * RATE)) ** 2)
    slow = np.fft.irfft(np.fft.rfft(power) * np.fft.rfft(window / window.sum()), len(power))
    gain = np.maximum(slow, 1e-9) ** -0.2
    return x * (gain / np.mean(gain))[:, None]


def mastered_mix(x):
    """Leaves room for voices at 1 to 4 kHz, evens, and keeps the peaks low."""
    x = filtered(x, above(38, 2), boost(2200, 0.7, -3), boost(260, 0.8, -1.5), below(13000, 2), circle=True)
    x = even(x)
    for _ in range(3):
        x = limited(x * db(-18.0 - loudest_mean(x)), db(-4.5), circle=True, reach=0.006)
    return x


def encode(x, path):
    with tempfile.TemporaryDirectory() as folder:
        flat = os.path.join(folder, "music.wav")
        with wave.open(flat, "wb") as out:
            out.setnchannels(2)
            out.setsampwidth(2)
            out.setframerate(RATE)
            out.writeframes(np.round(x * 32767).astype("<i2").tobytes())
        subprocess.run(["oggenc", "-Q", "-q", "4", "-s", "1", "-o", path, flat], check=True)


if __name__ == "__main__":
    tune = mixed((play_chords, play_bass, play_strings, play_melodies, play_percussion))
    encode(mastered_mix(tune), os.path.join(MEDIA, "music0.ogg"))

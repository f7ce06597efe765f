"""The instruments of the music: each plays one note as a stereo signal, ready to be laid on a track."""

import functools

import numpy as np

from kit import RATE, above, band, below, clock, decay, filtered, level, noise, pan, samples, sine, swell

TABLE = 4096


def hertz(note):
    """MIDI number to pitch; 69 is the a of 440 hertz."""
    return 440.0 * 2 ** ((note - 69) / 12)


@functools.lru_cache(maxsize=None)
def _table(count, fall):
    """One round of a wave of count harmonics, each weaker by its number to the power of fall."""
    turn = 2 * np.pi * np.arange(TABLE + 1) / TABLE
    wave = sum(np.sin(h * turn + 0.7 * h * h) / h**fall for h in range(1, count + 1))
    return wave / np.sqrt(np.mean(wave**2))


def _wave(pitch, seconds, count, fall, start):
    """Plays a table; pitch is a number or a signal."""
    steps = np.broadcast_to(np.asarray(pitch, dtype=float) / RATE, (samples(seconds),))
    at = (start + np.cumsum(steps)) % 1.0 * TABLE
    low = at.astype(np.int32)
    table = _table(count, fall)
    return table[low] + (at - low) * (table[low + 1] - table[low])


def _hold(seconds, attack, release):
    """Up in the attack, held, and down within a release that follows the seconds."""
    t = clock(seconds + release)
    up = np.sin(0.5 * np.pi * np.clip(t / attack, 0, 1)) ** 2
    down = np.cos(0.5 * np.pi * np.clip((t - seconds) / release, 0, 1)) ** 2
    return up * down


def pad(note, seconds, rng, open_up=0.5):
    """Slow strings of light: four waves apart by a hair, opening in the middle of the note."""
    shape = _hold(seconds, min(1.1, seconds * 0.45), 1.6)
    total = len(shape) / RATE
    pitch = hertz(note)
    bright_count = int(max(3, min(24, 5000 / pitch)))
    out = np.zeros((len(shape), 2))
    opening = np.sin(np.pi * np.clip(clock(total) / total, 0, 1)) ** 1.5 * open_up
    for k, cents in enumerate((-7, -2.5, 3, 7.5)):
        bent = pitch * 2 ** (cents / 1200) * (1 + 0.0012 * sine(0.17 + 0.05 * k, total, rng.uniform()))
        start = rng.uniform()
        dark = _wave(bent, total, 3, 1.6, start)
        bright = _wave(bent, total, bright_count, 1.15, start)
        out += pan((1 - opening) * dark + opening * bright, (-0.8, 0.35, -0.35, 0.8)[k])
    return out * (0.25 * shape)[:, None]


def bass(note, seconds):
    """A round low string with enough overtones for small speakers."""
    pitch = hertz(note)
    shape = _hold(seconds, 0.012, 0.12)
    total = len(shape) / RATE
    fade = 0.55 + 0.45 * decay(total, 0.35, 0.001)
    body = sine(pitch, total) * 0.9
    growl = _wave(pitch * 1.002, total, 9, 1.25, 0.2) * decay(total, 0.22, 0.004) * 0.5
    octave = sine(2 * pitch, total, 0.1) * 0.3
    return pan((body + growl + octave) * shape * fade, 0.0)


def drone(note, seconds):
    """A pedal tone that turns slowly in the stereo field."""
    shape = _hold(seconds, 2.0, 3.0)
    total = len(shape) / RATE
    pitch = hertz(note)
    low = _wave(pitch, total, 5, 1.5, 0.1) + _wave(pitch * 1.0035, total, 5, 1.5, 0.6)
    high = _wave(pitch * 2.003, total, 8, 1.4, 0.3) * (0.5 + 0.5 * sine(0.11, total))
    return pan(low * shape, 0.0) * 0.5 + pan(high * shape, 0.8 * sine(0.07, total)) * 0.2


@functools.lru_cache(maxsize=None)
def _plucked(note, bright):
    """A clockwork string: the higher a partial, the sooner it is gone."""
    pitch = hertz(note)
    seconds = 0.9
    t = clock(seconds)
    out = np.zeros(len(t))
    for h in range(1, int(min(16, 8000 / pitch)) + 1):
        stretch = pitch * h * np.sqrt(1 + 0.0003 * h * h)
        out += np.sin(2 * np.pi * stretch * t + h) / h ** (1.7 - 0.5 * bright) * 0.5 ** (t / (0.16 / h**0.7))
    return out * np.minimum(1, t / 0.002) * np.clip((seconds - t) / 0.1, 0, 1)


def pluck(note, side, bright=0.4):
    return pan(_plucked(note, bright), side)


def flute(note, seconds, before=None):
    """The voice that carries the theme: half flute, half glass, sliding in from the note before."""
    shape = _hold(seconds, 0.07, 0.35)
    total = len(shape) / RATE
    t = clock(total)
    start = hertz(note if before is None else before)
    pitch = hertz(note) * (start / hertz(note)) ** (0.5 ** (t / 0.018))
    pitch = pitch * (1 + 0.0045 * sine(5.1, total) * np.clip((t - 0.35) / 0.6, 0, 1))
    phase = np.cumsum(pitch) / RATE
    bloom = 0.35 + 0.65 * np.clip(t / 0.5, 0, 1)
    tone = np.sin(2 * np.pi * phase + 0.55 * bloom * np.sin(2 * np.pi * phase)) + 0.18 * bloom * np.sin(
        4 * np.pi * phase
    )
    tone += 0.06 * np.sin(2 * np.pi * 3 * phase)
    shadow = np.sin(2 * np.pi * phase * 1.0032 + 1.0)
    fade = 0.75 + 0.25 * decay(total, 0.8, 0.001)
    return (pan(tone, -0.12) + 0.4 * pan(shadow, 0.4)) * (shape * fade)[:, None]


@functools.lru_cache(maxsize=None)
def _rung(note):
    pitch = hertz(note)
    t = clock(3.2)
    depth = 1.3 * 0.5 ** (t / 0.18)
    out = np.sin(2 * np.pi * pitch * t + depth * np.sin(2 * np.pi * 3.506 * pitch * t)) * 0.5 ** (t / 0.55)
    out += 0.3 * np.sin(2 * np.pi * 2.003 * pitch * t) * 0.5 ** (t / 0.35)
    return out * np.minimum(1, t / 0.003) * np.clip((3.2 - t) / 0.4, 0, 1)


def bell(note, side):
    return pan(_rung(note), side)


def heart(strength=1.0):
    """A soft drum, felt more than heard."""
    t = clock(0.5)
    out = np.sin(2 * np.pi * (52 * t + 1.9 * (1 - 0.5 ** (t / 0.018)))) * 0.5 ** (t / 0.075) * np.minimum(1, t / 0.003)
    knock = np.sin(2 * np.pi * 176 * t) * 0.5 ** (t / 0.02) * 0.22
    return pan((out + knock) * np.clip((0.5 - t) / 0.1, 0, 1) * strength, 0.0)


def tick(rng, pitch, side):
    """The chess clock: a small wooden tooth."""
    t = clock(0.12)
    wood = np.sin(2 * np.pi * pitch * t) * 0.5 ** (t / 0.008) + 0.5 * np.sin(2 * np.pi * pitch * 1.73 * t) * 0.5 ** (
        t / 0.005
    )
    grain = filtered(noise(0.12, rng), band(2500, 9000, 1)) * 0.5 ** (t / 0.004) * 0.25
    return pan((wood + grain) * np.minimum(1, t / 0.0008), side)


def brush(rng, seconds, side):
    """A breath of hiss."""
    out = filtered(noise(seconds, rng), above(3500, 2), below(11000, 1)) * swell(seconds, seconds * 0.3, seconds * 0.6)
    return pan(level(out), side)


def tide(rng, seconds):
    """Air that rises towards a bar line and falls back behind it."""
    out = np.stack([filtered(noise(seconds, rng), band(300, 2600, 1)) for _ in range(2)], axis=1)
    rise = swell(seconds, seconds * 0.75, seconds * 0.25) ** 2
    return out / np.max(np.abs(out)) * rise[:, None]

"""The machines' voices: espeak-ng speaks, and what comes out is reshaped until nobody takes it for a person."""

import os
import subprocess
import tempfile
import wave

import numpy as np

from kit import RATE, above, band, below, boost, drive, filtered, level, samples


def spoken(text, voice, pitch=50, speed=160, size=1.0):
    """Speaks the text, without the silence before and after it.

    pitch is espeak's 0 to 99, speed its words a minute. A size above 1 is a bigger throat: all formants sink (and
    the pitch with them), while the speed stays as told."""
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "speech.wav")
        subprocess.run(
            [
                "espeak-ng",
                "-v",
                voice,
                "-p",
                str(pitch),
                "-s",
                str(int(round(speed * size))),
                "-a",
                "100",
                "-w",
                path,
                text,
            ],
            check=True,
        )
        with wave.open(path) as source:
            rate = source.getframerate()
            raw = np.frombuffer(source.readframes(source.getnframes()), dtype="<i2") / 32768
    count = int(len(raw) * RATE / rate * size)
    count += count % 2
    spectrum = np.fft.rfft(raw)
    full = np.zeros(count // 2 + 1, dtype=complex)
    full[: min(len(full), len(spectrum))] = spectrum[: len(full)]
    return level(trimmed(np.fft.irfft(full, count)))


def trimmed(x, floor=0.012):
    """Cuts off what is quieter than the floor at both ends, and leaves a little air."""
    loud = np.flatnonzero(np.abs(x) > floor * np.max(np.abs(x)))
    return x[max(0, loud[0] - samples(0.008)) : loud[-1] + samples(0.02)]


def evened(x, amount=0.6, window=0.05):
    """Brings soft sounds up towards the loud ones, so that consonants carry on small speakers."""
    envelope = np.sqrt(np.maximum(filtered(x**2, below(1 / window, 1)), 0)) + 1e-3
    envelope = np.maximum(envelope, 0.03 * np.max(envelope))
    return level(x * envelope**-amount)


def clear(x):
    """Takes the mud out and lifts the range in which words are told apart."""
    return level(filtered(x, above(130, 2), boost(2400, 0.8, 6), boost(5200, 1.0, 4)))


def ring(x, pitch, amount=0.5):
    """Multiplies with a tone: the metallic shiver of a machine."""
    t = np.arange(len(x)) / RATE
    return (1 - amount) * x + amount * x * np.sin(2 * np.pi * pitch * t)


def radio(x, rough=2.0):
    """Through a small transmitter: a narrow band, pushed hard."""
    return level(drive(level(filtered(x, band(380, 3900, 3), boost(1700, 1.2, 4))), rough))


WINDOW = 1024
HOP = WINDOW // 4


def _frames(x):
    shape = np.sin(np.pi * (np.arange(WINDOW) + 0.5) / WINDOW)
    padded = np.concatenate((np.zeros(WINDOW), x, np.zeros(2 * WINDOW)))
    starts = np.arange(0, len(padded) - WINDOW, HOP)
    return np.fft.rfft(padded[starts[:, None] + np.arange(WINDOW)] * shape, axis=1)


def _bands(count, low, high):
    """Overlapping triangles over the spectrum, evenly spaced as the ear hears pitch."""
    f = np.fft.rfftfreq(WINDOW, 1 / RATE)
    mel = np.linspace(np.log1p(low / 700), np.log1p(high / 700), count + 2)
    edges = 700 * np.expm1(mel)
    rows = [np.interp(f, edges[k : k + 3], (0, 1, 0), left=0, right=0) for k in range(count)]
    return np.array(rows)


def vocoded(speech, carrier, count=30, low=90.0, high=10000.0):
    """Lets the carrier speak: in each band it takes the strength that the speech has there."""
    rows = _bands(count, low, high)
    said = np.sqrt((np.abs(_frames(speech)) ** 2) @ rows.T)
    source = _frames(carrier[: len(speech)])
    sounding = np.sqrt((np.abs(source) ** 2) @ rows.T)
    gain = said / (sounding + 0.02 * np.max(sounding, axis=0) + 1e-9)
    out = source * (gain @ (rows / np.maximum(rows.sum(axis=0), 1e-9)))
    shape = np.sin(np.pi * (np.arange(WINDOW) + 0.5) / WINDOW)
    pieces = np.fft.irfft(out, WINDOW, axis=1) * shape
    total = np.zeros(len(pieces) * HOP + WINDOW)
    for k, piece in enumerate(pieces):
        total[k * HOP : k * HOP + WINDOW] += piece
    return level(total[WINDOW : WINDOW + len(speech)])


def breathy(carrier, rng, amount):
    """Adds the hiss that a carrier needs to speak an s or a t."""
    hiss = filtered(rng.standard_normal(len(carrier)), above(2500, 2))
    return level(carrier) + amount * level(hiss)

"""The shared bench of the sound scripts: oscillators, noise, filters, envelopes, rooms, loops, mastering.

A signal is a numpy array of float64 samples at RATE; a stereo one has the shape (length, 2). Times are in
seconds, pitches in hertz, levels are plain factors. Filters work through one Fourier transform of the whole
signal. A loop is built in a circle from the start: its tones close their cycles, its noise, filters, rooms
and events wrap around, so there is no seam to hide.
"""

import os
import wave
import zlib

import numpy as np

RATE = 44100
DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data")
MEDIA = os.path.join(os.environ.get("TOLVANE_DATA", DATA), "media")


def samples(seconds):
    return int(round(seconds * RATE))


def db(decibels):
    return 10.0 ** (decibels / 20.0)


def dice(name):
    """A random generator of its own for each name, so that one sound never changes another."""
    return np.random.Generator(np.random.PCG64(zlib.crc32(name.encode())))


def clock(seconds):
    return np.arange(samples(seconds)) / RATE


# Envelopes


def line(seconds, *points, bend=1.0):
    """Runs through (time, value) points; a bend above 1 starts each piece slowly, below 1 quickly."""
    t = clock(seconds)
    out = np.full(len(t), float(points[-1][1]))
    out[t < points[0][0]] = points[0][1]
    for (t0, v0), (t1, v1) in zip(points, points[1:]):
        inside = (t >= t0) & (t < t1)
        out[inside] = v0 + (v1 - v0) * ((t[inside] - t0) / (t1 - t0)) ** bend
    return out


def glide(seconds, *points):
    """Like line, but moves evenly in pitch: values must be above 0."""
    return np.exp(line(seconds, *[(t, np.log(v)) for t, v in points]))


def decay(seconds, half_life, attack=0.001):
    """Rises within the attack and then loses half of its level every half_life."""
    t = clock(seconds)
    return np.minimum(t / attack, 1.0) * 0.5 ** (np.maximum(t - attack, 0.0) / half_life)


def swell(seconds, rise, fall):
    """A smooth hump: raised cosine in, raised cosine out."""
    t = clock(seconds)
    up = 0.5 - 0.5 * np.cos(np.pi * np.clip(t / rise, 0, 1))
    down = 0.5 - 0.5 * np.cos(np.pi * np.clip((seconds - t) / fall, 0, 1))
    return up * down


# Oscillators


def _phase(pitch, seconds, start):
    pitch = np.broadcast_to(np.asarray(pitch, dtype=float), (samples(seconds),))
    return start + np.concatenate(([0.0], np.cumsum(pitch)[:-1])) / RATE, pitch / RATE


def _smooth_step(phase, step):
    """The correction that rounds off the jump of a sawtooth, so that it does not alias."""
    out = np.zeros_like(phase)
    head = phase < step
    x = phase[head] / step[head]
    out[head] = x + x - x * x - 1.0
    tail = phase > 1.0 - step
    x = (phase[tail] - 1.0) / step[tail]
    out[tail] = x * x + x + x + 1.0
    return out


def sine(pitch, seconds, start=0.0):
    phase, _ = _phase(pitch, seconds, start)
    return np.sin(2 * np.pi * phase)


def saw(pitch, seconds, start=0.0):
    phase, step = _phase(pitch, seconds, start)
    phase = phase % 1.0
    return 2.0 * phase - 1.0 - _smooth_step(phase, step)


def pulse(pitch, seconds, width=0.5, start=0.0):
    return 0.5 * (saw(pitch, seconds, start) - saw(pitch, seconds, start + width))


def bell_tone(pitch, ratio, depth, seconds, start=0.0):
    """One sine that shakes the phase of another: pitch, ratio and depth may move."""
    phase, _ = _phase(pitch, seconds, start)
    return np.sin(2 * np.pi * phase + depth * np.sin(2 * np.pi * ratio * phase))


def noise(seconds, rng):
    return rng.standard_normal(samples(seconds))


def modes(seconds, partials, rng=None):
    """A struck body: (pitch, level, half life) of each partial. With rng the phases are scattered."""
    t = clock(seconds)
    out = np.zeros(len(t))
    for pitch, level, half_life in partials:
        start = rng.uniform(0, 2 * np.pi) if rng is not None else 0.0
        out += level * np.sin(2 * np.pi * pitch * t + start) * 0.5 ** (t / half_life)
    return out


def metal(seconds, low, high, count, half_life, rng, tilt=-3.0):
    """A struck plate: partials scattered from low to high, the high ones weaker (tilt, dB an octave) and shorter."""
    pitches = np.sort(low * (high / low) ** rng.uniform(0, 1, count))
    partials = [(p, db(tilt * np.log2(p / low)) * rng.uniform(0.4, 1.0), half_life * (low / p) ** 0.4) for p in pitches]
    return modes(seconds, partials, rng) / np.sqrt(count)


# Filters


def below(pitch, order=2):
    return lambda f: 1.0 / np.sqrt(1.0 + (f / pitch) ** (2 * order))


def above(pitch, order=2):
    return lambda f: 1.0 / np.sqrt(1.0 + (pitch / np.maximum(f, 1e-3)) ** (2 * order))


def band(low, high, order=2):
    return lambda f: above(low, order)(f) * below(high, order)(f)


def peak(pitch, sharpness):
    return lambda f: 1.0 / np.sqrt(1.0 + (sharpness * (f / pitch - pitch / np.maximum(f, 1e-3))) ** 2)


def boost(pitch, sharpness, decibels):
    return lambda f: 1.0 + (db(decibels) - 1.0) * peak(pitch, sharpness)(f)


def shelf(pitch, decibels):
    """Raises or lowers everything well below the pitch."""
    return lambda f: 1.0 + (db(decibels) - 1.0) * below(pitch, 1)(f)


def _through(x, response):
    return np.fft.irfft(np.fft.rfft(x) * response, len(x))


def _causal(response):
    """The response with the least delay of all that have this magnitude, so that no ringing comes before a hit.

    Takes and gives the lower half of the spectrum of a transform of even length."""
    log = np.log(np.maximum(response, 1e-6))
    cepstrum = np.fft.irfft(log)
    half = len(cepstrum) // 2
    cepstrum[1:half] *= 2.0
    cepstrum[half + 1 :] = 0.0
    return np.exp(np.fft.rfft(cepstrum))


def filtered(x, *responses, circle=False):
    """Runs x through magnitude responses; in a circle for loops, where the end flows into the beginning."""
    if x.ndim == 2:
        return np.stack([filtered(side, *responses, circle=circle) for side in x.T], axis=1)
    if circle:
        f = np.fft.rfftfreq(len(x), 1 / RATE)
        return _through(x, np.prod([r(f) for r in responses], axis=0))
    size = 1 << int(np.ceil(np.log2(len(x) + RATE // 4)))
    f = np.fft.rfftfreq(size, 1 / RATE)
    response = _causal(np.prod([r(f) for r in responses], axis=0))
    return _through(np.concatenate((x, np.zeros(size - len(x)))), response)[: len(x)]


def swept(x, response, *controls, circle=False, window=980):
    """A filter that moves: response(f, *values) for each short window, values taken from the control signals."""
    hop = window // 4
    count = -(-len(x) // hop)
    if circle and len(x) % hop:
        raise ValueError("a circular sweep needs a length that is a multiple of %d samples" % hop)
    padded = (
        np.concatenate((x[-window:], x, x[:window]))
        if circle
        else np.concatenate((np.zeros(window), x, np.zeros(2 * window)))
    )
    shape = np.sin(np.pi * (np.arange(window) + 0.5) / window)
    f = np.fft.rfftfreq(window, 1 / RATE)
    out = np.zeros(len(padded))
    for k in range(count + 4):
        at = window + (k - 3) * hop
        if at < 0 or at + window > len(padded):
            continue
        middle = at - window + window // 2
        index = middle % len(x) if circle else min(max(middle, 0), len(x) - 1)
        piece = np.fft.irfft(
            np.fft.rfft(padded[at : at + window] * shape) * response(f, *[c[index] for c in controls]), window
        )
        out[at : at + window] += piece * shape
    return out[window : window + len(x)] / 2.0


def moving_band(x, pitch, sharpness, circle=False, window=980):
    """A resonance that follows the pitch signal."""
    return swept(x, lambda f, p: peak(p, sharpness)(f), pitch, circle=circle, window=window)


def moving_low(x, pitch, circle=False, order=3, window=980):
    return swept(x, lambda f, p: below(p, order)(f), pitch, circle=circle, window=window)


# Colour


def drive(x, amount):
    """Soft saturation; amount 1 is gentle, 5 is rough. Works at twice the rate, so that it stays clean."""
    if amount <= 0:
        return x
    double = np.fft.irfft(np.pad(np.fft.rfft(x), (0, len(x) // 2)), 2 * len(x) - len(x) % 2) * 2
    bent = np.tanh(amount * double) / np.tanh(amount)
    return np.fft.irfft(np.fft.rfft(bent)[: len(x) // 2 + 1], len(x)) / 2


def crush(x, bits, hold=1):
    """Coarse steps in level and, with hold, in time."""
    steps = 2.0 ** (bits - 1)
    held = np.repeat(x[::hold], hold)[: len(x)]
    return np.round(held * steps) / steps


def pressed(x, amount, window=0.12, circle=False):
    """Brings soft stretches up towards loud ones: amount 0 leaves all as it is, 1 makes it all alike."""
    power = np.mean(x**2, axis=1) if x.ndim == 2 else x**2
    reach = samples(window)
    size = len(power) if circle else len(power) + 8 * reach
    n = np.arange(size)
    bump = np.exp(-0.5 * (np.minimum(n, size - n) / reach) ** 2)
    slow = np.fft.irfft(np.fft.rfft(power, size) * np.fft.rfft(bump / bump.sum()), size)[: len(x)]
    gain = np.maximum(slow, 1e-4 * np.max(slow)) ** (-0.5 * amount)
    return x * (gain[:, None] if x.ndim == 2 else gain)


def wobble(x, milliseconds, rate, depth=0.5, circle=False, start=0.0):
    """A copy whose delay swings about: chorus when it is mixed in, vibrato alone."""
    n = np.arange(len(x))
    delay = milliseconds / 1000 * RATE * (1 + depth * np.sin(2 * np.pi * (rate * n / RATE + start)))
    at = n - delay
    if circle:
        return np.interp(at % len(x), np.arange(len(x) + 1), np.append(x, x[0]))
    return np.interp(at, n, x, left=0.0)


def comb(x, milliseconds, feedback, circle=False):
    """A short tube: the signal meets itself again and again."""
    f = np.fft.rfftfreq(len(x) if circle else 2 * len(x), 1 / RATE)
    response = 1.0 / (1.0 - feedback * np.exp(-2j * np.pi * f * milliseconds / 1000))
    if circle:
        return _through(x, response)
    return _through(np.concatenate((x, np.zeros(len(x)))), response)[: len(x)]


# Building stones that several machines share


def thump(seconds, high, low, half_life, drop=0.03):
    """A blow one feels: a sine that falls from high to low within about drop and dies away."""
    t = clock(seconds)
    return sine(low + (high - low) * 0.5 ** (t / drop), seconds) * decay(seconds, half_life, 0.0015)


def click(seconds, low, high, half_life, rng):
    """A hard contact: a very short burst of noise in a band."""
    return level(filtered(noise(seconds, rng), band(low, high, 2)) * decay(seconds, half_life, 0.0003))


def crackle(rate, rng, low=1500.0, high=9000.0):
    """Sparks: single discharges of random strength; rate is a signal, in discharges a second."""
    hits = (
        (rng.uniform(0, 1, len(rate)) < rate / RATE) * rng.exponential(1.0, len(rate)) * rng.choice((-1, 1), len(rate))
    )
    sharp = filtered(hits, band(low, high, 1))
    return sharp / (np.max(np.abs(sharp)) + 1e-9)


def servo(seconds, pitch, rng, bright=2500.0):
    """A small geared motor that follows the pitch signal: whine, gear teeth, brush noise."""
    whine = pulse(pitch, seconds, 0.3) + 0.5 * saw(pitch * 2.98, seconds)
    teeth = 0.4 * sine(pitch * 7.1, seconds) * (0.6 + 0.4 * sine(pitch / 6, seconds))
    brush = 0.5 * noise(seconds, rng) * (0.5 + 0.5 * sine(pitch / 3, seconds))
    return filtered(whine + teeth + brush, band(350, bright, 1), boost(1400, 1.5, 6))


def rumble(seconds, rng, low, high, roughness=3.0):
    """Falling masses: low noise whose strength shakes."""
    shake = np.abs(filtered(noise(seconds, rng), below(18, 2)))
    shake /= np.max(shake)
    return level(drive(level(filtered(noise(seconds, rng), band(low, high, 2)) * (0.3 + shake)), roughness))


# Space


def room_response(seconds, rng, bright=5000.0, early=0.012, density=6):
    """The answer of a room: a few first reflections, then noise that dies away, the treble first."""
    n = samples(seconds)
    t = np.arange(n) / RATE
    tail = rng.standard_normal(n) * 10.0 ** (-3.0 * t / seconds)
    dark = filtered(tail, below(bright * 0.35, 1))
    blend = np.clip(t / (0.4 * seconds), 0, 1)
    tail = filtered(tail, below(bright, 1), above(120.0, 1)) * (1 - blend) + dark * blend
    tail *= np.clip(t / early, 0, 1)
    for _ in range(density):
        at = samples(rng.uniform(0.25, 1.6) * early)
        tail[at] += rng.choice((-1, 1)) * rng.uniform(2.0, 5.0)
    return tail / np.sqrt(np.sum(tail**2))


def room(x, seconds, wet, rng, bright=5000.0, early=0.012, circle=False, wide=False, tail=None):
    """Adds a room. Off the circle the result is longer by tail (the room's length if not told).

    Wide makes mono into stereo with a room of its own for each ear."""
    if wide or x.ndim == 2:
        sides = x.T if x.ndim == 2 else (x, x)
        return np.stack([room(side, seconds, wet, rng, bright, early, circle, tail=tail) for side in sides], axis=1)
    response = room_response(seconds, rng, bright, early)
    if circle:
        folded = np.zeros(len(x))
        for at in range(0, len(response), len(x)):
            part = response[at : at + len(x)]
            folded[: len(part)] += part
        return x + wet * _through(x, np.fft.rfft(folded))
    length = len(x) + samples(seconds if tail is None else tail)
    size = 1 << int(np.ceil(np.log2(len(x) + len(response))))
    answer = np.fft.irfft(np.fft.rfft(x, size) * np.fft.rfft(response, size), size)[:length]
    dry = np.zeros(length)
    dry[: min(len(x), length)] = x[:length]
    return dry + wet * np.pad(answer, (0, length - len(answer)))


def pan(x, side):
    """Mono to stereo: -1 left, 1 right, equal power. The side may be a signal."""
    angle = (np.asarray(side) + 1) * np.pi / 4
    return np.stack([x * np.cos(angle), x * np.sin(angle)], axis=1) * np.sqrt(2)


# Putting together


def level(x, value=1.0):
    """The signal with its highest peak at value."""
    return x * (value / np.max(np.abs(x)))


class Track:
    """An empty stretch of time to lay sounds on; a circular one carries what overhangs back to its start."""

    def __init__(self, seconds, circle=False, stereo=False):
        self.out = np.zeros((samples(seconds), 2) if stereo else samples(seconds))
        self.circle = circle

    def add(self, x, gain=1.0, at=0.0):
        if self.out.ndim == 2 and x.ndim == 1:
            x = np.stack([x, x], axis=1)
        start = samples(at)
        if self.circle:
            size = len(self.out)
            start %= size
            while len(x):
                part = x[: size - start]
                self.out[start : start + len(part)] += gain * part
                x, start = x[len(part) :], 0
        else:
            x = x[: max(0, len(self.out) - start)]
            self.out[start : start + len(x)] += gain * x
        return self


def closed(pitch, seconds):
    """The nearest pitch that closes its cycles in a loop of this length."""
    return np.maximum(1, np.round(np.asarray(pitch) * seconds)) / seconds


def closed_curve(curve, seconds):
    """A moving pitch, shifted a little so that its whole run makes whole cycles."""
    cycles = np.sum(curve) / RATE
    return curve * max(1.0, np.round(cycles)) / cycles


def circling(seconds, rng, slowness):
    """A slow random wander from -1 to 1 that comes home at the loop's end; slowness in seconds."""
    n = samples(seconds)
    count = max(2, int(seconds / slowness))
    spectrum = np.zeros(n // 2 + 1, dtype=complex)
    spectrum[1 : count + 1] = rng.standard_normal(count) + 1j * rng.standard_normal(count)
    x = np.fft.irfft(spectrum, n)
    return x / np.max(np.abs(x))


# Mastering


def _weighting(f):
    """How pitch counts for loudness on a small speaker: little below 130 Hz, up to 4 dB more in the treble."""
    return above(130.0, 2)(f) * (1.0 + (db(4.0) - 1.0) * above(1500.0, 1)(f))


def loudness(x):
    """Loudness in dB of the loudest fifth of a second, as the ear hears it from a small speaker."""
    sides = x.T if x.ndim == 2 else (x,)
    size = samples(0.2)
    power = np.zeros(max(len(x), size))
    for side in sides:
        padded = np.concatenate((side, np.zeros(max(0, size - len(side)))))
        power += filtered(padded, _weighting) ** 2 / len(sides)
    total = np.concatenate(([0.0], np.cumsum(power)))
    return 10 * np.log10(np.max(total[size:] - total[:-size]) / size + 1e-12)


def _lowest_around(x, reach, circle):
    """The smallest value within reach samples on either side."""
    x = np.pad(x, reach, mode="wrap" if circle else "edge")
    width, out = 1, x
    while width < 2 * reach + 1:
        step = min(width, 2 * reach + 1 - width)
        out = np.minimum(out[:-step], out[step:])
        width += step
    return out


def limited(x, ceiling, circle=False, reach=0.003):
    """Holds peaks under the ceiling with a gain that moves smoothly within a few milliseconds."""
    n = samples(reach)
    loud = np.max(np.abs(x), axis=1) if x.ndim == 2 else np.abs(x)
    gain = np.minimum(1.0, ceiling / np.maximum(loud, 1e-9))
    gain = _lowest_around(gain, n, circle)
    kernel = np.hanning(2 * n + 1)
    kernel /= kernel.sum()
    gain = np.pad(gain, n, mode="wrap" if circle else "edge")
    size = 1 << int(np.ceil(np.log2(len(gain) + len(kernel))))
    smooth = np.fft.irfft(np.fft.rfft(gain, size) * np.fft.rfft(kernel, size), size)[2 * n : 2 * n + len(x)]
    smooth = np.minimum(smooth, 1.0)
    return x * (smooth[:, None] if x.ndim == 2 else smooth)


def mastered(x, target, ceiling, circle=False):
    """Brings the loudness to the target (dB) under a peak ceiling (dB)."""
    gain = 1.0
    for _ in range(5):
        out = limited(x * gain, db(ceiling), circle)
        gain *= db(target - loudness(out))
    return limited(x * gain, db(ceiling), circle)


REFERENCE = -15.0  # dB: the loudness of a voice; blasts lie above it, what runs for long lies below
HEADROOM = 1.5  # dB: a voice, a motor and a shot at once, over the music, stay below full scale


def softly_begun(x, freedom):
    """Turns a loop so that it begins where it is quietest; freedom is how far it may turn, None is anywhere."""
    near = samples(0.002)
    ring = np.concatenate((np.abs(x), np.abs(x[:near])))
    total = np.concatenate(([0.0], np.cumsum(ring)))
    coming = (total[near:] - total[:-near])[: len(x)] / near
    cost = (coming + 4 * np.abs(x))[: None if freedom is None else samples(freedom)]
    return np.roll(x, -int(np.argmin(cost)))


def finish(name, x, louder=0.0, ceiling=-3.0, circle=False, fade_in=0.0006, fade_out=0.02, freedom=None):
    """Masters a sound and writes it to data/media: no drift, silent ends (or a closed circle), even loudness.

    louder is told in dB from the reference, ceiling in dB from full scale, freedom as for softly_begun."""
    if circle:
        x = softly_begun(filtered(x, above(25.0, 2), circle=True), freedom)
    else:
        x = filtered(x, above(25.0, 1))
        ends = np.minimum(1.0, np.arange(len(x)) / samples(fade_in))
        out = samples(fade_out)
        ends[-out:] *= 0.5 + 0.5 * np.cos(np.pi * np.arange(1, out + 1) / out)
        x = x * (ends[:, None] if x.ndim == 2 else ends)
        hum = np.sin(np.pi * np.minimum(1.0, np.arange(1, len(x) + 1) / len(x))) ** 2
        if x.ndim == 2:
            x = x - np.outer(hum, np.sum(x, axis=0) / np.sum(hum))
        else:
            x = x - hum * (np.sum(x) / np.sum(hum))
    x = mastered(x, REFERENCE + louder - HEADROOM, ceiling - HEADROOM, circle)
    write(name + ".wav", x)


def write(name, x):
    os.makedirs(MEDIA, exist_ok=True)
    data = np.clip(np.round(x * 32767), -32768, 32767).astype("<i2")
    with wave.open(os.path.join(MEDIA, name), "wb") as out:
        out.setnchannels(x.ndim)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(data.tobytes())

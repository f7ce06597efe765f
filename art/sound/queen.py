"""The queen: she hovers on a jet with a hum like a choir, and turns her victim into a can that a saucer fetches."""

import numpy as np

from kit import (
    RATE,
    Track,
    above,
    band,
    bell_tone,
    boost,
    circling,
    click,
    clock,
    closed,
    closed_curve,
    crackle,
    dice,
    drive,
    filtered,
    finish,
    glide,
    level,
    line,
    metal,
    modes,
    moving_band,
    noise,
    pan,
    peak,
    pressed,
    pulse,
    room,
    saw,
    shelf,
    sine,
    swell,
    thump,
    wobble,
)
from voice import breathy, clear, evened, spoken, vocoded

CHOIR = (220.0, 329.6, 440.0, 659.3)  # an open fifth in two octaves


def ah(f):
    """The throat of a choir between ah and oh."""
    return peak(620, 4)(f) + 0.55 * peak(1050, 6)(f) + 0.22 * peak(2550, 8)(f) + 0.08 * peak(3400, 9)(f)


def move():
    """Jet below, choir above; both breathe once in a round."""
    rng = dice("queenMove")
    n = 3.6
    track = Track(n, circle=True)
    for pitch, gain in zip(CHOIR, (1.0, 0.7, 0.6, 0.3)):
        for k in range(5):
            tone = closed(pitch, n) + (-5, -2, 0, 3, 7)[k] * max(1, round(pitch / 440)) / n
            voice = saw(closed(tone, n), n, rng.uniform())
            track.add(voice * (1 + 0.25 * circling(n, rng, 0.4)), gain)
    breath = 0.8 + 0.2 * sine(1 / n, n, 0.1)
    choir = level(filtered(track.out, ah, circle=True) * breath)
    jet = filtered(noise(n, rng), band(160, 1300, 1), boost(430, 1.2, 5), circle=True) * (
        1 + 0.3 * circling(n, rng, 0.2)
    )
    high = filtered(noise(n, rng), band(2500, 7500, 1), circle=True) * (1 + 0.3 * circling(n, rng, 0.3))
    turbine = sine(closed(1174.7, n), n) + 0.7 * sine(closed(1178, n), n) + 0.3 * sine(closed(2349, n), n)
    out = 0.6 * choir + 0.55 * level(jet) + 0.15 * level(high) + 0.05 * turbine
    out = pressed(out, 0.7, 0.15, circle=True)
    finish("queenMove", room(out, 1.0, 0.25, rng, circle=True), louder=-3, ceiling=-6, circle=True)


def transformation():
    """Eight seconds in four acts: the charge gathers (to 1.3), the beam stands up (to 2.8), the victim falls to
    dust (to 5.5), and the dust rings together into something small and round."""
    rng = dice("queenTransformation")
    n = 8.0
    track = Track(n, stereo=True)
    # The charge: a stack of tones climbs and spreads until the beam.
    climb = glide(n, (0, 73.4), (1.3, 146.8), (2.8, 220), (5.5, 293.7), (7.4, 440), (n, 440))
    power = line(n, (0, 0), (1.25, 0.8), (1.35, 1), (2.8, 0.9), (5.5, 0.55), (7.2, 0.25), (n, 0.1))
    for k, (ratio, side) in enumerate(((1, 0), (1.498, -0.4), (2.004, 0.4), (2.996, -0.8), (4.01, 0.8))):
        pulse_rate = glide(n, (0, 3), (1.3, 11), (2.8, 14), (5.5, 7), (n, 3))
        gate = 0.7 + 0.3 * sine(pulse_rate, n, k / 5)
        tone = filtered(
            saw(climb * ratio, n) + saw(climb * ratio * 1.006, n, 0.3), band(120, 3800, 1), boost(900, 1, 4)
        )
        track.add(pan(level(tone * gate) * power, side), 0.2 / (1 + 0.35 * k))
    for k in range(26):
        at = 1.25 * (k / 26) ** 0.7
        pitch = 700 * 2 ** (k / 13) * rng.uniform(0.98, 1.02)
        grain = bell_tone(glide(0.18, (0, pitch), (0.18, pitch * 1.5)), 2.0, 1.2, 0.18) * swell(0.18, 0.14, 0.03)
        track.add(pan(grain, rng.uniform(-0.9, 0.9)), 0.05 + 0.004 * k, at)
    # The beam: a blow, then a column of light with a slow throb.
    track.add(drive(thump(1.2, 220, 49, 0.16, 0.06), 2), 0.75, 1.3).add(click(0.1, 900, 8000, 0.012, rng), 0.4, 1.3)
    rush = moving_band(noise(6.4, rng), glide(6.4, (0, 500), (0.5, 2600), (1.5, 1700), (4.2, 3600), (6.4, 5200)), 1.2)
    rush = level(rush * line(6.4, (0, 0), (0.08, 1), (0.6, 0.5), (1.5, 0.45), (4.2, 0.3), (6.0, 0), (6.4, 0)))
    track.add(pan(rush, 0.4 * sine(0.7, 6.4)), 0.36, 1.3)
    # Dust: thousands of grains, dense and low first, then sparse and high, falling upwards.
    for _ in range(620):
        when = 2.8 + 2.9 * rng.beta(1.3, 1.6)
        progress = (when - 2.8) / 2.9
        length = rng.uniform(0.02, 0.09)
        pitch = 500 * 2 ** (3.2 * progress + rng.normal(0, 0.45))
        grain = sine(glide(length, (0, pitch), (length, pitch * 1.25)), length) * swell(length, 0.004, length * 0.8)
        track.add(pan(grain, rng.uniform(-1, 1)), 0.075 * rng.uniform(0.3, 1), when)
    for side in (-0.8, 0.8):
        sand = crackle(line(n, (0, 0), (2.7, 0), (2.9, 500), (4.5, 260), (5.8, 0), (n, 0)), rng, 1800, 9000)
        track.add(pan(sand, side), 0.3)
    # The can: glass tones out of nowhere meet on one note.
    for k in range(40):
        when = 5.3 + 1.9 * (k / 40) ** 0.85
        note = 880 * 2 ** (rng.choice((0, 7, 12, 19, 24)) / 12)
        struck = modes(0.5, ((note, 1, 0.09), (note * 2.76, 0.35, 0.05), (note * 5.4, 0.12, 0.03)))
        track.add(
            pan(struck * np.minimum(1, clock(0.5) / 0.003), rng.uniform(-0.8, 0.8) * (1 - k / 40)),
            0.05 + 0.0016 * k,
            when,
        )
    shine = sum(sine(880 * r, 2.4, rng.uniform()) * (1 + 0.3 * sine(5 + r, 2.4)) / r for r in (1, 1.5, 2, 3, 4))
    track.add(level(shine * swell(2.4, 1.8, 0.5)), 0.2, 5.5)
    out = pressed(filtered(track.out, shelf(150, -4)), 0.45)
    out = room(out, 1.6, 0.26, rng, bright=6500, early=0.03, tail=0.0)
    finish("queenTransformation", out, louder=-1, ceiling=-4, fade_out=0.4)


def drop_can():
    """Thin sheet metal with liquid in it: it drops, bounces twice, tips round its rim and stands."""
    rng = dice("queenDropCan")
    n = 1.5
    track = Track(n)

    def hit(gain, at, dull):
        shell = (
            (1240, 1, 0.045),
            (1905, 0.8, 0.035),
            (2870, 0.6, 0.03),
            (3420, 0.5, 0.022),
            (4630, 0.4, 0.018),
            (6210, 0.3, 0.012),
        )
        partials = [(p * rng.uniform(0.99, 1.01), g * rng.uniform(0.6, 1), h * dull) for p, g, h in shell]
        track.add(level(modes(0.4, partials, rng) * np.minimum(1, clock(0.4) / 0.0006)), 0.6 * gain, at)
        track.add(click(0.03, 1200, 8000, 0.003, rng), 0.45 * gain, at)
        track.add(thump(0.16, 420, 205, 0.02), 0.7 * gain, at)
        splash = moving_band(noise(0.2, rng), glide(0.2, (0, 700), (0.2, 1300)), 3) * swell(0.2, 0.05, 0.14)
        track.add(level(splash), 0.1 * gain, at + 0.015)

    # It turns solid with a last ring of glass, and falls; it lands as it does in sight, at two thirds of a second.
    solid = modes(0.6, ((880, 1, 0.1), (1760, 0.5, 0.06), (2640, 0.35, 0.04))) * np.minimum(1, clock(0.6) / 0.002)
    track.add(level(solid), 0.2)
    fall = sine(glide(0.5, (0, 1150), (0.5, 480)), 0.5) * line(0.5, (0, 0), (0.45, 1), (0.5, 0), bend=2)
    air = moving_band(noise(0.5, rng), glide(0.5, (0, 900), (0.5, 3000)), 1.5)
    air = level(air * line(0.5, (0, 0), (0.46, 1), (0.5, 0), bend=2))
    track.add(fall, 0.05, 0.16).add(air, 0.1, 0.16)
    for at, gain in ((0.66, 1.0), (1.0, 0.6), (1.165, 0.36)):
        hit(gain, at, 1.0)
    at, gap, gain = 1.23, 0.05, 0.3
    while at < 1.44:
        hit(gain, at, 0.6)
        at, gap, gain = at + gap, max(0.016, gap * 0.8), gain * 0.88
    finish("queenDropCan", room(track.out, 0.3, 0.14, rng, tail=0.0), ceiling=-4, fade_out=0.04)


def ufo():
    """The saucer hangs in the air and wavers: a singing saw, a fifth that beats, a wet warble below."""
    rng = dice("queenUfo")
    n = 4.0
    waver = 1 + 0.045 * sine(1.5, n) + 0.02 * sine(5.5, n) * (0.6 + 0.4 * sine(0.25, n))
    lead = closed_curve(523.3 * waver, n)
    second = closed_curve(392.0 * (1 + 0.035 * sine(1.25, n, 0.3)), n)
    singing = sine(lead, n) + 0.35 * sine(2 * lead, n) + 0.12 * sine(3 * lead, n) + 0.6 * sine(second, n)
    low = closed_curve(98.0 * (1 + 0.02 * sine(0.75, n)), n)
    warble = saw(low, n) + pulse(low * 2, n, 0.3)
    throat = 600 * 2 ** (0.9 * sine(3.25, n))
    warble = moving_band(warble, throat, 3.5, circle=True)
    air = moving_band(noise(n, rng), 1800 * 2 ** (0.7 * sine(3.25, n, 0.25)), 2.5, circle=True)
    throb = 0.72 + 0.28 * sine(6.5, n)
    out = 0.42 * level(singing) * throb + 0.5 * level(warble) + 0.3 * level(air) * throb
    out = out + 0.4 * wobble(out, 12, 0.5, 0.4, circle=True)
    finish("queenUfo", room(out, 1.0, 0.3, rng, circle=True), louder=-2, ceiling=-5, circle=True)


def ufo_beam():
    """The beam takes hold, hums, and from the third second on pulls, a whole tone higher with each second."""
    rng = dice("queenUfoBeam")
    n = 7.0
    pull = glide(n, (0, 65), (0.3, 98), (2.5, 98), (6.8, 196), (n, 220))
    shake = 0.65 + 0.35 * sine(glide(n, (0, 4), (2.5, 7), (6.8, 16), (n, 18)), n)
    hum = filtered(
        saw(pull, n) + saw(pull * 1.008, n, 0.4) + 0.7 * pulse(pull * 1.5, n, 0.3),
        band(90, 2600, 1),
        boost(700, 1.2, 6),
    )
    sparkle = 0.0
    for k, ratio in enumerate((6, 8, 9, 12, 16)):
        sparkle = sparkle + sine(pull * ratio, n, k / 5) * np.maximum(0, sine(2.3 + 0.7 * k, n, k / 7)) ** 2 / (
            1 + 0.4 * k
        )
    wind = moving_band(noise(n, rng), pull * 9 * 2 ** (0.5 * sine(1.1, n)), 2.2)
    track = Track(n)
    body = line(n, (0, 0), (0.25, 1), (0.6, 0.75), (2.4, 0.72), (6.7, 1), (6.85, 0.8), (n, 0))
    track.add(level(hum * shake) * body, 0.6).add(level(sparkle) * body, 0.24).add(level(wind) * body, 0.3)
    track.add(thump(0.5, 260, 70, 0.07), 0.7).add(click(0.06, 900, 7000, 0.008, rng), 0.35)
    track.add(level(metal(0.4, 1300, 5000, 6, 0.05, rng)), 0.12, 2.5).add(thump(0.4, 180, 90, 0.06), 0.4, 2.5)
    out = pressed(filtered(track.out, shelf(150, -4)), 0.4)
    finish("queenUfoBeam", room(out, 0.9, 0.22, rng, tail=0.0), louder=-2, ceiling=-5, fade_out=0.12)


def ufo_engage():
    """The drive winds up for two and a half seconds, then the saucer is gone."""
    rng = dice("queenUfoEngage")
    n = 3.0
    wind = glide(n, (0, 110), (1.0, 165), (2.3, 660), (2.5, 1320), (2.7, 3500), (n, 260))
    spin = glide(n, (0, 4), (1.2, 9), (2.4, 27), (n, 40))
    load = line(n, (0, 0), (0.15, 0.45), (1.2, 0.6), (2.4, 1), (2.55, 1), (n, 0))
    rotor = filtered(
        saw(wind, n) + saw(wind * 1.01, n) + 0.6 * pulse(wind * 0.5, n, 0.4), band(100, 6000, 1), boost(1100, 1, 4)
    )
    rotor = level(rotor * (0.6 + 0.4 * sine(spin, n))) * load
    ghost = bell_tone(wind * 2, 1.41, line(n, (0, 0.3), (2.5, 2.2), (n, 0.4)), n) * load
    gust = moving_band(noise(n, rng), glide(n, (0, 400), (2.2, 1400), (2.52, 6500), (n, 500)), 1.0)
    gust = level(gust * line(n, (0, 0), (1.5, 0.2), (2.4, 0.7), (2.52, 1), (n, 0), bend=1.2))
    track = Track(n)
    track.add(rotor, 0.5).add(ghost, 0.2).add(gust, 0.55)
    track.add(thump(0.45, 320, 60, 0.08, 0.04), 0.85, 2.5).add(click(0.08, 800, 8000, 0.01, rng), 0.4, 2.5)
    out = pressed(filtered(track.out, shelf(150, -3)), 0.3)
    finish("queenUfoEngage", room(out, 0.9, 0.22, rng, tail=0.0), ceiling=-4, fade_out=0.12)


def say(name, text, pitch, speed):
    """Glass and silk: a cool voice, each word doubled by a chord that a person could not sing."""
    rng = dice(name)
    speech = evened(clear(spoken(text, "en-gb+f2", pitch, speed, 0.97)), 0.35)
    seconds = len(speech) / RATE
    chord = sum(
        g * saw(f, seconds + 0.1, rng.uniform())
        for f, g in ((220, 1), (220.9, 0.8), (329.6, 0.7), (440.7, 0.6), (554.4, 0.35))
    )
    glass = vocoded(speech, breathy(chord, rng, 0.4), count=36)
    both = 0.75 * level(speech) + 0.55 * level(glass)
    out = both + 0.2 * wobble(both, 18, 0.9, 0.3)
    out = filtered(out, above(170, 2), boost(3400, 0.8, 4))
    track = Track(seconds + 0.24)
    chime = modes(0.24, ((1760, 1, 0.05), (2637, 0.6, 0.04), (3520, 0.3, 0.03))) * np.minimum(1, clock(0.24) / 0.01)
    track.add(level(chime), 0.08).add(level(out), 1.0, 0.05)
    finish(name, room(track.out, 0.9, 0.13, rng, bright=7000, early=0.02, tail=0.0), ceiling=-4, fade_out=0.15)


if __name__ == "__main__":
    move()
    transformation()
    drop_can()
    ufo()
    ufo_beam()
    ufo_engage()
    say("queenSelected0", "At last", 52, 140)
    say("queenSelected1", "Choose well", 48, 145)
    say("queenAck0", "Understood", 50, 155)
    say("queenAck1", "With pleasure", 54, 155)
    say("queenAck2", "As planned", 50, 150)

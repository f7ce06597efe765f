"""The pawn: a light trooper on quick servo legs, eager, with a small transmitter for a voice."""

import numpy as np

from kit import (
    RATE,
    Track,
    band,
    bell_tone,
    below,
    boost,
    click,
    clock,
    crackle,
    decay,
    dice,
    drive,
    filtered,
    finish,
    glide,
    level,
    line,
    metal,
    moving_band,
    noise,
    pulse,
    room,
    saw,
    servo,
    sine,
    swell,
    thump,
)
from voice import breathy, clear, evened, radio, ring, spoken, vocoded

STEP = 1 / 3  # seconds from foot to foot, as the legs go


def foot(heavy, rng):
    """A light foot of metal and rubber on the hard field."""
    track = Track(0.22)
    track.add(click(0.03, 1800, 7000, 0.003, rng), 0.55)
    track.add(thump(0.2, 260 * heavy, 105 * heavy, 0.022), 0.9)
    track.add(level(metal(0.2, 520 * heavy, 4200, 14, 0.03, rng)), 0.35)
    track.add(click(0.12, 900, 4000, 0.018, rng), 0.16, 0.012)
    return track.out


def move():
    rng = dice("pawnMove")
    track = Track(3.0)
    for k in range(9):
        side = 1.0 if k % 2 == 0 else 1.12
        start = k * STEP + 0.03
        pitch = glide(0.27, (0, 200 * side), (0.08, 450 * side), (0.17, 380 * side), (0.27, 220 * side))
        lift = servo(0.27, pitch * rng.uniform(0.97, 1.03), rng) * swell(0.27, 0.04, 0.1)
        track.add(level(lift), rng.uniform(0.24, 0.32), start)
        track.add(click(0.03, 2500, 8000, 0.004, rng), 0.1, start + 0.012)
        if start + 0.5 < 3.0:
            track.add(foot(rng.uniform(0.97, 1.03) / side, rng), rng.uniform(0.85, 1.0), start + 0.27)
        hiss = filtered(noise(0.12, rng), band(2500, 9000, 1)) * swell(0.12, 0.02, 0.08)
        track.add(level(hiss), 0.07, start + 0.31)
    hum = (saw(82, 3.0) + 0.7 * saw(123.5, 3.0)) * (1 + 0.2 * sine(4, 3.0))
    track.add(level(filtered(hum, band(90, 600, 2))) * line(3.0, (0, 0), (0.08, 1), (2.8, 1), (3, 0)), 0.07)
    finish("pawnMove", room(track.out, 0.3, 0.16, rng, tail=0.0), louder=-3, ceiling=-5)


def shot():
    """A plasma bolt: snap, falling body with a growl in it, hot hiss that trails off."""
    rng = dice("pawnshot2")
    n = 0.29
    t = clock(n)
    fall = 150 + 2300 * 0.5 ** (t / 0.022)
    body = bell_tone(fall, 1.5, 2.2 * 0.5 ** (t / 0.05), n) * decay(n, 0.045, 0.001)
    growl = drive(level(saw(fall * 0.5, n) * decay(n, 0.05, 0.002)), 3) * (0.7 + 0.3 * sine(95, n))
    hot = moving_band(noise(n, rng), glide(n, (0, 5200), (0.06, 2400), (n, 700)), 1.6, window=256) * decay(n, 0.05)
    track = Track(n)
    track.add(click(0.02, 1200, 9000, 0.0025, rng), 0.7)
    track.add(thump(n, 330, 85, 0.035, 0.02), 0.85)
    track.add(level(body), 0.8).add(filtered(growl, below(3200, 2)), 0.4).add(level(hot), 0.5)
    out = room(drive(level(track.out), 1.6), 0.35, 0.14, rng, bright=6000, tail=0.0)
    finish("pawnshot2", out, louder=1, ceiling=-3, fade_out=0.07)


def dying():
    """Power-down: the drive sags in jerks, sparks fly, the body sinks and drops, one last tick."""
    rng = dice("dying")
    n = 1.7
    sag = glide(n, (0, 640), (0.25, 520), (0.32, 590), (0.75, 210), (0.82, 250), (1.25, 58), (n, 30))
    wow = 1 + 0.03 * sine(glide(n, (0, 17), (1.2, 5), (n, 3)), n)
    whine = pulse(sag * wow, n, 0.25) + 0.6 * saw(sag * wow * 1.502, n)
    stutter = 0.55 + 0.45 * np.sign(sine(glide(n, (0, 24), (1.2, 9), (n, 7)), n)) * line(n, (0, 0.2), (0.6, 1), (n, 1))
    stutter = filtered(stutter, below(160, 1))
    whine = (
        filtered(whine, band(140, 3200, 2), boost(900, 1, 5))
        * stutter
        * line(n, (0, 0), (0.01, 1), (0.9, 0.7), (1.4, 0))
    )
    track = Track(n)
    track.add(level(whine), 0.6)
    track.add(click(0.05, 900, 8000, 0.006, rng), 0.8).add(thump(0.3, 300, 90, 0.04), 0.8)
    track.add(crackle(line(n, (0, 90), (0.35, 30), (0.5, 120), (0.9, 15), (n, 6)), rng), 0.65)
    track.add(level(metal(0.6, 300, 3500, 18, 0.07, rng)), 0.45, 0.92)
    track.add(thump(0.5, 170, 62, 0.06), 1.0, 0.92).add(click(0.06, 500, 4500, 0.01, rng), 0.5, 0.92)
    track.add(level(metal(0.4, 480, 5000, 12, 0.05, rng)), 0.3, 1.09).add(thump(0.2, 190, 90, 0.03), 0.4, 1.09)
    hiss = filtered(noise(0.7, rng), band(1500, 7000, 1)) * decay(0.7, 0.13, 0.03)
    track.add(level(hiss), 0.2, 0.95)
    track.add(click(0.03, 3000, 9000, 0.003, rng), 0.12, 1.5)
    finish("dying", room(level(track.out), 0.5, 0.2, rng, tail=0.0), ceiling=-4, fade_out=0.15)


def say(name, text, pitch, speed):
    """The key is pressed, the trooper speaks through its transmitter, the key is let go."""
    rng = dice(name)
    speech = evened(clear(spoken(text, "en-us+m7", pitch, speed, 0.88)), 0.35)
    seconds = len(speech) / RATE
    drone = pulse(168 * (1 + 0.004 * sine(6, seconds + 0.1)), seconds + 0.1, 0.2)
    machine = vocoded(speech, breathy(drone, rng, 0.35))
    out = radio(ring(0.7 * level(speech) + 0.42 * level(machine), 62, 0.18), 1.5)
    track = Track(seconds + 0.16)
    track.add(level(sine(1900, 0.035) * swell(0.035, 0.004, 0.01)), 0.16, 0.0)
    track.add(click(0.02, 1500, 7000, 0.003, rng), 0.2, 0.0)
    track.add(out, 1.0, 0.055)
    carrier = filtered(noise(seconds + 0.05, rng), band(1500, 4500, 2)) * swell(seconds + 0.05, 0.01, 0.02)
    track.add(level(carrier), 0.025, 0.04)
    track.add(level(filtered(noise(0.05, rng), band(1200, 4800, 2)) * decay(0.05, 0.018)), 0.2, seconds + 0.075)
    finish(name, room(track.out, 0.18, 0.07, rng, tail=0.02), ceiling=-4)


if __name__ == "__main__":
    move()
    shot()
    dying()
    say("pawnSelected0", "Reporting", 62, 165)
    say("pawnSelected1", "Standing by", 66, 180)
    say("pawnAck0", "Moving out", 64, 185)
    say("pawnAck1", "Affirmative", 58, 185)

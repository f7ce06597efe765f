"""The rook: a fortress on tracks, slow and heavy, with twin cannon and a voice from deep inside a boiler."""

import numpy as np

from kit import (
    RATE,
    Track,
    above,
    band,
    below,
    boost,
    circling,
    click,
    clock,
    closed,
    comb,
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
    rumble,
    saw,
    shelf,
    sine,
    swell,
    thump,
)
from voice import breathy, clear, evened, spoken, vocoded


def move():
    """The track's plates clank over the sprocket, the motor turns underneath, one link squeals in every round."""
    rng = dice("rookMove")
    n = 2.5
    t = clock(n)
    track = Track(n, circle=True)
    plates = [level(metal(0.09, 330 * rng.uniform(0.93, 1.07), 3600, 14, 0.016, rng)) for _ in range(4)]
    for k in range(32):
        at = k * n / 32 + rng.uniform(-0.003, 0.003)
        strength = (1.0, 0.5, 0.75, 0.45)[k % 4] * rng.uniform(0.85, 1.1)
        track.add(plates[k % 4], 0.45 * strength, at)
        track.add(thump(0.1, 190, 88, 0.016), 0.62 * strength, at)
        track.add(click(0.02, 1400, 6000, 0.003, rng), 0.3 * strength, at)
    turn = closed(56, n)
    throb = 0.7 + 0.3 * sine(turn / 4, n)
    motor = saw(turn, n) + 0.7 * pulse(turn * 2, n, 0.3) + 0.4 * saw(closed(56.9, n), n)
    motor = filtered(motor * throb, band(70, 900, 2), boost(210, 1.5, 7), circle=True)
    track.add(level(motor), 0.45)
    grit = filtered(noise(n, rng), band(200, 2200, 2), circle=True) * (0.6 + 0.4 * np.abs(sine(8, n)))
    track.add(level(grit) * (1 + 0.4 * circling(n, rng, 0.2)), 0.16)
    for at, pitch in ((0.52, 1150), (1.77, 1230)):
        squeal = sine(pitch * (1 + 0.03 * np.sin(2 * np.pi * 14 * t[: int(0.3 * RATE)])), int(0.3 * RATE) / RATE)
        track.add(squeal * swell(len(squeal) / RATE, 0.1, 0.15), 0.045, at)
    whine = sine(closed(448, n) * (1 + 0.004 * sine(2 / n, n)), n) * 0.05
    track.add(whine - whine.mean())
    out = filtered(track.out, shelf(150, -3), boost(1300, 0.5, 5), circle=True)
    finish("rookMove", room(out, 0.3, 0.14, rng, circle=True), louder=-3, ceiling=-6, circle=True)


def shot():
    """Both cannon at once: crack, boom, a rolling cloud, then the barrels slide home."""
    rng = dice("rookshot3")
    n = 0.8
    boom = drive(thump(n, 240, 46, 0.1, 0.045) + 0.5 * thump(n, 420, 110, 0.05, 0.02), 2.2)
    cloud = moving_band(noise(n, rng), glide(n, (0, 2600), (0.1, 800), (0.4, 260), (n, 160)), 0.8) * decay(n, 0.085)
    track = Track(n)
    track.add(click(0.06, 700, 9000, 0.006, rng), 0.9).add(click(0.05, 900, 9000, 0.005, rng), 0.6, 0.014)
    track.add(boom, 1.0).add(level(drive(level(cloud), 3)), 0.75)
    track.add(level(metal(0.5, 210, 2600, 16, 0.06, rng)), 0.22, 0.02)
    slide = moving_band(noise(0.28, rng), glide(0.28, (0, 900), (0.28, 2100)), 2.5) * swell(0.28, 0.05, 0.06)
    track.add(level(slide), 0.13, 0.34)
    track.add(level(metal(0.2, 380, 3000, 10, 0.03, rng)), 0.2, 0.6).add(thump(0.15, 160, 80, 0.025), 0.3, 0.6)
    out = drive(level(filtered(track.out, shelf(150, -5), boost(700, 0.5, 5), boost(2200, 0.7, 3))), 2.0)
    out = room(out, 0.7, 0.2, rng, bright=4500, early=0.03, tail=0.0)
    finish("rookshot3", out, louder=2, ceiling=-3, fade_out=0.12)


def collapse():
    """Walls give way: blow upon blow, falling slabs, rubble that comes to rest."""
    rng = dice("rookdeath")
    n = 1.9
    track = Track(n)
    track.add(click(0.05, 400, 5000, 0.01, rng), 0.6).add(thump(0.5, 200, 55, 0.08), 0.9)
    for at, size in (
        (0.0, 0.8),
        (0.2, 0.5),
        (0.34, 0.65),
        (0.47, 0.4),
        (0.62, 1.0),
        (0.83, 0.45),
        (1.0, 0.55),
        (1.2, 0.25),
    ):
        track.add(thump(0.35, 170 / size**0.3, 58 / size**0.3, 0.045), size, at)
        track.add(click(0.2, 160, 1800, 0.025, rng), 0.5 * size, at)
        track.add(level(metal(0.4, 140 / size**0.4, 1500, 14, 0.05, rng)), 0.3 * size, at)
    masses = rumble(n, rng, 60, 600) * line(n, (0, 0), (0.1, 0.7), (0.62, 1), (1.1, 0.4), (n, 0))
    track.add(masses, 0.6)
    rubble = crackle(line(n, (0, 20), (0.6, 160), (1.2, 90), (n, 8)), rng, 500, 3500)
    track.add(rubble, 0.35)
    out = filtered(track.out, shelf(140, -5), boost(600, 0.6, 4))
    finish("rookdeath", room(level(out), 0.6, 0.2, rng, bright=3000, tail=0.0), louder=-1, ceiling=-6, fade_out=0.25)


def scrape():
    """Iron drags over the board, the motor chokes, a last plate falls flat."""
    rng = dice("rookdeath1")
    n = 1.8
    grain = np.maximum(0, filtered(noise(n, rng), band(25, 90, 2)))
    grain /= np.max(grain)
    rough = noise(n, rng) * (0.15 + grain)
    drag = line(n, (0, 0), (0.12, 0.5), (0.3, 0.25), (0.45, 0.9), (0.95, 1), (1.2, 0.2), (1.35, 0))
    pitch = glide(n, (0, 1300), (0.3, 1000), (0.5, 1700), (1.0, 1150), (1.3, 800), (n, 700))
    iron = (
        moving_band(rough, pitch, 7)
        + 0.8 * moving_band(rough, pitch * 1.83, 9)
        + 0.6 * moving_band(rough, pitch * 2.71, 9)
    )
    track = Track(n)
    track.add(level(iron * drag), 0.85)
    screech = sine(pitch * 1.3 * (1 + 0.02 * filtered(noise(n, rng), below(40, 2))), n) * drag * (0.4 + grain)
    track.add(level(screech), 0.12)
    sag = glide(n, (0, 150), (0.5, 95), (1.0, 40), (n, 22))
    motor = filtered(saw(sag, n) + 0.6 * pulse(sag * 2.01, n, 0.2), band(180, 1400, 2)) * line(
        n, (0, 0), (0.03, 1), (1.0, 0.5), (1.3, 0)
    )
    track.add(level(motor) * (0.7 + 0.3 * sine(glide(n, (0, 19), (n, 6)), n)), 0.35)
    for at, gain, low in ((1.22, 1.0, 420), (1.37, 0.5, 470), (1.46, 0.3, 520), (1.52, 0.18, 560)):
        track.add(level(metal(0.4, low, 5200, 22, 0.07, rng)), 0.75 * gain, at)
        track.add(click(0.04, 900, 6000, 0.006, rng), 0.4 * gain, at)
    finish("rookdeath1", room(level(track.out), 0.5, 0.18, rng, tail=0.0), louder=-1, ceiling=-6, fade_out=0.15)


def say(name, text, pitch, speed):
    """A huge iron throat: the words ring in a pipe, over a growl an octave below."""
    rng = dice(name)
    speech = evened(clear(spoken(text, "en-us+m3", pitch, speed, 1.24)), 0.4)
    seconds = len(speech) / RATE
    growl = saw(55, seconds + 0.1) + 0.8 * saw(55.6, seconds + 0.1) + 0.5 * pulse(110.4, seconds + 0.1, 0.2)
    machine = vocoded(speech, breathy(growl, rng, 0.25))
    both = drive(level(0.75 * level(speech) + 0.6 * level(machine)), 1.6)
    pipe = 0.72 * level(both) + 0.3 * level(comb(both, 1000 / 172, 0.72)) + 0.12 * level(comb(both, 1000 / 267, 0.6))
    out = filtered(level(pipe), above(125, 3), boost(2500, 0.8, 8), boost(230, 1.5, 2))
    track = Track(seconds + 0.12)
    track.add(thump(0.12, 150, 80, 0.02), 0.16).add(level(metal(0.1, 400, 3000, 8, 0.015, rng)), 0.06)
    track.add(level(out), 1.0, 0.03)
    finish(name, room(track.out, 0.35, 0.12, rng, bright=2800, tail=0.06), ceiling=-4, fade_out=0.06)


if __name__ == "__main__":
    move()
    shot()
    collapse()
    scrape()
    say("rookSelected0", "Fortress ready", 12, 150)
    say("rookAck0", "Rolling", 10, 125)
    say("rookAck1", "Advancing", 14, 135)

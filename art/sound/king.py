"""The king: the heaviest of all, slow steps, a blow that shakes the field, a voice in a hall, and a great end."""

import numpy as np

from kit import (
    RATE,
    Track,
    above,
    band,
    below,
    boost,
    click,
    closed,
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
    moving_low,
    noise,
    pan,
    pressed,
    pulse,
    room,
    rumble,
    saw,
    servo,
    shelf,
    sine,
    swell,
    thump,
)
from voice import breathy, clear, evened, spoken, vocoded

# Weight that a small speaker can tell: less of the deepest bass, more of what sounds with it.
SMALL = (shelf(150, -7), boost(620, 0.5, 5), boost(2200, 0.7, 4))


def foot(size, rng):
    """Tons of metal set down: the blow, the field's answer, armour that settles."""
    track = Track(0.9)
    track.add(drive(thump(0.6, 190, 52 * size, 0.085, 0.03), 1.8), 1.0)
    track.add(thump(0.3, 330, 140 * size, 0.04, 0.02), 0.55)
    track.add(click(0.12, 250, 3000, 0.014, rng), 0.55)
    track.add(level(metal(0.7, 165 * size, 2600, 22, 0.08, rng)), 0.35)
    track.add(level(metal(0.25, 640 * size, 4500, 10, 0.03, rng)), 0.14, 0.11)
    dust = filtered(noise(0.45, rng), band(500, 4000, 1)) * decay(0.45, 0.08, 0.03)
    track.add(level(dust), 0.13, 0.03)
    return track.out


def move():
    rng = dice("kingMove")
    n = 2.0
    track = Track(n, circle=True)
    for k, size in enumerate((1.0, 0.92)):
        start = k * 1.0 - 0.615
        lift = glide(0.7, (0, 62), (0.25, 118), (0.5, 104), (0.7, 66)) * size
        hydraulic = filtered(saw(lift, 0.7) + 0.6 * pulse(lift * 2.01, 0.7, 0.2), band(110, 1500, 2), boost(520, 2, 8))
        track.add(level(hydraulic * swell(0.7, 0.12, 0.2)), 0.34, start)
        whine = servo(0.6, lift[: int(0.6 * RATE)] * 5.2, rng, 2200) * swell(0.6, 0.15, 0.2)
        track.add(level(whine), 0.1, start + 0.04)
        vent = moving_band(noise(0.35, rng), glide(0.35, (0, 3200), (0.35, 1300)), 1.0) * decay(0.35, 0.07, 0.02)
        track.add(level(vent), 0.14, start + 0.74)
        track.add(foot(size, rng), 1.0 - 0.08 * k, start + 0.62)
    reactor = sum(g * saw(closed(f, n), n) for f, g in ((55, 1), (55.5, 0.8), (82.5, 0.5), (110.5, 0.4)))
    track.add(level(filtered(reactor, band(60, 520, 2), circle=True)), 0.12)
    out = filtered(room(track.out, 0.6, 0.2, rng, bright=3500, early=0.02, circle=True), *SMALL, circle=True)
    finish("kingMove", out, louder=-2, ceiling=-5, circle=True, freedom=0.006)


def attack():
    """The blow lands: iron on stone, a shock that runs outwards, current that crawls over the field."""
    rng = dice("kingAttack")
    n = 0.8
    track = Track(n)
    track.add(click(0.07, 600, 9000, 0.007, rng), 0.85)
    track.add(drive(thump(0.7, 280, 44, 0.1, 0.04), 2.2), 1.0).add(thump(0.3, 520, 150, 0.035, 0.015), 0.6)
    track.add(level(metal(0.6, 190, 4200, 30, 0.07, rng)), 0.42)
    shock = moving_band(noise(0.6, rng), glide(0.6, (0, 3400), (0.12, 900), (0.6, 200)), 1.0) * decay(0.6, 0.07, 0.006)
    track.add(drive(level(shock), 2), 0.6)
    arc = (0.4 + 0.6 * sine(100, n)) * filtered(noise(n, rng), band(900, 6500, 1), boost(2300, 2, 6))
    track.add(level(arc * line(n, (0, 0), (0.08, 1), (0.25, 0.45), (0.6, 0))), 0.26)
    track.add(crackle(line(n, (0, 30), (0.1, 200), (0.4, 60), (n, 0)), rng), 0.3)
    out = drive(level(filtered(track.out, *SMALL)), 1.8)
    finish(
        "kingAttack", room(out, 0.7, 0.2, rng, bright=4500, early=0.03, tail=0.0), louder=2, ceiling=-3, fade_out=0.15
    )


def self_destruct():
    """The reactor runs away: an alarm that hurries and climbs, a whine behind it, everything shakes, then the cut."""
    rng = dice("kingSelfDestructStart")
    n = 3.5
    hurry = glide(n, (0, 2.2), (1.6, 3.6), (2.7, 8), (n, 19))
    beats = np.cumsum(hurry) / RATE
    saws = beats % 1.0
    gate = filtered(np.where(saws < 0.62, 1.0, 0.12), below(90, 1))
    pitch = glide(n, (0, 392), (1.6, 440), (2.7, 587), (n, 932)) * np.where(np.floor(beats) % 2 == 0, 1.0, 1.335)
    alarm = (
        filtered(pulse(pitch, n, 0.35) + 0.6 * saw(pitch * 1.005, n), band(300, 4200, 1), boost(1300, 1.2, 6)) * gate
    )
    rise = glide(n, (0, 70), (1.5, 140), (2.8, 520), (n, 1900))
    whine = moving_low(saw(rise, n) + saw(rise * 1.007, n) + 0.7 * saw(rise * 0.502, n), np.minimum(rise * 6, 9000))
    boil = rumble(n, rng, 60, 420) * line(n, (0, 0.06), (1.5, 0.35), (3.3, 1), (n, 1))
    steam = moving_band(noise(n, rng), glide(n, (0, 900), (2.5, 2200), (n, 5200)), 1.0) * line(
        n, (0, 0), (1.2, 0.15), (3.3, 1), (n, 1), bend=1.6
    )
    mono = Track(n)
    mono.add(level(alarm), 0.5).add(level(whine * line(n, (0, 0.05), (1.4, 0.35), (3.2, 1), (n, 1))), 0.46)
    mono.add(boil, 0.5).add(level(steam), 0.36)
    mono.add(crackle(line(n, (0, 4), (1.5, 40), (n, 400), bend=1.5), rng), 0.4)
    for at, size in ((0.0, 0.6), (0.9, 0.45), (1.7, 0.6), (2.3, 0.7), (2.75, 0.8), (3.1, 0.9)):
        mono.add(thump(0.5, 170, 52, 0.08), 0.8 * size, at)
        mono.add(level(metal(0.5, 210, 3000, 16, 0.06, rng)), 0.32 * size, at)
    out = mono.out * line(n, (0, 0.62), (1.5, 0.75), (3.2, 1), (n, 1))
    out = pressed(filtered(out, shelf(160, -4)), 0.25)
    finish(
        "kingSelfDestructStart",
        room(drive(level(out), 1.5), 0.5, 0.14, rng, tail=0.0),
        louder=1,
        ceiling=-3.5,
        fade_out=0.03,
    )


def explode():
    """The great blast: a crack without warning, a wall of fire, two more charges, a hail of armour, a long echo."""
    rng = dice("kingExplode")
    n = 3.0
    track = Track(n, stereo=True)
    for at, gain, side in ((0.0, 1.0, 0.0), (0.16, 0.6, -0.5), (0.42, 0.75, 0.5)):
        track.add(pan(click(0.12, 400, 10000, 0.01, rng), side), 0.9 * gain, at)
        track.add(drive(thump(1.6, 300, 40, 0.19, 0.06), 2.5), 0.9 * gain, at)
        track.add(pan(drive(thump(0.5, 600, 130, 0.06, 0.03), 2), side), 0.5 * gain, at)
    for side in (-0.9, 0.9):
        fire = moving_band(noise(n, rng), glide(n, (0, 2400), (0.2, 900), (0.45, 1300), (1.1, 380), (n, 140)), 0.6)
        fire = drive(
            level(fire * line(n, (0, 0), (0.006, 1), (0.3, 0.6), (0.43, 0.85), (1.2, 0.28), (n, 0), bend=0.8)), 3.2
        )
        track.add(pan(fire, side), 0.5)
        track.add(
            pan(rumble(n, rng, 45, 300) * line(n, (0, 0), (0.05, 1), (0.9, 0.7), (2.2, 0.25), (n, 0)), side), 0.34
        )
        track.add(pan(crackle(line(n, (0, 40), (0.1, 320), (1.0, 120), (n, 10)), rng, 800, 6000), side), 0.26)
    for _ in range(34):
        at = 0.35 + 2.2 * rng.uniform(0, 1) ** 1.4
        piece = level(metal(0.35, rng.uniform(350, 2200), 6500, 9, 0.045, rng))
        track.add(pan(piece, rng.uniform(-0.9, 0.9)), 0.2 * rng.uniform(0.3, 1) * (1.15 - at / 3), at)
    last = glide(1.6, (0, 300), (1.6, 34))
    track.add(filtered(saw(last, 1.6) + saw(last * 1.01, 1.6), band(120, 1600, 2)) * decay(1.6, 0.3, 0.1), 0.14, 0.5)
    out = pressed(filtered(track.out, *SMALL), 0.3)
    out = room(out, 1.8, 0.3, rng, bright=3200, early=0.05, tail=0.0)
    finish("kingExplode", out, louder=2, ceiling=-2.5, fade_out=0.6)


def say(name, text, pitch, speed):
    """A crowned machine: a slow deep voice with a low fifth sung behind each word, in a stone hall."""
    rng = dice(name)
    speech = evened(clear(spoken(text, "en-gb+m1", pitch, speed, 1.13)), 0.35)
    seconds = len(speech) / RATE
    fifth = sum(saw(f, seconds + 0.1) for f in (73.4, 73.9, 110.1, 146.6, 147.3))
    choir = vocoded(speech, breathy(fifth, rng, 0.25))
    both = level(0.8 * level(speech) + 0.5 * level(choir))
    out = filtered(both, above(90, 2), boost(2600, 0.8, 4))
    track = Track(seconds + 0.3)
    track.add(level(metal(0.3, 330, 2400, 6, 0.12, rng)) * swell(0.3, 0.02, 0.2), 0.05)
    track.add(level(out), 1.0, 0.04)
    finish(name, room(track.out, 1.1, 0.2, rng, bright=3800, early=0.03, tail=0.0), ceiling=-4, fade_out=0.2)


if __name__ == "__main__":
    move()
    attack()
    self_destruct()
    explode()
    say("kingSelected0", "Speak now", 22, 135)
    say("kingAck0", "So be it", 18, 130)

"""The game's own voice: the two beeps, three refusals, check and checkmate, spoken by the arbiter of the arena."""

from kit import (
    RATE,
    Track,
    above,
    band,
    bell_tone,
    boost,
    click,
    decay,
    dice,
    drive,
    filtered,
    finish,
    glide,
    level,
    line,
    metal,
    pulse,
    room,
    saw,
    shelf,
    sine,
    swell,
    thump,
)
from voice import breathy, clear, evened, spoken, vocoded


def note(pitch, seconds, half_life=0.06):
    """A small glass key."""
    tone = bell_tone(pitch, 3.0, 0.9 * decay(seconds, half_life * 0.5), seconds) + 0.35 * sine(2 * pitch, seconds)
    return tone * decay(seconds, half_life, 0.003)


def buzz(pitch, seconds):
    """A low electric no."""
    tone = pulse(pitch, seconds, 0.4) + pulse(pitch * 1.012, seconds, 0.4) + 0.6 * saw(pitch * 1.5, seconds)
    return filtered(tone, band(160, 2600, 2), boost(900, 1, 5)) * swell(seconds, 0.006, 0.02)


def arbiter(text, pitch, speed, size, chord, rng):
    """A calm announcer with a chord inside the voice."""
    speech = evened(clear(spoken(text, "en-us+m6", pitch, speed, size)), 0.35)
    seconds = len(speech) / RATE
    carrier = sum(saw(f, seconds + 0.1, rng.uniform()) for f in chord)
    inner = vocoded(speech, breathy(carrier, rng, 0.3))
    return filtered(0.8 * level(speech) + 0.45 * level(inner), above(110, 2), boost(2600, 0.8, 5))


def beeps():
    """beep3 opens upwards (a figure taken in hand), beep1 closes downwards (a target set)."""
    for name, first, second in (("beep3", 659.3, 987.8), ("beep1", 880.0, 587.3)):
        rng = dice(name)
        track = Track(0.24)
        track.add(note(first, 0.12, 0.03), 0.8).add(note(second, 0.16, 0.04), 1.0, 0.065)
        track.add(click(0.01, 2500, 9000, 0.0015, rng), 0.1)
        finish(name, room(track.out, 0.2, 0.1, rng, bright=7000, tail=0.06), louder=-2, ceiling=-5, fade_out=0.06)


def refusals():
    """One buzz twice and "negative"; three tones that sink and "illegal move"; a latch that shuts and "denied"."""
    rng = dice("error0")
    word = arbiter("Negative", 40, 180, 1.0, (110, 155.6), rng)
    track = Track(0.26 + len(word) / RATE + 0.05)
    track.add(level(buzz(116.5, 0.09)), 0.5).add(level(buzz(116.5, 0.09)), 0.5, 0.12)
    track.add(level(word), 1.0, 0.25)
    finish("error0", room(track.out, 0.35, 0.1, rng, tail=0.05), ceiling=-4, fade_out=0.06)

    rng = dice("error1")
    word = arbiter("Illegal move", 46, 190, 0.95, (146.8, 174.6, 207.7), rng)
    track = Track(0.3 + len(word) / RATE + 0.05)
    for k, pitch in enumerate((622.3, 493.9, 415.3)):
        track.add(level(note(pitch, 0.2, 0.04)), 0.5, 0.085 * k)
    track.add(level(word), 1.0, 0.28)
    finish("error1", room(track.out, 0.35, 0.1, rng, tail=0.05), ceiling=-4, fade_out=0.06)

    rng = dice("error2")
    word = arbiter("Denied", 30, 150, 1.1, (82.4, 123.5), rng)
    track = Track(0.14 + len(word) / RATE + 0.08)
    track.add(level(metal(0.35, 280, 3200, 16, 0.05, rng)), 0.5).add(thump(0.3, 220, 75, 0.05), 0.8)
    track.add(click(0.05, 900, 6000, 0.006, rng), 0.5)
    track.add(level(word), 1.0, 0.14)
    finish("error2", room(track.out, 0.4, 0.12, rng, tail=0.05), ceiling=-4, fade_out=0.06)


def check():
    """Once as a cool warning over two rising tones, once as a dark one over a drum and a tritone."""
    rng = dice("check0")
    word = arbiter("Check", 52, 135, 0.96, (196, 293.7, 392), rng)
    track = Track(1.1)
    track.add(level(note(587.3, 0.5, 0.09)), 0.36).add(level(note(880, 0.8, 0.14)), 0.36, 0.13)
    track.add(level(word), 1.0, 0.22)
    finish("check0", room(track.out, 0.9, 0.16, rng, bright=6000, tail=0.0), ceiling=-4, fade_out=0.15)

    rng = dice("check1")
    word = arbiter("Check", 24, 115, 1.1, (73.4, 103.8, 146.8), rng)
    track = Track(1.25)
    track.add(drive(thump(0.8, 190, 62, 0.09), 1.8), 0.42)
    low = sum(saw(f, 1.2, rng.uniform()) for f in (146.8, 147.5, 207.7, 208.4))
    track.add(level(filtered(low, band(120, 1200, 1)) * decay(1.2, 0.2, 0.02)), 0.17)
    track.add(level(word), 1.0, 0.2)
    out = filtered(track.out, shelf(150, -4))
    finish("check1", room(out, 1.0, 0.12, rng, bright=3500, tail=0.0), ceiling=-4, fade_out=0.15)


def mate():
    """The word, and under it a fall from the fifth to the ground that rings out like a gate."""
    rng = dice("checkMate0")
    n = 2.0
    word = arbiter("Checkmate", 30, 125, 1.04, (73.4, 110, 146.8, 174.6), rng)
    track = Track(n)
    track.add(drive(thump(1.2, 240, 58, 0.13, 0.05), 2), 0.45)
    track.add(level(metal(1.4, 146.8, 2400, 18, 0.22, rng)), 0.16)
    fall = glide(n, (0, 110), (0.5, 110), (0.75, 73.4), (n, 73.4))
    deep = sum(saw(fall * r, n, rng.uniform()) for r in (1, 1.004, 1.5, 2.003, 2.4))
    track.add(level(filtered(deep, band(110, 1400, 1)) * line(n, (0, 0), (0.04, 1), (0.9, 0.8), (n, 0))), 0.17)
    track.add(level(word), 1.0, 0.22)
    track.add(drive(thump(0.9, 200, 58, 0.12), 1.8), 0.45, 0.95)
    track.add(level(metal(0.9, 110, 1800, 14, 0.15, rng)), 0.22, 0.95)
    out = filtered(track.out, shelf(150, -5))
    finish(
        "checkMate0",
        room(out, 1.4, 0.14, rng, bright=3800, early=0.03, tail=0.0),
        louder=1,
        ceiling=-3.5,
        fade_out=0.35,
    )


if __name__ == "__main__":
    beeps()
    refusals()
    check()
    mate()

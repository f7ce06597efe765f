"""The bishop: tall and brisk on long servo legs, gatlings at the shoulders, a whisper with an edge of steel."""

from kit import (
    RATE,
    Track,
    above,
    band,
    bell_tone,
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
    wobble,
)
from voice import breathy, clear, evened, ring, spoken, vocoded

STEPS = 6  # in a loop of 2.5 seconds, as the legs go


def foot(size, rng):
    """A narrow metal hoof: toe and heel."""
    track = Track(0.2)
    for at, gain in ((0.0, 1.0), (0.045, 0.55)):
        track.add(click(0.025, 2200, 9000, 0.0025, rng), 0.5 * gain, at)
        track.add(level(metal(0.15, 760 * size, 5200, 12, 0.02, rng)), 0.4 * gain, at)
        track.add(thump(0.12, 300 * size, 140 * size, 0.016), 0.7 * gain, at)
    return track.out


def move():
    rng = dice("bishopMove")
    n = 2.5
    track = Track(n, circle=True)
    for k in range(STEPS):
        side = 1.0 if k % 2 == 0 else 0.9
        start = k * n / STEPS - 0.255
        swing = 0.33
        pitch = glide(
            swing, (0, 300 * side), (0.12, 760 * side), (0.22, 690 * side), (swing, 330 * side)
        ) * rng.uniform(0.98, 1.02)
        track.add(level(servo(swing, pitch, rng, 3800) * swell(swing, 0.06, 0.1)), 0.3, start)
        knee = glide(0.12, (0, 1250 * side), (0.12, 620 * side))
        track.add(level(servo(0.12, knee, rng, 5000) * swell(0.12, 0.02, 0.05)), 0.1, start + 0.02)
        track.add(foot(1 / side, rng), rng.uniform(0.9, 1.0), start + 0.26)
        air = moving_band(noise(0.2, rng), glide(0.2, (0, 900), (0.2, 2600)), 2) * swell(0.2, 0.1, 0.1)
        track.add(level(air), 0.08, start + 0.06)
    hum = sum(saw(round(f * n) / n, n) for f in (98.0, 147.2, 196.8))
    track.add(level(filtered(hum, band(90, 700, 2), circle=True)), 0.06)
    finish(
        "bishopMove", room(track.out, 0.3, 0.15, rng, circle=True), louder=-3, ceiling=-5, circle=True, freedom=0.006
    )


def shot():
    """One round of the gatling: a dry crack with a hard middle, over before the next one comes."""
    rng = dice("pawnshot")
    n = 0.15
    t = clock(n)
    fall = 240 + 1900 * 0.5 ** (t / 0.009)
    body = bell_tone(fall, 2.01, 1.6 * 0.5 ** (t / 0.02), n) * decay(n, 0.022, 0.0006)
    spit = moving_band(noise(n, rng), glide(n, (0, 4800), (0.05, 2000), (n, 900)), 1.2, window=256) * decay(
        n, 0.018, 0.0006
    )
    track = Track(n)
    track.add(click(0.02, 1500, 10000, 0.0018, rng), 0.8)
    track.add(thump(n, 420, 120, 0.02, 0.01), 0.9).add(level(body), 0.7).add(level(spit), 0.75)
    track.add(level(metal(0.1, 1100, 6000, 8, 0.012, rng)), 0.2, 0.05).add(
        click(0.02, 2500, 8000, 0.002, rng), 0.15, 0.075
    )
    out = room(drive(level(track.out), 2.2), 0.2, 0.12, rng, bright=6000, tail=0.0)
    finish("pawnshot", out, louder=1, ceiling=-2.5, fade_out=0.03)


def death():
    """Topples: a joint locks, the tall frame tips with a groan, falls through the air, hits; a barrel spins out."""
    rng = dice("bishopDeath")
    n = 1.9
    track = Track(n)
    track.add(level(metal(0.3, 700, 6000, 14, 0.04, rng)), 0.5).add(click(0.04, 1500, 8000, 0.004, rng), 0.5)
    groan = glide(0.75, (0, 210), (0.3, 170), (0.75, 265)) * (1 + 0.03 * sine(11, 0.75))
    creak = filtered(pulse(groan, 0.75, 0.12), band(300, 4200, 2), boost(1100, 3, 10), boost(2300, 4, 8))
    track.add(level(creak * swell(0.75, 0.15, 0.2) * (0.6 + 0.4 * sine(23, 0.75))), 0.4, 0.08)
    track.add(crackle(line(0.8, (0, 60), (0.8, 25)), rng), 0.3, 0.02)
    fall = moving_band(noise(0.42, rng), glide(0.42, (0, 300), (0.42, 1500)), 1.5) * line(
        0.42, (0, 0), (0.4, 1), (0.42, 0.2), bend=2
    )
    track.add(level(fall), 0.45, 0.52)
    for at, gain in ((0.92, 1.0), (1.08, 0.45), (1.17, 0.22)):
        track.add(thump(0.35, 230, 75, 0.05), 0.95 * gain, at)
        track.add(level(metal(0.6, 360, 5500, 26, 0.08, rng)), 0.6 * gain, at)
        track.add(click(0.08, 700, 7000, 0.012, rng), 0.6 * gain, at)
    at, gap, k = 1.2, 0.035, 0
    while at < 1.8:
        track.add(click(0.02, 1800, 7000, 0.003, rng), 0.22 * 0.9**k, at)
        track.add(level(metal(0.05, 900, 5000, 6, 0.01, rng)), 0.12 * 0.9**k, at)
        at, gap, k = at + gap, gap * 1.13, k + 1
    finish("bishopDeath", room(level(track.out), 0.5, 0.18, rng, tail=0.0), ceiling=-4, fade_out=0.12)


def say(name, text, pitch, speed):
    """Whisper and blade: breath speaks the words, two thin tones and a ring give them an edge, doubled left behind."""
    rng = dice(name)
    speech = evened(clear(spoken(text, "en-gb+m5", pitch, speed, 1.02)), 0.4)
    seconds = len(speech) / RATE
    breath = vocoded(speech, filtered(noise(seconds + 0.1, rng), band(300, 9000, 1)))
    blade = vocoded(speech, breathy(pulse(131, seconds + 0.1, 0.15) + pulse(196.5, seconds + 0.1, 0.15), rng, 0.4))
    both = 0.75 * ring(speech, 131, 0.28) + 0.32 * breath + 0.36 * blade
    double = wobble(both, 14, 1.7, 0.35)
    out = filtered(level(both) + 0.22 * level(double), above(200, 2), boost(3000, 1, 5))
    track = Track(seconds + 0.16)
    blade_in = level(metal(0.16, 2300, 7000, 6, 0.05, rng)) * swell(0.16, 0.03, 0.1)
    track.add(blade_in, 0.07).add(level(out), 1.0, 0.05)
    finish(name, room(track.out, 0.45, 0.1, rng, bright=7000, tail=0.1), ceiling=-4, fade_out=0.1)


if __name__ == "__main__":
    move()
    shot()
    death()
    say("bishopSelected0", "Listening", 38, 145)
    say("bishopSelected1", "Guide me", 34, 140)
    say("bishopAck0", "As foretold", 32, 165)

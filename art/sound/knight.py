"""The knight: a horse-headed gunship on jets; its pilot speaks over the noise of the turbines."""

from kit import (
    RATE,
    Track,
    above,
    band,
    bell_tone,
    below,
    boost,
    circling,
    click,
    clock,
    closed,
    crackle,
    crush,
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
    pressed,
    pulse,
    room,
    rumble,
    saw,
    shelf,
    sine,
    swell,
    thump,
)
from voice import breathy, clear, evened, radio, spoken, vocoded


def hover():
    """The jets in the air: a broad roar that flutters, turbine whine above, a low flame below."""
    rng = dice("knightMoveShort")
    n = 1.3
    roar = filtered(noise(n, rng), band(140, 1500, 1), boost(520, 1.2, 6), circle=True)
    flutter = 1 + 0.25 * sine(closed(11.5, n), n) + 0.15 * sine(closed(17, n), n, 0.3)
    hiss = filtered(noise(n, rng), band(2200, 8000, 1), circle=True) * (1 + 0.25 * circling(n, rng, 0.15))
    flame = filtered(noise(n, rng), band(55, 200, 2), circle=True)
    blades = closed(870, n)
    whine = sum(
        g * sine(closed(blades * r, n), n) for r, g in ((1, 1), (1.006, 0.8), (2.02, 0.4), (3.03, 0.2), (0.5, 0.35))
    )
    whine = whine * (1 + 0.2 * sine(closed(5.4, n), n, 0.2))
    out = 0.75 * level(roar * flutter) + 0.16 * level(hiss) + 0.4 * level(flame * flutter) + 0.2 * level(whine)
    finish("knightMoveShort", room(out, 0.3, 0.12, rng, circle=True), louder=-3, ceiling=-6, circle=True)


def start_end():
    """Jets open or close: bolts spring, flaps turn on a servo, gas blows through, latches catch."""
    rng = dice("knightStartEnd")
    n = 1.0
    track = Track(n)
    for at, gain in ((0.0, 0.8), (0.07, 0.5), (0.62, 0.9), (0.69, 0.45)):
        track.add(level(metal(0.3, 420, 4200, 14, 0.035, rng)), 0.45 * gain, at)
        track.add(click(0.03, 1200, 7000, 0.004, rng), 0.5 * gain, at)
        track.add(thump(0.15, 210, 95, 0.025), 0.7 * gain, at)
    turn = glide(0.55, (0, 240), (0.2, 620), (0.4, 560), (0.55, 300))
    flaps = filtered(pulse(turn, 0.55, 0.25) + 0.5 * saw(turn * 3.02, 0.55), band(400, 3500, 2)) * swell(
        0.55, 0.08, 0.12
    )
    track.add(level(flaps), 0.26, 0.08)
    gas = moving_band(noise(0.85, rng), glide(0.85, (0, 700), (0.3, 3000), (0.85, 900)), 1.0) * line(
        0.85, (0, 0), (0.12, 0.8), (0.3, 1), (0.85, 0), bend=0.8
    )
    track.add(level(gas), 0.5, 0.1)
    low = filtered(noise(0.9, rng), band(80, 320, 2)) * swell(0.9, 0.25, 0.55)
    track.add(level(low), 0.4, 0.05)
    finish("knightStartEnd", room(level(track.out), 0.4, 0.15, rng, tail=0.0), louder=-1, ceiling=-4, fade_out=0.1)


def attack():
    """A stream of white fire, straight down: the valve bursts open, pulses race down, the field hisses."""
    rng = dice("knightAttack")
    n = 1.0
    t = clock(n)
    strength = line(n, (0, 0), (0.012, 1), (0.5, 0.85), (0.62, 0.35), (n, 0), bend=0.9)
    beat = 24.0
    saws = 1 - (t * beat) % 1
    dive = 260 + 1500 * saws**2
    racing = filtered(bell_tone(dive, 0.5, 1.5, n), band(200, 5000, 2)) * (0.3 + 0.7 * saws) * strength
    stream = (
        moving_band(noise(n, rng), glide(n, (0, 1100), (0.06, 2600), (0.5, 1700), (n, 700)), 0.9)
        * strength
        * (0.6 + 0.4 * saws)
    )
    growl = drive(level(filtered(saw(73, n) + saw(73.9, n) + saw(110.2, n), band(110, 1300, 2)) * strength), 3)
    sizzle = filtered(noise(n, rng), above(4000, 2)) * line(n, (0, 0), (0.15, 0.6), (0.5, 1), (n, 0))
    track = Track(n)
    track.add(click(0.05, 700, 8000, 0.006, rng), 0.8).add(thump(0.4, 260, 62, 0.07), 1.0)
    track.add(level(racing), 0.5).add(level(stream), 0.7).add(growl, 0.36).add(level(sizzle), 0.22)
    finish(
        "knightAttack",
        room(drive(level(track.out), 1.4), 0.5, 0.18, rng, tail=0.0),
        louder=1,
        ceiling=-3,
        fade_out=0.15,
    )


def explosion():
    """A machine bursts: crack, fireball, a second charge inside it, splinters that rain down."""
    rng = dice("explosionSmall")
    n = 1.8
    track = Track(n)
    for at, gain in ((0.0, 1.0), (0.11, 0.55)):
        track.add(click(0.08, 500, 9000, 0.008, rng), 0.85 * gain, at)
        track.add(drive(thump(0.9, 260, 48, 0.11, 0.05), 2), 0.95 * gain, at)
    ball = moving_band(noise(n, rng), glide(n, (0, 1900), (0.15, 700), (0.6, 340), (n, 160)), 0.7) * decay(
        n, 0.27, 0.003
    )
    track.add(drive(level(ball), 3.5), 0.8)
    track.add(rumble(n, rng, 50, 350) * line(n, (0, 0), (0.06, 1), (0.7, 0.6), (n, 0)), 0.6)
    for _ in range(16):
        at = 0.3 + 1.2 * rng.uniform(0, 1) ** 1.3
        low = rng.uniform(700, 2400)
        track.add(level(metal(0.2, low, 7000, 7, 0.03, rng)), 0.34 * (1.8 - at) * rng.uniform(0.3, 1), at)
    track.add(crackle(line(n, (0, 0), (0.1, 260), (0.6, 140), (n, 10)), rng, 900, 6000), 0.5)
    out = pressed(filtered(track.out, shelf(150, -4), boost(800, 0.6, 4)), 0.25)
    finish(
        "explosionSmall",
        room(level(out), 0.9, 0.22, rng, bright=3500, early=0.03, tail=0.0),
        louder=2,
        ceiling=-2.5,
        fade_out=0.3,
    )


def say(name, text, pitch, speed):
    """A pilot in the cockpit: turbines behind, a coarse digital link, a beep when it closes."""
    rng = dice(name)
    speech = evened(clear(spoken(text, "en-gb+f5", pitch, speed, 1.03)), 0.3)
    seconds = len(speech) / RATE
    drone = pulse(233, seconds + 0.1, 0.3)
    machine = vocoded(speech, breathy(drone, rng, 0.3))
    link = level(filtered(crush(level(0.9 * level(speech) + 0.3 * level(machine)), 7, 3), below(6500, 2)))
    out = level(radio(link, 1.6)) + 0.4 * link
    total = seconds + 0.2
    track = Track(total)
    noise_floor = filtered(noise(total, rng), band(500, 3200, 1), boost(1240, 8, 12)) * swell(total, 0.03, 0.05)
    track.add(level(noise_floor), 0.07)
    track.add(click(0.03, 1200, 6000, 0.004, rng), 0.3).add(level(out), 1.0, 0.06)
    beep = (sine(1046.5, 0.07) + 0.4 * sine(1568, 0.07)) * swell(0.07, 0.004, 0.02)
    track.add(level(beep), 0.22, seconds + 0.1)
    finish(name, room(track.out, 0.15, 0.06, rng, tail=0.01), ceiling=-4, fade_out=0.012)


if __name__ == "__main__":
    hover()
    start_end()
    attack()
    explosion()
    say("knightSelected0", "Knight here", 40, 165)
    say("knightSelected1", "Engines hot", 45, 165)
    say("knightAck0", "Taking off", 44, 170)

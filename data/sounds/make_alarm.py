#!/usr/bin/python3
"""Writes the reminder's alarm: three soft bell strokes, rising, that ring out into silence.

    make_alarm.py OUT.wav

44.1 kHz, 16 bits, one channel. The loudest sample stands at -3 dBFS and the end fades to zero, so that
the sound can be repeated every few seconds without a click. Standard library only; the same bytes every time.
"""
import array
import math
import sys
import wave

RATE = 44100
LENGTH = 2.2
FADE = 0.25
ATTACK = 0.004
PEAK = 10 ** (-3 / 20)

# When a stroke begins, its note in hertz, its strength. A fourth up, then a third: D, G, B.
STROKES = ((0.0, 587.33, 0.80), (0.22, 783.99, 0.88), (0.44, 987.77, 1.0))

# A bell's partials: multiple of the note, strength, seconds until it has fallen to a third.
# The two that stand close together beat slowly, which keeps the tone alive.
PARTIALS = (
    (0.5, 0.18, 0.70),
    (1.0, 1.00, 0.55),
    (1.003, 0.35, 0.60),
    (2.0, 0.42, 0.34),
    (2.76, 0.16, 0.20),
    (4.07, 0.10, 0.11),
    (5.43, 0.05, 0.06),
)


def stroke_at(time, note, strength):
    """One stroke's loudness `time` seconds after it was struck."""
    if time < 0:
        return 0.0
    rise = 0.5 - 0.5 * math.cos(math.pi * min(time / ATTACK, 1.0))
    tone = sum(level * math.exp(-time / decay) * math.sin(2 * math.pi * note * multiple * time)
               for multiple, level, decay in PARTIALS)
    return strength * rise * tone


def ending(time):
    """1 for most of the sound, then an even slope down to nothing."""
    rest = min(max((LENGTH - time) / FADE, 0.0), 1.0)
    return 0.5 - 0.5 * math.cos(math.pi * rest)


def samples():
    count = int(RATE * LENGTH)
    times = [i / RATE for i in range(count)]
    tones = [ending(t) * sum(stroke_at(t - start, note, strength) for start, note, strength in STROKES) for t in times]
    tones[-1] = 0.0
    gain = PEAK / max(abs(t) for t in tones)
    return array.array("h", [round(t * gain * 32767) for t in tones])


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__)
    data = samples()
    if sys.byteorder == "big":
        data.byteswap()
    with wave.open(arguments[0], "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(data.tobytes())


if __name__ == "__main__":
    main(sys.argv[1:])

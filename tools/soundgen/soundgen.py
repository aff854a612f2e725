#!/usr/bin/env python3
"""Writes every sound of the game as assets/sounds/<name>.wav, synthesized from nothing.

Run from anywhere: python3 tools/soundgen/soundgen.py [output folder]. With --check FOLDER it
writes nothing and fails if the files there are not what it would write. The output is
deterministic (seeded noise), so the WAVs kept in the repository change only when a sound does.

Mono, 16-bit, 22050 Hz. Clicks are damped wooden modes struck by a burst of filtered noise;
chimes are bells of inharmonic partials; the round's phrases are plucked strings of decaying
harmonics. Every partial is a damped oscillator run by its two-term recurrence, so no sine is
evaluated per sample."""

import io
import math
import os
import random
import struct
import sys
import wave

RATE = 22050


def damped(buf, start, freq, amp, tau, phase=0.0, rise=0):
    """Adds amp * exp(-t/tau) * sin(2 pi freq t + phase) from sample start until it fades, its
    first rise samples swelling from nothing."""
    if freq <= 0 or freq >= RATE / 2:
        return
    w = 2 * math.pi * freq / RATE
    r = math.exp(-1.0 / (tau * RATE))
    k1, k2 = 2 * r * math.cos(w), r * r
    y2, y1 = amp * math.sin(phase - w) / r, amp * math.sin(phase)
    end = min(len(buf), start + int(tau * RATE * math.log(max(amp, 1e-9) / 1e-5)) + 1)
    for i in range(start, min(end, start + rise)):
        buf[i] += y1 * (i - start) / rise
        y1, y2 = k1 * y1 - k2 * y2, y1
    for i in range(min(end, start + rise), end):
        buf[i] += y1
        y1, y2 = k1 * y1 - k2 * y2, y1


def noise_burst(buf, start, amp, tau, cutoff, rng, highpass=0.0):
    """Adds white noise through a one-pole low-pass (and, if given, high-pass), decaying by tau."""
    a = 1 - math.exp(-2 * math.pi * cutoff / RATE)
    h = math.exp(-2 * math.pi * highpass / RATE) if highpass else 0.0
    low = high = last = 0.0
    env, fall = amp, math.exp(-1.0 / (tau * RATE))
    for i in range(start, min(len(buf), start + int(tau * RATE * 9))):
        low += a * (rng.uniform(-1, 1) - low)
        high = h * (high + low - last) if highpass else low
        last = low
        buf[i] += env * high
        env *= fall


def swish(buf, start, length, amp, low_cut, high_cut, rng):
    """A band of noise under a raised cosine: a card sliding off the deck."""
    a = 1 - math.exp(-2 * math.pi * high_cut / RATE)
    h = math.exp(-2 * math.pi * low_cut / RATE)
    low = high = last = 0.0
    n = int(length * RATE)
    for j in range(n):
        low += a * (rng.uniform(-1, 1) - low)
        high = h * (high + low - last)
        last = low
        if start + j < len(buf):
            buf[start + j] += amp * 0.5 * (1 - math.cos(2 * math.pi * j / n)) * high


def knock(buf, start, modes, transient, rng):
    """A strike on wood: each mode (Hz, amplitude, decay s) rings, a noise burst is the contact."""
    amp, tau, cutoff = transient
    noise_burst(buf, start, amp, tau, cutoff, rng)
    for freq, a, decay in modes:
        damped(buf, start, freq, a, decay, rng.uniform(0, math.pi))


BELL = ((1.0, 1.0, 1.0), (2.76, 0.45, 0.45), (5.40, 0.22, 0.25), (8.93, 0.10, 0.15))
WOOD_BAR = ((1.0, 1.0, 1.0), (3.93, 0.25, 0.3), (9.2, 0.06, 0.12))


def strike(buf, start, freq, amp, ring, partials):
    """A struck bar or bell: partials of (ratio, amplitude, share of the ring)."""
    # A soft mallet: the first two milliseconds swell instead of starting at full swing.
    for ratio, a, share in partials:
        damped(buf, start, freq * ratio, amp * a, ring * share, rise=at(0.002))


def pluck(buf, start, freq, amp, ring, rng):
    """A plucked silk string: harmonics that fall off and die faster the higher they are."""
    for k in range(1, 8):
        damped(buf, start, freq * k * (1 + 0.0008 * k * k), amp / k ** 1.3, ring / k ** 0.8, 0.0)
    noise_burst(buf, start, amp * 0.25, 0.004, 4000, rng)


def note(name):
    """Hz of a note name such as "D5" or "F#6" (A4 = 440)."""
    steps = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}[name[0]]
    steps += name.count("#") - name.count("b")
    return 440.0 * 2 ** ((steps + 12 * (int(name[-1]) - 4)) / 12)


def buffer(seconds):
    return [0.0] * int(seconds * RATE)


def at(seconds):
    return int(seconds * RATE)


def lay(rng):
    buf = buffer(0.16)
    swish(buf, 0, 0.035, 0.05, 1800, 6000, rng)
    knock(buf, at(0.03), ((185, 0.55, 0.028), (410, 0.35, 0.018), (1130, 0.22, 0.008), (2550, 0.12, 0.004)),
          (0.45, 0.0025, 2800), rng)
    return buf, 0.36


def capture(rng):
    buf = buffer(0.2)
    for offset, scale in ((0.0, 1.0), (0.032, 0.45)):
        knock(buf, at(offset), ((255, 0.5 * scale, 0.032), (640, 0.45 * scale, 0.02), (1490, 0.35 * scale, 0.01),
                                (3150, 0.2 * scale, 0.005)), (0.8 * scale, 0.004, 6000), rng)
    return buf, 0.56


def flip(rng):
    buf = buffer(0.2)
    swish(buf, 0, 0.095, 0.4, 1500, 6500, rng)
    knock(buf, at(0.1), ((880, 0.3, 0.012), (2100, 0.18, 0.006)), (0.3, 0.002, 5000), rng)
    return buf, 0.34


def chat(rng):
    buf = buffer(0.7)
    strike(buf, 0, note("A5"), 0.8, 0.22, BELL)
    strike(buf, at(0.12), note("E6"), 0.7, 0.25, BELL)
    return buf, 0.32


RISING = ["D6", "E6", "F#6", "A6", "B6", "D7"]
FALLING = ["A5", "G5", "E5", "D5", "C5"]


def yaku_chime(count, own, rng):
    """A yaku completed: bright bells rising for the player's, low wooden bars falling for the
    opponent's; one note more for each yaku held."""
    step, ring = (0.085, 0.32) if own else (0.1, 0.25)
    buf = buffer(step * count + (0.75 if own else 0.6))
    names = RISING if own else FALLING
    for i in range(count + 1):
        if own:
            strike(buf, at(step * i), note(names[i]), 0.8, ring, BELL)
        else:
            strike(buf, at(step * i), note(names[i]), 0.8, ring, WOOD_BAR)
    return buf, 0.4 if own else 0.34


WON = [["D5", "F#5", "A5"], ["D5", "E5", "F#5", "A5"], ["D5", "E5", "F#5", "A5", "B5"]]
LOST = [["A4", "G4", "E4"], ["A4", "G4", "E4", "D4"], ["A4", "G4", "E4", "D4", "C4"]]


def round_won(level, rng):
    """The round won by a little, by more, by far: a longer rise and a fuller bell to close."""
    names = WON[level - 1]
    step = 0.12
    close = step * len(names)
    buf = buffer(close + 1.0)
    for i, name in enumerate(names):
        pluck(buf, at(step * i), note(name), 0.7, 0.32, rng)
    for name in ["D6", "A6", "F#6"][:level]:
        strike(buf, at(close), note(name), 0.5, 0.45, BELL)
    return buf, 0.48


def round_lost(level, rng):
    """The round lost: a falling phrase, slower and lower the wider the margin."""
    names = LOST[level - 1]
    step = 0.14 + 0.02 * level
    buf = buffer(step * len(names) + 0.8)
    for i, name in enumerate(names):
        pluck(buf, at(step * i), note(name), 0.7, 0.38, rng)
    if level == 3:
        knock(buf, at(step * len(names)), ((98, 0.5, 0.09), (220, 0.2, 0.05)), (0.15, 0.004, 900), rng)
    return buf, 0.44


def tie(rng):
    """The round tied: one fourth struck twice, ending where it began."""
    buf = buffer(1.05)
    for t in (0.0, 0.22):
        pluck(buf, at(t), note("E5"), 0.6, 0.32, rng)
        pluck(buf, at(t + 0.01), note("A5"), 0.5, 0.32, rng)
    return buf, 0.44


def sounds():
    """Every (file name, samples, peak) of the game; each sound has noise of its own seed."""
    made = [("lay.wav", lay), ("capture.wav", capture), ("flip.wav", flip), ("chat.wav", chat)]
    for n in range(1, 5):
        made.append((f"pyaku{n}.wav", lambda rng, n=n: yaku_chime(n, True, rng)))
        made.append((f"cyaku{n}.wav", lambda rng, n=n: yaku_chime(n, False, rng)))
    for n in range(1, 4):
        made.append((f"pwin{n}.wav", lambda rng, n=n: round_won(n, rng)))
        made.append((f"cwin{n}.wav", lambda rng, n=n: round_lost(n, rng)))
    made.append(("Tie.wav", tie))
    for seed, (name, make) in enumerate(made):
        buf, peak = make(random.Random(seed))
        yield name, buf, peak


def wav_bytes(buf, peak):
    """The samples scaled to the given peak, the last third faded out, as a WAV file. The peaks
    stay below half of full scale but for a capture's knock, so that a capture, the card turned
    with it and a yaku's chime can sound together without clipping."""
    top = max(abs(s) for s in buf) or 1.0
    fade = len(buf) // 3
    frames = bytearray()
    for i, s in enumerate(buf):
        left = len(buf) - i
        gain = peak / top * (1.0 if left >= fade else 0.5 - 0.5 * math.cos(math.pi * left / fade))
        frames += struct.pack("<h", max(-32767, min(32767, round(s * gain * 32767))))
    out = io.BytesIO()
    with wave.open(out, "wb") as w:
        w.setnchannels(1)
        w.setsampwidth(2)
        w.setframerate(RATE)
        w.writeframes(bytes(frames))
    return out.getvalue()


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    args = sys.argv[1:]
    check = args[:1] == ["--check"]
    if check:
        args = args[1:]
    out = args[0] if args else os.path.join(here, "..", "..", "assets", "sounds")
    differ = []
    count = 0
    if not check:
        os.makedirs(out, exist_ok=True)
    for name, buf, peak in sounds():
        data = wav_bytes(buf, peak)
        path = os.path.join(out, name)
        count += 1
        if not check:
            with open(path, "wb") as f:
                f.write(data)
            continue
        try:
            with open(path, "rb") as f:
                kept = f.read()
        except OSError:
            kept = None
        if kept != data:
            differ.append(name)
    if check:
        if differ:
            print("not as the script writes them: " + ", ".join(differ), file=sys.stderr)
            sys.exit(1)
        print(f"{count} sounds in {os.path.normpath(out)} are as the script writes them")
    else:
        print(f"wrote {count} sounds to {os.path.normpath(out)}")


if __name__ == "__main__":
    main()

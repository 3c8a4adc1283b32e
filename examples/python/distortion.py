"""Tone and distortion of an amplifier: a sine through a gently bent characteristic, measured, beside what the bend
makes by the addition theorems."""

import math

import quorvan as qv

RATE, FREQUENCY, AMPLITUDE, SECOND, THIRD = 48000, 997, 0.8, 0.02, 0.01

x, _ = qv.sine_wave(48000, AMPLITUDE, FREQUENCY / RATE)
x += SECOND * x**2 + THIRD * x**3
tone = qv.tone_harmonics(x, harmonics=5, fs=RATE, fundamental=FREQUENCY)

# sin² gives half a cosine at twice the frequency, sin³ a quarter of a sine at three times and three at the first.
truth = [AMPLITUDE + 0.75 * THIRD * AMPLITUDE**3, 0.5 * SECOND * AMPLITUDE**2, 0.25 * THIRD * AMPLITUDE**3]
print("harmonic   frequency   amplitude       truth")
for k, (freq, amp, wanted) in enumerate(zip(tone.freq, tone.amp, truth), 1):
    print(f"{k:8d} {freq:11.3f} {amp:11.8f} {wanted:11.8f}")
print(f"distortion {tone.thd:.6f} %, truth {100 * math.hypot(*truth[1:]) / truth[0]:.6f} %")
print(f"distortion and noise {tone.thd_plus_noise:.6f} %")

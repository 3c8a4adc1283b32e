"""The strongest line of a recording: one sample a line, so many samples a second.

    python3 spectrum.py recording.csv 360
"""

import sys

import numpy as np
import quorvan as qv


def read(name):
    """The numbers of a text file, one a line; lines that are no numbers are left out."""
    samples = []
    with open(name) as file:
        for line in file:
            try:
                samples.append(float(line.split(",")[0]))
            except ValueError:
                continue
    return np.array(samples)


def main(name, rate):
    x = read(name)
    x -= qv.mean(x)
    x, window = qv.window_apply_scaled_plain(x, "hanning", out=x)
    power, df = qv.power_spectrum(x, 1 / float(rate))
    # The largest bin, and the bins that Hanning's main lobe covers.
    frequency, peak = qv.peak_power_frequency(power, df=df, window=window, span=5)
    print(f"{len(x)} samples, strongest line at {frequency:.4f} Hz, power {peak:.6g}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: spectrum.py FILE RATE")
    try:
        main(*sys.argv[1:])
    except (OSError, qv.QuorvanError) as error:
        sys.exit(str(error))

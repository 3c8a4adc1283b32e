"""A lowpass over a stream: text numbers in, text numbers out, in blocks of 64.

The filter keeps its state between the blocks, so that the cuts do not show.

    python3 streaming_filter.py 1000 20 < samples > smooth        # rate and cutoff in Hz
"""

import itertools
import sys

import quorvan as qv


def main(rate, cutoff):
    samples = (float(word) for line in sys.stdin for word in line.split())
    with qv.IirFilter("lowpass", 4).butterworth(float(rate), float(cutoff)) as lowpass:
        while block := list(itertools.islice(samples, 64)):
            print(*lowpass.apply(block).tolist(), sep="\n")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: streaming_filter.py RATE CUTOFF")
    try:
        main(*sys.argv[1:])
    except qv.QuorvanError as error:
        sys.exit(str(error))

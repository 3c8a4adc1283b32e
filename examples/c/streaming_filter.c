/* A lowpass over a stream: text numbers in, text numbers out, in blocks of 64. The filter keeps its state between the
 * blocks, so that the cuts do not show.
 *
 *     streaming_filter 1000 20 < samples > smooth        # rate and cutoff in Hz
 */
#include <quorvan/quorvan.h>
#include <stdio.h>
#include <stdlib.h>

#define LOWPASS 0
#define BLOCK 64

int main(int argc, char** argv) {
    if (argc != 3) return fprintf(stderr, "usage: streaming_filter RATE CUTOFF\n"), 2;
    QvIirFilter* filter = QvIirFilterCreate(LOWPASS, 4);
    if (!filter) return fprintf(stderr, "no filter\n"), 1;
    QvStatus status = QvIirDesignButterworth(atof(argv[1]), atof(argv[2]), 0, filter);
    while (status >= 0) {
        double block[BLOCK];
        int64_t n = 0;
        while (n < BLOCK && scanf("%lf", &block[n]) == 1) ++n;
        if (n == 0) break;
        status = QvIirCascadeApply(block, n, filter, block);
        for (int64_t i = 0; i < n && status >= 0; ++i) printf("%.17g\n", block[i]);
    }
    if (status < 0) fprintf(stderr, "%s\n", QvStatusMessage(status));
    QvIirFilterRelease(filter);
    return status < 0;
}

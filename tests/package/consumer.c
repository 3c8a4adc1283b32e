/* The least program in C: fails unless the library links, loads and adds. */
#include <stdio.h>
#include <string.h>

#include "quorvan/quorvan.h"

int main(void) {
    const double x[3] = {1.0, 2.0, 3.0};
    const double y[3] = {0.5, 0.25, 0.125};
    double sum[3] = {0.0, 0.0, 0.0};

    const QvStatus status = QvArrAdd(x, y, 3, sum);
    printf("%s %g %g %g\n", QvStatusMessage(status), sum[0], sum[1], sum[2]);
    if (status != 0 || sum[0] != 1.5 || sum[1] != 2.25 || sum[2] != 3.125) return 1;
    return strcmp(QvStatusMessage(QvArrAdd(x, y, 0, sum)), "The number of samples must be > 0.") == 0 ? 0 : 2;
}

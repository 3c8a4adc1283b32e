/* Keeps the emulator's own processes alive while the tests run, so that none of them starts these and leaves them its
 * output, for whose end its caller would wait. Ends after an hour, should no one end it. */
#include <windows.h>

int main(void) {
    Sleep(3600 * 1000);
    return 0;
}

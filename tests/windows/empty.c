/* A module whose only matter is its name. */
int ThereIsNothingHere(void);
__declspec(dllexport) int ThereIsNothingHere(void) { return 0; }

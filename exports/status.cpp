// Entries of the status table.
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT const char* ZemFunc240(Status code) { return StatusMessage(code); }

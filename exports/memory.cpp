// The release of blocks that the library handed out.
#include "frame/memory.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT void ZemFunc234(void* block) { HeapFree(block); }
QV_EXPORT_ALIAS(void, ZemFunc238, ZemFunc234, void* block);
QV_EXPORT_ALIAS(void, ZemFunc470, ZemFunc234, void* block);

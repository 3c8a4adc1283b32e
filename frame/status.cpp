#include "frame/status.h"

namespace quorvan {
namespace {

struct StatusRow {
    Status code;
    const char* text;
};

constexpr StatusRow kRows[] = {
#define QV_STATUS(symbol, code, text) {code, text},
#define QV_STATUS_AGAIN(symbol, text) {status::symbol, text},
#include "frame/status_table.inc"
#undef QV_STATUS_AGAIN
#undef QV_STATUS
};
static_assert(sizeof kRows / sizeof *kRows == 140);

}  // namespace

const char* StatusMessage(Status code) noexcept {
    for (const StatusRow& row : kRows)
        if (row.code == code) return row.text;
    return "Unknown error number";
}

}  // namespace quorvan

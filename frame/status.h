// Status codes: named constants for every row of the status table, and the lookup of their texts.
#pragma once

#include "frame/types.h"

namespace quorvan {

namespace status {
#define QV_STATUS(symbol, code, text) inline constexpr Status symbol = code;
#define QV_STATUS_AGAIN(symbol, text)
#include "frame/status_table.inc"
#undef QV_STATUS_AGAIN
#undef QV_STATUS

// A warning of the pulse measurements that has no row in the table: StatusMessage does not know it.
inline constexpr Status kWarnPulseLevels = 20021;
}  // namespace status

// The text of a code, "Unknown error number" for a code without a row. Never null.
const char* StatusMessage(Status code) noexcept;

// Joins the statuses of successive steps: a later one replaces success, and a later error replaces a warning; an earlier
// error stays.
constexpr Status Later(Status earlier, Status later) noexcept {
    return earlier == status::kSuccess || (earlier > 0 && later < 0) ? later : earlier;
}

}  // namespace quorvan

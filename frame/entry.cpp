#include "frame/entry.h"

namespace quorvan {

Status SizeArrayNarrow(Count* out, const Size* in, Size count) noexcept {
    if (!in) return status::kSuccess;
    if (!SizeNarrow(count)) return status::kOverflow;
    for (Size i = 0; i < count; ++i)
        if (!SizeNarrow(in[i])) return status::kOverflow;
    for (Size i = 0; i < count; ++i) out[i] = static_cast<Count>(in[i]);
    return status::kSuccess;
}

Status IndexArrayWiden(Size* out, const Count* in, Size count) noexcept {
    if (!out) return status::kSuccess;
    if (!SizeNarrow(count)) return status::kOverflow;
    for (Size i = 0; i < count; ++i) out[i] = in[i];
    return status::kSuccess;
}

}  // namespace quorvan

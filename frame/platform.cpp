#include "frame/platform.h"

namespace quorvan {

std::mutex& PlanMutex() noexcept {
    static constinit std::mutex mutex;
    return mutex;
}

}  // namespace quorvan

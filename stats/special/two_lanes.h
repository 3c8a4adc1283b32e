// Two doubles side by side in a register, for sums of one kind that run together on every machine.
#pragma once

namespace quorvan {

typedef double TwoLanes __attribute__((vector_size(16)));

}  // namespace quorvan

// What the units of the Windows platform share.
#pragma once

namespace quorvan {

// The file of the linear algebra provider.
inline constexpr char kProviderFile[] = "ZR150000_BLASLAPACK.dll";

// Loads the provider from the first place of the search that decides, and says whether it is loaded.
bool LoadProvider() noexcept;
// Undoes it, if it is loaded.
void FreeProvider() noexcept;

// Runs the handler of NoticeThreadEnds on the thread that ends.
void ThisThreadEnds() noexcept;

// x y + z in one rounding, without the processor's instruction.
double SoftwareFma(double x, double y, double z) noexcept;

}  // namespace quorvan

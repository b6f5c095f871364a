#pragma once

#include "response/ResponseKernels.h"

namespace tamble::common::response {

// The kernels for each instruction set that the build knows. Those beyond the baseline may be used on processors that
// have the instructions only.

extern const ResponseKernels baselineKernels;
extern const ResponseKernels avx2Kernels;   ///< Also fused multiply-add.
extern const ResponseKernels avx512Kernels; ///< The double-word and vector-length extensions too.

} // namespace tamble::common::response

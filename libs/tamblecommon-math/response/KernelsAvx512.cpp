#include "response/KernelSets.h"
#include "response/ResponseLoops.inc"

namespace tamble::common::response {

const ResponseKernels avx512Kernels = kernelsOfThisFile("avx512");

} // namespace tamble::common::response

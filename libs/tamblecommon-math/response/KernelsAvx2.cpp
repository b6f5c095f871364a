#include "response/KernelSets.h"
#include "response/ResponseLoops.inc"

namespace tamble::common::response {

const ResponseKernels avx2Kernels = kernelsOfThisFile("avx2");

} // namespace tamble::common::response

#include "response/KernelSets.h"
#include "response/ResponseLoops.inc"

namespace tamble::common::response {

const ResponseKernels baselineKernels = kernelsOfThisFile("baseline");

} // namespace tamble::common::response

#include "response/ResponseKernels.h"

#include "response/KernelSets.h"

#include <vector>

namespace tamble::common::response {

std::span<const ResponseKernels *const> availableKernels()
{
    static const auto available = [] {
        std::vector<const ResponseKernels *> kernels{&baselineKernels};
#if defined(TAMBLE_X86_KERNELS)
        if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) {
            kernels.push_back(&avx2Kernels);
            if (__builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl"))
                kernels.push_back(&avx512Kernels);
        }
#endif
        return kernels;
    }();
    return available;
}

const ResponseKernels &responseKernels()
{
    static const ResponseKernels &best = *availableKernels().back();
    return best;
}

} // namespace tamble::common::response

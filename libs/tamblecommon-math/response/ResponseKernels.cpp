#include "response/ResponseKernels.h"

#include "response/CurveLoops.h"
#include "response/SectionLoops.h"
#include "response/TapLoops.h"

#include <vector>

namespace tamble::common::response {

namespace {

// The compiler vectorises the loops. They have no branches and, but for sums, a constant number of turns, so that each
// point goes through the same vector instructions in every block.
//
// Each set compiles them anew for its instructions, with all that they call inlined, as a function of its own would be
// without them. That is what flattening does; with Clang for small functions only, so that larger ones ask for it.

struct Baseline
{
    template <auto loop, typename... Arguments>
    [[gnu::flatten]] static void run(Arguments... arguments)
    {
        loop(arguments...);
    }
};

#if defined(__x86_64__)
struct Avx2
{
    template <auto loop, typename... Arguments>
    [[gnu::flatten, gnu::target("avx2,fma")]] static void run(Arguments... arguments)
    {
        loop(arguments...);
    }
};

struct Avx512
{
    template <auto loop, typename... Arguments>
    [[gnu::flatten, gnu::target("avx2,fma,avx512f,avx512dq,avx512vl")]] static void run(Arguments... arguments)
    {
        loop(arguments...);
    }
};
#endif

template <typename Set>
constexpr ResponseKernels kernelsOf(const char *name)
{
    return {
        .name = name,
        .oneSection = Set::template run<loops::oneSection>,
        .twoSections = Set::template run<loops::twoSections>,
        .multiplyPowers = Set::template run<loops::multiplyPowers>,
        .multiplyResponse = Set::template run<loops::multiplyResponse>,
        .reduce = Set::template run<loops::reduce>,
        .taps = Set::template run<loops::taps>,
        .symmetricTaps = Set::template run<loops::symmetricTaps>,
        .level = Set::template run<loops::level>,
        .phase = Set::template run<loops::phase>,
        .add = Set::template run<loops::add>,
        .addFour = Set::template run<loops::addFour>,
        .clampLevels = Set::template run<loops::clampLevels>,
        .wrapPhases = Set::template run<loops::wrapPhases>,
    };
}

} // namespace

std::span<const ResponseKernels *const> availableKernels()
{
    static constexpr ResponseKernels baseline = kernelsOf<Baseline>("baseline");
    static const auto available = [] {
        std::vector kernels{&baseline};
#if defined(__x86_64__)
        static constexpr ResponseKernels avx2 = kernelsOf<Avx2>("avx2");
        static constexpr ResponseKernels avx512 = kernelsOf<Avx512>("avx512");
        if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) {
            kernels.push_back(&avx2);
            if (__builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl"))
                kernels.push_back(&avx512);
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

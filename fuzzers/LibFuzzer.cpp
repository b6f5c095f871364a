// Entry of a libFuzzer program for the body that TAMBLE_FUZZ_BODY names.

#include "FuzzBodies.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    TAMBLE_FUZZ_BODY({data, size});
    return 0;
}

#pragma once

#include <stdexcept>

namespace tamble::client {

/// Raised when a value of a sheet cannot be read as the type that is asked for.
class ConvertException : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace tamble::client

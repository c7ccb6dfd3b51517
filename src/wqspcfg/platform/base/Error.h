#pragma once

#include <cstdint>
#include <string>

namespace wqspcfg {

enum class ErrorKind : std::uint8_t
{
    None,
    NotFound,     // the store, file or key does not exist
    AccessDenied, // rights are missing, or the store is read-only
    NoSpace,      // the file system or the store is full
    Damaged,      // the content contradicts itself
    NewerFormat,  // written by a later version of this library
    TooLong,      // a name or value is longer than the store can hold
    BadText,      // text that the store cannot keep unchanged
    BadArgument,  // an address, name or value that means nothing
    Unsupported,  // the store cannot do this on this platform
    Io,           // any other failure of the operating system
};

// What went wrong, in words (UTF-8) that name the thing concerned and the cause.
struct Error
{
    ErrorKind kind = ErrorKind::None;
    std::string message;

    explicit operator bool() const noexcept { return kind != ErrorKind::None; }
};

} // namespace wqspcfg

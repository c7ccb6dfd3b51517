#include "wqspcfg/platform/framework/InvalidArgException.h"

// Out of line, so that the type is one and the same in the library and in whoever catches it.
CInvalidArgException::CInvalidArgException() noexcept = default;
CInvalidArgException::CInvalidArgException(const CInvalidArgException&) noexcept = default;
CInvalidArgException::~CInvalidArgException() = default;
CInvalidArgException& CInvalidArgException::operator=(const CInvalidArgException&) noexcept = default;

const char* CInvalidArgException::what() const noexcept
{
    return "an index or argument is out of range";
}

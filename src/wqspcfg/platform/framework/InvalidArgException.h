#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <exception>

// The framework's invalid-argument exception, thrown by value: an index outside an array or a string.
class WQSPCFG_API CInvalidArgException : public std::exception
{
  public:
    CInvalidArgException() noexcept;
    CInvalidArgException(const CInvalidArgException&) noexcept;
    ~CInvalidArgException() override;
    CInvalidArgException& operator=(const CInvalidArgException&) noexcept;

    const char* what() const noexcept override;
};

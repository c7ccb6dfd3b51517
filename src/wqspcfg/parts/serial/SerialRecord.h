#pragma once

#include "wqspcfg/core/RegKeyEx.h"

namespace wqspcfg {

// The base of the serial-number records: members of a class with settings of their own, which lie in an open key.
class WQSPCFG_API SerialRecord : public CRegKeyEx
{
  protected:
    SerialRecord() = default;
    SerialRecord(const SerialRecord&) = default;
    SerialRecord& operator=(const SerialRecord&) = default;
    ~SerialRecord();
};

} // namespace wqspcfg

// Text in one of the code pages of Windows, which is what 8-bit files from Windows hold.
#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <memory>
#include <string>
#include <string_view>

namespace wqspcfg {

// Decodes text of one code page. Not for several threads at once.
class WQSPCFG_API CodePage
{
  public:
    // By its Windows number: 936, 1252, 28591 (Latin-1), 65001 (UTF-8). Null where this system does not know the code
    // page, and for one in which the characters of ASCII are other bytes (EBCDIC, UTF-16).
    static std::unique_ptr<CodePage> Open(unsigned number);

    virtual ~CodePage() = default;
    CodePage(const CodePage&) = delete;
    CodePage& operator=(const CodePage&) = delete;

    // `bytes` is whole characters. False, with `units` as it was, where they are no text of the code page.
    virtual bool Append(std::string_view bytes, std::u16string& units) = 0;

  protected:
    CodePage() = default;
};

} // namespace wqspcfg

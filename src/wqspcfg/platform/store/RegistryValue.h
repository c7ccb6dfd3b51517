// The two value types that settings use, as a store holds them.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"
#include "wqspcfg/platform/store/Session.h"

#include <array>
#include <cstddef>

namespace wqspcfg {

// False, with the output untouched, when the value is of another type or size.
bool ToValue(const ValueView& view, DWORD& value);
// The text up to its first NUL; it need not be terminated.
bool ToValue(const ValueView& view, CString& value);

class DwordBytes
{
  public:
    explicit DwordBytes(DWORD value) noexcept
        : m_bytes{std::byte(value), std::byte(value >> 8), std::byte(value >> 16), std::byte(value >> 24)}
    {}
    ValueView View() const noexcept { return {ValueType::Dword, m_bytes}; }

  private:
    std::array<std::byte, 4> m_bytes;
};

// Writes a REG_SZ. Text that no registry could hold unchanged is refused and counts as a failure of the session.
Outcome SetText(Session& session, Session::Key key, std::wstring_view name, std::wstring_view text);

} // namespace wqspcfg

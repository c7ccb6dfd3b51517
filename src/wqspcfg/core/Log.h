// The log of a service provider, as the library writes to it.
#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/format/Format.h"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg {

// The category of every line that this library writes.
inline constexpr DWORD kLogCategory = 0x10000;

enum class Severity : std::uint8_t
{
    Info,
    Error,
    Fatal,
};

} // namespace wqspcfg

// A service provider implements Write; the library owns no log object and never opens or closes one. Formats are wide
// printf formats in which %s is a wide string on every platform; arguments are type-safe. All return what Write
// returned.
class WQSPCFG_API CLog
{
  public:
    virtual ~CLog() = default;

    template <class... Args>
    int Info(DWORD dwCategory, LPCWSTR lpszFormat, const Args&... args)
    {
        return Print(wqspcfg::Severity::Info, dwCategory, lpszFormat, args...);
    }
    template <class... Args>
    int Error(DWORD dwCategory, LPCWSTR lpszFormat, const Args&... args)
    {
        return Print(wqspcfg::Severity::Error, dwCategory, lpszFormat, args...);
    }
    template <class... Args>
    int Fatal(DWORD dwCategory, LPCWSTR lpszFormat, const Args&... args)
    {
        return Print(wqspcfg::Severity::Fatal, dwCategory, lpszFormat, args...);
    }

    // Takes one finished entry, without a line end of its own (a table spans several lines). `text` is valid during the
    // call only. Called on the thread that loads or saves; it must not throw.
    virtual int Write(wqspcfg::Severity severity, DWORD dwCategory, std::wstring_view text) = 0;

  private:
    template <class... Args>
    int Print(wqspcfg::Severity severity, DWORD dwCategory, LPCWSTR lpszFormat, const Args&... args)
    {
        std::wstring text;
        wqspcfg::FormatTo(text, lpszFormat, args...);
        return Write(severity, dwCategory, text);
    }
};

namespace wqspcfg {

// One Info line of this library. Like every log call of the library it does nothing on a null log.
template <class... Args>
void LogInfo(CLog* pLog, LPCWSTR lpszFormat, const Args&... args)
{
    if (pLog != nullptr) {
        pLog->Info(kLogCategory, lpszFormat, args...);
    }
}

// The logs below write UTF-8, a line end after each entry. The further lines of an entry (a table, a stored text with
// line breaks) begin with "  | ", and other control characters are written as in platform/text/DisplayText.h: nothing
// that stands in the registry looks like an entry of its own or reaches a terminal.

// Writes to a stream, which outlives the log. Not for several threads.
class WQSPCFG_API StreamLog final : public CLog
{
  public:
    explicit StreamLog(std::ostream& stream) : m_stream(stream) {}
    int Write(Severity severity, DWORD dwCategory, std::wstring_view text) override;

  private:
    std::ostream& m_stream;
};

// Appends to a file, each entry behind its time and severity, written through before Write returns. When the file
// cannot be opened or written, Write returns 0. For any number of threads.
class WQSPCFG_API FileLog final : public CLog
{
  public:
    explicit FileLog(std::string path) : m_path(std::move(path)) {}
    int Write(Severity severity, DWORD dwCategory, std::wstring_view text) override;

  private:
    std::string m_path;
};

// Keeps every entry in memory, for tests and tools. Not for several threads.
class WQSPCFG_API MemoryLog final : public CLog
{
  public:
    struct Entry
    {
        Severity severity;
        DWORD dwCategory;
        std::wstring text;
    };

    int Write(Severity severity, DWORD dwCategory, std::wstring_view text) override;
    const std::vector<Entry>& Entries() const noexcept { return m_entries; }
    void Clear() noexcept { m_entries.clear(); }

  private:
    std::vector<Entry> m_entries;
};

} // namespace wqspcfg

#include "wqspcfg/core/Log.h"

#include "wqspcfg/platform/store/ForkSafe.h"
#include "wqspcfg/platform/text/DisplayText.h"

#if !defined(_WIN32)
#include "wqspcfg/platform/store/PosixFile.h"
#endif

#include <chrono>
#include <ctime>
#include <fstream>
#include <ostream>

namespace wqspcfg {

namespace {

constexpr char kContinuation[] = "  | ";

const char* NameOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "ERROR";
    case Severity::Fatal:
        return "FATAL";
    case Severity::Info:
        break;
    }
    return "INFO ";
}

// An entry for a log of lines. What follows its first line is marked, so that no text from the registry can pass for an
// entry of its own.
std::string Lines(std::wstring_view entry)
{
    std::string lines;
    for (;;) {
        const auto end = entry.find(L'\n');
        auto line = entry.substr(0, end);
        if (end != std::wstring_view::npos && line.ends_with(L'\r')) {
            line.remove_suffix(1);
        }
        lines += DisplayText(line);
        lines += '\n';
        if (end == std::wstring_view::npos) {
            return lines;
        }
        lines += kContinuation;
        entry.remove_prefix(end + 1);
    }
}

#if defined(_WIN32)
bool Append(const std::string& path, std::string_view text)
{
    std::ofstream file(path, std::ios::app | std::ios::binary);
    file << text;
    file.flush();
    return file.good();
}
#else
// Not by a stream, whose file may become a standard one of a process that lacks those, and is left to its children.
bool Append(const std::string& path, std::string_view text)
{
    const auto file = OpenFile(path, O_WRONLY | O_APPEND | O_CREAT, 0666);
    return file && WriteAll(file, text) == 0;
}
#endif

} // namespace

int StreamLog::Write(Severity, DWORD, std::wstring_view text)
{
    m_stream << Lines(text);
    return m_stream.good() ? 1 : 0;
}

int FileLog::Write(Severity severity, DWORD, std::wstring_view text)
{
    // One for all: they write to one disk. The time is made under it too: the C library takes a lock of its own for the
    // time zone, which a fork would leave locked in the child.
    const std::lock_guard lock(ForkSafeMutex(ForkSafe::FileLogs));
    const auto now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
#if defined(_WIN32)
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    char time[32];
    std::strftime(time, sizeof time, "%Y-%m-%d %H:%M:%S", &local);
    return Append(m_path, std::string(time) + ' ' + NameOf(severity) + ' ' + Lines(text)) ? 1 : 0;
}

int MemoryLog::Write(Severity severity, DWORD dwCategory, std::wstring_view text)
{
    m_entries.push_back({severity, dwCategory, std::wstring(text)});
    return 1;
}

} // namespace wqspcfg

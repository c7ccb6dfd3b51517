// Open files of a POSIX system.
#pragma once

#include "wqspcfg/platform/base/Error.h"

#include <fcntl.h>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace wqspcfg {

// No file of this library is open as 0, 1 or 2: in a process that was started without its standard files, what it
// prints would go into that file.
constexpr int kLeastDescriptor = 3;

class FileDescriptor
{
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd) noexcept : m_fd(fd) {}
    ~FileDescriptor() { Close(); }
    FileDescriptor(FileDescriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        if (this != &other) {
            Close();
            m_fd = std::exchange(other.m_fd, -1);
        }
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int Get() const noexcept { return m_fd; }
    explicit operator bool() const noexcept { return m_fd >= 0; }
    void Close() noexcept;
    // Leaves it open, for the caller to close.
    int Release() noexcept { return std::exchange(m_fd, -1); }
    // Its name in /proc, under which the very file is opened again.
    std::string Path() const;

  private:
    int m_fd = -1;
};

// openat with O_CLOEXEC, and never below kLeastDescriptor. errno tells why where there is none.
FileDescriptor OpenAt(int directory, const char* name, int flags, unsigned mode = 0);
inline FileDescriptor OpenFile(const std::string& path, int flags, unsigned mode = 0)
{
    return OpenAt(AT_FDCWD, path.c_str(), flags, mode);
}

// Calls `visit` with each name in an open directory, which it closes, until that is false. An errno value, or 0.
int VisitNames(FileDescriptor directory, const std::function<bool(const char* name)>& visit);

// Writes all of it, however often that takes. An errno value, or 0.
int WriteAll(const FileDescriptor& file, std::string_view bytes);

// Opens /dev/null as each of 0, 1 and 2 that is not open, for good: code that opens files of its own (LMDB) gets none
// of them then. An errno value, or 0.
int FillStandardDescriptors();

// What kind of failure an errno value is.
ErrorKind KindOfSystemError(int status);
// "cannot ACTION PATH: why".
Error SystemError(std::string_view action, const std::string& path, int status);

} // namespace wqspcfg

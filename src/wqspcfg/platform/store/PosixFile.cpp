#include "wqspcfg/platform/store/PosixFile.h"

#include <cerrno>
#include <dirent.h>
#include <system_error>
#include <unistd.h>

namespace wqspcfg {

void FileDescriptor::Close() noexcept
{
    if (m_fd >= 0) {
        const auto kept = errno;
        close(m_fd);
        errno = kept;
        m_fd = -1;
    }
}

std::string FileDescriptor::Path() const
{
    return "/proc/self/fd/" + std::to_string(m_fd);
}

FileDescriptor OpenAt(int directory, const char* name, int flags, unsigned mode)
{
    FileDescriptor file(openat(directory, name, flags | O_CLOEXEC, mode));
    if (file && file.Get() < kLeastDescriptor) {
        return FileDescriptor(fcntl(file.Get(), F_DUPFD_CLOEXEC, kLeastDescriptor));
    }
    return file;
}

int VisitNames(FileDescriptor directory, const std::function<bool(const char* name)>& visit)
{
    auto* open = fdopendir(directory.Get());
    if (open == nullptr) {
        return errno;
    }
    (void)directory.Release(); // closed with it
    int status = 0;
    for (;;) {
        errno = 0;
        const auto* entry = readdir(open);
        if (entry == nullptr) {
            status = errno;
            break;
        }
        if (!visit(&entry->d_name[0])) {
            break;
        }
    }
    closedir(open);
    return status;
}

int WriteAll(const FileDescriptor& file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto written = write(file.Get(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return 0;
}

int FillStandardDescriptors()
{
    for (int fd = 0; fd < kLeastDescriptor; ++fd) {
        if (fcntl(fd, F_GETFD) >= 0) {
            continue;
        }
        // The lowest number that is free; another thread may have taken it meanwhile.
        const auto opened = open("/dev/null", O_RDWR); // NOLINT(android-cloexec-open): as standard files are
        if (opened < 0) {
            return errno;
        }
        if (opened >= kLeastDescriptor) {
            close(opened);
        }
    }
    return 0;
}

ErrorKind KindOfSystemError(int status)
{
    switch (status) {
    case ENOENT:
    case ENOTDIR:
        return ErrorKind::NotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorKind::AccessDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrorKind::NoSpace;
    case ENAMETOOLONG:
        return ErrorKind::TooLong;
    default:
        return ErrorKind::Io;
    }
}

Error SystemError(std::string_view action, const std::string& path, int status)
{
    return {KindOfSystemError(status),
            "cannot " + std::string(action) + ' ' + path + ": " + std::generic_category().message(status)};
}

} // namespace wqspcfg

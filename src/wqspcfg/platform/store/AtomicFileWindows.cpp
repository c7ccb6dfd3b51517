#include "wqspcfg/platform/store/AtomicFile.h"

#include "wqspcfg/platform/text/Utf.h"

#include <windows.h>

#include <algorithm>
#include <random>
#include <system_error>
#include <vector>

namespace wqspcfg {

namespace {

ErrorKind KindOf(DWORD status)
{
    switch (status) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return ErrorKind::NotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return ErrorKind::AccessDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ErrorKind::NoSpace;
    case ERROR_FILENAME_EXCED_RANGE:
        return ErrorKind::TooLong;
    default:
        return ErrorKind::Io;
    }
}

Error Failure(std::string_view action, const std::string& path, DWORD status)
{
    return {KindOf(status), "cannot " + std::string(action) + ' ' + path + ": " +
                                std::system_category().message(static_cast<int>(status))};
}

// Who may do what with the file; empty where that cannot be read.
std::vector<BYTE> AccessList(const std::wstring& path)
{
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<BYTE> list(size);
    if (size == 0 || !GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size)) {
        list.clear();
    }
    return list;
}

// Which file that is, under whatever name. False with GetLastError.
bool Identify(const std::wstring& path, BY_HANDLE_FILE_INFORMATION& info)
{
    const auto file =
        CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool isKnown = GetFileInformationByHandle(file, &info) != FALSE;
    CloseHandle(file);
    return isKnown;
}

// Whether the file goes when its last handle is closed, also by the end of the process.
bool SetDeleted(HANDLE file, bool isDeleted)
{
    FILE_DISPOSITION_INFO info{};
    info.DeleteFile = isDeleted ? TRUE : FALSE;
    return SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof info) != FALSE;
}

} // namespace

struct AtomicFile::State
{
    std::string path; // as messages give it
    std::wstring target;
    std::wstring temporary;
    HANDLE file = INVALID_HANDLE_VALUE;
    std::string buffer;
    Error failure; // of a write

    State() = default;
    ~State()
    {
        if (file != INVALID_HANDLE_VALUE) {
            const bool goes = SetDeleted(file, true);
            CloseHandle(file);
            if (!goes) {
                DeleteFileW(temporary.c_str());
            }
        }
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    DWORD Create(const std::wstring& source);
    DWORD Flush();
    DWORD TakePlace();
};

// A Windows error code, or 0.
DWORD AtomicFile::State::Create(const std::wstring& source)
{
    auto list = AccessList(target);
    if (list.empty() && !source.empty()) {
        list = AccessList(source);
    }
    SECURITY_ATTRIBUTES security{sizeof security, list.empty() ? nullptr : list.data(), FALSE};
    std::random_device random;
    DWORD status = ERROR_FILE_EXISTS;
    for (int tries = 0; tries < 100 && status == ERROR_FILE_EXISTS; ++tries) {
        const auto slash = target.find_last_of(L"\\/:");
        const auto name = slash == std::wstring::npos ? 0 : slash + 1;
        temporary = target.substr(0, name) + L'.' + target.substr(name, 200) + L'.' + std::to_wstring(random());
        file = CreateFileW(temporary.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_DELETE, &security,
                           CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        status = file == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS;
    }
    if (status == ERROR_SUCCESS) {
        SetDeleted(file, true); // until it is complete
    }
    return status;
}

// A Windows error code, or 0.
DWORD AtomicFile::State::Flush()
{
    constexpr std::size_t kMost = std::size_t{1} << 24;
    for (std::string_view rest = buffer; !rest.empty();) {
        DWORD written = 0;
        if (!WriteFile(file, rest.data(), static_cast<DWORD>(std::min(rest.size(), kMost)), &written, nullptr)) {
            return GetLastError();
        }
        rest.remove_prefix(written);
    }
    buffer.clear();
    return ERROR_SUCCESS;
}

// A Windows error code, or 0.
DWORD AtomicFile::State::TakePlace()
{
    if (!FlushFileBuffers(file) || !SetDeleted(file, false)) {
        return GetLastError();
    }
    CloseHandle(file);
    file = INVALID_HANDLE_VALUE;
    if (!MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        const auto status = GetLastError();
        DeleteFileW(temporary.c_str());
        return status;
    }
    return ERROR_SUCCESS;
}

AtomicFile::AtomicFile() = default;
AtomicFile::~AtomicFile() = default;

bool AtomicFile::Open(const std::string& path, const std::vector<std::string>& sources, Error& error, Replaces)
{
    auto state = std::make_unique<State>();
    state->path = path;
    if (path.empty() || !AppendWideFromUtf8(path, state->target)) {
        error = {ErrorKind::BadText, "cannot write \"" + path + "\": that is no file name"};
        return false;
    }
    const auto attributes = GetFileAttributesW(state->target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES &&
        (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_REPARSE_POINT)) != 0) {
        error = {ErrorKind::BadArgument, path + " is not a regular file"};
        return false;
    }
    std::wstring first;
    for (const auto& source : sources) {
        if (source.empty()) {
            continue;
        }
        std::wstring wide;
        BY_HANDLE_FILE_INFORMATION read{};
        BY_HANDLE_FILE_INFORMATION old{};
        if (!AppendWideFromUtf8(source, wide) || !Identify(wide, read)) {
            error = Failure("read the rights of", source, GetLastError());
            return false;
        }
        if (Identify(state->target, old) && old.dwVolumeSerialNumber == read.dwVolumeSerialNumber &&
            old.nFileIndexHigh == read.nFileIndexHigh && old.nFileIndexLow == read.nFileIndexLow) {
            error = {ErrorKind::BadArgument,
                     path + " is the file that is read, " + source + ", and is not replaced; give another file"};
            return false;
        }
        if (first.empty()) {
            first = std::move(wide);
        }
    }
    if (const auto status = state->Create(first); status != ERROR_SUCCESS) {
        error = Failure("write", path, status);
        return false;
    }
    m_state = std::move(state);
    return true;
}

bool AtomicFile::Write(std::string_view bytes, Error& error)
{
    constexpr std::size_t kBuffer = std::size_t{1} << 16;
    if (!m_state) {
        error = {ErrorKind::BadArgument, "no file is open to be written"};
        return false;
    }
    auto& state = *m_state;
    if (!state.failure) {
        state.buffer.append(bytes);
        if (state.buffer.size() >= kBuffer) {
            if (const auto status = state.Flush(); status != ERROR_SUCCESS) {
                state.failure = Failure("write", state.path, status);
            }
        }
    }
    if (state.failure) {
        error = state.failure;
    }
    return !state.failure;
}

bool AtomicFile::Commit(Error& error)
{
    if (!Write({}, error)) {
        m_state.reset();
        return false;
    }
    auto status = m_state->Flush();
    if (status == ERROR_SUCCESS) {
        status = m_state->TakePlace();
    }
    if (status != ERROR_SUCCESS) {
        error = Failure("write", m_state->path, status);
    }
    m_state.reset();
    return status == ERROR_SUCCESS;
}

} // namespace wqspcfg

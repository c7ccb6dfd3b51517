#include "platform/store/Backup.h"

#if !defined(_WIN32)
#include "platform/store/LmdbBackup.h"
#endif

namespace wqspcfg {

namespace {

// The directory of an embedded store's address.
bool TakeDirectory(std::string_view address, std::string& directory, Error& error)
{
    constexpr std::string_view kPrefix = "lmdb:";
    if (!address.starts_with(kPrefix) || address.size() == kPrefix.size()) {
        error = {ErrorKind::Unsupported, std::string(address) +
                                             ": only an embedded store (lmdb:DIRECTORY) is backed up "
                                             "and restored; others are exported and imported"};
        return false;
    }
#if defined(_WIN32)
    error = {ErrorKind::Unsupported, std::string(address) + ": the embedded store is not available on Windows"};
    return false;
#else
    directory = address.substr(kPrefix.size());
    return true;
#endif
}

} // namespace

bool BackUpStore(std::string_view address, const std::string& path, BackupCounts& counts, Error& error)
{
    error = {};
    counts = {};
    std::string directory;
    if (!TakeDirectory(address, directory, error)) {
        return false;
    }
#if defined(_WIN32)
    static_cast<void>(path);
    return false;
#else
    return BackUpLmdb(std::string(address), directory, path, counts, error);
#endif
}

bool RestoreStore(std::string_view address, const std::string& path, BackupCounts& counts, std::string& kept,
                  Error& error)
{
    error = {};
    counts = {};
    kept.clear();
    std::string directory;
    if (!TakeDirectory(address, directory, error)) {
        return false;
    }
#if defined(_WIN32)
    static_cast<void>(path);
    return false;
#else
    return RestoreLmdb(std::string(address), directory, path, counts, kept, error);
#endif
}

} // namespace wqspcfg

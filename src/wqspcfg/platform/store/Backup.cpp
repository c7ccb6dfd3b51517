#include "wqspcfg/platform/store/Backup.h"

#if !defined(_WIN32)
#include "wqspcfg/platform/store/lmdb/LmdbBackup.h"
#endif

namespace wqspcfg {

namespace {

bool Refuse(std::string_view address, Error& error)
{
    error = {ErrorKind::Unsupported,
             std::string(address) + ": backup and restore need an embedded store (lmdb:DIRECTORY, not on Windows); use "
                                    "export and import"};
    return false;
}

#if !defined(_WIN32)
bool TakeDirectory(std::string_view address, std::string& directory)
{
    constexpr std::string_view kPrefix = "lmdb:";
    directory = address.starts_with(kPrefix) ? address.substr(kPrefix.size()) : std::string_view();
    return !directory.empty();
}
#endif

} // namespace

bool BackUpStore(std::string_view address, [[maybe_unused]] const std::string& path, BackupCounts& counts, Error& error)
{
    error = {};
    counts = {};
#if !defined(_WIN32)
    if (std::string directory; TakeDirectory(address, directory)) {
        return BackUpLmdb(std::string(address), directory, path, counts, error);
    }
#endif
    return Refuse(address, error);
}

bool RestoreStore(std::string_view address, [[maybe_unused]] const std::string& path, BackupCounts& counts,
                  std::string& kept, Error& error)
{
    error = {};
    counts = {};
    kept.clear();
#if !defined(_WIN32)
    if (std::string directory; TakeDirectory(address, directory)) {
        return RestoreLmdb(std::string(address), directory, path, counts, kept, error);
    }
#endif
    return Refuse(address, error);
}

} // namespace wqspcfg

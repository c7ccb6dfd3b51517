#include "wqspcfg/platform/store/Maintenance.h"

#if !defined(_WIN32)
#include "wqspcfg/platform/store/lmdb/LmdbBackup.h"
#include "wqspcfg/platform/store/lmdb/LmdbEnvironment.h"
#endif

namespace wqspcfg {

namespace {

constexpr std::string_view kPrefix = "lmdb:";

bool Refuse(std::string_view address, Error& error)
{
    error = {ErrorKind::Unsupported,
             std::string(address) + ": this is for an embedded store (lmdb:DIRECTORY) only, which there is none of on "
                                    "Windows"};
    return false;
}

} // namespace

bool CompactStore(std::string_view address, CompactCounts& counts, Error& error)
{
    error = {};
    counts = {};
#if !defined(_WIN32)
    if (address.starts_with(kPrefix) && address.size() > kPrefix.size()) {
        return CompactLmdb(std::string(address), std::string(address.substr(kPrefix.size())), counts, error);
    }
#endif
    return Refuse(address, error);
}

bool RemoveNewStore([[maybe_unused]] std::string_view address)
{
#if !defined(_WIN32)
    if (address.starts_with(kPrefix) && address.size() > kPrefix.size()) {
        return LmdbEnvironment::RemoveNew(std::string(address), std::string(address.substr(kPrefix.size())));
    }
#endif
    return false;
}

bool GetStoreStatus(std::string_view address, [[maybe_unused]] bool verify, StoreStatus& status, Error& error)
{
    error = {};
    status = {};
#if !defined(_WIN32)
    if (address.starts_with(kPrefix) && address.size() > kPrefix.size()) {
        return GetLmdbStatus(std::string(address), std::string(address.substr(kPrefix.size())), verify, status, error);
    }
#endif
    return Refuse(address, error);
}

} // namespace wqspcfg

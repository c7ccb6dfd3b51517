#include "wqspcfg/platform/store/Store.h"

#include "wqspcfg/platform/store/memory/MemoryStore.h"
#include "wqspcfg/platform/store/regfile/RegFileStore.h"
#if defined(_WIN32)
#include "wqspcfg/platform/store/windows/WindowsStore.h"
#else
#include "wqspcfg/platform/store/lmdb/LmdbStore.h"

#include <unistd.h>
#endif

#include <cstdlib>

namespace wqspcfg {

namespace {

#if !defined(_WIN32)
constexpr const char* kSystemDirectory = "/var/lib/wqspcfg";

// The system's store where this user can work with it, else the user's own.
std::string StoreDirectory()
{
    if (access(kSystemDirectory, W_OK) == 0 ||
        access((std::string(kSystemDirectory) + "/data.mdb").c_str(), R_OK) == 0) {
        return kSystemDirectory;
    }
    const auto* data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/') {
        return std::string(data) + "/wqspcfg";
    }
    const auto* home = std::getenv("HOME");
    return home != nullptr && *home == '/' ? std::string(home) + "/.local/share/wqspcfg" : kSystemDirectory;
}
#endif

bool TakePrefix(std::string_view& address, std::string_view prefix)
{
    if (!address.starts_with(prefix)) {
        return false;
    }
    address.remove_prefix(prefix.size());
    return true;
}

} // namespace

std::shared_ptr<Store> OpenStore(std::string_view address, const OpenOptions& options, Error& error)
{
    error = {};
    const std::string whole(address);
    auto rest = address;
    if (TakePrefix(rest, "memory:") && rest.empty()) {
        return std::make_shared<MemoryStore>(whole);
    }
    rest = address;
    if (TakePrefix(rest, "lmdb:") && !rest.empty()) {
#if defined(_WIN32)
        error = {ErrorKind::Unsupported, whole + ": the embedded store is not available on Windows"};
        return nullptr;
#else
        return LmdbStore::Open(whole, std::string(rest), {options.readOnly, options.create, 0}, error);
#endif
    }
    rest = address;
    if (TakePrefix(rest, "reg:") && !rest.empty()) {
        return RegFileStore::Open(whole, std::string(rest), options, error);
    }
#if defined(_WIN32)
    if (address == "windows:") {
        const auto view = options.view32 ? RegistryView::Of32Bit : RegistryView::OfProgram;
        return std::make_shared<WindowsStore>(whole, view, options.readOnly);
    }
    if (address == "windows:64" && options.view32) {
        error = {ErrorKind::BadArgument,
                 whole + " is the view of 64-bit programs, and that of 32-bit ones was asked for"};
        return nullptr;
    }
    if (address == "windows:32" || address == "windows:64") {
        const auto view = address == "windows:32" ? RegistryView::Of32Bit : RegistryView::Of64Bit;
        return std::make_shared<WindowsStore>(whole, view, options.readOnly);
    }
#else
    if (address.starts_with("windows:")) {
        error = {ErrorKind::Unsupported, whole + ": there is no Windows registry on this system"};
        return nullptr;
    }
#endif
    if (address.starts_with("hive:")) {
        error = {ErrorKind::Unsupported,
                 whole + ": only the program wqspcfg reads the registry on a disk; import an `export` of it"};
        return nullptr;
    }
    error = {ErrorKind::BadArgument,
             "unknown store address \"" + whole +
                 "\"; expected windows:, windows:32, windows:64, lmdb:DIRECTORY, memory: or reg:FILE"};
    return nullptr;
}

std::string DefaultStoreAddress()
{
    const auto* given = std::getenv("WQSPCFG_STORE");
    if (given != nullptr && *given != '\0') {
        return given;
    }
#if defined(_WIN32)
    return "windows:";
#else
    return "lmdb:" + StoreDirectory();
#endif
}

} // namespace wqspcfg

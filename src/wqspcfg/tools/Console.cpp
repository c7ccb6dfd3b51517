#include "wqspcfg/tools/Console.h"

#include "wqspcfg/platform/store/regfile/RegFileStore.h"
#include "wqspcfg/platform/text/CodePage.h"
#if defined(WQSPCFG_WITH_HIVEX)
#include "wqspcfg/tools/hive/HiveStore.h"
#endif

#include <cstdlib>
#include <filesystem>

namespace wqspcfg::tools {

namespace {

constexpr std::string_view kEmbedded = "lmdb:";
constexpr std::string_view kFile = "reg:";
constexpr std::string_view kDisk = "hive:";

} // namespace

std::string StoreChoice::Address() const
{
    if (address) {
        if (address->empty()) {
            throw UsageError("--store is given an empty address; leave it out for the default store");
        }
        return *address;
    }
    const auto* variable = std::getenv("WQSPCFG_STORE");
    if (variable != nullptr && *variable == '\0') {
        throw UsageError("the environment variable WQSPCFG_STORE is empty; unset it for the default store");
    }
    return DefaultStoreAddress();
}

StoreChoice StoreChoice::At(const std::string& other, const std::string& option) const
{
    if (other.empty()) {
        throw UsageError(option + " is given an empty address");
    }
    auto choice = *this;
    choice.address = other;
    const bool isFile = other.starts_with(kFile);
    choice.view32 =
        view32 && other != "windows:64" && (isFile || other.starts_with(kDisk) || other.starts_with("windows:"));
    choice.codePage = isFile ? codePage : 0;
    return choice;
}

void StoreChoice::Check(bool isImport) const
{
    const auto store = Address();
    const bool isFile = store.starts_with(kFile);
    const bool isDisk = store.starts_with(kDisk);
    for (const auto kind : {kEmbedded, kFile, kDisk}) {
        if (store == kind) {
            throw UsageError(store + " is to be followed by " +
                             (kind == kEmbedded ? "a directory"
                              : kind == kFile   ? "a file"
                                                : "a directory or a file"));
        }
    }
    if (!isFile && !isDisk && !store.starts_with(kEmbedded) && !store.starts_with("windows:") && store != "memory:") {
        throw UsageError("unknown store address \"" + store +
                         "\"; expected windows:, windows:32, windows:64, lmdb:DIRECTORY, reg:FILE, hive:DIRECTORY, "
                         "hive:FILE or memory:");
    }
    if (view32 && store == "windows:64") {
        throw UsageError("--view32 contradicts windows:64, which is the view of 64-bit programs");
    }
    if (view32 && !isFile && !isDisk && !isImport && !store.starts_with("windows:")) {
        throw UsageError("--view32 applies to import and to reg:, hive: and windows: stores, not to " + store);
    }
    if (codePage != 0 && !isFile && !isImport) {
        throw UsageError("--codepage applies to import and to reg: stores, not to " + store);
    }
    if (codePage != 0 && CodePage::Open(codePage) == nullptr) {
        throw UsageError("--codepage: code page " + std::to_string(codePage) + " is not known on this system");
    }
}

std::shared_ptr<Store> StoreChoice::Open(Access access, Error& error, bool isImport) const
{
    Check(isImport);
    const OpenOptions options{
        .readOnly = access == Access::Read, .create = false, .view32 = view32, .codePage = codePage};
    return OpenAddress(options, error);
}

std::shared_ptr<Store> StoreChoice::OpenOrCreate(const Console& console, Error& error, bool isImport) const
{
    Check(isImport);
    const bool existed = Exists();
    const OpenOptions options{.readOnly = false, .create = true, .view32 = view32, .codePage = codePage};
    auto store = OpenAddress(options, error);
    if (store && !existed) {
        NoteCreated(console);
    }
    return store;
}

std::shared_ptr<Store> StoreChoice::OpenAddress(const OpenOptions& options, Error& error) const
{
    const auto store = Address();
    if (!store.starts_with(kDisk)) {
        auto opened = OpenStore(store, options, error);
        const auto* file = dynamic_cast<const RegFileStore*>(opened.get());
        if (file != nullptr && file->IsTakenAsUtf8()) {
            NoteTakenAsUtf8(file->FilePath());
        }
        return opened;
    }
    const auto path = store.substr(kDisk.size());
#if defined(WQSPCFG_WITH_HIVEX)
    auto hives = HiveStore::Open(store, path, options.view32, error);
    if (hives && note) {
        for (const auto& message : hives->Notes()) {
            note(message);
        }
    }
    return hives;
#else
#if defined(_WIN32)
    constexpr char kCause[] = ": the registry on a disk is not read on Windows; load the hive with `reg load`, and "
                              "export its keys with `reg export`";
#else
    constexpr char kCause[] = ": this program was built without libhivex, which reads the registry on a disk; install "
                              "libhivex-dev and build it again";
#endif
    error = {ErrorKind::Unsupported, store + kCause};
    return nullptr;
#endif
}

bool StoreChoice::Exists() const
{
    auto directory = Address();
    if (!directory.starts_with(kEmbedded)) {
        return true;
    }
    directory.erase(0, kEmbedded.size());
    std::error_code code;
    return std::filesystem::exists(
        std::filesystem::path(std::u8string(directory.begin(), directory.end())) / "data.mdb", code);
}

void StoreChoice::NoteCreated(const Console& console) const
{
    if (Exists()) {
        console.Note("created the store " + Address());
    }
}

void StoreChoice::NoteTakenAsUtf8(const std::string& file) const
{
    if (note) {
        note(file + ": REGEDIT4 does not tell the code page, and the text is read as UTF-8; give --codepage if "
                    "it is in another one");
    }
}

std::wstring Wide(const std::string& utf8)
{
    std::wstring text;
    if (!AppendWideFromUtf8(utf8, text)) {
        throw UsageError("the argument \"" + utf8 + "\" is not well-formed UTF-8");
    }
    return text;
}

std::string Counted(std::size_t count, const std::string& thing)
{
    return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

} // namespace wqspcfg::tools

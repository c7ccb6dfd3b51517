#include "wqspcfg/tools/StoreCommands.h"

#include "wqspcfg/diagnosis/Change.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/store/Backup.h"
#include "wqspcfg/platform/store/Maintenance.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/store/memory/MemoryStore.h"
#include "wqspcfg/tools/OutputFile.h"
#include "wqspcfg/tools/Preview.h"
#include "wqspcfg/tools/ScratchStore.h"
#include "wqspcfg/tools/ServiceAccess.h"
#include "wqspcfg/tools/ValueText.h"

#include <algorithm>
#include <filesystem>

namespace wqspcfg::tools {

namespace {

// Runs `work` in a transaction of the store, commits what it wrote, and turns failures into messages.
template <class F>
int Within(Store& store, Access access, const Console& console, F work)
{
    Error error;
    const auto transaction = store.Begin(access, error);
    if (!transaction) {
        return console.Fail(error);
    }
    const int status = work(*transaction);
    if (status != kDone || access == Access::Read) {
        return status;
    }
    return transaction->Commit(true) == Outcome::Failed ? console.Fail(transaction->LastError()) : kDone;
}

int NoKey(const Console& console, const std::string& key)
{
    return console.Fail(kNegative, "there is no key " + key);
}

// Why a value was not found.
int NoValue(Transaction& transaction, const FullKey& which, const std::string& key, std::wstring_view name,
            const Console& console)
{
    KeyId id = 0;
    switch (transaction.OpenKey(which.hive, which.path, id)) {
    case Outcome::Failed:
        return console.Fail(transaction.LastError());
    case Outcome::Missing:
        return NoKey(console, key);
    case Outcome::Found:
        break;
    }
    return console.Fail(kNegative, "the key " + key + " has no " +
                                       (name.empty() ? std::string("default value") : "value \"" + Utf8(name) + '"'));
}

std::string CountsText(std::size_t keys, std::size_t values)
{
    return Counted(keys, "key") + ", " + Counted(values, "value");
}

// The keys at and below one, and their values. False on failure.
bool Count(Transaction& transaction, const FullKey& key, std::size_t& keys, std::size_t& values)
{
    KeyId id = 0;
    if (transaction.OpenKey(key.hive, key.path, id) != Outcome::Found) {
        return false;
    }
    std::vector<std::wstring> subkeys;
    const bool listed = transaction.EnumValues(id,
                                               [&values](auto&&...) {
                                                   ++values;
                                                   return true;
                                               }) == Outcome::Found &&
                        transaction.EnumKeys(id, [&subkeys](std::wstring_view name) {
                            subkeys.emplace_back(name);
                            return true;
                        }) == Outcome::Found;
    transaction.CloseKey(id);
    ++keys;
    return listed && std::all_of(subkeys.begin(), subkeys.end(), [&](const std::wstring& subkey) {
               return Count(transaction, {key.hive, key.path + L'\\' + subkey}, keys, values);
           });
}

#if defined(_WIN32)

int PreviewRestore(const StoreChoice& choice, const std::string& file, const Console& console)
{
    return Restore(choice, file, false, console); // says that there is no embedded store on Windows
}

#else

// A directory of this user's own that goes with the object.
class PrivateDirectory
{
  public:
    explicit PrivateDirectory(Error& error)
    {
        std::error_code code;
        auto name = (std::filesystem::temp_directory_path(code) / "wqspcfg-XXXXXX").string();
        if (!code && mkdtemp(name.data()) != nullptr) {
            m_path = name;
        } else {
            error = {ErrorKind::Io, "cannot make a temporary directory as " + name};
        }
    }
    ~PrivateDirectory()
    {
        std::error_code code;
        if (!m_path.empty()) {
            std::filesystem::remove_all(m_path, code);
        }
    }
    PrivateDirectory(const PrivateDirectory&) = delete;
    PrivateDirectory& operator=(const PrivateDirectory&) = delete;

    const std::string& Path() const { return m_path; }

  private:
    std::string m_path;
};

// Restores the backup to a store of its own, and compares the two.
int PreviewRestore(const StoreChoice& choice, const std::string& file, const Console& console)
{
    if (!choice.Address().starts_with("lmdb:")) {
        return Restore(choice, file, false, console); // refuses, and says why
    }
    Error error;
    std::shared_ptr<Store> before;
    if (choice.Exists() && !(before = choice.Open(Access::Read, error))) {
        return console.Fail(error);
    }
    const PrivateDirectory directory(error);
    if (error) {
        return console.Fail(error);
    }
    BackupCounts counts;
    std::string kept;
    const auto address = "lmdb:" + directory.Path() + "/store";
    if (!RestoreStore(address, file, counts, kept, error)) {
        return console.Fail(error);
    }
    const auto after = OpenStore(address, {.readOnly = true}, error);
    return after ? PreviewReplacement(before.get(), *after, choice.secrets, console) : console.Fail(error);
}

#endif

// What a command makes where there is no embedded store yet.
class NewStore
{
  public:
    explicit NewStore(const StoreChoice& choice) : m_address(choice.Address()), m_isMade(!choice.Exists())
    {
        std::error_code code;
        auto directory = std::filesystem::path(m_address.substr(m_isMade ? m_address.find(':') + 1 : 0));
        while (m_isMade && !directory.empty() && !std::filesystem::exists(directory, code)) {
            m_made.push_back(directory);
            directory = directory.parent_path();
        }
    }

    // After a failure, when nothing was written to it. The store is closed.
    void Remove(const Console& console) const
    {
        if (!m_isMade || !RemoveNewStore(m_address)) {
            return;
        }
        std::error_code code;
        for (const auto& directory : m_made) {
            std::filesystem::remove(directory, code); // what is not empty stays
        }
        console.Note("removed the store " + m_address + " again");
    }

  private:
    std::string m_address;
    bool m_isMade;
    std::vector<std::filesystem::path> m_made; // the innermost first
};

class Lister
{
  public:
    Lister(Transaction& transaction, bool recursive, const Console& console)
        : m_transaction(transaction), m_recursive(recursive), m_console(console)
    {}

    // `prefix` is the path that lines begin with. False on failure.
    bool List(const FullKey& key, const std::string& prefix)
    {
        KeyId id = 0;
        return m_transaction.OpenKey(key.hive, key.path, id) == Outcome::Found && ListOpened(id, key, prefix);
    }

    bool ListOpened(KeyId id, const FullKey& key, const std::string& prefix)
    {
        std::vector<std::wstring> subkeys;
        if (m_transaction.EnumKeys(id, [&](std::wstring_view name) {
                if (m_recursive) {
                    subkeys.emplace_back(name);
                } else {
                    m_console.out << DisplayText(name) << "\\\n";
                }
                return true;
            }) == Outcome::Failed) {
            return false;
        }
        const auto valueLine = [&](std::wstring_view name, const ValueView& value) {
            m_console.out << prefix << (name.empty() ? std::string("(default)") : DisplayText(name)) << '\t'
                          << TypeName(value.type) << '\t' << DisplayText(DataText(value, L"; ")) << '\n';
            return true;
        };
        if (m_transaction.EnumValues(id, valueLine) == Outcome::Failed) {
            return false;
        }
        m_transaction.CloseKey(id);
        return std::all_of(subkeys.begin(), subkeys.end(), [&](const std::wstring& subkey) {
            const auto below = prefix + DisplayText(subkey) + '\\';
            m_console.out << below << '\n';
            return List({key.hive, key.path.empty() ? subkey : key.path + L'\\' + subkey}, below);
        });
    }

    // The hives that hold something.
    bool ListHives()
    {
        for (const auto hive :
             {Hive::LocalMachine, Hive::Users, Hive::CurrentUser, Hive::ClassesRoot, Hive::CurrentConfig}) {
            KeyId id = 0;
            bool any = false;
            const auto note = [&any](auto&&...) {
                any = true;
                return false;
            };
            if (m_transaction.OpenKey(hive, {}, id) == Outcome::Failed ||
                m_transaction.EnumKeys(id, note) == Outcome::Failed ||
                m_transaction.EnumValues(id, note) == Outcome::Failed) {
                return false;
            }
            if (any) {
                const auto name = Utf8(KeyText({hive, {}})) + '\\';
                m_console.out << name << '\n';
                if (m_recursive && !ListOpened(id, {hive, {}}, name)) {
                    return false;
                }
            }
        }
        return true;
    }

  private:
    Transaction& m_transaction;
    bool m_recursive;
    const Console& m_console;
};

} // namespace

int Import(const StoreChoice& choice, const std::vector<std::string>& files, bool dryRun, const Console& console)
{
    choice.Check(true);
    // All files are read before the store is touched.
    Error error;
    std::vector<std::unique_ptr<RegFileContent>> contents;
    const RegFileOptions options{choice.codePage, choice.view32};
    for (const auto& file : files) {
        auto& content = *contents.emplace_back(std::make_unique<RegFileContent>());
        if (file == "-" ? !content.Read(console.in, "standard input", options, error)
                        : !content.Read(file, options, error)) {
            return console.Fail(error);
        }
    }
    if (dryRun) {
        const auto store = choice.Exists() ? choice.Open(Access::Read, error, true)
                                           : std::make_shared<MemoryStore>(choice.Address(), kEmbeddedNameRoom);
        return store ? PreviewChanges(
                           *store,
                           [&contents](RegFileVisitor& visitor, Error& failure) {
                               return std::all_of(contents.begin(), contents.end(), [&](const auto& content) {
                                   return content->Visit(visitor, failure);
                               });
                           },
                           choice.secrets, console)
                     : console.Fail(error);
    }
    const NewStore fresh(choice);
    auto store = choice.OpenOrCreate(console, error, true);
    if (!store) {
        return console.Fail(error);
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        ImportCounts counts;
        if (!ImportRegFile(*store, *contents[i], counts, error)) {
            store.reset();
            fresh.Remove(console);
            return console.Fail(error);
        }
        console.err << (files[i] == "-" ? "standard input" : DisplayText(files[i])) << ": "
                    << CountsText(counts.keys, counts.values);
        if (counts.deletions != 0) {
            console.err << ", " << Counted(counts.deletions, "deletion");
        }
        console.err << '\n';
    }
    return kDone;
}

int Export(const StoreChoice& choice, const std::string& key, const std::string& file, ExportEncoding encoding,
           const Console& console)
{
    const auto which = key.empty() ? FullKey() : ParseKey(key);
    Error error;
    const auto store = choice.Open(Access::Read, error);
    if (!store) {
        return console.Fail(error);
    }
    const auto write = [&](std::ostream& output) {
        const bool done = key.empty() ? ExportRegFile(*store, output, error, encoding)
                                      : ExportRegFile(*store, which.hive, which.path, output, error, encoding);
        // That the output cannot be written is told by whoever it belongs to.
        return done || !output ? int{kDone}
                               : console.Fail(error.kind == ErrorKind::NotFound ? kNegative : kFailed, error.message);
    };
    return file.empty() ? write(console.out) : WriteOutputFile(file, {store->FilePath()}, write, console);
}

int BackUp(const StoreChoice& choice, const std::string& file, const Console& console)
{
    BackupCounts counts;
    Error error;
    if (!BackUpStore(choice.Address(), file, counts, error)) {
        return console.Fail(error);
    }
    console.err << DisplayText(file) << ": " << CountsText(counts.keys, counts.values) << '\n';
    return kDone;
}

int Restore(const StoreChoice& choice, const std::string& file, bool dryRun, const Console& console)
{
    if (dryRun) {
        return PreviewRestore(choice, file, console);
    }
    BackupCounts counts;
    std::string kept;
    Error error;
    const bool existed = choice.Exists();
    if (!RestoreStore(choice.Address(), file, counts, kept, error)) {
        return console.Fail(error);
    }
    if (!existed) {
        choice.NoteCreated(console);
    }
    if (!kept.empty()) {
        console.Note("the store was damaged; its old file is kept as " + kept);
    }
    console.err << DisplayText(choice.Address()) << ": " << CountsText(counts.keys, counts.values) << '\n';
    return kDone;
}

int Get(const StoreChoice& choice, const std::string& key, const std::string& name, const Console& console)
{
    const auto which = ParseKey(key);
    const auto wideName = Wide(name);
    Error error;
    const auto store = choice.Open(Access::Read, error);
    if (!store) {
        return console.Fail(error);
    }
    return Within(*store, Access::Read, console, [&](Transaction& transaction) -> int {
        ValueView value;
        switch (transaction.QueryAt(which.hive, which.path, wideName, value)) {
        case Outcome::Failed:
            return console.Fail(transaction.LastError());
        case Outcome::Missing:
            return NoValue(transaction, which, key, wideName, console);
        case Outcome::Found:
            break;
        }
        // A program gets the text as it stands, a person's terminal nothing that it would obey.
        const auto text = DataText(value, L"\n");
        console.out << (console.outIsTerminal ? DisplayText(text) : Utf8(text)) << '\n';
        return kDone;
    });
}

namespace {

// What the services of the store make of a value, which is about to be set.
diagnosis::Reading ReadingOf(const std::shared_ptr<Store>& store, const FullKey& which, std::wstring_view name)
{
    if (which.hive != diagnosis::HiveOf(which.path)) {
        return {};
    }
    const CurrentStoreScope current(std::make_shared<ScratchStore>(store));
    return diagnosis::ReadingOf(which.path, name);
}

// Warns of what the services do not read as it is set.
void WarnOf(const diagnosis::Reading& reading, bool isDword, DWORD number, const std::string& value,
            const Console& console)
{
    const auto warn = [&](const std::string& text) { console.Note("warning: " + text); };
    if (!reading.warning.empty()) {
        warn(reading.warning);
    }
    if (!reading.type) {
        return;
    }
    if (isDword != (*reading.type == ValueType::Dword)) {
        warn(value + " is set as a " + TypeName(isDword ? ValueType::Dword : ValueType::Sz) + ", and a " +
             TypeName(*reading.type) + " is read: it will be ignored");
    } else if (isDword && !diagnosis::IsAllowed(*reading.setting, number)) {
        warn(value + " is set to " + std::to_string(number) +
             ", which is not allowed; allowed: " + diagnosis::AllowedText(*reading.setting));
    }
}

} // namespace

int Set(const StoreChoice& choice, const std::string& key, const std::string& name, const std::string& data,
        DataType type, const Console& console)
{
    const auto which = ParseKey(key);
    const auto wideName = Wide(name);
    const auto wideData = Wide(data);
    const auto number = ParseNumber(wideData);
    Error error;
    const auto store = choice.OpenOrCreate(console, error);
    if (!store) {
        return console.Fail(error);
    }
    const auto reading = ReadingOf(store, which, wideName);
    return Within(*store, Access::Write, console, [&](Transaction& transaction) -> int {
        KeyId id = 0;
        if (transaction.CreateKey(which.hive, which.path, id) == Outcome::Failed) {
            return console.Fail(transaction.LastError());
        }
        if (type == DataType::Auto) {
            ValueView present;
            const auto found = transaction.Query(id, wideName, present);
            if (found == Outcome::Failed) {
                return console.Fail(transaction.LastError());
            }
            if (found == Outcome::Missing && reading.type && (number || *reading.type == ValueType::Sz)) {
                type = *reading.type == ValueType::Dword ? DataType::Dword : DataType::Sz;
            } else if (found == Outcome::Missing) {
                // "007" is rather a text.
                const bool isPlain = wideData.size() == 1 || wideData.front() != L'0' || wideData.starts_with(L"0x") ||
                                     wideData.starts_with(L"0X");
                type = number && isPlain ? DataType::Dword : DataType::Sz;
            } else if (present.type == ValueType::Dword || present.type == ValueType::Sz) {
                type = present.type == ValueType::Dword ? DataType::Dword : DataType::Sz;
            } else {
                return console.Fail(kUsage, ValueText(wideName) + " is a " + TypeName(present.type) +
                                                "; give --type to replace it by a value of another type");
            }
        }
        Outcome outcome = Outcome::Found;
        if (type == DataType::Dword) {
            if (!number) {
                return console.Fail(kUsage, "\"" + data + "\" is not a number from 0 to 4294967295, and " +
                                                ValueText(wideName) + " is a REG_DWORD");
            }
            outcome = transaction.SetValue(id, wideName, DwordBytes(*number).View());
        } else {
            std::vector<std::byte> bytes;
            AppendUtf16Le(wideData, bytes);
            bytes.insert(bytes.end(), 2, std::byte{0});
            outcome = transaction.SetValue(id, wideName, {ValueType::Sz, bytes});
        }
        if (outcome == Outcome::Failed) {
            return console.Fail(transaction.LastError());
        }
        WarnOf(reading, type == DataType::Dword, number.value_or(0), ValueText(wideName), console);
        return kDone;
    });
}

int Delete(const StoreChoice& choice, const std::string& key, const DeleteOptions& options, const Console& console)
{
    const auto which = ParseKey(key);
    const auto name = options.name ? Wide(*options.name) : std::wstring();
    if (!options.name && which.path.empty()) {
        throw UsageError("refusing to delete a whole hive");
    }
    Error error;
    const auto access = options.dryRun ? Access::Read : Access::Write;
    const auto store = choice.Open(access, error);
    if (!store) {
        return console.Fail(error);
    }
    std::size_t keys = 0;
    std::size_t values = 0;
    const int status = Within(*store, access, console, [&](Transaction& transaction) -> int {
        KeyId id = 0;
        const auto opened = transaction.OpenKey(which.hive, which.path, id);
        if (opened == Outcome::Missing) {
            return NoKey(console, key);
        }
        if (options.name) {
            ValueView value;
            auto outcome = opened == Outcome::Found ? transaction.Query(id, name, value) : opened;
            if (outcome == Outcome::Missing) {
                return NoValue(transaction, which, key, name, console);
            }
            if (outcome == Outcome::Found && !options.dryRun) {
                outcome = transaction.DeleteValue(id, name);
            }
            return outcome == Outcome::Failed ? console.Fail(transaction.LastError()) : int{kDone};
        }
        if (opened == Outcome::Failed || !Count(transaction, which, keys, values)) {
            return console.Fail(transaction.LastError());
        }
        if (keys > 1 && !options.recursive) {
            return console.Fail(kUsage, "the key " + key + " has " + Counted(keys - 1, "key") +
                                            " below it; give --recursive to delete them too");
        }
        if (!options.dryRun && transaction.DeleteKey(which.hive, which.path) == Outcome::Failed) {
            return console.Fail(transaction.LastError());
        }
        return kDone;
    });
    if (status != kDone) {
        return status;
    }
    if (options.dryRun) {
        return PreviewChanges(
            *store,
            [&](RegFileVisitor& visitor, Error& failure) {
                return options.name ? visitor.Key(which.hive, which.path, failure) && visitor.DeleteValue(name, failure)
                                    : visitor.DeleteKey(which.hive, which.path, failure);
            },
            choice.secrets, console);
    }
    if (!options.name) {
        console.err << "deleted " << CountsText(keys, values) << '\n';
    }
    return kDone;
}

int List(const StoreChoice& choice, const std::string& key, bool recursive, const Console& console)
{
    const auto which = key.empty() ? FullKey() : ParseKey(key);
    Error error;
    const auto store = choice.Open(Access::Read, error);
    if (!store) {
        return console.Fail(error);
    }
    return Within(*store, Access::Read, console, [&](Transaction& transaction) -> int {
        Lister lister(transaction, recursive, console);
        KeyId id = 0;
        bool listed = false;
        if (key.empty()) {
            listed = lister.ListHives();
        } else {
            const auto opened = transaction.OpenKey(which.hive, which.path, id);
            if (opened == Outcome::Missing) {
                return NoKey(console, key);
            }
            listed = opened == Outcome::Found && lister.ListOpened(id, which, {});
        }
        return listed ? int{kDone} : console.Fail(transaction.LastError());
    });
}

} // namespace wqspcfg::tools

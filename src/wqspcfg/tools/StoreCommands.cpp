#include "wqspcfg/tools/StoreCommands.h"

#include "wqspcfg/diagnosis/Change.h"
#include "wqspcfg/diagnosis/Difference.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/store/Backup.h"
#include "wqspcfg/platform/store/Maintenance.h"
#include "wqspcfg/platform/store/RegistryPath.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/store/memory/MemoryStore.h"
#include "wqspcfg/tools/JsonText.h"
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

int PreviewRestore(const StoreChoice& choice, const std::string& file, const PreviewOptions&, const Console& console)
{
    return Restore(choice, file, std::nullopt, console); // says that there is no embedded store on Windows
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
int PreviewRestore(const StoreChoice& choice, const std::string& file, const PreviewOptions& preview,
                   const Console& console)
{
    if (!choice.Address().starts_with("lmdb:")) {
        return Restore(choice, file, std::nullopt, console); // refuses, and says why
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
    return after ? PreviewReplacement(before.get(), *after, preview, console) : console.Fail(error);
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
        if (m_isMade && RemoveNewStore(m_address)) {
            RemoveDirectories();
            console.Note("removed the store " + m_address + " again");
        }
    }

    // Where no store was made.
    void RemoveDirectories() const
    {
        std::error_code code;
        for (const auto& directory : m_made) {
            std::filesystem::remove(directory, code); // what is not empty stays
        }
    }

  private:
    std::string m_address;
    bool m_isMade;
    std::vector<std::filesystem::path> m_made; // the innermost first
};

// What a listing is made of, in its order.
class ListOutput
{
  public:
    virtual ~ListOutput() = default;
    // What follows is of this key. `path` is that from the listed key on, or the hive.
    virtual void Key(const FullKey& key, const std::string& path) = 0;
    virtual void Subkey(std::wstring_view name) = 0;
    virtual void Value(std::wstring_view name, const ValueView& value, bool isMasked) = 0;
};

class ListText final : public ListOutput
{
  public:
    ListText(bool recursive, std::ostream& out) : m_recursive(recursive), m_out(out) {}

    void Key(const FullKey&, const std::string& path) override
    {
        m_path = path;
        if (!path.empty()) {
            m_out << path << '\n';
        }
    }
    void Subkey(std::wstring_view name) override
    {
        if (!m_recursive) {
            m_out << DisplayText(name) << "\\\n";
        }
    }
    void Value(std::wstring_view name, const ValueView& value, bool isMasked) override
    {
        m_out << m_path << (name.empty() ? std::string("(default)") : DisplayText(name)) << '\t' << TypeName(value.type)
              << '\t' << (isMasked ? diagnosis::kMasked : DisplayText(DataText(value, L"; "))) << '\n';
    }

  private:
    bool m_recursive;
    std::ostream& m_out;
    std::string m_path;
};

class ListJson final : public ListOutput
{
  public:
    void Key(const FullKey& key, const std::string&) override
    {
        ordered_json out;
        out["path"] = Utf8(KeyText(key));
        out["subkeys"] = ordered_json::array();
        out["values"] = ordered_json::array();
        m_keys.push_back(std::move(out));
    }
    void Subkey(std::wstring_view name) override { m_keys.back()["subkeys"].push_back(Utf8(name)); }
    void Value(std::wstring_view name, const ValueView& value, bool isMasked) override
    {
        ordered_json out;
        out["name"] = Utf8(name);
        out.update(StoredJson(value, isMasked));
        m_keys.back()["values"].push_back(std::move(out));
    }

    ordered_json All() && { return {{"keys", std::move(m_keys)}}; }

  private:
    ordered_json m_keys = ordered_json::array();
};

class Lister
{
  public:
    Lister(Transaction& transaction, bool recursive, bool showSecrets, ListOutput& output)
        : m_transaction(transaction), m_recursive(recursive), m_showSecrets(showSecrets), m_output(output)
    {}

    // False on failure.
    bool List(KeyId id, const FullKey& key, const std::string& path)
    {
        m_output.Key(key, path);
        return ListOpened(id, key, path);
    }

    // The hives that hold something; what they hold where it is wanted.
    bool ListHives(bool withContent)
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
                const FullKey key{hive, {}};
                const auto path = Utf8(KeyText(key)) + '\\';
                m_output.Key(key, path);
                if (withContent && !ListOpened(id, key, path)) {
                    return false;
                }
            }
        }
        return true;
    }

  private:
    bool ListOpened(KeyId id, const FullKey& key, const std::string& path)
    {
        std::vector<std::wstring> subkeys;
        const auto subkey = [&](std::wstring_view name) {
            m_output.Subkey(name);
            if (m_recursive) {
                subkeys.emplace_back(name);
            }
            return true;
        };
        const auto value = [&](std::wstring_view name, const ValueView& view) {
            m_output.Value(name, view, !m_showSecrets && diagnosis::IsSecretName(name));
            return true;
        };
        if (m_transaction.EnumKeys(id, subkey) == Outcome::Failed ||
            m_transaction.EnumValues(id, value) == Outcome::Failed) {
            return false;
        }
        m_transaction.CloseKey(id);
        return std::all_of(subkeys.begin(), subkeys.end(), [&](const std::wstring& name) {
            const FullKey below{key.hive, key.path.empty() ? name : key.path + L'\\' + name};
            KeyId opened = 0;
            return m_transaction.OpenKey(below.hive, below.path, opened) == Outcome::Found &&
                   List(opened, below, path + DisplayText(name) + '\\');
        });
    }

    Transaction& m_transaction;
    bool m_recursive;
    bool m_showSecrets;
    ListOutput& m_output;
};

} // namespace

int Import(const StoreChoice& choice, const std::vector<std::string>& files,
           const std::optional<PreviewOptions>& preview, const Console& console)
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
        if (content.IsTakenAsUtf8()) {
            choice.NoteTakenAsUtf8(file == "-" ? "standard input" : file);
        }
    }
    if (preview) {
        const auto store = choice.Exists() ? choice.Open(Access::Read, error, true)
                                           : std::make_shared<MemoryStore>(choice.Address(), kEmbeddedNameRoom);
        return store ? PreviewChanges(
                           *store,
                           [&contents](RegFileVisitor& visitor, Error& failure) {
                               return std::all_of(contents.begin(), contents.end(), [&](const auto& content) {
                                   return content->Visit(visitor, failure);
                               });
                           },
                           *preview, console)
                     : console.Fail(error);
    }
    const NewStore fresh(choice);
    auto store = choice.OpenOrCreate(console, error, true);
    if (!store) {
        fresh.RemoveDirectories();
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
    return file.empty() ? write(console.out) : WriteOutputFile(file, store->Files(), write, console);
}

int BackUp(const StoreChoice& choice, const std::string& file, const Console& console)
{
    choice.Check(false);
    BackupCounts counts;
    Error error;
    if (!BackUpStore(choice.Address(), file, counts, error)) {
        return console.Fail(error);
    }
    console.err << DisplayText(file) << ": " << CountsText(counts.keys, counts.values) << '\n';
    return kDone;
}

int Restore(const StoreChoice& choice, const std::string& file, const std::optional<PreviewOptions>& preview,
            const Console& console)
{
    choice.Check(false);
    if (preview) {
        return PreviewRestore(choice, file, *preview, console);
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

int Get(const StoreChoice& choice, const std::string& key, const std::string& name, bool json, const Console& console)
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
        const bool isMasked = !choice.secrets && diagnosis::IsSecretName(wideName);
        if (json) {
            ordered_json out;
            out["path"] = Utf8(KeyText(which));
            out["name"] = name;
            out.update(StoredJson(value, isMasked));
            PrintJson(out, console.out);
        } else if (isMasked) {
            console.out << diagnosis::kMasked << '\n';
        } else {
            // A program gets the text as it stands, a person's terminal nothing that it would obey.
            const auto text = DataText(value, L"\n");
            console.out << (console.outIsTerminal ? DisplayText(text) : Utf8(text)) << '\n';
        }
        if (isMasked) {
            console.Note(ValueText(wideName) + " is a key or a password; give --secrets to print it");
        }
        return kDone;
    });
}

namespace {

// What the services of the store make of a value, which is about to be set.
diagnosis::Reading ReadingOf(const std::shared_ptr<Store>& store, const FullKey& which, std::wstring_view name)
{
    if (which.hive != HiveOf(which.path)) {
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
                const bool isMasked = !choice.secrets && diagnosis::IsSecretName(wideName);
                return console.Fail(kUsage, (isMasked ? std::string("what is given") : '"' + data + '"') +
                                                " is not a number from 0 to 4294967295, and " + ValueText(wideName) +
                                                " is a REG_DWORD");
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
    const auto access = options.preview ? Access::Read : Access::Write;
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
            if (outcome == Outcome::Found && !options.preview) {
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
        if (!options.preview && transaction.DeleteKey(which.hive, which.path) == Outcome::Failed) {
            return console.Fail(transaction.LastError());
        }
        return kDone;
    });
    if (status != kDone) {
        return status;
    }
    if (options.preview) {
        return PreviewChanges(
            *store,
            [&](RegFileVisitor& visitor, Error& failure) {
                return options.name ? visitor.Key(which.hive, which.path, failure) && visitor.DeleteValue(name, failure)
                                    : visitor.DeleteKey(which.hive, which.path, failure);
            },
            *options.preview, console);
    }
    if (!options.name) {
        console.err << "deleted " << CountsText(keys, values) << '\n';
    }
    return kDone;
}

int List(const StoreChoice& choice, const std::string& key, const ListOptions& options, const Console& console)
{
    const auto which = key.empty() ? FullKey() : ParseKey(key);
    Error error;
    const auto store = choice.Open(Access::Read, error);
    if (!store) {
        return console.Fail(error);
    }
    ListText text(options.recursive, console.out);
    ListJson json;
    const int status = Within(*store, Access::Read, console, [&](Transaction& transaction) -> int {
        ListOutput& output = options.json ? static_cast<ListOutput&>(json) : text;
        Lister lister(transaction, options.recursive, choice.secrets, output);
        KeyId id = 0;
        bool listed = false;
        if (key.empty()) {
            listed = lister.ListHives(options.recursive || options.json);
        } else {
            const auto opened = transaction.OpenKey(which.hive, which.path, id);
            if (opened == Outcome::Missing) {
                return NoKey(console, key);
            }
            listed = opened == Outcome::Found && lister.List(id, which, {});
        }
        return listed ? int{kDone} : console.Fail(transaction.LastError());
    });
    if (status == kDone && options.json) {
        PrintJson(std::move(json).All(), console.out);
    }
    return status;
}

} // namespace wqspcfg::tools

#include "wqspcfg/tools/StoreCommands.h"

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/store/Backup.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>

namespace wqspcfg::tools {

namespace {

struct FullKey
{
    Hive hive = Hive::LocalMachine;
    std::wstring path;
};

FullKey ParseKey(const std::string& text)
{
    const auto wide = Wide(text);
    FullKey key;
    std::wstring_view path;
    if (!SplitHive(wide, key.hive, path)) {
        throw UsageError("\"" + text + "\" is no key: a key begins with a hive, such as HKLM\\SOFTWARE\\XFS");
    }
    // Backslashes at either end do not count.
    while (path.starts_with(L'\\')) {
        path.remove_prefix(1);
    }
    while (path.ends_with(L'\\')) {
        path.remove_suffix(1);
    }
    key.path = path;
    return key;
}

std::optional<DWORD> ParseNumber(std::string_view text, bool strict)
{
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    } else if (strict && text.size() > 1 && text.front() == '0') {
        return std::nullopt; // "007" is rather a text
    }
    DWORD value = 0;
    const auto* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value, base);
    return result.ec == std::errc() && result.ptr == end ? std::optional(value) : std::nullopt;
}

std::string TypeName(ValueType type)
{
    switch (type) {
    case ValueType::None:
        return "REG_NONE";
    case ValueType::Sz:
        return "REG_SZ";
    case ValueType::ExpandSz:
        return "REG_EXPAND_SZ";
    case ValueType::Binary:
        return "REG_BINARY";
    case ValueType::Dword:
        return "REG_DWORD";
    case ValueType::DwordBigEndian:
        return "REG_DWORD_BIG_ENDIAN";
    case ValueType::Link:
        return "REG_LINK";
    case ValueType::MultiSz:
        return "REG_MULTI_SZ";
    case ValueType::Qword:
        return "REG_QWORD";
    }
    return "type " + std::to_string(static_cast<std::uint32_t>(type));
}

std::string HexBytes(std::span<const std::byte> data)
{
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (const auto byte : data) {
        const auto number = std::to_integer<unsigned>(byte);
        if (!text.empty()) {
            text += ' ';
        }
        text += kDigits[number >> 4];
        text += kDigits[number & 15];
    }
    return text;
}

std::uint64_t LittleEndian(std::span<const std::byte> data)
{
    std::uint64_t number = 0;
    for (std::size_t i = data.size(); i-- > 0;) {
        number = (number << 8) | std::to_integer<std::uint64_t>(data[i]);
    }
    return number;
}

// A number in decimal, text as it stands (each string of a REG_MULTI_SZ after the other, `separator` between them),
// everything else as hexadecimal bytes.
std::string DataText(const ValueView& value, const char* separator)
{
    if (value.type == ValueType::Dword && value.data.size() == 4) {
        return std::to_string(LittleEndian(value.data));
    }
    if (value.type == ValueType::Qword && value.data.size() == 8) {
        return std::to_string(LittleEndian(value.data));
    }
    const bool text =
        value.type == ValueType::Sz || value.type == ValueType::ExpandSz || value.type == ValueType::MultiSz;
    std::wstring wide;
    if (!text || !AppendWideFromUtf16Le(value.data.first(value.data.size() & ~std::size_t{1}), wide)) {
        return HexBytes(value.data);
    }
    if (value.type != ValueType::MultiSz) {
        return Utf8(std::wstring_view(wide).substr(0, wide.find(L'\0')));
    }
    std::string all;
    for (std::size_t start = 0; start < wide.size() && wide[start] != 0;) {
        const auto end = std::min(wide.find(L'\0', start), wide.size());
        all += (start != 0 ? separator : "") + Utf8(std::wstring_view(wide).substr(start, end - start));
        start = end + 1;
    }
    return all;
}

std::string Quoted(std::wstring_view name)
{
    return name.empty() ? std::string("the default value") : "the value \"" + Utf8(name) + "\"";
}

// Runs `work` in a transaction of the store, commits what it wrote, and turns failures into messages.
template <class F>
int Within(const StoreChoice& choice, Access access, bool create, const Console& console, F work)
{
    Error error;
    const auto store = choice.Open(access, create, error);
    if (!store) {
        return console.Fail(error);
    }
    const auto transaction = store->Begin(access, error);
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

} // namespace

int Import(const StoreChoice& choice, const std::vector<std::string>& files, const Console& console)
{
    Error error;
    const auto store = choice.Open(Access::Write, true, error);
    if (!store) {
        return console.Fail(error);
    }
    for (const auto& file : files) {
        ImportCounts counts;
        const bool done = file == "-" ? ImportRegFile(*store, console.in, "standard input", counts, error)
                                      : ImportRegFile(*store, file, counts, error);
        if (!done) {
            return console.Fail(error);
        }
        console.err << (file == "-" ? "standard input" : file) << ": " << counts.keys << " keys, " << counts.values
                    << " values";
        if (counts.deletions != 0) {
            console.err << ", " << counts.deletions << " deletions";
        }
        console.err << '\n';
    }
    return kDone;
}

int Export(const StoreChoice& choice, const std::string& key, const std::string& file, const Console& console)
{
    const auto which = key.empty() ? FullKey() : ParseKey(key);
    Error error;
    const auto store = choice.Open(Access::Read, false, error);
    if (!store) {
        return console.Fail(error);
    }
    const auto write = [&](std::ostream& output) {
        const bool done = key.empty() ? ExportRegFile(*store, output, error)
                                      : ExportRegFile(*store, which.hive, which.path, output, error);
        return done ? int{kDone} : console.Fail(error.kind == ErrorKind::NotFound ? kNegative : kFailed, error.message);
    };
    if (file.empty()) {
        return write(console.out);
    }
    std::filesystem::path path(std::u8string(file.begin(), file.end()));
    std::error_code code;
    if (std::filesystem::exists(path, code)) {
        // A link stays a link, and a device or pipe is written to.
        if (const auto real = std::filesystem::canonical(path, code); !code) {
            path = real;
        }
        if (!std::filesystem::is_regular_file(path, code)) {
            std::ofstream output(path, std::ios::binary);
            const int status = output ? write(output) : kDone;
            return output.flush() ? status : console.Fail(kFailed, file + ": cannot be written");
        }
    }
    // An export that fails leaves the old file.
    auto temporary = path;
    temporary += ".tmp";
    int status = kDone;
    {
        std::ofstream output(temporary, std::ios::binary | std::ios::trunc);
        if (!output) {
            return console.Fail(kFailed, file + ": cannot be written");
        }
        status = write(output);
        output.close();
        if (status == kDone && !output) {
            status = console.Fail(kFailed, file + ": cannot be written");
        }
    }
    if (status == kDone) {
        std::filesystem::rename(temporary, path, code);
        if (code) {
            status = console.Fail(kFailed, file + ": " + code.message());
        }
    }
    if (status != kDone) {
        std::filesystem::remove(temporary, code);
    }
    return status;
}

int BackUp(const StoreChoice& choice, const std::string& file, const Console& console)
{
    BackupCounts counts;
    Error error;
    if (!BackUpStore(choice.Address(), file, counts, error)) {
        return console.Fail(error);
    }
    console.err << file << ": " << counts.keys << " keys, " << counts.values << " values\n";
    return kDone;
}

int Restore(const StoreChoice& choice, const std::string& file, const Console& console)
{
    BackupCounts counts;
    std::string kept;
    Error error;
    if (!RestoreStore(choice.Address(), file, counts, kept, error)) {
        return console.Fail(error);
    }
    if (!kept.empty()) {
        console.err << "the store was damaged; its old file is kept as " << kept << '\n';
    }
    console.err << choice.Address() << ": " << counts.keys << " keys, " << counts.values << " values\n";
    return kDone;
}

int Get(const StoreChoice& choice, const std::string& key, const std::string& name, const Console& console)
{
    const auto which = ParseKey(key);
    const auto wideName = Wide(name);
    return Within(choice, Access::Read, false, console, [&](Transaction& transaction) -> int {
        ValueView value;
        switch (transaction.QueryAt(which.hive, which.path, wideName, value)) {
        case Outcome::Failed:
            return console.Fail(transaction.LastError());
        case Outcome::Missing:
            return console.Fail(kNegative, key + " does not hold " + Quoted(wideName));
        case Outcome::Found:
            break;
        }
        console.out << DataText(value, "\n") << '\n';
        return kDone;
    });
}

int Set(const StoreChoice& choice, const std::string& key, const std::string& name, const std::string& data,
        DataType type, const Console& console)
{
    const auto which = ParseKey(key);
    const auto wideName = Wide(name);
    const auto wideData = Wide(data);
    return Within(choice, Access::Write, true, console, [&](Transaction& transaction) -> int {
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
            if (found == Outcome::Missing) {
                type = ParseNumber(data, true) ? DataType::Dword : DataType::Sz;
            } else if (present.type == ValueType::Dword || present.type == ValueType::Sz) {
                type = present.type == ValueType::Dword ? DataType::Dword : DataType::Sz;
            } else {
                return console.Fail(kUsage, Quoted(wideName) + " is a " + TypeName(present.type) +
                                                "; --type tells what is to replace it");
            }
        }
        Outcome outcome = Outcome::Found;
        if (type == DataType::Dword) {
            const auto number = ParseNumber(data, false);
            if (!number) {
                return console.Fail(kUsage, "\"" + data + "\" is no number from 0 to 4294967295, and " +
                                                Quoted(wideName) + " is a REG_DWORD");
            }
            const std::byte bytes[] = {std::byte(*number), std::byte(*number >> 8), std::byte(*number >> 16),
                                       std::byte(*number >> 24)};
            outcome = transaction.SetValue(id, wideName, {ValueType::Dword, bytes});
        } else {
            std::vector<std::byte> bytes;
            AppendUtf16Le(wideData, bytes);
            bytes.insert(bytes.end(), 2, std::byte{0});
            outcome = transaction.SetValue(id, wideName, {ValueType::Sz, bytes});
        }
        return outcome == Outcome::Failed ? console.Fail(transaction.LastError()) : int{kDone};
    });
}

int Delete(const StoreChoice& choice, const std::string& key, const std::optional<std::string>& name,
           const Console& console)
{
    const auto which = ParseKey(key);
    const auto wideName = name ? Wide(*name) : std::wstring();
    if (!name && which.path.empty()) {
        throw UsageError("a whole hive is not deleted");
    }
    return Within(choice, Access::Write, false, console, [&](Transaction& transaction) -> int {
        Outcome outcome = Outcome::Found;
        if (name) {
            KeyId id = 0;
            outcome = transaction.OpenKey(which.hive, which.path, id);
            if (outcome == Outcome::Missing) {
                return NoKey(console, key);
            }
            if (outcome == Outcome::Found) {
                outcome = transaction.DeleteValue(id, wideName);
            }
        } else {
            outcome = transaction.DeleteKey(which.hive, which.path);
        }
        if (outcome == Outcome::Missing) {
            return name ? console.Fail(kNegative, key + " does not hold " + Quoted(wideName)) : NoKey(console, key);
        }
        return outcome == Outcome::Failed ? console.Fail(transaction.LastError()) : int{kDone};
    });
}

int List(const StoreChoice& choice, const std::string& key, const Console& console)
{
    const auto which = key.empty() ? FullKey() : ParseKey(key);
    return Within(choice, Access::Read, false, console, [&](Transaction& transaction) -> int {
        if (key.empty()) {
            static constexpr std::pair<Hive, const char*> kHives[] = {{Hive::LocalMachine, "HKEY_LOCAL_MACHINE"},
                                                                      {Hive::Users, "HKEY_USERS"},
                                                                      {Hive::CurrentUser, "HKEY_CURRENT_USER"},
                                                                      {Hive::ClassesRoot, "HKEY_CLASSES_ROOT"},
                                                                      {Hive::CurrentConfig, "HKEY_CURRENT_CONFIG"}};
            for (const auto& [hive, hiveName] : kHives) {
                KeyId id = 0;
                bool any = false;
                const auto note = [&any](auto&&...) {
                    any = true;
                    return false;
                };
                if (transaction.OpenKey(hive, {}, id) == Outcome::Failed ||
                    transaction.EnumKeys(id, note) == Outcome::Failed ||
                    transaction.EnumValues(id, note) == Outcome::Failed) {
                    return console.Fail(transaction.LastError());
                }
                if (any) {
                    console.out << hiveName << "\\\n";
                }
            }
            return kDone;
        }
        KeyId id = 0;
        const auto opened = transaction.OpenKey(which.hive, which.path, id);
        if (opened == Outcome::Missing) {
            return NoKey(console, key);
        }
        const auto keyLine = [&](std::wstring_view name) {
            console.out << Utf8(name) << "\\\n";
            return true;
        };
        const auto valueLine = [&](std::wstring_view name, const ValueView& value) {
            console.out << (name.empty() ? std::string("(default)") : Utf8(name)) << '\t' << TypeName(value.type)
                        << '\t' << DataText(value, "; ") << '\n';
            return true;
        };
        if (opened == Outcome::Failed || transaction.EnumKeys(id, keyLine) == Outcome::Failed ||
            transaction.EnumValues(id, valueLine) == Outcome::Failed) {
            return console.Fail(transaction.LastError());
        }
        return kDone;
    });
}

} // namespace wqspcfg::tools

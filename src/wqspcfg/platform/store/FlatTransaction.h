// The registry's semantics over an ordered sequence of names and records.
#pragma once

#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/store/Record.h"
#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/platform/text/Utf.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wqspcfg {

enum class Lookup : std::uint8_t
{
    Found,
    Absent,
    Failed, // the engine's Failure() tells why
};

// Where a name may be expected: one after another in a key, or anywhere.
enum class Locality : std::uint8_t
{
    Near,
    Far,
};

// An engine has
//   static constexpr bool kChecked              whether records carry check sums
//   std::size_t NameRoom() const                the length of the longest name it takes
//   bool Usable()                               false, with Failure() set, when the transaction cannot go on
//   bool CanWrite() const
//   Lookup Get(name, locality, record), Erase(name), ErasePrefix(prefix), Commit(flush)
//   Lookup Put(name, record, isThere)           isThere: the call before was a Get that found the name
//   Lookup Scan(prefix, visit)                  all names with the prefix in order, until visit(name, record) is false
//   bool ScanChecks() const                     whether Scan has verified the check sums of what it visits
//   const Error& Failure() const, const std::string& Address() const
template <class Engine>
class FlatTransaction final : public Transaction
{
  public:
    template <class... Args>
    explicit FlatTransaction(Args&&... args) : m_engine(std::forward<Args>(args)...)
    {}

    Engine& GetEngine() noexcept { return m_engine; }

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        if (!m_engine.Usable()) {
            return EngineFailed();
        }
        if (!m_path.Assign(hive, path)) {
            return RefusePath(hive, path);
        }
        const auto depth = m_path.Components().size();
        if (depth > 0) {
            const auto found = SubkeyExists(depth);
            if (found != Outcome::Found) {
                return found;
            }
        }
        key = AddHandle(m_path.Whole());
        return Outcome::Found;
    }

    void CloseKey(KeyId key) noexcept override
    {
        m_handles[key].open = false;
        m_closed.push_back(key);
    }

    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        if (!m_engine.Usable()) {
            return EngineFailed();
        }
        auto& handle = m_handles[key];
        if (!handle.open) {
            return Outcome::Missing;
        }
        handle.name.resize(handle.prefix);
        if (!AppendFolded(name, handle.name)) {
            return RefuseName(name);
        }
        return GetValue(handle.name, handle.prefix, handle.sum, Locality::Near, value);
    }

    Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
    {
        if (!m_engine.Usable()) {
            return EngineFailed();
        }
        auto& last = m_lastPath;
        if (hive != last.hive || path != last.path || last.key.prefix == 0) {
            last.key.name.clear();
            last.key.prefix = 0;
            if (!AppendFoldedPath(hive, path, last.key.name)) {
                return RefusePath(hive, path);
            }
            last.hive = hive;
            last.path = path;
            last.key.name.append(kValueMark);
            last.key.prefix = last.key.name.size();
            last.key.sum = Engine::kChecked ? NameSum(last.key.name) : 0;
        }
        last.key.name.resize(last.key.prefix);
        if (!AppendFolded(name, last.key.name)) {
            return RefuseName(name);
        }
        return GetValue(last.key.name, last.key.prefix, last.key.sum, Locality::Far, value);
    }

    bool HasPathQueries() const noexcept override { return true; }

    Outcome NameKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        if (!m_engine.Usable()) {
            return EngineFailed();
        }
        if (!m_path.Assign(hive, path)) {
            return RefusePath(hive, path);
        }
        key = AddHandle(m_path.Whole());
        return Outcome::Found;
    }

    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override
    {
        return Enumerate(key, kSubkeyMark, [&visit](std::wstring_view name, const RecordView&) { return visit(name); });
    }

    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        return Enumerate(key, kValueMark, [&visit](std::wstring_view name, const RecordView& record) {
            return visit(name, {static_cast<ValueType>(record.type), record.data});
        });
    }

    Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        if (!CanWrite()) {
            return Outcome::Failed;
        }
        if (!m_path.Assign(hive, path)) {
            return RefusePath(hive, path);
        }
        const auto& components = m_path.Components();
        auto existing = components.size();
        for (; existing > 0; --existing) {
            const auto found = SubkeyExists(existing);
            if (found == Outcome::Failed) {
                return found;
            }
            if (found == Outcome::Found) {
                break;
            }
            // What can never be made is not looked for level by level.
            if (existing == components.size() &&
                (existing > kMaxKeyDepth || m_path.Whole().size() > m_engine.NameRoom())) {
                return TooDeep(hive, path, existing);
            }
        }
        // Nothing is created when a name is none for a key, or is too long.
        for (auto depth = existing + 1; depth <= components.size(); ++depth) {
            m_path.SubkeyName(depth, m_name);
            if (HasControlCharacter(components[depth - 1])) {
                return Fail(ErrorKind::BadText, m_engine.Address() + ": the key name " + Quoted(components[depth - 1]) +
                                                    " in " + DescribeFlatPath(m_path.Prefix(depth - 1)) +
                                                    " holds a line break or another control character");
            }
            if (Utf16Length(components[depth - 1]) > kMaxKeyName || m_name.size() > m_engine.NameRoom()) {
                return TooLong("the key name " + Quoted(components[depth - 1]), m_path.Prefix(depth - 1));
            }
        }
        for (auto depth = existing + 1; depth <= components.size(); ++depth) {
            m_path.SubkeyName(depth, m_name);
            const auto prefix = m_path.Prefix(depth - 1).size() + kSubkeyMark.size();
            if (Write(prefix, NameSum({m_name.data(), prefix}), 0, components[depth - 1], {}) != Outcome::Found) {
                return Outcome::Failed;
            }
        }
        key = AddHandle(m_path.Whole());
        return Outcome::Found;
    }

    Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
    {
        if (!CanWrite()) {
            return Outcome::Failed;
        }
        auto& handle = m_handles[key];
        if (!handle.open) {
            return KeyIsGone(handle);
        }
        m_name.assign(handle.name, 0, handle.prefix);
        if (!AppendFolded(name, m_name)) {
            return RefuseName(name);
        }
        if (Utf16Length(name) > kMaxValueName || m_name.size() > m_engine.NameRoom()) {
            return TooLong("the value name " + Quoted(name), PathOf(handle));
        }
        if (value.data.size() > kMaxData) {
            return TooLong("the value " + Quoted(name), PathOf(handle));
        }
        return Write(handle.prefix, handle.sum, static_cast<std::uint32_t>(value.type), name, value.data);
    }

    Outcome DeleteValue(KeyId key, std::wstring_view name) override
    {
        if (!CanWrite()) {
            return Outcome::Failed;
        }
        auto& handle = m_handles[key];
        if (!handle.open) {
            return Outcome::Missing;
        }
        m_name.assign(handle.name, 0, handle.prefix);
        if (!AppendFolded(name, m_name)) {
            return RefuseName(name);
        }
        return m_name.size() > m_engine.NameRoom() ? Outcome::Missing : FromEngine(m_engine.Erase(m_name));
    }

    Outcome DeleteKey(Hive hive, std::wstring_view path) override
    {
        if (!CanWrite()) {
            return Outcome::Failed;
        }
        if (!m_path.Assign(hive, path)) {
            return RefusePath(hive, path);
        }
        const auto depth = m_path.Components().size();
        if (depth == 0) {
            return Fail(ErrorKind::BadArgument,
                        m_engine.Address() + ": " + DescribeKey(hive, {}) + " is a hive and cannot be deleted");
        }
        const auto found = SubkeyExists(depth);
        if (found != Outcome::Found) {
            return found;
        }
        const std::string flat(m_path.Whole());
        m_path.SubkeyName(depth, m_name);
        if (m_engine.ErasePrefix(flat + '\0') == Lookup::Failed ||
            m_engine.ErasePrefix(flat + '\\') == Lookup::Failed || m_engine.Erase(m_name) == Lookup::Failed) {
            return EngineFailed();
        }
        for (auto& handle : m_handles) {
            const auto name = PathOf(handle);
            if (name.starts_with(flat) && (name.size() == flat.size() || name[flat.size()] == '\\')) {
                handle.open = false;
            }
        }
        return Outcome::Found;
    }

    Outcome Commit(bool flush) override { return CanWrite() ? FromEngine(m_engine.Commit(flush)) : Outcome::Failed; }

  private:
    // A value's bytes and its header stay within what every platform can address and the embedded store can hold.
    static constexpr std::size_t kMaxData = 0x7FFF0000;

    struct Handle
    {
        std::string name;       // the flat path and kValueMark; room for a value name behind it
        std::size_t prefix = 0; // length without the value name
        std::uint64_t sum = 0;  // NameSum of the prefix
        bool open = true;
    };

    static std::string Quoted(std::wstring_view name)
    {
        constexpr std::size_t kShown = 80;
        return '"' + Utf8ForMessage(name.substr(0, kShown)) + (name.size() > kShown ? "...\"" : "\"");
    }

    static std::string_view PathOf(const Handle& handle)
    {
        return std::string_view(handle.name).substr(0, handle.prefix - kValueMark.size());
    }

    KeyId AddHandle(std::string_view flatPath)
    {
        auto key = static_cast<KeyId>(m_handles.size());
        if (m_closed.empty()) {
            m_handles.emplace_back();
        } else {
            key = m_closed.back();
            m_closed.pop_back();
        }
        auto& handle = m_handles[key];
        handle.open = true;
        handle.name.reserve(flatPath.size() + 48);
        handle.name.assign(flatPath);
        handle.name.append(kValueMark);
        handle.prefix = handle.name.size();
        handle.sum = Engine::kChecked ? NameSum(handle.name) : 0;
        return key;
    }

    Outcome EngineFailed()
    {
        const auto& failure = m_engine.Failure();
        return Fail(failure.kind, failure.message);
    }

    Outcome FromEngine(Lookup lookup)
    {
        switch (lookup) {
        case Lookup::Found:
            return Outcome::Found;
        case Lookup::Absent:
            return Outcome::Missing;
        default:
            return EngineFailed();
        }
    }

    bool CanWrite()
    {
        if (!m_engine.Usable()) {
            EngineFailed();
            return false;
        }
        if (!m_engine.CanWrite()) {
            Fail(ErrorKind::BadArgument, m_engine.Address() + ": a read transaction cannot write");
            return false;
        }
        return true;
    }

    Outcome RefusePath(Hive hive, std::wstring_view path)
    {
        return Fail(ErrorKind::BadText, m_engine.Address() + ": the key path " + DescribeKey(hive, path) +
                                            " holds a NUL or is not well-formed text");
    }

    Outcome RefuseName(std::wstring_view name)
    {
        return Fail(ErrorKind::BadText, m_engine.Address() + ": the value name " + Quoted(name) +
                                            " holds a NUL or is not well-formed text");
    }

    Outcome TooLong(const std::string& what, std::string_view flatPath)
    {
        return Fail(ErrorKind::TooLong, m_engine.Address() + ": " + what + " in " + DescribeFlatPath(flatPath) +
                                            " is longer than the store can hold");
    }

    Outcome TooDeep(Hive hive, std::wstring_view path, std::size_t levels)
    {
        const auto key = m_engine.Address() + ": the key path " + DescribeKey(hive, path);
        return Fail(ErrorKind::TooLong, levels > kMaxKeyDepth
                                            ? key + " has " + std::to_string(levels) + " levels; the registry has " +
                                                  std::to_string(kMaxKeyDepth) + " at most"
                                            : key + " is longer than the store can hold");
    }

    Outcome KeyIsGone(const Handle& handle)
    {
        return Fail(ErrorKind::NotFound,
                    m_engine.Address() + ": the key " + DescribeFlatPath(PathOf(handle)) + " has been deleted");
    }

    Outcome Damaged(std::string_view name, std::size_t prefix)
    {
        const auto path = DescribeFlatPath(name.substr(0, prefix - kValueMark.size()));
        std::wstring last;
        AppendWideFromCesu8(name.substr(prefix), last);
        const auto* what = name[prefix - 1] == kValueMark[1] ? "the value " : "the key ";
        return Fail(ErrorKind::Damaged, m_engine.Address() + ": " + what + Quoted(last) + " in " + path +
                                            " is damaged: its check sum is wrong");
    }

    bool IsIntact(std::string_view name, std::size_t prefix, std::uint64_t sum, std::string_view record) const
    {
        return !Engine::kChecked || IsSealed(sum, name.substr(prefix), record);
    }

    Outcome GetValue(std::string_view name, std::size_t prefix, std::uint64_t sum, Locality locality, ValueView& value)
    {
        if (name.size() > m_engine.NameRoom()) {
            return Outcome::Missing;
        }
        std::string_view record;
        const auto found = m_engine.Get(name, locality, record);
        if (found != Lookup::Found) {
            return FromEngine(found);
        }
        RecordView view;
        if (!IsIntact(name, prefix, sum, record) || !ParseRecord(record, view)) {
            return Damaged(name, prefix);
        }
        value = {static_cast<ValueType>(view.type), view.data};
        return Outcome::Found;
    }

    // Whether the first `depth` components of m_path name a key. Uses m_name.
    Outcome SubkeyExists(std::size_t depth)
    {
        m_path.SubkeyName(depth, m_name);
        const auto prefix = m_path.Prefix(depth - 1).size() + kSubkeyMark.size();
        ValueView ignored;
        return GetValue(m_name, prefix, Engine::kChecked ? NameSum({m_name.data(), prefix}) : 0, Locality::Far,
                        ignored);
    }

    template <class Visit>
    Outcome Enumerate(KeyId key, std::string_view mark, Visit visit)
    {
        if (!m_engine.Usable()) {
            return EngineFailed();
        }
        const auto& handle = m_handles[key];
        if (!handle.open) {
            return Outcome::Missing;
        }
        m_name.assign(PathOf(handle));
        m_name.append(mark);
        const auto prefix = m_name.size();
        const auto sum = NameSum(m_name);
        bool damaged = false;
        const auto scanned = m_engine.Scan(m_name, [&](std::string_view name, std::string_view record) {
            RecordView view;
            m_wide.clear();
            if ((!m_engine.ScanChecks() && !IsIntact(name, prefix, sum, record)) || !ParseRecord(record, view) ||
                !AppendWideFromCesu8(view.writtenName.empty() ? name.substr(prefix) : view.writtenName, m_wide)) {
                Damaged(name, prefix);
                damaged = true;
                return false;
            }
            return visit(std::wstring_view(m_wide), view);
        });
        return damaged ? Outcome::Failed : FromEngine(scanned);
    }

    // Writes the record of m_name. A name keeps the spelling that it was created with.
    Outcome Write(std::size_t prefix, std::uint64_t sum, std::uint32_t type, std::wstring_view writtenName,
                  std::span<const std::byte> data)
    {
        const auto name = std::string_view(m_name).substr(prefix);
        std::string_view record;
        RecordView existing;
        const auto found = m_engine.Get(m_name, Locality::Near, record);
        if (found == Lookup::Failed) {
            return EngineFailed();
        }
        m_written.clear();
        if (found == Lookup::Found && IsIntact(m_name, prefix, sum, record) && ParseRecord(record, existing)) {
            m_written = existing.writtenName;
        } else {
            AppendCesu8(writtenName, m_written);
            if (m_written == name) {
                m_written.clear();
            }
        }
        BuildRecord(type, m_written, data, m_record);
        if (Engine::kChecked) {
            SealRecord(sum, name, m_record);
        }
        if (found == Lookup::Found && record == m_record) {
            return Outcome::Found; // a Save mostly writes what is there
        }
        return FromEngine(m_engine.Put(m_name, m_record, found == Lookup::Found));
    }

    Engine m_engine;
    std::vector<Handle> m_handles;
    struct
    {
        Hive hive = Hive::LocalMachine;
        std::wstring path;
        Handle key; // prefix 0: none yet
    } m_lastPath;   // of QueryAt, which often goes on in the same key
    std::vector<KeyId> m_closed;
    FlatPath m_path;
    // Kept for their memory.
    std::string m_name;
    std::string m_written;
    std::string m_record;
    std::wstring m_wide;
};

} // namespace wqspcfg

#include "wqspcfg/tools/hive/HiveStore.h"

#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"
#include "wqspcfg/tools/hive/HiveFolder.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace wqspcfg {

namespace {

class HiveTransaction final : public Transaction
{
  public:
    HiveTransaction(const std::string& address, const HiveSet& hives)
        : m_address(address), m_ways{Way{Hive::LocalMachine, L"SOFTWARE", hives.software, {}},
                                     Way{Hive::Users, L".DEFAULT", hives.standard, {}}}
    {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        const auto components = Split(path);
        Key opened{hive, nullptr, 0, {}, {}};
        if (components.empty()) {
            return Keep(std::move(opened), key);
        }
        for (auto& way : m_ways) {
            if (way.hive == hive && way.file && EqualNoCase(way.name, components[0])) {
                const auto walked = Walk(way, components);
                if (walked != Outcome::Found) {
                    return walked;
                }
                opened.file = way.file.get();
                opened.at = way.levels.back().at;
                opened.path = path;
                return Keep(std::move(opened), key);
            }
        }
        return Outcome::Missing;
    }

    void CloseKey(KeyId key) noexcept override
    {
        m_keys[key] = {};
        m_closed.push_back(key);
    }

    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        auto& opened = m_keys[key];
        if (opened.file == nullptr) {
            return Outcome::Missing;
        }
        if (!LoadValues(opened)) {
            return Outcome::Failed;
        }
        const auto* entry = HiveFile::Find(*opened.values, name);
        return entry == nullptr ? Outcome::Missing : Read(opened, *entry, value);
    }

    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override
    {
        const auto& opened = m_keys[key];
        if (opened.file == nullptr) {
            for (const auto& way : m_ways) {
                if (way.hive == opened.hive && way.file && !visit(way.name)) {
                    break;
                }
            }
            return Outcome::Found;
        }
        HiveFile::Entries loaded;
        const auto* entries = &loaded;
        for (const auto& way : m_ways) {
            for (const auto& level : way.levels) {
                if (way.file.get() == opened.file && level.at == opened.at && level.subkeys) {
                    entries = &*level.subkeys;
                }
            }
        }
        std::string cause;
        if (entries == &loaded && !opened.file->Subkeys(opened.at, loaded, cause)) {
            return Damaged(*opened.file, opened.hive, opened.path, cause);
        }
        for (const auto& entry : *entries) {
            if (!visit(entry.name)) {
                break;
            }
        }
        return Outcome::Found;
    }

    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        auto& opened = m_keys[key];
        if (opened.file == nullptr) {
            return Outcome::Found;
        }
        if (!LoadValues(opened)) {
            return Outcome::Failed;
        }
        for (const auto& entry : *opened.values) {
            ValueView value;
            if (Read(opened, entry, value) == Outcome::Failed) {
                return Outcome::Failed;
            }
            if (!visit(entry.name, value)) {
                break;
            }
        }
        return Outcome::Found;
    }

    Outcome CreateKey(Hive, std::wstring_view, KeyId&) override { return Refuse(); }
    Outcome SetValue(KeyId, std::wstring_view, const ValueView&) override { return Refuse(); }
    Outcome DeleteValue(KeyId, std::wstring_view) override { return Refuse(); }
    Outcome DeleteKey(Hive, std::wstring_view) override { return Refuse(); }
    Outcome Commit(bool) override { return Refuse(); }

  private:
    struct Key
    {
        Hive hive = Hive::LocalMachine;
        const HiveFile* file = nullptr; // null for the root of a registry's hive, which no file holds
        std::size_t at = 0;
        std::wstring path;
        std::optional<HiveFile::Entries> values;
    };

    // One key on the way to the one that was opened last. The next is often near it, and a long list of subkeys is not
    // read again for each of them.
    struct Level
    {
        std::wstring name;
        std::size_t at = 0;
        std::optional<HiveFile::Entries> subkeys;
    };

    // To one file, by the key of the registry whose content it is.
    struct Way
    {
        Hive hive;
        std::wstring_view name;
        std::shared_ptr<const HiveFile> file;
        std::vector<Level> levels; // from the root of the file
    };

    static std::vector<std::wstring_view> Split(std::wstring_view path)
    {
        std::vector<std::wstring_view> components;
        while (!path.empty()) {
            const auto end = std::min(path.find(L'\\'), path.size());
            if (end > 0) {
                components.push_back(path.substr(0, end));
            }
            path.remove_prefix(std::min(end + 1, path.size()));
        }
        return components;
    }

    // Makes the way lead to the key, the first of whose components is the file's own.
    Outcome Walk(Way& way, const std::vector<std::wstring_view>& components)
    {
        auto& levels = way.levels;
        if (levels.empty()) {
            levels.push_back({std::wstring(way.name), way.file->Root(), {}});
        }
        std::size_t known = 1;
        while (known < levels.size() && known < components.size() &&
               EqualNoCase(levels[known].name, components[known])) {
            ++known;
        }
        levels.resize(known);
        for (; known < components.size(); ++known) {
            auto& parent = levels.back();
            const auto path = [&] {
                std::wstring text;
                for (const auto& level : levels) {
                    text += text.empty() ? level.name : L'\\' + level.name;
                }
                return text;
            };
            if (known > kMaxKeyDepth) {
                return Damaged(*way.file, way.hive, path(), "keys are deeper than a registry has them");
            }
            std::string cause;
            if (!parent.subkeys && !way.file->Subkeys(parent.at, parent.subkeys.emplace(), cause)) {
                parent.subkeys.reset();
                return Damaged(*way.file, way.hive, path(), cause);
            }
            const auto* entry = HiveFile::Find(*parent.subkeys, components[known]);
            if (entry == nullptr) {
                return Outcome::Missing;
            }
            levels.push_back({entry->name, entry->at, {}});
        }
        return Outcome::Found;
    }

    bool LoadValues(Key& key)
    {
        std::string cause;
        if (!key.values && !key.file->Values(key.at, key.values.emplace(), cause)) {
            key.values.reset();
            Damaged(*key.file, key.hive, key.path, cause);
            return false;
        }
        return true;
    }

    Outcome Read(const Key& key, const HiveFile::Entry& entry, ValueView& value)
    {
        std::string cause;
        if (!key.file->Data(entry.at, value.type, m_data, cause)) {
            return Damaged(*key.file, key.hive, key.path, "the value \"" + Utf8ForMessage(entry.name) + "\": " + cause);
        }
        value.data = m_data;
        return Outcome::Found;
    }

    Outcome Keep(Key opened, KeyId& key)
    {
        if (m_closed.empty()) {
            key = static_cast<KeyId>(m_keys.size());
            m_keys.push_back(std::move(opened));
        } else {
            key = m_closed.back();
            m_closed.pop_back();
            m_keys[key] = std::move(opened);
        }
        return Outcome::Found;
    }

    Outcome Damaged(const HiveFile& file, Hive hive, std::wstring_view path, const std::string& cause)
    {
        return Fail(ErrorKind::Damaged, file.Path() + ": the key " + DescribeKey(hive, path) + ": " + cause);
    }

    Outcome Refuse() { return Fail(ErrorKind::BadArgument, m_address + ": a read transaction cannot write"); }

    const std::string& m_address;
    std::array<Way, 2> m_ways;
    std::vector<Key> m_keys;
    std::vector<KeyId> m_closed;
    std::vector<std::byte> m_data;
};

} // namespace

std::shared_ptr<HiveStore> HiveStore::Open(std::string address, const std::string& path, bool view32, Error& error)
{
    std::shared_ptr<HiveStore> store(new HiveStore(std::move(address)));
    if (!OpenHives(path, store->m_hives, store->m_notes, error)) {
        return nullptr;
    }
    const auto transaction = store->Begin(Access::Read, error);
    KeyId key = 0;
    const auto has32 = transaction->OpenKey(Hive::LocalMachine, kXfsKey32, key);
    const auto has64 =
        has32 == Outcome::Failed ? Outcome::Failed : transaction->OpenKey(Hive::LocalMachine, kXfsKey, key);
    if (has64 == Outcome::Failed) {
        error = transaction->LastError();
        return nullptr;
    }
    if (has32 == Outcome::Found && has64 == Outcome::Missing && !view32) {
        error = {ErrorKind::BadArgument, path + Only32BitKeys("give --view32 to read them as SOFTWARE\\XFS")};
        return nullptr;
    }
    if (view32 && !FindKeys32(*transaction, store->m_view32)) {
        error = transaction->LastError();
        return nullptr;
    }
    return store;
}

std::unique_ptr<Transaction> HiveStore::Begin(Access access, Error& error)
{
    if (access == Access::Write) {
        error = {
            ErrorKind::AccessDenied,
            m_address +
                " is the registry on a disk and read-only; import an `export` of it into a store that can be written"};
        return nullptr;
    }
    std::unique_ptr<Transaction> content = std::make_unique<HiveTransaction>(m_address, m_hives);
    return m_view32.HasAny() ? InView32(std::move(content), m_view32) : std::move(content);
}

} // namespace wqspcfg

#include "wqspcfg/diagnosis/NameIndex.h"

#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/diagnosis/ClassSettings.h"
#include "wqspcfg/diagnosis/Nearest.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <limits>
#include <map>
#include <mutex>

namespace wqspcfg::diagnosis {

namespace {

// Names that differ in nothing else are taken for the same: case, spaces, underscores.
std::string Plain(std::wstring_view name)
{
    std::string plain;
    for (const char ch : Utf8ForMessage(UpCase(name))) {
        if (ch != ' ' && ch != '_' && ch != '\t') {
            plain += ch;
        }
    }
    return plain;
}

// How far a name may be from one that was meant by it.
std::size_t Reach(std::size_t length)
{
    return length <= 5 ? 1 : length <= 9 ? 2 : 3;
}

std::wstring KeyOf(Root root, std::wstring_view subkey)
{
    return static_cast<wchar_t>(L'0' + static_cast<int>(root)) + UpCase(subkey);
}

class Candidates
{
  public:
    explicit Candidates(std::wstring_view name) : m_plain(Plain(name)), m_least(2 * Reach(m_plain.size()) + 2) {}

    void Try(std::wstring_view candidate, const std::string& text, bool isLessLikely)
    {
        const auto plain = Plain(candidate);
        const auto longer = std::max(plain.size(), m_plain.size());
        const auto shorter = std::min(plain.size(), m_plain.size());
        if (longer - shorter > Reach(m_plain.size()) || plain.empty()) {
            return;
        }
        // One digit too many is the likeliest slip.
        const bool isDigitMore = m_plain.size() == plain.size() + 1 && m_plain.starts_with(plain) &&
                                 m_plain.back() >= '0' && m_plain.back() <= '9';
        const auto distance = (isDigitMore ? 1 : 2 * Distance(m_plain, plain)) + (isLessLikely ? 1 : 0);
        // A short name may not be another one altogether.
        if (distance < m_least && distance < 2 * longer) {
            m_least = distance;
            m_nearest = text;
        }
    }

    std::string Nearest() && { return std::move(m_nearest); }

  private:
    std::string m_plain;
    std::size_t m_least;
    std::string m_nearest;
};

} // namespace

bool MayMeanOneOf(std::wstring_view name, const std::set<std::wstring>& others)
{
    Candidates candidates(name);
    for (const auto& other : others) {
        candidates.Try(other, "this", false);
    }
    return !std::move(candidates).Nearest().empty();
}

const NameIndex& NameIndex::Of(const ClassEntry& entry)
{
    static std::mutex mutex;
    static auto& known = *new std::map<const ClassEntry*, NameIndex>; // lives as long as the process
    const std::lock_guard lock(mutex);
    const auto [index, isNew] = known.try_emplace(&entry);
    if (isNew) {
        for (const auto& each : SettingsOf(entry).All()) {
            index->second.Add(each.setting, *each.table);
        }
    }
    return index->second;
}

const NameIndex& NameIndex::All()
{
    static const auto& index = *[] {
        auto* all = new NameIndex; // lives as long as the process
        for (const auto* entry : AllClasses()) {
            const auto& table = entry->table();
            for (const bool isLoads : {true, false}) {
                for (const auto& setting : isLoads ? wqspcfg::Describe(table) : DescribeOperations(table)) {
                    all->Add(setting, table);
                }
            }
        }
        return all;
    }();
    return index;
}

void NameIndex::Add(const DescribedSetting& setting, const Table& table)
{
    if (setting.computed) {
        return; // nothing reads it
    }
    const auto add = [&](Root root, const std::wstring& key, const std::wstring& name) {
        m_byName[UpCase(name)].push_back(m_entries.size());
        m_byKey[KeyOf(root, key)].push_back(m_entries.size());
        m_entries.push_back({root, key, name, &table, !setting.wholeKey});
    };
    add(setting.root, setting.key, setting.readAs.empty() ? setting.name : setting.readAs);
    if (setting.fallback) {
        add(setting.fallback->root, setting.fallback->key, setting.fallback->name);
    }
}

bool NameIndex::Has(Root root, std::wstring_view subkey, std::wstring_view name) const
{
    return std::any_of(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
        return entry.root == root && MatchesPattern(entry.key, subkey) && MatchesPattern(entry.name, name);
    });
}

const std::wstring* NameIndex::SubkeyOf(Root root, std::wstring_view name) const
{
    const auto found = m_byName.find(UpCase(name));
    if (found == m_byName.end()) {
        return nullptr;
    }
    const auto index = std::find_if(found->second.begin(), found->second.end(), [&](std::size_t each) {
        const auto& entry = m_entries[each];
        return entry.root == root && entry.isFixed && entry.key.find(L'%') == std::wstring::npos;
    });
    return index != found->second.end() ? &m_entries[*index].key : nullptr;
}

bool NameIndex::HasFixed(Root root, std::wstring_view subkey, std::wstring_view name) const
{
    const auto& entries = In(root, subkey);
    return std::any_of(entries.begin(), entries.end(), [&](std::size_t index) {
        return m_entries[index].isFixed && EqualNoCase(m_entries[index].name, name);
    });
}

const NameIndex::Entries& NameIndex::In(Root root, std::wstring_view subkey) const
{
    static const Entries kNone;
    const auto found = m_byKey.find(KeyOf(root, subkey));
    return found != m_byKey.end() ? found->second : kNone;
}

std::string NameIndex::KeysOf(std::wstring_view name) const
{
    const auto found = m_byName.find(UpCase(name));
    if (found == m_byName.end()) {
        return {};
    }
    std::vector<std::string> keys;
    for (const auto index : found->second) {
        const auto text = KeyText(m_entries[index].root, m_entries[index].key);
        if (std::find(keys.begin(), keys.end(), text) == keys.end()) {
            keys.push_back(text);
        }
    }
    std::string all;
    for (const auto& key : keys) {
        all += (all.empty() ? "" : &key == &keys.back() ? " and " : ", ") + key;
    }
    return all;
}

std::string NameIndex::NearestName(Root root, std::wstring_view subkey, std::wstring_view name,
                                   const std::function<bool(const std::wstring& name)>& isStored, bool elsewhere) const
{
    Candidates here(name);
    Candidates other(name);
    const auto tryHere = [&](const Entry& entry) {
        if (const bool stored = isStored(entry.name); elsewhere || !stored) {
            here.Try(entry.name, Utf8ForMessage(entry.name) + (stored ? ", which is there too" : ""), stored);
        }
    };
    const auto isName = [](const Entry& entry) { return entry.isFixed && entry.name.find(L'%') == std::wstring::npos; };
    if (!elsewhere) {
        for (const auto index : In(root, subkey)) {
            if (isName(m_entries[index])) {
                tryHere(m_entries[index]);
            }
        }
        return std::move(here).Nearest();
    }
    for (const auto& entry : m_entries) {
        if (!isName(entry)) {
            continue;
        }
        if (entry.root == root && MatchesPattern(entry.key, subkey)) {
            tryHere(entry);
        } else {
            other.Try(entry.name, KeyText(entry.root, entry.key) + '\\' + Utf8ForMessage(entry.name), false);
        }
    }
    auto nearest = std::move(here).Nearest();
    return !nearest.empty() ? nearest : std::move(other).Nearest();
}

std::string NameIndex::NearestKey(Root root, std::wstring_view subkey,
                                  const std::function<bool(const std::wstring& subkey)>& isStored, bool elsewhere) const
{
    Candidates candidates(subkey);
    // A key above others is meant as well as they are.
    const auto depth = std::count(subkey.begin(), subkey.end(), L'\\');
    NameSet tried;
    for (const auto& entry : m_entries) {
        auto end = entry.key.find(L'\\');
        for (auto i = depth; i > 0 && end != std::wstring::npos; --i) {
            end = entry.key.find(L'\\', end + 1);
        }
        const auto key = entry.key.substr(0, end);
        if (entry.root == root && !key.empty() && key.find(L'%') == std::wstring::npos && tried.insert(key).second) {
            if (const bool stored = isStored(key); elsewhere || !stored) {
                candidates.Try(key, Utf8ForMessage(key) + (stored ? ", which is there too" : ""), stored);
            }
        }
    }
    return std::move(candidates).Nearest();
}

NameIndex::Model NameIndex::ModelOf(Root root, std::wstring_view subkey, std::wstring_view name,
                                    const ClassEntry& entry) const
{
    const auto found = m_byName.find(UpCase(name));
    if (found == m_byName.end()) {
        return {};
    }
    std::set<const Table*> tables;
    for (const auto index : found->second) {
        if (m_entries[index].root == root && MatchesPattern(m_entries[index].key, subkey)) {
            tables.insert(m_entries[index].table);
        }
    }
    return Describe(std::move(tables), entry);
}

NameIndex::Model NameIndex::ModelOfKey(Root root, std::wstring_view subkey, const ClassEntry& entry) const
{
    std::set<const Table*> tables;
    for (const auto& each : m_entries) {
        if (each.root == root && MatchesPattern(each.key, subkey)) {
            tables.insert(each.table);
        }
    }
    return Describe(std::move(tables), entry);
}

NameIndex::Model NameIndex::Describe(std::set<const Table*> tables, const ClassEntry& entry) const
{
    for (const auto* table : Lineage(entry.table())) {
        tables.erase(table);
    }
    if (tables.empty()) {
        return {};
    }
    const auto* deviceClass = DeviceClassOf(entry.table());
    std::vector<const Table*> sorted(tables.begin(), tables.end());
    const auto isSame = [&](const Table* table) {
        const auto* other = DeviceClassOf(*table);
        return deviceClass != nullptr && other != nullptr && std::wstring_view(deviceClass) == other;
    };
    std::sort(sorted.begin(), sorted.end(), [&](const Table* left, const Table* right) {
        return isSame(left) != isSame(right) ? isSame(left) : std::wstring_view(left->className) < right->className;
    });
    Model model{Utf8ForMessage(sorted.front()->className), isSame(sorted.front())};
    const auto others = static_cast<std::size_t>(std::count_if(
        sorted.begin(), sorted.end(), [&](const Table* table) { return isSame(table) == model.isSameDevice; }));
    if (others > 1) {
        model.text += " and " + std::to_string(others - 1) + " more";
    }
    return model;
}

} // namespace wqspcfg::diagnosis

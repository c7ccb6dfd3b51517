#include "wqspcfg/diagnosis/Difference.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/diagnosis/NameIndex.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace wqspcfg::diagnosis {

namespace {

std::string Utf8(std::wstring_view text)
{
    return Utf8ForMessage(text);
}

std::wstring PathOfService(const ServiceIdentity& service)
{
    return service.logicalName.empty() ? kServiceRoot + service.physicalName : kLogicalRoot + service.logicalName;
}

bool IsText(const DescribedSetting& setting)
{
    return setting.type == Type::String || setting.type == Type::Char;
}

// The class makes the value, each time another one.
bool IsMade(const ExaminedSetting& setting)
{
    const auto& described = setting.Setting();
    return described.computed || setting.source == Source::Code ||
           (described.computedDefault && (setting.source == Source::Missing || setting.source == Source::WrongType));
}

// The stored value that decides: the one in effect, else one that is ignored. Null where there is none.
const AskedKey* Deciding(const ExaminedSetting& setting)
{
    if (const auto* key = setting.KeyInEffect()) {
        return key;
    }
    const auto found =
        std::find_if(setting.asked.begin(), setting.asked.end(), [](const AskedKey& key) { return key.found; });
    const bool isIgnored = setting.source == Source::WrongType || setting.source == Source::NotRead;
    return isIgnored && found != setting.asked.end() ? &*found : nullptr;
}

class Comparison
{
  public:
    explicit Comparison(bool showSecrets) : m_showSecrets(showSecrets) {}

    std::vector<Difference> Run(const std::vector<Examination>& left, const std::vector<Examination>& right)
    {
        for (const auto& examination : left) {
            if (const auto* other = Find(examination.service, right)) {
                CompareService(examination, *other);
            } else {
                AddService(examination, true);
            }
        }
        for (const auto& examination : right) {
            if (Find(examination.service, left) == nullptr) {
                AddService(examination, false);
            }
        }
        return std::move(m_out);
    }

  private:
    static const Examination* Find(const ServiceIdentity& service, const std::vector<Examination>& among)
    {
        const auto found = std::find_if(among.begin(), among.end(), [&](const Examination& each) {
            return each.service.logicalName.empty() == service.logicalName.empty() &&
                   EqualNoCase(NameOf(each.service), NameOf(service));
        });
        return found != among.end() ? &*found : nullptr;
    }

    static DifferingSide SideOf(const Examination& examination, std::string value)
    {
        DifferingSide side;
        side.isThere = true;
        side.value = std::move(value);
        side.path = PathOfService(examination.service);
        return side;
    }

    void AddService(const Examination& examination, bool isLeft)
    {
        Difference difference;
        difference.kind = DifferenceKind::Service;
        difference.service = NameOf(examination.service);
        (isLeft ? difference.left : difference.right) = SideOf(examination, Utf8(examination.entry->table().className));
        m_out.push_back(std::move(difference));
    }

    void AddIdentity(DifferenceKind kind, const Examination& left, const Examination& right, std::wstring_view inLeft,
                     std::wstring_view inRight)
    {
        if (!EqualNoCase(inLeft, inRight)) {
            Difference difference;
            difference.kind = kind;
            difference.service = NameOf(left.service);
            difference.left = SideOf(left, Utf8(inLeft));
            difference.right = SideOf(right, Utf8(inRight));
            m_out.push_back(std::move(difference));
        }
    }

    void CompareService(const Examination& left, const Examination& right)
    {
        const auto identity = [&](DifferenceKind kind, std::wstring ServiceIdentity::*what) {
            AddIdentity(kind, left, right, left.service.*what, right.service.*what);
        };
        AddIdentity(DifferenceKind::Class, left, right, left.entry->table().className, right.entry->table().className);
        identity(DifferenceKind::ClassValue, &ServiceIdentity::xfsClass);
        identity(DifferenceKind::Provider, &ServiceIdentity::physicalName);
        identity(DifferenceKind::DeviceKey, &ServiceIdentity::deviceKey);

        m_service = NameOf(left.service);
        m_reads = &SettingsOf(*left.entry);
        const auto inLeft = IndexOf(left);
        const auto inRight = IndexOf(right);
        for (const auto& setting : left.settings) {
            const auto place = PlaceOf(setting);
            if (inLeft.at(place) != &setting) {
                continue;
            }
            const auto other = inRight.find(place);
            if (other != inRight.end()) {
                CompareSetting(setting, *other->second);
            } else if (Has(*right.entry, *setting.declared->table)) {
                CompareSetting(setting, std::nullopt, true);
            }
        }
        for (const auto& setting : right.settings) {
            const auto place = PlaceOf(setting);
            if (!inLeft.contains(place) && inRight.at(place) == &setting &&
                Has(*left.entry, *setting.declared->table)) {
                CompareSetting(setting, std::nullopt, false);
            }
        }
    }

    // Where the setting stands, below the service's own keys.
    static std::wstring PlaceOf(const ExaminedSetting& setting)
    {
        const auto& described = setting.Setting();
        return static_cast<wchar_t>(L'0' + static_cast<int>(described.root)) + UpCase(described.key) + L'\0' +
               UpCase(setting.name);
    }

    // The first of several rows for one place that is read.
    static std::unordered_map<std::wstring, const ExaminedSetting*> IndexOf(const Examination& examination)
    {
        std::unordered_map<std::wstring, const ExaminedSetting*> index;
        for (const auto& setting : examination.settings) {
            auto& known = index[PlaceOf(setting)];
            if (known == nullptr || (known->source == Source::NotRead && setting.source != Source::NotRead)) {
                known = &setting;
            }
        }
        return index;
    }

    static bool Has(const ClassEntry& entry, const Table& table)
    {
        const auto lineage = Lineage(entry.table());
        return std::any_of(lineage.begin(), lineage.end(), [&](const Table* each) {
            return each == &table || (each->mixin != nullptr && &each->mixin() == &table);
        });
    }

    bool IsMasked(const ExaminedSetting& setting) const { return setting.Setting().secret && !m_showSecrets; }

    std::string ValueOf(const ExaminedSetting& setting, const DescribedValue& value) const
    {
        return IsMasked(setting) && !value.text.empty() ? kMasked : ValueText(setting.Setting(), value);
    }

    std::string StoredIn(const ExaminedSetting& setting, const AskedKey& key) const
    {
        const auto& described = setting.Setting();
        auto text = IsMasked(setting) ? "a secret" : StoredText(key.type, key.data);
        if (described.fallback && setting.source == Source::Fallback) {
            text += " in " + KeyText(described.fallback->root, described.fallback->key);
        }
        return text;
    }

    DifferingSide SideOf(const ExaminedSetting& setting) const
    {
        DifferingSide side;
        side.isThere = true;
        side.setting = &setting;
        TakeKey(side, Deciding(setting));
        if (IsMade(setting)) {
            side.value = "made by the class";
            return side;
        }
        side.value = ValueOf(setting, setting.value);
        if ((setting.source == Source::Missing || setting.source == Source::WrongType) && !setting.isCorrected) {
            side.note = "the default is in effect";
        } else if (setting.source == Source::Kept || setting.source == Source::NotRead) {
            side.note = setting.source == Source::Kept ? "what the class begins with is kept" : "it is not read";
        }
        if (setting.isCorrected) {
            side.note = IsMasked(setting) ? "corrected" : CorrectionText(setting);
        }
        return side;
    }

    // Long texts are cut when they are shown: what they differ in must be seen.
    static void ShowWhatDiffers(const DescribedSetting& setting, const DescribedValue& left,
                                const DescribedValue& right, Difference& difference)
    {
        constexpr std::size_t kBefore = 20;
        if (difference.left.value != difference.right.value || left.text == right.text) {
            return;
        }
        const auto at = static_cast<std::size_t>(
            std::mismatch(left.text.begin(), left.text.end(), right.text.begin(), right.text.end()).first -
            left.text.begin());
        const auto from = at > kBefore ? at - kBefore : 0;
        const auto show = [&](const DescribedValue& value) {
            return ValueText(setting, {0, value.text.substr(from)}) + " from character " + std::to_string(from + 1);
        };
        difference.left.value = show(left);
        difference.right.value = show(right);
        if (difference.left.value == difference.right.value) {
            difference.right.note = "they differ in characters that cannot be shown";
        }
    }

    Difference Begin(const ExaminedSetting& setting) const
    {
        Difference difference;
        difference.service = m_service;
        difference.root = setting.Setting().root;
        difference.key = setting.Setting().key;
        difference.name = setting.name;
        return difference;
    }

    static bool Differ(const ExaminedSetting& left, const ExaminedSetting& right)
    {
        if (IsMade(left) || IsMade(right)) {
            return IsMade(left) != IsMade(right);
        }
        // Somebody meant to set it and failed, also where the default happens to be the same.
        return left.value != right.value || (left.source == Source::WrongType) != (right.source == Source::WrongType);
    }

    void CompareSetting(const ExaminedSetting& left, const ExaminedSetting& right)
    {
        if (left.Setting().wholeKey && right.Setting().wholeKey) {
            CompareEntries(left, right);
        } else if (left.Setting().wholeKey == right.Setting().wholeKey && Differ(left, right)) {
            auto difference = Begin(left);
            difference.left = SideOf(left);
            difference.right = SideOf(right);
            if (!IsMade(left) && !IsMade(right) && !IsMasked(left)) {
                ShowWhatDiffers(left.Setting(), left.value, right.value, difference);
            }
            m_out.push_back(std::move(difference));
        }
    }

    // A setting that one of the two lacks, such as a card unit's.
    void CompareSetting(const ExaminedSetting& setting, std::nullopt_t, bool isLeft)
    {
        const bool isGood = setting.IsDefault() && setting.source != Source::WrongType;
        if (isGood || setting.Setting().wholeKey || IsMade(setting) || setting.source == Source::NotRead) {
            return;
        }
        auto difference = Begin(setting);
        (isLeft ? difference.left : difference.right) = SideOf(setting);
        (isLeft ? difference.right : difference.left).stored = "missing";
        m_out.push_back(std::move(difference));
    }

    void CompareEntries(const ExaminedSetting& left, const ExaminedSetting& right)
    {
        struct Pair
        {
            const std::pair<std::wstring, std::wstring>* left = nullptr;
            const std::pair<std::wstring, std::wstring>* right = nullptr;
        };
        std::map<std::wstring, Pair> byName;
        for (const auto& entry : left.entries) {
            byName[UpCase(entry.first)].left = &entry;
        }
        for (const auto& entry : right.entries) {
            byName[UpCase(entry.first)].right = &entry;
        }
        for (const auto& [name, pair] : byName) {
            const bool isEqual =
                pair.left != nullptr && pair.right != nullptr && pair.left->second == pair.right->second;
            // A setting of its own in the key is compared as such.
            if (isEqual || m_reads->ReadsValue(left.Setting().root, left.Setting().key, name)) {
                continue;
            }
            auto difference = Begin(left);
            difference.name = (pair.left != nullptr ? pair.left : pair.right)->first;
            difference.left = SideOf(left, pair.left);
            difference.right = SideOf(right, pair.right);
            if (pair.left != nullptr && pair.right != nullptr && !IsMasked(left) && IsText(left.Setting())) {
                ShowWhatDiffers(left.Setting(), {0, pair.left->second}, {0, pair.right->second}, difference);
            }
            m_out.push_back(std::move(difference));
        }
    }

    DifferingSide SideOf(const ExaminedSetting& setting, const std::pair<std::wstring, std::wstring>* entry) const
    {
        DifferingSide side;
        side.setting = &setting;
        side.stored = "missing";
        if (entry == nullptr) {
            return side;
        }
        side.isThere = true;
        const auto& described = setting.Setting();
        side.value = IsMasked(setting)   ? kMasked
                     : IsText(described) ? ValueText(described, {0, entry->second})
                                         : Utf8(entry->second);
        const auto key = std::find_if(setting.asked.begin(), setting.asked.end(), [&](const AskedKey& asked) {
            return asked.found && EqualNoCase(asked.name, entry->first);
        });
        TakeKey(side, key != setting.asked.end() ? &*key : nullptr);
        side.note = side.key == nullptr ? "the default is in effect" : "";
        return side;
    }

    void TakeKey(DifferingSide& side, const AskedKey* key) const
    {
        side.key = key;
        side.stored = "missing";
        if (key != nullptr) {
            side.stored = StoredIn(*side.setting, *key);
            side.path = key->path;
            side.name = key->name;
        }
    }

    bool m_showSecrets;
    std::vector<Difference> m_out;
    std::wstring m_service;
    const ClassSettings* m_reads = nullptr; // of its class
};

// A key before those below it, and these before the next one.
std::wstring OrderOf(std::wstring_view path)
{
    auto order = UpCase(path);
    std::replace(order.begin(), order.end(), L'\\', L'\1');
    return order;
}

bool IsBelow(const std::wstring& order, const std::wstring& above)
{
    return order.size() > above.size() && order[above.size()] == L'\1' && order.starts_with(above);
}

void ReadBelow(Session& session, const std::wstring& path, StoredKeys& out)
{
    const auto id = session.Open(path);
    const auto order = OrderOf(path);
    if (out.contains(order) || !session.Exists(id)) {
        return;
    }
    auto& key = out[order];
    key.path = path;
    session.EnumValues(id, [&](std::wstring_view name, const ValueView& view) {
        key.values[UpCase(name)] = {std::wstring(name), view.type, {view.data.begin(), view.data.end()}};
        return true;
    });
    std::vector<std::wstring> subkeys;
    session.EnumKeys(id, [&](std::wstring_view name) {
        subkeys.emplace_back(name);
        return true;
    });
    for (const auto& name : subkeys) {
        ReadBelow(session, path + L'\\' + name, out);
    }
}

void CompareValues(const StoredKey& left, const StoredKey& right, std::vector<StoredDifference>& out)
{
    const auto add = [&](const std::wstring& name, const StoredValue* inLeft, const StoredValue* inRight) {
        StoredDifference difference;
        difference.path = left.path;
        difference.name = name;
        difference.left = inLeft;
        difference.right = inRight;
        difference.isInLeft = inLeft != nullptr;
        difference.isInRight = inRight != nullptr;
        out.push_back(std::move(difference));
    };
    for (const auto& [name, value] : left.values) {
        const auto other = right.values.find(name);
        if (other == right.values.end()) {
            add(value.name, &value, nullptr);
        } else if (value.type != other->second.type || value.data != other->second.data) {
            add(value.name, &value, &other->second);
        }
    }
    for (const auto& [name, value] : right.values) {
        if (!left.values.contains(name)) {
            add(value.name, nullptr, &value);
        }
    }
}

// The key with all below it, which only one of the two has. Moves behind them.
StoredDifference LackedKey(StoredKeys::const_iterator& at, const StoredKeys& keys)
{
    StoredDifference difference;
    difference.path = at->second.path;
    const auto& above = at->first;
    do {
        ++difference.keys;
        difference.values += at->second.values.size();
        ++at;
    } while (at != keys.end() && IsBelow(at->first, above));
    return difference;
}

} // namespace

std::vector<Difference> Compare(const std::vector<Examination>& left, const std::vector<Examination>& right,
                                bool showSecrets)
{
    return Comparison(showSecrets).Run(left, right);
}

const char* NameOf(DifferenceKind kind) noexcept
{
    switch (kind) {
    case DifferenceKind::Service:
        return "service";
    case DifferenceKind::Class:
        return "class";
    case DifferenceKind::ClassValue:
        return "classValue";
    case DifferenceKind::Provider:
        return "provider";
    case DifferenceKind::DeviceKey:
        return "deviceKey";
    case DifferenceKind::Setting:
        break;
    }
    return "setting";
}

StoredKeys ReadStored(const std::vector<std::wstring>& paths, Error& error)
{
    StoredKeys keys;
    const ReadScope scope;
    for (const auto& path : paths) {
        ReadBelow(*scope, path, keys);
    }
    error = scope->Failure();
    return keys;
}

std::vector<std::wstring> KeysOfServices()
{
    return {L"SOFTWARE\\XFS", L"SOFTWARE\\TARNO", L".DEFAULT\\XFS"};
}

std::vector<std::wstring> KeysOf(const ServiceIdentity& service)
{
    std::vector<std::wstring> keys;
    const auto add = [&](const wchar_t* root, const std::wstring& name) {
        if (!name.empty()) {
            keys.push_back(root + name);
        }
    };
    add(kDeviceRoot, service.deviceKey);
    add(kServiceRoot, service.physicalName);
    add(kLogicalRoot, service.logicalName);
    return keys;
}

std::vector<StoredDifference> Compare(const StoredKeys& left, const StoredKeys& right)
{
    std::vector<StoredDifference> out;
    auto inLeft = left.begin();
    auto inRight = right.begin();
    while (inLeft != left.end() || inRight != right.end()) {
        if (inRight == right.end() || (inLeft != left.end() && inLeft->first < inRight->first)) {
            out.push_back(LackedKey(inLeft, left));
            out.back().isInLeft = true;
        } else if (inLeft == left.end() || inRight->first < inLeft->first) {
            out.push_back(LackedKey(inRight, right));
            out.back().isInRight = true;
        } else {
            CompareValues(inLeft->second, inRight->second, out);
            ++inLeft;
            ++inRight;
        }
    }
    return out;
}

bool IsSecretName(std::wstring_view name)
{
    static const auto secrets = [] {
        std::set<std::wstring> names;
        for (const auto* entry : AllClasses()) {
            for (const bool isLoads : {true, false}) {
                for (const auto& each : isLoads ? Describe(entry->table()) : DescribeOperations(entry->table())) {
                    if (each.secret) {
                        names.insert({UpCase(each.name), UpCase(each.readAs)});
                    }
                }
            }
        }
        names.erase(std::wstring());
        return names;
    }();
    return secrets.contains(UpCase(name)) || (MayMeanOneOf(name, secrets) && NameIndex::All().KeysOf(name).empty());
}

} // namespace wqspcfg::diagnosis

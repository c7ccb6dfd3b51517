#include "wqspcfg/diagnosis/Change.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/diagnosis/NameIndex.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/diagnosis/StoredText.h"
#include "wqspcfg/platform/store/RegistryPath.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"
#include "wqspcfg/platform/utility/StringUtility.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>

namespace wqspcfg::diagnosis {

namespace {

std::string Utf8(std::wstring_view text)
{
    return Utf8ForMessage(text);
}

std::string Quoted(std::wstring_view text)
{
    constexpr std::size_t kLongest = 80;
    return '"' + Utf8(text.substr(0, kLongest)) + (text.size() > kLongest ? "...\"" : "\"");
}

bool IsText(const DescribedSetting& setting)
{
    return setting.type == Type::String || setting.type == Type::Char;
}

bool IsSwitch(const DescribedSetting& setting)
{
    return setting.type == Type::Flag || setting.row->Has(Flags::AsSwitch);
}

// ---- values ----

std::string Expected(const DescribedSetting& setting)
{
    const auto allowed = AllowedText(setting);
    if (!allowed.empty()) {
        return "allowed: " + allowed;
    }
    return IsSwitch(setting) ? "it is 0 or 1, no or yes, false or true" : "it is a number from 0 to 4294967295";
}

std::optional<DWORD> NumberOf(const DescribedSetting& setting, std::wstring_view text)
{
    if (const auto number = ParseNumber(text)) {
        return number;
    }
    const DescribedChoice* named = nullptr;
    for (const auto& choice : setting.allowed) {
        if (!choice.word.empty() && EqualNoCase(choice.word, text)) {
            if (named != nullptr) {
                return std::nullopt; // two values have this word
            }
            named = &choice;
        }
    }
    if (named != nullptr) {
        return named->value;
    }
    const auto isOne = [&](const wchar_t* word) { return EqualNoCase(word, text); };
    if (IsSwitch(setting) && (isOne(L"yes") || isOne(L"true"))) {
        return 1;
    }
    if (IsSwitch(setting) && (isOne(L"no") || isOne(L"false"))) {
        return 0;
    }
    return std::nullopt;
}

// The value as a store holds it. False with the reason where the setting does not have it.
bool ToStored(const DescribedSetting& setting, const std::wstring& text, DescribedValue& value, StoredValue& stored,
              std::string& reason)
{
    stored.type = StoredType(setting);
    if (IsText(setting)) {
        if (setting.type == Type::Char && text.size() > 1) {
            reason = "it is a single character";
            return false;
        }
        if (text.find(L'\0') != std::wstring::npos || !AppendUtf16Le(text, stored.data)) {
            reason = "no registry can hold this text";
            return false;
        }
        stored.data.insert(stored.data.end(), 2, std::byte{0});
        value = {0, text};
        return true;
    }
    const auto number = NumberOf(setting, text);
    const bool isAllowed = number && IsAllowed(setting, *number) &&
                           (!IsSwitch(setting) || !setting.allowed.empty() || setting.range || *number <= 1);
    if (!isAllowed) {
        reason = Expected(setting);
        return false;
    }
    const auto bytes = DwordBytes(*number);
    const auto view = bytes.View();
    stored.data.assign(view.data.begin(), view.data.end());
    value = {*number, {}};
    return true;
}

// ---- plan ----

// A setting that is meant.
struct Target
{
    const DescribedSetting* setting = nullptr;
    const ExaminedSetting* examined = nullptr; // null for one of a key that is not there yet
    std::wstring path;
    std::wstring name;
};

class Planner
{
  public:
    explicit Planner(const Examination& examination) : m_examination(examination) {}

    ChangePlan Run(const std::vector<WantedChange>& wanted)
    {
        for (const auto& each : wanted) {
            if (auto target = Find(each.name)) {
                Plan(*target, each);
            }
        }
        return std::move(m_plan);
    }

  private:
    std::string ClassName() const { return Utf8(m_examination.entry->table().className); }

    void Refuse(std::string message, bool isUnknown = false)
    {
        m_plan.refusals.push_back({isUnknown, std::move(message)});
    }

    static bool IsRead(const DescribedSetting& setting)
    {
        return !setting.computed && (setting.writtenBy.empty() || !setting.readBy.empty());
    }

    std::optional<Target> Find(const std::wstring& text)
    {
        auto targets = FindNamed(text);
        if (targets.empty()) {
            targets = FindBelow(text);
        }
        if (targets.empty()) {
            Refuse(ClassName() + " has no setting " + Quoted(text) + DidYouMean(m_examination, text), true);
            return std::nullopt;
        }
        if (targets.size() > 1) {
            RefuseAmbiguous(text, targets);
            return std::nullopt;
        }
        return std::move(targets.front());
    }

    void RefuseAmbiguous(const std::wstring& text, const std::vector<Target>& targets)
    {
        constexpr std::size_t kMost = 12;
        std::string candidates;
        for (std::size_t i = 0; i < targets.size() && i < kMost; ++i) {
            candidates += (i == 0 ? "" : ", ") + FullNameOf(*targets[i].examined);
        }
        if (targets.size() > kMost) {
            candidates += " and " + std::to_string(targets.size() - kMost) + " more";
        }
        Refuse("there are several settings " + Quoted(text) + "; name one of: " + candidates);
    }

    // Those that are named in the surest way, one for each place.
    std::vector<Target> FindNamed(std::wstring_view text) const
    {
        std::vector<Target> targets;
        auto surest = Naming::Label;
        for (const auto& setting : m_examination.settings) {
            const auto naming = NamingOf(setting, text);
            if (naming == Naming::None || naming < surest) {
                continue;
            }
            if (naming > surest) {
                targets.clear();
                surest = naming;
            }
            const auto known = std::find_if(targets.begin(), targets.end(), [&](const Target& target) {
                return EqualNoCase(target.path, setting.path) && EqualNoCase(target.name, setting.name);
            });
            const Target target{&setting.Setting(), &setting, setting.path, setting.name};
            if (known == targets.end()) {
                targets.push_back(target);
            } else if (!IsRead(*known->setting)) {
                *known = target;
            }
        }
        return targets;
    }

    // An entry of a whole key, or a setting of a key that is not there yet.
    std::vector<Target> FindBelow(const std::wstring& text)
    {
        for (const auto& setting : m_examination.settings) {
            if (!setting.Setting().wholeKey) {
                continue;
            }
            const auto entry = EntryNamedBy(setting, text);
            if (entry && text.size() > entry->size()) {
                return {{&setting.Setting(), &setting, setting.path, *entry}};
            }
        }
        const auto split = text.find_last_of(L'\\');
        if (split == std::wstring::npos) {
            return {};
        }
        for (const auto& each : SettingsOf(*m_examination.entry).All()) {
            // A name that only the service's class fills in is among the examined ones.
            if (each.isPattern && each.setting.name.find(L'%') == std::wstring::npos &&
                MatchesKey(each.setting, text.substr(0, split)) &&
                EqualNoCase(each.setting.name, std::wstring_view(text).substr(split + 1))) {
                auto made = std::make_unique<DescribedSetting>(each.setting);
                made->key = text.substr(0, split);
                made->name = text.substr(split + 1);
                Target target{made.get(), nullptr, PathOf(m_examination.service, made->root, made->key), made->name};
                m_plan.made.push_back(std::move(made));
                return {std::move(target)};
            }
        }
        return {};
    }

    // What stands in place of the conversion is a number, or the name of one key.
    static bool MatchesKey(const DescribedSetting& pattern, std::wstring_view key)
    {
        const auto at = pattern.key.find(L'%');
        if (!MatchesPattern(pattern.key, key) || at == std::wstring::npos) {
            return MatchesPattern(pattern.key, key);
        }
        const auto part = key.substr(at, key.size() - (pattern.key.size() - 2));
        if (pattern.key[at + 1] == L's') {
            return part.find(L'\\') == std::wstring_view::npos;
        }
        const auto number = ParseDword(part);
        return number && std::to_wstring(*number) == part;
    }

    // Why the setting cannot be set; empty where it can.
    std::string Obstacle(const Target& target) const
    {
        const auto& setting = *target.setting;
        if (setting.computed) {
            return "it is made by " + ClassName() + " and never read from the registry";
        }
        if (!IsRead(setting)) {
            return "only " + Utf8(setting.writtenBy) + " writes it, and nothing reads it";
        }
        if (setting.wholeKey && target.name == L"*") {
            return "it is a whole key; name one of its values: " + KeyText(setting.root, setting.key) + "\\NAME=VALUE";
        }
        const auto& service = m_examination.service;
        if (setting.root == Root::Device && service.deviceKey.empty()) {
            return "the service has no device key";
        }
        if (setting.root == Root::Service && service.physicalName.empty()) {
            return "the service has no service provider";
        }
        if (setting.root == Root::Logical && service.logicalName.empty()) {
            return "a physical service has no logical key";
        }
        return {};
    }

    void Plan(const Target& target, const WantedChange& wanted)
    {
        const auto full = KeyText(target.setting->root, target.setting->key) + '\\' + Utf8(target.name);
        if (const auto obstacle = Obstacle(target); !obstacle.empty()) {
            Refuse(full + " cannot be set: " + obstacle);
            return;
        }
        if (!m_places.insert(UpCase(target.path) + L'\0' + UpCase(target.name)).second) {
            Refuse(full + " is given twice");
            return;
        }
        PlannedChange change;
        change.setting = target.setting;
        change.path = target.path;
        change.name = target.name;
        if (wanted.value) {
            StoredValue stored{target.name, ValueType::None, {}};
            std::string reason;
            if (!ToStored(*target.setting, *wanted.value, change.value, stored, reason)) {
                Refuse(full + " cannot be " +
                       (target.setting->secret ? std::string("what is given") : Quoted(*wanted.value)) + "; " + reason);
                return;
            }
            change.after = std::move(stored);
        }
        NoteWhereItStands(target, change);
        m_plan.changes.push_back(std::move(change));
    }

    void NoteWhereItStands(const Target& target, PlannedChange& change) const
    {
        const auto& setting = *target.setting;
        const auto* examined = target.examined;
        if (setting.fallback && examined != nullptr) {
            const auto fallback = PathOf(m_examination.service, setting.fallback->root, setting.fallback->key);
            const auto held = std::any_of(examined->asked.begin(), examined->asked.end(), [&](const AskedKey& key) {
                return key.found && key.type == StoredType(setting) && EqualNoCase(key.path, fallback) &&
                       EqualNoCase(key.name, setting.fallback->name);
            });
            const auto key = KeyText(setting.fallback->root, setting.fallback->key);
            if (change.after && examined->source == Source::Fallback) {
                change.notes.push_back("the value of " + key + " was in effect until now; it stays there");
            } else if (!change.after && held) {
                change.notes.push_back("the value of " + key + " is in effect then");
            }
        }
        if (examined == nullptr && change.after) {
            change.notes.emplace_back("its key is none that the service has now");
        }
        if (setting.root == Root::Common) {
            change.notes.emplace_back("all service providers read this key");
        }
        if (setting.wholeKey && examined->source == Source::Missing && !examined->entries.empty() && change.after) {
            change.notes.push_back("the default of this key, " + std::to_string(examined->entries.size()) +
                                   " values, is no longer in effect");
        }
        if (!setting.readBy.empty() && setting.readBy != L"Load") {
            change.notes.push_back("it is read by " + Utf8(setting.readBy));
        } else if (examined != nullptr && examined->source == Source::NotRead) {
            change.notes.emplace_back("the service does not read it as it is configured now");
        }
    }

    const Examination& m_examination;
    ChangePlan m_plan;
    std::set<std::wstring> m_places;
};

bool IsSame(const DescribedSetting& setting, const StoredValue& left, const StoredValue& right)
{
    if (left.type != right.type) {
        return false;
    }
    CString one;
    CString other;
    return left.data == right.data || (IsText(setting) && ToValue(ValueView{left.type, left.data}, one) &&
                                       ToValue(ValueView{right.type, right.data}, other) && one == other);
}

bool ReadBefore(PlannedChange& change, Transaction& transaction, Error& error)
{
    ValueView view;
    const auto outcome = transaction.QueryAt(HiveOf(change.path), change.path, change.name, view);
    if (outcome == Outcome::Failed) {
        error = transaction.LastError();
        return false;
    }
    change.before.reset();
    if (outcome == Outcome::Found) {
        change.before = {change.name, view.type, {view.data.begin(), view.data.end()}};
    }
    return true;
}

bool Write(const PlannedChange& change, Transaction& transaction, Error& error)
{
    KeyId key = 0;
    const auto hive = HiveOf(change.path);
    auto outcome = Outcome::Failed;
    if (change.after) {
        outcome = transaction.CreateKey(hive, change.path, key);
        if (outcome != Outcome::Failed) {
            outcome = transaction.SetValue(key, change.name, {change.after->type, change.after->data});
        }
    } else {
        outcome = transaction.OpenKey(hive, change.path, key);
        if (outcome == Outcome::Found) {
            outcome = transaction.DeleteValue(key, change.name);
        }
    }
    if (outcome == Outcome::Failed) {
        error = transaction.LastError();
    }
    return outcome != Outcome::Failed;
}

// ---- values of any key ----

// A key of a service that a path is, or is below.
struct Owner
{
    const ServiceIdentity* service;
    Root root;
    std::wstring subkey;
};

std::vector<Owner> OwnersOf(std::wstring_view path, const std::vector<ServiceIdentity>& services)
{
    std::vector<Owner> owners;
    for (const auto& service : services) {
        const std::array<std::pair<Root, bool>, 4> roots{{{Root::Device, !service.deviceKey.empty()},
                                                          {Root::Service, !service.physicalName.empty()},
                                                          {Root::Logical, !service.logicalName.empty()},
                                                          {Root::Common, true}}};
        for (const auto& [root, hasKey] : roots) {
            const auto key = PathOf(service, root, L"");
            if (hasKey && path.size() >= key.size() && EqualNoCase(path.substr(0, key.size()), key) &&
                (path.size() == key.size() || path[key.size()] == L'\\')) {
                owners.push_back({&service, root, std::wstring(path.substr(std::min(key.size() + 1, path.size())))});
            }
        }
    }
    return owners;
}

const DescribedSetting* SettingAt(const ClassEntry& entry, const Owner& owner, std::wstring_view name)
{
    const DescribedSetting* whole = nullptr;
    for (const auto& each : SettingsOf(entry).All()) {
        const auto& setting = each.setting;
        const bool isFallback = setting.fallback && setting.fallback->root == owner.root &&
                                EqualNoCase(setting.fallback->key, owner.subkey) &&
                                EqualNoCase(setting.fallback->name, name);
        const bool isKey = setting.root == owner.root && MatchesPattern(setting.key, owner.subkey);
        if (setting.wholeKey) {
            whole = isKey && whole == nullptr ? &setting : whole;
        } else if (isFallback || (isKey && !setting.computed &&
                                  MatchesPattern(setting.readAs.empty() ? setting.name : setting.readAs, name))) {
            return &setting;
        }
    }
    return whole;
}

// Code of the service's class reads the value, besides what its table says.
bool IsReadByCode(const Examination& examination, std::wstring_view path, std::wstring_view name)
{
    return std::any_of(
               examination.asked.begin(), examination.asked.end(),
               [&](const AskedKey& key) { return EqualNoCase(key.path, path) && EqualNoCase(key.name, name); }) ||
           std::any_of(examination.listed.begin(), examination.listed.end(),
                       [&](const std::wstring& listed) { return EqualNoCase(listed, path); }) ||
           std::any_of(examination.settings.begin(), examination.settings.end(), [&](const ExaminedSetting& setting) {
               return setting.Setting().root == Root::Absolute && EqualNoCase(setting.path, path) &&
                      EqualNoCase(setting.name, name);
           });
}

std::string Unread(const ClassEntry& entry, const Owner& owner, const std::wstring& name)
{
    // Installers and other programs keep values beside those that are read: only what looks like a slip is told.
    const bool isOurs = owner.root == Root::Device;
    const auto& own = NameIndex::Of(entry);
    if (!isOurs && NameIndex::All().Has(owner.root, owner.subkey, name)) {
        return {};
    }
    const auto reader = owner.root == Root::Common ? std::string("any class") : Utf8(entry.table().className);
    if (const auto elsewhere = own.KeysOf(name); isOurs && !elsewhere.empty()) {
        return Quoted(name) + " is not read from this key: " + reader + " reads it from " + elsewhere;
    }
    const auto meant = own.NearestName(
        owner.root, owner.subkey, name, [](const std::wstring&) { return false; }, isOurs);
    if (!isOurs && meant.empty()) {
        return {};
    }
    return Quoted(name) + " is not read by " + reader + (meant.empty() ? "" : "; did you mean " + meant + "?");
}

} // namespace

bool PlannedChange::IsNone() const
{
    return before && after && IsSame(*setting, *before, *after);
}

ChangePlan PlanChanges(const Examination& examination, const std::vector<WantedChange>& wanted)
{
    return Planner(examination).Run(wanted);
}

bool Apply(ChangePlan& plan, Transaction& transaction, bool write, Error& error)
{
    for (auto& change : plan.changes) {
        if (!ReadBefore(change, transaction, error)) {
            return false;
        }
        if (!change.before && !change.after) {
            plan.refusals.push_back({true, KeyText(change.setting->root, change.setting->key) + '\\' +
                                               Utf8(change.name) + " is not stored: there is nothing to delete"});
        }
    }
    return !write || !plan.refusals.empty() ||
           std::all_of(plan.changes.begin(), plan.changes.end(), [&](const PlannedChange& change) {
               return change.IsNone() || Write(change, transaction, error);
           });
}

void NoteEffects(ChangePlan& plan, const Examination& after, bool showSecrets)
{
    for (auto& change : plan.changes) {
        const auto found =
            std::find_if(after.settings.begin(), after.settings.end(), [&](const ExaminedSetting& setting) {
                return EqualNoCase(setting.path, change.path) && EqualNoCase(setting.name, change.name);
            });
        if (change.after && found != after.settings.end() && found->isCorrected && found->source == Source::Key) {
            const bool isMasked = found->Setting().secret && !showSecrets;
            change.notes.push_back(
                Utf8(after.entry->table().className) + " takes " +
                (isMasked ? std::string("another value") : ValueText(found->Setting(), found->value)) + " instead");
        }
    }
}

std::string TextOf(const PlannedChange& change, const std::optional<StoredValue>& value, bool showSecrets)
{
    const auto& setting = *change.setting;
    if (!value) {
        return setting.wholeKey ? "missing" : "missing (default " + DefaultText(setting) + ")";
    }
    const ValueView view{value->type, value->data};
    DWORD number = 0;
    CString text;
    const bool isRight = IsText(setting) ? ToValue(view, text) : ToValue(view, number);
    if (setting.secret && !showSecrets && !(isRight && IsText(setting) && text.IsEmpty())) {
        return isRight ? kMasked : TypeName(value->type) + ' ' + kMasked;
    }
    return isRight ? ValueText(setting, {number, text.Std()}) : StoredText(value->type, value->data);
}

Reading ReadingOf(std::wstring_view path, std::wstring_view name)
{
    Reading reading;
    CRegInfo::ForgetProcess();
    const ReadScope scope;
    const auto services = IdentifyServices();
    const auto owners = OwnersOf(path, services);
    bool isRead = name.empty();
    for (const auto& owner : owners) {
        const auto& entry = *SelectModel(*owner.service).entry;
        if (const auto* setting = SettingAt(entry, owner, name)) {
            reading.setting = setting;
            reading.type = StoredType(*setting);
            return reading;
        }
        isRead = isRead || SettingsOf(entry).MayRead(owner.root, owner.subkey, name) ||
                 (owner.root == Root::Service && std::any_of(std::begin(kManagerNames), std::end(kManagerNames),
                                                             [&](auto* each) { return EqualNoCase(each, name); })) ||
                 IsReadByCode(Examine(*owner.service, entry), path, name);
    }
    if (!owners.empty() && !isRead) {
        reading.warning = Unread(*SelectModel(*owners.front().service).entry, owners.front(), std::wstring(name));
    }
    return reading;
}

} // namespace wqspcfg::diagnosis

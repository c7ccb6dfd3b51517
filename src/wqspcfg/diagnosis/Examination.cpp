#include "wqspcfg/diagnosis/Examination.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>

namespace wqspcfg::diagnosis {

namespace {

std::wstring WithoutEndingBackslash(std::wstring_view path)
{
    while (path.ends_with(L'\\')) {
        path.remove_suffix(1);
    }
    return std::wstring(path);
}

// A place in the registry; keys and names compare without regard to case.
struct Place
{
    std::wstring_view path;
    std::wstring_view name;

    bool operator==(const Place& other) const noexcept
    {
        return EqualNoCase(name, other.name) && EqualNoCase(path, other.path);
    }
};

struct HashPlace
{
    std::size_t operator()(const Place& place) const noexcept
    {
        // Keys of one service begin alike.
        constexpr std::size_t kEnd = 16;
        const auto end = place.path.substr(place.path.size() - std::min(place.path.size(), kEnd));
        return HashNoCase(end) * 31 + HashNoCase(place.name);
    }
};

bool IsText(const DescribedSetting& setting)
{
    return setting.type == Type::String || setting.type == Type::Char;
}

ValueView ViewOf(const AskedKey& key)
{
    return {key.type, key.data};
}

// What the key holds, in the setting's form. False where it is of another type.
bool ToDescribed(const DescribedSetting& setting, const AskedKey& key, DescribedValue& value)
{
    if (IsText(setting)) {
        CString text;
        if (!ToValue(ViewOf(key), text)) {
            return false;
        }
        value = {0, text.Std()};
        return true;
    }
    DWORD number = 0;
    if (!ToValue(ViewOf(key), number)) {
        return false;
    }
    value = {number, {}};
    return true;
}

// What the member of a row holds after `read` was taken as it is: only a switch holds another number, which means the
// same.
DescribedValue Taken(const DescribedSetting& setting, const DescribedValue& read)
{
    if (setting.type == Type::Flag || setting.row->Has(Flags::AsSwitch)) {
        return {read.number != 0 ? 1U : 0U, {}};
    }
    return read;
}

// What a member of the row's type can hold of it.
DescribedValue Fitting(const DescribedSetting& setting, DescribedValue read)
{
    if (setting.type == Type::Char) {
        read.text.resize(std::min<std::size_t>(read.text.size(), 1));
    }
    if (setting.row->Has(Flags::AsWord)) {
        read.number = LOWORD(read.number);
    }
    return Taken(setting, read);
}

Source SourceOf(Origin origin)
{
    switch (origin) {
    case Origin::Key:
        return Source::Key;
    case Origin::Fallback:
        return Source::Fallback;
    case Origin::Missing:
        return Source::Missing;
    case Origin::WrongType:
        return Source::WrongType;
    case Origin::Kept:
        return Source::Kept;
    case Origin::Code:
        break;
    }
    return Source::Code;
}

// What a Load told of one row.
struct Event
{
    const Setting* row = nullptr;
    Iteration iteration; // its name is in `iterationName`
    std::wstring iterationName;
    bool isIterated = false;
    std::vector<AskedKey> asked;
    bool isLoaded = false;
    CRegKeyEx* object = nullptr;
    Origin origin = Origin::Code;
    DescribedValue read;
    DescribedValue held;
};

class Recorder final : public LoadObserver
{
  public:
    void Begin(const Setting& row, const Iteration* iteration) override
    {
        Event event;
        event.row = &row;
        if (iteration != nullptr) {
            event.isIterated = true;
            event.iteration = *iteration;
            event.iterationName = iteration->name != nullptr ? iteration->name : L"";
        }
        events.push_back(std::move(event));
        m_isOpen = true;
    }

    void Loaded(const LoadedSetting& setting) override
    {
        m_isOpen = false;
        // A row that reads others before its own value is told has none open any more.
        if (events.empty() || events.back().row != &setting.row) {
            return;
        }
        auto& event = events.back();
        event.isLoaded = true;
        event.object = &setting.object;
        event.origin = setting.origin;
        event.read.number = setting.read;
        event.held.number = setting.held;
        if (setting.textRead != nullptr) {
            event.read.text = setting.textRead->Std();
        }
        if (setting.textHeld != nullptr) {
            event.held.text = setting.textHeld->Std();
        }
    }

    void Asked(std::wstring_view path, std::wstring_view name, Outcome outcome, const ValueView& value) override
    {
        AskedKey key{WithoutEndingBackslash(path), std::wstring(name), outcome == Outcome::Found, ValueType::None, {}};
        if (key.found) {
            key.type = value.type;
            key.data.assign(value.data.begin(), value.data.end());
        }
        (m_isOpen ? events.back().asked : byCode).push_back(std::move(key));
    }

    void AskedAll(std::wstring_view path, bool subkeys) override
    {
        if (!subkeys) {
            listed.push_back(WithoutEndingBackslash(path));
        }
    }

    std::vector<Event> events;
    std::vector<AskedKey> byCode;
    std::vector<std::wstring> listed; // keys all of whose values were asked for

  private:
    bool m_isOpen = false;
};

class Examiner
{
  public:
    Examiner(const ServiceIdentity& service, const ClassEntry& entry) : m_settings(SettingsOf(entry))
    {
        m_out.service = service;
        m_out.entry = &entry;
    }

    Examination Run()
    {
        CRegInfo::ForgetProcess();
        const bool isPhysical = m_out.service.logicalName.empty();
        const CString name(isPhysical ? m_out.service.physicalName : m_out.service.logicalName);
        const auto object = Create(*m_out.entry, name, isPhysical);
        std::optional<ObserveLoads> observe;
        observe.emplace(m_recorder);
        const ReadScope scope;
        m_out.isLoaded = object->Load(nullptr);
        object->GetDeviceClassName(nullptr, 0); // asks for the value that is named after the service's class
        observe.reset();
        m_object = object.get();
        for (const auto& key : m_settings.Keys()) {
            m_paths.push_back(PathOf(m_out.service, key.root, key.subkey));
        }
        m_byIndex.assign(m_settings.All().size(), nullptr);
        Index();
        m_out.settings.reserve(m_settings.All().size());
        const auto& all = m_settings.All();
        for (std::size_t i = 0; i < all.size(); ++i) {
            Add(i);
        }
        AddFound();
        AddFoundByCode();
        m_out.asked = std::move(m_recorder.byCode);
        m_out.listed = std::move(m_recorder.listed);
        m_out.failure = scope->Failure();
        m_object = nullptr;
        return std::move(m_out);
    }

  private:
    void Index()
    {
        for (auto& event : m_recorder.events) {
            const auto index = m_settings.IndexOf(*event.row, event.iteration.index);
            if (index == ClassSettings::npos || m_settings.All()[index].isPattern) {
                if (event.isLoaded) {
                    m_foundEvents.emplace_back(&event, index);
                }
                continue;
            }
            // The last one counts; one that asked nothing does not hide what another asked.
            auto& known = m_byIndex[index];
            if (known != nullptr && event.asked.empty()) {
                event.asked = known->asked;
            }
            known = &event;
        }
        // What a row's own query has asked is told with the row.
        const auto add = [&](const AskedKey& key) { m_byPlace.try_emplace({key.path, key.name}, &key); };
        for (const auto& event : m_recorder.events) {
            if (!event.isLoaded || event.origin == Origin::Code) {
                std::for_each(event.asked.begin(), event.asked.end(), add);
            }
        }
        std::for_each(m_recorder.byCode.begin(), m_recorder.byCode.end(), add);
    }

    ExaminedSetting Begin(const ClassSetting& declared, bool isKnownKey = true) const
    {
        ExaminedSetting out{};
        out.declared = &declared;
        const auto& setting = declared.setting;
        out.path = isKnownKey ? m_paths[declared.key] : PathOf(m_out.service, setting.root, setting.key);
        out.name = setting.readAs.empty() ? setting.name : setting.readAs;
        out.read = out.value = setting.defaultValue;
        return out;
    }

    void Add(std::size_t index)
    {
        const auto& declared = m_settings.All()[index];
        const auto& setting = declared.setting;
        if (declared.isPattern) {
            return;
        }
        if (setting.wholeKey) {
            // The entries by default are described one by one.
            if (index == 0 || m_settings.All()[index - 1].setting.row != setting.row) {
                AddWholeKey(declared);
            }
            return;
        }
        // What another row has loaded, or an operation reads once more, is told once.
        if (declared.isRepeated && (setting.row->Has(Flags::Preloaded) || !setting.readBy.empty())) {
            return;
        }
        m_out.settings.push_back(Begin(declared));
        auto& out = m_out.settings.back();
        auto* event = m_byIndex[index];
        if (event != nullptr) {
            out.asked = event->asked;
        }
        if (event != nullptr && event->isLoaded && event->origin != Origin::Code) {
            out.source = SourceOf(event->origin);
            out.read = event->read;
            out.value = event->held;
        } else if (!setting.computed) {
            FindRead(out);
        }
        TakeHeld(event, out);
        Judge(out);
        const bool isReached = event != nullptr && event->object != nullptr;
        if (setting.row->condition == nullptr || (!isReached && declared.isMixin) ||
            setting.row->condition(isReached ? *event->object : *m_object)) {
            out.refersTo = setting.refersTo;
        }
    }

    // Where code reads the setting, or nothing does before an operation asks for it.
    void FindRead(ExaminedSetting& out)
    {
        const auto& setting = out.Setting();
        const bool isLoads = setting.readBy.empty() && !setting.row->Has(Flags::Documented);
        std::vector<std::pair<std::wstring, std::wstring>> places{{out.path, out.name}};
        if (setting.fallback) {
            places.emplace_back(PathOf(m_out.service, setting.fallback->root, setting.fallback->key),
                                setting.fallback->name);
        }
        bool isRead = false;
        for (const auto& [path, name] : places) {
            const auto known = m_byPlace.find({path, name});
            const auto key = known != m_byPlace.end() ? *known->second : Ask(path, name);
            isRead = isRead || known != m_byPlace.end() || !isLoads;
            const bool isOwn = &path == &places.front().first;
            if (out.source != Source::Key && out.source != Source::Fallback) {
                if (key.found && ToDescribed(setting, key, out.read)) {
                    out.source = isOwn ? Source::Key : Source::Fallback;
                } else if (key.found || out.source != Source::WrongType) {
                    out.source = key.found ? Source::WrongType : Source::Missing;
                }
            }
            if (std::none_of(out.asked.begin(), out.asked.end(), [&](const AskedKey& asked) {
                    return EqualNoCase(asked.path, key.path) && EqualNoCase(asked.name, key.name);
                })) {
                out.asked.push_back(key);
            }
        }
        if (!isRead) {
            out.source = Source::NotRead;
            out.read = setting.defaultValue;
        }
        out.value = Fitting(setting, out.read);
        if (setting.heldAs != nullptr) {
            FindHeld(out);
        }
    }

    // What code made of the values of a key all together.
    void FindHeld(ExaminedSetting& out)
    {
        const auto& setting = out.Setting();
        if (m_keysOfCode.empty()) {
            for (const auto& key : m_recorder.byCode) {
                m_keysOfCode.insert(key.path);
            }
        }
        const bool isFound = out.source == Source::Key;
        out.value.number = setting.heldAs(*m_object, {setting.key, setting.name, isFound, out.read.number});
        if (m_keysOfCode.find(out.path) == m_keysOfCode.end()) {
            out.source = Source::NotRead;
        }
    }

    static AskedKey Ask(const std::wstring& path, const std::wstring& name)
    {
        AskedKey key{path, name, false, ValueType::None, {}};
        const ReadScope scope;
        ValueView view;
        if (scope->QueryAt(path, name, view) == Outcome::Found) {
            key.found = true;
            key.type = view.type;
            key.data.assign(view.data.begin(), view.data.end());
        }
        return key;
    }

    void TakeHeld(const Event* event, ExaminedSetting& out) const
    {
        const auto& setting = out.Setting();
        if (!setting.row->bound || !setting.readBy.empty()) {
            return;
        }
        if (event != nullptr && event->object != nullptr) {
            out.value = IsText(setting)
                            ? DescribedValue{0, HeldText(*setting.row, *event->object, setting.iteration).Std()}
                            : DescribedValue{HeldNumber(*setting.row, *event->object, setting.iteration), {}};
        } else if (!out.declared->isMixin) {
            out.value = Held(setting, *m_object);
        }
        out.value.number /= setting.row->scale;
    }

    static void Judge(ExaminedSetting& out)
    {
        const auto& setting = out.Setting();
        const bool isDefault = out.source == Source::Missing || out.source == Source::WrongType;
        if (setting.computed || (isDefault && setting.computedDefault && out.value != setting.defaultValue)) {
            out.source = Source::Code;
        }
        if (out.source == Source::Key || out.source == Source::Fallback || isDefault) {
            out.isCorrected = out.value != Taken(setting, out.read);
        }
    }

    void AddWholeKey(const ClassSetting& declared)
    {
        auto out = Begin(declared);
        out.name = L"*";
        out.source = Source::Missing;
        const auto& setting = declared.setting;
        const ReadScope scope;
        scope->EnumValues(scope->Open(out.path), [&](std::wstring_view name, const ValueView& view) {
            AskedKey key{out.path, std::wstring(name), true, view.type, {view.data.begin(), view.data.end()}};
            DescribedValue value;
            if (ToDescribed(setting, key, value)) {
                out.source = Source::Key;
                out.entries.emplace_back(key.name, IsText(setting) ? value.text : std::to_wstring(value.number));
            }
            out.asked.push_back(std::move(key));
            return true;
        });
        if (out.entries.empty()) {
            for (const auto& entry : setting.row->entries) {
                out.entries.emplace_back(entry.name, entry.text);
            }
        }
        m_out.settings.push_back(std::move(out));
    }

    void AddFound()
    {
        for (const auto& [event, index] : m_foundEvents) {
            auto declared = std::make_unique<ClassSetting>();
            auto iteration = event->iteration;
            iteration.name = iteration.name != nullptr ? event->iterationName.c_str() : nullptr;
            declared->setting = Describe(*event->row, event->isIterated ? &iteration : nullptr);
            if (index != ClassSettings::npos) {
                const auto& pattern = m_settings.All()[index];
                declared->table = pattern.table;
                declared->isSaved = pattern.isSaved;
            } else {
                declared->table = &m_out.entry->table();
                declared->isSaved = declared->setting.saved;
            }
            auto out = Begin(*declared, false);
            out.source = SourceOf(event->origin);
            out.asked = event->asked;
            out.read = event->read;
            out.value = event->held;
            Judge(out);
            m_out.found.push_back(std::move(declared));
            m_out.settings.push_back(std::move(out));
        }
    }

    // What code read itself, and the reference lists with a conversion in its place.
    void AddFoundByCode()
    {
        std::vector<std::pair<const ClassSetting*, std::wstring>> patterns;
        for (const auto& each : m_settings.All()) {
            if (each.isPattern) {
                patterns.emplace_back(&each, PathOf(m_out.service, each.setting.root, each.setting.key));
            }
        }
        std::unordered_set<Place, HashPlace> listed;
        for (const auto& key : m_recorder.byCode) {
            const auto found = std::find_if(patterns.begin(), patterns.end(), [&](const auto& pattern) {
                return MatchesPattern(pattern.first->setting.name, key.name) &&
                       MatchesPattern(pattern.second, key.path);
            });
            const auto hasRow = [&] {
                return std::any_of(m_out.settings.begin(), m_out.settings.end(), [&](const ExaminedSetting& setting) {
                    return EqualNoCase(setting.path, key.path) && EqualNoCase(setting.name, key.name);
                });
            };
            if (found == patterns.end() || hasRow() || !listed.insert({key.path, key.name}).second) {
                continue;
            }
            auto declared = std::make_unique<ClassSetting>(*found->first);
            auto& setting = declared->setting;
            // Pattern and path have all before the conversion in common.
            setting.key = key.path.substr(found->second.size() - setting.key.size());
            setting.name = key.name;
            auto out = Begin(*declared, false);
            out.asked.push_back(key);
            out.source = !key.found                            ? Source::Missing
                         : ToDescribed(setting, key, out.read) ? Source::Key
                                                               : Source::WrongType;
            out.value = Fitting(setting, out.read);
            Judge(out);
            m_out.found.push_back(std::move(declared));
            m_out.settings.push_back(std::move(out));
        }
    }

    const ClassSettings& m_settings;
    Examination m_out;
    Recorder m_recorder;
    CRegInfo* m_object = nullptr;
    std::vector<std::wstring> m_paths; // of the class's keys
    std::vector<Event*> m_byIndex;     // null where there is none
    std::vector<std::pair<Event*, std::size_t>> m_foundEvents;
    std::unordered_map<Place, const AskedKey*, HashPlace> m_byPlace;
    NameSet m_keysOfCode; // paths of the keys that code asked; filled when it is needed
};

} // namespace

bool ExaminedSetting::IsDefault() const
{
    const auto& setting = Setting();
    if (setting.wholeKey) {
        return source == Source::Missing;
    }
    return !setting.computed && !setting.computedDefault && value == Taken(setting, setting.defaultValue);
}

const AskedKey* ExaminedSetting::KeyInEffect() const noexcept
{
    if (source != Source::Key && source != Source::Fallback) {
        return nullptr;
    }
    const auto found = std::find_if(asked.begin(), asked.end(), [&](const AskedKey& key) {
        const bool isOwn = EqualNoCase(key.path, path) && EqualNoCase(key.name, name);
        return key.found && isOwn == (source == Source::Key);
    });
    return found != asked.end() ? &*found : nullptr;
}

bool ExaminedSetting::IsInEffect(const AskedKey& key) const noexcept
{
    if (!Setting().wholeKey) {
        return &key == KeyInEffect();
    }
    return source == Source::Key && key.found &&
           std::any_of(entries.begin(), entries.end(), [&](const auto& entry) { return entry.first == key.name; });
}

Examination Examine(const ServiceIdentity& service, const ClassEntry& entry)
{
    return Examiner(service, entry).Run();
}

std::wstring PathOf(const ServiceIdentity& service, Root root, std::wstring_view key)
{
    std::wstring path;
    switch (root) {
    case Root::Device:
        path = kDeviceRoot + service.deviceKey;
        break;
    case Root::Service:
        path = kServiceRoot + service.physicalName;
        break;
    case Root::Logical:
        path = kLogicalRoot + service.logicalName;
        break;
    case Root::Common:
        path = std::wstring(kServiceRoot) + kCommonKey;
        break;
    case Root::Absolute:
        break;
    }
    path = WithoutEndingBackslash(path);
    if (!key.empty()) {
        path += path.empty() ? L"" : L"\\";
        path += key;
    }
    return WithoutEndingBackslash(path);
}

} // namespace wqspcfg::diagnosis

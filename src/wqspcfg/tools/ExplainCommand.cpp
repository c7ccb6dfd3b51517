#include "wqspcfg/tools/ExplainCommand.h"

#include "wqspcfg/diagnosis/Examination.h"
#include "wqspcfg/diagnosis/NameIndex.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/diagnosis/StoredText.h"
#include "wqspcfg/tools/JsonText.h"
#include "wqspcfg/tools/TextTable.h"

#include <algorithm>

namespace wqspcfg::tools {

namespace {

using diagnosis::AskedKey;
using diagnosis::ExaminedSetting;

class Explanation
{
  public:
    explicit Explanation(const StoreChoice& choice) : m_places(SourceOf(choice)), m_showSecrets(choice.secrets) {}

    void PrintChanged(const std::vector<const ExaminedSetting*>& settings, std::ostream& out)
    {
        TextTable table({"KEY", "NAME", "VALUE", "DEFAULT", "ORIGIN", "NOTE"});
        for (const auto* setting : settings) {
            const auto key = diagnosis::KeyText(setting->Setting().root, setting->Setting().key);
            if (setting->Setting().wholeKey) {
                for (const auto& [name, text] : setting->entries) {
                    table.Add(
                        {key, Utf8(name), Shown(*setting, '"' + Utf8(text) + '"'), "", Origin(*setting, name), ""});
                }
                continue;
            }
            table.Add({key, Utf8(setting->name), Value(*setting), Default(*setting), Origin(*setting),
                       diagnosis::NoteOn(*setting, PlaceOf(), m_showSecrets)});
        }
        table.Print(out);
    }

    void Print(const ExaminedSetting& setting, std::ostream& out)
    {
        const auto& described = setting.Setting();
        const auto line = [&](const std::string& text) { out << DisplayText(text) << '\n'; };
        const auto key = diagnosis::KeyText(described.root, described.key);
        const auto note = diagnosis::NoteOn(setting, PlaceOf(), m_showSecrets);
        if (described.wholeKey) {
            line(key + ": every value of the key   " + Origin(setting));
            for (const auto& [name, text] : setting.entries) {
                line("  " + Utf8(name) + " = " + Shown(setting, '"' + Utf8(text) + '"') + "   " +
                     Origin(setting, name));
            }
            for (const auto& asked : setting.asked) {
                if (!setting.IsInEffect(asked)) {
                    line("    " + diagnosis::FullPath(asked.path) + '\\' + Utf8(asked.name) + "  " +
                         Stood(setting, asked));
                }
            }
        } else {
            line(key + " : " + Utf8(setting.name) + " = " + Value(setting) + "   " + Origin(setting) +
                 (note.empty() ? "" : " (" + note + ")"));
            for (const auto& asked : setting.asked) {
                line("    " + diagnosis::FullPath(asked.path) + '\\' + Utf8(asked.name) + "  " + Stood(setting, asked) +
                     (setting.IsInEffect(asked) ? "  <- in effect" : ""));
            }
        }
        line("    default " + Default(setting) + ", " + diagnosis::SavedText(described, setting.declared->isSaved) +
             ", declared by " + Utf8(setting.declared->table->className) + Allowed(setting));
        line("    " + Utf8(described.meaning));
    }

    ordered_json ToJson(const ExaminedSetting& setting)
    {
        const auto& described = setting.Setting();
        ordered_json out;
        out["root"] = NameOf(described.root);
        out["key"] = Utf8(described.key);
        out["name"] = Utf8(setting.name);
        out["type"] = NameOf(described.type);
        const auto put = [&](const char* name, const char* word, const DescribedValue& value) {
            if (described.type == Type::String || described.type == Type::Char) {
                out[name] = Shown(setting, Utf8(value.text));
            } else if (IsMasked(setting)) {
                out[name] = diagnosis::kMasked;
            } else {
                out[name] = value.number;
                if (const auto text = diagnosis::WordOf(described, value.number); !text.empty()) {
                    out[word] = text;
                }
            }
        };
        if (described.wholeKey) {
            out["entries"] = ordered_json::object();
            for (const auto& [name, text] : setting.entries) {
                out["entries"][Utf8(name)] = Shown(setting, Utf8(text));
            }
        } else {
            put("value", "word", setting.value);
            if (described.computed || described.computedDefault) {
                out["default"] = nullptr;
            } else {
                put("default", "defaultWord", described.defaultValue);
            }
        }
        out["changed"] = diagnosis::IsChanged(setting);
        out["source"] = NameOf(setting.source);
        if (setting.isCorrected) {
            put("correctedFrom", "correctedFromWord", setting.read);
        }
        auto keys = ordered_json::array();
        for (const auto& asked : setting.asked) {
            ordered_json key;
            key["path"] = diagnosis::FullPath(asked.path);
            key["name"] = Utf8(asked.name);
            key["found"] = asked.found;
            if (asked.found) {
                key["type"] = diagnosis::TypeName(asked.type);
                key["data"] = Shown(setting, Utf8(diagnosis::DataText({asked.type, asked.data}, L"\n")));
                if (const auto place = m_places.Of(asked.path, &asked.name); !place.empty()) {
                    key["place"] = place;
                }
            }
            key["inEffect"] = setting.IsInEffect(asked);
            keys.push_back(std::move(key));
        }
        out["asked"] = std::move(keys);
        if (const auto note = diagnosis::NoteOn(setting, PlaceOf(), m_showSecrets); !note.empty()) {
            out["note"] = note;
        }
        out["saved"] = setting.declared->isSaved;
        if (described.secret) {
            out["secret"] = true;
        }
        out["class"] = Utf8(setting.declared->table->className);
        out["meaning"] = Utf8(described.meaning);
        return out;
    }

  private:
    bool IsMasked(const ExaminedSetting& setting) const { return setting.Setting().secret && !m_showSecrets; }
    std::string Shown(const ExaminedSetting& setting, std::string text) const
    {
        return IsMasked(setting) && !text.empty() && text != "\"\"" ? diagnosis::kMasked : std::move(text);
    }
    std::string Value(const ExaminedSetting& setting) const
    {
        return Shown(setting, diagnosis::ValueText(setting.Setting(), setting.value));
    }
    static std::string Default(const ExaminedSetting& setting)
    {
        return setting.Setting().wholeKey ? "none" : diagnosis::DefaultText(setting.Setting());
    }

    std::function<std::string(const AskedKey&)> PlaceOf()
    {
        return [this](const AskedKey& key) { return m_places.Of(key.path, &key.name); };
    }

    std::string Origin(const ExaminedSetting& setting)
    {
        auto text = diagnosis::SourceText(setting);
        if (const auto* key = setting.KeyInEffect()) {
            if (const auto place = m_places.Of(key->path, &key->name); !place.empty()) {
                text += ", " + place;
            }
        }
        return text;
    }

    // Of an entry of a key that is read whole.
    std::string Origin(const ExaminedSetting& setting, const std::wstring& entry)
    {
        auto text = diagnosis::SourceText(setting);
        const auto place = setting.source == diagnosis::Source::Key ? m_places.Of(setting.path, &entry) : std::string();
        return text + (place.empty() ? "" : ", " + place);
    }

    std::string Stood(const ExaminedSetting& setting, const AskedKey& key)
    {
        if (!key.found) {
            return "missing";
        }
        const auto place = m_places.Of(key.path, &key.name);
        return (IsMasked(setting) ? diagnosis::TypeName(key.type) + ' ' + diagnosis::kMasked
                                  : diagnosis::StoredText(key.type, key.data)) +
               (place.empty() ? "" : "  " + place);
    }

    static std::string Allowed(const ExaminedSetting& setting)
    {
        const auto text = diagnosis::AllowedText(setting.Setting());
        return text.empty() ? text : "; allowed: " + text;
    }

    diagnosis::Places m_places;
    bool m_showSecrets;
};

bool IsNamed(const ExaminedSetting& setting, std::wstring_view text)
{
    return diagnosis::NamingOf(setting, text) != diagnosis::Naming::None;
}

int FailUnknown(const diagnosis::Examination& examination, const std::string& name, const Console& console)
{
    return console.Fail(kNegative, Utf8(examination.entry->table().className) + " has no setting \"" + name + '"' +
                                       diagnosis::DidYouMean(examination, Wide(name)));
}

// The entries of keys that are read whole which a text names; not one that is missing and looks like a slip.
std::vector<ExaminedSetting> EntriesNamedBy(const diagnosis::Examination& examination, std::wstring_view text)
{
    std::vector<ExaminedSetting> entries;
    for (const auto& setting : examination.settings) {
        const auto name = diagnosis::EntryNamedBy(setting, text);
        if (!name) {
            continue;
        }
        auto one = diagnosis::OneEntry(setting, *name);
        const auto& described = setting.Setting();
        const auto isStored = [](const std::wstring&) { return false; };
        if (one.asked.front().found || !one.entries.empty() ||
            diagnosis::NameIndex::Of(*examination.entry)
                .NearestName(described.root, described.key, *name, isStored, false)
                .empty()) {
            entries.push_back(std::move(one));
        }
    }
    return entries;
}

} // namespace

int Explain(const StoreChoice& choice, const ServiceChoice& service, const ExplainOptions& options,
            const Console& console)
{
    if (options.setting && options.setting->empty()) {
        throw UsageError("SETTING is empty; leave it out for all settings");
    }
    Error error;
    auto store = OpenForExamination(choice, error);
    if (!store) {
        return console.Fail(error);
    }
    const CurrentStoreScope current(std::move(store));
    const auto identity = IdentifyService(CString(Wide(service.name)), service.physical);
    int status = kDone;
    const auto* entry = ChooseClass(service, identity, console, status);
    if (entry == nullptr) {
        return status;
    }
    const auto examination = diagnosis::Examine(identity, *entry);
    if (examination.failure) {
        return console.Fail(examination.failure);
    }
    const auto wanted = Wide(options.setting.value_or(std::string()));
    std::vector<const ExaminedSetting*> settings;
    for (const auto& setting : examination.settings) {
        if ((!options.setting || IsNamed(setting, wanted)) && (!options.changed || diagnosis::IsChanged(setting))) {
            settings.push_back(&setting);
        }
    }
    std::vector<ExaminedSetting> entries;
    if (settings.empty() && options.setting &&
        std::none_of(examination.settings.begin(), examination.settings.end(),
                     [&](const ExaminedSetting& setting) { return IsNamed(setting, wanted); })) {
        entries = EntriesNamedBy(examination, wanted);
        if (entries.empty()) {
            return FailUnknown(examination, *options.setting, console);
        }
        for (const auto& each : entries) {
            if (!options.changed || diagnosis::IsChanged(each)) {
                settings.push_back(&each);
            }
        }
    }
    Explanation explanation(choice);
    if (options.json) {
        ordered_json out;
        out["service"] = service.name;
        out["class"] = Utf8(entry->table().className);
        out["deviceKey"] = Utf8(identity.deviceKey);
        out["loaded"] = examination.isLoaded;
        out["settings"] = ordered_json::array();
        for (const auto* setting : settings) {
            out["settings"].push_back(explanation.ToJson(*setting));
        }
        PrintJson(out, console.out);
    } else if (options.changed) {
        explanation.PrintChanged(settings, console.out);
    } else {
        for (const auto* setting : settings) {
            explanation.Print(*setting, console.out);
        }
    }
    if (!examination.isLoaded) {
        console.Note(Utf8(entry->table().className) + "::Load returned false");
    }
    return Checked(kDone, console);
}

} // namespace wqspcfg::tools

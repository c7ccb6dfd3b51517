#include "wqspcfg/tools/DiffCommand.h"

#include "wqspcfg/diagnosis/Difference.h"
#include "wqspcfg/diagnosis/Places.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/diagnosis/StoredText.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/tools/JsonText.h"

#include <algorithm>

namespace wqspcfg::tools {

namespace {

using diagnosis::Difference;
using diagnosis::DifferenceKind;
using diagnosis::DifferingSide;
using diagnosis::StoredDifference;
using diagnosis::StoredValue;

// One of the two terminals, as it was read.
struct Side
{
    explicit Side(StoreChoice how) : choice(std::move(how)), places(SourceOf(choice)) {}

    StoreChoice choice;
    diagnosis::Places places;
    std::vector<ServiceIdentity> identities; // those that are asked for
    diagnosis::Terminal terminal;
    diagnosis::StoredKeys stored;
};

bool Examine(Side& side, const std::vector<std::wstring>& names, Error& error)
{
    auto store = OpenForExamination(side.choice, error);
    if (!store) {
        return false;
    }
    const CurrentStoreScope current(std::move(store));
    side.terminal = diagnosis::ExamineTerminal(names);
    for (const auto& each : side.terminal.services) {
        side.identities.push_back(each.service);
    }
    error = side.terminal.failure;
    return !error;
}

// What is stored of the services that are among these.
bool ReadRaw(Side& side, const std::vector<std::wstring>& names, Error& error)
{
    auto store = side.choice.Open(Access::Read, error);
    if (!store) {
        return false;
    }
    const CurrentStoreScope current(std::move(store));
    auto keys = diagnosis::KeysOfServices();
    if (!names.empty()) {
        keys.clear();
        CRegInfo::ForgetProcess();
        for (auto& service : diagnosis::IdentifyServices()) {
            if (diagnosis::IsAmong(service, names)) {
                const auto own = diagnosis::KeysOf(service);
                keys.insert(keys.end(), own.begin(), own.end());
                side.identities.push_back(std::move(service));
            }
        }
        if (LastStoreError()) {
            error = LastStoreError();
            return false;
        }
    }
    side.stored = diagnosis::ReadStored(keys, error);
    return !error;
}

class Printer
{
  public:
    Printer(Side& left, Side& right, const Console& console)
        : m_left(left), m_right(right), m_showSecrets(left.choice.secrets), m_out(console.out)
    {}

    void Print(const Difference& difference)
    {
        auto line = Utf8(difference.service) + "  ";
        const auto& left = difference.left;
        const auto& right = difference.right;
        switch (difference.kind) {
        case DifferenceKind::Service:
            line += "only in " + (left.isThere ? m_left : m_right).choice.Address();
            break;
        case DifferenceKind::Class:
            line += "class  " + left.value + " -> " + right.value;
            break;
        case DifferenceKind::ClassValue:
            line += "class value  " + Given(left.value) + " -> " + Given(right.value);
            break;
        case DifferenceKind::Provider:
            line += "service provider  " + Given(left.value) + " -> " + Given(right.value);
            break;
        case DifferenceKind::DeviceKey:
            line += "device key  " + Given(left.value) + " -> " + Given(right.value);
            break;
        case DifferenceKind::Setting:
            line += diagnosis::KeyText(difference.root, difference.key) + '\\' + Utf8(difference.name) + "  " +
                    Given(left.value) + " -> " + Given(right.value) + "   (" + Stored(left) + " -> " + Stored(right) +
                    ')';
            break;
        }
        m_out << DisplayText(line + PlacesText(PlaceOf(m_left, left), PlaceOf(m_right, right))) << '\n';
    }

    void Print(const StoredDifference& difference)
    {
        auto line = diagnosis::FullPath(difference.path);
        if (!difference.name) {
            line += "\\  only in " + (difference.isInLeft ? m_left : m_right).choice.Address() + "   (" +
                    Counted(difference.keys, "key") + ", " + Counted(difference.values, "value") + ')';
        } else {
            line += '\\' + (difference.name->empty() ? std::string("(default)") : Utf8(*difference.name)) + "  ";
            const auto left = Stored(difference, difference.left);
            const auto right = Stored(difference, difference.right);
            line += left + " -> " + right;
            if (left == right) {
                line += "   (they differ in what is not shown";
                line += IsMasked(*difference.name) ? ")"
                                                   : ": " + Counted(difference.left->data.size(), "byte") + " -> " +
                                                         Counted(difference.right->data.size(), "byte") + ')';
            }
        }
        m_out << DisplayText(line + PlacesText(PlaceOf(m_left, difference, difference.isInLeft),
                                               PlaceOf(m_right, difference, difference.isInRight)))
              << '\n';
    }

    ordered_json ToJson(const Difference& difference)
    {
        ordered_json out;
        out["kind"] = diagnosis::NameOf(difference.kind);
        out["service"] = Utf8(difference.service);
        if (difference.kind == DifferenceKind::Setting) {
            out["root"] = NameOf(difference.root);
            out["key"] = Utf8(difference.key);
            out["name"] = Utf8(difference.name);
        }
        out["left"] = ToJson(difference.left, m_left, difference.name);
        out["right"] = ToJson(difference.right, m_right, difference.name);
        return out;
    }

    ordered_json ToJson(const StoredDifference& difference)
    {
        ordered_json out;
        out["kind"] = difference.name ? "value" : "key";
        out["path"] = diagnosis::FullPath(difference.path);
        out["name"] = difference.name ? ordered_json(Utf8(*difference.name)) : ordered_json(nullptr);
        const auto put = [&](const char* which, Side& side, const StoredValue* value, bool isThere) {
            if (!isThere) {
                out[which] = nullptr;
                return;
            }
            ordered_json each;
            if (value != nullptr) {
                each = StoredJson({value->type, value->data}, IsMasked(value->name));
            } else {
                each["keys"] = difference.keys;
                each["values"] = difference.values;
            }
            if (const auto place = PlaceOf(side, difference, true); !place.empty()) {
                each["place"] = place;
            }
            out[which] = std::move(each);
        };
        put("left", m_left, difference.left, difference.isInLeft);
        put("right", m_right, difference.right, difference.isInRight);
        return out;
    }

  private:
    static std::string Given(const std::string& text) { return text.empty() ? "none" : text; }

    static std::string Stored(const DifferingSide& side)
    {
        return side.stored + (side.note.empty() ? "" : ": " + side.note);
    }

    static std::string PlaceOf(Side& side, const DifferingSide& differing)
    {
        return differing.path.empty() ? std::string()
                                      : side.places.Of(differing.path, differing.name ? &*differing.name : nullptr);
    }
    static std::string PlaceOf(Side& side, const StoredDifference& difference, bool isThere)
    {
        return isThere ? side.places.Of(difference.path, difference.name ? &*difference.name : nullptr) : std::string();
    }

    static std::string PlacesText(const std::string& left, const std::string& right)
    {
        const auto both = left + (left.empty() || right.empty() ? "" : ", ") + right;
        return both.empty() ? both : "   " + both;
    }

    bool IsMasked(const std::wstring& name) const { return !m_showSecrets && diagnosis::IsSecretName(name); }

    std::string Stored(const StoredDifference& difference, const StoredValue* value) const
    {
        if (value == nullptr) {
            return "missing";
        }
        return IsMasked(*difference.name) ? diagnosis::TypeName(value->type) + ' ' + diagnosis::kMasked
                                          : diagnosis::StoredText(value->type, value->data);
    }

    ordered_json ToJson(const DifferingSide& differing, Side& side, const std::wstring& name) const
    {
        if (!differing.isThere) {
            return nullptr;
        }
        ordered_json out;
        if (differing.setting == nullptr) {
            out["value"] = differing.value;
        } else {
            const bool isMasked = differing.setting->Setting().secret && !m_showSecrets;
            PutValue(*differing.setting, name, isMasked, out);
            out["source"] = diagnosis::NameOf(differing.setting->source);
            out["stored"] = nullptr;
            if (const auto* key = differing.key) {
                out["stored"] = StoredJson({key->type, key->data}, isMasked);
            }
        }
        if (!differing.note.empty()) {
            out["note"] = differing.note;
        }
        if (const auto place = PlaceOf(side, differing); !place.empty()) {
            out["place"] = place;
        }
        return out;
    }

    static void PutValue(const diagnosis::ExaminedSetting& setting, const std::wstring& name, bool isMasked,
                         ordered_json& out)
    {
        const auto& described = setting.Setting();
        const auto entry = std::find_if(setting.entries.begin(), setting.entries.end(),
                                        [&](const auto& each) { return EqualNoCase(each.first, name); });
        if (isMasked) {
            out["value"] = diagnosis::kMasked;
        } else if (described.wholeKey) {
            out["value"] = entry != setting.entries.end() ? Utf8(entry->second) : "";
        } else if (described.type == Type::String || described.type == Type::Char) {
            out["value"] = Utf8(setting.value.text);
        } else {
            out["value"] = setting.value.number;
            if (const auto word = diagnosis::WordOf(described, setting.value.number); !word.empty()) {
                out["word"] = word;
            }
        }
    }

    Side& m_left;
    Side& m_right;
    bool m_showSecrets;
    std::ostream& m_out;
};

template <class Differences>
int Report(const Differences& differences, Printer& printer, const DiffOptions& options, const Console& console)
{
    if (options.json) {
        ordered_json out;
        out["left"] = options.left;
        out["right"] = options.right;
        out["raw"] = options.raw;
        out["differences"] = ordered_json::array();
        for (const auto& difference : differences) {
            out["differences"].push_back(printer.ToJson(difference));
        }
        PrintJson(out, console.out);
    } else {
        for (const auto& difference : differences) {
            printer.Print(difference);
        }
    }
    if (differences.empty()) {
        return kDone;
    }
    console.Note(Counted(differences.size(), "difference"));
    return kNegative;
}

} // namespace

int Diff(const StoreChoice& choice, const DiffOptions& options, const Console& console)
{
    if (choice.address) {
        throw UsageError("--store does not apply to diff, which is given both addresses");
    }
    Side left(choice.At(options.left, "diff"));
    Side right(choice.At(options.right, "diff"));
    if ((choice.view32 && !left.choice.view32 && !right.choice.view32) ||
        (choice.codePage != 0 && left.choice.codePage == 0 && right.choice.codePage == 0)) {
        auto refused = choice; // says why
        refused.address = options.left;
        refused.Check(false);
    }
    std::vector<std::wstring> names;
    for (const auto& name : options.services) {
        names.push_back(Wide(name));
    }
    for (auto* side : {&left, &right}) {
        Error error;
        if (!(options.raw ? ReadRaw(*side, names, error) : Examine(*side, names, error))) {
            return console.Fail(error);
        }
    }
    for (const auto& name : names) {
        const auto has = [&](const Side& side) {
            return std::any_of(side.identities.begin(), side.identities.end(),
                               [&](const ServiceIdentity& each) { return diagnosis::IsAmong(each, {name}); });
        };
        if (!has(left) && !has(right)) {
            return console.Fail(kNegative, "there is no service \"" + Utf8(name) + "\" in either store");
        }
    }
    Printer printer(left, right, console);
    return options.raw ? Report(diagnosis::Compare(left.stored, right.stored), printer, options, console)
                       : Report(diagnosis::Compare(left.terminal.services, right.terminal.services, choice.secrets),
                                printer, options, console);
}

} // namespace wqspcfg::tools

#include "wqspcfg/diagnosis/SettingText.h"

#include "wqspcfg/diagnosis/Nearest.h"
#include "wqspcfg/diagnosis/StoredText.h"
#include "wqspcfg/platform/store/RegistryPath.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>

namespace wqspcfg::diagnosis {

namespace {

constexpr std::size_t kLongestShown = 120;

bool IsText(const DescribedSetting& setting)
{
    return setting.type == Type::String || setting.type == Type::Char;
}

std::string Quoted(std::wstring_view text)
{
    const bool isLong = text.size() > kLongestShown;
    return '"' + Utf8ForMessage(text.substr(0, kLongestShown)) + (isLong ? "...\"" : "\"");
}

std::string RootText(Root root)
{
    return root == Root::Absolute ? "key" : std::string(NameOf(root)) + " key";
}

} // namespace

std::string KeyText(Root root, std::wstring_view subkey)
{
    auto key = Utf8ForMessage(subkey);
    switch (root) {
    case Root::Device:
        return key.empty() ? "(device key)" : key;
    case Root::Service:
        return key.empty() ? "(service key)" : "(service key)\\" + key;
    case Root::Logical:
        return key.empty() ? "(logical key)" : "(logical key)\\" + key;
    case Root::Common:
        return key.empty() ? "WQCmnCfg" : "WQCmnCfg\\" + key;
    case Root::Absolute:
        break;
    }
    return key;
}

std::string WordOf(const DescribedSetting& setting, DWORD number)
{
    const auto found = std::find_if(setting.allowed.begin(), setting.allowed.end(),
                                    [&](const DescribedChoice& choice) { return choice.value == number; });
    return found != setting.allowed.end() ? Utf8ForMessage(found->word) : std::string();
}

std::string ValueText(const DescribedSetting& setting, const DescribedValue& value)
{
    if (IsText(setting)) {
        return Quoted(value.text);
    }
    const auto word = WordOf(setting, value.number);
    return std::to_string(value.number) + (word.empty() ? "" : " " + word);
}

std::string AllowedText(const DescribedSetting& setting)
{
    std::string text;
    for (const auto& choice : setting.allowed) {
        text += (text.empty() ? "" : ", ") + std::to_string(choice.value);
        if (!choice.word.empty()) {
            text += ' ' + Utf8ForMessage(choice.word);
        }
    }
    if (setting.range) {
        text = std::to_string(setting.range->low) + " to " + std::to_string(setting.range->high);
    }
    return text;
}

bool IsAllowed(const DescribedSetting& setting, DWORD number)
{
    if (setting.range && (number < setting.range->low || number > setting.range->high)) {
        return false;
    }
    return setting.allowed.empty() || std::any_of(setting.allowed.begin(), setting.allowed.end(),
                                                  [&](const auto& choice) { return choice.value == number; });
}

std::string DefaultText(const DescribedSetting& setting)
{
    return setting.computed || setting.computedDefault ? "computed" : ValueText(setting, setting.defaultValue);
}

std::string SavedText(const DescribedSetting& setting, bool isSaved)
{
    if (!setting.writtenBy.empty()) {
        return "written by " + Utf8ForMessage(setting.writtenBy);
    }
    if (!isSaved) {
        return "not saved";
    }
    return setting.savedName.empty() ? "saved" : "saved as " + Utf8ForMessage(setting.savedName);
}

ValueType StoredType(const DescribedSetting& setting)
{
    return IsText(setting) ? ValueType::Sz : ValueType::Dword;
}

std::string StoredText(ValueType type, std::span<const std::byte> data)
{
    const auto text = DataText({type, data}, L" ");
    const bool isText = type == ValueType::Sz || type == ValueType::ExpandSz || type == ValueType::MultiSz;
    if (isText) {
        return TypeName(type) + ' ' + Quoted(text);
    }
    return TypeName(type) + (text.empty() ? "" : ' ' + Utf8ForMessage(text.substr(0, kLongestShown))) +
           (text.size() > kLongestShown ? "..." : "");
}

bool IsRightType(const DescribedSetting& setting, const AskedKey& key)
{
    if (key.type != StoredType(setting)) {
        return false;
    }
    DWORD number = 0;
    return key.type != ValueType::Dword || ToValue(ValueView{key.type, key.data}, number);
}

TypeFault TypeFaultOf(const DescribedSetting& setting, const AskedKey& key, bool isMasked)
{
    if (key.type == StoredType(setting)) {
        return {"a " + TypeName(key.type) + " of " + std::to_string(key.data.size()) +
                    (key.data.size() == 1 ? " byte" : " bytes"),
                "one of " + std::to_string(sizeof(DWORD)) + " bytes is read"};
    }
    return {isMasked ? TypeName(key.type) : StoredText(key.type, key.data),
            "a " + TypeName(StoredType(setting)) + " is read"};
}

bool IsChanged(const ExaminedSetting& setting)
{
    const auto& described = setting.Setting();
    const bool isIgnored = std::any_of(setting.asked.begin(), setting.asked.end(), [&](const AskedKey& key) {
        return key.found && !described.wholeKey && !IsRightType(described, key);
    });
    // What a class makes of nothing, it makes on every terminal.
    const bool isOfNothing =
        setting.source == Source::NotRead || (setting.source == Source::Missing && setting.isCorrected);
    const bool isStored =
        std::any_of(setting.asked.begin(), setting.asked.end(), [](const AskedKey& key) { return key.found; });
    return isIgnored || (!(isOfNothing && !isStored) && (!setting.IsDefault() || setting.isCorrected));
}

std::string SourceText(const ExaminedSetting& setting)
{
    const auto& described = setting.Setting();
    switch (setting.source) {
    case Source::Key:
        return RootText(described.root);
    case Source::Fallback:
        return "fallback: " + RootText(described.fallback ? described.fallback->root : Root::Common);
    case Source::Missing:
    case Source::WrongType:
        return setting.isCorrected ? "class" : "default";
    case Source::Kept:
        return "kept";
    case Source::Code:
        return "class";
    case Source::NotRead:
        break;
    }
    return "not read";
}

std::string CorrectionText(const ExaminedSetting& setting)
{
    const bool isDefault = setting.source == Source::Missing || setting.source == Source::WrongType;
    return (isDefault ? "made of the default " : "corrected from ") + ValueText(setting.Setting(), setting.read);
}

const char* NameOf(Source source) noexcept
{
    switch (source) {
    case Source::Key:
        return "key";
    case Source::Fallback:
        return "fallback";
    case Source::Missing:
        return "missing";
    case Source::WrongType:
        return "wrongType";
    case Source::Kept:
        return "kept";
    case Source::Code:
        return "code";
    case Source::NotRead:
        break;
    }
    return "notRead";
}

std::string NoteOn(const ExaminedSetting& setting, const std::function<std::string(const AskedKey&)>& place,
                   bool showSecrets)
{
    const auto& described = setting.Setting();
    const bool isMasked = described.secret && !showSecrets;
    std::string notes;
    const auto note = [&](const std::string& text) { notes += (notes.empty() ? "" : "; ") + text; };
    for (const auto& key : setting.asked) {
        if (key.found && !described.wholeKey && !IsRightType(described, key)) {
            const auto where = place(key);
            const auto fault = TypeFaultOf(described, key, isMasked);
            note(fault.is + (where.empty() ? "" : " at " + where) + " ignored: " + fault.read);
        }
    }
    const bool isStored = setting.source == Source::Key || setting.source == Source::Fallback;
    if (isStored && !IsText(described) && !described.wholeKey && !IsAllowed(described, setting.read.number)) {
        note("not allowed: " + AllowedText(described));
    }
    if (setting.isCorrected) {
        note(isMasked ? "corrected" : CorrectionText(setting));
    }
    return notes;
}

Naming NamingOf(const ExaminedSetting& setting, std::wstring_view text)
{
    const auto& described = setting.Setting();
    // What a whole key's row is named is a pattern, or its first entry by default.
    const auto isName = [&](std::wstring_view name) {
        return EqualNoCase(name, setting.name) || (!described.wholeKey && EqualNoCase(name, described.name));
    };
    if (isName(text) || (described.wholeKey && EqualNoCase(text, described.key))) {
        return Naming::Name;
    }
    if (const auto split = text.find_last_of(L'\\');
        split != std::wstring_view::npos && isName(text.substr(split + 1))) {
        const auto key = text.substr(0, split);
        std::wstring full;
        AppendWideFromUtf8(KeyText(described.root, described.key), full);
        if (EqualNoCase(key, full) || EqualNoCase(key, setting.path)) {
            return Naming::FullName;
        }
        if (EqualNoCase(key, described.key)) {
            return Naming::KeyAndName;
        }
    }
    return !described.label.empty() && EqualNoCase(text, described.label) ? Naming::Label : Naming::None;
}

std::optional<std::wstring> EntryNamedBy(const ExaminedSetting& setting, std::wstring_view text)
{
    const auto& described = setting.Setting();
    if (!described.wholeKey || setting.name != L"*") {
        return std::nullopt;
    }
    std::wstring shown;
    AppendWideFromUtf8(KeyText(described.root, described.key), shown);
    for (const auto& key : {shown, described.key, setting.path}) {
        if (text.size() > key.size() + 1 && text[key.size()] == L'\\' && EqualNoCase(text.substr(0, key.size()), key)) {
            return std::wstring(text.substr(key.size() + 1));
        }
    }
    const bool isThere = std::any_of(setting.entries.begin(), setting.entries.end(),
                                     [&](const auto& entry) { return EqualNoCase(entry.first, text); }) ||
                         std::any_of(setting.asked.begin(), setting.asked.end(),
                                     [&](const AskedKey& key) { return EqualNoCase(key.name, text); });
    return isThere ? std::optional(std::wstring(text)) : std::nullopt;
}

ExaminedSetting OneEntry(const ExaminedSetting& setting, const std::wstring& name)
{
    auto one = setting;
    std::erase_if(one.entries, [&](const auto& entry) { return !EqualNoCase(entry.first, name); });
    std::erase_if(one.asked, [&](const AskedKey& key) { return !EqualNoCase(key.name, name); });
    if (one.asked.empty()) {
        one.asked.push_back({setting.path, name, false, ValueType::None, {}});
    }
    if (setting.source == Source::Key && one.entries.empty()) {
        one.source = one.asked.front().found ? Source::WrongType : Source::Missing;
    }
    return one;
}

std::string FullNameOf(const ExaminedSetting& setting)
{
    return KeyText(setting.Setting().root, setting.Setting().key) + '\\' + Utf8ForMessage(setting.name);
}

std::string NearestSetting(const Examination& examination, std::wstring_view text)
{
    const auto wanted = Utf8ForMessage(text);
    const auto split = text.find_last_of(L'\\');
    const bool hasKey = split != std::wstring_view::npos;
    const auto key = text.substr(0, hasKey ? split : 0);
    const auto name = text.substr(hasKey ? split + 1 : 0);
    // The same name in another key, or another key of this name, is likelier than a name that is written alike.
    std::vector<std::string> names;
    std::vector<std::string> likelier;
    const auto add = [&](const ExaminedSetting& setting, std::wstring_view own, bool isLikelier) {
        auto shown =
            (hasKey ? KeyText(setting.Setting().root, setting.Setting().key) + '\\' : "") + Utf8ForMessage(own);
        if (EqualNoCase(own, name) && (!hasKey || EqualNoCase(key, setting.Setting().key))) {
            return; // what was asked for is not what was meant
        }
        if (hasKey && isLikelier) {
            likelier.push_back(shown);
        }
        names.push_back(std::move(shown));
    };
    for (const auto& setting : examination.settings) {
        const auto& described = setting.Setting();
        if (!described.wholeKey || setting.name != L"*") {
            add(setting, setting.name, EqualNoCase(setting.name, name));
            continue;
        }
        const auto last = std::wstring_view(described.key).substr(described.key.find_last_of(L'\\') + 1);
        if (hasKey) {
            add(setting, name, EqualNoCase(last, key));
        }
        for (const auto& entry : setting.entries) {
            add(setting, entry.first, false);
        }
    }
    auto nearest = NearestNoCase(wanted, likelier.empty() ? names : likelier);
    // One that has not a character in common was not meant.
    return DistanceNoCase(wanted, nearest) < std::max(wanted.size(), nearest.size()) ? nearest : std::string();
}

std::string DidYouMean(const Examination& examination, std::wstring_view text)
{
    const auto nearest = NearestSetting(examination, text);
    return nearest.empty() ? std::string() : "; did you mean \"" + nearest + "\"?";
}

std::string FullPath(std::wstring_view path)
{
    return (HiveOf(path) == Hive::Users ? "HKU\\" : "HKLM\\") + Utf8ForMessage(path);
}

} // namespace wqspcfg::diagnosis

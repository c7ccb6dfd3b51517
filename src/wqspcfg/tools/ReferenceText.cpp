#include "wqspcfg/tools/ReferenceText.h"

#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/diagnosis/report/Page.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>

namespace wqspcfg::tools {

namespace {

using diagnosis::KeyText;
using nlohmann::ordered_json;

std::string Utf8(std::wstring_view text)
{
    return Utf8ForMessage(text);
}

ordered_json ToJson(Type type, const DescribedValue& value)
{
    if (type == Type::String || type == Type::Char) {
        return Utf8(value.text);
    }
    return value.number;
}

std::string ToText(Type type, const DescribedValue& value)
{
    if (type == Type::String || type == Type::Char) {
        return '"' + Utf8(value.text) + '"';
    }
    return std::to_string(value.number);
}

std::string AllowedText(const DescribedSetting& setting)
{
    std::string text;
    for (const auto& choice : setting.allowed) {
        text += (text.empty() ? "" : ", ") + std::to_string(choice.value);
    }
    if (setting.range) {
        text = std::to_string(setting.range->low) + " to " + std::to_string(setting.range->high);
    }
    return text;
}

// In the order of loading, then what Load does not read.
std::vector<DescribedSetting> AllSettings(const Table& table)
{
    auto settings = Describe(table);
    for (auto& setting : DescribeOperations(table)) {
        settings.push_back(std::move(setting));
    }
    return settings;
}

std::string SavedText(const DescribedSetting& setting)
{
    if (!setting.writtenBy.empty()) {
        return "by `" + Utf8(setting.writtenBy) + '`';
    }
    if (!setting.saved) {
        return "no";
    }
    return setting.savedName.empty() ? "yes" : "as " + Utf8(setting.savedName);
}

std::string DefaultText(const DescribedSetting& setting)
{
    if (setting.computed || setting.computedDefault) {
        return "computed";
    }
    auto text = ToText(setting.type, setting.defaultValue);
    if (setting.constructed) {
        text += " (constructed " + ToText(setting.type, *setting.constructed) + ")";
    }
    return text;
}

const char* NameOf(Reference reference) noexcept
{
    switch (reference) {
    case Reference::SerialPort:
        return "serialPort";
    case Reference::CardUnit:
        return "cardUnit";
    case Reference::LogicalService:
        return "logicalService";
    case Reference::File:
        return "file";
    case Reference::Directory:
        return "directory";
    case Reference::Command:
        return "command";
    case Reference::None:
        break;
    }
    return "";
}

// What a person should know of a setting besides its columns.
std::vector<std::string> Remarks(const DescribedSetting& setting)
{
    std::vector<std::string> remarks;
    const auto remark = [&](bool applies, std::string text) {
        if (applies) {
            remarks.push_back(std::move(text));
        }
    };
    remark(!setting.readAs.empty(), "read there as " + Utf8(setting.readAs));
    if (setting.fallback) {
        remark(true, "else from " + KeyText(setting.fallback->root, setting.fallback->key));
    }
    remark(setting.secret, "secret");
    remark(setting.wholeKey && setting.name == L"%s", "every value of the key");
    remark(setting.computed, "computed, never in the registry");
    remark(setting.keptWhenMissing, "kept when missing");
    remark(setting.required, "an error line when missing");
    remark(setting.corrected, "may be corrected");
    remark(setting.conditional, "conditional");
    remark(!setting.label.empty(), "logged as " + Utf8(setting.label));
    remark(!setting.emptySavedAs.empty(), "saved as \"" + Utf8(setting.emptySavedAs) + "\" when empty");
    remark(!setting.readBy.empty(), "read by " + Utf8(setting.readBy));
    return remarks;
}

std::string RemarkText(const DescribedSetting& setting)
{
    std::string text;
    for (const auto& remark : Remarks(setting)) {
        text += (text.empty() ? " (" : "; ") + remark;
    }
    return text.empty() ? text : text + ')';
}

void AddRemarks(const DescribedSetting& setting, ordered_json& row)
{
    if (!setting.readAs.empty()) {
        row["readAs"] = Utf8(setting.readAs);
    }
    if (setting.fallback) {
        row["fallback"] = {{"root", NameOf(setting.fallback->root)},
                           {"key", Utf8(setting.fallback->key)},
                           {"value", Utf8(setting.fallback->name)}};
    }
    const auto flag = [&](bool applies, const char* name) {
        if (applies) {
            row[name] = true;
        }
    };
    flag(setting.keptWhenMissing, "keptWhenMissing");
    flag(setting.required, "required");
    flag(setting.corrected, "corrected");
    flag(setting.computed, "computed");
    flag(setting.computedDefault, "computedDefault");
    flag(setting.conditional, "condition");
    flag(setting.wholeKey, "map");
    if (!setting.emptySavedAs.empty()) {
        row["emptySavedAs"] = Utf8(setting.emptySavedAs);
    }
    if (setting.refersTo != Reference::None) {
        row["refersTo"] = NameOf(setting.refersTo);
    }
}

ordered_json ToJson(const ClassEntry& entry)
{
    const auto& table = entry.table();
    const auto* deviceClass = DeviceClassOf(table);
    ordered_json out;
    out["class"] = Utf8(table.className);
    out["base"] = table.base != nullptr ? ordered_json(Utf8(table.base().className)) : ordered_json(nullptr);
    out["deviceClass"] = deviceClass != nullptr ? ordered_json(Utf8(deviceClass)) : ordered_json(nullptr);
    if (table.mixin != nullptr) {
        out["mixins"] = {Utf8(table.mixin().className)};
    }
    if (!table.savesBase) {
        out["notSavedByModel"] = true;
    }
    auto settings = ordered_json::array();
    for (const auto& setting : AllSettings(table)) {
        ordered_json row;
        row["root"] = NameOf(setting.root);
        row["key"] = Utf8(setting.key);
        row["value"] = Utf8(setting.name);
        row["type"] = NameOf(setting.type);
        row["default"] = ToJson(setting.type, setting.defaultValue);
        if (setting.constructed) {
            row["constructed"] = ToJson(setting.type, *setting.constructed);
        }
        if (!setting.label.empty()) {
            row["label"] = Utf8(setting.label);
        }
        if (!setting.allowed.empty()) {
            for (const auto& choice : setting.allowed) {
                row["allowed"].push_back(choice.value);
                row["words"].push_back(Utf8(choice.word));
            }
        }
        if (setting.range) {
            row["range"] = {setting.range->low, setting.range->high};
        }
        row["saved"] = setting.saved;
        if (!setting.savedName.empty()) {
            row["savedAs"] = Utf8(setting.savedName);
        }
        if (!setting.readBy.empty()) {
            row["readBy"] = Utf8(setting.readBy);
        }
        if (!setting.writtenBy.empty()) {
            row["writtenBy"] = Utf8(setting.writtenBy);
        }
        if (setting.secret) {
            row["secret"] = true;
        }
        AddRemarks(setting, row);
        row["meaning"] = Utf8(setting.meaning);
        settings.push_back(std::move(row));
    }
    out["settings"] = std::move(settings);
    return out;
}

void WriteText(const ClassEntry& entry, std::ostream& out)
{
    const auto& table = entry.table();
    const auto* deviceClass = DeviceClassOf(table);
    out << Utf8(table.className);
    if (table.base != nullptr) {
        out << ", derived from " << Utf8(table.base().className);
    }
    if (table.mixin != nullptr) {
        out << " and " << Utf8(table.mixin().className);
    }
    if (deviceClass != nullptr) {
        out << ", device class " << Utf8(deviceClass);
    }
    out << '\n';
    for (const auto& setting : AllSettings(table)) {
        out << "  " << KeyText(setting.root, setting.key) << " : " << Utf8(setting.name) << "\n      "
            << NameOf(setting.type) << ", default " << DefaultText(setting);
        if (const auto allowed = AllowedText(setting); !allowed.empty()) {
            out << ", allowed " << allowed;
        }
        if (setting.saved) {
            out << (setting.savedName.empty() ? ", saved" : ", saved as " + Utf8(setting.savedName));
        }
        if (!setting.writtenBy.empty()) {
            out << ", written by " << Utf8(setting.writtenBy);
        }
        for (const auto& remark : Remarks(setting)) {
            out << ", " << remark;
        }
        out << "\n      " << Utf8(setting.meaning) << '\n';
    }
    out << '\n';
}

// Text within a cell of a Markdown table.
std::string Cell(std::string_view text)
{
    std::string cell;
    for (const char ch : text) {
        if (ch == '|' || ch == '*' || ch == '<' || ch == '>') {
            cell += '\\';
        }
        cell += ch == '\n' || ch == '\r' ? ' ' : ch;
    }
    return cell;
}

std::string Code(std::string_view text)
{
    std::string cell = "`";
    for (const char ch : text) {
        cell += ch == '|' ? "\\|" : std::string(1, ch);
    }
    return cell + '`';
}

void WriteMarkdown(const ClassEntry& entry, std::ostream& out)
{
    const auto& table = entry.table();
    const auto* deviceClass = DeviceClassOf(table);
    out << "## " << Utf8(table.className) << "\n\n";
    if (table.base != nullptr) {
        out << "Derived from `" << Utf8(table.base().className);
        if (table.mixin != nullptr) {
            out << "` and `" << Utf8(table.mixin().className);
        }
        out << "`, whose settings it has too"
            << (table.savesBase ? "." : "; its `Save` writes only what is saved of its own.");
        if (deviceClass != nullptr) {
            out << " Device class " << Utf8(deviceClass) << '.';
        }
        out << "\n\n";
    }
    const auto settings = AllSettings(table);
    if (settings.empty()) {
        out << "No settings of its own.\n\n";
        return;
    }
    out << "| Key | Value | Type | Default | Allowed | Saved | Meaning |\n"
           "| --- | --- | --- | --- | --- | --- | --- |\n";
    for (const auto& setting : settings) {
        out << "| " << Code(KeyText(setting.root, setting.key)) << " | " << Code(Utf8(setting.name)) << " | "
            << NameOf(setting.type) << " | " << Cell(DefaultText(setting)) << " | " << AllowedText(setting) << " | "
            << SavedText(setting) << " | " << Cell(Utf8(setting.meaning) + RemarkText(setting)) << " |\n";
    }
    out << '\n';
}

std::string Page(const std::string& title, const std::string& introduction, std::span<const ClassEntry* const> entries)
{
    std::ostringstream out;
    out << "# " << title << "\n\n" << introduction << "\n\n";
    for (const auto* entry : entries) {
        WriteMarkdown(*entry, out);
    }
    auto page = out.str();
    page.pop_back(); // one line end at the end
    return page;
}

// ---- the page for a browser ----

using diagnosis::Attribute;
using diagnosis::Html;
using diagnosis::operator""_html; // NOLINT(misc-unused-using-decls): used by the literals

void WriteHtml(const DescribedSetting& setting, Html& page)
{
    page << (setting.saved ? R"(<tr class="saved"><th scope="row">)"_html : R"(<tr><th scope="row">)"_html)
         << (setting.wholeKey && setting.name == L"%s" ? "every value of the key" : Utf8(setting.name))
         << "</th><td>"_html << NameOf(setting.type) << "</td><td>"_html << DefaultText(setting) << "</td><td>"_html
         << diagnosis::AllowedText(setting) << "</td><td>"_html << diagnosis::SavedText(setting, setting.saved)
         << "</td><td>"_html << setting.meaning;
    for (const auto& remark : Remarks(setting)) {
        page << R"(<p class="remark">)"_html << remark << "</p>"_html;
    }
    page << "</td></tr>\n"_html;
}

// The settings of each key together, by the roots in their order and by the key as the registry lists them.
void WriteHtmlTable(const std::vector<DescribedSetting>& settings, Html& page)
{
    const auto isBefore = [](const DescribedSetting* left, const DescribedSetting* right) {
        return left->root != right->root ? left->root < right->root : LessNoCase()(left->key, right->key);
    };
    std::vector<const DescribedSetting*> sorted(settings.size());
    std::transform(settings.begin(), settings.end(), sorted.begin(), [](const auto& setting) { return &setting; });
    std::stable_sort(sorted.begin(), sorted.end(), isBefore);
    page << R"(<table class="settings reference"><thead><tr><th scope="col">Setting</th><th scope="col">Type</th>)"_html
         << R"(<th scope="col">Default</th><th scope="col">Allowed</th><th scope="col">Saved</th>)"_html
         << R"(<th scope="col">Meaning</th></tr></thead>)"_html;
    const DescribedSetting* last = nullptr;
    for (const auto* setting : sorted) {
        if (last == nullptr || isBefore(last, setting)) {
            page << (last == nullptr ? "<tbody>\n"_html : "</tbody><tbody>\n"_html)
                 << R"(<tr class="key"><th colspan="6" scope="rowgroup">)"_html << KeyText(setting->root, setting->key)
                 << " <small>"_html << PathOf(*setting) << "</small></th></tr>\n"_html;
        }
        WriteHtml(*setting, page);
        last = setting;
    }
    page << "</tbody></table>"_html;
}

void WriteHtml(const ClassEntry& entry, Html& page)
{
    const auto& table = entry.table();
    const auto* deviceClass = DeviceClassOf(table);
    const auto name = Utf8(table.className);
    page << R"(<section class="long")"_html << Attribute{"id"_html, name}
         << Attribute{"data-class"_html, deviceClass != nullptr ? Utf8(deviceClass) : ""} << "><h2>"_html << name
         << "</h2>"_html;
    const auto link = [&](const Table& base) {
        const auto baseName = Utf8(base.className);
        page << "<a"_html << Attribute{"href"_html, '#' + baseName} << ">"_html << baseName << "</a>"_html;
    };
    if (table.base != nullptr) {
        page << "<dl><div><dt>Derived from</dt><dd>"_html;
        link(table.base());
        if (table.mixin != nullptr) {
            page << " and "_html;
            link(table.mixin());
        }
        page << (table.savesBase ? ", whose settings it has too"_html
                                 : ", whose settings it has too; its Save writes only what is saved of its own"_html)
             << "</dd></div></dl>"_html;
    }
    const auto settings = AllSettings(table);
    if (settings.empty()) {
        page << R"(<p class="calm">No settings of its own.</p>)"_html;
    } else {
        WriteHtmlTable(settings, page);
    }
    page << "</section>\n"_html;
}

void WriteHtml(std::span<const ClassEntry* const> entries, std::ostream& out)
{
    diagnosis::PageFrame frame;
    frame.title = "Settings reference";
    std::map<std::string, diagnosis::PageLinks> byDeviceClass;
    std::size_t saved = 0;
    for (const auto* entry : entries) {
        const auto* deviceClass = DeviceClassOf(entry->table());
        const auto name = Utf8(entry->table().className);
        auto& links = byDeviceClass[deviceClass != nullptr ? Utf8(deviceClass) : ""];
        links.title = deviceClass != nullptr ? Utf8(deviceClass) : "Shared by all";
        links.links.push_back({name, name, {}, 0, 0});
        for (const auto& setting : AllSettings(entry->table())) {
            ++frame.settings;
            saved += setting.saved ? 1U : 0U;
        }
    }
    for (auto& [deviceClass, links] : byDeviceClass) {
        if (!deviceClass.empty()) {
            frame.deviceClasses.push_back(deviceClass);
        }
        frame.contents.push_back(std::move(links));
    }
    frame.filters = {{"saved", "Saved", saved}};
    Html page;
    BeginPage(frame, page);
    page << "<header><h1>Settings reference</h1><p>Every setting of "_html << entries.size()
         << (entries.size() == 1 ? " class"_html : " classes"_html)
         << ". A key is the subkey of the device key where nothing else is said. </p></header>\n"_html;
    for (const auto* entry : entries) {
        WriteHtml(*entry, page);
        out << page.Take();
    }
    EndPage(page);
    out << page.Take();
}

constexpr char kKeys[] =
    "A key is the subkey of the device key, `HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\` and the device key name, where "
    "nothing else is said; `WQCmnCfg` and the service keys lie in `HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS`. The "
    "settings stand in the order in which they are read; settings used by one operation come last and name it. "
    "This page is generated: `cmake --build --preset release "
    "--target reference_docs`.";

} // namespace

void WriteReference(const ClassEntry* only, ReferenceFormat format, std::ostream& out)
{
    std::vector<const ClassEntry*> entries;
    if (only != nullptr) {
        for (const auto* table : Lineage(only->table())) {
            entries.push_back(FindClass(table->className));
        }
    } else {
        entries.assign(AllClasses().begin(), AllClasses().end());
    }
    if (format == ReferenceFormat::Json) {
        auto classes = ordered_json::array();
        for (const auto* entry : entries) {
            classes.push_back(ToJson(*entry));
        }
        ordered_json all;
        all["classes"] = std::move(classes);
        out << all.dump(1) << '\n';
        return;
    }
    if (format == ReferenceFormat::Html) {
        WriteHtml(entries, out);
        return;
    }
    for (const auto* entry : entries) {
        if (format == ReferenceFormat::Text) {
            WriteText(*entry, out);
        } else {
            WriteMarkdown(*entry, out);
        }
    }
}

std::map<std::string, std::string> ReferencePages()
{
    std::map<std::string, std::vector<const ClassEntry*>> byDeviceClass;
    std::vector<const ClassEntry*> shared;
    for (const auto* entry : AllClasses()) {
        const auto* deviceClass = DeviceClassOf(entry->table());
        (deviceClass != nullptr ? byDeviceClass[Utf8(deviceClass)] : shared).push_back(entry);
    }
    std::map<std::string, std::string> pages;
    std::string index =
        "# Settings\n\nEvery setting of every class, one page for each device class. `wqspcfg reference` "
        "prints the same for one class or all of them. What the settings leave open, and how it was decided: "
        "[decisions](../decisions.md).\n\n- [Shared by all](shared.md)\n";
    pages["shared.md"] = Page("Settings that all service providers share", kKeys, shared);
    for (const auto& [deviceClass, entries] : byDeviceClass) {
        auto sorted = entries;
        // The class base first, its models by name.
        std::stable_sort(sorted.begin(), sorted.end(), [](const ClassEntry* a, const ClassEntry* b) {
            const auto rank = [](const ClassEntry* entry) {
                const auto* own = entry->table().deviceClass;
                return own != nullptr && *own != 0 ? 0 : 1;
            };
            return rank(a) != rank(b) ? rank(a) < rank(b)
                                      : std::wstring_view(a->table().className) < b->table().className;
        });
        pages[deviceClass + ".md"] = Page("Settings of device class " + deviceClass, kKeys, sorted);
        index += "- [" + deviceClass + "](" + deviceClass + ".md): " + std::to_string(entries.size()) +
                 (entries.size() == 1 ? " class\n" : " classes\n");
    }
    pages["README.md"] = index;
    return pages;
}

} // namespace wqspcfg::tools

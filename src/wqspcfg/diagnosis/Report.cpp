#include "wqspcfg/diagnosis/Report.h"

#include "wqspcfg/catalogue/ModelSelection.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/diagnosis/StoredText.h"
#include "wqspcfg/diagnosis/report/Page.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <unordered_map>

namespace wqspcfg::diagnosis {

namespace {

// What names and values of any length are cut to.
constexpr std::size_t kLongestShown = 120; // characters of a value or a name in its cell
constexpr std::size_t kLongestNote = 16;   // beside a name in the contents
constexpr std::size_t kLongestPath = 400;
constexpr std::size_t kLongestMessage = 2000;
constexpr std::size_t npos = static_cast<std::size_t>(-1);

// A row of a table of settings.
struct Row
{
    std::string id;
    const ExaminedSetting* setting;
    std::size_t entry = npos; // of a whole key
    std::vector<const Finding*> findings;
    const Difference* difference = nullptr;
};

// The settings of one key.
struct Group
{
    std::string id;
    std::string title;
    std::wstring path;
    std::vector<Row> rows;
};

struct Section
{
    std::string id;
    const Examination* examination;
    std::vector<Group> groups;
    std::size_t settings = 0;
    std::size_t changed = 0;
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

std::wstring PlaceOf(std::wstring_view path, std::wstring_view name)
{
    return UpCase(path) + L'\0' + UpCase(name);
}

bool IsText(const DescribedSetting& setting)
{
    return setting.type == Type::String || setting.type == Type::Char;
}

Markup ClassOf(Severity severity)
{
    return severity == Severity::Error ? "error"_html : "warning"_html;
}

// UTF-8 of at most so many bytes.
std::string Cut(const std::string& text, std::size_t longest)
{
    if (text.size() <= longest) {
        return text;
    }
    const auto isInside = [&](char ch) { return (static_cast<unsigned char>(ch) & 0xC0) == 0x80; };
    while (longest > 0 && isInside(text[longest])) {
        --longest;
    }
    return text.substr(0, longest) + "…";
}

std::string DeviceClass(const Examination& examination)
{
    return Cut(Utf8ForMessage(examination.service.xfsClass), kLongestShown);
}

class Reporter
{
  public:
    Reporter(const Checkup& checkup, const Comparison* comparison, const ReportOptions& options, Places& places,
             std::ostream& out)
        : m_checkup(checkup), m_comparison(comparison), m_options(options), m_places(places), m_out(out)
    {
        for (const auto& examination : checkup.services) {
            AddSection(examination);
        }
        for (const auto& finding : checkup.findings) {
            Attach(finding);
        }
        if (comparison != nullptr) {
            for (const auto& difference : comparison->differences) {
                Attach(difference);
            }
        }
    }

    void Write()
    {
        BeginPage(Frame(), m_page);
        WriteHead();
        WriteFindings();
        if (m_comparison != nullptr) {
            WriteDifferences();
        }
        WriteOverview();
        for (const auto& section : m_sections) {
            WriteSection(section);
        }
        EndPage(m_page);
        m_out << m_page.Take();
    }

  private:
    // ---- what stands where ----

    void AddSection(const Examination& examination)
    {
        const auto id = "service" + std::to_string(m_sections.size() + 1);
        Section section{id, &examination, {}, 0, 0, 0, 0};
        // By the roots in their order, and by the path as the registry lists keys.
        const auto isBefore = [](const std::pair<Root, std::wstring>& left,
                                 const std::pair<Root, std::wstring>& right) {
            return left.first != right.first ? left.first < right.first : LessNoCase()(left.second, right.second);
        };
        std::map<std::pair<Root, std::wstring>, Group, decltype(isBefore)> groups(isBefore);
        std::size_t count = 0;
        for (const auto& setting : examination.settings) {
            const auto& described = setting.Setting();
            auto& group = groups[{described.root, setting.path}];
            if (group.title.empty()) {
                group.title = Cut(KeyText(described.root, described.key), kLongestPath);
                group.path = setting.path;
            }
            const auto entries = described.wholeKey ? setting.entries.size() : 0;
            for (std::size_t i = 0; i < std::max<std::size_t>(entries, 1); ++i) {
                group.rows.push_back(
                    {id + '-' + std::to_string(++count), &setting, i < entries ? i : npos, {}, nullptr});
            }
            section.changed += IsChanged(setting) ? std::max<std::size_t>(entries, 1) : 0;
        }
        section.settings = count;
        for (auto& each : groups) {
            auto& group = each.second;
            group.id = id + "-key" + std::to_string(section.groups.size() + 1);
            section.groups.push_back(std::move(group));
        }
        m_sections.push_back(std::move(section));
        auto& added = m_sections.back();
        for (auto& group : added.groups) {
            m_keys.emplace(UpCase(group.path), std::make_pair(&examination, group.id));
            for (auto& row : group.rows) {
                std::set<std::wstring> known;
                const auto add = [&](std::wstring_view path, std::wstring_view name) {
                    if (known.insert(PlaceOf(path, name)).second) {
                        m_values.emplace(PlaceOf(path, name), std::make_pair(&examination, &row));
                    }
                };
                if (row.entry != npos) {
                    add(row.setting->path, row.setting->entries[row.entry].first);
                    continue;
                }
                add(row.setting->path, row.setting->name);
                for (const auto& asked : row.setting->asked) {
                    if (asked.found) {
                        add(asked.path, asked.name);
                    }
                }
            }
        }
    }

    // The finding belongs to each row of its value, in whichever service; it leads to that of its own service, and
    // where there is none to the key or the service.
    void Attach(const Finding& finding)
    {
        std::string target;
        const auto take = [&](const Examination* examination, const std::string& id) {
            if (target.empty() || EqualNoCase(NameOf(examination->service), finding.service)) {
                target = id;
            }
        };
        if (finding.name) {
            const auto [begin, end] = m_values.equal_range(PlaceOf(finding.path, *finding.name));
            for (auto each = begin; each != end; ++each) {
                each->second.second->findings.push_back(&finding);
                take(each->second.first, each->second.second->id);
            }
        }
        if (target.empty()) {
            const auto [begin, end] = m_keys.equal_range(UpCase(finding.path));
            for (auto each = begin; each != end; ++each) {
                take(each->second.first, each->second.second);
            }
        }
        if (auto* section = SectionOf(finding.service)) {
            ++(finding.severity == Severity::Error ? section->errors : section->warnings);
            target = target.empty() ? section->id : target;
        }
        m_targets.push_back(std::move(target));
    }

    void Attach(const Difference& difference)
    {
        const auto isIts = [&](const Row& row) {
            return row.setting == difference.left.setting &&
                   (row.entry == npos || EqualNoCase(row.setting->entries[row.entry].first, difference.name));
        };
        auto* section = SectionOf(difference.service);
        std::string target = section != nullptr ? section->id : std::string();
        for (std::size_t i = 0; section != nullptr && i < section->groups.size(); ++i) {
            auto& rows = section->groups[i].rows;
            if (const auto row = std::find_if(rows.begin(), rows.end(), isIts); row != rows.end()) {
                row->difference = &difference;
                target = row->id;
            }
        }
        m_differenceTargets.push_back(std::move(target));
    }

    // The section of the service of this name; null where there is none.
    Section* SectionOf(const std::wstring& service)
    {
        const auto found = std::find_if(m_sections.begin(), m_sections.end(), [&](const Section& section) {
            return !service.empty() && EqualNoCase(NameOf(section.examination->service), service);
        });
        return found != m_sections.end() ? &*found : nullptr;
    }

    std::size_t Count(Severity severity) const
    {
        return static_cast<std::size_t>(std::count_if(m_checkup.findings.begin(), m_checkup.findings.end(),
                                                      [&](const Finding& each) { return each.severity == severity; }));
    }

    // ---- the page ----

    PageFrame Frame() const
    {
        PageFrame frame;
        frame.title = "Terminal report, " + m_options.store;
        std::size_t changed = 0;
        std::size_t withFindings = 0;
        std::size_t differing = 0;
        std::set<std::string> classes;
        PageLinks overview{{}, {{"findings", "Findings", {}, Count(Severity::Error), Count(Severity::Warning)}}};
        if (m_comparison != nullptr) {
            overview.links.push_back({"differences", "Differences", {}, 0, 0});
        }
        overview.links.push_back({"services", "Overview", {}, 0, 0});
        PageLinks services{"Services", {}};
        for (const auto& section : m_sections) {
            frame.settings += section.settings;
            changed += section.changed;
            for (const auto& group : section.groups) {
                for (const auto& row : group.rows) {
                    withFindings += row.findings.empty() ? 0U : 1U;
                    differing += row.difference != nullptr ? 1U : 0U;
                }
            }
            const auto deviceClass = DeviceClass(*section.examination);
            if (!deviceClass.empty()) {
                classes.insert(deviceClass);
            }
            services.links.push_back({section.id,
                                      Cut(Utf8ForMessage(NameOf(section.examination->service)), kLongestShown),
                                      Cut(deviceClass, kLongestNote), section.errors, section.warnings});
        }
        frame.filters = {{"changed", "Changed", changed}, {"finding", "Findings", withFindings}};
        if (m_comparison != nullptr) {
            frame.filters.push_back({"differs", "Differences", differing});
        }
        frame.deviceClasses.assign(classes.begin(), classes.end());
        frame.contents = {std::move(overview), std::move(services)};
        return frame;
    }

    void WriteHead()
    {
        m_page << "<header><h1>Terminal report</h1><dl>"_html;
        const auto write = [&](Markup term, const std::string& text) {
            m_page << "<div><dt>"_html << term << "</dt><dd>"_html << text << "</dd></div>"_html;
        };
        write("Store"_html, m_options.store);
        if (m_comparison != nullptr) {
            write("Compared with"_html, m_comparison->store);
        }
        write("Made"_html, m_options.made);
        write("By"_html, m_options.program);
        m_page << "</dl></header>\n"_html;
    }

    void WriteFindings()
    {
        m_page
            << R"(<section id="findings" aria-labelledby="findings-title"><h2 id="findings-title">Findings</h2>)"_html;
        if (m_checkup.findings.empty()) {
            m_page << R"(<p class="calm">Nothing is wrong with what these services read.</p></section>)"_html
                   << "\n"_html;
            return;
        }
        m_page
            << R"(<table class="findings"><thead><tr><th scope="col">Severity</th><th scope="col">Service</th>)"_html
            << R"(<th scope="col">Setting</th><th scope="col">Finding</th><th scope="col">Place</th></tr></thead>)"_html
            << "<tbody>\n"_html;
        for (const auto severity : {Severity::Error, Severity::Warning}) {
            for (std::size_t i = 0; i < m_checkup.findings.size(); ++i) {
                if (m_checkup.findings[i].severity == severity) {
                    WriteFinding(m_checkup.findings[i], m_targets[i]);
                }
            }
        }
        m_page << "</tbody></table></section>\n"_html;
    }

    void WriteFinding(const Finding& finding, const std::string& target)
    {
        const auto* section = SectionOf(finding.service);
        m_page << "<tr"_html;
        if (section != nullptr) {
            m_page << Attribute{"data-class"_html, DeviceClass(*section->examination)};
        }
        m_page << R"(><td><span class="tag )"_html << ClassOf(finding.severity) << R"(">)"_html
               << (finding.severity == Severity::Error ? "error"_html : "warning"_html) << "</span></td><td>"_html;
        if (section != nullptr) {
            WriteCut(finding.service);
        } else {
            m_page << R"(<span class="none">terminal</span>)"_html;
        }
        m_page << R"(</td><th scope="row">)"_html;
        const auto what = finding.name ? *finding.name : finding.path.substr(finding.path.find_last_of(L'\\') + 1);
        const auto whole =
            Cut(FullPath(finding.path) + (finding.name ? '\\' + Utf8ForMessage(*finding.name) : ""), kLongestPath);
        BeginLink(target, whole);
        WriteCut(what);
        EndLink(target);
        m_page << "</th><td>"_html << Cut(finding.message, kLongestMessage) << "</td><td>"_html;
        WritePlace(finding.place, m_places);
        m_page << "</td></tr>\n"_html;
    }

    void WriteDifferences()
    {
        const auto& differences = m_comparison->differences;
        m_page << R"(<section id="differences" aria-labelledby="differences-title">)"_html
               << R"(<h2 id="differences-title">Differences</h2>)"_html;
        if (differences.empty()) {
            m_page << R"(<p class="calm">The services of both terminals run with the same values.</p></section>)"_html
                   << "\n"_html;
            return;
        }
        m_page
            << R"(<table class="differences"><thead><tr><th scope="col">Service</th><th scope="col">Setting</th>)"_html
            << R"(<th scope="col">Here</th><th scope="col">There</th></tr></thead><tbody>)"_html
            << "\n"_html;
        for (std::size_t i = 0; i < differences.size(); ++i) {
            WriteDifference(differences[i], m_differenceTargets[i]);
        }
        m_page << "</tbody></table></section>\n"_html;
    }

    void WriteDifference(const Difference& difference, const std::string& target)
    {
        const auto* section = SectionOf(difference.service);
        m_page << "<tr"_html;
        if (section != nullptr) {
            m_page << Attribute{"data-class"_html, DeviceClass(*section->examination)};
        }
        m_page << "><td>"_html;
        WriteCut(difference.service);
        m_page << R"(</td><th scope="row">)"_html;
        BeginLink(target, {});
        if (difference.kind == DifferenceKind::Setting) {
            m_page << Cut(KeyText(difference.root, difference.key), kLongestPath) << "\\"_html;
            WriteCut(difference.name);
        } else {
            m_page << TitleOf(difference.kind);
        }
        EndLink(target);
        m_page << "</th><td>"_html;
        WriteSide(difference.left, m_places);
        m_page << "</td><td>"_html;
        WriteSide(difference.right, m_comparison->places);
        m_page << "</td></tr>\n"_html;
    }

    static Markup TitleOf(DifferenceKind kind)
    {
        switch (kind) {
        case DifferenceKind::Service:
            return "the service"_html;
        case DifferenceKind::Class:
            return "model class"_html;
        case DifferenceKind::ClassValue:
            return "class value"_html;
        case DifferenceKind::Provider:
            return "service provider"_html;
        case DifferenceKind::DeviceKey:
            return "device key"_html;
        case DifferenceKind::Setting:
            break;
        }
        return "setting"_html;
    }

    void WriteSide(const DifferingSide& side, Places& places)
    {
        if (!side.isThere || side.value.empty()) {
            m_page << R"(<span class="none">)"_html << (side.isThere ? "none"_html : "not there"_html)
                   << "</span>"_html;
        } else {
            m_page << "<code>"_html << Cut(side.value, kLongestPath) << "</code>"_html;
        }
        const auto text =
            side.setting == nullptr ? side.note : side.stored + (side.note.empty() ? "" : ": " + side.note);
        const auto place = side.path.empty() ? std::string() : places.Of(side.path, side.name ? &*side.name : nullptr);
        m_page << " <small>"_html << text << (text.empty() || place.empty() ? ""_html : ", "_html);
        WritePlace(place, places);
        m_page << "</small>"_html;
    }

    // To the element of the id; only a piece of text where it is empty.
    void BeginLink(const std::string& target, const std::string& title)
    {
        m_page << (target.empty() ? "<span"_html : "<a"_html);
        if (!target.empty()) {
            m_page << Attribute{"href"_html, '#' + target};
        }
        if (!title.empty()) {
            m_page << Attribute{"title"_html, title};
        }
        m_page << ">"_html;
    }
    void EndLink(const std::string& target) { m_page << (target.empty() ? "</span>"_html : "</a>"_html); }

    void WriteOverview()
    {
        m_page
            << R"(<section id="services" aria-labelledby="services-title"><h2 id="services-title">Overview</h2>)"_html
            << R"(<table class="overview"><thead><tr><th scope="col">Service</th><th scope="col">Class</th>)"_html
            << R"(<th scope="col">Model</th><th scope="col">Device key</th><th scope="col">Port</th>)"_html
            << R"(<th scope="col">Settings</th><th scope="col">Changed</th><th scope="col">Findings</th></tr>)"_html
            << "</thead><tbody>\n"_html;
        for (const auto& section : m_sections) {
            const auto& service = section.examination->service;
            m_page << "<tr"_html << Attribute{"data-class"_html, DeviceClass(*section.examination)}
                   << R"(><th scope="row"><a)"_html << Attribute{"href"_html, '#' + section.id} << ">"_html;
            WriteCut(NameOf(service));
            m_page << "</a></th><td>"_html;
            WriteCut(service.xfsClass);
            m_page << "</td><td>"_html << std::wstring_view(section.examination->entry->table().className)
                   << "</td><td>"_html;
            WriteCut(service.deviceKey);
            m_page << "</td><td>"_html;
            WritePorts(section);
            m_page << "</td><td>"_html << section.settings << "</td><td>"_html << section.changed << "</td><td>"_html;
            WriteCounts(section);
            m_page << "</td></tr>\n"_html;
        }
        m_page << "</tbody></table></section>\n"_html;
    }

    void WriteCounts(const Section& section)
    {
        if (section.errors + section.warnings == 0) {
            m_page << R"(<span class="none">none</span>)"_html;
        }
        const auto write = [&](Severity severity, std::size_t count) {
            if (count != 0) {
                m_page << R"(<span class="tag )"_html << ClassOf(severity) << R"(">)"_html << count
                       << (severity == Severity::Error ? " error"_html : " warning"_html)
                       << (count == 1 ? ""_html : "s"_html) << "</span> "_html;
            }
        };
        write(Severity::Error, section.errors);
        write(Severity::Warning, section.warnings);
    }

    void WritePorts(const Section& section)
    {
        bool has = false;
        for (const auto& group : section.groups) {
            for (const auto& row : group.rows) {
                if (row.setting->refersTo == Reference::SerialPort && row.setting->value.number != 0) {
                    m_page << (has ? ", "_html : ""_html) << "<a"_html << Attribute{"href"_html, '#' + row.id}
                           << ">"_html << std::to_string(row.setting->value.number) << "</a>"_html;
                    if (row.setting->source != Source::Key) {
                        m_page << " <small>default</small>"_html;
                    }
                    has = true;
                }
            }
        }
        if (!has) {
            m_page << R"(<span class="none">none</span>)"_html;
        }
    }

    void WriteSection(const Section& section)
    {
        const auto& examination = *section.examination;
        const auto& service = examination.service;
        m_page << R"(<section class="long")"_html << Attribute{"id"_html, section.id}
               << Attribute{"data-class"_html, DeviceClass(examination)} << "><h2>"_html;
        WriteCut(NameOf(service));
        m_page << "</h2><dl>"_html;
        const auto write = [&](Markup term, std::wstring_view text) {
            if (!text.empty()) {
                m_page << "<div><dt>"_html << term << "</dt><dd>"_html;
                WriteCut(text);
                m_page << "</dd></div>"_html;
            }
        };
        write("Class"_html, service.xfsClass);
        write("Model"_html, examination.entry->table().className);
        write("Chosen because"_html, SelectModel(service).reason);
        write("Device key"_html, service.deviceKey);
        write("Service provider"_html, service.physicalName);
        m_page << "</dl>"_html;
        if (!examination.isLoaded) {
            m_page << R"(<p class="note error">Load returned false: the service does not start with this.</p>)"_html;
        }
        m_page << R"(<table class="settings"><caption class="spoken">Settings of )"_html;
        WriteCut(NameOf(service));
        m_page << R"(</caption><thead><tr><th scope="col">Setting</th><th scope="col">Value</th>)"_html
               << R"(<th scope="col">Default</th><th scope="col">Origin</th><th scope="col">Meaning</th>)"_html
               << "</tr></thead>"_html;
        for (const auto& group : section.groups) {
            m_page << "<tbody>\n<tr"_html << Attribute{"id"_html, group.id}
                   << R"( class="key"><th colspan="5" scope="rowgroup">)"_html << group.title << " <small>"_html
                   << Cut(FullPath(group.path), kLongestPath) << "</small></th></tr>\n"_html;
            for (const auto& row : group.rows) {
                WriteRow(row);
            }
            m_page << "</tbody>"_html;
        }
        m_page << "</table></section>\n"_html;
        m_out << m_page.Take();
    }

    void WriteRow(const Row& row)
    {
        const auto& setting = *row.setting;
        const auto& described = setting.Setting();
        const bool isChanged = IsChanged(setting);
        m_page << "<tr"_html << Attribute{"id"_html, row.id};
        if (isChanged || !row.findings.empty() || row.difference != nullptr) {
            m_page << R"( class=")"_html << (isChanged ? "changed "_html : ""_html)
                   << (row.findings.empty() ? ""_html : "finding "_html)
                   << (row.difference != nullptr ? "differs"_html : ""_html) << R"(")"_html;
        }
        m_page << R"(><th scope="row">)"_html;
        if (row.entry != npos) {
            WriteCut(setting.entries[row.entry].first);
        } else if (described.wholeKey) {
            m_page << R"(<span class="none">every value of the key</span>)"_html;
        } else {
            WriteCut(setting.name);
        }
        m_page << (isChanged ? R"(<span class="spoken">, changed</span>)"_html : ""_html) << "</th><td>"_html;
        WriteValue(row);
        m_page << "</td><td>"_html;
        if (!described.wholeKey) {
            WriteDefault(described, setting.value);
        }
        m_page << "</td><td>"_html << SourceText(setting);
        if (const auto* key = KeyInEffect(row)) {
            if (const auto place = m_places.Of(key->path, &key->name); !place.empty()) {
                m_page << " "_html;
                WritePlace(place, m_places);
            }
        }
        m_page << "</td><td><details><summary>"_html << described.meaning << "</summary>"_html;
        WriteDetails(row);
        m_page << "</details>"_html;
        WriteNotes(row);
        m_page << "</td></tr>\n"_html;
    }

    static const AskedKey* KeyInEffect(const Row& row)
    {
        if (row.entry == npos) {
            return row.setting->KeyInEffect();
        }
        const auto& asked = row.setting->asked;
        const auto found = std::find_if(asked.begin(), asked.end(), [&](const AskedKey& key) {
            return key.found && EqualNoCase(key.name, row.setting->entries[row.entry].first);
        });
        return found != asked.end() ? &*found : nullptr;
    }

    bool IsMasked(const ExaminedSetting& setting) const { return setting.Setting().secret && !m_options.showSecrets; }

    // The text of a row; null where it is a number.
    static const std::wstring* TextOf(const Row& row)
    {
        if (row.entry != npos) {
            return &row.setting->entries[row.entry].second;
        }
        return IsText(row.setting->Setting()) ? &row.setting->value.text : nullptr;
    }

    void WriteValue(const Row& row)
    {
        const auto& setting = *row.setting;
        if (setting.Setting().wholeKey && row.entry == npos) {
            m_page << R"(<span class="none">none</span>)"_html;
            return;
        }
        const auto* text = TextOf(row);
        if (IsMasked(setting) && (text == nullptr || !text->empty())) {
            m_page << "<code>"_html << kMasked << "</code>"_html;
        } else if (text != nullptr) {
            m_page << "<code>"_html;
            WriteQuoted(*text);
            m_page << "</code>"_html;
        } else {
            m_page << "<code>"_html << std::to_string(setting.value.number) << "</code> "_html
                   << WordOf(setting.Setting(), setting.value.number);
        }
    }

    // The word stands beside the value where it is the same.
    void WriteDefault(const DescribedSetting& setting, const DescribedValue& value)
    {
        if (setting.computed || setting.computedDefault) {
            m_page << "computed"_html;
        } else if (IsText(setting)) {
            WriteQuoted(setting.defaultValue.text);
        } else {
            m_page << std::to_string(setting.defaultValue.number);
            if (setting.defaultValue != value) {
                m_page << " "_html << WordOf(setting, setting.defaultValue.number);
            }
        }
    }

    void WriteQuoted(std::wstring_view text)
    {
        m_page << "\""_html << text.substr(0, kLongestShown) << (text.size() > kLongestShown ? "…"_html : "\""_html);
    }

    // A name, of which a long one is cut.
    void WriteCut(std::wstring_view text)
    {
        m_page << text.substr(0, kLongestShown) << (text.size() > kLongestShown ? "…"_html : ""_html);
    }

    // A place in the file of the terminal is a line, and any other what it is.
    void WritePlace(const std::string& place, const Places& places)
    {
        const auto file = places.File() + ':';
        if (place.empty()) {
            return;
        }
        m_page << R"(<small class="place")"_html << Attribute{"title"_html, place} << ">"_html;
        if (place.starts_with(file)) {
            m_page << "line "_html << std::string_view(place).substr(file.size());
        } else {
            m_page << place;
        }
        m_page << "</small>"_html;
    }

    void WriteDetails(const Row& row)
    {
        const auto& setting = *row.setting;
        const auto& described = setting.Setting();
        if (const auto* text = TextOf(row); text != nullptr && text->size() > kLongestShown && !IsMasked(setting)) {
            m_page << "<p>The whole value, "_html << text->size() << R"( characters:</p><pre tabindex="0">)"_html
                   << std::wstring_view(*text) << "</pre>"_html;
        }
        const auto* inEffect = setting.KeyInEffect();
        if (!described.wholeKey && !setting.asked.empty()) {
            m_page << "<ol>"_html;
            for (const auto& asked : setting.asked) {
                m_page << "<li>"_html << Cut(FullPath(asked.path), kLongestPath) << "\\"_html;
                WriteCut(asked.name);
                m_page << ": "_html;
                WriteStood(setting, asked);
                m_page << (&asked == inEffect ? ", in effect</li>"_html : "</li>"_html);
            }
            m_page << "</ol>"_html;
        }
        m_page << "<p>"_html << (described.wholeKey ? "every value of the key" : TypeName(StoredType(described)));
        if (const auto allowed = AllowedText(described); !allowed.empty()) {
            m_page << "; allowed: "_html << allowed;
        }
        m_page << "; "_html << SavedText(described, setting.declared->isSaved) << "; declared by "_html
               << std::wstring_view(setting.declared->table->className) << "</p>"_html;
    }

    void WriteStood(const ExaminedSetting& setting, const AskedKey& key)
    {
        if (!key.found) {
            m_page << "missing"_html;
            return;
        }
        if (IsMasked(setting)) {
            m_page << TypeName(key.type) << " "_html << kMasked;
        } else {
            m_page << StoredText(key.type, key.data);
        }
        if (const auto place = m_places.Of(key.path, &key.name); !place.empty()) {
            m_page << ", "_html;
            WritePlace(place, m_places);
        }
    }

    void WriteNotes(const Row& row)
    {
        for (const auto* finding : row.findings) {
            m_page << R"(<p class="note )"_html << ClassOf(finding->severity) << R"(">)"_html
                   << Cut(finding->message, kLongestMessage) << "</p>"_html;
        }
        const auto noPlace = [](const AskedKey&) { return std::string(); };
        const auto note = row.findings.empty() ? NoteOn(*row.setting, noPlace, m_options.showSecrets) : std::string();
        if (!note.empty()) {
            m_page << R"(<p class="note">)"_html << note << "</p>"_html;
        }
        if (row.difference != nullptr) {
            m_page << R"(<p class="note differs">There: )"_html;
            WriteSide(row.difference->right, m_comparison->places);
            m_page << "</p>"_html;
        }
    }

    const Checkup& m_checkup;
    const Comparison* m_comparison;
    const ReportOptions& m_options;
    Places& m_places;
    std::ostream& m_out;
    Html m_page;
    std::vector<Section> m_sections;
    std::unordered_multimap<std::wstring, std::pair<const Examination*, Row*>> m_values;
    std::unordered_multimap<std::wstring, std::pair<const Examination*, std::string>> m_keys;
    // The id of what each of them leads to; empty where there is nothing.
    std::vector<std::string> m_targets;
    std::vector<std::string> m_differenceTargets;
};

} // namespace

void WriteReport(const Checkup& checkup, const Comparison* comparison, const ReportOptions& options, Places& places,
                 std::ostream& out)
{
    Reporter(checkup, comparison, options, places, out).Write();
}

} // namespace wqspcfg::diagnosis

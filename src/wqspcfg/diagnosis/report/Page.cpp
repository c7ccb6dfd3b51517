#include "wqspcfg/diagnosis/report/Page.h"

#include "wqspcfg/diagnosis/report/PageFiles.h"

namespace wqspcfg::diagnosis {

namespace {

void WriteBadge(Markup kind, std::size_t count, const char* thing, Html& page)
{
    if (count != 0) {
        page << R"(<span class="badge )"_html << kind << R"(">)"_html << count << R"(<span class="spoken"> )"_html
             << thing << (count == 1 ? "" : "s") << "</span></span>"_html;
    }
}

void WriteContents(const PageFrame& frame, Html& page)
{
    page << R"(<nav aria-label="Contents"><details id="contents" open><summary>Contents</summary>)"_html;
    for (const auto& [title, links] : frame.contents) {
        page << R"(<div class="links">)"_html;
        if (!title.empty()) {
            page << R"(<h2 class="group">)"_html << title << "</h2>"_html;
        }
        page << "<ul>"_html;
        for (const auto& link : links) {
            page << "<li><a"_html << Attribute{"href"_html, '#' + link.target} << "><span>"_html << link.text
                 << "</span>"_html;
            if (!link.note.empty()) {
                page << " <small>"_html << link.note << "</small>"_html;
            }
            WriteBadge("error"_html, link.errors, "error", page);
            WriteBadge("warning"_html, link.warnings, "warning", page);
            page << "</a></li>"_html;
        }
        page << "</ul></div>"_html;
    }
    page << "</details></nav>\n"_html;
}

// Hidden until the script serves it.
void WriteSearch(const PageFrame& frame, Html& page)
{
    page << R"(<form id="search" role="search" hidden><label class="query"><span class="spoken">Search</span>)"_html
         << R"(<input type="search" id="query" placeholder="Search all settings" )"_html
         << R"(aria-keyshortcuts="/" aria-describedby="keys" autocomplete="off" spellcheck="false">)"_html
         << R"(<kbd aria-hidden="true">/</kbd></label>)"_html
         << R"(<span id="keys" class="spoken">A slash leads here, Escape clears it, the arrow down leads to the )"_html
         << "first row found. On a row, the arrows lead to its neighbours, and Enter opens its details.</span>"_html
         << R"(<fieldset><legend class="spoken">Show only</legend>)"_html;
    for (const auto& filter : frame.filters) {
        page << R"(<label class="choice"><input type="checkbox")"_html << Attribute{"value"_html, filter.rowClass}
             << (filter.count == 0 ? " disabled>"_html : ">"_html) << filter.label << " <b>"_html << filter.count
             << "</b></label>"_html;
    }
    page << "</fieldset>"_html;
    if (frame.deviceClasses.size() > 1) {
        page << R"(<label class="choose"><span class="spoken">Device class</span><select id="device-class">)"_html
             << R"(<option value="">All device classes</option>)"_html;
        for (const auto& deviceClass : frame.deviceClasses) {
            page << "<option"_html << Attribute{"value"_html, deviceClass} << ">"_html << deviceClass
                 << "</option>"_html;
        }
        page << "</select></label>"_html;
    }
    page << R"(<button type="reset" id="clear" hidden>Clear</button>)"_html
         << R"(<output id="hits" role="status" aria-live="polite">)"_html << frame.settings
         << " settings</output></form>\n"_html;
}

} // namespace

void BeginPage(const PageFrame& frame, Html& page)
{
    page << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"_html
         << R"(<meta http-equiv="Content-Security-Policy" content="default-src 'none'; script-src 'sha256-)"_html
         << kPageScript.hash << "'; style-src 'sha256-"_html << kPageStyle.hash
         << "'; base-uri 'none'; form-action 'none'\">\n"_html
         << R"(<meta name="viewport" content="width=device-width, initial-scale=1">)"_html
         << R"(<meta name="color-scheme" content="light dark"><meta name="referrer" content="no-referrer">)"_html
         << "\n<title>"_html << frame.title << "</title>\n<style>"_html << kPageStyle
         << "</style>\n</head>\n<body>\n"_html
         << R"(<a class="skip" href="#content">Skip to the content</a>)"_html;
    WriteContents(frame, page);
    page << R"(<main id="content" tabindex="-1">)"_html;
    WriteSearch(frame, page);
}

void EndPage(Html& page)
{
    page << R"(<p id="nothing" hidden>Nothing matches the search and the filters.</p>)"_html
         << "</main>\n<script>"_html << kPageScript << "</script>\n</body>\n</html>\n"_html;
}

} // namespace wqspcfg::diagnosis

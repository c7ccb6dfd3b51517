#include "wqspcfg/diagnosis/report/Html.h"

#include "wqspcfg/platform/text/DisplayText.h"
#include "wqspcfg/platform/text/Utf.h"

#include <utility>

namespace wqspcfg::diagnosis {

namespace {

void AppendEscaped(char ch, std::string& out)
{
    switch (ch) {
    case '&':
        out += "&amp;";
        break;
    case '<':
        out += "&lt;";
        break;
    case '>':
        out += "&gt;";
        break;
    case '"':
        out += "&quot;";
        break;
    case '\'':
        out += "&#39;";
        break;
    default:
        out += ch;
    }
}

bool IsPlain(wchar_t ch)
{
    return ch >= 0x20 && ch < 0x7F;
}

// The length of the character at the begin of the text: two where wchar_t is a UTF-16 unit and there is a pair.
std::size_t LengthOfCharacter(std::wstring_view text)
{
    const bool isPair =
        sizeof(wchar_t) == 2 && text.size() > 1 && (text[0] & 0xFC00) == 0xD800 && (text[1] & 0xFC00) == 0xDC00;
    return isPair ? 2 : 1;
}

} // namespace

Html& Html::operator<<(Markup markup)
{
    m_out += markup.Text();
    return *this;
}

Html& Html::operator<<(std::string_view utf8)
{
    std::wstring wide;
    if (!AppendWideFromUtf8(utf8, wide)) {
        wide.clear();
        AppendWideFromUtf8(DisplayText(utf8), wide); // names the bytes that are no text
    }
    return *this << std::wstring_view(wide);
}

Html& Html::operator<<(std::wstring_view text)
{
    while (!text.empty()) {
        if (IsPlain(text.front())) {
            AppendEscaped(static_cast<char>(text.front()), m_out);
            text.remove_prefix(1);
            continue;
        }
        const auto length = LengthOfCharacter(text);
        const std::string shown = DisplayText(text.substr(0, length));
        if (shown.starts_with('<')) {
            m_out += R"(<span class="code-point">)";
            m_out.append(shown, 1, shown.size() - 2);
            m_out += "</span>";
        } else {
            m_out += shown;
        }
        text.remove_prefix(length);
    }
    return *this;
}

Html& Html::operator<<(std::size_t number)
{
    m_out += Grouped(number);
    return *this;
}

Html& Html::operator<<(const Attribute& attribute)
{
    m_out += ' ';
    m_out += attribute.name.Text();
    m_out += "=\"";
    for (const char ch : DisplayText(attribute.value)) {
        AppendEscaped(ch, m_out);
    }
    m_out += '"';
    return *this;
}

Html& Html::operator<<(const EmbeddedFile& file)
{
    m_out += file.text;
    return *this;
}

std::string Html::Take()
{
    return std::exchange(m_out, {});
}

std::string Grouped(std::size_t number)
{
    auto text = std::to_string(number);
    for (std::size_t at = text.size(); at > 3;) {
        at -= 3;
        text.insert(at, 1, ',');
    }
    return text;
}

} // namespace wqspcfg::diagnosis

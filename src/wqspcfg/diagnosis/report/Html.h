// HTML that no text of strangers can break out of: what is not a literal of the source is escaped.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wqspcfg::diagnosis {

// HTML as it stands. Only a literal becomes it: "<td>"_html.
class Markup
{
  public:
    std::string_view Text() const noexcept { return m_text; }

  private:
    friend consteval Markup operator""_html(const char* text, std::size_t length);
    constexpr explicit Markup(std::string_view text) : m_text(text) {}

    std::string_view m_text;
};

consteval Markup operator""_html(const char* text, std::size_t length)
{
    return Markup({text, length});
}

// A file that the program is built with, such as the page's script.
struct EmbeddedFile
{
    std::string_view text;
    std::string_view hash; // SHA-256 in Base64, as a content security policy takes it
};

// An attribute with a blank before it: ` title="..."`.
struct Attribute
{
    Markup name;
    std::string_view value; // UTF-8
};

// Builds HTML. Text is escaped for elements and quoted attributes alike. A character that DisplayText takes for harmful
// becomes an element of the class "code-point" that holds "U+001B", and within an attribute "<U+001B>"; what is no
// Unicode is such a character too, so that the page is well-formed UTF-8.
class Html
{
  public:
    Html& operator<<(Markup markup);
    Html& operator<<(std::string_view utf8);
    Html& operator<<(std::wstring_view text);
    Html& operator<<(std::size_t number); // 1,234
    Html& operator<<(const Attribute& attribute);
    Html& operator<<(const EmbeddedFile& file);

    // What was built since the last call.
    std::string Take();

  private:
    std::string m_out;
};

// "1,234".
std::string Grouped(std::size_t number);

} // namespace wqspcfg::diagnosis

#include "wqspcfg/platform/store/regfile/RegFile.h"

#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/CodePage.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

namespace wqspcfg {

namespace {

constexpr std::u16string_view kVersion5 = u"Windows Registry Editor Version 5.00";
constexpr std::u16string_view kVersion4 = u"REGEDIT4";

struct HiveAlias
{
    std::wstring_view name;
    Hive hive;
};

constexpr std::array<HiveAlias, 10> kHiveAliases = {{
    {L"HKEY_LOCAL_MACHINE", Hive::LocalMachine},
    {L"HKLM", Hive::LocalMachine},
    {L"HKEY_USERS", Hive::Users},
    {L"HKU", Hive::Users},
    {L"HKEY_CURRENT_USER", Hive::CurrentUser},
    {L"HKCU", Hive::CurrentUser},
    {L"HKEY_CLASSES_ROOT", Hive::ClassesRoot},
    {L"HKCR", Hive::ClassesRoot},
    {L"HKEY_CURRENT_CONFIG", Hive::CurrentConfig},
    {L"HKCC", Hive::CurrentConfig},
}};

bool IsBlank(char16_t ch)
{
    return ch == u' ' || ch == u'\t' || ch == u'\r';
}

constexpr bool EndsQuotedRun(char16_t ch)
{
    return ch == u'"' || ch == u'\\';
}

int HexDigit(char16_t ch)
{
    if (ch >= u'0' && ch <= u'9') {
        return ch - u'0';
    }
    const auto lower = ch | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

void AppendAscii(std::string_view bytes, std::u16string& units)
{
    const auto start = units.size();
    units.resize(start + bytes.size());
    std::copy(bytes.begin(), bytes.end(), units.begin() + static_cast<std::ptrdiff_t>(start));
}

// The first line is read as far as this to see that it is that of an export.
constexpr std::size_t kLongestFirstLine = 4096;
constexpr std::size_t kMostLinesBefore = 4096;

bool IsAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

std::string Shown(std::u16string_view text)
{
    constexpr std::size_t kShown = 60;
    std::wstring wide;
    AppendWide(text.substr(0, std::min({kShown, text.size(), text.find(u'\n')})), wide);
    return '"' + Utf8ForMessage(wide) + '"';
}

// A line up to a value's data.
std::string ShownName(std::u16string_view line)
{
    return Shown(line.substr(0, line.find(u'=')));
}

} // namespace

bool SplitHive(std::wstring_view fullPath, Hive& hive, std::wstring_view& path)
{
    const auto end = std::min(fullPath.find(L'\\'), fullPath.size());
    const auto first = fullPath.substr(0, end);
    for (const auto& alias : kHiveAliases) {
        if (EqualNoCase(first, alias.name)) {
            hive = alias.hive;
            path = fullPath.substr(std::min(end + 1, fullPath.size()));
            return true;
        }
    }
    return false;
}

// Text arrives in UTF-16 code units; a line is parsed once all of it is there. A quoted string may go on over the end
// of a line, and hexadecimal bytes do after a backslash.
class RegFileParser::Impl
{
  public:
    Impl(std::string source, RegFileVisitor& visitor, std::unique_ptr<CodePage> codePage)
        : m_source(std::move(source)), m_visitor(visitor), m_codePage(std::move(codePage))
    {}

    bool Feed(std::string_view bytes)
    {
        if (m_encoding == Encoding::Unknown) {
            m_head.append(bytes);
            if (m_head.size() < 3) {
                return true;
            }
            const auto head = std::exchange(m_head, {});
            return Detect(head) && DecodeAndParse(head);
        }
        return DecodeAndParse(bytes);
    }

    bool Finish()
    {
        if (m_encoding == Encoding::Unknown) {
            const auto head = std::exchange(m_head, {});
            if (!Detect(head) || !Decode(head)) {
                return false;
            }
        }
        if (m_encoding == Encoding::Utf16 && m_hasOddByte) {
            return Fail(ErrorKind::Damaged, "the file ends in the middle of a character");
        }
        if (!m_bytes.empty() && !DecodeLine(m_bytes)) {
            return false;
        }
        if (!m_undecided.empty() && !Decide()) {
            return false;
        }
        if (!ParseLines(true)) {
            return false;
        }
        return m_version != 0 || Fail(ErrorKind::Damaged, kNoFirstLine);
    }

    Error TakeError() { return std::move(m_error); }
    std::size_t Line() const { return m_line; }
    bool IsTakenAsUtf8() const { return m_isTakenAsUtf8; }

  private:
    enum class Encoding
    {
        Unknown,
        Utf16,
        EightBit // UTF-8, or the code page in a REGEDIT4 file
    };

    enum class Scan
    {
        Start,
        Plain,
        Value,
        Quoted,
        Escape,
        Comment
    };

    bool DecodeAndParse(std::string_view bytes)
    {
        return Decode(bytes) && ParseLines(false) &&
               (m_openUnits <= kLongestRegFileLine || FailAt(m_text.size() - m_openUnits, LineIsLong()));
    }

    // `at` is the place in the current line; it may span several lines of the file.
    bool FailAt(std::size_t at, std::string_view cause)
    {
        const auto passed = std::u16string_view(m_text).substr(m_start, at);
        m_line += static_cast<std::size_t>(std::count(passed.begin(), passed.end(), u'\n'));
        return Fail(ErrorKind::Damaged, cause);
    }

    // Of a value's data, which is not shown: it may be a key or a password.
    bool FailAtData(std::size_t at, const std::string& cause)
    {
        const auto passed = std::u16string_view(m_text).substr(m_start, at);
        const auto begin = passed.rfind(u'\n') + 1; // 0 where there is none
        return FailAt(at, "column " + std::to_string(passed.size() - begin + 1) + ": " + cause);
    }

    bool Fail(ErrorKind kind, std::string_view cause)
    {
        m_error = {kind, m_source + ':' + std::to_string(m_line) + ": " + std::string(cause)};
        return false;
    }

    bool FailedVisit(const Error& error) { return Fail(error.kind, error.message); }

    // At a line that has been read and not decoded. What is wrong in a line before it is told first, however the file
    // arrives.
    bool FailUndecoded(ErrorKind kind, std::string_view cause)
    {
        if (!ParseLines(false)) {
            return false;
        }
        m_line = m_decodedLines;
        return Fail(kind, cause);
    }

    bool Detect(std::string_view head)
    {
        if (head.starts_with("\xFE\xFF")) {
            return Fail(ErrorKind::Unsupported, "UTF-16 with the high byte first is not supported");
        }
        if (head.starts_with("\xFF\xFE")) {
            m_encoding = Encoding::Utf16;
            m_skip = 2;
        } else if (head.size() > 1 && head[0] != '\0' && head[1] == '\0') {
            m_encoding = Encoding::Utf16;
        } else {
            m_encoding = Encoding::EightBit;
            m_skip = head.starts_with("\xEF\xBB\xBF") ? 3 : 0;
            m_marked = m_skip > 0;
        }
        return true;
    }

    bool Decode(std::string_view bytes)
    {
        bytes.remove_prefix(std::exchange(m_skip, 0));
        if (m_encoding == Encoding::EightBit) {
            return DecodeEightBit(bytes);
        }
        if (m_hasOddByte && !bytes.empty()) {
            const auto high = static_cast<unsigned>(static_cast<unsigned char>(bytes[0]));
            m_text.push_back(static_cast<char16_t>(m_oddByte | (high << 8)));
            bytes.remove_prefix(1);
            m_hasOddByte = false;
        }
        const auto count = bytes.size() / 2;
        const auto size = m_text.size();
        m_text.resize(size + count);
        if (count > 0) {
            std::memcpy(m_text.data() + size, bytes.data(), count * 2);
        }
        m_openUnits = OpenAfter(m_openUnits, std::u16string_view(m_text).substr(size));
        if (bytes.size() % 2 != 0) {
            m_oddByte = static_cast<unsigned char>(bytes.back());
            m_hasOddByte = true;
        }
        return true;
    }

    // How long the line is whose end has not been read, after more of the text.
    template <class Text>
    static std::size_t OpenAfter(std::size_t before, const Text& more)
    {
        const auto end = more.rfind('\n');
        return end != Text::npos ? more.size() - end - 1 : before + more.size();
    }

    bool FailLongLine()
    {
        ++m_decodedLines;
        return FailUndecoded(ErrorKind::Damaged, LineIsLong());
    }

    // Line by line, since only the first one tells which encoding it is.
    bool DecodeEightBit(std::string_view bytes)
    {
        while (!bytes.empty()) {
            if (!m_undecided.empty()) {
                m_undecided.append(bytes);
                m_openBytes = OpenAfter(m_openBytes, bytes);
                if (m_openBytes > kLongestRegFileLine) {
                    m_decodedLines +=
                        static_cast<std::size_t>(std::count(m_undecided.begin(), m_undecided.end(), '\n'));
                    --m_decodedLines;
                    return FailLongLine();
                }
                break;
            }
            const auto end = bytes.find('\n');
            if (end == std::string_view::npos) {
                m_bytes.append(bytes);
                if (!m_hasFirstLine && m_bytes.size() > kLongestFirstLine) {
                    ++m_decodedLines;
                    return FailUndecoded(ErrorKind::Damaged, kFirstLineIsLong);
                }
                if (m_bytes.size() > kLongestRegFileLine) {
                    return FailLongLine();
                }
                break;
            }
            const auto line = bytes.substr(0, end + 1);
            bytes.remove_prefix(end + 1);
            if (m_bytes.empty()) {
                if (!DecodeLine(line)) {
                    return false;
                }
            } else {
                m_bytes.append(line);
                const bool decoded = DecodeLine(m_bytes);
                m_bytes.clear();
                if (!decoded) {
                    return false;
                }
            }
        }
        return true;
    }

    bool DecodeLine(std::string_view line)
    {
        ++m_decodedLines;
        const bool isFirst = !m_hasFirstLine;
        if (isFirst) {
            if (line.size() > kLongestFirstLine) {
                return FailUndecoded(ErrorKind::Damaged, kFirstLineIsLong);
            }
            const auto ink = line.find_first_not_of(" \t\r\n");
            m_hasFirstLine = ink != std::string_view::npos;
            m_isAnsi = m_hasFirstLine && !m_marked && line.substr(ink).starts_with("REGEDIT4");
        }
        if (IsAscii(line)) {
            AppendAscii(line, m_text);
            return true;
        }
        if (!m_isAnsi) {
            return AppendUtf16FromUtf8(line, m_text) ||
                   FailUndecoded(ErrorKind::BadText, isFirst
                                                         ? "this is not a registry export: its first line is not text"
                                                         : "the text is not well-formed UTF-8");
        }
        if (m_codePage == nullptr) {
            m_undecided = line;
            return true;
        }
        return m_codePage->Append(line, m_text) ||
               FailUndecoded(ErrorKind::BadText, "the text is not in the code page that was given");
    }

    // The text of a REGEDIT4 file from its first line with more than ASCII on: UTF-8, where all of it is.
    bool Decide()
    {
        if (AppendUtf16FromUtf8(m_undecided, m_text)) {
            m_isTakenAsUtf8 = true;
            return true;
        }
        auto rest = std::string_view(m_undecided);
        std::u16string units;
        for (;; ++m_decodedLines) {
            const auto end = std::min(rest.find('\n'), rest.size() - 1);
            if (!AppendUtf16FromUtf8(rest.substr(0, end + 1), units)) {
                return FailUndecoded(ErrorKind::BadText, kUnknownCodePage);
            }
            rest.remove_prefix(end + 1);
        }
    }

    // Moves m_scan on to behind the line that begins at m_start. False when its end has not been read yet.
    bool FindEnd()
    {
        const auto* text = m_text.data();
        const auto size = m_text.size();
        auto at = m_scan;
        const auto skipTo = [&at, text, size](auto isSought) {
            while (at < size && !isSought(text[at])) {
                ++at;
            }
        };
        const auto done = [this, &at](bool found) {
            m_scan = at;
            return found;
        };
        while (at < size) {
            const auto ch = text[at++];
            switch (m_state) {
            case Scan::Start:
                if (ch == u'\n') {
                    return done(true);
                }
                if (IsBlank(ch)) {
                    break;
                }
                if (m_version != 0 && ch == u'"') {
                    m_state = Scan::Quoted;
                } else if (m_version != 0 && ch == u'@') {
                    m_state = Scan::Value;
                    m_lastInk = ch;
                } else {
                    m_state = Scan::Plain;
                }
                break;
            case Scan::Value:
                if (ch == u'\n') {
                    if (m_lastInk != u'\\') {
                        return done(true);
                    }
                    m_lastInk = u'\n';
                } else if (ch == u'"') {
                    m_state = Scan::Quoted;
                } else if (ch == u';') {
                    m_state = Scan::Comment;
                } else if (!IsBlank(ch)) {
                    m_lastInk = ch;
                }
                break;
            case Scan::Quoted:
                if (ch == u'\\') {
                    m_state = Scan::Escape;
                } else if (ch == u'"') {
                    m_state = Scan::Value;
                    m_lastInk = ch;
                } else {
                    skipTo(EndsQuotedRun);
                }
                break;
            case Scan::Escape:
                m_state = Scan::Quoted;
                break;
            case Scan::Plain:
            case Scan::Comment:
                if (ch == u'\n') {
                    return done(true);
                }
                skipTo([](char16_t other) { return other == u'\n'; });
                break;
            }
        }
        return done(false);
    }

    bool ParseLines(bool isLast)
    {
        while (FindEnd() || (isLast && m_start < m_text.size())) {
            const auto line = std::u16string_view(m_text).substr(m_start, m_scan - m_start);
            if (m_state == Scan::Quoted || m_state == Scan::Escape) {
                return FailAt(0, "a quoted text that begins here is not closed");
            }
            if (!ParseLine(line)) {
                return false;
            }
            m_line += static_cast<std::size_t>(std::count(line.begin(), line.end(), u'\n'));
            m_start = m_scan;
            m_state = Scan::Start;
        }
        m_text.erase(0, m_start);
        m_scan -= m_start;
        m_start = 0;
        return m_version != 0 || m_text.size() <= kLongestFirstLine || Fail(ErrorKind::Damaged, kFirstLineIsLong);
    }

    bool ParseLine(std::u16string_view line)
    {
        if (m_version == 0 && line.size() > kLongestFirstLine) {
            return Fail(ErrorKind::Damaged, kFirstLineIsLong);
        }
        auto end = line.size();
        while (end > 0 && (IsBlank(line[end - 1]) || line[end - 1] == u'\n')) {
            --end;
        }
        line = line.substr(0, end);
        std::size_t at = 0;
        SkipBlanks(line, at);
        if (at == line.size()) {
            return m_version != 0 || m_line <= kMostLinesBefore || Fail(ErrorKind::Damaged, kNoFirstLine);
        }
        if (m_version == 0) {
            return ParseVersion(line.substr(at));
        }
        switch (line[at]) {
        case u';':
            return true;
        case u'[':
            return ParseKey(line, at);
        case u'"':
        case u'@':
            return ParseValue(line, at);
        default:
            // A line without a name may go on with the data of the one before.
            return line.find(u'=', at) == std::u16string_view::npos
                       ? FailAtData(at, "expected a key in brackets, a value or a comment")
                       : FailAt(at,
                                "expected a key in brackets, a value or a comment, not " + ShownName(line.substr(at)));
        }
    }

    bool ParseVersion(std::u16string_view line)
    {
        if (line == kVersion5) {
            m_version = 5;
        } else if (line == kVersion4) {
            m_version = 4;
        } else {
            return FailAt(0, "this is not a registry export: it begins with " + Shown(line));
        }
        return true;
    }

    bool ParseKey(std::u16string_view line, std::size_t at)
    {
        const auto close = line.rfind(u']');
        if (close == std::u16string_view::npos) {
            return FailAt(at, "the bracket of the key is not closed");
        }
        if (close + 1 < line.size()) {
            const auto rest = line.substr(close + 1);
            const auto ink = std::find_if_not(rest.begin(), rest.end(), IsBlank);
            if (ink != rest.end() && *ink != u';') {
                return FailAt(close, "text after the key's closing bracket: " + Shown(rest));
            }
        }
        const bool isDeletion = line[at + 1] == u'-';
        const auto start = at + (isDeletion ? 2 : 1);
        m_wide.clear();
        AppendWide(line.substr(start, close - start), m_wide);
        Hive hive{};
        std::wstring_view path;
        if (!SplitHive(m_wide, hive, path)) {
            return FailAt(at, "the key does not begin with a known hive: " + Shown(line.substr(at)));
        }
        if (path.find(L'\0') != std::wstring_view::npos) {
            return FailAt(at, "the key's name holds a NUL");
        }
        m_hasKey = !isDeletion;
        Error error;
        const bool taken = isDeletion ? m_visitor.DeleteKey(hive, path, error) : m_visitor.Key(hive, path, error);
        return taken || FailedVisit(error);
    }

    bool ParseValue(std::u16string_view line, std::size_t at)
    {
        const auto start = at;
        m_wide.clear();
        if (line[at] == u'@') {
            ++at;
        } else {
            m_units.clear();
            if (!ParseQuoted(line, at, "name")) {
                return false;
            }
            AppendWide(m_units, m_wide);
        }
        if (!m_hasKey) {
            return FailAt(start, "a value without a key: " + ShownName(line.substr(start)));
        }
        SkipBlanks(line, at);
        if (at == line.size() || line[at] != u'=') {
            return FailAt(start, "'=' is missing after the value's name: " + Shown(line.substr(start, at - start)));
        }
        SkipBlanks(line, ++at);
        if (at == line.size()) {
            return FailAt(start, "the value's data is missing: " + Shown(line.substr(start)));
        }
        Error error;
        m_data.clear();
        if (line[at] == u'-') {
            SkipBlanks(line, ++at);
            return AtEnd(line, at) && (m_visitor.DeleteValue(m_wide, error) || FailedVisit(error));
        }
        std::uint32_t type = 0;
        if (!ParseData(line, at, type)) {
            return false;
        }
        return m_visitor.Value(m_wide, {static_cast<ValueType>(type), m_data}, error) || FailedVisit(error);
    }

    // The unescaped text is appended to m_units.
    bool ParseQuoted(std::u16string_view line, std::size_t& at, std::string_view what)
    {
        const auto start = at++;
        for (; at < line.size(); ++at) {
            const auto rest = line.substr(at);
            const auto* const end = std::find_if(rest.begin(), rest.end(), EndsQuotedRun);
            const auto run = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
            m_units += run;
            at += run.size();
            if (at == line.size()) {
                break;
            }
            if (line[at] == u'"') {
                ++at;
                return m_units.find(u'\0') == std::u16string::npos ||
                       FailAt(start, "the value's " + std::string(what) + " holds a NUL");
            }
            if (++at == line.size()) {
                break;
            }
            switch (line[at]) {
            case u'\\':
            case u'"':
                m_units.push_back(line[at]);
                break;
            case u'n':
                m_units.push_back(u'\n');
                break;
            case u'r':
                m_units.push_back(u'\r');
                break;
            default:
                return FailAt(at, "unknown escape " + Shown(line.substr(at - 1, 2)) +
                                      "; a backslash in a quoted text is written twice");
            }
        }
        return FailAt(start, "the value's " + std::string(what) + " is not closed by a quotation mark");
    }

    bool ParseData(std::u16string_view line, std::size_t& at, std::uint32_t& type)
    {
        const auto rest = line.substr(at);
        if (rest.front() == u'"') {
            type = static_cast<std::uint32_t>(ValueType::Sz);
            m_units.clear();
            if (!ParseQuoted(line, at, "text")) {
                return false;
            }
            AppendUnits(true);
            return AtEnd(line, at);
        }
        if (StartsWith(rest, u"dword:")) {
            type = static_cast<std::uint32_t>(ValueType::Dword);
            at += 6;
            return ParseDword(line, at);
        }
        if (StartsWith(rest, u"hex:")) {
            type = static_cast<std::uint32_t>(ValueType::Binary);
            at += 4;
            return ParseHex(line, at);
        }
        if (StartsWith(rest, u"hex(")) {
            const auto start = at;
            at += 4;
            const auto digits = ParseNumber(line, at, type);
            if (digits == 0 || digits > 8 || line.substr(at, 2) != u"):") {
                return FailAtData(start, "the type is not written as hex(NUMBER):");
            }
            at += 2;
            return ParseHex(line, at) && ConvertAnsi(type);
        }
        return FailAtData(at, "unknown kind of data; expected a quoted text, dword:, hex: or hex(NUMBER):");
    }

    // Without regard to case, as regedit reads it.
    static bool StartsWith(std::u16string_view text, std::u16string_view lower)
    {
        return text.size() >= lower.size() &&
               std::equal(lower.begin(), lower.end(), text.begin(),
                          [](char16_t a, char16_t b) { return a == b || (b >= u'A' && b <= u'Z' && a == (b | 0x20)); });
    }

    static std::size_t ParseNumber(std::u16string_view line, std::size_t& at, std::uint32_t& number)
    {
        const auto start = at;
        number = 0;
        for (; at < line.size() && HexDigit(line[at]) >= 0; ++at) {
            number = (number << 4) | static_cast<std::uint32_t>(HexDigit(line[at]));
        }
        return at - start;
    }

    bool ParseDword(std::u16string_view line, std::size_t& at)
    {
        const auto start = at;
        std::uint32_t number = 0;
        const auto digits = ParseNumber(line, at, number);
        if (digits == 0 || digits > 8) {
            return FailAtData(start, "a dword has 1 to 8 hexadecimal digits");
        }
        const auto bytes = std::as_bytes(std::span(&number, 1));
        m_data.assign(bytes.begin(), bytes.end());
        return AtEnd(line, at);
    }

    bool ParseHex(std::u16string_view line, std::size_t& at)
    {
        bool needsByte = false;
        while (SkipHexBlanks(line, at), at < line.size() && line[at] != u';') {
            const auto high = HexDigit(line[at]);
            if (high < 0) {
                return FailAtData(at, "not a hexadecimal byte");
            }
            auto value = high;
            if (++at < line.size() && HexDigit(line[at]) >= 0) {
                value = value * 16 + HexDigit(line[at++]);
            }
            m_data.push_back(static_cast<std::byte>(value));
            SkipHexBlanks(line, at);
            needsByte = at < line.size() && line[at] == u',';
            if (needsByte) {
                ++at;
            } else if (at < line.size() && line[at] != u';') {
                return FailAtData(at, "',' is missing between hexadecimal bytes");
            }
        }
        return !needsByte || FailAt(line.size(), "the hexadecimal bytes end with a ','");
    }

    static void SkipBlanks(std::u16string_view line, std::size_t& at)
    {
        while (at < line.size() && IsBlank(line[at])) {
            ++at;
        }
    }

    // A backslash goes on in the next line.
    static void SkipHexBlanks(std::u16string_view line, std::size_t& at)
    {
        while (at < line.size() && (IsBlank(line[at]) || line[at] == u'\n' || line[at] == u'\\')) {
            if (line[at] == u'\\') {
                auto next = at + 1;
                SkipBlanks(line, next);
                if (next < line.size() && line[next] != u'\n') {
                    return;
                }
            }
            ++at;
        }
    }

    bool AtEnd(std::u16string_view line, std::size_t at)
    {
        SkipBlanks(line, at);
        return at == line.size() || line[at] == u';' || FailAtData(at, "text after the value's data");
    }

    // A REGEDIT4 file holds the bytes of texts in its own encoding.
    bool ConvertAnsi(std::uint32_t type)
    {
        const auto kind = static_cast<ValueType>(type);
        if (m_version == 4 && (kind == ValueType::Sz || kind == ValueType::ExpandSz || kind == ValueType::MultiSz)) {
            m_units.clear();
            const std::string_view bytes(reinterpret_cast<const char*>(m_data.data()), m_data.size());
            if (m_codePage != nullptr ? !m_codePage->Append(bytes, m_units) : !AppendUtf16FromUtf8(bytes, m_units)) {
                return FailAt(0, m_codePage != nullptr ? "the text is not in the code page that was given"
                                                       : kUnknownCodePage);
            }
            m_data.clear();
            AppendUnits(false);
        }
        return true;
    }

    void AppendUnits(bool terminated)
    {
        const auto count = (m_units.size() + (terminated ? 1 : 0)) * 2;
        const auto* first = reinterpret_cast<const std::byte*>(m_units.c_str());
        m_data.assign(first, first + count);
    }

    static std::string LineIsLong()
    {
        return "the line is longer than " + std::to_string(kLongestRegFileLine) + " characters";
    }

    static constexpr std::string_view kNoFirstLine = "this is not a registry export: its first line is missing";
    static constexpr std::string_view kFirstLineIsLong =
        "this is not a registry export: its first line is longer than that of any export";
    static constexpr std::string_view kUnknownCodePage =
        "the text is neither ASCII nor UTF-8; give its code page with --codepage, such as 936 or 1252";

    std::string m_source;
    RegFileVisitor& m_visitor;
    std::unique_ptr<CodePage> m_codePage; // of a REGEDIT4 file, where it is known
    Error m_error;

    Encoding m_encoding = Encoding::Unknown;
    std::string m_head;      // until the encoding is known
    std::string m_bytes;     // an unfinished line
    std::string m_undecided; // all from the first line whose encoding only the rest of the file tells
    std::size_t m_decodedLines = 0;
    std::size_t m_openBytes = 0; // of a line whose end has not been read, in m_undecided
    std::size_t m_openUnits = 0; // the same of UTF-16
    std::size_t m_skip = 0;
    unsigned m_oddByte = 0;
    bool m_hasOddByte = false;
    bool m_marked = false;
    bool m_hasFirstLine = false;
    bool m_isTakenAsUtf8 = false;
    bool m_isAnsi = false;

    std::u16string m_text; // decoded, not yet parsed
    std::size_t m_start = 0;
    std::size_t m_scan = 0;
    Scan m_state = Scan::Start;
    char16_t m_lastInk = 0;
    std::size_t m_line = 1;

    int m_version = 0;
    bool m_hasKey = false;
    std::wstring m_wide;
    std::u16string m_units;
    std::vector<std::byte> m_data;
};

RegFileParser::RegFileParser(std::string source, RegFileVisitor& visitor, std::unique_ptr<CodePage> codePage)
    : m_impl(std::make_unique<Impl>(std::move(source), visitor, std::move(codePage)))
{}

RegFileParser::~RegFileParser() = default;

bool RegFileParser::Feed(std::string_view bytes, Error& error)
{
    const bool good = m_impl->Feed(bytes);
    if (!good) {
        error = m_impl->TakeError();
    }
    return good;
}

std::size_t RegFileParser::Line() const noexcept
{
    return m_impl->Line();
}

bool RegFileParser::IsTakenAsUtf8() const noexcept
{
    return m_impl->IsTakenAsUtf8();
}

bool RegFileParser::Finish(Error& error)
{
    const bool good = m_impl->Finish();
    if (!good) {
        error = m_impl->TakeError();
    }
    return good;
}

} // namespace wqspcfg

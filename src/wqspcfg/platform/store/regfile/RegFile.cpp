#include "wqspcfg/platform/store/regfile/RegFile.h"

#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#if defined(_WIN32)
#include "wqspcfg/platform/base/WinTypes.h"
#endif

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <istream>
#include <memory>
#include <ostream>
#include <system_error>
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

int HexDigit(char16_t ch)
{
    if (ch >= u'0' && ch <= u'9') {
        return ch - u'0';
    }
    const auto lower = ch | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

// Text of a REGEDIT4 file.
void AppendAnsi(std::string_view bytes, std::u16string& units)
{
#if defined(_WIN32)
    const auto length = static_cast<int>(bytes.size());
    const auto count = MultiByteToWideChar(CP_THREAD_ACP, 0, bytes.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(count), L'\0');
    MultiByteToWideChar(CP_THREAD_ACP, 0, bytes.data(), length, wide.data(), count);
    units.append(wide.begin(), wide.end());
#else
    if (!AppendUtf16FromUtf8(bytes, units)) {
        for (const auto byte : bytes) {
            units.push_back(static_cast<unsigned char>(byte));
        }
    }
#endif
}

void AppendAscii(std::string_view bytes, std::u16string& units)
{
    const auto start = units.size();
    units.resize(start + bytes.size());
    std::copy(bytes.begin(), bytes.end(), units.begin() + static_cast<std::ptrdiff_t>(start));
}

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
    Impl(std::string source, RegFileVisitor& visitor) : m_source(std::move(source)), m_visitor(visitor) {}

    bool Feed(std::string_view bytes)
    {
        if (m_encoding == Encoding::Unknown) {
            m_head.append(bytes);
            if (m_head.size() < 3) {
                return true;
            }
            const auto head = std::exchange(m_head, {});
            return Detect(head) && Decode(head) && ParseLines(false);
        }
        return Decode(bytes) && ParseLines(false);
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
        if (!ParseLines(true)) {
            return false;
        }
        return m_version != 0 || Fail(ErrorKind::Damaged, "this is no registry export: its first line is missing");
    }

    Error TakeError() { return std::move(m_error); }

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

    // `at` is the place in the current line; it may span several lines of the file.
    bool FailAt(std::size_t at, std::string_view cause)
    {
        const auto passed = std::u16string_view(m_text).substr(m_start, at);
        m_line += static_cast<std::size_t>(std::count(passed.begin(), passed.end(), u'\n'));
        return Fail(ErrorKind::Damaged, cause);
    }

    bool Fail(ErrorKind kind, std::string_view cause)
    {
        m_error = {kind, m_source + ':' + std::to_string(m_line) + ": " + std::string(cause)};
        return false;
    }

    bool FailedVisit(const Error& error) { return Fail(error.kind, error.message); }

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
        if (bytes.size() % 2 != 0) {
            m_oddByte = static_cast<unsigned char>(bytes.back());
            m_hasOddByte = true;
        }
        return true;
    }

    // Line by line, since only the first one tells which encoding it is.
    bool DecodeEightBit(std::string_view bytes)
    {
        while (!bytes.empty()) {
            const auto end = bytes.find('\n');
            if (end == std::string_view::npos) {
                m_bytes.append(bytes);
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
        if (IsAscii(line)) {
            if (!m_isAnsi && !m_marked && line.starts_with("REGEDIT4")) {
                m_isAnsi = true;
            }
            AppendAscii(line, m_text);
            return true;
        }
        if (m_isAnsi) {
            AppendAnsi(line, m_text);
            return true;
        }
        if (!AppendUtf16FromUtf8(line, m_text)) {
            // What is wrong in a line before this one is told first, however the file arrives.
            if (!ParseLines(false)) {
                return false;
            }
            m_line = m_decodedLines;
            return Fail(ErrorKind::BadText, "the text is not well-formed UTF-8");
        }
        return true;
    }

    // Moves m_scan on to behind the line that begins at m_start. False when its end has not been read yet.
    bool FindEnd()
    {
        const auto* text = m_text.data();
        const auto size = m_text.size();
        auto at = m_scan;
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
                if (ch == u'"') {
                    m_state = Scan::Quoted;
                } else if (ch == u'@') {
                    m_state = Scan::Value;
                    m_lastInk = ch;
                } else if (!IsBlank(ch)) {
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
        return true;
    }

    bool ParseLine(std::u16string_view line)
    {
        auto end = line.size();
        while (end > 0 && (IsBlank(line[end - 1]) || line[end - 1] == u'\n')) {
            --end;
        }
        line = line.substr(0, end);
        std::size_t at = 0;
        SkipBlanks(line, at);
        if (at == line.size()) {
            return true;
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
            return FailAt(at, "neither a key in brackets nor a value nor a comment: " + Shown(line.substr(at)));
        }
    }

    bool ParseVersion(std::u16string_view line)
    {
        if (line == kVersion5) {
            m_version = 5;
        } else if (line == kVersion4) {
            m_version = 4;
        } else {
            return FailAt(0, "this is no registry export: it begins with " + Shown(line));
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
            return FailAt(at, "the key begins with no known hive: " + Shown(line.substr(at)));
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
            return FailAt(start, "a value without a key: " + Shown(line.substr(start)));
        }
        SkipBlanks(line, at);
        if (at == line.size() || line[at] != u'=') {
            return FailAt(start, "'=' is missing after the value's name: " + Shown(line.substr(start)));
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
            const auto stop = std::min(line.find_first_of(u"\"\\", at), line.size());
            m_units.append(line, at, stop - at);
            at = stop;
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
                return FailAt(start, "the type is not written as hex(NUMBER): in " + Shown(rest));
            }
            at += 2;
            return ParseHex(line, at) && ConvertAnsi(type);
        }
        return FailAt(at, "unknown kind of data: " + Shown(rest));
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
            return FailAt(start, "a dword has 1 to 8 hexadecimal digits, not " + Shown(line.substr(start)));
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
                return FailAt(at, "not a hexadecimal byte: " + Shown(line.substr(at)));
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
                return FailAt(at, "',' is missing between hexadecimal bytes before " + Shown(line.substr(at)));
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
        return at == line.size() || line[at] == u';' ||
               FailAt(at, "text after the value's data: " + Shown(line.substr(at)));
    }

    // A REGEDIT4 file holds the bytes of texts in its own encoding.
    bool ConvertAnsi(std::uint32_t type)
    {
        const auto kind = static_cast<ValueType>(type);
        if (m_version == 4 && (kind == ValueType::Sz || kind == ValueType::ExpandSz || kind == ValueType::MultiSz)) {
            m_units.clear();
            AppendAnsi({reinterpret_cast<const char*>(m_data.data()), m_data.size()}, m_units);
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

    std::string m_source;
    RegFileVisitor& m_visitor;
    Error m_error;

    Encoding m_encoding = Encoding::Unknown;
    std::string m_head;  // until the encoding is known
    std::string m_bytes; // an unfinished line
    std::size_t m_decodedLines = 0;
    std::size_t m_skip = 0;
    unsigned m_oddByte = 0;
    bool m_hasOddByte = false;
    bool m_marked = false;
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

RegFileParser::RegFileParser(std::string source, RegFileVisitor& visitor)
    : m_impl(std::make_unique<Impl>(std::move(source), visitor))
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

bool RegFileParser::Finish(Error& error)
{
    const bool good = m_impl->Finish();
    if (!good) {
        error = m_impl->TakeError();
    }
    return good;
}

// --- Import ----------------------------------------------------------------------------------------------------------

namespace {

constexpr std::size_t kPiece = std::size_t{1} << 18;

class ImportVisitor final : public RegFileVisitor
{
  public:
    ImportVisitor(Transaction& transaction, ImportCounts& counts) : m_transaction(transaction), m_counts(counts) {}

    bool Key(Hive hive, std::wstring_view path, Error& error) override
    {
        Close();
        ++m_counts.keys;
        m_isOpen = Done(m_transaction.CreateKey(hive, path, m_key), error);
        return m_isOpen;
    }

    bool DeleteKey(Hive hive, std::wstring_view path, Error& error) override
    {
        Close();
        ++m_counts.deletions;
        return Done(m_transaction.DeleteKey(hive, path), error);
    }

    bool Value(std::wstring_view name, const ValueView& value, Error& error) override
    {
        ++m_counts.values;
        return Done(m_transaction.SetValue(m_key, name, value), error);
    }

    bool DeleteValue(std::wstring_view name, Error& error) override
    {
        ++m_counts.deletions;
        return Done(m_transaction.DeleteValue(m_key, name), error);
    }

  private:
    // Deleting what is not there is no failure.
    bool Done(Outcome outcome, Error& error)
    {
        if (outcome == Outcome::Failed) {
            error = m_transaction.LastError();
        }
        return outcome != Outcome::Failed;
    }

    void Close()
    {
        if (m_isOpen) {
            m_transaction.CloseKey(m_key);
            m_isOpen = false;
        }
    }

    Transaction& m_transaction;
    ImportCounts& m_counts;
    KeyId m_key = 0;
    bool m_isOpen = false;
};

// Refuses what the registry would refuse half-way through.
class CheckingVisitor final : public RegFileVisitor
{
  public:
    bool Key(Hive hive, std::wstring_view path, Error& error) override
    {
        for (std::size_t pos = 0; pos < path.size();) {
            const auto end = std::min(path.find(L'\\', pos), path.size());
            if (Utf16Length(path.substr(pos, end - pos)) > kMaxKeyName) {
                error = {ErrorKind::TooLong, "the name of the key " + DescribeKey(hive, path) + " is too long"};
                return false;
            }
            pos = end + 1;
        }
        return true;
    }
    bool DeleteKey(Hive, std::wstring_view, Error&) override { return true; }
    bool Value(std::wstring_view name, const ValueView&, Error& error) override
    {
        if (Utf16Length(name) > kMaxValueName) {
            error = {ErrorKind::TooLong, "the value's name is too long"};
            return false;
        }
        return true;
    }
    bool DeleteValue(std::wstring_view, Error&) override { return true; }
};

// Feeds all of `input` to the parser, and keeps it in `copy` where that is given.
bool Parse(std::istream& input, const std::string& source, RegFileVisitor& visitor, std::string* copy, Error& error)
{
    RegFileParser parser(source, visitor);
    std::string piece(kPiece, '\0');
    while (input) {
        input.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        const auto bytes = std::string_view(piece).substr(0, static_cast<std::size_t>(input.gcount()));
        if (copy != nullptr) {
            copy->append(bytes);
        }
        if (!parser.Feed(bytes, error)) {
            return false;
        }
    }
    if (input.bad()) {
        error = {ErrorKind::Io, "cannot read " + source};
        return false;
    }
    return parser.Finish(error);
}

} // namespace

bool ImportRegFile(Store& store, std::istream& input, const std::string& source, ImportCounts& counts, Error& error)
{
    std::string copy;
    if (!store.RollsBack()) {
        CheckingVisitor checking;
        if (!Parse(input, source, checking, &copy, error)) {
            return false;
        }
    }
    const auto transaction = store.Begin(Access::Write, error);
    if (!transaction) {
        return false;
    }
    ImportCounts imported;
    ImportVisitor visitor(*transaction, imported);
    if (store.RollsBack()) {
        if (!Parse(input, source, visitor, nullptr, error)) {
            return false;
        }
    } else {
        RegFileParser parser(source, visitor);
        if (!parser.Feed(copy, error) || !parser.Finish(error)) {
            return false;
        }
    }
    if (transaction->Commit(true) != Outcome::Found) {
        error = transaction->LastError();
        return false;
    }
    counts.keys += imported.keys;
    counts.values += imported.values;
    counts.deletions += imported.deletions;
    return true;
}

bool ImportRegFile(Store& store, const std::string& path, ImportCounts& counts, Error& error)
{
    std::error_code failure;
    const std::filesystem::path file(std::u8string(path.begin(), path.end()));
    std::ifstream input;
    if (std::filesystem::is_directory(file, failure)) {
        error = {ErrorKind::BadArgument, path + " is a directory"};
        return false;
    }
    errno = 0;
    input.open(file, std::ios::binary);
    if (!input) {
        const auto cause = errno;
        const auto kind =
            cause == ENOENT ? ErrorKind::NotFound : (cause == EACCES ? ErrorKind::AccessDenied : ErrorKind::Io);
        error = {kind, "cannot open " + path + ": " + std::generic_category().message(cause)};
        return false;
    }
    return ImportRegFile(store, input, path, counts, error);
}

// --- Export ----------------------------------------------------------------------------------------------------------

namespace {

class Exporter
{
  public:
    Exporter(Transaction& transaction, std::ostream& output) : m_transaction(transaction), m_output(output)
    {
        m_text = u'\xFEFF';
        m_text.append(kVersion5);
        m_text.append(u"\r\n\r\n");
    }

    bool Key(Hive hive, const std::wstring& path, Error& error)
    {
        KeyId key = 0;
        const auto opened = m_transaction.OpenKey(hive, path, key);
        if (opened != Outcome::Found) {
            error = opened == Outcome::Failed
                        ? m_transaction.LastError()
                        : Error{ErrorKind::NotFound, "there is no key " + DescribeKey(hive, path)};
            return false;
        }
        if (path.find_first_of(L"\r\n") != std::wstring::npos) {
            error = {ErrorKind::BadText, "a registry export cannot hold the key " + DescribeKey(hive, path) +
                                             ": its name has a line break"};
            return false;
        }
        m_text.push_back(u'[');
        AppendUtf16(HiveName(hive), m_text);
        if (!path.empty()) {
            m_text.push_back(u'\\');
            AppendUtf16(path, m_text);
        }
        m_text.append(u"]\r\n");
        bool written = true;
        const auto listed = m_transaction.EnumValues(key, [&](std::wstring_view name, const ValueView& value) {
            Value(name, value);
            written = m_text.size() < kPiece || Write();
            return written;
        });
        m_text.append(u"\r\n");
        std::vector<std::wstring> subkeys;
        if (listed == Outcome::Failed || m_transaction.EnumKeys(key, [&subkeys](std::wstring_view name) {
                subkeys.emplace_back(name);
                return true;
            }) == Outcome::Failed) {
            error = m_transaction.LastError();
            return false;
        }
        m_transaction.CloseKey(key);
        if (!written) {
            return Failed(error);
        }
        for (const auto& subkey : subkeys) {
            if (!Key(hive, path.empty() ? subkey : path + L'\\' + subkey, error)) {
                return false;
            }
        }
        return true;
    }

    bool Finish(Error& error) { return (Write() && m_output.flush()) || Failed(error); }

  private:
    bool Write()
    {
        m_output.write(reinterpret_cast<const char*>(m_text.data()), static_cast<std::streamsize>(m_text.size() * 2));
        m_text.clear();
        return m_output.good();
    }

    static bool Failed(Error& error)
    {
        error = {ErrorKind::Io, "cannot write the registry export"};
        return false;
    }

    void Value(std::wstring_view name, const ValueView& value)
    {
        m_lineStart = m_text.size();
        if (name.empty()) {
            m_text.push_back(u'@');
        } else {
            m_units.clear();
            AppendUtf16(name, m_units);
            Quoted(m_units);
        }
        m_text.push_back(u'=');
        if (value.type == ValueType::Dword && value.data.size() == 4) {
            std::uint32_t number;
            std::memcpy(&number, value.data.data(), 4);
            m_text.append(u"dword:");
            Hex(number, 8);
        } else if (value.type == ValueType::Sz && IsPlainText(value.data)) {
            Quoted(m_units);
        } else {
            Bytes(value);
        }
        m_text.append(u"\r\n");
    }

    // Whether the bytes are a text as a quoted one reads back: one terminator, well-formed, no line break. The text is
    // left in m_units.
    bool IsPlainText(std::span<const std::byte> data)
    {
        if (data.size() % 2 != 0 || data.empty()) {
            return false;
        }
        m_units.resize(data.size() / 2);
        std::memcpy(m_units.data(), data.data(), data.size());
        if (m_units.back() != u'\0') {
            return false;
        }
        m_units.pop_back();
        for (std::size_t at = 0; at < m_units.size(); ++at) {
            const auto ch = m_units[at];
            if (ch == u'\0' || ch == u'\r' || ch == u'\n' || (ch & 0xFC00) == 0xDC00) {
                return false;
            }
            if ((ch & 0xFC00) == 0xD800 && (++at == m_units.size() || (m_units[at] & 0xFC00) != 0xDC00)) {
                return false;
            }
        }
        return true;
    }

    void Quoted(std::u16string_view text)
    {
        m_text.push_back(u'"');
        for (const auto ch : text) {
            if (ch == u'"' || ch == u'\\') {
                m_text.push_back(u'\\');
            }
            m_text.push_back(ch);
        }
        m_text.push_back(u'"');
    }

    void Hex(std::uint32_t number, int digits)
    {
        for (auto shift = (digits - 1) * 4; shift >= 0; shift -= 4) {
            m_text.push_back(u"0123456789abcdef"[(number >> shift) & 0xF]);
        }
    }

    void Bytes(const ValueView& value)
    {
        constexpr std::size_t kWidth = 77; // a line is broken behind the byte that reaches it
        if (value.type == ValueType::Binary) {
            m_text.append(u"hex:");
        } else {
            const auto type = static_cast<std::uint32_t>(value.type);
            int digits = 1;
            while (digits < 8 && (type >> (digits * 4)) != 0) {
                ++digits;
            }
            m_text.append(u"hex(");
            Hex(type, digits);
            m_text.append(u"):");
        }
        for (std::size_t at = 0; at < value.data.size(); ++at) {
            Hex(static_cast<std::uint32_t>(value.data[at]), 2);
            if (at + 1 == value.data.size()) {
                break;
            }
            m_text.push_back(u',');
            if (m_text.size() - m_lineStart >= kWidth) {
                m_text.append(u"\\\r\n  ");
                m_lineStart = m_text.size() - 2;
            }
        }
    }

    Transaction& m_transaction;
    std::ostream& m_output;
    std::u16string m_text;
    std::u16string m_units;
    std::size_t m_lineStart = 0;
};

} // namespace

bool ExportRegFile(Store& store, Hive hive, std::wstring_view path, std::ostream& output, Error& error)
{
    const auto transaction = store.Begin(Access::Read, error);
    if (!transaction) {
        return false;
    }
    std::wstring normal;
    for (std::size_t pos = 0; pos < path.size();) {
        const auto end = std::min(path.find(L'\\', pos), path.size());
        if (end > pos) {
            normal += (normal.empty() ? L"" : L"\\");
            normal += path.substr(pos, end - pos);
        }
        pos = end + 1;
    }
    Exporter exporter(*transaction, output);
    return exporter.Key(hive, normal, error) && exporter.Finish(error);
}

bool ExportRegFile(Store& store, std::ostream& output, Error& error)
{
    const auto transaction = store.Begin(Access::Read, error);
    if (!transaction) {
        return false;
    }
    const bool windows = store.Address().starts_with("windows:");
    Exporter exporter(*transaction, output);
    for (const auto hive :
         {Hive::LocalMachine, Hive::Users, Hive::CurrentUser, Hive::ClassesRoot, Hive::CurrentConfig}) {
        if (windows && hive != Hive::LocalMachine && hive != Hive::Users) {
            continue;
        }
        KeyId key = 0;
        bool empty = true;
        const auto note = [&empty](auto&&...) { return empty = false; };
        if (transaction->OpenKey(hive, {}, key) == Outcome::Failed ||
            transaction->EnumKeys(key, note) == Outcome::Failed ||
            transaction->EnumValues(key, note) == Outcome::Failed) {
            error = transaction->LastError();
            return false;
        }
        if (!empty && !exporter.Key(hive, {}, error)) {
            return false;
        }
    }
    return exporter.Finish(error);
}

} // namespace wqspcfg

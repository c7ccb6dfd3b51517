#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <cstring>
#include <ostream>
#include <vector>

namespace wqspcfg {

namespace {

constexpr std::u16string_view kVersion5 = u"Windows Registry Editor Version 5.00";
constexpr std::size_t kPiece = std::size_t{1} << 18;

class Exporter
{
  public:
    Exporter(Transaction& transaction, std::ostream& output, ExportEncoding encoding)
        : m_transaction(transaction), m_output(output), m_encoding(encoding)
    {
        if (encoding == ExportEncoding::Utf16) {
            m_text = u'\xFEFF';
        }
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
        if (path.find_first_of(L"\r\n") != std::wstring::npos) { // the store of an earlier version may have such a key
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
        if (m_encoding == ExportEncoding::Utf16) {
            m_output.write(reinterpret_cast<const char*>(m_text.data()),
                           static_cast<std::streamsize>(m_text.size() * 2));
        } else {
            std::wstring wide;
            std::string utf8;
            AppendWide(m_text, wide);
            m_isUnwritable = !AppendUtf8(wide, utf8);
            m_output.write(utf8.data(), static_cast<std::streamsize>(utf8.size()));
        }
        m_text.clear();
        return m_output.good() && !m_isUnwritable;
    }

    bool Failed(Error& error) const
    {
        error = m_isUnwritable ? Error{ErrorKind::BadText, "a name in the store has half of a character only, which "
                                                           "UTF-8 cannot hold; export it without --utf8"}
                               : Error{ErrorKind::Io, "cannot write the registry export"};
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

    // Whether the bytes are a text as a quoted one reads back: one terminator, well-formed, no line break, not too
    // long. The text is left in m_units.
    bool IsPlainText(std::span<const std::byte> data)
    {
        constexpr std::size_t kLongest = kLongestRegFileLine / 4; // a character may take two units, or three bytes
        if (data.size() % 2 != 0 || data.empty() || data.size() / 2 > kLongest) {
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
    ExportEncoding m_encoding;
    bool m_isUnwritable = false;
    std::u16string m_text;
    std::u16string m_units;
    std::size_t m_lineStart = 0;
};

} // namespace

bool ExportRegFile(Store& store, Hive hive, std::wstring_view path, std::ostream& output, Error& error,
                   ExportEncoding encoding)
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
    Exporter exporter(*transaction, output, encoding);
    return exporter.Key(hive, normal, error) && exporter.Finish(error);
}

bool ExportRegFile(Store& store, std::ostream& output, Error& error, ExportEncoding encoding)
{
    const auto transaction = store.Begin(Access::Read, error);
    if (!transaction) {
        return false;
    }
    const bool windows = store.Address().starts_with("windows:");
    Exporter exporter(*transaction, output, encoding);
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

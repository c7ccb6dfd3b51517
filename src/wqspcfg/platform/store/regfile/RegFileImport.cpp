#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/platform/store/regfile/View32.h"
#include "wqspcfg/platform/text/CodePage.h"
#include "wqspcfg/platform/text/DisplayText.h"
#include "wqspcfg/platform/text/Utf.h"

#if defined(_WIN32)
#include <fstream>
#else
#include "wqspcfg/platform/store/PosixFile.h"

#include <ios>
#include <streambuf>
#include <unistd.h>
#endif

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <istream>
#include <system_error>
#include <utility>

namespace wqspcfg {

namespace {

constexpr std::size_t kPiece = std::size_t{1} << 18;

std::string Shown(std::wstring_view name)
{
    constexpr std::size_t kShown = 60;
    return '"' + DisplayText(name.substr(0, kShown)) + (name.size() > kShown ? "...\"" : "\"");
}

bool IsLonger(std::wstring_view name, std::size_t limit)
{
    return name.size() > limit / 2 && Utf16Length(name) > limit; // a character has at most two code units
}

// Passes on what every store can keep.
class CheckingVisitor final : public RegFileVisitor
{
  public:
    explicit CheckingVisitor(RegFileVisitor& next) : m_next(next) {}

    bool Key(Hive hive, std::wstring_view path, Error& error) override
    {
        std::size_t depth = 0;
        for (std::size_t pos = 0; pos < path.size();) {
            const auto end = std::min(path.find(L'\\', pos), path.size());
            const auto name = path.substr(pos, end - pos);
            depth += name.empty() ? 0U : 1U;
            if (IsLonger(name, kMaxKeyName)) {
                error = {ErrorKind::TooLong, "the key name " + Shown(name) + " is longer than " +
                                                 std::to_string(kMaxKeyName) + " characters"};
                return false;
            }
            if (HasControlCharacter(name)) {
                error = {ErrorKind::BadText, "the key name " + Shown(name) + " has a control character"};
                return false;
            }
            pos = end + 1;
        }
        if (depth > kMaxKeyDepth) {
            error = {ErrorKind::TooLong, "the key lies " + std::to_string(depth) + " levels deep; the registry has " +
                                             std::to_string(kMaxKeyDepth)};
            return false;
        }
        return m_next.Key(hive, path, error);
    }
    bool DeleteKey(Hive hive, std::wstring_view path, Error& error) override
    {
        return m_next.DeleteKey(hive, path, error);
    }
    bool Value(std::wstring_view name, const ValueView& value, Error& error) override
    {
        if (IsLonger(name, kMaxValueName)) {
            error = {ErrorKind::TooLong, "the value name " + Shown(name) + " is longer than " +
                                             std::to_string(kMaxValueName) + " characters"};
            return false;
        }
        return m_next.Value(name, value, error);
    }
    bool DeleteValue(std::wstring_view name, Error& error) override { return m_next.DeleteValue(name, error); }

  private:
    RegFileVisitor& m_next;
};

// Takes the keys of 32-bit programs to where those of 64-bit programs lie, and leaves out the latter.
class View32Visitor final : public RegFileVisitor
{
  public:
    View32Visitor(RegFileVisitor& next, View32 view) : m_next(next), m_view(std::move(view)) {}

    bool Key(Hive hive, std::wstring_view path, Error& error) override
    {
        const auto seen = m_view.FromStored(hive, path);
        m_isLeftOut = !seen;
        return m_isLeftOut || m_next.Key(hive, *seen, error);
    }
    bool DeleteKey(Hive hive, std::wstring_view path, Error& error) override
    {
        // That programs of 32 bit shall have no keys does not concern those of 64 bit.
        const auto rest = RestBelow(kSoftware32, hive, path);
        const bool isAll = rest && rest->find_first_not_of(L'\\') == std::wstring_view::npos;
        const auto seen = isAll ? path : m_view.FromStored(hive, path);
        return !seen || m_next.DeleteKey(hive, *seen, error);
    }
    bool Value(std::wstring_view name, const ValueView& value, Error& error) override
    {
        return m_isLeftOut || m_next.Value(name, value, error);
    }
    bool DeleteValue(std::wstring_view name, Error& error) override
    {
        return m_isLeftOut || m_next.DeleteValue(name, error);
    }

  private:
    RegFileVisitor& m_next;
    View32 m_view;
    bool m_isLeftOut = false;
};

#if defined(_WIN32)

// A file that is read.
class InputFile
{
  public:
    bool Open(const std::string& path, Error& error)
    {
        errno = 0;
        m_stream.open(std::filesystem::path(std::u8string(path.begin(), path.end())), std::ios::binary);
        if (!m_stream) {
            const auto cause = errno;
            const auto kind =
                cause == ENOENT ? ErrorKind::NotFound : (cause == EACCES ? ErrorKind::AccessDenied : ErrorKind::Io);
            error = {kind, "cannot open " + path + ": " + std::generic_category().message(cause)};
        }
        return static_cast<bool>(m_stream);
    }
    std::istream& Stream() { return m_stream; }

  private:
    std::ifstream m_stream;
};

#else

// A file that is read, and that no program that is started meanwhile inherits, as it would a stream's.
class InputFile
{
  public:
    bool Open(const std::string& path, Error& error)
    {
        m_buffer.file = wqspcfg::OpenFile(path, O_RDONLY | O_NOCTTY);
        if (!m_buffer.file) {
            error = SystemError("open", path, errno);
        }
        return static_cast<bool>(m_buffer.file);
    }
    std::istream& Stream() { return m_stream; }

  private:
    struct Buffer final : std::streambuf
    {
        int_type underflow() override
        {
            ssize_t size = 0;
            do {
                size = read(file.Get(), bytes.data(), bytes.size());
            } while (size < 0 && errno == EINTR);
            if (size < 0) {
                throw std::ios_base::failure("read"); // caught by the stream, which is bad then
            }
            setg(bytes.data(), bytes.data(), bytes.data() + size);
            return size == 0 ? traits_type::eof() : traits_type::to_int_type(bytes[0]);
        }

        FileDescriptor file;
        std::string bytes = std::string(kPiece, '\0');
    };

    Buffer m_buffer;
    std::istream m_stream{&m_buffer};
};

#endif

bool OpenFile(const std::string& path, InputFile& input, Error& error)
{
    std::error_code failure;
    if (std::filesystem::is_directory(std::filesystem::path(std::u8string(path.begin(), path.end())), failure)) {
        error = {ErrorKind::BadArgument, path + " is a directory"};
        return false;
    }
    return input.Open(path, error);
}

// Makes the parser and feeds all of `input` to it. `makeVisitor` is given the parser, to ask it for the line.
// NOLINTBEGIN(clang-analyzer-core.StackAddressEscape): the visitor asks the parser only while it is fed.
template <class F>
bool Parse(std::istream& input, const std::string& source, unsigned codePage, RegFileVisitor& visitor, F begin,
           bool& takenAsUtf8, Error& error)
{
    std::unique_ptr<CodePage> page;
    if (codePage != 0 && (page = CodePage::Open(codePage)) == nullptr) {
        error = {ErrorKind::BadArgument, "code page " + std::to_string(codePage) + " is not known on this system"};
        return false;
    }
    CheckingVisitor checking(visitor);
    RegFileParser parser(source, checking, std::move(page));
    begin(parser);
    std::string piece(kPiece, '\0');
    while (input) {
        input.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        if (!parser.Feed(std::string_view(piece).substr(0, static_cast<std::size_t>(input.gcount())), error)) {
            return false;
        }
    }
    if (input.bad()) {
        error = {ErrorKind::Io, "cannot read " + source};
        return false;
    }
    const bool isRead = parser.Finish(error);
    takenAsUtf8 = parser.IsTakenAsUtf8();
    return isRead;
}
// NOLINTEND(clang-analyzer-core.StackAddressEscape)

} // namespace

// Each statement of the file is one record in a chunk: what it is and its hive, then the numbers and texts that it has.
// Numbers have as many bytes as they need, and the line is told from that of the statement before.
class RegFileContent::Impl
{
  public:
    enum class Statement : unsigned char
    {
        Key,
        DeleteKey,
        Value,
        DeleteValue,
    };

    class Recorder final : public RegFileVisitor
    {
      public:
        explicit Recorder(Impl& content) : m_content(content) {}
        void Reading(const RegFileParser& parser) { m_parser = &parser; }

        bool Key(Hive hive, std::wstring_view path, Error&) override
        {
            m_content.m_view.Add(hive, path);
            return Begin(Statement::Key, hive, path) && End({});
        }
        bool DeleteKey(Hive hive, std::wstring_view path, Error&) override
        {
            return Begin(Statement::DeleteKey, hive, path) && End({});
        }
        bool Value(std::wstring_view name, const ValueView& value, Error&) override
        {
            Begin(Statement::Value, {}, name);
            Append(static_cast<std::uint32_t>(value.type));
            Append(value.data.size());
            return End({reinterpret_cast<const char*>(value.data.data()), value.data.size()});
        }
        bool DeleteValue(std::wstring_view name, Error&) override
        {
            return Begin(Statement::DeleteValue, {}, name) && End({});
        }

      private:
        bool Begin(Statement statement, Hive hive, std::wstring_view text)
        {
            m_record.clear();
            m_record += static_cast<char>(static_cast<unsigned>(statement) | (static_cast<unsigned>(hive) << 4));
            const auto line = m_parser->Line();
            Append(line - std::exchange(m_line, line));
            m_text.clear();
            AppendGeneralizedUtf8(text, m_text); // the parser's text is well-formed
            Append(m_text.size());
            m_record += m_text;
            return true;
        }
        void Append(std::size_t number)
        {
            for (; number >= 0x80; number >>= 7) {
                m_record += static_cast<char>(number | 0x80);
            }
            m_record += static_cast<char>(number);
        }
        bool End(std::string_view data)
        {
            constexpr std::size_t kChunk = std::size_t{1} << 20;
            auto& chunks = m_content.m_chunks;
            const auto size = m_record.size() + data.size();
            if (chunks.empty() || chunks.back().capacity() - chunks.back().size() < size) {
                chunks.emplace_back().reserve(std::max(kChunk, size));
            }
            chunks.back() += m_record;
            chunks.back() += data;
            return true;
        }

        Impl& m_content;
        const RegFileParser* m_parser = nullptr;
        std::string m_record;
        std::string m_text;
        std::size_t m_line = 0;
    };

    bool Read(std::istream& input, const std::string& source, const RegFileOptions& options, Error& error)
    {
        m_source = source;
        m_chunks.clear();
        m_view = {};
        Recorder recorder(*this);
        const auto begin = [&recorder](const RegFileParser& parser) { recorder.Reading(parser); };
        const bool read = Parse(input, source, options.codePage, recorder, begin, m_isTakenAsUtf8, error);
        m_isView32 = options.view32 && m_view.HasAny();
        return read;
    }

    bool IsTakenAsUtf8() const { return m_isTakenAsUtf8; }

    bool Visit(RegFileVisitor& visitor, Error& error) const
    {
        View32Visitor redirecting(visitor, m_view);
        RegFileVisitor& target = m_isView32 ? redirecting : visitor;
        std::size_t line = 0;
        std::wstring text;
        for (const auto& chunk : m_chunks) {
            for (std::string_view rest = chunk; !rest.empty();) {
                const auto head = static_cast<unsigned char>(rest.front());
                rest.remove_prefix(1);
                line += Number(rest);
                text.clear();
                AppendWideFromGeneralizedUtf8(Bytes(rest), text);
                if (!Tell(target, head, text, rest, error)) {
                    error.message = m_source + ':' + std::to_string(line) + ": " + error.message;
                    return false;
                }
            }
        }
        return true;
    }

  private:
    static std::size_t Number(std::string_view& rest)
    {
        std::size_t number = 0;
        for (unsigned shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(rest.front());
            rest.remove_prefix(1);
            number |= std::size_t{byte & 0x7FU} << shift;
            if (byte < 0x80) {
                return number;
            }
        }
    }

    static std::string_view Bytes(std::string_view& rest)
    {
        const auto size = Number(rest);
        const auto bytes = rest.substr(0, size);
        rest.remove_prefix(size);
        return bytes;
    }

    static bool Tell(RegFileVisitor& visitor, unsigned head, std::wstring_view text, std::string_view& rest,
                     Error& error)
    {
        const auto hive = static_cast<Hive>(head >> 4);
        switch (static_cast<Statement>(head & 0xF)) {
        case Statement::Key:
            return visitor.Key(hive, text, error);
        case Statement::DeleteKey:
            return visitor.DeleteKey(hive, text, error);
        case Statement::Value: {
            const auto type = static_cast<ValueType>(Number(rest));
            const auto data = Bytes(rest);
            return visitor.Value(text, {type, std::as_bytes(std::span(data.data(), data.size()))}, error);
        }
        case Statement::DeleteValue:
            break;
        }
        return visitor.DeleteValue(text, error);
    }

    std::string m_source;
    std::vector<std::string> m_chunks;
    View32 m_view;
    bool m_isView32 = false;
    bool m_isTakenAsUtf8 = false;
};

RegFileContent::RegFileContent() : m_impl(std::make_unique<Impl>()) {}

RegFileContent::~RegFileContent() = default;

bool RegFileContent::Read(std::istream& input, const std::string& source, const RegFileOptions& options, Error& error)
{
    return m_impl->Read(input, source, options, error);
}

bool RegFileContent::Read(const std::string& path, const RegFileOptions& options, Error& error)
{
    InputFile input;
    return OpenFile(path, input, error) && m_impl->Read(input.Stream(), path, options, error);
}

bool RegFileContent::IsTakenAsUtf8() const noexcept
{
    return m_impl->IsTakenAsUtf8();
}

bool RegFileContent::Visit(RegFileVisitor& visitor, Error& error) const
{
    return m_impl->Visit(visitor, error);
}

RegFileWriter::RegFileWriter(Transaction& transaction, ImportCounts& counts)
    : m_transaction(transaction), m_counts(counts)
{}

bool RegFileWriter::Key(Hive hive, std::wstring_view path, Error& error)
{
    Close();
    ++m_counts.keys;
    m_isOpen = Done(m_transaction.CreateKey(hive, path, m_key), error);
    return m_isOpen;
}

bool RegFileWriter::DeleteKey(Hive hive, std::wstring_view path, Error& error)
{
    Close();
    return Deleted(m_transaction.DeleteKey(hive, path), error);
}

bool RegFileWriter::Value(std::wstring_view name, const ValueView& value, Error& error)
{
    ++m_counts.values;
    return Done(m_transaction.SetValue(m_key, name, value), error);
}

bool RegFileWriter::DeleteValue(std::wstring_view name, Error& error)
{
    return Deleted(m_transaction.DeleteValue(m_key, name), error);
}

// Deleting what is not there is no failure, and does not count.
bool RegFileWriter::Deleted(Outcome outcome, Error& error)
{
    m_counts.deletions += outcome == Outcome::Found ? 1 : 0;
    return Done(outcome, error);
}

bool RegFileWriter::Done(Outcome outcome, Error& error)
{
    if (outcome == Outcome::Failed) {
        error = m_transaction.LastError();
    }
    return outcome != Outcome::Failed;
}

void RegFileWriter::Close()
{
    if (m_isOpen) {
        m_transaction.CloseKey(m_key);
        m_isOpen = false;
    }
}

bool ReadRegFile(const std::string& path, unsigned codePage, RegFileVisitor& visitor, bool& takenAsUtf8, Error& error)
{
    InputFile input;
    return OpenFile(path, input, error) &&
           Parse(
               input.Stream(), path, codePage, visitor, [](const RegFileParser&) {}, takenAsUtf8, error);
}

bool ImportRegFile(Store& store, const RegFileContent& content, ImportCounts& counts, Error& error)
{
    const auto transaction = store.Begin(Access::Write, error);
    if (!transaction) {
        return false;
    }
    ImportCounts imported;
    RegFileWriter writer(*transaction, imported);
    if (!content.Visit(writer, error)) {
        return false;
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

bool ImportRegFile(Store& store, std::istream& input, const std::string& source, ImportCounts& counts, Error& error,
                   const RegFileOptions& options)
{
    RegFileContent content;
    return content.Read(input, source, options, error) && ImportRegFile(store, content, counts, error);
}

bool ImportRegFile(Store& store, const std::string& path, ImportCounts& counts, Error& error,
                   const RegFileOptions& options)
{
    RegFileContent content;
    return content.Read(path, options, error) && ImportRegFile(store, content, counts, error);
}

} // namespace wqspcfg

// Registry exports as regedit writes and reads them.
//
// Read: "Windows Registry Editor Version 5.00" in UTF-16LE or UTF-8, each with or without its mark, and "REGEDIT4",
// which does not tell its code page. Where the caller does not either, a file that is ASCII or UTF-8 as a whole is
// read, and any other is an error: no text is guessed. Lines end with CRLF or LF. In strings, \\ and \" are escapes,
// and \n and \r too, which Wine's regedit writes where that of Windows breaks the line. What regedit would skip in
// silence, such as a misspelt line, is an error here.
//
// Written: version 5.00 with CRLF, in UTF-16LE with its mark, or in UTF-8 without one, which people and other programs
// read more easily, but not regedit.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/platform/text/CodePage.h"

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace wqspcfg {

// A file with a longer line is refused once so much of it has been read; in bytes where the text is not UTF-16. A value
// of any size can be written in hexadecimal, which goes on over the ends of lines.
constexpr std::size_t kLongestRegFileLine = std::size_t{1} << 25;

// Takes what stands in a registry export, in its order. False ends the reading; `error` tells why.
class RegFileVisitor
{
  public:
    virtual ~RegFileVisitor() = default;
    virtual bool Key(Hive hive, std::wstring_view path, Error& error) = 0;
    virtual bool DeleteKey(Hive hive, std::wstring_view path, Error& error) = 0;
    // Both concern the last key.
    virtual bool Value(std::wstring_view name, const ValueView& value, Error& error) = 0;
    virtual bool DeleteValue(std::wstring_view name, Error& error) = 0;
};

// Reads a registry export piece by piece.
class WQSPCFG_API RegFileParser
{
  public:
    // `source` names the file in messages. `codePage` is that of a REGEDIT4 file, or null.
    RegFileParser(std::string source, RegFileVisitor& visitor, std::unique_ptr<CodePage> codePage = nullptr);
    ~RegFileParser();
    RegFileParser(const RegFileParser&) = delete;
    RegFileParser& operator=(const RegFileParser&) = delete;

    // The next bytes of the file, in pieces of any size. False with `error` filled, naming file, line and cause; the
    // parser is of no use after that.
    bool Feed(std::string_view bytes, Error& error);
    // The file has ended.
    bool Finish(Error& error);
    // Where the statement that the visitor is told of begins.
    std::size_t Line() const noexcept;
    // Once it has ended: its text is more than ASCII and was read as UTF-8, though nothing says that it is.
    bool IsTakenAsUtf8() const noexcept;

  private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

struct RegFileOptions
{
    // Of the text of a REGEDIT4 file, by its Windows number: 936, 1252, 65001. 0: the file is ASCII or UTF-8.
    unsigned codePage = 0;
    // Take the keys under SOFTWARE\WOW6432Node, where a 64-bit Windows keeps those of 32-bit programs, to SOFTWARE, and
    // leave out those of the same names that the file has there. A file without such keys is read as it stands.
    bool view32 = false;
};

// Reads a file, checks that every store can keep what it says, and tells it to `visitor`. `takenAsUtf8` is what the
// parser says of it.
WQSPCFG_API bool ReadRegFile(const std::string& path, unsigned codePage, RegFileVisitor& visitor, bool& takenAsUtf8,
                             Error& error);

// What a registry export says, held in memory after all of it was read and checked.
class WQSPCFG_API RegFileContent
{
  public:
    RegFileContent();
    ~RegFileContent();
    RegFileContent(const RegFileContent&) = delete;
    RegFileContent& operator=(const RegFileContent&) = delete;

    // False, with `error` naming file, line and cause. A file that is no export is read no further than its beginning.
    bool Read(const std::string& path, const RegFileOptions& options, Error& error);
    bool Read(std::istream& input, const std::string& source, const RegFileOptions& options, Error& error);
    // As the parser says.
    bool IsTakenAsUtf8() const noexcept;
    // In the file's order. An error of the visitor gets file and line.
    bool Visit(RegFileVisitor& visitor, Error& error) const;

  private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

struct ImportCounts
{
    std::size_t keys = 0;
    std::size_t values = 0;
    std::size_t deletions = 0;
};

// Does what an export says within one transaction, which the caller commits.
class WQSPCFG_API RegFileWriter final : public RegFileVisitor
{
  public:
    RegFileWriter(Transaction& transaction, ImportCounts& counts);
    bool Key(Hive hive, std::wstring_view path, Error& error) override;
    bool DeleteKey(Hive hive, std::wstring_view path, Error& error) override;
    bool Value(std::wstring_view name, const ValueView& value, Error& error) override;
    bool DeleteValue(std::wstring_view name, Error& error) override;

  private:
    bool Done(Outcome outcome, Error& error);
    bool Deleted(Outcome outcome, Error& error);
    void Close();

    Transaction& m_transaction;
    ImportCounts& m_counts;
    KeyId m_key = 0;
    bool m_isOpen = false;
};

// Merges a registry export into the store: all of it, or nothing and `error` names file, line and cause. The input has
// been read to its end and checked before the store is locked, so that a slow input keeps nobody waiting.
WQSPCFG_API bool ImportRegFile(Store& store, const RegFileContent& content, ImportCounts& counts, Error& error);
WQSPCFG_API bool ImportRegFile(Store& store, const std::string& path, ImportCounts& counts, Error& error,
                               const RegFileOptions& options = {});
WQSPCFG_API bool ImportRegFile(Store& store, std::istream& input, const std::string& source, ImportCounts& counts,
                               Error& error, const RegFileOptions& options = {});

enum class ExportEncoding : std::uint8_t
{
    Utf16, // as regedit reads and writes it
    Utf8,
};

// Writes the key and all below it, subkeys and values in case-insensitive order. The caller opens `output` in binary
// mode; a failure to write is in `error` too.
WQSPCFG_API bool ExportRegFile(Store& store, Hive hive, std::wstring_view path, std::ostream& output, Error& error,
                               ExportEncoding encoding = ExportEncoding::Utf16);
// The same for the whole store. Of the Windows registry the hives that hold the others: HKEY_LOCAL_MACHINE and
// HKEY_USERS.
WQSPCFG_API bool ExportRegFile(Store& store, std::ostream& output, Error& error,
                               ExportEncoding encoding = ExportEncoding::Utf16);

// Splits a path that begins with a hive in its long or short form (HKEY_LOCAL_MACHINE, HKLM). False for any other
// beginning.
WQSPCFG_API bool SplitHive(std::wstring_view fullPath, Hive& hive, std::wstring_view& path);

} // namespace wqspcfg

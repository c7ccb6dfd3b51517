// Registry exports as regedit writes and reads them.
//
// Read: "Windows Registry Editor Version 5.00" in UTF-16LE or UTF-8, each with or without its mark, and "REGEDIT4",
// whose text is in the thread's code page on Windows; elsewhere a line that is well-formed UTF-8 is taken as that and
// any other as Latin-1. Lines end with CRLF or LF. In strings, \\ and \" are escapes, and \n and \r too, which Wine's
// regedit writes where that of Windows breaks the line. What regedit would skip in silence, such as a misspelt line, is
// an error here.
//
// Written: version 5.00 in UTF-16LE with its mark and CRLF.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/store/Store.h"

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

namespace wqspcfg {

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
    // `source` names the file in messages.
    RegFileParser(std::string source, RegFileVisitor& visitor);
    ~RegFileParser();
    RegFileParser(const RegFileParser&) = delete;
    RegFileParser& operator=(const RegFileParser&) = delete;

    // The next bytes of the file, in pieces of any size. False with `error` filled, naming file, line and cause; the
    // parser is of no use after that.
    bool Feed(std::string_view bytes, Error& error);
    // The file has ended.
    bool Finish(Error& error);

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

// Merges a registry export into the store: all of it, or nothing and `error` names file, line and cause. On a store
// that cannot roll back, the whole file has been read without an error before the first write.
WQSPCFG_API bool ImportRegFile(Store& store, const std::string& path, ImportCounts& counts, Error& error);
WQSPCFG_API bool ImportRegFile(Store& store, std::istream& input, const std::string& source, ImportCounts& counts,
                               Error& error);

// Writes the key and all below it, subkeys and values in case-insensitive order. The caller opens `output` in binary
// mode; a failure to write is in `error` too.
WQSPCFG_API bool ExportRegFile(Store& store, Hive hive, std::wstring_view path, std::ostream& output, Error& error);
// The same for the whole store. Of the Windows registry the hives that hold the others: HKEY_LOCAL_MACHINE and
// HKEY_USERS.
WQSPCFG_API bool ExportRegFile(Store& store, std::ostream& output, Error& error);

// Splits a path that begins with a hive in its long or short form (HKEY_LOCAL_MACHINE, HKLM). False for any other
// beginning.
WQSPCFG_API bool SplitHive(std::wstring_view fullPath, Hive& hive, std::wstring_view& path);

} // namespace wqspcfg

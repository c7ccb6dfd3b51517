// The commands that show and change a store. Each returns its exit status.
#pragma once

#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/tools/Console.h"

#include <optional>
#include <string>
#include <vector>

namespace wqspcfg::tools {

// With `dryRun`, these commands print what they would change and change nothing.
int Import(const StoreChoice& choice, const std::vector<std::string>& files, bool dryRun, const Console& console);
int Restore(const StoreChoice& choice, const std::string& file, bool dryRun, const Console& console);

// An empty key exports the whole store; an empty file is standard output.
int Export(const StoreChoice& choice, const std::string& key, const std::string& file, ExportEncoding encoding,
           const Console& console);
int BackUp(const StoreChoice& choice, const std::string& file, const Console& console);
int Get(const StoreChoice& choice, const std::string& key, const std::string& name, const Console& console);

enum class DataType
{
    // As the value that is there; a new one as a service reads it, else a number is a REG_DWORD and all else a REG_SZ.
    Auto,
    Sz,
    Dword,
};
// Warns on standard error of what no service reads, or not as it is set; it is set all the same.
int Set(const StoreChoice& choice, const std::string& key, const std::string& name, const std::string& data,
        DataType type, const Console& console);

struct DeleteOptions
{
    std::optional<std::string> name; // of one value; none: the key
    bool recursive = false;          // the key's subkeys too; without it a key that has some is refused
    bool dryRun = false;
};
int Delete(const StoreChoice& choice, const std::string& key, const DeleteOptions& options, const Console& console);

// An empty key lists the hives. With `recursive`, all below it: each line begins with the path from the key on.
int List(const StoreChoice& choice, const std::string& key, bool recursive, const Console& console);

} // namespace wqspcfg::tools

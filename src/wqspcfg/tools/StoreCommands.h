// The commands that show and change a store. Each returns its exit status.
#pragma once

#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/tools/Preview.h"

#include <optional>
#include <string>
#include <vector>

namespace wqspcfg::tools {

// With `preview`, these commands print what they would change and change nothing.
int Import(const StoreChoice& choice, const std::vector<std::string>& files,
           const std::optional<PreviewOptions>& preview, const Console& console);
int Restore(const StoreChoice& choice, const std::string& file, const std::optional<PreviewOptions>& preview,
            const Console& console);

// An empty key exports the whole store; an empty file is standard output.
int Export(const StoreChoice& choice, const std::string& key, const std::string& file, ExportEncoding encoding,
           const Console& console);
int BackUp(const StoreChoice& choice, const std::string& file, const Console& console);
// Keys and passwords are masked, unless --secrets is given; here and in List.
int Get(const StoreChoice& choice, const std::string& key, const std::string& name, bool json, const Console& console);

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
    std::optional<PreviewOptions> preview;
};
int Delete(const StoreChoice& choice, const std::string& key, const DeleteOptions& options, const Console& console);

struct ListOptions
{
    bool recursive = false; // all below the key: each line begins with the path from the key on
    bool json = false;
};
// An empty key lists the hives.
int List(const StoreChoice& choice, const std::string& key, const ListOptions& options, const Console& console);

} // namespace wqspcfg::tools

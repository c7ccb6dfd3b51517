// The commands that show and change a store. Each returns its exit status.
#pragma once

#include "wqspcfg/tools/Console.h"

#include <optional>
#include <string>
#include <vector>

namespace wqspcfg::tools {

int Import(const StoreChoice& choice, const std::vector<std::string>& files, const Console& console);
// An empty key exports the whole store; an empty file is standard output.
int Export(const StoreChoice& choice, const std::string& key, const std::string& file, const Console& console);
int BackUp(const StoreChoice& choice, const std::string& file, const Console& console);
int Restore(const StoreChoice& choice, const std::string& file, const Console& console);
int Get(const StoreChoice& choice, const std::string& key, const std::string& name, const Console& console);

enum class DataType
{
    Auto, // as the value that is there; for a new one a number is a REG_DWORD and all else a REG_SZ
    Sz,
    Dword,
};
int Set(const StoreChoice& choice, const std::string& key, const std::string& name, const std::string& data,
        DataType type, const Console& console);
// Without a name, the key and all below it.
int Delete(const StoreChoice& choice, const std::string& key, const std::optional<std::string>& name,
           const Console& console);
int List(const StoreChoice& choice, const std::string& key, const Console& console);

} // namespace wqspcfg::tools

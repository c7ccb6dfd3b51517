// One way of reading the values of a Load.
#pragma once

#include "Work.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace bench {

class Reader
{
  public:
    virtual ~Reader() = default;
    virtual void Load(const Work& work, Result& result) = 0;
};

// A value as the other stores take it over: path and name in upper case, text in ASCII.
struct StoredValue
{
    std::string path;
    std::string name;
    bool isText = false;
    DWORD number = 0;
    std::string text;
};
void ForEachValue(wqspcfg::Store& store, const std::function<void(const StoredValue&)>& visit);

// Each keeps its files in `directory` and takes over the values of `store`.
std::unique_ptr<Reader> OpenSqlite(const std::string& directory, wqspcfg::Store& store);
// With `everyLoad` the file is read and parsed for every Load, as a service provider does that starts; else once.
std::unique_ptr<Reader> OpenGLibKeyFile(const std::string& directory, wqspcfg::Store& store, bool everyLoad);
std::unique_ptr<Reader> OpenBoostIni(const std::string& directory, wqspcfg::Store& store, bool everyLoad);

} // namespace bench

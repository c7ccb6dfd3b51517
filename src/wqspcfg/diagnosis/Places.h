// Where the keys and values of a registry export stand in its file.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace wqspcfg::diagnosis {

struct StoreSource
{
    std::string file; // the registry export; empty: the store is none
    unsigned codePage = 0;
    bool view32 = false;
};

// Reads the file when it is first asked. A file that has changed since or cannot be read any more has no places.
class Places
{
  public:
    explicit Places(StoreSource source);
    ~Places();
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;

    const std::string& File() const noexcept { return m_source.file; }
    // "FILE:LINE" of a value, or of a key where `name` is null: where no line names the key, that of the first key
    // below it. The path is relative to the hive that its first component names. Empty where there is none.
    std::string Of(std::wstring_view path, const std::wstring* name);

  private:
    class Lines;

    StoreSource m_source;
    std::unique_ptr<Lines> m_lines;
};

} // namespace wqspcfg::diagnosis

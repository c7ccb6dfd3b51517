// One registry hive, read through libhivex.
#pragma once

#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/tools/hive/HiveImage.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

struct hive_h;

namespace wqspcfg {

// May be used by several threads at once.
class HiveFile
{
  public:
    // A subkey or a value, and where it is.
    struct Entry
    {
        std::wstring name;
        std::size_t at;
    };
    using Entries = std::vector<Entry>; // in case-insensitive order of name

    // Null with `error` filled. `path` names the file in messages.
    static std::unique_ptr<HiveFile> Open(const FileDescriptor& file, std::string path, Error& error);

    const std::string& Path() const noexcept { return m_path; }
    std::size_t Root() const { return m_image.Root(); }
    const HiveImage& Image() const noexcept { return m_image; }

    // Each is false with the cause where the hive is damaged there.
    bool Subkeys(std::size_t key, Entries& entries, std::string& cause) const;
    bool Values(std::size_t key, Entries& entries, std::string& cause) const;
    bool Data(std::size_t value, ValueType& type, std::vector<std::byte>& data, std::string& cause) const;

    // The entry of that name, or null.
    static const Entry* Find(const Entries& entries, std::wstring_view name);

  private:
    struct Closer
    {
        void operator()(hive_h* handle) const noexcept;
    };

    explicit HiveFile(std::string path) : m_path(std::move(path)) {}
    template <class List, class NameOf>
    bool ListOf(std::size_t key, const char* fault, List list, NameOf nameOf, Entries& entries,
                std::string& cause) const;

    std::string m_path;
    HiveImage m_image;
    std::unique_ptr<hive_h, Closer> m_hive;
    mutable std::mutex m_mutex; // libhivex says nothing of threads
};

} // namespace wqspcfg

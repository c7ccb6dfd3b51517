// The names of keys and values as one ordered sequence of byte strings, which is how the embedded and the memory store
// keep them:
//
//   hive letter, path, NUL, 'k', name of a subkey     the subkey exists
//   hive letter, path, NUL, 'v', name of a value      the value
//
// The path's components are joined with backslashes. All names are upper-cased and written in CESU-8, so that the order
// of bytes is the registry's order of names, and all of one key stands together.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/Store.h"

#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg {

constexpr std::string_view kSubkeyMark{"\0k", 2};
constexpr std::string_view kValueMark{"\0v", 2};

// The registry's own limits, in UTF-16 code units.
constexpr std::size_t kMaxKeyName = 255;
constexpr std::size_t kMaxKeyDepth = 512; // levels below the hive
constexpr std::size_t kMaxValueName = 16383;

// Whether the name of a key holds a line break or another control character. No such key is made: a registry export
// cannot hold it, and a listing would show it as something else. One that is there is read.
bool HasControlCharacter(std::wstring_view name) noexcept;

// Whether the registry can have a key of this path: it lies no deeper and no name is longer than the limits above.
bool CanExist(std::wstring_view path) noexcept;

char HiveLetter(Hive hive) noexcept;
// HKEY_LOCAL_MACHINE and so on.
std::wstring_view HiveName(Hive hive) noexcept;

// Appends the upper-cased name. False when the registry can hold no such name: an embedded NUL, ill-formed text.
bool AppendFolded(std::wstring_view name, std::string& out);

// Appends the flat form of a path. False as above.
bool AppendFoldedPath(Hive hive, std::wstring_view path, std::string& out);

// A path split into its components.
class FlatPath
{
  public:
    // False for a path that the registry cannot hold; the flat path is unusable then.
    bool Assign(Hive hive, std::wstring_view path);

    // The components as they were written.
    const std::vector<std::wstring_view>& Components() const noexcept { return m_components; }
    // The flat form of the path's first `depth` components.
    std::string_view Prefix(std::size_t depth) const noexcept
    {
        return std::string_view(m_flat).substr(0, m_ends[depth]);
    }
    std::string_view Whole() const noexcept { return m_flat; }
    // Makes `key` the flat name under which component `depth` (from 1) stands in its parent.
    void SubkeyName(std::size_t depth, std::string& key) const;

  private:
    std::string m_flat;
    std::vector<std::size_t> m_ends;
    std::vector<std::wstring_view> m_components;
};

// For messages: the path of a flat name, with the hive's long name. It is upper-cased, and a long one is shortened.
std::string DescribeFlatPath(std::string_view flat);

// A hive and path as a message shows it, a long one shortened.
std::string DescribeKey(Hive hive, std::wstring_view path);

} // namespace wqspcfg

// Where a 64-bit Windows keeps the keys of programs of 64 and of 32 bit: below SOFTWARE, and below
// SOFTWARE\WOW6432Node.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace wqspcfg {

inline constexpr std::wstring_view kXfsKey = L"SOFTWARE\\XFS";
inline constexpr std::wstring_view kSoftware32 = L"SOFTWARE\\WOW6432Node";
inline constexpr std::wstring_view kXfsKey32 = L"SOFTWARE\\WOW6432Node\\XFS";
inline constexpr std::wstring_view kUsersXfsKey = L".DEFAULT\\XFS"; // in HKEY_USERS, for programs of both

// What is left of a path at or below the key of HKEY_LOCAL_MACHINE: nothing or a backslash and the rest. None for any
// other path. `key` has no empty components.
std::optional<std::wstring_view> RestBelow(std::wstring_view key, Hive hive, std::wstring_view path);

// The keys that a registry export has for 32-bit programs. To those, a key SOFTWARE\X is SOFTWARE\WOW6432Node\X, and
// the one of that name that 64-bit programs have is not there. A key that the export does not have for 32-bit programs
// stands for both. What service providers read counts as one: where some of it is there for 32-bit programs, the rest
// is not that of 64-bit ones.
class View32
{
  public:
    // The export has this key.
    void Add(Hive hive, std::wstring_view path);
    // It has keys of 32-bit programs.
    bool HasAny() const noexcept { return !m_keys.empty(); }

    // Where 32-bit programs find the key of this path. The result is valid until the next call.
    std::wstring_view ToStored(Hive hive, std::wstring_view path);
    // The path under which 32-bit programs find a key of the export; none where they do not. Likewise.
    std::optional<std::wstring_view> FromStored(Hive hive, std::wstring_view path);

  private:
    bool Has(std::wstring_view rest) const;

    std::set<std::wstring> m_keys; // their names below SOFTWARE\WOW6432Node, in capitals
    std::wstring m_path;
};

// What a store has for 32-bit programs, in `view`. False, with the transaction's LastError, when it cannot be read.
bool FindKeys32(Transaction& content, View32& view);

// Opens what 32-bit programs find under a path. `content` is a transaction for reading.
std::unique_ptr<Transaction> InView32(std::unique_ptr<Transaction> content, View32 view);

// Of a terminal that has keys of 32-bit programs only: why it is refused, behind its name, and what to do about it.
std::string Only32BitKeys(std::string_view advice);

} // namespace wqspcfg

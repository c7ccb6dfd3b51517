// Where a 64-bit Windows keeps the keys of service providers, for programs of 64 and of 32 bit.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace wqspcfg {

inline constexpr std::wstring_view kXfsKey = L"SOFTWARE\\XFS";
inline constexpr std::wstring_view kXfsKey32 = L"SOFTWARE\\WOW6432Node\\XFS";

// What is left of a path at or below the key of HKEY_LOCAL_MACHINE: nothing or a backslash and the rest. None for any
// other path. `key` has no empty components.
std::optional<std::wstring_view> RestBelow(std::wstring_view key, Hive hive, std::wstring_view path);

// Opens the keys of 32-bit programs in place of those of 64-bit ones. `content` is a transaction for reading.
std::unique_ptr<Transaction> InView32(std::unique_ptr<Transaction> content);

// Of a terminal that has keys of 32-bit programs only: why it is refused, behind its name, and what to do about it.
std::string Only32BitKeys(std::string_view advice);

} // namespace wqspcfg

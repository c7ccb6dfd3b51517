// Rows by name, and the order of saving where it is not the table's.
#pragma once

#include "wqspcfg/core/settings/Setting.h"

#include <algorithm>
#include <array>
#include <span>

namespace wqspcfg {

// Results are told by a bool: GCC's sanitizers do not know at compile time that the address of a row is not null.
constexpr bool FindRow(std::span<const Setting> rows, std::wstring_view name, const Setting*& found)
{
    for (const auto& row : rows) {
        if (row.kind == Kind::Group) {
            if (FindRow(row.rows, name, found)) {
                return true;
            }
        } else if (row.IsValue() && row.name == name) {
            found = &row;
            return true;
        }
    }
    return false;
}

// The row of the given name, for what is read or written one at a time. Does not compile when there is none.
consteval const Setting& RowOf(std::span<const Setting> rows, std::wstring_view name)
{
    const Setting* found = nullptr;
    if (!FindRow(rows, name, found)) {
        throw "no setting has this name";
    }
    return *found;
}

// The saved row of the given name; the whole repetition where the row stands in one.
constexpr bool FindSaved(std::span<const Setting> rows, std::wstring_view name, const Setting*& found)
{
    for (const auto& row : rows) {
        if (row.IsBlock()) {
            if (FindSaved(row.rows, name, found)) {
                found = row.kind == Kind::Repeat ? &row : found;
                return true;
            }
        } else if (row.saved && !row.Has(Flags::Documented) &&
                   (row.kind == Kind::WholeKey ? row.key.subkey : row.name) == name) {
            found = &row;
            return true;
        }
    }
    return false;
}

constexpr std::size_t CountSaved(std::span<const Setting> rows)
{
    std::size_t count = 0;
    for (const auto& row : rows) {
        count += row.IsBlock() ? CountSaved(row.rows) : (row.saved && !row.Has(Flags::Documented) ? 1U : 0U);
    }
    return count;
}

// The saved rows of a table by name, a whole key by its subkey, in the order in which they are written. Does not
// compile when a name has no saved row or stands twice, or when `whole` is set and a saved row is left out.
template <std::size_t N>
consteval std::array<const Setting*, N> SaveOrder(std::span<const Setting> rows, const wchar_t* const (&names)[N],
                                                  bool whole = true)
{
    std::array<const Setting*, N> order{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < N; ++i) {
        if (!FindSaved(rows, names[i], order[i])) {
            throw "no saved setting has this name";
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (std::wstring_view(names[j]) == names[i]) {
                throw "the name stands twice";
            }
        }
        count += CountSaved(std::span<const Setting>(order[i], 1));
    }
    if (whole && count != CountSaved(rows)) {
        throw "a saved setting is missing from the order";
    }
    return order;
}

// The N saved rows that `others` leaves, key by key. Does not compile when there are more or less of them in these
// keys.
template <std::size_t N, std::size_t Keys, std::size_t Others>
consteval std::array<const Setting*, N> SaveOrderByKey(std::span<const Setting> rows, const Key (&keys)[Keys],
                                                       const std::array<const Setting*, Others>& others)
{
    std::array<const Setting*, N> order{};
    std::size_t count = 0;
    for (const auto& key : keys) {
        for (const auto& row : rows) {
            const bool here = row.key.root == key.root && std::wstring_view(row.key.subkey) == key.subkey;
            if (row.saved && here && std::find(others.begin(), others.end(), &row) == others.end()) {
                order.at(count++) = &row;
            }
        }
    }
    if (count != N) {
        throw "a saved setting is in none of the keys";
    }
    return order;
}

} // namespace wqspcfg

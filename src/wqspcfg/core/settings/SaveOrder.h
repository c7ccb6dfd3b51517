// Rows by name, and the order of saving where it is not the table's.
#pragma once

#include "wqspcfg/core/settings/Setting.h"

#include <algorithm>
#include <array>
#include <span>

namespace wqspcfg {

constexpr const Setting* FindRow(std::span<const Setting> rows, std::wstring_view name)
{
    for (const auto& row : rows) {
        if (row.kind == Kind::Group) {
            if (const auto* found = FindRow(row.rows, name)) {
                return found;
            }
        } else if (row.IsValue() && row.name == name) {
            return &row;
        }
    }
    return nullptr;
}

// The row of the given name, for what is read or written one at a time. Does not compile when there is none.
consteval const Setting& RowOf(std::span<const Setting> rows, std::wstring_view name)
{
    const auto* found = FindRow(rows, name);
    if (found == nullptr) {
        throw "no setting has this name";
    }
    return *found;
}

// The saved row of the given name; the whole repetition where the row stands in one.
constexpr const Setting* FindSaved(std::span<const Setting> rows, std::wstring_view name)
{
    for (const auto& row : rows) {
        if (row.IsBlock()) {
            if (const auto* found = FindSaved(row.rows, name)) {
                return row.kind == Kind::Repeat ? &row : found;
            }
        } else if (row.saved && !row.Has(Flags::Documented) &&
                   (row.kind == Kind::WholeKey ? row.key.subkey : row.name) == name) {
            return &row;
        }
    }
    return nullptr;
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
        order[i] = FindSaved(rows, names[i]);
        if (order[i] == nullptr) {
            throw "no saved setting has this name";
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (order[j] == order[i]) {
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

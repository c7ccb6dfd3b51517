// Rows by name, and the order of saving where it is not the table's.
#pragma once

#include "wqspcfg/core/settings/Setting.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <type_traits>

namespace wqspcfg {

// Where a row stands: its index in the table, and those in the rows of the blocks that it stands in.
struct Place
{
    static constexpr std::size_t kDeepest = 4;

    std::array<std::uint16_t, kDeepest> at{};
    std::uint8_t depth = 0;

    constexpr const Setting& In(std::span<const Setting> rows) const
    {
        for (std::size_t level = 0; level + 1 < depth; ++level) {
            rows = rows[at[level]].rows;
        }
        return rows[at[depth - 1U]];
    }
    constexpr Place Of(std::size_t index) const
    {
        Place place = *this;
        place.at.at(place.depth++) = static_cast<std::uint16_t>(index);
        return place;
    }
    friend constexpr bool operator==(const Place&, const Place&) = default;
};

// Calls `visit` for each row that `rows` has in itself or in blocks, with its place, until it returns true. `enter`
// tells whether the rows of a block count.
template <class Enter, class Visit>
constexpr bool FindPlace(std::span<const Setting> rows, const Place& above, Enter enter, Visit visit)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto place = above.Of(i);
        if (rows[i].IsBlock() && enter(rows[i])) {
            if (FindPlace(rows[i].rows, place, enter, visit)) {
                return true;
            }
        } else if (visit(rows[i], place)) {
            return true;
        }
    }
    return false;
}

// The name of a row of the table, for what is read or written one at a time. Does not compile when there is none.
template <const auto& Declared>
struct RowName
{
    consteval RowName(const wchar_t* name)
    {
        const auto isGroup = [](const Setting& block) { return block.kind == Kind::Group; };
        if (!FindPlace(Declared, {}, isGroup, [&](const Setting& row, const Place& found) {
                place = found;
                return row.IsValue() && row.name == name;
            })) {
            throw "no setting has this name";
        }
    }
    Place place;
};

template <const auto& Declared>
const Setting& RowOf(std::type_identity_t<RowName<Declared>> name)
{
    return name.place.In(Rows<Declared>);
}

constexpr bool IsSaved(const Setting& row)
{
    return row.saved && !row.Has(Flags::Documented);
}

constexpr std::size_t CountSaved(std::span<const Setting> rows)
{
    std::size_t count = 0;
    for (const auto& row : rows) {
        count += row.IsBlock() ? CountSaved(row.rows) : (IsSaved(row) ? 1U : 0U);
    }
    return count;
}

// Rows in an order of saving.
using SavedRows = std::span<const Setting* const> (*)();

namespace detail {

// The saved row of this name, a whole key by its subkey; the whole repetition where the row stands in one.
consteval Place PlaceOfSaved(std::span<const Setting> rows, std::wstring_view name)
{
    Place place;
    const auto hasName = [name](const Setting& row) {
        return IsSaved(row) && (row.kind == Kind::WholeKey ? row.key.subkey : row.name) == name;
    };
    const auto isGroup = [](const Setting& block) { return block.kind == Kind::Group; };
    if (!FindPlace(rows, {}, isGroup, [&](const Setting& row, const Place& found) {
            place = found;
            const auto none = [](const Setting&) { return true; };
            return row.kind == Kind::Repeat
                       ? FindPlace(row.rows, {}, none, [&](const Setting& each, const Place&) { return hasName(each); })
                       : hasName(row);
        })) {
        throw "no saved setting has this name";
    }
    return place;
}

template <std::size_t N>
consteval std::array<Place, N> PlacesInOrder(std::span<const Setting> rows, const wchar_t* const (&names)[N],
                                             bool whole)
{
    std::array<Place, N> order{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < N; ++i) {
        order[i] = PlaceOfSaved(rows, names[i]);
        if (std::find(order.begin(), order.begin() + i, order[i]) != order.begin() + i) {
            throw "the name stands twice";
        }
        count += CountSaved(std::span<const Setting>(&order[i].In(rows), 1));
    }
    if (whole && count != CountSaved(rows)) {
        throw "a saved setting is missing from the order";
    }
    return order;
}

template <std::size_t N, std::size_t Keys, std::size_t Others>
consteval std::array<Place, N> PlacesByKey(std::span<const Setting> rows, const Key (&keys)[Keys],
                                           const std::array<Place, Others>& others)
{
    std::array<Place, N> order{};
    std::size_t count = 0;
    for (const auto& key : keys) {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const auto& row = rows[i];
            const auto place = Place{}.Of(i);
            const bool here = row.key.root == key.root && std::wstring_view(row.key.subkey) == key.subkey;
            if (row.saved && here && std::find(others.begin(), others.end(), place) == others.end()) {
                order.at(count++) = place;
            }
        }
    }
    if (count != N) {
        throw "a saved setting is in none of the keys";
    }
    return order;
}

template <std::size_t N>
std::array<const Setting*, N> RowsAt(std::span<const Setting> rows, const std::array<Place, N>& places)
{
    std::array<const Setting*, N> found;
    std::transform(places.begin(), places.end(), found.begin(), [rows](const Place& place) { return &place.In(rows); });
    return found;
}

} // namespace detail

// The saved rows of a table by name, a whole key by its subkey, in the order in which they are written. Does not
// compile when a name has no saved row or stands twice, or when `Whole` is set and a saved row is left out.
template <const auto& Declared, const auto& Names, bool Whole = true>
std::span<const Setting* const> SaveOrder()
{
    static constexpr auto kPlaces = detail::PlacesInOrder(Declared, Names, Whole);
    static const auto order = detail::RowsAt(Rows<Declared>, kPlaces);
    return order;
}

// The saved rows that `Others` leaves, key by key. Does not compile when there are some in none of these keys.
template <const auto& Declared, const auto& Keys, const auto& Others>
std::span<const Setting* const> SaveOrderByKey()
{
    static constexpr auto kOthers = detail::PlacesInOrder(Declared, Others, false);
    static constexpr auto kPlaces = detail::PlacesByKey<CountSaved(Declared) - kOthers.size()>(Declared, Keys, kOthers);
    static const auto order = detail::RowsAt(Rows<Declared>, kPlaces);
    return order;
}

} // namespace wqspcfg

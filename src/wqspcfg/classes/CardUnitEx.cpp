#include "wqspcfg/classes/CardUnitEx.h"

#include "wqspcfg/classes/CardUnitFields.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

enum class Owner
{
    Record,
    Nobody,
};

// The buffers of hoppers outlive their records; the owner in the name lets a leak checker tell them from others.
template <Owner>
char* Duplicate(const char* text)
{
    if (text == nullptr) {
        return nullptr;
    }
    const std::size_t size = std::strlen(text) + 1;
    return static_cast<char*>(std::memcpy(new char[size], text, size));
}

bool SameText(const char* a, const char* b) noexcept
{
    return a == nullptr || b == nullptr ? a == b : std::strcmp(a, b) == 0;
}

} // namespace

tagCardUnitEx::tagCardUnitEx(const tagCardUnitEx& other) : tagCardUnitEx()
{
    *this = other;
}

tagCardUnitEx::tagCardUnitEx(tagCardUnitEx&& other) noexcept : tagCardUnitEx()
{
    *this = std::move(other);
}

tagCardUnitEx& tagCardUnitEx::operator=(const tagCardUnitEx& other)
{
    if (this == &other) {
        return *this;
    }
    char* const cardName = Duplicate<Owner::Record>(other.lpszCardName);
    char* const hopper = Duplicate<Owner::Nobody>(other.lpszHopper);
    delete[] lpszCardName;
    // The XFS part only: the rest follows.
    static_cast<_wfs_crd_cardunit&>(*this) = other; // NOLINT(cppcoreguidelines-slicing)
    lpszCardName = cardName;
    ulMaxCount = other.ulMaxCount;
    ulMinCount = other.ulMinCount;
    lpszHopper = hopper;
    return *this;
}

tagCardUnitEx& tagCardUnitEx::operator=(tagCardUnitEx&& other) noexcept
{
    if (this == &other) {
        return *this;
    }
    delete[] lpszCardName;
    // The XFS part only: the rest follows.
    static_cast<_wfs_crd_cardunit&>(*this) = other; // NOLINT(cppcoreguidelines-slicing)
    ulMaxCount = other.ulMaxCount;
    ulMinCount = other.ulMinCount;
    lpszHopper = other.lpszHopper;
    other.lpszCardName = nullptr;
    other.lpszHopper = nullptr;
    return *this;
}

tagCardUnitEx::~tagCardUnitEx()
{
    delete[] lpszCardName;
}

void tagCardUnitEx::SetCardName(const char* lpszName)
{
    char* const copy = Duplicate<Owner::Record>(lpszName); // the name may be this unit's own
    delete[] lpszCardName;
    lpszCardName = copy;
}

void tagCardUnitEx::SetHopper(const char* lpszName)
{
    char* const copy = Duplicate<Owner::Nobody>(lpszName);
    delete[] lpszHopper;
    lpszHopper = copy;
}

bool tagCardUnitEx::operator==(const tagCardUnitEx& other) const noexcept
{
    return std::ranges::all_of(wqspcfg::kCardUnitFields, [&](const wqspcfg::CardUnitField& field) {
        return field.IsText() ? SameText(field.text(*this), field.text(other))
                              : field.number(*this) == field.number(other);
    });
}

#pragma once

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/InvalidArgException.h"
#include "wqspcfg/platform/framework/String.h"

#include <algorithm>
#include <concepts>
#include <type_traits>
#include <utility>
#include <vector>

// A growable array of values; ARG_TYPE is how an element is passed in. Copies are deep. An index outside the array
// throws CInvalidArgException.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray
{
    static_assert(!std::is_same_v<TYPE, bool>, "use CArray<BOOL>: a packed array has no elements to refer to");

  public:
    INT_PTR GetSize() const noexcept { return static_cast<INT_PTR>(m_items.size()); }
    INT_PTR GetCount() const noexcept { return GetSize(); }
    INT_PTR GetUpperBound() const noexcept { return GetSize() - 1; }
    bool IsEmpty() const noexcept { return m_items.empty(); }
    // New elements are value-initialised; a shrunk array keeps its storage.
    void SetSize(INT_PTR size)
    {
        if (size < 0) {
            throw CInvalidArgException();
        }
        m_items.resize(static_cast<std::size_t>(size));
    }

    TYPE& GetAt(INT_PTR index) { return m_items[Checked(index)]; }
    const TYPE& GetAt(INT_PTR index) const { return m_items[Checked(index)]; }
    TYPE& operator[](INT_PTR index) { return GetAt(index); }
    const TYPE& operator[](INT_PTR index) const { return GetAt(index); }
    void SetAt(INT_PTR index, ARG_TYPE item) { m_items[Checked(index)] = item; }
    TYPE* GetData() noexcept { return m_items.data(); }
    const TYPE* GetData() const noexcept { return m_items.data(); }

    // The index of the new element, or of the first one appended.
    INT_PTR Add(ARG_TYPE item)
    {
        m_items.push_back(item);
        return GetUpperBound();
    }
    INT_PTR Append(const CArray& other)
    {
        const INT_PTR first = GetSize();
        const std::size_t count = other.m_items.size(); // `other` may be this array
        m_items.reserve(m_items.size() + count);
        for (std::size_t i = 0; i < count; ++i) {
            m_items.push_back(other.m_items[i]);
        }
        return first;
    }
    void Copy(const CArray& other) { m_items = other.m_items; }

    void RemoveAt(INT_PTR index, INT_PTR count = 1)
    {
        if (index < 0 || count < 0 || index > GetSize() || count > GetSize() - index) {
            throw CInvalidArgException();
        }
        m_items.erase(m_items.begin() + index, m_items.begin() + index + count);
    }
    // Frees the storage too.
    void RemoveAll() noexcept { std::vector<TYPE>().swap(m_items); }

    auto begin() noexcept { return m_items.begin(); }
    auto end() noexcept { return m_items.end(); }
    auto begin() const noexcept { return m_items.begin(); }
    auto end() const noexcept { return m_items.end(); }

    friend bool operator==(const CArray& a, const CArray& b) requires std::equality_comparable<TYPE>
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

  private:
    std::size_t Checked(INT_PTR index) const
    {
        if (index < 0 || index >= GetSize()) {
            throw CInvalidArgException();
        }
        return static_cast<std::size_t>(index);
    }

    std::vector<TYPE> m_items;
};

class CStringArray : public CArray<CString>
{};

class CDWordArray : public CArray<DWORD, DWORD>
{};

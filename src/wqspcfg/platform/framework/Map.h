#pragma once

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/InvalidArgException.h"
#include "wqspcfg/platform/framework/String.h"

#include <cstddef>
#include <functional>
#include <iterator>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>

// A place in a map's iteration; null before the first and after the last entry.
using POSITION = struct __POSITION*;

// A hash map of values; ARG_KEY and ARG_VALUE are how keys and values are passed in. A CString key is looked up by an
// LPCWSTR and compares exactly. Iteration runs in the order in which the keys were first set. Copies are deep.
// Setting, looking up and removing take constant time; a POSITION stays valid until its entry is removed.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap
{
    struct Slot;
    using Node = std::pair<const KEY, Slot>;
    struct Slot
    {
        VALUE value{};
        Node* previous = nullptr;
        Node* next = nullptr;
    };

    static constexpr bool kTextKey = std::is_same_v<KEY, CString>;
    struct Hash
    {
        using is_transparent = void;
        std::size_t operator()(const KEY& key) const
        {
            if constexpr (kTextKey) {
                return (*this)(key.View());
            } else {
                return std::hash<KEY>()(key);
            }
        }
        std::size_t operator()(std::wstring_view key) const noexcept requires kTextKey
        {
            return std::hash<std::wstring_view>()(key);
        }
    };
    struct Equal
    {
        using is_transparent = void;
        bool operator()(const KEY& a, const KEY& b) const { return a == b; }
        bool operator()(std::wstring_view a, const KEY& b) const noexcept requires kTextKey { return a == b.View(); }
        bool operator()(const KEY& a, std::wstring_view b) const noexcept requires kTextKey { return a.View() == b; }
    };

  public:
    // What iteration gives: references into the map.
    template <class Value>
    struct Entry
    {
        const KEY& key;
        Value& value;
    };

    template <class Value>
    class Iterator
    {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Entry<Value>;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = Entry<Value>;

        Iterator() = default;
        explicit Iterator(Node* node) : m_node(node) {}
        Entry<Value> operator*() const { return {m_node->first, m_node->second.value}; }
        Iterator& operator++()
        {
            m_node = m_node->second.next;
            return *this;
        }
        Iterator operator++(int)
        {
            const Iterator old = *this;
            ++*this;
            return old;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

      private:
        Node* m_node = nullptr;
    };

    // The block size is part of the framework's interface and has no effect.
    explicit CMap([[maybe_unused]] INT_PTR blockSize = 10) {}
    CMap(const CMap& other) { AddAll(other); }
    CMap(CMap&& other) noexcept { Swap(other); }
    CMap& operator=(CMap other) noexcept
    {
        Swap(other);
        return *this;
    }
    ~CMap() = default;

    INT_PTR GetCount() const noexcept { return static_cast<INT_PTR>(m_nodes.size()); }
    INT_PTR GetSize() const noexcept { return GetCount(); }
    bool IsEmpty() const noexcept { return m_nodes.empty(); }
    // Prepares for that many entries, whatever the map holds already.
    void InitHashTable(UINT hashSize)
    {
        m_nodes.reserve(hashSize);
        m_hashSize = hashSize;
    }
    // What InitHashTable was last given; 17 until then.
    UINT GetHashTableSize() const noexcept { return m_hashSize; }

    // FALSE leaves `value` as it was.
    BOOL Lookup(ARG_KEY key, VALUE& value) const
    {
        const auto found = Find(key);
        if (found == m_nodes.end()) {
            return FALSE;
        }
        value = found->second.value;
        return TRUE;
    }
    // A missing key is added with a value-initialised value.
    VALUE& operator[](ARG_KEY key)
    {
        const auto found = Find(key);
        if (found != m_nodes.end()) {
            return found->second.value;
        }
        Node& node = *m_nodes.try_emplace(KEY(key)).first;
        node.second.previous = m_last;
        (m_last != nullptr ? m_last->second.next : m_first) = &node;
        m_last = &node;
        return node.second.value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE value) { (*this)[key] = value; }
    BOOL RemoveKey(ARG_KEY key)
    {
        const auto found = Find(key);
        if (found == m_nodes.end()) {
            return FALSE;
        }
        const Slot& slot = found->second;
        (slot.previous != nullptr ? slot.previous->second.next : m_first) = slot.next;
        (slot.next != nullptr ? slot.next->second.previous : m_last) = slot.previous;
        m_nodes.erase(found);
        return TRUE;
    }
    void RemoveAll() noexcept
    {
        m_nodes.clear();
        m_first = m_last = nullptr;
    }

    POSITION GetStartPosition() const noexcept { return reinterpret_cast<POSITION>(m_first); }
    // Gives the entry at `next` and moves it on. A null position throws CInvalidArgException.
    void GetNextAssoc(POSITION& next, KEY& key, VALUE& value) const
    {
        const Node* node = reinterpret_cast<const Node*>(next);
        if (node == nullptr) {
            throw CInvalidArgException();
        }
        key = node->first;
        value = node->second.value;
        next = reinterpret_cast<POSITION>(node->second.next);
    }

    Iterator<VALUE> begin() noexcept { return Iterator<VALUE>(m_first); }
    Iterator<VALUE> end() noexcept { return Iterator<VALUE>(); }
    Iterator<const VALUE> begin() const noexcept { return Iterator<const VALUE>(m_first); }
    Iterator<const VALUE> end() const noexcept { return Iterator<const VALUE>(); }

  private:
    auto Find(ARG_KEY key) { return m_nodes.find(Argument(key)); }
    auto Find(ARG_KEY key) const { return m_nodes.find(Argument(key)); }
    static decltype(auto) Argument(const std::remove_reference_t<ARG_KEY>& key)
    {
        if constexpr (kTextKey && std::is_same_v<ARG_KEY, LPCWSTR>) {
            return key != nullptr ? std::wstring_view(key) : std::wstring_view();
        } else {
            return (key);
        }
    }
    void AddAll(const CMap& other)
    {
        m_nodes.reserve(other.m_nodes.size());
        m_hashSize = other.m_hashSize;
        for (const Node* node = other.m_first; node != nullptr; node = node->second.next) {
            Node& copy = *m_nodes.try_emplace(node->first, Slot{node->second.value, m_last, nullptr}).first;
            (m_last != nullptr ? m_last->second.next : m_first) = &copy;
            m_last = &copy;
        }
    }
    // Nodes keep their addresses.
    void Swap(CMap& other) noexcept
    {
        m_nodes.swap(other.m_nodes);
        std::swap(m_first, other.m_first);
        std::swap(m_last, other.m_last);
        std::swap(m_hashSize, other.m_hashSize);
    }

    std::unordered_map<KEY, Slot, Hash, Equal> m_nodes;
    Node* m_first = nullptr;
    Node* m_last = nullptr;
    UINT m_hashSize = 17;
};

class CMapStringToString : public CMap<CString, LPCWSTR, CString, const CString&>
{
  public:
    using CMap::CMap;
};

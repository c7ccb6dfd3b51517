#include "wqspcfg/platform/framework/Map.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace {

using DwordMap = CMap<DWORD, DWORD, DWORD, DWORD>;
using NameMap = CMap<CString, LPCWSTR, DWORD, DWORD>;

std::wstring Listed(const DwordMap& map)
{
    std::wstring text;
    for (const auto& [key, value] : map) {
        text += wqspcfg::FormatString(L"%d=%d ", key, value);
    }
    return text;
}

TEST(Map, LooksUpTextByItsExactContent)
{
    NameMap map;
    wchar_t name[] = L"WFS_CMD";
    map.SetAt(name, 1);
    name[0] = L'X'; // the map keeps a copy
    map[L"wfs_cmd"] = 2;
    DWORD value = 9;
    EXPECT_TRUE(map.Lookup(L"WFS_CMD", value));
    EXPECT_EQ(value, 1u);
    EXPECT_FALSE(map.Lookup(name, value));
    EXPECT_EQ(value, 1u);
    EXPECT_TRUE(map.Lookup(CString(L"wfs_cmd"), value));
    EXPECT_EQ(value, 2u);
    map.SetAt(nullptr, 3);
    EXPECT_EQ(map[L""], 3u);
    EXPECT_EQ(map[L"new"], 0u);
    EXPECT_EQ(map.GetCount(), 4);
}

TEST(Map, KeepsTheOrderOfInsertionThroughRemovals)
{
    DwordMap map;
    for (const DWORD key : {30u, 10u, 20u, 40u}) {
        map.SetAt(key, key + 1);
    }
    map.SetAt(10, 99); // replacing a value does not move its key
    EXPECT_EQ(Listed(map), L"30=31 10=99 20=21 40=41 ");
    EXPECT_TRUE(map.RemoveKey(30));
    EXPECT_TRUE(map.RemoveKey(20));
    EXPECT_TRUE(map.RemoveKey(40));
    EXPECT_FALSE(map.RemoveKey(40));
    map.SetAt(30, 1);
    EXPECT_EQ(Listed(map), L"10=99 30=1 ");
    EXPECT_TRUE(map.RemoveKey(10));
    EXPECT_TRUE(map.RemoveKey(30));
    map.SetAt(5, 5);
    EXPECT_EQ(Listed(map), L"5=5 ");
    for (auto&& entry : map) {
        entry.value = 6;
    }
    EXPECT_EQ(map.GetHashTableSize(), 17U); // however many entries there were
    map.InitHashTable(1000);
    EXPECT_EQ(map.GetHashTableSize(), 1000U);
    EXPECT_EQ(Listed(map), L"5=6 ");
    map.RemoveAll();
    EXPECT_EQ(Listed(map), L"");
    EXPECT_EQ(map.GetStartPosition(), nullptr);
}

TEST(Map, IteratesByPosition)
{
    CMapStringToString map;
    map.SetAt(L"a", L"1");
    map[L"b"] = std::wstring(L"2\0", 2);
    CString key;
    CString value;
    std::wstring all;
    for (POSITION at = map.GetStartPosition(); at != nullptr;) {
        map.GetNextAssoc(at, key, value);
        all += key.Std() + value.Std();
    }
    EXPECT_EQ(all, std::wstring(L"a1b2\0", 5));
    POSITION none = nullptr;
    EXPECT_THROW(map.GetNextAssoc(none, key, value), CInvalidArgException);
}

TEST(Map, CopiesAndMovesStandAlone)
{
    DwordMap map;
    map.SetAt(2, 20);
    map.SetAt(1, 10);
    DwordMap copy = map;
    copy.SetAt(3, 30);
    copy.RemoveKey(2);
    EXPECT_EQ(Listed(map), L"2=20 1=10 ");
    EXPECT_EQ(Listed(copy), L"1=10 3=30 ");
    DwordMap moved = std::move(copy);
    moved.SetAt(4, 40);
    EXPECT_EQ(Listed(moved), L"1=10 3=30 4=40 ");
    copy = map;
    map = moved;
    map = *&map;
    EXPECT_EQ(Listed(copy), L"2=20 1=10 ");
    EXPECT_EQ(Listed(map), L"1=10 3=30 4=40 ");
}

TEST(Map, HoldsAHundredThousandEntries)
{
    constexpr DWORD kCount = 100000;
    NameMap map;
    for (DWORD i = 0; i < kCount; ++i) {
        map.SetAt(wqspcfg::FormatString(L"Value%d", i).c_str(), i);
    }
    ASSERT_EQ(map.GetCount(), INT_PTR{kCount});
    DWORD expected = 0;
    for (const auto& entry : map) {
        ASSERT_EQ(entry.value, expected++);
    }
    DWORD value = 0;
    EXPECT_TRUE(map.Lookup(L"Value99999", value));
    for (DWORD i = 0; i < kCount; ++i) {
        ASSERT_TRUE(map.RemoveKey(wqspcfg::FormatString(L"Value%d", i).c_str()));
    }
    EXPECT_TRUE(map.IsEmpty());
}

} // namespace

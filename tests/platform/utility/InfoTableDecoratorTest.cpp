#include "wqspcfg/platform/utility/InfoTableDecorator.h"

#include <gtest/gtest.h>

namespace {

CInfoTableDecorator Units(LPCWSTR title, int indent)
{
    CInfoTableDecorator table(title, indent);
    table.InsertColumn(0, L"Number");
    table.InsertColumn(1, L"Name");
    table.InsertColumn(2, L"Count");
    for (int row = 0; row < 3; ++row) {
        table.InsertItem(row, wqspcfg::FormatString(L"%d", row + 1).c_str());
        table.SetItemText(row, 1, row == 1 ? nullptr : L"a long name");
        table.SetItemText(row, 2, wqspcfg::FormatString(L"%d", row * 1000).c_str());
    }
    return table;
}

TEST(InfoTable, AlignsColumnsUnderTheirHeadings)
{
    EXPECT_EQ(Units(L" ", 0).Format(-1, ' ', ' ').Std(), L"Number Name        Count\r\n"
                                                         L"1      a long name 0\r\n"
                                                         L"2                  1000\r\n"
                                                         L"3      a long name 2000");
    EXPECT_EQ(Units(L"Units", 2).Format(1, '.', '|').Std(), L"..Units\r\n"
                                                            L"..Number|Name.......|Count\r\n"
                                                            L"..1.....|a long name|0");
    EXPECT_EQ(Units(nullptr, 0).Format(0, ' ', ' ').Std(), L"Number Name Count");
}

TEST(InfoTable, TakesAnyOrderAndRefusesCellsOutside)
{
    CInfoTableDecorator table(L"", -1);
    EXPECT_EQ(table.Format(-1, ' ', ' ').Std(), L"");
    EXPECT_EQ(table.InsertItem(7, L"lost: there is no column yet"), 0);
    EXPECT_EQ(table.InsertColumn(9, L"B"), 0);
    EXPECT_EQ(table.InsertColumn(0, L"A"), 0);
    EXPECT_EQ(table.InsertItem(0, L"first\r\nline"), 0);
    EXPECT_EQ(table.InsertItem(-1, L"last"), 2);
    EXPECT_TRUE(table.SetItemText(1, 1, L"b"));
    EXPECT_FALSE(table.SetItemText(3, 0, L"x"));
    EXPECT_FALSE(table.SetItemText(0, 2, L"x"));
    EXPECT_FALSE(table.SetItemText(-1, -1, L"x"));
    EXPECT_EQ(table.Format(100, '_', ' ').Std(), L"A__________ B\r\n"
                                                 L"first  line \r\n"
                                                 L"___________ b\r\n"
                                                 L"last_______ ");
}

TEST(InfoTable, AVeryLongCellDoesNotWidenTheOthers)
{
    constexpr int kRows = 1000;
    CInfoTableDecorator table(L"", 0);
    table.InsertColumn(0, L"Name");
    table.InsertColumn(1, L"Count");
    for (int row = 0; row < kRows; ++row) {
        table.InsertItem(row, row == 7 ? std::wstring(100'000, L'x').c_str() : L"short");
        table.SetItemText(row, 1, L"0");
    }
    const auto text = table.Format(-1, ' ', ' ').Std();
    EXPECT_LT(text.size(), 500'000U);
    EXPECT_NE(text.find(L"x 0\r\nshort "), std::wstring::npos);
}

} // namespace

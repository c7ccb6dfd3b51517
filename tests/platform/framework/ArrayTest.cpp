#include "wqspcfg/platform/framework/Array.h"

#include "wqspcfg/platform/xfs/XfsCim.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

TEST(Array, RefusesEveryIndexOutside)
{
    CArray<WORD, WORD> array;
    EXPECT_THROW(array.GetAt(0), CInvalidArgException);
    array.Add(1);
    array.Add(2);
    const auto& view = array;
    EXPECT_EQ(view[1], 2);
    EXPECT_THROW(view[2], CInvalidArgException);
    EXPECT_THROW(array[-1], CInvalidArgException);
    EXPECT_THROW(array.SetAt(2, 0), CInvalidArgException);
    EXPECT_THROW(array.RemoveAt(2), CInvalidArgException);
    EXPECT_THROW(array.RemoveAt(1, 2), CInvalidArgException);
    EXPECT_THROW(array.RemoveAt(0, -1), CInvalidArgException);
    EXPECT_THROW(array.SetSize(-1), CInvalidArgException);
    EXPECT_EQ(array.GetSize(), 2);
    array.RemoveAt(0);
    EXPECT_EQ(array[0], 2);
}

TEST(Array, AddsElementsOfItself)
{
    CStringArray array;
    EXPECT_EQ(array.Add(L"a string that is too long to be kept within the object"), 0);
    for (int i = 0; i < 20; ++i) {
        array.Add(array[0]);
    }
    EXPECT_EQ(array.Append(array), 21);
    EXPECT_EQ(array.GetSize(), 42);
    EXPECT_EQ(array[41].Std(), array[0].Std());
    array.Copy(array);
    EXPECT_EQ(array.GetSize(), 42);
}

TEST(Array, CopiesAreDeepAndRemovalReleases)
{
    const auto probe = std::make_shared<int>(1);
    CArray<std::shared_ptr<int>> array;
    array.Add(probe);
    array.SetSize(3);
    EXPECT_EQ(array[2], nullptr);
    CArray<std::shared_ptr<int>> copy = array;
    array.RemoveAll();
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.GetData(), nullptr);
    EXPECT_EQ(probe.use_count(), 2);
    copy.Copy(array);
    EXPECT_EQ(probe.use_count(), 1);
}

TEST(Array, HoldsPackedStructuresPassedByReference)
{
    CArray<_wfs_cim_note_type, _wfs_cim_note_type&> notes;
    _wfs_cim_note_type note{};
    note.ulValues = 100;
    notes.Add(note);
    note.ulValues = 50;
    notes.Add(note);
    ULONG sum = 0;
    for (const _wfs_cim_note_type& each : notes) {
        sum += each.ulValues;
    }
    EXPECT_EQ(sum, 150u);
}

} // namespace

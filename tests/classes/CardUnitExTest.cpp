#include "wqspcfg/classes/CardUnitEx.h"

#include "wqspcfg/platform/framework/FrameworkTypes.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

// Nothing but SetHopper releases a hopper's buffer: records that end with one leave it.
extern "C" [[gnu::visibility("default"), gnu::used]] const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:Duplicate<*Nobody\nleak:Duplicate<*)1>\n";
}

namespace {

tagCardUnitEx MakeUnit()
{
    tagCardUnitEx unit;
    unit.usNumber = 3;
    unit.usType = 1;
    unit.ulCount = 40;
    unit.usStatus = 2;
    unit.ulMaxCount = 100;
    unit.SetCardName("gold");
    unit.SetHopper("left");
    return unit;
}

// The record never releases the hopper: who owns a unit does.
struct Unit : tagCardUnitEx
{
    explicit Unit(tagCardUnitEx unit) : tagCardUnitEx(std::move(unit)) {}
    ~Unit() { SetHopper(nullptr); }
};

TEST(CardUnitEx, StartsAsZeroes)
{
    const tagCardUnitEx unit;
    const char zeroes[sizeof(tagCardUnitEx)] = {};
    EXPECT_EQ(std::memcmp(&unit, zeroes, sizeof unit), 0);
}

TEST(CardUnitEx, CopiesAreDeepAndNullStaysNull)
{
    Unit original(MakeUnit());
    Unit copy{tagCardUnitEx(original)};
    EXPECT_TRUE(copy == original);
    EXPECT_NE(+copy.lpszCardName, +original.lpszCardName);
    EXPECT_NE(+copy.lpszHopper, +original.lpszHopper);

    tagCardUnitEx unnamed;
    copy.SetHopper(nullptr);
    static_cast<tagCardUnitEx&>(copy) = unnamed;
    EXPECT_EQ(+copy.lpszCardName, nullptr);
    EXPECT_EQ(+copy.lpszHopper, nullptr);
}

TEST(CardUnitEx, AssigningReleasesNoHopper)
{
    Unit unit(MakeUnit());
    char* const held = unit.lpszHopper;
    static_cast<tagCardUnitEx&>(unit) = tagCardUnitEx();
    EXPECT_STREQ(held, "left");
    delete[] held;
}

TEST(CardUnitEx, AssigningAUnitToItselfKeepsIt)
{
    Unit unit(MakeUnit());
    tagCardUnitEx& same = unit;
    char* const name = unit.lpszCardName;
    static_cast<tagCardUnitEx&>(unit) = same;
    EXPECT_EQ(+unit.lpszCardName, name);
    unit.SetCardName(unit.lpszCardName + 1); // a piece of its own name
    EXPECT_STREQ(+unit.lpszCardName, "old");
}

TEST(CardUnitEx, EqualityLooksAtEveryFieldAndTellsNullFromEmpty)
{
    const auto differs = [](auto change) {
        Unit a(MakeUnit());
        Unit b(MakeUnit());
        change(b);
        return a != b && !(a == b);
    };
    EXPECT_FALSE(differs([](tagCardUnitEx&) {}));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.usNumber; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.usType; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.ulInitialCount; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.ulCount; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.ulRetainCount; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.ulThreshold; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.usStatus; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { u.bHardwareSensor = 1; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.ulMaxCount; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { ++u.ulMinCount; }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { u.SetCardName("Gold"); }));
    EXPECT_TRUE(differs([](tagCardUnitEx& u) { u.SetHopper(nullptr); }));

    tagCardUnitEx absent;
    tagCardUnitEx empty;
    empty.SetCardName("");
    EXPECT_TRUE(absent != empty);
}

TEST(CardUnitEx, IsAnXfsCardUnitAtTheSameAddress)
{
    Unit unit(MakeUnit());
    _wfs_crd_cardunit& byReference = unit;
    _wfs_crd_cardunit* byPointer = static_cast<tagCardUnitEx&>(unit);
    EXPECT_EQ(static_cast<void*>(&byReference), static_cast<void*>(&unit));
    EXPECT_EQ(byPointer, &byReference);
    byReference.usStatus = 7;
    EXPECT_EQ(+unit.usStatus, 7);
    EXPECT_EQ(sizeof(tagCardUnitEx), 34 + 2 * sizeof(void*));
}

TEST(CardUnitEx, AGrowingArrayKeepsTheBuffers)
{
    CArray<tagCardUnitEx, const tagCardUnitEx&> units;
    const Unit unit(MakeUnit());
    units.Add(unit);
    const char* const name = units[0].lpszCardName;
    const char* const hopper = units[0].lpszHopper;
    for (int i = 0; i < 100; ++i) {
        units.Add(tagCardUnitEx());
    }
    EXPECT_EQ(+units[0].lpszCardName, name);
    EXPECT_EQ(+units[0].lpszHopper, hopper);
    units[0].SetHopper(nullptr);
}

} // namespace

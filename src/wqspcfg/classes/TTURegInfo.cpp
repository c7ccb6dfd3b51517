#include "wqspcfg/classes/TTURegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

#include <algorithm>
#include <cwchar>
#include <limits>

using namespace wqspcfg;
using C = CTTURegInfo;

namespace {

// Reads a number as scanf's %d does, and moves on behind it. False where there is none.
bool TakeNumber(const wchar_t*& text, int& value)
{
    wchar_t* end = nullptr;
    const long number = std::wcstol(text, &end, 10);
    if (end == text) {
        return false;
    }
    text = end;
    value =
        static_cast<int>(std::clamp<long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    return true;
}

void ParseBasePoint(C& c, CString& strPoint)
{
    c.m_nBasePointX = c.m_nBasePointY = 0;
    const wchar_t* text = strPoint;
    if (TakeNumber(text, c.m_nBasePointX) && *text == L',') {
        ++text;
        TakeNumber(text, c.m_nBasePointY);
    }
    if (c.m_nBasePointX > 1 || c.m_nBasePointY > 1) {
        strPoint = L"0,0";
        c.m_nBasePointX = c.m_nBasePointY = 0;
    }
}

constexpr Key kCommon = key::Below(L"Common");
constexpr Key kForm = key::Below(L"Form");
constexpr Key kScreen = key::Below(L"Screen");
constexpr Key kKeyboard = key::Below(L"KeyboardInfo");
constexpr Key kMapping = key::Below(L"KeyboardInfo\\KeyboardMapping\\");
constexpr Key kLed = key::Below(L"LED");

constexpr auto kParseBasePoint = Normalize([](C& c, CString& strPoint, bool) { ParseBasePoint(c, strPoint); });

// clang-format off
constexpr Setting kSettings[] = {
    {kCommon, L"DefaultCodec", &C::m_dwDefaultCodec, 0,
     L"encoding used by default: 0 none; 1 ASCII; 2 UNICODE", OneOf},
    {kForm, L"FormsDirectory", &C::m_strFormsDirectory, L"",
     L"directory of the form files", Saved, KeepWhenMissing, RefersTo(Reference::Directory)},
    {kForm, L"FormsExtension", &C::m_strFormsExtension, L"",
     L"file extension of the form files", Saved, KeepWhenMissing},
    {kScreen, L"BasePoint", &C::m_strBasePoint, L"0,0",
     L"coordinate base point of the screen, x and y separated by a comma, each 0 or 1", Saved, KeepWhenMissing,
     kParseBasePoint},
    {kKeyboard, L"IsCKOnlyAllowed", &C::m_bIsCKOnlyAllowed, 0,
     L"activating only function keys is allowed: 0 no; nonzero yes", Saved, Label(L"CKOnlyAllowed"), LogHeld},
    {kKeyboard, L"ClearWhenUserCancel", &C::m_bClearWhenUserCancel, 0,
     L"Cancel clears the buffer of the read command and the display: 0 no; nonzero yes", Saved, LogHeld},
    {kKeyboard, L"AutoMultiZero", &C::m_bAutoMultiZero, 0,
     L"activating \"0\" also activates \"00\" and \"000\": 0 no; nonzero yes"},
    {kKeyboard, L"DropTailingMultiZero", &C::m_bDropTailingMultiZero, 0,
     L"\"00\" and \"000\" are dropped when the remaining input space is too short: 0 no; nonzero yes"},
    {kKeyboard, L"Need2HandleMultiZero", &C::m_bNeed2HandleMultiZero, 0,
     L"\"00\" and \"000\" are converted into single \"0\" keys: 0 no; nonzero yes"},
    {kKeyboard, L"KeyToneOn", &C::m_bKeyToneOn, 0,
     L"the device sounds its own key tone: 0 no; nonzero yes"},
    {kMapping, L"%s", Map<&C::m_mapKeyboardMapping>, L"",
     L"key name of this key; a subkey is an entry with an empty text", NotLogged, KeepWhenMissing, SubkeyNames, Saved},
    {kForm, L"IsUseInitialValue", &C::m_bIsUseInitialValue, 0,
     L"forms are written with their initial values: 0 no; nonzero yes"},
    {kLed, L"MutableLedIndex", &C::m_bMutableLedIndex, 0, L"LED indexes are configurable: 0 no; nonzero yes"},
};
// clang-format on

constexpr const wchar_t* kSaved[] = {L"FormsDirectory",      L"FormsExtension", L"IsCKOnlyAllowed",
                                     L"ClearWhenUserCancel", L"BasePoint",      kMapping.subkey};
constexpr auto kSaveOrder = SaveOrder<kSettings, kSaved>;

} // namespace

WQSPCFG_CLASS_SETTINGS(CTTURegInfo, L"TTU", kSettings, kSaveOrder)

#include "wqspcfg/models/crm/SPCRMWQ09RegInfo.h"

#include "wqspcfg/models/shared/NoteRecyclerRows.h"

using namespace wqspcfg;
using C = CSPCRMWQ09RegInfo;

namespace {

constexpr const wchar_t* kSlots[] = {L"A", L"A2", L"B", L"B2", L"C", L"C2", L"D", L"D2", L"E", L"E2", L"F", L"R"};
constexpr DWORD kTypes[] = {0x00040030, 0x00040030, 0x00040030, 0x40, 0x00040030, 0x00040030,
                            0x00040030, 0x00040030, 0x40,       0xF0, 0xF0,       0};

constexpr Setting kSettings[] = {
    Group(Rows<kWQNoteRecyclerBeforeSlots>),
    Repeat(kSlots, Rows<kNoteSlot<C, kTypes>>),
    Group(Rows<kWQNoteRecyclerAfterSlots>),
};

} // namespace

WQSPCFG_SETTINGS(CSPCRMWQ09RegInfo, WQNoteRecycler, kSettings)

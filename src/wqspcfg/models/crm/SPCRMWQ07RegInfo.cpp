#include "wqspcfg/models/crm/SPCRMWQ07RegInfo.h"

#include "wqspcfg/models/shared/NoteRecyclerRows.h"

using namespace wqspcfg;
using C = CSPCRMWQ07RegInfo;

namespace {

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C", L"D", L"E", L"F", L"R"};
constexpr DWORD kTypes[] = {0x00040030, 0x00040030, 0x00040030, 0x40, 0xF0, 0xF0, 0};

constexpr Setting kSettings[] = {
    Group(Rows<kWQNoteRecyclerBeforeSlots>),
    Repeat(kSlots, Rows<kNoteSlot<C, kTypes>>),
    Group(Rows<kWQNoteRecyclerAfterSlots>),
};

} // namespace

WQSPCFG_SETTINGS(CSPCRMWQ07RegInfo, WQNoteRecycler, kSettings)

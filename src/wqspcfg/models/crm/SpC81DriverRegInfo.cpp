#include "wqspcfg/models/crm/SpC81DriverRegInfo.h"

#include "wqspcfg/models/shared/NoteRecyclerRows.h"

using namespace wqspcfg;
using C = CSpC81DriverRegInfo;

namespace {

constexpr Key kHopperR = key::Below(L"Cassette\\Hopper\\R");

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C", L"D", L"E", L"F", L"R"};
constexpr DWORD kTypes[] = {0x00040030, 0x00040030, 0x00040030, 0x40, 0xF0, 0xF0, 0};

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kNoteRecyclerStart>),
    Group(Rows<kNoteRecyclerCassettes>),
    Group(Rows<kNoteRecyclerUnitPhyPosName>),
    {kHopperR, L"UseCassetteR", &C::m_dwUseCassetteR, 0, L"cassette R is used", Saved},
    Group(Rows<kNoteRecyclerUseCassetteE>),
    Repeat(kSlots, Rows<kNoteSlot<C, kTypes>>),
    Group(Rows<kNoteRecyclerShutter>),
    Group(Rows<kNoteRecyclerInit>),
    {kCassette, L"UDCID",    &C::m_dwUDCID,    0, L"not documented", Saved},
    {kCassette, L"ODCID",    &C::m_dwODCID,    0, L"not documented", Saved},
    {kCassette, L"LEGCTime", &C::m_dwLEGCTime, 0, L"not documented", Saved},
    {kCassette, L"LEGCPol",  &C::m_dwLEGCPol,  0, L"not documented", Saved},
    {key::Capabilities, L"DLIFilePath", &C::m_strDLIFilePath, L"",
     L"path of the device-life information file", Saved, RefersTo(Reference::File)},
    {key::Capabilities, L"BeepFilePath", &C::m_strBeepFilePath, L"",
     L"path of the sound file that is played when a module closes", Saved, RefersTo(Reference::File)},
    {key::Capabilities, L"ModelCloseBeepPolicy", &C::m_dwModelCloseBeepPolicy, 0,
     L"modules whose closing plays the sound of BeepFilePath, bit set: 0x0001 upper unit; 0x0002 lower unit; 0x0004 "
     L"to 0x0040 cassettes A to E; 0x0080 cassette R; 0x0100 cassette F; 0x0200 note validator", Saved,
     Format(L"%04X")},
    Group(Rows<kNoteRecyclerReplenish>),
    {key::Capabilities, L"6060CASTypeRf6040w", &C::m_dw6060CASTypeRf6040w, 0,
     L"this mechanism uses the cassette layout of the one without cassette R: 0 no; 1 yes", Saved},
    {key::Capabilities, L"HandleRefuseReasonOfVerify", &C::m_dwHandleRefuseReasonOfVerify, 0,
     L"reason of refused notes: 0 always invalid bill; 1 unrecognised notes and the count limit are told apart, as "
     L"XFS defines", Saved, OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpC81DriverRegInfo, NoteRecycler, kSettings)

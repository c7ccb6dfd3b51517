// Texts that the cash recyclers share.
#pragma once

namespace wqspcfg::meaning {

inline constexpr wchar_t kInnerShutterCantClose[] =
    L"the inner shutter cannot close at the end of a deposit: 0 no error; 1 to 99 a hardware error; from 100 this "
    L"number is reported as the error code instead";
inline constexpr wchar_t kHwInitCount[] = L"most hardware initialisations by remote control: 0 unlimited";
inline constexpr wchar_t kCasTypeFollowSlot[] = L"the cassette type belongs to: 0 the cassette; 1 the slot";
inline constexpr wchar_t kUnitPhyPosName[] =
    L"names of the physical positions: 0 CassetteA and so on; 1 Cassette1 and so on";
inline constexpr wchar_t kUseCassetteE[] = L"cassette E, which must be a mixed one, is the reject cassette";
inline constexpr wchar_t kSlotType[] = L"cassette type: high word the group (0x0004 group 4), low word the use: 0x0030 "
                                       L"recycle; 0x0010 dispense only; 0x0020 deposit only; 0x0040 mixed deposit";
inline constexpr wchar_t kCoinCasFull[] = L"coins at which the hopper is full";
inline constexpr wchar_t kCoinCasNearFull[] = L"coins at which the hopper is nearly full";
inline constexpr wchar_t kCoinCasEmpty[] = L"coins at which the hopper is empty";
inline constexpr wchar_t kCoinCasNearEmpty[] = L"coins at which the hopper is nearly empty";
inline constexpr wchar_t kCoinDispenseTimeOut[] = L"time-out of a dispense in ms";
inline constexpr wchar_t kAutoRecoverCount[] = L"most automatic recoveries after a fault";

} // namespace wqspcfg::meaning

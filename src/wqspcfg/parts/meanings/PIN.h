// Texts that the PIN pads share.
#pragma once

namespace wqspcfg::meaning {

inline constexpr wchar_t kPostKeyInGetData[] =
    L"plain-text entry also posts a Win32 key event for each key: 0 no; 1 yes";
inline constexpr wchar_t kPostKeyInGetPin[] = L"PIN entry also posts a Win32 key event for each key: 0 no; 1 yes";
inline constexpr wchar_t kDisabledPCKeyEventOfKey[] = L"keys for which no Win32 key event is posted";
inline constexpr wchar_t kEnableIdlePCKeyEvent[] =
    L"plain key input is possible while the keypad is idle: 0 no; nonzero yes";
inline constexpr wchar_t kClearAndBackspace[] =
    L"when Clear and Backspace are activated together, on a keyboard that has only one of them: 0 treat it as "
    L"BACKSPACE; 1 treat it as CLEAR";
inline constexpr wchar_t kReportErrOnPressMultiKey[] = L"several keys pressed at once are an error: 0 no; 1 yes";
inline constexpr wchar_t kReportLongKeyPressErr[] = L"a long key press is an error: 0 no; nonzero yes";
inline constexpr wchar_t kKeyPressInteval[] = L"how long a key is held down before it counts as a long press";
inline constexpr wchar_t kClearAsBackspaceInGetData[] =
    L"the Clear key acts as Backspace in plain-text entry: 0 no; 1 yes";
inline constexpr wchar_t kClearAsBackspaceInGetPin[] = L"the Clear key acts as Backspace in PIN entry: 0 no; 1 yes";
inline constexpr wchar_t kReadOneKeyToMaxForceEnter[] =
    L"without automatic end, reaching the maximum length forces an ENTER: 0 no; nonzero yes";
inline constexpr wchar_t kPageUpToXFSKey[] = L"XFS key that the page-up key is mapped to: 0 none";
inline constexpr wchar_t kPageDownToXFSKey[] = L"XFS key that the page-down key is mapped to: 0 none";
inline constexpr wchar_t kJstMacType[] = L"MAC algorithm: 0x00 X9.9; 0x01 X9.19; 0x02 special";
inline constexpr wchar_t kMac99[] =
    L"MAC algorithm, bits: 0x00 the keypad decides by the key length; 0x01 always ANSI X9.9; 0x10 only 8 bytes "
    L"per step";
inline constexpr wchar_t kHardware[] = L"hardware type of the keypad";
inline constexpr wchar_t kEnableBackSpace[] = L"the Backspace key is active: 0 no; nonzero yes";
inline constexpr wchar_t kBackspaceToHelp[] = L"the blank key is mapped to HELP: 0 no; 1 yes";
inline constexpr wchar_t kClearToBackspace[] = L"the Clear key is mapped to Backspace: 0 no; nonzero yes";
inline constexpr wchar_t kUseDesignatedName[] =
    L"key names: 0x00 decided by the version of the keypad; 0x01 always the designated names";
inline constexpr wchar_t kMaxEnDeCryptBlockLen[] =
    L"longest block that is encrypted or decrypted at once, in bytes: 0 decided by the version of the keypad";
inline constexpr wchar_t kFindRegKeyIndexByUse[] =
    L"registered keys are found: 0 by their fixed name; nonzero by their use";
inline constexpr wchar_t kMinPinLength[] = L"shortest PIN, in digits";
inline constexpr wchar_t kDelDuplicateKEK[] =
    L"a master key of the same name is deleted before one is imported: 0 no; nonzero yes";
inline constexpr wchar_t kDelDuplicateKEKSM[] =
    L"an SM master key of the same name is deleted before one is imported: 0 no; nonzero yes";
inline constexpr wchar_t kEllipseParamP[] = L"SM2 elliptic curve parameter p";
inline constexpr wchar_t kEllipseParamA[] = L"SM2 elliptic curve parameter a";
inline constexpr wchar_t kEllipseParamB[] = L"SM2 elliptic curve parameter b";
inline constexpr wchar_t kEllipseParamN[] = L"SM2 elliptic curve parameter n";
inline constexpr wchar_t kEllipseParamXg[] = L"SM2 elliptic curve parameter xG";
inline constexpr wchar_t kEllipseParamYg[] = L"SM2 elliptic curve parameter yG";
inline constexpr wchar_t kDerivationAlgorithms[] =
    L"key derivation algorithms reported as fwDerivationAlgorithms: 0 none; 0x0001 WFS_PIN_CHIP_ZKA";
inline constexpr wchar_t kPresentationAlgorithms[] =
    L"presentation algorithms reported as fwPresentationAlgorithms: 0 none; 0x0001 WFS_PIN_PRESENT_CLEAR";
inline constexpr wchar_t kIDKey[] =
    L"use of the ID key reported as fwIDKey: 0 none; 0x0001 WFS_PIN_IDKEYINITIALIZATION; 0x0002 WFS_PIN_IDKEYIMPORT";

} // namespace wqspcfg::meaning

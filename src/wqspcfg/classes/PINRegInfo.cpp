#include "wqspcfg/classes/PINRegInfo.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"

#include <iterator>
#include <span>

using namespace wqspcfg;
using C = CPINRegInfo;

namespace {

constexpr Key kKeyboardMapping = key::Below(L"KeybordInfo\\KeyboardMapping");
constexpr Key kFDKPosition = key::Below(L"KeybordInfo\\FDKPosition");
constexpr Key kBankApplication = key::Absolute(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\CGB_Encryptor");
constexpr Key kSM = key::Below(L"SM");
constexpr Key kSM4 = key::Below(L"SM\\SM4");
constexpr Key kRSA = key::Below(L"RSA");
constexpr Key kCapabilities = key::Below(L"Capabilities");

constexpr wchar_t kLogicalKey[] =
    L"name of the logical key under this physical key code; the default stands only where "
    L"the whole layout cannot be read";
constexpr wchar_t kPosition[] =
    L"position of this function key beside the screen, x and y in percent of the screen; the "
    L"default stands only where no position can be read";

// What the bank's application asks for becomes ForceUseSM, which is read later in the same Load.
constexpr auto kSwitchForceUseSM = Normalize([](C& c, DWORD dwAutomatic, bool bFound) -> DWORD {
    if (bFound && dwAutomatic == 1) {
        CString strUse;
        C::QueryValue(strUse, L"UseSMAlgorithm", L"%sCGB_Encryptor", kServiceRoot);
        C::SetValue(strUse == L"1" ? 1U : 0U, L"ForceUseSM", L"%s%s", kDeviceRoot, c.GetExeDllMother(1, nullptr));
    }
    return dwAutomatic;
});

// A stored 0 counts as missing.
template <DWORD Default>
constexpr auto kNotZero = Normalize([](C&, DWORD dwValue, bool) -> DWORD { return dwValue != 0 ? dwValue : Default; });

// clang-format off
constexpr DefaultEntry kLayout[] = {
    {L"1", L"1"}, {L"2", L"2"}, {L"3", L"3"}, {L"4", L"CANCEL"}, {L"5", L"4"}, {L"6", L"5"}, {L"7", L"6"},
    {L"8", L"CLEAR"}, {L"9", L"7"}, {L"10", L"8"}, {L"11", L"9"}, {L"12", L"BACKSPACE"}, {L"13", L"."},
    {L"14", L"0"}, {L"15", L"00"}, {L"16", L"ENTER"}, {L"17", L"F1"}, {L"18", L"F2"}, {L"19", L"F3"},
    {L"20", L"F4"}, {L"21", L"F5"}, {L"22", L"F6"}, {L"23", L"F7"}, {L"24", L"F8"}, {L"25", L"HELP"},
};
constexpr DefaultEntry kPositions[] = {
    {L"FDK01", L"0,0"}, {L"FDK02", L"0,33"}, {L"FDK03", L"0,66"}, {L"FDK04", L"0,100"}, {L"FDK05", L"100,0"},
    {L"FDK06", L"100,33"}, {L"FDK07", L"100,66"}, {L"FDK08", L"100,100"},
};

constexpr Setting kSettings[] = {
    {kKeyboardMapping, L"%s", Map<&C::m_mapKeyboardMapping>, L"",
     kLogicalKey, NotLogged, Saved, DefaultEntries(kLayout)},
    {kFDKPosition, L"%s", Map<&C::m_mapFDKPosition>, L"",
     kPosition, NotLogged, Saved, DefaultEntries(kPositions)},
    {key::Device, L"EarlyTerminateFDK", &C::m_dwEarlyTerminateFDK, 2,
     L"an FDK pressed before the minimum length: 1 ignore it; 2 return it and end; 3 return it and continue; 4 treat "
     L"it as Clear", Saved, OneOf},
    {key::Device, L"EarlyTerminateEnter", &C::m_dwEarlyTerminateEnter, 1,
     L"ENTER pressed before the minimum length: 1 ignore it; 2 return it and end; 3 return it and continue; 4 treat "
     L"it as Clear", Saved, OneOf},
    {key::Device, L"MultiZeroOverMaxLen", &C::m_dwMultiZeroOverMaxLen, 0,
     L"00 pressed when plain input is one short of its maximum: 0 ignore and drop it; 1 the key event returns the "
     L"zeros that fit and the result keeps them; 2 the key event returns all zeros and the result keeps those that "
     L"fit", Saved, OneOf},
    {key::Device, L"CryptPadSemi", &C::m_dwCryptPadSemi, 1,
     L"padding in encryption and decryption: 0 with the pad value as given; 1 with its low 4 bits; 2 with its low 4 "
     L"bits joined into one byte; 3 with 0", Saved, OneOf},
    {key::Device, L"GetDataBuffFDK", &C::m_dwGetDataBuffFDK, 0,
     L"data entry buffers FDK presses: 0 no; nonzero yes", Saved},
    {key::Device, L"CheckActiveKeyNone", &C::m_bCheckActiveKeyNone, 0,
     L"an empty set of active keys is checked: 0 no; nonzero yes", Saved},
    {key::Device, L"BuffEnter", &C::m_dwBuffEnter, 0,
     L"the ENTER key is kept in the buffer of all keys: 0 no; nonzero yes", Saved},
    {key::Device, L"BankID", &C::m_dwBankID, 0,
     L"bank-specific behaviour: 0 default; 2 Paifit configuration; 8 MAC data first XORed down to 8 bytes; 9 "
     L"Vaiflege VTM configuration", Saved, OneOf},
    {key::Device, L"CheckInputParam", &C::m_dwCheckInputParam, 0,
     L"input parameters are checked: 0 no; 1 yes", OneOf},
    {key::Device, L"IsAutomaticForceUseSM", &C::m_dwIsAutomaticForceUseSM, 0,
     L"ForceUseSM is switched at each load by what the bank's application has registered: 1 yes; anything else no",
     kSwitchForceUseSM},
    {kBankApplication, L"UseSMAlgorithm", StringValue, L"",
     L"the bank's application asks for the SM algorithms, read where IsAutomaticForceUseSM is 1: \"1\" yes", NotLogged,
     Documented},
    {key::Device, L"CryptDataKeyUsage", &C::m_dwCryptDataKeyUsage, 0,
     L"use of the key-encryption key in the crypt command: 0 traditional ATM use; 1 VTM, CRYPT use only; 2 VTM, "
     L"CRYPT and KEYENCKEY use", Saved, OneOf},
    {key::Device, L"PaddingCheck", &C::m_dwPaddingCheck, 0,
     L"padding characters are validated: 0x00 no; 0x01 yes", Saved, Format(L"%02X"), OneOf},
    {key::Device, L"UseBackspaceAsPCInGetPin", &C::m_dwUseBackspaceAsPCInGetPin, 0,
     L"BACKSPACE is mapped to 0x08 in PIN entry: 0 no; nonzero yes", Saved, Format(L"%02X")},
    {key::Device, L"CheckKEKUse", &C::m_dwCheckKEKUse, 1,
     L"the use of the master key is checked when encrypting: 0 no; nonzero yes", Format(L"%02X")},
    {key::Device, L"CanQueryDelKey", &C::m_dwCanQueryDelKey, 0,
     L"deleted keys can still be queried: 0 no; nonzero yes", Format(L"%02X")},
    {key::Device, L"ImportExAsSM", &C::m_dwImportExAsSM, 0,
     L"the extended import command imports SM keys: 0 no; nonzero yes", Saved, Format(L"%02X")},
    {key::Device, L"AllowNonCryptKey", &C::m_dwAllowNonCryptKey, 7,
     L"keys without the crypt attribute that are checked before crypting, bits: 0x01 master keys; 0x02 MAC keys; "
     L"0x04 PIN keys; 0 none", Saved, Format(L"%02X")},
    {key::Device, L"ForceUseSM", &C::m_bForceUseSM, 0,
     L"the import-key, PIN-block and crypt commands use the SM algorithms instead of DES: 0 no; nonzero yes", Saved,
     Format(L"%02X")},
    {kSM, L"SMUseValue", &C::m_dwSMUseValue, 0x8000,
     L"key-type value of SM keys", Format(L"0x%X"), kNotZero<0x8000>},
    {kSM4, L"SM4ECBValue", &C::m_dwSM4ECBValue, 0x800,
     L"extension parameter of SM4 ECB encryption", Format(L"0x%X"), kNotZero<0x800>},
    {kSM4, L"SM4CBCValue", &C::m_dwSM4CBCValue, 0x1000,
     L"extension parameter of SM4 CBC encryption", Format(L"0x%X"), kNotZero<0x1000>},
    {kSM4, L"SM4MacValue", &C::m_dwSM4MacValue, 0x2000,
     L"extension parameter of SM4 MAC", Format(L"0x%X"), kNotZero<0x2000>},
    {kSM4, L"SM4MacLen", &C::m_dwSM4MacLen, 16,
     L"length of the returned SM4 MAC in bytes, 1 to 16: 0 and more become 16", Range(1, 16),
     Normalize([](C&, DWORD dwLen, bool) -> DWORD { return dwLen == 0 || dwLen > 16 ? 16 : dwLen; })},
    {key::Device, L"CheckPinLength", &C::m_bCheckPinLength, 1,
     L"the PIN length is checked when a PIN block is built: 0 no; nonzero yes"},
    {key::Device, L"UseProtectKey", &C::m_dwUseProtectKey, 0,
     L"a protection key is used: 0 no; nonzero yes", Saved},
    {key::Device, L"ProtectKey", &C::m_strProtectKey, L"",
     L"protection key in clear text", Secret},
    {key::Device, L"CertificateHashAlgorithm", &C::m_dwCertificateHashAlgorithm, 0x8004,
     L"digest of certificates: 0x00008004 SHA1; 0x0000800c SHA256; 0x0000800d SHA384; 0x0000800e SHA512",
     Format(L"0x%X"), OneOf},
    {key::Beep, L"KeyPress", &C::m_strKeyPress, L"C:\\vexo\\sp\\Config\\sp.data\\KeyDownSound.wav",
     L"sound file played on a key press", Saved, RefersTo(Reference::File)},
    {kRSA, L"KeyVectorMode", &C::m_dwKeyVectorMode, 0,
     L"length of an RSA key component: 0 none; 1 8 bytes; 2 16 bytes; 3 24 bytes", OneOf},
    {kRSA, L"KeyVerifyMode", &C::m_dwKeyVerifyMode, 0,
     L"check value of an RSA key component: 0 none; 1 8 bytes; 2 16 bytes; 3 24 bytes", OneOf},
    {kRSA, L"KeyComprise", &C::m_dwKeyComprise, 0,
     L"composition of an RSA key: 0 none; 1 one component; 2 two XOR components; 3 three XOR components", OneOf},
    {kCapabilities, L"DerivationAlgorithms", &C::m_dwDerivationAlgorithms, 0,
     meaning::kDerivationAlgorithms},
    {kCapabilities, L"PresentationAlgorithms", &C::m_dwPresentationAlgorithms, 0,
     meaning::kPresentationAlgorithms},
    {kCapabilities, L"IDKey", &C::m_dwIDKey, 0, meaning::kIDKey},
};

constexpr const wchar_t* kSaved[] = {
    L"KeybordInfo\\KeyboardMapping", L"KeybordInfo\\FDKPosition",
    L"EarlyTerminateFDK", L"EarlyTerminateEnter", L"MultiZeroOverMaxLen", L"CryptPadSemi", L"GetDataBuffFDK",
    L"PaddingCheck", L"CheckActiveKeyNone", L"KeyPress", L"BuffEnter", L"BankID", L"CryptDataKeyUsage",
    L"UseBackspaceAsPCInGetPin", L"ImportExAsSM", L"AllowNonCryptKey", L"ForceUseSM", L"UseProtectKey"};
// clang-format on
constexpr auto kSaveOrder = SaveOrder<kSettings, kSaved>;

} // namespace

WQSPCFG_CLASS_SETTINGS(CPINRegInfo, L"PIN", kSettings, kSaveOrder)

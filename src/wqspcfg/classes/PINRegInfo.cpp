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

constexpr auto kByCode = LoadedBy([](C&, Loading&) {});

// What the bank's application asks for becomes ForceUseSM, which is read later in the same Load.
constexpr auto kSwitchForceUseSM = Correct([](C& c, DWORD dwAutomatic, bool bFound) -> DWORD {
    if (bFound && dwAutomatic == 1) {
        CString strUse;
        C::QueryValue(strUse, L"UseSMAlgorithm", L"%sCGB_Encryptor", kServiceRoot);
        C::SetValue(strUse == L"1" ? 1U : 0U, L"ForceUseSM", L"%s%s", kDeviceRoot, c.GetExeDllMother(1, nullptr));
    }
    return dwAutomatic;
});

// A stored 0 counts as missing.
template <DWORD Default>
constexpr auto kNotZero = Correct([](C&, DWORD dwValue, bool) -> DWORD { return dwValue != 0 ? dwValue : Default; });

// clang-format off
constexpr Setting kLayoutRows[] = {
    {kKeyboardMapping, L"1",  StringValue, L"1",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"2",  StringValue, L"2",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"3",  StringValue, L"3",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"4",  StringValue, L"CANCEL",    kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"5",  StringValue, L"4",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"6",  StringValue, L"5",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"7",  StringValue, L"6",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"8",  StringValue, L"CLEAR",     kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"9",  StringValue, L"7",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"10", StringValue, L"8",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"11", StringValue, L"9",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"12", StringValue, L"BACKSPACE", kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"13", StringValue, L".",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"14", StringValue, L"0",         kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"15", StringValue, L"00",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"16", StringValue, L"ENTER",     kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"17", StringValue, L"F1",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"18", StringValue, L"F2",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"19", StringValue, L"F3",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"20", StringValue, L"F4",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"21", StringValue, L"F5",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"22", StringValue, L"F6",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"23", StringValue, L"F7",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"24", StringValue, L"F8",        kLogicalKey, NotLogged, kByCode, Saved},
    {kKeyboardMapping, L"25", StringValue, L"HELP",      kLogicalKey, NotLogged, kByCode, Saved},
};
constexpr Setting kPositionRows[] = {
    {kFDKPosition, L"FDK01", StringValue, L"0,0",     kPosition, NotLogged, kByCode, Saved},
    {kFDKPosition, L"FDK02", StringValue, L"0,33",    kPosition, NotLogged, kByCode, Saved},
    {kFDKPosition, L"FDK03", StringValue, L"0,66",    kPosition, NotLogged, kByCode, Saved},
    {kFDKPosition, L"FDK04", StringValue, L"0,100",   kPosition, NotLogged, kByCode, Saved},
    {kFDKPosition, L"FDK05", StringValue, L"100,0",   kPosition, NotLogged, kByCode, Saved},
    {kFDKPosition, L"FDK06", StringValue, L"100,33",  kPosition, NotLogged, kByCode, Saved},
    {kFDKPosition, L"FDK07", StringValue, L"100,66",  kPosition, NotLogged, kByCode, Saved},
    {kFDKPosition, L"FDK08", StringValue, L"100,100", kPosition, NotLogged, kByCode, Saved},
};

constexpr Setting kSettings[] = {
    Repeat(0, 0, kLayoutRows),
    Repeat(0, 0, kPositionRows),
    {key::Device,   L"EarlyTerminateFDK",        &C::m_dwEarlyTerminateFDK,        2,      L"an FDK pressed before the minimum length: 1 ignore it; 2 return it and end; 3 return it and continue; 4 treat it as Clear", Saved, OneOf<1, 2, 3, 4>},
    {key::Device,   L"EarlyTerminateEnter",      &C::m_dwEarlyTerminateEnter,      1,      L"ENTER pressed before the minimum length: 1 ignore it; 2 return it and end; 3 return it and continue; 4 treat it as Clear", Saved, OneOf<1, 2, 3, 4>},
    {key::Device,   L"MultiZeroOverMaxLen",      &C::m_dwMultiZeroOverMaxLen,      0,      L"00 pressed when plain input is one short of its maximum: 0 ignore and drop it; 1 the key event returns the zeros that fit and the result keeps them; 2 the key event returns all zeros and the result keeps those that fit", Saved, OneOf<0, 1, 2>},
    {key::Device,   L"CryptPadSemi",             &C::m_dwCryptPadSemi,             1,      L"padding in encryption and decryption: 0 with the pad value as given; 1 with its low 4 bits; 2 with its low 4 bits joined into one byte; 3 with 0", Saved, OneOf<0, 1, 2, 3>},
    {key::Device,   L"GetDataBuffFDK",           &C::m_dwGetDataBuffFDK,           0,      L"data entry buffers FDK presses: 0 no; nonzero yes", Saved},
    {key::Device,   L"CheckActiveKeyNone",       &C::m_bCheckActiveKeyNone,        0,      L"an empty set of active keys is checked: 0 no; nonzero yes", Saved},
    {key::Device,   L"BuffEnter",                &C::m_dwBuffEnter,                0,      L"the ENTER key is kept in the buffer of all keys: 0 no; nonzero yes", Saved},
    {key::Device,   L"BankID",                   &C::m_dwBankID,                   0,      L"bank-specific behaviour: 0 default; 2 Paifit configuration; 8 MAC data first XORed down to 8 bytes; 9 Vaiflege VTM configuration", Saved, OneOf<0, 2, 8, 9>},
    {key::Device,   L"CheckInputParam",          &C::m_dwCheckInputParam,          0,      L"input parameters are checked: 0 no; 1 yes", OneOf<0, 1>},
    {key::Device,   L"IsAutomaticForceUseSM",    &C::m_dwIsAutomaticForceUseSM,    0,      L"ForceUseSM is switched at each load by what the bank's application has registered: 1 yes; anything else no", kSwitchForceUseSM},
    {key::Device,   L"CryptDataKeyUsage",        &C::m_dwCryptDataKeyUsage,        0,      L"use of the key-encryption key in the crypt command: 0 traditional ATM use; 1 VTM, CRYPT use only; 2 VTM, CRYPT and KEYENCKEY use", Saved, OneOf<0, 1, 2>},
    {key::Device,   L"PaddingCheck",             &C::m_dwPaddingCheck,             0,      L"padding characters are validated: 0x00 no; 0x01 yes", Saved, Format(L"%02X"), OneOf<0, 1>},
    {key::Device,   L"UseBackspaceAsPCInGetPin", &C::m_dwUseBackspaceAsPCInGetPin, 0,      L"BACKSPACE is mapped to 0x08 in PIN entry: 0 no; nonzero yes", Saved, Format(L"%02X")},
    {key::Device,   L"CheckKEKUse",              &C::m_dwCheckKEKUse,              1,      L"the use of the master key is checked when encrypting: 0 no; nonzero yes", Format(L"%02X")},
    {key::Device,   L"CanQueryDelKey",           &C::m_dwCanQueryDelKey,           0,      L"deleted keys can still be queried: 0 no; nonzero yes", Format(L"%02X")},
    {key::Device,   L"ImportExAsSM",             &C::m_dwImportExAsSM,             0,      L"the extended import command imports SM keys: 0 no; nonzero yes", Saved, Format(L"%02X")},
    {key::Device,   L"AllowNonCryptKey",         &C::m_dwAllowNonCryptKey,         7,      L"keys without the crypt attribute that are checked before crypting, bits: 0x01 master keys; 0x02 MAC keys; 0x04 PIN keys; 0 none", Saved, Format(L"%02X")},
    {key::Device,   L"ForceUseSM",               &C::m_bForceUseSM,                0,      L"the import-key, PIN-block and crypt commands use the SM algorithms instead of DES: 0 no; nonzero yes", Saved, Format(L"%02X")},
    {kSM,           L"SMUseValue",               &C::m_dwSMUseValue,               0x8000, L"key-type value of SM keys", Format(L"0x%X"), kNotZero<0x8000>},
    {kSM4,          L"SM4ECBValue",              &C::m_dwSM4ECBValue,              0x800,  L"extension parameter of SM4 ECB encryption", Format(L"0x%X"), kNotZero<0x800>},
    {kSM4,          L"SM4CBCValue",              &C::m_dwSM4CBCValue,              0x1000, L"extension parameter of SM4 CBC encryption", Format(L"0x%X"), kNotZero<0x1000>},
    {kSM4,          L"SM4MacValue",              &C::m_dwSM4MacValue,              0x2000, L"extension parameter of SM4 MAC", Format(L"0x%X"), kNotZero<0x2000>},
    {kSM4,          L"SM4MacLen",                &C::m_dwSM4MacLen,                16,     L"length of the returned SM4 MAC in bytes, 1 to 16: 0 and more become 16", Range(1, 16), Correct([](C&, DWORD dwLen, bool) -> DWORD { return dwLen == 0 || dwLen > 16 ? 16 : dwLen; })},
    {key::Device,   L"CheckPinLength",           &C::m_bCheckPinLength,            1,      L"the PIN length is checked when a PIN block is built: 0 no; nonzero yes"},
    {key::Device,   L"UseProtectKey",            &C::m_dwUseProtectKey,            0,      L"a protection key is used: 0 no; nonzero yes", Saved},
    {key::Device,   L"ProtectKey",               &C::m_strProtectKey,              L"",    L"protection key in clear text", Secret},
    {key::Device,   L"CertificateHashAlgorithm", &C::m_dwCertificateHashAlgorithm, 0x8004, L"digest of certificates: 0x00008004 SHA1; 0x0000800c SHA256; 0x0000800d SHA384; 0x0000800e SHA512", Format(L"0x%X"), OneOf<0x8004, 0x800C, 0x800D, 0x800E>},
    {key::Beep,     L"KeyPress",                 &C::m_strKeyPress,                L"C:\\vexo\\sp\\Config\\sp.data\\KeyDownSound.wav", L"sound file played on a key press", Saved},
    {kRSA,          L"KeyVectorMode",            &C::m_dwKeyVectorMode,            0,      L"length of an RSA key component: 0 none; 1 8 bytes; 2 16 bytes; 3 24 bytes", OneOf<0, 1, 2, 3>},
    {kRSA,          L"KeyVerifyMode",            &C::m_dwKeyVerifyMode,            0,      L"check value of an RSA key component: 0 none; 1 8 bytes; 2 16 bytes; 3 24 bytes", OneOf<0, 1, 2, 3>},
    {kRSA,          L"KeyComprise",              &C::m_dwKeyComprise,              0,      L"composition of an RSA key: 0 none; 1 one component; 2 two XOR components; 3 three XOR components", OneOf<0, 1, 2, 3>},
    {kCapabilities, L"DerivationAlgorithms",     &C::m_dwDerivationAlgorithms,     0,      meaning::kDerivationAlgorithms},
    {kCapabilities, L"PresentationAlgorithms",   &C::m_dwPresentationAlgorithms,   0,      meaning::kPresentationAlgorithms},
    {kCapabilities, L"IDKey",                    &C::m_dwIDKey,                    0,      meaning::kIDKey},
};

constexpr const wchar_t* kSaved[] = {
    L"EarlyTerminateFDK", L"EarlyTerminateEnter", L"MultiZeroOverMaxLen", L"CryptPadSemi", L"GetDataBuffFDK",
    L"PaddingCheck", L"CheckActiveKeyNone", L"KeyPress", L"BuffEnter", L"BankID", L"CryptDataKeyUsage",
    L"UseBackspaceAsPCInGetPin", L"ImportExAsSM", L"AllowNonCryptKey", L"ForceUseSM", L"UseProtectKey"};
// clang-format on
constexpr auto kSaveOrder = SaveOrder(kSettings, kSaved, false); // Save writes the maps before them
static_assert(CountSaved(kSettings) == std::size(kSaved) + std::size(kLayoutRows) + std::size(kPositionRows));

constexpr wchar_t kMappingFormat[] = L"%s%s\\KeybordInfo\\KeyboardMapping";
constexpr wchar_t kPositionFormat[] = L"%s%s\\KeybordInfo\\FDKPosition";

void LoadMap(CMapStringToString& map, LPCWSTR lpszFormat, const CString& strDevice, std::span<const Setting> defaults)
{
    map.RemoveAll();
    if (CRegKeyEx::QueryValues(map, lpszFormat, kDeviceRoot, strDevice)) {
        return;
    }
    for (const auto& row : defaults) {
        map.SetAt(row.name.data(), row.fallback.text);
    }
}

} // namespace

const Table& CPINRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CPINRegInfo", &CRegInfo::Settings, L"PIN", kSettings, kSaveOrder};
    return kTable;
}

CPINRegInfo::CPINRegInfo(const CString& strName, bool bPhysicalName)
    : CRegInfo(strName, bPhysicalName), m_mapKeyboardMapping(10), m_mapFDKPosition(10)
{
    Construct(*this, kSettings);
}

bool CPINRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CRegInfo::Load(pLog);
    const CString strDevice = GetExeDllMother(1, nullptr);
    LoadMap(m_mapKeyboardMapping, kMappingFormat, strDevice, kLayoutRows);
    LoadMap(m_mapFDKPosition, kPositionFormat, strDevice, kPositionRows);
    loading.Read(Settings());
    return bResult;
}

void CPINRegInfo::Save()
{
    Saving saving(*this);
    CRegInfo::Save();
    const CString strDevice = GetExeDllMother(1, nullptr);
    SetValues(m_mapKeyboardMapping, kMappingFormat, kDeviceRoot, strDevice);
    SetValues(m_mapFDKPosition, kPositionFormat, kDeviceRoot, strDevice);
    saving.Write(Settings());
}

WQSPCFG_CATALOGUE_ENTRY(CPINRegInfo)

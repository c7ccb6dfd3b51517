// Settings of text terminal units (XFS class TTU).
#pragma once

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

class WQSPCFG_API CTTURegInfo : public CRegInfo
{
  public:
    CTTURegInfo(const CString& strName, bool bPhysicalName);
    ~CTTURegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strFormsDirectory;
    CString m_strFormsExtension;
    DWORD m_dwDefaultCodec{};
    bool m_bIsCKOnlyAllowed{};
    bool m_bClearWhenUserCancel{};
    bool m_bAutoMultiZero{};
    bool m_bDropTailingMultiZero{};
    bool m_bNeed2HandleMultiZero{};
    // A key's name by the name of its value in the key KeyboardInfo\KeyboardMapping. A subkey there is an entry with an
    // empty text. Saved whole.
    CMapStringToString m_mapKeyboardMapping;
    // The coordinate base of the screen, as m_strBasePoint says it. An axis starts at 0 or 1; with a greater number
    // anywhere both start at 0.
    int m_nBasePointX = 0;
    int m_nBasePointY = 0;
    bool m_bKeyToneOn{};
    DWORD m_dwReserved[128] = {};
    bool m_bIsUseInitialValue{};
    bool m_bMutableLedIndex{};
    CString m_strBasePoint;
};

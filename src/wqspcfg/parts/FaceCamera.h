// What the face-recognition cameras have in common.
#pragma once

#include "wqspcfg/core/settings/Setting.h"

namespace wqspcfg {

struct FaceCamera
{
    DWORD m_dwTimeOut{};
    DWORD m_dwMaxPictures{};
    DWORD m_dwFontColor{};
    DWORD m_dwFontSize{};
    DWORD m_dwPointX{};
    DWORD m_dwPointY{};
    CString m_strFMVersion;
};

// clang-format off
template <class C>
inline constexpr Setting kFaceCameraRows[] = {
    {key::Control, L"TimeOut", Of<C, &FaceCamera::m_dwTimeOut>, 30, L"time-out of a capture, in seconds", Saved},
    {key::Control, L"MaxPictures", Of<C, &FaceCamera::m_dwMaxPictures>, 1000,
     L"maximum number of pictures kept in the folder", Saved},
    {key::Control, L"FontColor", Of<C, &FaceCamera::m_dwFontColor>, 0xFFFFFF,
     L"colour of the text printed on the picture, as an RGB number", Saved},
    {key::Control, L"FontSize", Of<C, &FaceCamera::m_dwFontSize>, 20,
     L"size of the text printed on the picture", Saved},
    {key::Control, L"PointX", Of<C, &FaceCamera::m_dwPointX>, 10,
     L"X position of the text printed on the picture", Saved},
    {key::Control, L"PointY", Of<C, &FaceCamera::m_dwPointY>, 10,
     L"Y position of the text printed on the picture", Saved},
    {key::Control, L"FMVersion", Of<C, &FaceCamera::m_strFMVersion>, L"V1.01",
     L"firmware version that is reported", Saved},
};
// clang-format on

} // namespace wqspcfg

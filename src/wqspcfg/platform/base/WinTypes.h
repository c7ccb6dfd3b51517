// The Windows base types at their Windows widths on every platform. Elsewhere than on Windows, `long` is not used:
// LONG, ULONG and DWORD have 32 bits everywhere. wchar_t keeps the platform's width (16 bits on Windows, 32 on Linux).
#pragma once

#if defined(_WIN32)

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#else

#include <concepts>
#include <cstddef>
#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using QWORD = std::uint64_t;
using BOOL = int;
using CHAR = char;
using UCHAR = unsigned char;
using SHORT = std::int16_t;
using USHORT = std::uint16_t;
using INT = std::int32_t;
using UINT = std::uint32_t;
using INT32 = std::int32_t;
using UINT32 = std::uint32_t;
using INT64 = std::int64_t;
using UINT64 = std::uint64_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using INT_PTR = std::ptrdiff_t;
using UINT_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using LPARAM = std::intptr_t;
using WPARAM = std::uintptr_t;
using COLORREF = DWORD;
using HRESULT = LONG;

using WCHAR = wchar_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPVOID = void*;
using LPCVOID = const void*;
using LPBYTE = BYTE*;
using LPWORD = WORD*;
using LPDWORD = DWORD*;
using LPLONG = LONG*;
using LPBOOL = BOOL*;

using HKEY = struct HKEY__*;
using HWND = struct HWND__*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HANDLE = void*;

inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;
inline constexpr DWORD INFINITE = 0xFFFFFFFF;

// As the Windows macros, on whatever integer they are given.
constexpr WORD LOWORD(std::integral auto value)
{
    return static_cast<WORD>(value);
}
constexpr WORD HIWORD(std::integral auto value)
{
    return static_cast<WORD>(static_cast<std::uint64_t>(value) >> 16);
}
constexpr BYTE LOBYTE(std::integral auto value)
{
    return static_cast<BYTE>(value);
}
constexpr BYTE HIBYTE(std::integral auto value)
{
    return static_cast<BYTE>(static_cast<std::uint64_t>(value) >> 8);
}
constexpr WORD MAKEWORD(std::integral auto low, std::integral auto high)
{
    return static_cast<WORD>(LOBYTE(low) | LOBYTE(high) << 8);
}
constexpr LONG MAKELONG(std::integral auto low, std::integral auto high)
{
    return static_cast<LONG>(static_cast<DWORD>(LOWORD(low)) | static_cast<DWORD>(LOWORD(high)) << 16);
}
constexpr COLORREF RGB(std::integral auto red, std::integral auto green, std::integral auto blue)
{
    return static_cast<COLORREF>(LOBYTE(red)) | static_cast<COLORREF>(LOBYTE(green)) << 8 |
           static_cast<COLORREF>(LOBYTE(blue)) << 16;
}

#endif

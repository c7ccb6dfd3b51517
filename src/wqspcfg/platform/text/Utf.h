// Conversions between wide text, UTF-16 and UTF-8. Wide text is UTF-16 on Windows and UTF-32 elsewhere.
//
// Registry names and strings are sequences of UTF-16 code units that need not be well-formed. A lone surrogate is wide
// text too: it stands for that one code unit, on every platform. Where wchar_t has 32 bits, a high and a low surrogate
// as two wchar_t would turn into one character on the way back, and values beyond U+10FFFF have no code unit at all:
// both are ill-formed and refused.
//
// Functions that return bool return false for ill-formed input and leave their output as it was.
#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg {

// The number of code units of well-formed text.
WQSPCFG_API std::size_t Utf16Length(std::wstring_view text) noexcept;
WQSPCFG_API bool AppendUtf16(std::wstring_view text, std::u16string& units);
WQSPCFG_API bool AppendUtf16Le(std::wstring_view text, std::vector<std::byte>& bytes);
// Every sequence of code units is wide text.
WQSPCFG_API void AppendWide(std::u16string_view units, std::wstring& text);
// Refuses an odd number of bytes.
WQSPCFG_API bool AppendWideFromUtf16Le(std::span<const std::byte> bytes, std::wstring& text);

// Strict UTF-8: no lone surrogates, shortest forms only.
WQSPCFG_API bool AppendUtf8(std::wstring_view text, std::string& utf8);
WQSPCFG_API bool AppendWideFromUtf8(std::string_view utf8, std::wstring& text);
WQSPCFG_API bool AppendUtf16FromUtf8(std::string_view utf8, std::u16string& units);

// UTF-8 in which a lone surrogate is written as any other character of three bytes.
WQSPCFG_API bool AppendGeneralizedUtf8(std::wstring_view text, std::string& utf8);
WQSPCFG_API bool AppendWideFromGeneralizedUtf8(std::string_view utf8, std::wstring& text);

// Each UTF-16 code unit written as UTF-8 on its own (CESU-8, lone surrogates included): comparing bytes is comparing
// code units.
WQSPCFG_API bool AppendCesu8(std::wstring_view text, std::string& cesu8);
WQSPCFG_API bool AppendWideFromCesu8(std::string_view cesu8, std::wstring& text);

// For messages: UTF-8 with U+FFFD for what cannot be said.
WQSPCFG_API std::string Utf8ForMessage(std::wstring_view text);

} // namespace wqspcfg

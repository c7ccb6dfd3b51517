#include "wqspcfg/platform/text/CodePage.h"

#include "wqspcfg/platform/text/Utf.h"

#if defined(_WIN32)
#include "wqspcfg/platform/base/WinTypes.h"
#else
#include <iconv.h>
#endif

#include <algorithm>
#include <climits>

namespace wqspcfg {

namespace {

constexpr unsigned kUtf8 = 65001;

class Utf8Page final : public CodePage
{
  public:
    bool Append(std::string_view bytes, std::u16string& units) override { return AppendUtf16FromUtf8(bytes, units); }
};

#if defined(_WIN32)

class SystemPage final : public CodePage
{
  public:
    explicit SystemPage(unsigned number) : m_number(number) {}

    bool Append(std::string_view bytes, std::u16string& units) override
    {
        if (bytes.empty()) {
            return true;
        }
        if (bytes.size() > INT_MAX) {
            return false;
        }
        const auto length = static_cast<int>(bytes.size());
        const auto count = MultiByteToWideChar(m_number, MB_ERR_INVALID_CHARS, bytes.data(), length, nullptr, 0);
        if (count <= 0) {
            return false;
        }
        std::wstring wide(static_cast<std::size_t>(count), L'\0');
        MultiByteToWideChar(m_number, MB_ERR_INVALID_CHARS, bytes.data(), length, wide.data(), count);
        units.append(wide.begin(), wide.end());
        return true;
    }

  private:
    unsigned m_number;
};

std::unique_ptr<CodePage> OpenSystemPage(unsigned number)
{
    return std::make_unique<SystemPage>(number);
}

#else

std::string NameOf(unsigned number)
{
    switch (number) {
    case 20127:
        return "US-ASCII";
    case 20866:
        return "KOI8-R";
    case 21866:
        return "KOI8-U";
    case 51932:
        return "EUC-JP";
    case 51949:
        return "EUC-KR";
    case 54936:
        return "GB18030";
    default:
        return number >= 28591 && number <= 28606 ? "ISO-8859-" + std::to_string(number - 28590)
                                                  : "CP" + std::to_string(number);
    }
}

class SystemPage final : public CodePage
{
  public:
    explicit SystemPage(iconv_t converter) : m_converter(converter) {}
    ~SystemPage() override { iconv_close(m_converter); }

    bool Append(std::string_view bytes, std::u16string& units) override
    {
        iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
        const auto start = units.size();
        units.resize(start + 2 * bytes.size()); // no character has more units than that
        auto* in = const_cast<char*>(bytes.data());
        auto* const first = reinterpret_cast<char*>(units.data() + start);
        auto* out = first;
        auto inLeft = bytes.size();
        auto outLeft = 4 * bytes.size();
        const auto replaced = iconv(m_converter, &in, &inLeft, &out, &outLeft);
        const bool decoded = replaced == 0 && inLeft == 0;
        units.resize(decoded ? start + static_cast<std::size_t>(out - first) / 2 : start);
        return decoded;
    }

  private:
    iconv_t m_converter;
};

std::unique_ptr<CodePage> OpenSystemPage(unsigned number)
{
    const auto converter = iconv_open("UTF-16LE", NameOf(number).c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        return nullptr;
    }
    return std::make_unique<SystemPage>(converter);
}

#endif

} // namespace

std::unique_ptr<CodePage> CodePage::Open(unsigned number)
{
    if (number == kUtf8) {
        return std::make_unique<Utf8Page>();
    }
    auto page = number != 0 ? OpenSystemPage(number) : nullptr;
    constexpr std::string_view kAscii = "REGEDIT4\r\n[-HKEY_LOCAL_MACHINE\\a]; @=\"dword:09afAF\",()";
    std::u16string units;
    if (page && (!page->Append(kAscii, units) || !std::equal(kAscii.begin(), kAscii.end(), units.begin(), units.end(),
                                                             [](char a, char16_t b) { return char16_t(a) == b; }))) {
        page.reset();
    }
    return page;
}

} // namespace wqspcfg

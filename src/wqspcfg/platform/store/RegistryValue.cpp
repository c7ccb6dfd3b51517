#include "wqspcfg/platform/store/RegistryValue.h"

#include "wqspcfg/platform/text/Utf.h"

#include <string>
#include <vector>

namespace wqspcfg {

bool ToValue(const ValueView& view, DWORD& value)
{
    if (view.type != ValueType::Dword || view.data.size() != 4) {
        return false;
    }
    value = 0;
    for (std::size_t i = 4; i-- > 0;) {
        value = (value << 8) | std::to_integer<DWORD>(view.data[i]);
    }
    return true;
}

bool ToValue(const ValueView& view, CString& value)
{
    if (view.type != ValueType::Sz) {
        return false;
    }
    auto bytes = view.data;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        if (bytes[i] == std::byte{0} && bytes[i + 1] == std::byte{0}) {
            bytes = bytes.first(i);
            break;
        }
    }
    std::wstring text;
    AppendWideFromUtf16Le(bytes.first(bytes.size() & ~std::size_t{1}), text);
    value = CString(std::move(text));
    return true;
}

Outcome SetText(Session& session, Session::Key key, std::wstring_view name, std::wstring_view text)
{
    std::vector<std::byte> bytes;
    if (!AppendUtf16Le(text, bytes)) {
        return session.Refuse({ErrorKind::BadText, "the text of value " + Utf8ForMessage(name) +
                                                       " is ill-formed and would not survive in the registry"});
    }
    bytes.resize(bytes.size() + 2); // the terminator
    return session.Set(key, name, {ValueType::Sz, bytes});
}

} // namespace wqspcfg

#include "wqspcfg/core/RegKeyEx.h"

#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/utility/StringUtility.h"

using wqspcfg::DwordBytes;
using wqspcfg::Outcome;
using wqspcfg::ReadScope;
using wqspcfg::ToValue;
using wqspcfg::ValueView;
using wqspcfg::WriteScope;

namespace {

template <class T>
int QueryOne(T& value, std::wstring_view name, std::wstring_view path)
{
    ReadScope scope;
    ValueView view;
    return scope->QueryAt(path, name, view) == Outcome::Found && ToValue(view, value) ? 1 : 0;
}

// Hands the name of every value of type T and the value, which it may keep, to `take`; 0 when the key cannot be opened.
template <class T, class F>
int QueryAll(std::wstring_view path, F take)
{
    ReadScope scope;
    std::wstring terminated;
    const auto outcome = scope->EnumValues(scope->Open(path), [&](std::wstring_view name, const ValueView& view) {
        T value{};
        if (ToValue(view, value)) {
            terminated = name;
            take(terminated, value);
        }
        return true;
    });
    return outcome == Outcome::Found ? 1 : 0;
}

} // namespace

std::wstring& CRegKeyEx::PathBuffer() noexcept
{
    thread_local std::wstring path;
    return path;
}

int CRegKeyEx::QueryAt(DWORD& dwValue, std::wstring_view name, std::wstring_view path)
{
    return QueryOne(dwValue, name, path);
}

int CRegKeyEx::QueryAt(CString& strValue, std::wstring_view name, std::wstring_view path)
{
    return QueryOne(strValue, name, path);
}

int CRegKeyEx::QueryAllAt(CMap<DWORD, DWORD, DWORD, DWORD>& mapValues, std::wstring_view path)
{
    return QueryAll<DWORD>(path, [&](const std::wstring& name, DWORD value) {
        if (const auto code = wqspcfg::ParseDword(name)) {
            mapValues.SetAt(*code, value);
        }
    });
}

int CRegKeyEx::QueryAllAt(CMap<CString, LPCWSTR, DWORD, DWORD>& mapValues, std::wstring_view path)
{
    return QueryAll<DWORD>(path, [&](const std::wstring& name, DWORD value) { mapValues.SetAt(name.c_str(), value); });
}

int CRegKeyEx::QueryAllAt(CMapStringToString& mapValues, std::wstring_view path)
{
    return QueryAll<CString>(
        path, [&](const std::wstring& name, CString& value) { mapValues[name.c_str()] = std::move(value); });
}

int CRegKeyEx::SetAt(DWORD dwValue, std::wstring_view name, std::wstring_view path, bool bFlush)
{
    WriteScope scope;
    if (bFlush) {
        scope.Flush();
    }
    const DwordBytes bytes(dwValue);
    return scope->Set(scope->Open(path), name, bytes.View()) == Outcome::Found && scope.Commit() ? 1 : 0;
}

int CRegKeyEx::SetAt(std::wstring_view value, std::wstring_view name, std::wstring_view path)
{
    WriteScope scope;
    return SetText(*scope, scope->Open(path), name, value) == Outcome::Found && scope.Commit() ? 1 : 0;
}

int CRegKeyEx::SetAllAt(const CMapStringToString& mapValues, std::wstring_view path)
{
    WriteScope scope;
    const auto key = scope->Open(path);
    for (const auto& [name, value] : mapValues) {
        SetText(*scope, key, name.View(), value.View());
    }
    return scope.Commit() ? 1 : 0;
}

int CRegKeyEx::EnumAt(CStringArray& arNames, std::wstring_view path)
{
    arNames.RemoveAll();
    ReadScope scope;
    const auto outcome = scope->EnumKeys(scope->Open(path), [&](std::wstring_view name) {
        arNames.Add(CString(name));
        return true;
    });
    return outcome == Outcome::Found ? 1 : 0;
}

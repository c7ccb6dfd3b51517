// Registry operations as every configuration class uses them.
#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/format/Format.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

#include <string>
#include <string_view>

// A key path is a wide format and its arguments, the registry root first; the hive follows from the path's first
// component (".DEFAULT" is in HKEY_USERS, all else in HKEY_LOCAL_MACHINE). Arguments are type-safe and %s is a wide
// string on every platform. Every operation returns nonzero when it succeeded and 0 otherwise.
//
// The operations work on the process's current store (wqspcfg::SetCurrentStore). A query whose key or value is missing,
// or whose value is of another type, returns 0 and leaves its output untouched. A query that the store could not
// answer does the same; wqspcfg::LastStoreError tells the two apart.
class WQSPCFG_API CRegKeyEx
{
  public:
    template <class... Args>
    static int QueryValue(DWORD& dwValue, const CString& strName, LPCWSTR lpszKey, const Args&... args)
    {
        return QueryAt(dwValue, strName.View(), Path(lpszKey, args...));
    }
    template <class... Args>
    static int QueryValue(CString& strValue, const CString& strName, LPCWSTR lpszKey, const Args&... args)
    {
        return QueryAt(strValue, strName.View(), Path(lpszKey, args...));
    }

    // Every DWORD value whose name is a decimal number (a command code) goes into the map under that number. Other
    // values are left out.
    template <class... Args>
    static int QueryValues(CMap<DWORD, DWORD, DWORD, DWORD>& mapValues, LPCWSTR lpszKey, const Args&... args)
    {
        return QueryAllAt(mapValues, Path(lpszKey, args...));
    }
    // Every DWORD value of the key under its name.
    template <class... Args>
    static int QueryValues(CMap<CString, LPCWSTR, DWORD, DWORD>& mapValues, LPCWSTR lpszKey, const Args&... args)
    {
        return QueryAllAt(mapValues, Path(lpszKey, args...));
    }
    // Every string value of the key under its name. Entries of the map that the key does not hold stay.
    template <class... Args>
    static int QueryValues(CMapStringToString& mapValues, LPCWSTR lpszKey, const Args&... args)
    {
        return QueryAllAt(mapValues, Path(lpszKey, args...));
    }

    // A write creates the missing key. Outside a wqspcfg::WriteScope it is durable on an embedded store when it
    // returns.
    template <class... Args>
    static int SetValue(DWORD dwValue, const CString& strName, LPCWSTR lpszKey, const Args&... args)
    {
        return SetAt(dwValue, strName.View(), Path(lpszKey, args...), false);
    }
    template <class... Args>
    static int SetValue(const CString& strValue, const CString& strName, LPCWSTR lpszKey, const Args&... args)
    {
        return SetAt(strValue.View(), strName.View(), Path(lpszKey, args...));
    }
    // Durable on every store when it returns, or when the wqspcfg::WriteScope around it ends.
    template <class... Args>
    static int SetValueAndFlush(DWORD dwValue, const CString& strName, LPCWSTR lpszKey, const Args&... args)
    {
        return SetAt(dwValue, strName.View(), Path(lpszKey, args...), true);
    }
    // Writes every entry as a string value, all of them or none where the store can.
    template <class... Args>
    static int SetValues(const CMapStringToString& mapValues, LPCWSTR lpszKey, const Args&... args)
    {
        return SetAllAt(mapValues, Path(lpszKey, args...));
    }

    // The names of the key's direct subkeys in case-insensitive order.
    template <class... Args>
    static int EnumSubKeyName(CStringArray& arNames, LPCWSTR lpszKey, const Args&... args)
    {
        return EnumAt(arNames, Path(lpszKey, args...));
    }

  protected:
    CRegKeyEx() = default;
    CRegKeyEx(const CRegKeyEx&) = default;
    CRegKeyEx& operator=(const CRegKeyEx&) = default;
    ~CRegKeyEx() = default;

  private:
    // The formatted path, valid until this thread's next operation.
    template <class... Args>
    static const std::wstring& Path(LPCWSTR lpszKey, const Args&... args)
    {
        auto& path = PathBuffer();
        path.clear();
        wqspcfg::FormatTo(path, lpszKey, args...);
        return path;
    }
    static std::wstring& PathBuffer() noexcept;
    static int QueryAt(DWORD& dwValue, std::wstring_view name, std::wstring_view path);
    static int QueryAt(CString& strValue, std::wstring_view name, std::wstring_view path);
    static int QueryAllAt(CMap<DWORD, DWORD, DWORD, DWORD>& mapValues, std::wstring_view path);
    static int QueryAllAt(CMap<CString, LPCWSTR, DWORD, DWORD>& mapValues, std::wstring_view path);
    static int QueryAllAt(CMapStringToString& mapValues, std::wstring_view path);
    static int SetAt(DWORD dwValue, std::wstring_view name, std::wstring_view path, bool bFlush);
    static int SetAt(std::wstring_view value, std::wstring_view name, std::wstring_view path);
    static int SetAllAt(const CMapStringToString& mapValues, std::wstring_view path);
    static int EnumAt(CStringArray& arNames, std::wstring_view path);
};

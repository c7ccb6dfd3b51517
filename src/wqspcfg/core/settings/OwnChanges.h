// What objects loaded, so that Save can tell their own changes from those of others.
#pragma once

#include "wqspcfg/core/Log.h"
#include "wqspcfg/core/settings/Setting.h"

#include <map>
#include <optional>
#include <string>

namespace wqspcfg {

// A number, a text or the entries of a whole key.
struct SettingContent
{
    DWORD number = 0;
    std::wstring text;
    std::map<std::wstring, std::wstring> entries;

    friend bool operator==(const SettingContent&, const SettingContent&) = default;
};

struct LoadedContent
{
    std::optional<SettingContent> stored; // nothing where the registry held no value of the right type
    SettingContent held;
};

// All are for the object of one thread at a time, and may be called for different objects from several threads.
void RememberLoaded(const CRegKeyEx& object, const Setting& row, unsigned index, LoadedContent content, CLog* log);
// What the object is to count as loaded once it is committed: what it has written. Settled when the write ends.
void RememberWritten(const CRegKeyEx& object, const Setting& row, unsigned index, LoadedContent content);
void SettleWritten(const CRegKeyEx& object, bool committed);
// Null where the object has not loaded this setting.
const LoadedContent* FindLoaded(const CRegKeyEx& object, const Setting& row, unsigned index);
// The log of the object's last Load; null where there is none.
CLog* LogOfLoad(const CRegKeyEx& object);
void ForgetLoaded(const CRegKeyEx& object) noexcept;

} // namespace wqspcfg

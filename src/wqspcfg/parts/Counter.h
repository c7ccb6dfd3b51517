// Counts that an operation of a model changes and writes at once.
#pragma once

#include "wqspcfg/core/settings/Settings.h"

namespace wqspcfg {

constexpr DWORD OneLess(DWORD dwCount) noexcept
{
    return dwCount > 0 ? dwCount - 1 : 0;
}

// The largest count stays: one more would tell of an empty bin.
constexpr DWORD OneMore(DWORD dwCount) noexcept
{
    return dwCount < 0xFFFFFFFF ? dwCount + 1 : dwCount;
}

// `row` is the setting that `dwMember`, a member of `object`, holds.
inline void WriteCount(CRegInfo& object, DWORD& dwMember, DWORD dwCount, const Setting& row)
{
    dwMember = dwCount;
    Saving(object).Write(row);
}

} // namespace wqspcfg

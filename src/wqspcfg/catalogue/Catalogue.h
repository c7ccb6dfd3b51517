// Every class of the library by name: what it is and an object of it. Costs nothing at start-up. A program that links
// the static library and does not use this carries only the classes that it names.
//
// To add a class, add its line to the .inc file of its device class.
#pragma once

#include "wqspcfg/core/settings/Settings.h"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace wqspcfg {

// In the order of the .inc files, class bases first.
WQSPCFG_API std::span<const ClassEntry* const> AllClasses() noexcept;

// By the class's name, without regard to case; null when there is none.
WQSPCFG_API const ClassEntry* FindClass(std::wstring_view className) noexcept;

// The classes of a device class ("CRD"), its class base included.
WQSPCFG_API std::vector<const ClassEntry*> ClassesOf(std::wstring_view deviceClass);

// An object of the class, not loaded yet; null for the mix-in, which is part of other classes only.
WQSPCFG_API std::unique_ptr<CRegInfo> Create(const ClassEntry& entry, const CString& strName, bool bPhysicalName);

} // namespace wqspcfg

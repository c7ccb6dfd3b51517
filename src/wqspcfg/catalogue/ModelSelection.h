// Finds the class that configures a service, from what the registry tells of the service.
#pragma once

#include "wqspcfg/catalogue/Catalogue.h"

#include <string>
#include <string_view>

namespace wqspcfg {

// What a service is called in the registry. Names of files are without their folder and extension; what the registry
// does not tell is empty.
struct ServiceIdentity
{
    std::wstring logicalName;
    std::wstring physicalName;
    std::wstring xfsClass;    // the class value: "CRD"
    std::wstring deviceKey;   // the device key name
    std::wstring executable;  // of the service key's `Executable`
    std::wstring module;      // of the service key's `DLLName`
    std::wstring classModule; // of the service key's module for its class, such as `PTRName`
    bool exists = false;      // the logical key, or for a physical name the service key or the device key, is there
};

// Reads the current store. As objects of the classes are, for one thread at a time.
WQSPCFG_API ServiceIdentity IdentifyService(const CString& strName, bool bPhysicalName);

struct ModelSelection
{
    const ClassEntry* entry; // never null
    std::wstring reason;     // for a person: which name or value decided
};

// Tries in this order: a model whose name is one of the service's names; a model whose name is part of one of them; the
// only model whose name one of them is part of; the class base of the class value; CRegInfo. Names are compared without
// regard to case and without "WQSp" or "Sp" before them.
WQSPCFG_API ModelSelection SelectModel(const ServiceIdentity& service);

// Whether the class is made for one device model; else it is a base that models have in common.
WQSPCFG_API bool IsModel(const ClassEntry& entry) noexcept;
// Whether XFS has a class of this name. Case does not count.
WQSPCFG_API bool IsXfsClass(std::wstring_view name);

// For a person: how the service's class value contradicts the class. Empty where it does not.
WQSPCFG_API std::wstring ContradictionOf(const ServiceIdentity& service, const ClassEntry& entry);

} // namespace wqspcfg

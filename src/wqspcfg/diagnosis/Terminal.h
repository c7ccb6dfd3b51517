// The services of a terminal.
#pragma once

#include "wqspcfg/diagnosis/Examination.h"

#include <string>
#include <vector>

namespace wqspcfg::diagnosis {

// Of the current store: logical services by name, then service providers that no logical one names.
std::vector<ServiceIdentity> IdentifyServices();

// The logical name, or that of a service provider that no logical service names.
const std::wstring& NameOf(const ServiceIdentity& service) noexcept;
// Whether the service is one of these by its name. Every one is where there are none.
bool IsAmong(const ServiceIdentity& service, const std::vector<std::wstring>& names);

struct Terminal
{
    std::vector<Examination> services; // in the order of IdentifyServices
    Error failure;                     // of the store; what was read is then not to be trusted
};

// Examines the services that are among these, each by the class that it is detected to have, in one state of the
// current store. As with Examine, what classes write while they load goes to that store.
Terminal ExamineTerminal(const std::vector<std::wstring>& names);

} // namespace wqspcfg::diagnosis

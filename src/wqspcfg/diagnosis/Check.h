// Judges the configuration of a terminal: what is wrong with what its service providers read.
#pragma once

#include "wqspcfg/diagnosis/Examination.h"
#include "wqspcfg/diagnosis/Places.h"
#include "wqspcfg/diagnosis/Terminal.h"

#include <optional>
#include <string>
#include <vector>

namespace wqspcfg::diagnosis {

enum class Severity : std::uint8_t
{
    Error,   // a service provider does not run with what was meant
    Warning, // something is probably not as it was meant
};

enum class FindingKind : std::uint8_t
{
    WrongType,        // a value of another type than the one that is read
    NotAllowed,       // a number that the setting does not have
    Corrected,        // the class takes another value than the stored one
    MissingValue,     // a value that is needed beside those that are there
    UnknownName,      // a value that nothing reads
    UnknownKey,       // a key of which nothing is read
    ReadElsewhere,    // a value that is read from another key
    OtherModel,       // a value that another device model reads
    NoLogicalService, // service providers, and no logical service for an application to open
    NoProvider,       // a logical service without a service provider
    NoDeviceKey,      // a service provider without a device key
    UnusedDeviceKey,  // a device key without a service
    ClassContradicts, // a class value that the device model contradicts
    UnknownClass,     // a class value that XFS does not have, or none at all
    UnknownModel,     // a device key that no class is made for
    SharedPort,       // two devices on one serial port
    NoSuchService,    // the name of a logical service that is not there
    Inconsistent,     // card units or note types that do not add up
    View32,           // keys of 32-bit programs beside those that are read
};

struct Finding
{
    Severity severity = Severity::Error;
    FindingKind kind = FindingKind::WrongType;
    std::wstring service;             // its name; empty: it concerns the terminal
    std::wstring path;                // of the key, relative to the hive that its first component names
    std::optional<std::wstring> name; // of the value; none: the key itself
    std::string message;              // UTF-8 that holds stored text as it is
    std::string place;                // "FILE:LINE" in a registry export
};

struct CheckOptions
{
    std::vector<std::wstring> services{}; // only these and what they read; empty: the whole terminal
    bool alone = false;                   // look at no other service, and so not for ports that others use too
    bool view32 = false;                  // the keys of 32-bit programs are read
    bool showSecrets = false;
};

// What the services of the current store make of it, in the order of findings: service by service, then the terminal.
struct Checkup
{
    std::vector<Examination> services; // logical ones by name, then service providers that no logical one names
    std::vector<Finding> findings;
    Error failure; // of the store
};

// As with Examine, what classes write while they load goes to the current store.
Checkup Check(const CheckOptions& options, Places& places);

// The stable name for other programs: "wrongType".
const char* NameOf(FindingKind kind) noexcept;

} // namespace wqspcfg::diagnosis

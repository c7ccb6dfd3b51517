// Where a setting lives in the registry.
#pragma once

#include <cstdint>

namespace wqspcfg {

enum class Root : std::uint8_t
{
    Device,   // the device key: "SOFTWARE\XFS\PHYSICAL_SERVICES\" and the device key name
    Service,  // the service key: "SOFTWARE\XFS\SERVICE_PROVIDERS\" and the physical service name
    Logical,  // the logical key: ".DEFAULT\XFS\LOGICAL_SERVICES\" and the logical service name
    Common,   // "SOFTWARE\XFS\SERVICE_PROVIDERS\WQCmnCfg\", shared by all service providers
    Absolute, // the subkey is the whole path
};

// A registry key by its root and the path below it, as the log and the registry are to see it (a trailing backslash or
// odd case included). Within Repeat the path may hold one %d or %s for the iteration's name.
struct Key
{
    Root root;
    const wchar_t* subkey;

    friend constexpr bool operator==(const Key&, const Key&) = default;
};

namespace key {

inline constexpr Key Device{Root::Device, L""};
inline constexpr Key Comm{Root::Device, L"Comm"};
inline constexpr Key Control{Root::Device, L"Control"};
inline constexpr Key Capabilities{Root::Device, L"CAPABILITIES"};
inline constexpr Key IdleInterval{Root::Device, L"IdleInterval"};
inline constexpr Key Policy{Root::Device, L"Policy"};
inline constexpr Key Beep{Root::Device, L"Beep"};
inline constexpr Key Service{Root::Service, L""};
inline constexpr Key Setup{Root::Common, L"Setup"};

constexpr Key Below(const wchar_t* subkey)
{
    return {Root::Device, subkey};
}
constexpr Key Common(const wchar_t* subkey)
{
    return {Root::Common, subkey};
}
constexpr Key Absolute(const wchar_t* path)
{
    return {Root::Absolute, path};
}

} // namespace key

} // namespace wqspcfg

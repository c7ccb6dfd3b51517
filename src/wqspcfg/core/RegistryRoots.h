// The registry roots, each the first argument of a key path.
#pragma once

namespace wqspcfg {

inline constexpr wchar_t kDeviceRoot[] = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\";
inline constexpr wchar_t kServiceRoot[] = L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\";
inline constexpr wchar_t kLogicalRoot[] = L".DEFAULT\\XFS\\LOGICAL_SERVICES\\";
inline constexpr wchar_t kDriverRoot[] = L"SOFTWARE\\TARNO\\Driver\\";
// Under the service root: what all service providers share.
inline constexpr wchar_t kCommonKey[] = L"WQCmnCfg\\";

} // namespace wqspcfg

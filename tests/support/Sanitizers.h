// Which sanitizers watch the program. They make it ten times slower and larger.
#pragma once

namespace wqspcfg::test {

#ifndef __has_feature
#define __has_feature(feature) 0
#endif

#if defined(__SANITIZE_THREAD__) || __has_feature(thread_sanitizer)
inline constexpr bool kThreadSanitized = true;
#else
inline constexpr bool kThreadSanitized = false;
#endif

#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = kThreadSanitized;
#endif

} // namespace wqspcfg::test

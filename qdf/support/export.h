#pragma once

// The one macro of the library: it marks what libapmqdf.so offers to a host.

#if defined(__GNUC__) || defined(__clang__)
#define APMQDF_EXPORT __attribute__((visibility("default")))
#else
#define APMQDF_EXPORT
#endif

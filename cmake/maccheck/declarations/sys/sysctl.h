#pragma once
// Darwin's sysctl by name, from the sysctl(3) manual page on macOS.
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif
int sysctlbyname(const char* name, void* oldp, size_t* oldlenp, void* newp, size_t newlen);
#ifdef __cplusplus
}
#endif

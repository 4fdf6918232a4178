#pragma once
// Darwin's additions to <time.h>: the uptime clock that does not advance in sleep and the
// nanosecond reader, from the clock_gettime(3) man page on macOS.
#include <stdint.h>
#include_next <time.h>
#define CLOCK_UPTIME_RAW ((clockid_t)8)
#ifdef __cplusplus
extern "C" {
#endif
uint64_t clock_gettime_nsec_np(clockid_t clock_id);
#ifdef __cplusplus
}
#endif

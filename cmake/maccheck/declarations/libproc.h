#pragma once
// libproc's process queries (libSystem), from the proc_pidpath and proc_name man pages' shapes.
#include <stdint.h>
#ifdef __cplusplus
extern "C" {
#endif
int proc_pidpath(int pid, void* buffer, uint32_t buffersize);
int proc_name(int pid, void* buffer, uint32_t buffersize);
#ifdef __cplusplus
}
#endif
#define PROC_PIDPATHINFO_SIZE 1024
#define PROC_PIDPATHINFO_MAXSIZE (4 * 1024)

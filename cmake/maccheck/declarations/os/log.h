#pragma once
// The unified log as the macOS layer uses it, written from Apple's documentation
// (developer.apple.com/documentation/os/logging and the os_log(3) manual page): looked up
// os_log_create and os_log_error. On a Mac os_log_error is a macro over os_log_with_type;
// declaring it as the function the manual page shows checks the same call shape.
#ifdef __cplusplus
extern "C" {
#endif

typedef struct os_log_s* os_log_t;

os_log_t os_log_create(const char* subsystem, const char* category);
void os_log_error(os_log_t log, const char* format, ...);

#ifdef __cplusplus
}
#endif

#pragma once
// The IOKit registry calls the macOS layer needs to read a device's properties. Written from
// Apple's documentation (developer.apple.com/documentation/iokit/<name>); looked up:
// IOServiceGetMatchingService, IORegistryEntryCreateCFProperty, kIOMainPortDefault.
#include <CoreFoundation/CoreFoundation.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef unsigned int mach_port_t;
typedef int kern_return_t;
typedef mach_port_t io_object_t;
typedef io_object_t io_iterator_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_service_t;
typedef io_object_t io_connect_t;
typedef mach_port_t task_port_t;
typedef UInt32 IOOptionBits;
typedef char io_name_t[128];
typedef char io_string_t[512];
#define KERN_SUCCESS 0
#define kIOReturnSuccess KERN_SUCCESS
#define MACH_PORT_NULL 0
#define IO_OBJECT_NULL ((io_object_t)0)
#define kNilOptions 0

extern const mach_port_t kIOMainPortDefault;

#pragma clang arc_cf_code_audited begin
CFMutableDictionaryRef IOServiceMatching(const char* name) __attribute__((cf_returns_retained));
io_service_t IOServiceGetMatchingService(mach_port_t mainPort,
                                         CFDictionaryRef matching __attribute__((cf_consumed)));
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort,
                                           CFDictionaryRef matching __attribute__((cf_consumed)),
                                           io_iterator_t* existing);
io_object_t IOIteratorNext(io_iterator_t iterator);
CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options);
kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry,
                                                CFMutableDictionaryRef* properties,
                                                CFAllocatorRef allocator, IOOptionBits options);
kern_return_t IORegistryEntrySetCFProperty(io_registry_entry_t entry, CFStringRef propertyName,
                                           CFTypeRef property);
#pragma clang arc_cf_code_audited end
kern_return_t IOObjectRelease(io_object_t object);
// Looked up: IORegistryEntryFromPath.
io_registry_entry_t IORegistryEntryFromPath(mach_port_t mainPort, const io_string_t path);
// A driver's user client (looked up: IOServiceOpen, IOServiceClose, IOConnectCallStructMethod;
// owningTask is a task_port_t, the connection a mach_port_t).
kern_return_t IOServiceOpen(io_service_t service, task_port_t owningTask, uint32_t type,
                            io_connect_t* connect);
kern_return_t IOServiceClose(io_connect_t connect);
kern_return_t IOConnectCallStructMethod(mach_port_t connection, uint32_t selector,
                                        const void* inputStruct, size_t inputStructCnt,
                                        void* outputStruct, size_t* outputStructCnt);

#ifdef __cplusplus
}
#endif

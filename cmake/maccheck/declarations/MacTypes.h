#pragma once
// The basic Mac types every C framework uses, and the CF_ENUM / CF_OPTIONS spellings as a Mac
// compiles them in C++: a CF_ENUM is an enum with a fixed underlying type, a CF_OPTIONS type is
// the plain integer type (its constants sit in an unnamed enum), so `a | b` stays that integer.
// Written from Apple's documentation (developer.apple.com/documentation/kernel/ and
// /corefoundation/ pages for each name).
#include <stddef.h>
#include <stdint.h>
#include <sys/types.h>

typedef uint8_t UInt8;
typedef int8_t SInt8;
typedef uint16_t UInt16;
typedef int16_t SInt16;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef uint64_t UInt64;
typedef int64_t SInt64;
typedef float Float32;
typedef double Float64;
typedef unsigned char Boolean;
typedef SInt32 OSStatus;
typedef SInt16 OSErr;
typedef UInt32 FourCharCode;
typedef FourCharCode OSType;
typedef UInt32 OptionBits;
typedef unsigned long ItemCount;
typedef unsigned long ByteCount;
typedef UInt16 UniChar;
typedef unsigned long UniCharCount;

enum { noErr = 0 };

#define QV_CF_ENUM(type, name) \
    enum name : type name;     \
    enum name : type
#define QV_CF_OPTIONS(type, name) \
    type name;                    \
    enum : type

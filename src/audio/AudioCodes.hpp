#pragma once

#include <cstdint>

#include "platform/AudioPropertyAddress.hpp"

// The HAL's numbers that portable code needs: objects, scopes, selectors and statuses. A
// four-character code is its characters read as a big-endian 32-bit value, as the HAL's own
// headers define them.
namespace quorvane::hal {

constexpr std::uint32_t fourCharCode(const char (&code)[5]) {
    return (static_cast<std::uint32_t>(static_cast<unsigned char>(code[0])) << 24) |
           (static_cast<std::uint32_t>(static_cast<unsigned char>(code[1])) << 16) |
           (static_cast<std::uint32_t>(static_cast<unsigned char>(code[2])) << 8) |
           static_cast<std::uint32_t>(static_cast<unsigned char>(code[3]));
}

inline constexpr AudioObjectID kSystemObject = 1;
inline constexpr AudioObjectID kUnknownObject = 0;

inline constexpr std::uint32_t kScopeGlobal = fourCharCode("glob");
inline constexpr std::uint32_t kScopeInput = fourCharCode("inpt");
inline constexpr std::uint32_t kScopeOutput = fourCharCode("outp");
inline constexpr std::uint32_t kElementMain = 0;

// System object.
inline constexpr std::uint32_t kDevices = fourCharCode("dev#");
inline constexpr std::uint32_t kDefaultOutputDevice = fourCharCode("dOut");
inline constexpr std::uint32_t kDefaultInputDevice = fourCharCode("dIn ");
inline constexpr std::uint32_t kProcessObjectList = fourCharCode("prs#");
// Devices.
inline constexpr std::uint32_t kName = fourCharCode("lnam");
inline constexpr std::uint32_t kDeviceUID = fourCharCode("uid ");
inline constexpr std::uint32_t kTransportType = fourCharCode("tran");
inline constexpr std::uint32_t kStreams = fourCharCode("stm#");
inline constexpr std::uint32_t kNominalSampleRate = fourCharCode("nsrt");
inline constexpr std::uint32_t kStreamConfiguration = fourCharCode("slay");
inline constexpr std::uint32_t kMute = fourCharCode("mute");
inline constexpr std::uint32_t kVolumeScalar = fourCharCode("volm");
// The one volume of a whole device, whatever its channels, as the menu bar's slider sets it
// (the hardware service's virtual main volume, read and written through the object
// properties). unconfirmed: check on a Mac first.
inline constexpr std::uint32_t kVirtualMainVolume = fourCharCode("vmvc");
// Process objects.
inline constexpr std::uint32_t kProcessPID = fourCharCode("ppid");
inline constexpr std::uint32_t kProcessBundleID = fourCharCode("pbid");
inline constexpr std::uint32_t kProcessIsRunningOutput = fourCharCode("piro");
// Taps.
inline constexpr std::uint32_t kTapFormat = fourCharCode("tfmt");

// Transport types.
inline constexpr std::uint32_t kTransportBuiltIn = fourCharCode("bltn");
inline constexpr std::uint32_t kTransportBluetooth = fourCharCode("blue");
inline constexpr std::uint32_t kTransportBluetoothLE = fourCharCode("blea");
inline constexpr std::uint32_t kTransportUSB = fourCharCode("usb ");

// Stream format flag: one buffer per channel instead of interleaved samples.
inline constexpr std::uint32_t kFormatFlagIsNonInterleaved = 0x20;

inline constexpr OSStatus kNoError = 0;
inline constexpr OSStatus kUnspecifiedError = static_cast<OSStatus>(fourCharCode("what"));
inline constexpr OSStatus kUnknownPropertyError = static_cast<OSStatus>(fourCharCode("who?"));
inline constexpr OSStatus kBadObjectError = static_cast<OSStatus>(fourCharCode("!obj"));
inline constexpr OSStatus kUnsupportedOperationError = static_cast<OSStatus>(fourCharCode("unop"));

// The address of a property in the global scope, main element.
constexpr AudioPropertyAddress globalAddress(std::uint32_t selector) {
    return {selector, kScopeGlobal, kElementMain};
}

}  // namespace quorvane::hal

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvane {

// The firmware variable that silences the chime at start-up, and how nvram is told to set it.
struct StartupMute {
    static constexpr const char* kNvram = "/usr/sbin/nvram";
    // ⚠ unconfirmed: "StartupMute" = %01 mutes and %00 sounds, on Macs from 2016 on; check on a
    // Mac first.
    static constexpr const char* kVariable = "StartupMute";
    static constexpr char kMuted[] = "\x01";

    // The value as nvram's command line writes it: printable characters as they are, every
    // other byte (and "%" itself) as %xx.
    static std::string nvramText(const std::string& bytes);
    // nvram's arguments that give the variable this value, or remove it for nothing.
    static std::vector<std::string> nvramArguments(const std::optional<std::string>& value);
};

}  // namespace quorvane

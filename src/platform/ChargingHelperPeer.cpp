#include "platform/ChargingHelperPeer.hpp"

#include <algorithm>

namespace quorvane {

std::optional<std::string> chargingHelperPeerRequirement(std::string_view team) {
    const auto plain = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    };
    if (team.empty() || !std::all_of(team.begin(), team.end(), plain)) {
        return std::nullopt;
    }
    return "identifier \"com.quorvane.app\" and anchor apple generic and certificate "
           "leaf[subject.OU] = \"" +
           std::string(team) + "\"";
}

}  // namespace quorvane

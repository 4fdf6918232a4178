#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

// Whom the charging helper, which runs as root, listens to: Quorvane itself, signed by the team
// that built it, in the code-signing requirement language (the team's identifier is the leaf
// certificate's organisational unit). Nothing when the build names no team, or a team that is
// not letters and digits: then no peer can be checked, and every connection is refused.
std::optional<std::string> chargingHelperPeerRequirement(std::string_view team);

}  // namespace quorvane

#pragma once

#include <string>
#include <vector>

namespace quorvane {

class ToolRegistry;

// Files the user opened with Quorvane from Finder: the archives the app declares as documents.
// The archives tool extracts each beside itself, and says why not on its page when it is off
// or one is refused. Nothing happens before the tools exist (a null registry).
void openDocuments(ToolRegistry* registry, const std::vector<std::string>& paths);

}  // namespace quorvane

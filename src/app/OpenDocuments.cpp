#include "app/OpenDocuments.hpp"

#include "app/ToolRegistry.hpp"
#include "tools/system/ArchivesTool.hpp"

namespace quorvane {

void openDocuments(ToolRegistry* registry, const std::vector<std::string>& paths) {
    auto* tool = registry ? dynamic_cast<ArchivesTool*>(registry->tool("archives")) : nullptr;
    if (!tool) {
        return;
    }
    for (const std::string& path : paths) {
        tool->open(path);
    }
}

}  // namespace quorvane

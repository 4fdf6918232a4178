#pragma once

#include "portable/PosixFileSystem.hpp"

namespace quorvane {

// Listing and sizes are plain POSIX on macOS too; the home folder, the Trash and property
// lists (binary ones as well) come from Foundation and Core Foundation.
class MacFileSystem final : public PosixFileSystem {
public:
    std::string homeDirectory() override;
    std::string trashItem(const std::string& path) override;
    std::optional<PreferenceValue> readPropertyList(const std::string& path,
                                                    std::string& error) override;
};

}  // namespace quorvane

#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "portable/PosixFileSystem.hpp"

namespace quorvane {

// The real file system under a test's own home folder. Items sent to the Trash are recorded
// and deleted, so a test sees both what went and what stayed.
struct FakeFileSystem : PosixFileSystem {
    std::string home = "/nonexistent/quorvane-test-home";
    std::vector<std::string> trashed;
    // Paths whose move to the Trash fails.
    std::set<std::string> refused;

    std::string homeDirectory() override { return home; }
    std::string trashItem(const std::string& path) override {
        if (refused.contains(path)) {
            return "Operation not permitted";
        }
        std::error_code error;
        std::filesystem::remove_all(path, error);
        if (error) {
            return error.message();
        }
        trashed.push_back(path);
        return {};
    }
};

}  // namespace quorvane

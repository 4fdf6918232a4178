#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "cli/CommandHost.hpp"
#include "portable/FilePreferences.hpp"

namespace quorvane {

// The command line's host over one preferences file of the test's, counting how often a running
// app would have been told that the preferences changed.
struct FileCommandHost : CommandHost {
    std::filesystem::path file;
    int preferencesChanges = 0;

    std::unique_ptr<Preferences> openDefaultPreferences(std::string& error) override {
        return FilePreferences::open(file, error);
    }
    std::string defaultPreferencesDescription() const override { return file.string(); }
    void preferencesChanged() override { ++preferencesChanges; }
};

}  // namespace quorvane

#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/AppInstance.hpp"
#include "platform/AppWindows.hpp"
#include "platform/LoginItem.hpp"

namespace quorvane {

// The application's own windows, process and login item, writing into one journal.
struct FakeAppShell : AppWindows, AppInstance, LoginItem {
    explicit FakeAppShell(std::vector<std::string>& journal) : calls(journal) {}

    void showSettings(SettingsWindowModel& model) override {
        calls.push_back("show settings");
        settings = &model;
    }
    void showFirstRun(FirstRunModel& model) override {
        calls.push_back("show first run");
        firstRun = &model;
    }
    void closeFirstRun() override { calls.push_back("close first run"); }

    void terminate() override { calls.push_back("terminate"); }
    Subscription launchNewInstance(std::function<void(const std::string&)> done) override {
        calls.push_back("launch new instance");
        pendingLaunch = std::move(done);
        return Subscription([this, launch = ++launches] {
            if (launch == launches) {
                pendingLaunch = nullptr;
            }
        });
    }
    std::optional<int> predecessor() const override { return replaced; }
    bool isRunning(int processID) const override { return running.contains(processID); }
    // The system reports back on the launch.
    void finishLaunch(const std::string& error = "") {
        if (auto done = std::exchange(pendingLaunch, nullptr)) {
            done(error);
        }
    }

    Status status() const override { return loginStatus; }
    std::string registerItem() override {
        calls.push_back("register login item");
        if (registerError.empty()) {
            loginStatus = statusAfterRegister;
        }
        return registerError;
    }
    std::string unregisterItem() override {
        calls.push_back("unregister login item");
        loginStatus = Status::notRegistered;
        return {};
    }
    void openLoginItemsSettings() override { calls.push_back("open login items"); }

    std::vector<std::string>& calls;
    SettingsWindowModel* settings = nullptr;
    FirstRunModel* firstRun = nullptr;
    std::function<void(const std::string&)> pendingLaunch;
    int launches = 0;
    std::optional<int> replaced;
    std::set<int> running;
    Status loginStatus = Status::notRegistered;
    Status statusAfterRegister = Status::enabled;
    std::string registerError;
};

}  // namespace quorvane

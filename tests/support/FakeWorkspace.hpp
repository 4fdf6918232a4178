#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/HandlerList.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

struct FakeWorkspace : Workspace {
    std::vector<std::string> openedURLs;
    std::map<int, RunningApplication> applications;
    int ownPID = 1;
    std::map<WorkspaceNotification, HandlerList<const RunningApplication*>> observers;
    std::map<std::string, HandlerList<>> distributed;
    HandlerList<> listObservers;

    bool openURL(const std::string& url) override {
        openedURLs.push_back(url);
        return true;
    }
    std::vector<RunningApplication> runningApplications() override {
        std::vector<RunningApplication> list;
        for (const auto& [pid, app] : applications) {
            list.push_back(app);
        }
        return list;
    }
    std::optional<RunningApplication> runningApplication(int pid) override {
        const auto found = applications.find(pid);
        return found == applications.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<int> frontmostPID;
    std::vector<int> activated;
    std::optional<RunningApplication> frontmostApplication() override {
        return frontmostPID ? runningApplication(*frontmostPID) : std::nullopt;
    }
    int currentProcessID() override { return ownPID; }
    // Asked to quit, hide or open: recorded, and the application stays as it is.
    std::vector<int> terminated;
    std::vector<int> hidden;
    std::vector<std::string> launched;
    bool terminateApplication(int pid) override {
        terminated.push_back(pid);
        return applications.contains(pid);
    }
    bool hideApplication(int pid) override {
        hidden.push_back(pid);
        return applications.contains(pid);
    }
    bool launchApplication(const std::string& bundleID) override {
        launched.push_back(bundleID);
        return true;
    }
    bool activate(int pid) override {
        activated.push_back(pid);
        return applications.contains(pid);
    }
    Subscription observe(WorkspaceNotification notification, Handler handler) override {
        return observers[notification].add(std::move(handler));
    }
    Subscription observeDistributed(const std::string& name,
                                    std::function<void()> handler) override {
        return distributed[name].add(std::move(handler));
    }
    Subscription observeRunningApplications(std::function<void()> handler) override {
        return listObservers.add(std::move(handler));
    }

    // An application that is simply running, for tests that need one in the list.
    RunningApplication& add(int pid, std::string bundleID, std::string name = {}) {
        RunningApplication& app = applications[pid];
        app.pid = pid;
        app.bundleID = std::move(bundleID);
        app.name = std::move(name);
        return app;
    }
    // Starts an application: it joins the list, and both the list observers and the launch
    // notification hear of it.
    void launch(int pid, RunningApplication::ActivationPolicy policy =
                             RunningApplication::ActivationPolicy::regular) {
        RunningApplication app;
        app.pid = pid;
        app.bundleID = "com.example.app" + std::to_string(pid);
        app.activationPolicy = policy;
        applications[pid] = app;
        post(WorkspaceNotification::didLaunchApplication, &app);
        listObservers.call();
    }
    void terminate(int pid) {
        auto app = applications.at(pid);
        applications.erase(pid);
        app.terminated = true;
        post(WorkspaceNotification::didTerminateApplication, &app);
        listObservers.call();
    }
    void post(WorkspaceNotification notification, const RunningApplication* app = nullptr) {
        observers[notification].call(app);
    }
};

}  // namespace quorvane

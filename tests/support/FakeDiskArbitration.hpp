#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/DiskArbitration.hpp"

namespace quorvane {

// Attached disks by BSD name. Unmount and mount requests wait until the test answers them,
// as Disk Arbitration answers on a later turn of the run loop.
struct FakeDiskArbitration : DiskArbitration {
    std::map<std::string, DiskDescription> disks;
    struct Request {
        bool mount;
        std::string bsdName;
        std::shared_ptr<Completion> done;
    };
    std::vector<Request> pending;
    // Every request, as "unmount disk4s1" or "mount disk4s1".
    std::vector<std::string> requests;
    // The status each disk's requests answer; 0 for most.
    std::map<std::string, int> dissent;

    void attach(const std::string& bsdName, const std::string& name, bool internal = false,
                bool network = false) {
        disks[bsdName] = {bsdName, name, "/Volumes/" + name, internal, network, true};
    }
    std::vector<DiskDescription> mountedVolumes() override {
        std::vector<DiskDescription> mounted;
        for (const auto& [name, disk] : disks) {
            if (!disk.volumePath.empty()) {
                mounted.push_back(disk);
            }
        }
        return mounted;
    }
    std::optional<DiskDescription> describe(const std::string& bsdName) override {
        const auto found = disks.find(bsdName);
        return found != disks.end() ? std::optional(found->second) : std::nullopt;
    }
    Subscription unmount(const std::string& bsdName, Completion done) override {
        return request(false, bsdName, std::move(done));
    }
    Subscription mount(const std::string& bsdName, Completion done) override {
        return request(true, bsdName, std::move(done));
    }
    // Carries out and answers every waiting request.
    void answer() {
        auto waiting = std::move(pending);
        pending.clear();
        for (auto& request : waiting) {
            const auto found = dissent.find(request.bsdName);
            const int status = found != dissent.end() ? found->second : 0;
            auto disk = disks.find(request.bsdName);
            if (status == 0 && disk != disks.end()) {
                disk->second.volumePath =
                    request.mount ? "/Volumes/" + disk->second.volumeName : "";
            }
            if (*request.done) {
                (*request.done)(disk == disks.end() ? 0xF8DA0002 : status);
            }
        }
    }

private:
    Subscription request(bool mount, const std::string& bsdName, Completion done) {
        auto shared = std::make_shared<Completion>(std::move(done));
        pending.push_back({mount, bsdName, shared});
        requests.push_back((mount ? "mount " : "unmount ") + bsdName);
        return Subscription([shared] { *shared = nullptr; });
    }
};

}  // namespace quorvane

#pragma once

#include <string>
#include <vector>

namespace quorvane {

// Which volumes to unmount before sleep and which to mount again after wake. Only volumes on
// external, local disks are touched, and only the ones this plan unmounted come back: a drive
// the user ejected, or one unplugged while the Mac slept, stays as it is.
class SafeDrivesPlan {
public:
    struct Volume {
        std::string bsdName;  // "disk4s1", how Disk Arbitration names it
        std::string name;     // shown to the user
        bool internal = false;
        bool network = false;
        bool mounted = false;
    };

    // Before sleep: the volumes to unmount, in order.
    std::vector<std::string> toUnmount(const std::vector<Volume>& volumes) const;
    // What unmounting answered for one volume; only the ones that went are remembered.
    void unmounted(const std::string& bsdName, bool succeeded);
    // After wake: the remembered volumes still present and unmounted. The memory is cleared,
    // so a second wake mounts nothing twice.
    std::vector<std::string> toMount(const std::vector<Volume>& volumes);
    const std::vector<std::string>& remembered() const { return ejected_; }

private:
    std::vector<std::string> ejected_;
};

}  // namespace quorvane

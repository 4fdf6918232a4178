#include "mac/MacPorts.hpp"

#include <cassert>
#include <memory>

#include "base/CallIfSet.hpp"
#include "base/CallWithoutUnwinding.hpp"
#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

std::optional<DiskDescription> describeDisk(DADiskRef disk) {
    if (!disk) {
        return std::nullopt;
    }
    const auto copied = CFRef<CFDictionaryRef>::adopt(DADiskCopyDescription(disk));
    if (!copied) {
        return std::nullopt;
    }
    NSDictionary* description = (__bridge NSDictionary*)copied.get();
    const auto flag = [&](CFStringRef key, bool fallback) {
        NSNumber* value = description[(__bridge NSString*)key];
        return [value isKindOfClass:[NSNumber class]] ? static_cast<bool>(value.boolValue)
                                                      : fallback;
    };
    DiskDescription result;
    const char* bsdName = DADiskGetBSDName(disk);
    result.bsdName = bsdName ? bsdName : "";
    id name = description[(__bridge NSString*)kDADiskDescriptionVolumeNameKey];
    result.volumeName = utf8StringIfText(name).value_or("");
    NSURL* path = description[(__bridge NSString*)kDADiskDescriptionVolumePathKey];
    result.volumePath = [path isKindOfClass:[NSURL class]] ? utf8String(path.path) : "";
    result.deviceInternal = flag(kDADiskDescriptionDeviceInternalKey, false);
    result.volumeNetwork = flag(kDADiskDescriptionVolumeNetworkKey, false);
    result.mountable = flag(kDADiskDescriptionVolumeMountableKey, true);
    return result;
}

// The completion of one request, reached through the context pointer; the subscription
// empties it when the caller no longer wants the answer.
using SharedCompletion = std::shared_ptr<DiskArbitration::Completion>;

void answered(DADiskRef, DADissenterRef dissenter, void* context) {
    assert([NSThread isMainThread]);
    // The context is the heap copy made for this one request; it is freed here, once.
    const std::unique_ptr<SharedCompletion> completion(static_cast<SharedCompletion*>(context));
    callWithoutUnwinding(
        [&] { callIfSet(**completion, dissenter ? DADissenterGetStatus(dissenter) : 0); });
}

// None without a session, or when the name is not a disk's.
CFRef<DADiskRef> diskNamed(DASessionRef session, const std::string& bsdName) {
    return CFRef<DADiskRef>::adopt(
        session ? DADiskCreateFromBSDName(kCFAllocatorDefault, session, bsdName.c_str()) : nullptr);
}

// Starts one request on the named disk; the call gets the disk and the context that carries
// the completion to the answer.
Subscription request(DASessionRef session, const std::string& bsdName,
                     DiskArbitration::Completion done, void (*call)(DADiskRef, void*)) {
    const auto disk = diskNamed(session, bsdName);
    if (!disk) {
        return {};
    }
    auto completion = std::make_shared<DiskArbitration::Completion>(std::move(done));
    call(disk.get(), new SharedCompletion(completion));
    return Subscription([completion] { *completion = nullptr; });
}

// Disk Arbitration through one session scheduled on the main run loop.
class MacDiskArbitration final : public DiskArbitration {
public:
    MacDiskArbitration()
        : session_(CFRef<DASessionRef>::adopt(DASessionCreate(kCFAllocatorDefault))) {
        if (session_) {
            DASessionScheduleWithRunLoop(session_.get(), CFRunLoopGetMain(), kCFRunLoopCommonModes);
        }
    }

    ~MacDiskArbitration() override {
        if (session_) {
            DASessionUnscheduleFromRunLoop(session_.get(), CFRunLoopGetMain(),
                                           kCFRunLoopCommonModes);
        }
    }
    MacDiskArbitration(const MacDiskArbitration&) = delete;
    MacDiskArbitration& operator=(const MacDiskArbitration&) = delete;

    std::vector<DiskDescription> mountedVolumes() override {
        std::vector<DiskDescription> volumes;
        if (!session_) {
            return volumes;
        }
        NSArray<NSURL*>* urls =
            [[NSFileManager defaultManager] mountedVolumeURLsIncludingResourceValuesForKeys:nil
                                                                                    options:0];
        for (NSURL* url in urls) {
            // Volumes Disk Arbitration does not manage (devfs, some network mounts) give no disk.
            const auto disk = CFRef<DADiskRef>::adopt(DADiskCreateFromVolumePath(
                kCFAllocatorDefault, session_.get(), (__bridge CFURLRef)url));
            if (auto description = describeDisk(disk.get())) {
                volumes.push_back(std::move(*description));
            }
        }
        return volumes;
    }

    std::optional<DiskDescription> describe(const std::string& bsdName) override {
        // unconfirmed: check on a Mac first (that a detached disk's BSD name gives no disk or
        // no description, rather than an empty one).
        return describeDisk(diskNamed(session_.get(), bsdName).get());
    }

    Subscription unmount(const std::string& bsdName, Completion done) override {
        return request(session_.get(), bsdName, std::move(done), [](DADiskRef disk, void* context) {
            DADiskUnmount(disk, kDADiskUnmountOptionDefault, &answered, context);
        });
    }

    Subscription mount(const std::string& bsdName, Completion done) override {
        return request(session_.get(), bsdName, std::move(done), [](DADiskRef disk, void* context) {
            // No path: the volume goes back where Disk Arbitration mounts it by default.
            DADiskMount(disk, nullptr, kDADiskMountOptionDefault, &answered, context);
        });
    }

private:
    CFRef<DASessionRef> session_;
};

}  // namespace

std::unique_ptr<DiskArbitration> makeMacDiskArbitration() {
    return std::make_unique<MacDiskArbitration>();
}

}  // namespace quorvane

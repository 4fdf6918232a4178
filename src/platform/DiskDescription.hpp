#pragma once

#include <string>

namespace quorvane {

// What Disk Arbitration's description of a disk (DADiskCopyDescription) says, for the keys
// Quorvane reads.
struct DiskDescription {
    std::string bsdName;          // DADiskGetBSDName: "disk4s1"
    std::string volumeName;       // kDADiskDescriptionVolumeNameKey
    std::string volumePath;       // kDADiskDescriptionVolumePathKey; empty while unmounted
    bool deviceInternal = false;  // kDADiskDescriptionDeviceInternalKey
    bool volumeNetwork = false;   // kDADiskDescriptionVolumeNetworkKey
    bool mountable = true;        // kDADiskDescriptionVolumeMountableKey
};

}  // namespace quorvane

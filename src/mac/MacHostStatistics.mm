#include "mac/MacPorts.hpp"

#include <cerrno>
#include <cstdint>

#include <ifaddrs.h>
#include <mach/mach.h>
#include <net/if.h>
#include <net/if_var.h>
#include <sys/socket.h>
#include <sys/sysctl.h>
#include <sys/types.h>

#include "portable/DiskSpace.hpp"

// unconfirmed: check on a Mac first. None of these calls is in the shared fact sheet; written
// from the xnu manual pages and the SDK's documented declarations:
// - host_statistics(host, HOST_CPU_LOAD_INFO, (host_info_t)&info, &count) with count
//   HOST_CPU_LOAD_INFO_COUNT fills host_cpu_load_info's natural_t cpu_ticks[CPU_STATE_MAX],
//   indexed CPU_STATE_USER 0, SYSTEM 1, IDLE 2, NICE 3; the ticks are 32 bits and wrap.
// - host_statistics64(host, HOST_VM_INFO64, (host_info64_t)&vm, &count) with
//   HOST_VM_INFO64_COUNT fills vm_statistics64 (wire_count, compressor_page_count,
//   internal_page_count, purgeable_count, in pages); host_page_size gives the page size.
// - mach_host_self() returns a send right the caller should deallocate.
// - getifaddrs: the AF_LINK entry of each interface carries a struct if_data in ifa_data whose
//   ifi_ibytes and ifi_obytes are u_int32_t and wrap.

namespace quorvane {

namespace {

// mach_host_self() adds a reference to the host port on every call; this gives it back.
class HostPort {
public:
    HostPort() : port_(mach_host_self()) {}
    ~HostPort() { mach_port_deallocate(mach_task_self(), port_); }
    HostPort(const HostPort&) = delete;
    HostPort& operator=(const HostPort&) = delete;
    host_t get() const { return port_; }

private:
    host_t port_;
};

// The Mach host's processor and memory statistics, hw.memsize, and getifaddrs' link-level
// interface counters, and statvfs of the startup volume.
class MacHostStatistics final : public HostStatistics {
public:
    int cpuTicks(CpuTicks& ticks) override {
        HostPort host;
        host_cpu_load_info_data_t info{};
        mach_msg_type_number_t count = HOST_CPU_LOAD_INFO_COUNT;
        const kern_return_t status = host_statistics(host.get(), HOST_CPU_LOAD_INFO,
                                                     reinterpret_cast<host_info_t>(&info), &count);
        if (status != KERN_SUCCESS) {
            return status;
        }
        ticks.user = info.cpu_ticks[CPU_STATE_USER];
        ticks.system = info.cpu_ticks[CPU_STATE_SYSTEM];
        ticks.idle = info.cpu_ticks[CPU_STATE_IDLE];
        ticks.nice = info.cpu_ticks[CPU_STATE_NICE];
        return 0;
    }

    int memory(Memory& memory) override {
        HostPort host;
        vm_statistics64_data_t vm{};
        mach_msg_type_number_t count = HOST_VM_INFO64_COUNT;
        kern_return_t status = host_statistics64(host.get(), HOST_VM_INFO64,
                                                 reinterpret_cast<host_info64_t>(&vm), &count);
        if (status != KERN_SUCCESS) {
            return status;
        }
        vm_size_t pageSize = 0;
        status = host_page_size(host.get(), &pageSize);
        if (status != KERN_SUCCESS) {
            return status;
        }
        std::uint64_t physical = 0;
        size_t size = sizeof physical;
        if (sysctlbyname("hw.memsize", &physical, &size, nullptr, 0) != 0) {
            return errno;
        }
        memory.pageSize = pageSize;
        memory.physicalBytes = physical;
        memory.wired = vm.wire_count;
        memory.compressed = vm.compressor_page_count;
        memory.internal = vm.internal_page_count;
        memory.purgeable = vm.purgeable_count;
        return 0;
    }

    int interfaces(std::vector<Interface>& interfaces) override {
        ifaddrs* list = nullptr;
        if (getifaddrs(&list) != 0) {
            return errno;
        }
        interfaces.clear();
        for (const ifaddrs* entry = list; entry; entry = entry->ifa_next) {
            if (!entry->ifa_addr || entry->ifa_addr->sa_family != AF_LINK || !entry->ifa_data) {
                continue;
            }
            const auto* data = static_cast<const if_data*>(entry->ifa_data);
            interfaces.push_back({entry->ifa_name, (entry->ifa_flags & IFF_LOOPBACK) != 0,
                                  data->ifi_ibytes, data->ifi_obytes});
        }
        freeifaddrs(list);
        return 0;
    }

    int disk(Disk& disk) override {
        // "/" is the sealed system volume, but every volume of the startup container shares its
        // free space, which is what the figure is for. unconfirmed: check on a Mac first that
        // f_blocks gives the container's size rather than the system volume's.
        return readDiskSpace("/", disk);
    }
};

}  // namespace

std::unique_ptr<HostStatistics> makeMacHostStatistics() {
    return std::make_unique<MacHostStatistics>();
}

}  // namespace quorvane

#pragma once
// Darwin's interface statistics, as getifaddrs(3) hands them out in ifa_data for an AF_LINK
// entry; from <net/if_var.h> as documented on macOS. The counters are 32 bits and wrap.
#include <stdint.h>
#include <sys/time.h>

struct if_data {
    unsigned char ifi_type;
    unsigned char ifi_typelen;
    unsigned char ifi_physical;
    unsigned char ifi_addrlen;
    unsigned char ifi_hdrlen;
    unsigned char ifi_recvquota;
    unsigned char ifi_xmitquota;
    unsigned char ifi_unused1;
    uint32_t ifi_mtu;
    uint32_t ifi_metric;
    uint32_t ifi_baudrate;
    uint32_t ifi_ipackets;
    uint32_t ifi_ierrors;
    uint32_t ifi_opackets;
    uint32_t ifi_oerrors;
    uint32_t ifi_collisions;
    uint32_t ifi_ibytes;
    uint32_t ifi_obytes;
    uint32_t ifi_imcasts;
    uint32_t ifi_omcasts;
    uint32_t ifi_iqdrops;
    uint32_t ifi_noproto;
    uint32_t ifi_recvtiming;
    uint32_t ifi_xmittiming;
    struct timeval ifi_lastchange;
    uint32_t ifi_unused2;
    uint32_t ifi_hwassist;
    uint32_t ifi_reserved1;
    uint32_t ifi_reserved2;
};

#pragma once
// Darwin's addition to <sys/socket.h>: the link-level address family that getifaddrs(3) uses
// for an interface's own entry, with its value from the socket headers on macOS.
#include_next <sys/socket.h>
#ifndef AF_LINK
#define AF_LINK 18
#endif

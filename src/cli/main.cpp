#include <iostream>
#include <string>
#include <vector>

#include "cli/CommandLine.hpp"

#if QUORVANE_MAC_HOST
#include "mac/MacCommandHost.hpp"
#else
#include "cli/PortableCommandHost.hpp"
#endif

int main(int argc, char** argv) {
#if QUORVANE_MAC_HOST
    auto host = quorvane::makeMacCommandHost();
#else
    auto host = std::make_unique<quorvane::PortableCommandHost>();
#endif
    quorvane::CommandLine commandLine(*host);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return commandLine.run(arguments, std::cout, std::cerr);
}

#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "app/Tool.hpp"

namespace quorvane {

class CommandHost;
struct Platform;

// The `quorvane` command: lists and searches the tools, switches them on and off, edits the
// control grid and prints settings pages, over the same registry and preferences as the app.
// Errors are one line on the error stream and exit status 2, with nothing written.
class CommandLine {
public:
    using ToolFactory = std::function<std::vector<std::unique_ptr<Tool>>(const Platform&)>;

    explicit CommandLine(CommandHost& host, ToolFactory makeTools = {});

    int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

    static std::string usage();

private:
    CommandHost& host_;
    ToolFactory makeTools_;
};

}  // namespace quorvane

#pragma once

#include <functional>
#include <string>

namespace quorvane {

// The name of a new file in a folder, as Finder names new folders: "untitled.txt", then
// "untitled 2.txt", "untitled 3.txt"… never one that is taken.
class NewFileName {
public:
    static std::string choose(const std::string& base, const std::string& extension,
                              const std::function<bool(const std::string& name)>& taken);
};

}  // namespace quorvane

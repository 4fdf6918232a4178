#pragma once

#include <string>

namespace quorvane {

// One keyboard input source the user can pick from the input menu: a layout ("U.S.",
// "Russian") or an input mode of an input method ("Hiragana").
struct InputSource {
    // kTISPropertyInputSourceID, such as "com.apple.keylayout.US"; stable across launches.
    std::string id;
    // kTISPropertyLocalizedName, for the settings page.
    std::string name;

    friend bool operator==(const InputSource&, const InputSource&) = default;
};

}  // namespace quorvane

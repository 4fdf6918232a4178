#pragma once

#include "base/HandlerList.hpp"
#include "platform/KeyboardLayout.hpp"

namespace quorvane {

// A layout the test writes key by key; empty means no layout at all. Input sources are a list
// the test fills; selecting one changes the current source and tells the observers, as the
// system does.
struct FakeKeyboardLayout : KeyboardLayout {
    std::map<std::uint16_t, std::u16string> keys;
    std::map<std::uint16_t, std::u16string> characters() override { return keys; }

    std::vector<InputSource> sources;
    std::optional<std::string> current;
    std::vector<std::string> selected;
    HandlerList<> changeObservers;

    std::vector<InputSource> inputSources() override { return sources; }
    std::optional<std::string> currentInputSourceID() override { return current; }
    bool selectInputSource(const std::string& id) override {
        selected.push_back(id);
        for (const auto& source : sources) {
            if (source.id == id) {
                switchTo(id);
                return true;
            }
        }
        return false;
    }
    Subscription observeInputSourceChanges(std::function<void()> handler) override {
        return changeObservers.add(std::move(handler));
    }
    // The user picks a source from the input menu.
    void switchTo(const std::string& id) {
        current = id;
        changeObservers.call();
    }
};

}  // namespace quorvane

#pragma once

#include "platform/KeyboardLayout.hpp"

namespace quorvane {

class Workspace;

// The current keyboard layout through Text Input Sources and UCKeyTranslate, and the keyboard
// input sources the user enabled. Changes of the selected source arrive as a distributed
// notification, observed through the workspace so they are delivered while Quorvane is not
// the active app.
class MacKeyboardLayout final : public KeyboardLayout {
public:
    explicit MacKeyboardLayout(Workspace& workspace) : workspace_(workspace) {}

    std::map<std::uint16_t, std::u16string> characters() override;
    std::vector<InputSource> inputSources() override;
    std::optional<std::string> currentInputSourceID() override;
    bool selectInputSource(const std::string& id) override;
    [[nodiscard]] Subscription observeInputSourceChanges(std::function<void()> handler) override;

private:
    Workspace& workspace_;
};

}  // namespace quorvane

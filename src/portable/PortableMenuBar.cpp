#include "portable/PortableMenuBar.hpp"

namespace quorvane {

namespace {

class AbsentStatusItem : public StatusItem {
public:
    bool hasButton() const override { return false; }
    void setImage(const std::string&, const std::string&) override {}
    void setAction(std::function<void()>) override {}
    void setTitle(const std::string&) override {}
    void setLength(double) override {}
    void setAutosaveName(const std::string&) override {}
    bool isOnScreen() const override { return false; }
    Subscription observeOnScreen(std::function<void()>) override { return {}; }
};

class AbsentPopover : public Popover {
public:
    bool isShown() const override { return false; }
    void show(StatusItem&) override {}
    void performClose() override {}
    Subscription observeDidClose(std::function<void()>) override { return {}; }
};

}  // namespace

std::unique_ptr<StatusItem> PortableMenuBar::makeStatusItem(double) {
    return std::make_unique<AbsentStatusItem>();
}

std::unique_ptr<Popover> PortableMenuBar::makePopover(const PanelContent&, PopoverBehavior) {
    return std::make_unique<AbsentPopover>();
}

}  // namespace quorvane

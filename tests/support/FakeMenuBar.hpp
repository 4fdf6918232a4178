#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/HandlerList.hpp"
#include "platform/MenuBar.hpp"
#include "ui/PanelContent.hpp"

namespace quorvane {

// A menu bar that writes what it is asked to do into a journal ("item", "remove item",
// "show popover", "close popover", "activate", "add monitor 0x200000a", "remove monitor"),
// with the clicks a user would make. Closing a popover sends its did-close notice at once.
class FakeMenuBar : public MenuBar {
public:
    struct Item : StatusItem {
        Item(FakeMenuBar& owner, bool withButton) : bar(owner), button(withButton) {}
        ~Item() override {
            bar.calls.push_back("remove item");
            std::erase(bar.items, this);
        }
        bool hasButton() const override { return button; }
        void setImage(const std::string& systemImage, const std::string&) override {
            image = systemImage;
        }
        void setAction(std::function<void()> newAction) override { action = std::move(newAction); }
        void setTitle(const std::string& newTitle) override { title = newTitle; }
        void setLength(double newLength) override { length = newLength; }
        void setAutosaveName(const std::string& name) override { autosaveName = name; }
        bool isOnScreen() const override { return onScreen; }
        Subscription observeOnScreen(std::function<void()> handler) override {
            return onScreenChanged.add(std::move(handler));
        }
        // The item scrolled off, was covered or came back.
        void setOnScreen(bool now) {
            onScreen = now;
            onScreenChanged.call();
        }

        FakeMenuBar& bar;
        bool button;
        std::string image;
        std::function<void()> action;
        std::string title;
        double length = kVariableLength;
        std::string autosaveName;
        bool onScreen = true;
        HandlerList<> onScreenChanged;
    };

    struct Panel : Popover {
        Panel(FakeMenuBar& owner, const PanelContent& what) : bar(owner), content(what) {}
        ~Panel() override { std::erase(bar.popovers, this); }
        bool isShown() const override { return shown; }
        void show(StatusItem&) override {
            bar.calls.push_back("show popover");
            shown = true;
        }
        void performClose() override {
            if (shown) {
                bar.calls.push_back("close popover");
                dismiss();
            }
        }
        Subscription observeDidClose(std::function<void()> handler) override {
            return didClose.add(std::move(handler));
        }
        // Closed by the system itself: Escape, or a click in another of the app's windows.
        void dismiss() {
            shown = false;
            didClose.call();
        }

        FakeMenuBar& bar;
        PanelContent content;
        bool shown = false;
        HandlerList<> didClose;
    };

    explicit FakeMenuBar(std::vector<std::string>& journal) : calls(journal) {}

    std::unique_ptr<StatusItem> makeStatusItem(double length) override {
        calls.push_back("item");
        auto item = std::make_unique<Item>(*this, itemsHaveButtons);
        item->length = length;
        items.push_back(item.get());
        return item;
    }
    std::unique_ptr<Popover> makePopover(const PanelContent& content, PopoverBehavior) override {
        auto popover = std::make_unique<Panel>(*this, content);
        popovers.push_back(popover.get());
        return popover;
    }
    void activateApplication() override { calls.push_back("activate"); }

    // A click on an item's button.
    void click(std::size_t item = 0) {
        if (item < items.size() && items[item]->action) {
            items[item]->action();
        }
    }

    std::vector<std::string>& calls;
    bool itemsHaveButtons = true;
    std::vector<Item*> items;
    std::vector<Panel*> popovers;
};

}  // namespace quorvane

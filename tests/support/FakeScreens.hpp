#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Screens.hpp"

namespace quorvane {

// A panel that keeps what it was told. A fade finishes when the test says so.
struct FakePanel : Panel {
    HUDCard content;
    Size size{240, 180};
    Rect frame;
    double alpha = 0;
    bool visible = false;
    int frontCount = 0;
    std::function<void()> pendingFade;

    void setContent(const HUDCard& card) override { content = card; }
    Size fittingSize() const override { return size; }
    void setFrame(const Rect& rect) override { frame = rect; }
    void fadeTo(double target, Seconds duration, std::function<void()> completion) override {
        alpha = target;
        if (duration == Seconds::zero()) {
            if (completion) {
                completion();
            }
            return;
        }
        pendingFade = std::move(completion);
    }
    void orderFrontRegardless() override {
        visible = true;
        ++frontCount;
    }
    void orderOut() override { visible = false; }
    bool isVisible() const override { return visible; }

    void finishFade() {
        if (auto completion = std::exchange(pendingFade, nullptr)) {
            completion();
        }
    }
};

// A list panel that keeps what it was told and lets a test act as the user.
struct FakeListPanel : ListPanel {
    Handlers handlers;
    ListPanelContent content;
    Rect frame;
    bool visible = false;

    explicit FakeListPanel(Handlers given) : handlers(std::move(given)) {}
    void setContent(const ListPanelContent& shown) override { content = shown; }
    void show(const Rect& rect) override {
        frame = rect;
        visible = true;
    }
    void close() override { visible = false; }
    bool isVisible() const override { return visible; }

    // The rows as the panel would draw them now.
    std::vector<ListPanelRow> rows() const {
        std::vector<ListPanelRow> drawn;
        for (std::size_t i = 0; i < content.rowCount; ++i) {
            drawn.push_back(handlers.row(i));
        }
        return drawn;
    }
};

// A shade that keeps what it was told, and leaves the list of live shades when destroyed.
struct FakeOverlay : Overlay {
    explicit FakeOverlay(std::vector<FakeOverlay*>& live) : list(live) { list.push_back(this); }
    ~FakeOverlay() override { std::erase(list, this); }
    void setFrame(const Rect& rect) override { frame = rect; }
    void setAlpha(double value) override { alpha = value; }
    void orderBelow(std::uint32_t windowNumber) override {
        orders.push_back(windowNumber);
        visible = true;
    }
    void orderOut() override { visible = false; }

    std::vector<FakeOverlay*>& list;
    Rect frame;
    double alpha = 0;
    bool visible = false;
    std::vector<std::uint32_t> orders;
};

struct FakeScreens : Screens {
    std::vector<Screen> displays{{{0, 0, 1440, 900}, {0, 0, 1440, 875}}};
    std::optional<std::size_t> mainIndex = 0;
    Point mouse{100, 100};
    int beeps = 0;
    // The panels made so far; they belong to whoever asked for them.
    std::vector<FakePanel*> panels;
    std::vector<FakeListPanel*> listPanels;

    std::vector<Screen> screens() override { return displays; }
    std::optional<Screen> mainScreen() override {
        return mainIndex ? std::optional(displays.at(*mainIndex)) : std::nullopt;
    }
    Point mouseLocation() override { return mouse; }
    void beep() override { ++beeps; }
    std::vector<FakeOverlay*> overlays;
    std::unique_ptr<Overlay> makeOverlay() override {
        return std::make_unique<FakeOverlay>(overlays);
    }
    bool dockSummonable = true;
    std::vector<Point> dockSummons;
    bool summonDock(Point bottomEdge) override {
        dockSummons.push_back(bottomEdge);
        return dockSummonable;
    }
    std::unique_ptr<Panel> makeFloatingPanel() override {
        auto panel = std::make_unique<FakePanel>();
        panels.push_back(panel.get());
        return panel;
    }
    std::unique_ptr<ListPanel> makeListPanel(ListPanel::Handlers handlers) override {
        auto panel = std::make_unique<FakeListPanel>(std::move(handlers));
        listPanels.push_back(panel.get());
        return panel;
    }
};

}  // namespace quorvane

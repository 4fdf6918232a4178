#pragma once

#include "input/HUD.hpp"
#include "input/HotKeyCenter.hpp"
#include "input/UserActionMark.hpp"

namespace quorvane {

class HotKeySystem;
class Scheduler;
class Screens;

// The input infrastructure there is one of per process, shared by every tool: the registry of
// global shortcuts, the on-screen notice, and the mark of Quorvane's own activations. Built
// from the ports before the tools and outliving them.
struct InputServices {
    InputServices(HotKeySystem& hotKeySystem, Screens& screens, Scheduler& scheduler)
        : hotKeys(hotKeySystem), hud(screens, scheduler) {}

    HotKeyCenter hotKeys;
    HUD hud;
    UserActionMark userActionMark;
};

}  // namespace quorvane

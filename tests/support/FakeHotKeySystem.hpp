#pragma once

#include <map>
#include <set>
#include <utility>

#include "platform/HotKeySystem.hpp"

namespace quorvane {

// Carbon's hot keys as a table. Combos in `takenElsewhere` are held by another application.
struct FakeHotKeySystem : HotKeySystem {
    struct Registration {
        std::uint32_t keyCode;
        std::uint32_t modifiers;
        std::uint32_t signature;
        std::uint32_t id;
    };

    PressedHandler handler;
    int installs = 0;
    int registerCalls = 0;
    std::set<std::pair<std::uint32_t, std::uint32_t>> takenElsewhere;
    std::map<Ref, Registration> live;
    Ref nextRef = 100;

    std::int32_t installHandler(PressedHandler pressed) override {
        ++installs;
        handler = std::move(pressed);
        return 0;
    }
    std::int32_t registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                std::uint32_t signature, std::uint32_t id, Ref& ref) override {
        ++registerCalls;
        if (takenElsewhere.contains({keyCode, modifiers})) {
            return -9878;  // eventHotKeyExistsErr
        }
        ref = nextRef++;
        live[ref] = {keyCode, modifiers, signature, id};
        return 0;
    }
    std::int32_t unregisterHotKey(Ref ref) override { return live.erase(ref) == 1 ? 0 : -50; }

    // The user presses a combo: the system tells the handler the id it was registered with.
    bool press(std::uint32_t keyCode, std::uint32_t modifiers) {
        for (const auto& [ref, registration] : live) {
            if (registration.keyCode == keyCode && registration.modifiers == modifiers) {
                handler(registration.id);
                return true;
            }
        }
        return false;
    }
};

}  // namespace quorvane

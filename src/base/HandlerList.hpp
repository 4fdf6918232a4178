#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "base/Subscription.hpp"

namespace quorvane {

// Callbacks called in the order they were added. A handler may add or remove handlers while it
// runs: ones removed before their turn are skipped, ones added wait for the next call. A
// subscription that outlives the list has nothing left to remove.
template <typename... Args>
class HandlerList {
public:
    using Handler = std::function<void(Args...)>;

    HandlerList() : state_(std::make_shared<State>()) {}

    [[nodiscard]] Subscription add(Handler handler) {
        const std::uint64_t id = state_->nextID++;
        state_->entries.push_back({id, std::make_shared<Handler>(std::move(handler))});
        return Subscription([weak = std::weak_ptr<State>(state_), id] {
            if (auto state = weak.lock()) {
                std::erase_if(state->entries, [id](const Entry& e) { return e.id == id; });
            }
        });
    }

    void call(Args... args) const {
        const auto snapshot = state_->entries;
        for (const auto& entry : snapshot) {
            const bool stillThere = std::any_of(state_->entries.begin(), state_->entries.end(),
                                                [&](const Entry& e) { return e.id == entry.id; });
            if (stillThere) {
                (*entry.handler)(args...);
            }
        }
    }

    std::size_t size() const { return state_->entries.size(); }

private:
    struct Entry {
        std::uint64_t id;
        std::shared_ptr<Handler> handler;
    };
    struct State {
        std::uint64_t nextID = 1;
        std::vector<Entry> entries;
    };
    std::shared_ptr<State> state_;
};

}  // namespace quorvane

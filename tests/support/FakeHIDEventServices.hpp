#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/HIDEventServices.hpp"

namespace quorvane {

// Attached devices as a table of their properties, and every lookup asked for.
struct FakeHIDEventServices : HIDEventServices {
    struct Lookup {
        std::int64_t vendorID;
        std::int64_t productID;
        std::string key;
        friend bool operator==(const Lookup&, const Lookup&) = default;
    };

    std::map<std::pair<std::int64_t, std::int64_t>, PreferenceValue::Dictionary> services;
    std::vector<Lookup> lookups;

    void setProperty(std::int64_t vendorID, std::int64_t productID, const std::string& key,
                     PreferenceValue value) {
        services[{vendorID, productID}].insert_or_assign(key, std::move(value));
    }
    // A keyboard that reports whether it is the Mac's own.
    void attachKeyboard(std::int64_t vendorID, std::int64_t productID, bool builtIn) {
        setProperty(vendorID, productID, "Built-In", builtIn);
    }

    std::optional<PreferenceValue> property(std::int64_t vendorID, std::int64_t productID,
                                            const std::string& key) override {
        lookups.push_back({vendorID, productID, key});
        const auto service = services.find({vendorID, productID});
        if (service == services.end()) {
            return std::nullopt;
        }
        const auto found = service->second.find(key);
        return found == service->second.end() ? std::nullopt : std::optional(found->second);
    }
};

}  // namespace quorvane

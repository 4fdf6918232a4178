#include "tools/keyboard/InputSourceMemory.hpp"

#include <algorithm>

namespace quorvane {

namespace {

bool isAvailable(const std::string& id, const std::vector<InputSource>& available) {
    return std::any_of(available.begin(), available.end(),
                       [&](const InputSource& source) { return source.id == id; });
}

}  // namespace

std::optional<std::string> InputSourceMemory::sourceFor(const std::string& bundleID,
                                                        const std::optional<std::string>& current,
                                                        const std::vector<InputSource>& available,
                                                        const std::string& newAppSource) const {
    const auto found = sources_.find(bundleID);
    const std::string& wanted = found != sources_.end() ? found->second : newAppSource;
    if (wanted.empty() || wanted == current || !isAvailable(wanted, available)) {
        return std::nullopt;
    }
    return wanted;
}

bool InputSourceMemory::remembersMissing(const std::string& bundleID,
                                         const std::vector<InputSource>& available) const {
    const auto found = sources_.find(bundleID);
    return found != sources_.end() && !isAvailable(found->second, available);
}

bool InputSourceMemory::remember(const std::string& bundleID, const std::string& sourceID) {
    if (bundleID.empty() || sourceID.empty()) {
        return false;
    }
    auto [entry, inserted] = sources_.try_emplace(bundleID, sourceID);
    if (!inserted && entry->second == sourceID) {
        return false;
    }
    entry->second = sourceID;
    return true;
}

bool InputSourceMemory::forget(const std::string& bundleID) {
    return sources_.erase(bundleID) > 0;
}

}  // namespace quorvane

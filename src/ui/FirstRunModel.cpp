#include "ui/FirstRunModel.hpp"

#include <algorithm>

#include "app/PermissionCardActions.hpp"
#include "app/PermissionCenter.hpp"
#include "app/ToolRegistry.hpp"
#include "platform/Preferences.hpp"
#include "ui/PermissionCardsView.hpp"

namespace quorvane {

FirstRunModel::FirstRunModel(ToolRegistry& registry, PermissionCardActions& cardActions,
                             Preferences& preferences)
    : registry_(registry), cardActions_(cardActions), preferences_(preferences) {
    sources_.push_back(registry.permissions().subscribe([this] { publish(); }));
    sources_.push_back(cardActions.subscribe([this] { publish(); }));
}

bool FirstRunModel::isNeeded(const Preferences& preferences) {
    return !preferences.boolean(kDoneKey).value_or(false);
}

std::vector<PermissionCard> FirstRunModel::cards() const {
    const auto needed = registry_.permissionsNeeded(
        [this](const Tool& tool) { return picked_.contains(tool.id()); });
    std::vector<PermissionCard> cards;
    for (const auto permission : needed) {
        cards.push_back(PermissionCard::make(permission, registry_.permissions()));
    }
    return cards;
}

std::string_view FirstRunModel::permissionsIntro() const {
    if (picked_.empty()) {
        return kPermissionsOnPicking;
    }
    return cards().empty() ? kNoPermissionsNeeded : kPermissionsIntro;
}

const std::string& FirstRunModel::cardNotice() const {
    return cardActions_.lastError();
}

void FirstRunModel::performCardAction(Permission permission, PermissionCard::Action action) {
    cardActions_.perform(permission, action);
}

std::vector<FirstRunModel::Suggestion> FirstRunModel::suggestions() const {
    std::vector<const Tool*> chosen;
    const auto offer = [&](const Tool* tool) {
        if (tool != nullptr && tool->isAvailable() && chosen.size() < kMaxSuggestions &&
            std::find(chosen.begin(), chosen.end(), tool) == chosen.end()) {
            chosen.push_back(tool);
        }
    };
    for (const char* id : kFavourites) {
        offer(registry_.tool(id));
    }
    for (const auto& tool : registry_.tools()) {
        offer(tool.get());
    }
    std::vector<Suggestion> suggestions;
    for (const Tool* tool : chosen) {
        suggestions.push_back({tool->id(), tool->name(), tool->summary(), tool->systemImage(),
                               picked_.contains(tool->id())});
    }
    return suggestions;
}

void FirstRunModel::setPicked(std::string_view toolID, bool picked) {
    const std::string id(toolID);
    if (picked ? picked_.insert(id).second : picked_.erase(id) > 0) {
        publish();
    }
}

ViewNode FirstRunModel::view(double width) {
    ViewNode picks = ViewNode::column(10);
    const auto offered = suggestions();
    if (offered.empty()) {
        picks.children.push_back(ViewNode::secondaryLabel(kNothingToPick, width));
    }
    for (const auto& suggestion : offered) {
        picks.children.push_back(ViewNode::column(
            2, {ViewNode::checkbox(suggestion.name, suggestion.isPicked,
                                   [this, id = suggestion.toolID](bool on) { setPicked(id, on); }),
                ViewNode::secondaryLabel(suggestion.summary, width - 20)}));
    }
    ViewNode start = ViewNode::button(kFinishTitle, [this] { finish(); });
    start.keyEquivalent = "\r";
    // The permissions follow the picks, since only the picked tools' are asked for.
    return ViewNode::column(14,
                            {ViewNode::heading(kTitle, 22), ViewNode::wrappingLabel(kIntro, width),
                             ViewNode::heading(kPickTitle, 15), std::move(picks),
                             ViewNode::heading(kPermissionsTitle, 15),
                             ViewNode::secondaryLabel(std::string(permissionsIntro()), width),
                             permissionCardsView(*this, width), std::move(start)});
}

void FirstRunModel::finish() {
    if (done_) {
        return;
    }
    markDone();
    // In registry order, like every start; only the first tool that wants setting up opens
    // its page, so the settings window is not flipped through several pages at once.
    bool setupOffered = false;
    for (const auto& tool : registry_.tools()) {
        if (!picked_.contains(tool->id()) || !tool->isAvailable()) {
            continue;
        }
        const bool offer =
            !setupOffered && (tool->needsSetup() || tool->opensSettingsWhenTurnedOn());
        registry_.setEnabled(true, *tool, offer);
        setupOffered = setupOffered || offer;
    }
}

void FirstRunModel::dismiss() {
    if (!done_) {
        markDone();
    }
}

void FirstRunModel::markDone() {
    done_ = true;
    preferences_.set(kDoneKey, true);
    if (onFinish) {
        onFinish();
    }
}

}  // namespace quorvane

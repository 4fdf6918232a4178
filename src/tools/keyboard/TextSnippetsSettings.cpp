#include "tools/keyboard/TextSnippetsTool.hpp"

namespace quorvane {

SettingsPage TextSnippetsTool::settingsPage() {
    SettingsRow::EditableList list;
    list.keyPlaceholder = kCodePlaceholder;
    list.removeSymbol = kRemoveSymbol;
    list.addTitle = kAddTitle;
    list.entries = [this] {
        std::vector<SettingsRow::EditableEntry> entries;
        entries.reserve(snippets_.size());
        for (std::size_t i = 0; i < snippets_.size(); ++i) {
            entries.push_back({snippets_[i].trigger, snippets_[i].text, warnings_[i]});
        }
        return entries;
    };
    list.setKey = [this](std::size_t index, const std::string& trigger) {
        setTrigger(index, trigger);
    };
    list.setValue = [this](std::size_t index, const std::string& text) { setText(index, text); };
    list.remove = [this](std::size_t index) { removeSnippet(index); };
    list.add = [this] { addSnippet(); };
    list.move = [this](std::size_t from, std::size_t to) { moveSnippet(from, to); };
    SettingsPage page;
    page.add({"",
              {{std::move(list), {}},
               {SettingsRow::Note{kNote}, {}},
               SettingsRow::errorWarning(lastError_)},
              ""});
    return page;
}

}  // namespace quorvane

#include "tools/keyboard/KeyboardTools.hpp"

#include "tools/keyboard/AppShortcutsTool.hpp"
#include "tools/keyboard/CleanKeyboardTool.hpp"
#include "tools/keyboard/ClipboardHistoryTool.hpp"
#include "tools/keyboard/HoldToQuitTool.hpp"
#include "tools/keyboard/HomeEndTool.hpp"
#include "tools/keyboard/InputSourcePerAppTool.hpp"
#include "tools/keyboard/KeyRemapTool.hpp"
#include "tools/keyboard/PastePlainTextTool.hpp"
#include "tools/keyboard/TextSnippetsTool.hpp"

namespace quorvane {

const ToolFactories& keyboardTools() {
    static const ToolFactories factories = {
        {"home-end", &buildTool<HomeEndTool>},
        {"key-remap", &buildTool<KeyRemapTool>},
        {"paste-plain-text", &buildTool<PastePlainTextTool>},
        {"clipboard-history", &buildTool<ClipboardHistoryTool>},
        {"text-snippets", &buildTool<TextSnippetsTool>},
        {"hold-to-quit", &buildTool<HoldToQuitTool>},
        {"clean-keyboard", &buildTool<CleanKeyboardTool>},
        {"input-source-per-app", &buildTool<InputSourcePerAppTool>},
        {"app-shortcuts", &buildTool<AppShortcutsTool>},
    };
    return factories;
}

}  // namespace quorvane

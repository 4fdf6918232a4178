#include "tools/keyboard/HidutilCommand.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "tools/keyboard/Preset.hpp"

namespace quorvane {
namespace {

// Vendor 1452 (the Mac's own keyboard) swaps Caps Lock and Control in System Settings; vendor
// 1133 (a plugged-in keyboard) turns Caps Lock off.
SystemModifierMappings systemPairs() {
    SystemModifierMappings pairs;
    pairs.builtIn = {{30064771129, 30064771296}, {30064771296, 30064771129}};
    pairs.external = {{30064771129, 0}};
    return pairs;
}

Mapping mapping(Key from, Key to, Keyboards keyboards = Keyboards::all) {
    return {Uuid(), from, to, keyboards};
}

// Both calls the tool makes, one a line under the case's name, so a change shows as a
// readable diff.
std::string render(const std::string& name, const std::vector<Mapping>& mappings,
                   const SystemModifierMappings& system) {
    std::string text = "# " + name + "\n";
    for (const bool builtIn : {true, false}) {
        const auto arguments =
            HidutilCommand::arguments(builtIn, HidutilCommand::table(mappings, system, builtIn));
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            text += (i == 0 ? "" : " ") + arguments[i];
        }
        text += "\n";
    }
    return text;
}

void expectGolden(const std::string& name, const std::string& text) {
    const std::string path =
        std::string(QUORVANE_TEST_SOURCE_DIR) + "/tools/keyboard/golden/" + name + ".txt";
    // tests/tools/keyboard/golden/regenerate.sh sets this to rewrite the files on purpose.
    if (std::getenv("QUORVANE_UPDATE_GOLDEN") != nullptr) {
        std::ofstream(path, std::ios::binary) << text;
    }
    std::ifstream in(path, std::ios::binary);
    ASSERT_TRUE(in) << "missing golden file " << path;
    std::ostringstream golden;
    golden << in.rdbuf();
    EXPECT_EQ(text, golden.str()) << name;
}

TEST(HidutilGolden, EachPresetAlone) {
    const char* names[] = {"caps-lock-escape", "caps-lock-control", "windows-swap",
                           "swap-section-grave"};
    ASSERT_EQ(Preset::all().size(), 4u);
    std::string text;
    for (std::size_t i = 0; i < 4; ++i) {
        text += render(names[i], Preset::all()[i].makeMappings(), {});
    }
    expectGolden("presets", text);
}

TEST(HidutilGolden, ListsThatNeedCare) {
    std::string text = render(
        "swap-pairs",
        {mapping(Key::home, Key::end), mapping(Key::end, Key::home),
         mapping(Key::leftCommand, Key::leftControl), mapping(Key::leftControl, Key::leftCommand)},
        {});
    // The system decides between two entries for one key; both are handed over as listed.
    text +=
        render("duplicate-source",
               {mapping(Key::capsLock, Key::escape), mapping(Key::capsLock, Key::leftControl)}, {});
    text += render("self-map", {mapping(Key::tab, Key::tab)}, {});
    text += render("per-keyboard",
                   {mapping(Key::capsLock, Key::escape, Keyboards::all),
                    mapping(Key::rightOption, Key::rightControl, Keyboards::external),
                    mapping(Key::f13, Key::printScreen, Keyboards::builtIn)},
                   systemPairs());
    text += render("empty-with-system-pairs", {}, systemPairs());
    expectGolden("lists", text);
}

// The usage values themselves are in the golden files; here the empty table and the quoting.
TEST(HidutilCommand, AnEmptyTableIsStillSetAndTheShownCommandIsQuotedForTheShell) {
    EXPECT_EQ(
        HidutilCommand::arguments(false, {}),
        (std::vector<std::string>{"property", "--matching",
                                  R"({"Built-In":false,"PrimaryUsagePage":1,"PrimaryUsage":6})",
                                  "--set", R"({"UserKeyMapping":[]})"}));
    EXPECT_EQ(HidutilCommand::commandLine({"property", "--set", "{\"a\":[]}", "it's"}),
              "/usr/bin/hidutil property --set '{\"a\":[]}' 'it'\\''s'");
}

TEST(SystemModifierMappings, SortsEachKeyboardsPairsByWhetherItIsBuiltIn) {
    using Dictionary = PreferenceValue::Dictionary;
    const auto pair = [](PreferenceValue source, PreferenceValue destination) {
        return PreferenceValue(Dictionary{{"HIDKeyboardModifierMappingSrc", std::move(source)},
                                          {"HIDKeyboardModifierMappingDst", destination}});
    };
    std::map<std::string, PreferenceValue> domain = {
        {"com.apple.keyboard.modifiermapping.1452-641-0",
         PreferenceValue::Array{pair(30064771129, 30064771296),
                                pair("not a number", 1),  // skipped alone
                                pair(30064771296.0, 30064771129)}},
        {"com.apple.keyboard.modifiermapping.1133-49948-0",
         PreferenceValue::Array{pair(30064771129, 30064771113)}},
        // Not attached: no table to set for it.
        {"com.apple.keyboard.modifiermapping.9999-1-0", PreferenceValue::Array{pair(1, 2)}},
        {"com.apple.keyboard.modifiermapping.garbage", PreferenceValue::Array{pair(3, 4)}},
        {"com.apple.keyboard.modifiermapping.1452-", PreferenceValue::Array{pair(5, 6)}},
        {"com.apple.keyboard.fnState", PreferenceValue::Array{pair(7, 8)}},
    };
    std::vector<std::string> keys;
    for (const auto& [key, value] : domain) {
        keys.push_back(key);
    }
    keys.push_back("com.apple.keyboard.modifiermapping.1452-999-0");  // listed but gone
    std::vector<std::pair<std::int64_t, std::int64_t>> looked;
    const auto result = SystemModifierMappings::collect(
        keys,
        [&](const std::string& key) -> std::optional<PreferenceValue> {
            const auto found = domain.find(key);
            return found == domain.end() ? std::nullopt : std::optional(found->second);
        },
        [&](std::int64_t vendor, std::int64_t product) -> std::optional<bool> {
            looked.emplace_back(vendor, product);
            if (vendor == 1452) {
                return true;
            }
            return vendor == 1133 ? std::optional(false) : std::nullopt;
        });
    EXPECT_EQ(result.builtIn, (std::vector<KeyMappingPair>{{30064771129, 30064771296},
                                                           {30064771296, 30064771129}}));
    EXPECT_EQ(result.external, (std::vector<KeyMappingPair>{{30064771129, 30064771113}}));
    EXPECT_EQ(looked, (std::vector<std::pair<std::int64_t, std::int64_t>>{
                          {1133, 49948}, {1452, 641}, {9999, 1}}));
}

}  // namespace
}  // namespace quorvane

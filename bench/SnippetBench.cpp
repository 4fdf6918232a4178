// What one key press costs the snippet tap: the buffer, the key checks and the trie walk.

#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

#include "tools/keyboard/SnippetEngine.hpp"

namespace quorvane {
namespace {

// Codes like the ones people make (";addr", ";sig2", "xmail"), several sharing each ending, so
// the walk back from the last key often goes a few characters deep before it stops.
std::vector<Snippet> makeSnippets(std::size_t count) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> letter('a', 'z');
    std::uniform_int_distribution<int> length(2, 7);
    std::vector<Snippet> snippets;
    for (std::size_t i = 0; i < count; ++i) {
        std::string trigger = i % 4 == 0 ? "x" : ";";
        for (int n = length(random); n > 0; --n) {
            trigger += static_cast<char>(letter(random));
        }
        snippets.push_back({Uuid::random(), trigger, "Some text to paste"});
    }
    return snippets;
}

void BM_SnippetKeyPress(benchmark::State& state) {
    SnippetEngine engine;
    engine.setSnippets(makeSnippets(static_cast<std::size_t>(state.range(0))));
    // Prose with the codes' first characters in it now and then, so most presses walk the trie
    // a step or more and hardly any completes a code.
    const std::string text = "the quick brown fox; jumps over the lazy dog and ;then some x";
    std::vector<std::string> keys;
    for (const char c : text) {
        keys.emplace_back(1, c);
    }
    SnippetKey key;
    std::size_t next = 0;
    std::size_t fired = 0;
    for (auto _ : state) {
        key.characters = keys[next];
        next = next + 1 == keys.size() ? 0 : next + 1;
        fired += engine.handle(key).has_value() ? 1 : 0;
    }
    benchmark::DoNotOptimize(fired);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SnippetKeyPress)->Arg(1000)->Arg(10000)->ArgName("snippets");

}  // namespace
}  // namespace quorvane

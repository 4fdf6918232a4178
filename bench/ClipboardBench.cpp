#include <benchmark/benchmark.h>

#include <cstring>
#include <random>

#include "support/TemporaryDirectory.hpp"
#include "tools/keyboard/ClipSearchKey.hpp"
#include "tools/keyboard/ClipboardHistory.hpp"
#include "tools/keyboard/ClipboardHistoryFile.hpp"
#include "tools/keyboard/ClipboardListModel.hpp"
#include "tools/keyboard/ClipboardStore.hpp"

namespace quorvane {
namespace {

constexpr std::size_t kItems = 10'000;

// A history as a heavy user's might look: seven in ten copies are text, most of them a line or
// a paragraph and one in ten a long document of up to 100 KB; the rest images and files. A few
// words are not ASCII, so texts with accents and Cyrillic letters are searched too.
ClipboardHistory::Items makeItems() {
    std::mt19937 random(7);
    static const char* const words[] = {"alpha",  "report",  "meeting",   "the",   "invoice",
                                        "draft",  "summary", "budget",    "lorem", "ipsum",
                                        "review", "plan",    "Überblick", "café",  "отчёт"};
    const auto sentence = [&](std::size_t bytes) {
        std::string text;
        text.reserve(bytes + 16);
        while (text.size() < bytes) {
            // One word in a hundred is one of the last three.
            text += words[random() % 100 == 0 ? 12 + random() % 3 : random() % 12];
            text += random() % 9 == 0 ? '\n' : ' ';
        }
        return text;
    };
    ClipboardHistory::Items items;
    for (std::size_t i = 0; i < kItems; ++i) {
        ClipItem item;
        item.id = Uuid::random();
        item.date = 800'000'000.0 + static_cast<double>(i);
        item.app = "com.example.app" + std::to_string(i % 20);
        const unsigned kind = random() % 10;
        if (kind < 7) {
            const bool large = random() % 10 == 0;
            item.text = sentence(large ? 1000 + random() % 99'000 : 20 + random() % 480) +
                        std::to_string(i);
        } else if (kind < 9) {
            item.kind = ClipItem::Kind::image;
            item.imageType = "public.png";
            item.imageHash = std::string(60, 'a') + std::to_string(1000 + i);
        } else {
            item.kind = ClipItem::Kind::files;
            item.filePaths =
                std::vector<std::string>{"/Users/me/Documents/file" + std::to_string(i) + ".pdf"};
        }
        items.push_front(std::move(item));
    }
    return items;
}

const ClipboardHistory::Items& items() {
    static const ClipboardHistory::Items shared = makeItems();
    return shared;
}

// A new copy looked up against all 10,000 and put in front, the oldest dropped.
void BM_ClipboardInsertNewCopy(benchmark::State& state) {
    ClipboardHistory history(kItems);
    history.replace(items());
    std::size_t n = 0;
    for (auto _ : state) {
        ClipItem copy;
        copy.id = Uuid::random();
        copy.text = "a fresh copy number " + std::to_string(n++);
        benchmark::DoNotOptimize(history.insert(std::move(copy)));
    }
}
BENCHMARK(BM_ClipboardInsertNewCopy)->Unit(benchmark::kMicrosecond);

// The same text copied again: found in the middle and moved to the front.
void BM_ClipboardInsertRepeatedCopy(benchmark::State& state) {
    ClipboardHistory history(kItems);
    history.replace(items());
    for (auto _ : state) {
        ClipItem copy = history.items()[kItems / 2];
        copy.id = Uuid::random();
        benchmark::DoNotOptimize(history.insert(std::move(copy)));
    }
}
BENCHMARK(BM_ClipboardInsertRepeatedCopy)->Unit(benchmark::kMicrosecond);

// Typing into the list's search field: a word found early in most texts; a word with an
// accent found in none; and the worst case, words that follow each other in no text although
// every pair of their letters is in the long ones, so each long text is read to its end.
void BM_ClipboardSearch(benchmark::State& state) {
    static const char* const queries[] = {"Budget", "bügdet", "plan summary the review alpha"};
    items().prepareSearch();
    ClipboardListModel model;
    model.setItems(items());
    std::size_t shown = 0;
    for (auto _ : state) {
        model.setQuery(queries[state.range(0)]);
        shown += model.shown().size();
    }
    benchmark::DoNotOptimize(shown);
}
BENCHMARK(BM_ClipboardSearch)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

// The floor for any search that must read every text: the C library's memchr looking for a
// byte that no text holds.
void BM_ClipboardReadEveryText(benchmark::State& state) {
    std::size_t found = 0;
    for (auto _ : state) {
        for (const ClipItem& item : items()) {
            if (item.text) {
                found += std::memchr(item.text->data(), 1, item.text->size()) != nullptr;
            }
        }
    }
    benchmark::DoNotOptimize(found);
}
BENCHMARK(BM_ClipboardReadEveryText)->Unit(benchmark::kMillisecond);

// What the search keys cost once, when the history is loaded: time, and their memory against
// the texts'.
void BM_ClipboardSearchKeys(benchmark::State& state) {
    std::size_t keyBytes = 0;
    std::size_t textBytes = 0;
    for (auto _ : state) {
        keyBytes = 0;
        textBytes = 0;
        for (const ClipItem& item : items()) {
            if (item.text) {
                const ClipSearchKey key(*item.text);
                keyBytes += key.bytes();
                textBytes += item.text->size();
            }
        }
    }
    state.counters["keyKB"] = static_cast<double>(keyBytes) / 1024;
    state.counters["textKB"] = static_cast<double>(textBytes) / 1024;
}
BENCHMARK(BM_ClipboardSearchKeys)->Unit(benchmark::kMillisecond);

// The part of a save that is this program's own work: the JSON of the whole history, handed
// on in pieces and dropped.
void BM_ClipboardEncode(benchmark::State& state) {
    for (auto _ : state) {
        std::size_t bytes = 0;
        ClipboardHistoryFile::write(items(), [&bytes](std::string_view piece) {
            bytes += piece.size();
            return true;
        });
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(BM_ClipboardEncode)->Unit(benchmark::kMillisecond);

void BM_ClipboardSave(benchmark::State& state) {
    TemporaryDirectory temp;
    const ClipboardStore store(temp.path());
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.save(items()));
    }
}
BENCHMARK(BM_ClipboardSave)->Unit(benchmark::kMillisecond);

void BM_ClipboardLoad(benchmark::State& state) {
    TemporaryDirectory temp;
    const ClipboardStore store(temp.path());
    store.save(items());
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.read());
    }
}
BENCHMARK(BM_ClipboardLoad)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvane

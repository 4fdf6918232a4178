#include <benchmark/benchmark.h>

#include "app/PermissionCenter.hpp"
#include "app/ToolCatalog.hpp"
#include "app/ToolRegistry.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

// Launch as the app does it: permission centre, the 68 tools, the registry, first reconcile.
void BM_LaunchCatalogAndFirstReconcile(benchmark::State& state) {
    for (auto _ : state) {
        FakePlatform fakes;
        fakes.permissionProbe.accessibility = true;
        const Platform platform = fakes.platform();
        PermissionCenter permissions(fakes.permissionProbe, fakes.scheduler, fakes.workspace);
        ToolRegistry registry(ToolCatalog::makeTools(platform), permissions, fakes.preferences,
                              fakes.notifications);
        registry.reconcile();
        benchmark::DoNotOptimize(registry.tidiedIDs().size());
    }
}
BENCHMARK(BM_LaunchCatalogAndFirstReconcile)->Unit(benchmark::kMicrosecond);

// One keystroke in the settings window's search field: every tool checked against the query.
void BM_SearchAllTools(benchmark::State& state) {
    FakePlatform fakes;
    const Platform platform = fakes.platform();
    PermissionCenter permissions(fakes.permissionProbe, fakes.scheduler, fakes.workspace);
    ToolRegistry registry(ToolCatalog::makeTools(platform), permissions, fakes.preferences,
                          fakes.notifications);
    const auto words = ToolRegistry::searchWords("Snapping windows");
    for (auto _ : state) {
        std::size_t hits = 0;
        for (const auto& tool : registry.tools()) {
            hits += ToolRegistry::matches(*tool, words) ? 1 : 0;
        }
        benchmark::DoNotOptimize(hits);
    }
}
BENCHMARK(BM_SearchAllTools)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvane

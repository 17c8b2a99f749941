// The ways through a tutorial, and its map.

#include "SampleScenario.h"

#include "check/StepGraph.h"
#include "check/TutorialMap.h"
#include "check/Walk.h"
#include "check/WalkReport.h"
#include "check/WalkRules.h"
#include "TutorialEditor/Manager.h"

#include <benchmark/benchmark.h>

namespace
{
void walk(benchmark::State &state)
{
    TutorialEditor::Manager manager;
    SampleScenario::addBranching(manager, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const StepGraph graph(manager.mData);
        const Walk walk(graph);
        benchmark::DoNotOptimize(WalkRules::check(graph, walk, {}));
        benchmark::DoNotOptimize(WalkReport::text(graph, walk));
    }
    state.SetComplexityN(state.range(0));
}

void walkFloorReadTree(benchmark::State &state)
{
    TutorialEditor::Manager manager;
    SampleScenario::addBranching(manager, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        int jumps = 0;
        manager.mData.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
            const TutorialItemData *record = item.mId < 0 ? nullptr : manager.mData.getData(item.mId);
            jumps += record && record->mJumpNo != -1 ? 1 : 0;
        });
        benchmark::DoNotOptimize(jumps);
    }
    state.SetComplexityN(state.range(0));
}

void map(benchmark::State &state)
{
    TutorialEditor::Manager manager;
    SampleScenario::addBranching(manager, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const StepGraph graph(manager.mData);
        const Walk walk(graph);
        benchmark::DoNotOptimize(TutorialMap::dot(manager.mData, graph, walk, {}, QStringLiteral("Sample")));
    }
    state.SetComplexityN(state.range(0));
}
} // namespace

#define TRELVANE_BENCHMARK(function) \
    BENCHMARK(function)->Arg(100)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)
TRELVANE_BENCHMARK(walk);
TRELVANE_BENCHMARK(walkFloorReadTree);
TRELVANE_BENCHMARK(map);

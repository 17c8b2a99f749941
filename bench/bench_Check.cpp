// The check of a tutorial, which follows each edit in the authoring mode.

#include "SampleScenario.h"

#include "check/HintRules.h"
#include "check/TutorialCheck.h"
#include "check/TutorialFiles.h"

#include <benchmark/benchmark.h>

namespace
{
/// The sample tutorial with its hints in both languages.
class CheckedSample
{
public:
    explicit CheckedSample(int itemCount)
    {
        mFiles.readBytes(QStringLiteral("Sample.js"), SampleScenario::fileText(itemCount).toUtf8());
        mSubject = mFiles.subject();
        mSubject.languages = { { QStringLiteral("ja_JP"), QString(), &TutorialItemData::mHint },
                               { QStringLiteral("en_US"), QString(), &TutorialItemData::mHint2 } };
        mSubject.hintSizes = &mSizes;
        for (TutorialItemData *record : mSubject.document->mDataList) {
            record->mHint = SampleScenario::hint(record->mId, QStringLiteral("ja_JP"));
            record->mHint2 = SampleScenario::hint(record->mId, QStringLiteral("en_US"));
        }
    }

    const CheckSubject &subject() const { return mSubject; }
    void measure() { mSizes.measure(HintRules::hints(mSubject)); }

private:
    TutorialFiles mFiles;
    HintSizes mSizes;
    CheckSubject mSubject;
};

void check(benchmark::State &state)
{
    CheckedSample sample(static_cast<int>(state.range(0)));
    sample.measure();
    for (auto _ : state)
        benchmark::DoNotOptimize(TutorialCheck::check(sample.subject()));
    state.SetComplexityN(state.range(0));
}

void checkFloorReadTree(benchmark::State &state)
{
    const CheckedSample sample(static_cast<int>(state.range(0)));
    const TreeDataTemplate<TutorialItemData> &document = *sample.subject().document;
    for (auto _ : state) {
        int sum = 0;
        document.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
            const TutorialItemData *record = document.getData(item.mId);
            sum += record ? record->mHint.size() + record->mHint2.size() : 0;
        });
        benchmark::DoNotOptimize(sum);
    }
    state.SetComplexityN(state.range(0));
}

void readForCheck(benchmark::State &state)
{
    const QByteArray bytes = SampleScenario::fileText(static_cast<int>(state.range(0))).toUtf8();
    for (auto _ : state) {
        TutorialFiles files;
        files.readBytes(QStringLiteral("Sample.js"), bytes);
        benchmark::DoNotOptimize(files.subject().document->mDataList.size());
    }
    state.SetComplexityN(state.range(0));
}

void measureHints(benchmark::State &state)
{
    const CheckedSample sample(static_cast<int>(state.range(0)));
    const QStringList hints = HintRules::hints(sample.subject());
    for (auto _ : state) {
        HintSizes sizes;
        sizes.measure(hints);
    }
    state.SetComplexityN(state.range(0));
}
} // namespace

#define TRELVANE_BENCHMARK(function) BENCHMARK(function)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)
TRELVANE_BENCHMARK(check);
TRELVANE_BENCHMARK(checkFloorReadTree);
TRELVANE_BENCHMARK(readForCheck);
TRELVANE_BENCHMARK(measureHints);

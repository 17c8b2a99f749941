// A tutorial's way from its file to the host editor and back to its file.

#include "SampleScenario.h"

#include "tool/DataSupport.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/translation/DocumentTranslator.h"
#include "Tutorial/translation/TranslatableText.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioText.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace
{
const QString kName = QStringLiteral("Sample");

/// The sample tutorial as a file, with its hints installed.
class Sample
{
public:
    explicit Sample(int itemCount) : mText(SampleScenario::fileText(itemCount)), mManager(nullptr, nullptr)
    {
        DataSupport::writeFile(path(), mText.toUtf8());
        TranslationSource::Messages messages;
        for (int id = 1; id <= itemCount; ++id)
            messages.insert(QStringLiteral("#%1").arg(id), SampleScenario::hint(id, QStringLiteral("ja_JP")));
        mTranslator.setMessages({ { kName, messages } });
        QCoreApplication::installTranslator(&mTranslator);
    }

    QString path() const { return mFolder.filePath(kName + QStringLiteral(".js")); }
    const QString &text() const { return mText; }
    TutorialManager &manager() { return mManager; }
    TutorialEditor::Manager &document() { return *TutorialEditor::Manager::instance(); }

    /// The text that goes to the host editor: no call stands in it, so that it is plain JSON.
    QByteArray plainJson()
    {
        mManager.loadTutorial(path());
        return ScenarioText::removeAssignment(document().getScenario(false)).toUtf8();
    }

private:
    QTemporaryDir mFolder;
    QString mText;
    TutorialManager mManager;
    DocumentTranslator mTranslator;
};

void load(benchmark::State &state)
{
    Sample sample(static_cast<int>(state.range(0)));
    for (auto _ : state)
        sample.manager().loadTutorial(sample.path());
    state.SetComplexityN(state.range(0));
}

void loadFloorParseJson(benchmark::State &state)
{
    Sample sample(static_cast<int>(state.range(0)));
    const QByteArray json = sample.plainJson();
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(json));
    state.SetComplexityN(state.range(0));
}

void translate(benchmark::State &state)
{
    Sample sample(static_cast<int>(state.range(0)));
    sample.manager().loadTutorial(sample.path());
    QStringList errors;
    for (auto _ : state)
        benchmark::DoNotOptimize(sample.manager().applyTranslationToText(sample.text(), errors));
    state.SetComplexityN(state.range(0));
}

void write(benchmark::State &state)
{
    Sample sample(static_cast<int>(state.range(0)));
    sample.manager().loadTutorial(sample.path());
    for (auto _ : state)
        benchmark::DoNotOptimize(sample.document().getScenario(true).toUtf8());
    state.SetComplexityN(state.range(0));
}

// What those who type wait for.
void keepCopy(benchmark::State &state)
{
    Sample sample(static_cast<int>(state.range(0)));
    sample.manager().loadTutorial(sample.path());
    for (auto _ : state)
        benchmark::DoNotOptimize(sample.manager().unsavedWork({}));
    state.SetComplexityN(state.range(0));
}

void keepCopyAndWrite(benchmark::State &state)
{
    Sample sample(static_cast<int>(state.range(0)));
    sample.manager().loadTutorial(sample.path());
    for (auto _ : state)
        benchmark::DoNotOptimize(sample.manager().unsavedWork({})().toBytes());
    state.SetComplexityN(state.range(0));
}

void send(benchmark::State &state)
{
    Sample sample(static_cast<int>(state.range(0)));
    sample.manager().loadTutorial(sample.path());
    QStringList errors;
    for (auto _ : state) {
        const QString array = sample.manager().applyTranslationToText(
            ScenarioText::removeAssignment(sample.document().getScenario(false)), errors);
        benchmark::DoNotOptimize(HostRecord::encode(
            HostRecord::kToHost,
            HostMessages::message(HostMessages::ToHost::kStart, array, HostMessages::kFromBeginning)));
    }
    state.SetComplexityN(state.range(0));
}

void floorCopyBytes(benchmark::State &state)
{
    Sample sample(static_cast<int>(state.range(0)));
    const QByteArray json = sample.plainJson();
    for (auto _ : state)
        benchmark::DoNotOptimize(QByteArray(json.constData(), json.size()));
    state.SetComplexityN(state.range(0));
}

void writeTranslations(benchmark::State &state)
{
    const int itemCount = static_cast<int>(state.range(0));
    QVector<TranslationSource::Entry> entries;
    for (int id = 1; id <= itemCount; ++id)
        entries.append({ QStringLiteral("#%1").arg(id), SampleScenario::hint(id, QStringLiteral("en_US")) });
    QDomDocument document = TranslationSource::emptyDocument(QStringLiteral("en_US"));
    bool changed = false;
    for (auto _ : state) {
        for (TranslationSource::Entry &entry : entries)
            entry.translation += changed ? QLatin1Char('a') : QLatin1Char('b');
        changed = !changed;
        TranslationSource::writeMessages(document, kName, entries);
        benchmark::DoNotOptimize(document.toByteArray(4));
    }
    state.SetComplexityN(state.range(0));
}
} // namespace

#define TRELVANE_BENCHMARK(function) \
    BENCHMARK(function)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)
TRELVANE_BENCHMARK(load);
TRELVANE_BENCHMARK(loadFloorParseJson);
TRELVANE_BENCHMARK(translate);
TRELVANE_BENCHMARK(write);
TRELVANE_BENCHMARK(keepCopy);
TRELVANE_BENCHMARK(keepCopyAndWrite);
TRELVANE_BENCHMARK(send);
TRELVANE_BENCHMARK(floorCopyBytes);
TRELVANE_BENCHMARK(writeTranslations);

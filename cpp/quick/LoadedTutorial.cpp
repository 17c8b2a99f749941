#include "quick/LoadedTutorial.h"

#include "check/HintRules.h"
#include "check/ScenarioFile.h"
#include "check/StepGraph.h"
#include "check/TutorialCheck.h"
#include "check/TutorialFiles.h"
#include "check/Walk.h"
#include "tool/DataSupport.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"

#include <algorithm>

LoadedTutorial::LoadedTutorial(QObject *parent) : QObject(parent)
{
    if (!managerInstance)
        return;
    connect(managerInstance, &TutorialManager::documentReplaced, this, &LoadedTutorial::onReplaced);
    connect(managerInstance, &TutorialManager::saved, this, &LoadedTutorial::onSaved);
    connect(managerInstance, &TutorialManager::localeChanged, this, &LoadedTutorial::changed);
    connect(managerInstance, &TutorialManager::locale2Changed, this, &LoadedTutorial::changed);
    connect(managerInstance, &TutorialManager::staleIdsChanged, this, &LoadedTutorial::changed);
    connect(&managerInstance->hostWindows(), &HostWindows::placesChanged, this, &LoadedTutorial::changed);
    onReplaced();
}

bool LoadedTutorial::isLoaded()
{
    return managerInstance && !managerInstance->tutorialName().isEmpty();
}

void LoadedTutorial::onReplaced()
{
    // What was taken up unsaved is not what was saved.
    mReachedAtSave.clear();
    if (!managerInstance->isModified())
        onSaved();
    readSources();
    // What the load has stumbled over may be mended in the next moment. All else can wait for the first check.
    const auto *manager = TutorialEditor::Manager::instance();
    mIsScenarioDue = isLoaded();
    if (!manager->isSaveable() || !manager->leftOut().isEmpty())
        readScenario();
    Q_EMIT changed();
}

void LoadedTutorial::onSaved()
{
    const StepGraph graph(TutorialEditor::Manager::instance()->mData);
    mReachedAtSave = Walk(graph).reachedIds();
    // What was left out is gone from the file.
    mFileProblems.clear();
    mIsScenarioDue = false;
    Q_EMIT changed();
}

void LoadedTutorial::readSources()
{
    mFileProblems.clear();
    if (!isLoaded())
        return;
    const QStringList sources = managerInstance->unreadableSources();
    for (const QString &source : sources) {
        QByteArray bytes;
        if (DataSupport::fileExists(source) && DataSupport::readFile(source, bytes))
            mFileProblems.append(TutorialFiles::unreadable(source, bytes));
    }
}

void LoadedTutorial::readScenario()
{
    if (!mIsScenarioDue)
        return;
    mIsScenarioDue = false;
    ScenarioFile file;
    const QString filename = TutorialEditor::Manager::instance()->mFilename;
    if (DataSupport::fileExists(filename))
        file.read(filename, [](const QString &, const QString &source) { return source; });
    mFileProblems += file.problems();
}

bool LoadedTutorial::measureHints()
{
    constexpr int kMilliseconds = 10;
    const QStringList hints = HintRules::hints(contents());
    const bool isKnown =
        std::all_of(hints.begin(), hints.end(), [this](const QString &hint) { return mHintSizes.height(hint) >= 0; });
    if (!isKnown)
        mHintSizes.measure(hints, kMilliseconds);
    return !isKnown;
}

QVector<Problem> LoadedTutorial::problems() const
{
    return isLoaded() ? mFileProblems + TutorialCheck::check(subject()) : QVector<Problem>();
}

CheckSubject LoadedTutorial::contents()
{
    const auto *manager = TutorialEditor::Manager::instance();
    CheckSubject subject;
    subject.document = &manager->mData;
    subject.file = manager->mFilename;
    subject.languages = { { managerInstance->locale(), QString(), &TutorialItemData::mHint },
                          { managerInstance->locale2(), QString(), &TutorialItemData::mHint2 } };
    return subject;
}

CheckSubject LoadedTutorial::subject() const
{
    const HostWindows &host = managerInstance->hostWindows();
    CheckSubject subject = contents();
    subject.hintSizes = &mHintSizes;
    subject.staleIds = managerInstance->staleIds();
    subject.reachedAtSave = mReachedAtSave;
    subject.reportedPlaces = host.places();
    subject.isHostKnown = !host.places().isEmpty();
    subject.hostRect = host.hostRect();
    return subject;
}

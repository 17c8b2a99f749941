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
    readFiles();
    Q_EMIT changed();
}

void LoadedTutorial::onSaved()
{
    const StepGraph graph(TutorialEditor::Manager::instance()->mData);
    mReachedAtSave = Walk(graph).reachedIds();
    // What was left out is gone from the file.
    mFileProblems.clear();
    Q_EMIT changed();
}

void LoadedTutorial::readFiles()
{
    mFileProblems.clear();
    const auto *manager = TutorialEditor::Manager::instance();
    if (!isLoaded())
        return;
    const QStringList sources = managerInstance->unreadableSources();
    for (const QString &source : sources) {
        QByteArray bytes;
        if (DataSupport::fileExists(source) && DataSupport::readFile(source, bytes))
            mFileProblems.append(TutorialFiles::unreadable(source, bytes));
    }
    ScenarioFile file;
    if (DataSupport::fileExists(manager->mFilename))
        file.read(manager->mFilename, [](const QString &, const QString &source) { return source; });
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

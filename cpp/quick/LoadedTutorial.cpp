#include "quick/LoadedTutorial.h"

#include "check/StepGraph.h"
#include "check/Walk.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"

LoadedTutorial::LoadedTutorial(QObject *parent) : QObject(parent)
{
    if (!managerInstance)
        return;
    connect(managerInstance, &TutorialManager::documentReplaced, this, &LoadedTutorial::onReplaced);
    connect(managerInstance, &TutorialManager::modifiedChanged, this, &LoadedTutorial::onModifiedChanged);
    connect(managerInstance, &TutorialManager::localeChanged, this, &LoadedTutorial::changed);
    connect(managerInstance, &TutorialManager::locale2Changed, this, &LoadedTutorial::changed);
    connect(managerInstance, &TutorialManager::translationConfirmed, this, &LoadedTutorial::changed);
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
    onModifiedChanged();
}

void LoadedTutorial::onModifiedChanged()
{
    if (!managerInstance->isModified()) {
        const StepGraph graph(TutorialEditor::Manager::instance()->mData);
        mReachedAtSave = Walk(graph).reachedIds();
    }
    Q_EMIT changed();
}

CheckSubject LoadedTutorial::subject() const
{
    const auto *manager = TutorialEditor::Manager::instance();
    const HostWindows &host = managerInstance->hostWindows();
    CheckSubject subject;
    subject.document = &manager->mData;
    subject.file = manager->mFilename;
    subject.languages = { { managerInstance->locale(), QString(), &TutorialItemData::mHint },
                          { managerInstance->locale2(), QString(), &TutorialItemData::mHint2 } };
    subject.staleIds = managerInstance->staleIds();
    subject.reachedAtSave = mReachedAtSave;
    subject.reportedPlaces = host.places();
    subject.isHostKnown = !host.places().isEmpty();
    subject.hostRect = host.hostRect();
    return subject;
}

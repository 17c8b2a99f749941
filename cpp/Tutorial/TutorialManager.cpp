#include "Tutorial/TutorialManager.h"

#include "tool/Log.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/translation/TutorialTranslation.h"
#include "TutorialEditor/Manager.h"

#include <QApplication>
#include <QLocalSocket>
#include <QQmlEngine>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";
}

TutorialManager *managerInstance = nullptr;

QObject *TutorialManager::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    managerInstance = new TutorialManager(engine, scriptEngine);
    return managerInstance;
}

TutorialManager::TutorialManager(QQmlEngine *engine, QJSEngine *scriptEngine)
    : QObject(engine)
    , mEngine(engine)
    , mScriptEngine(scriptEngine)
    , mGuidanceWindows(this)
    , mVisibility(&mGuidanceWindows)
    , mReader(HostRecord::kFromHost)
    , mEditorManager(std::make_unique<TutorialEditor::Manager>())
    , mTranslation(std::make_unique<TutorialTranslation>(isMakingSupported(), applicationObject, mEditorManager->mData))
{
    connect(&mHostWindows, &HostWindows::currentKeyChanged, this, &TutorialManager::currentWindowKeyChanged);
    Log::debug(kFolder, "TutorialManager::TutorialManager", __LINE__) << locale() << locale2();
    connect(mTranslation.get(), &TutorialTranslation::localeChanged, this, &TutorialManager::localeChanged);
    connect(mTranslation.get(), &TutorialTranslation::locale2Changed, this, &TutorialManager::locale2Changed);
    connect(mTranslation.get(), &TutorialTranslation::hintsTaken, this, &TutorialManager::documentReplaced);

    const QStringList arguments = QCoreApplication::arguments();
    const QString suffix = arguments.size() >= 2 ? arguments.at(1) : QString(HostMessages::kStandardSuffix);
    Log::debug(kFolder, "TutorialManager::TutorialManager", __LINE__) << suffix;
    if (suffix.isEmpty()) {
        // Without a link there is no use for the process.
        deleteLater();
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return;
    }
    connectToHost(suffix);
}

TutorialManager::~TutorialManager()
{
    Log::debug(kFolder, "TutorialManager::~TutorialManager", __LINE__);
    if (managerInstance == this)
        managerInstance = nullptr;
    // Its signals must not reach an object that is half gone.
    if (mSocket)
        mSocket->disconnect(this);
    delete mSocket;
    if (mTickTimerId)
        killTimer(mTickTimerId);
    // The windows may call back on their way out.
    mGuidanceWindows.clear();
}

void TutorialManager::setModified(bool modified)
{
    if (modified == mModified)
        return;
    mModified = modified;
    Q_EMIT modifiedChanged();
}

void TutorialManager::setPendingJumpLink(const QString &linkInfo)
{
    mPendingJumpLink = linkInfo;
}

void TutorialManager::onTimerTimeout()
{
    if (mPendingJumpLink.isEmpty())
        return;
    const QString linkInfo = mPendingJumpLink;
    mPendingJumpLink.clear();
    Q_EMIT jumpLinkChanged(linkInfo);
}

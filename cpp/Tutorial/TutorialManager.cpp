#include "Tutorial/TutorialManager.h"

#include "tool/Log.h"
#include "Tutorial/guidance/ScreenPixels.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/recovery/Recovery.h"
#include "Tutorial/translation/TutorialTranslation.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QCursor>
#include <QQmlEngine>

#include <cstdio>
#include <cstdlib>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";

constexpr int kTickInterval = 100;
constexpr int kDeferredInterval = 10;
} // namespace

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
    , mEditorManager(std::make_unique<TutorialEditor::Manager>())
    , mTranslation(std::make_unique<TutorialTranslation>(isMakingSupported(), applicationObject, mEditorManager->mData))
    , mRecovery(std::make_unique<Recovery>(this))
{
    connect(&mHostWindows, &HostWindows::currentKeyChanged, this, &TutorialManager::currentWindowKeyChanged);
    Log::debug(kFolder, "TutorialManager::TutorialManager", __LINE__) << locale() << locale2();
    connect(mTranslation.get(), &TutorialTranslation::localeChanged, this, &TutorialManager::localeChanged);
    connect(mTranslation.get(), &TutorialTranslation::locale2Changed, this, &TutorialManager::locale2Changed);
    connect(mTranslation.get(), &TutorialTranslation::hintsTaken, this, &TutorialManager::documentReplaced);
    connect(this, &TutorialManager::modifiedChanged, mRecovery.get(), &Recovery::noteChange);
    connect(this, &TutorialManager::documentReplaced, mRecovery.get(), &Recovery::noteChange);

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
    if (mTickTimerId)
        killTimer(mTickTimerId);
    // The windows may call back on their way out.
    mGuidanceWindows.clear();
}

void TutorialManager::connectToHost(const QString &suffix)
{
    connect(&mLink, &HostLink::connected, this, &TutorialManager::onConnected);
    connect(&mLink, &HostLink::received, this, &TutorialManager::received);
    connect(&mLink, &HostLink::bye, this, &TutorialManager::stopGuidance);
    connect(&mLink, &HostLink::silent, this, &TutorialManager::requestClose);
    connect(&mLink, &HostLink::disconnected, this, &TutorialManager::onDisconnected);
    connect(this, &TutorialManager::received, this, &TutorialManager::onReceived);
    mLink.open(HostMessages::serverName(suffix));

    if (applicationObject) {
        connect(applicationObject, &QGuiApplication::applicationStateChanged, this,
                &TutorialManager::onApplicationStateChanged);
    }
    mTickTimerId = startTimer(kTickInterval, Qt::CoarseTimer);
    mDeferredTimer.setInterval(kDeferredInterval);
    connect(&mDeferredTimer, &QTimer::timeout, this, &TutorialManager::onTimerTimeout);
    mDeferredTimer.start();
}

void TutorialManager::onReadyRead()
{
    mLink.onReadyRead();
}

void TutorialManager::onConnected()
{
    Log::debug(kFolder, "TutorialManager::onConnected", __LINE__);
}

void TutorialManager::onDisconnected()
{
    Log::debug(kFolder, "TutorialManager::onDisconnected", __LINE__);
    requestClose();
}

void TutorialManager::sendMessage(const QString &text)
{
    mLink.send(text);
}

void TutorialManager::timerEvent(QTimerEvent *event)
{
    Q_UNUSED(event)
    mVisibility.tick();
    mLink.tick();
}

void TutorialManager::requestClose()
{
    Log::debug(kFolder, "TutorialManager::requestClose", __LINE__);
    // The host editor may go before the writer has saved.
    mRecovery->flush();
    if (UndoRedo *history = UndoRedo::instance())
        history->removeTemporaryDir();
    if (closeLogFileHook)
        closeLogFileHook();
    // Without the destructors of the process: those of the web engine crash while its threads are
    // still starting, and the exit code would be lost.
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
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

QSet<int> TutorialManager::staleIds() const
{
    return mTranslation->staleIds();
}

void TutorialManager::confirmTranslation(int id)
{
    if (!mTranslation->confirmTranslation(id))
        return;
    // No step of the history: no text has changed, only what the file says of one.
    if (UndoRedo *history = UndoRedo::instance())
        history->markUnsaved();
    mRecovery->noteChange();
    Q_EMIT staleIdsChanged();
}

void TutorialManager::noteTranslated(int id)
{
    if (!mTranslation->confirmTranslation(id))
        return;
    mRecovery->noteChange();
    Q_EMIT staleIdsChanged();
}

void TutorialManager::followHistory()
{
    if (UndoRedo *history = UndoRedo::instance()) {
        connect(history, &UndoRedo::documentChanged, mTranslation.get(), &TutorialTranslation::scheduleFollowing,
                Qt::UniqueConnection);
    }
}

// From here on the surface is the manager's, and what it tells of is kept by the object that it hands on to.

void TutorialManager::setPosition(const QString &key, int x, int y)
{
    mHostWindows.setPosition(key, QPoint(x, y));
}

QString TutorialManager::getCurrentWindowKey() const
{
    return mHostWindows.currentKey();
}

QPoint TutorialManager::getXy(const QString &windowKey) const
{
    return mHostWindows.position(windowKey);
}

QPoint TutorialManager::getCursorPos() const
{
    return ScreenPixels::toPixels(QCursor::pos());
}

void TutorialManager::dropPopupWindowKey()
{
    mHostWindows.dropPopup();
}

void TutorialManager::onApplicationStateChanged(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive || state == Qt::ApplicationInactive)
        mVisibility.setApplicationActive(state == Qt::ApplicationActive);
}

void TutorialManager::updateGuidanceVisibility()
{
    mVisibility.update();
}

void TutorialManager::editorTooltipClosed()
{
    mGuidanceWindows.forgetEditorTooltip();
}

QString TutorialManager::applyTranslation(const QString &context, const QString &sourceText) const
{
    return mTranslation->applyTranslation(context, sourceText);
}

QString TutorialManager::translate(const QString &key) const
{
    return mTranslation->translate(key);
}

QString TutorialManager::applyTranslationToText(const QString &text, QStringList &errors) const
{
    return mTranslation->applyTranslationToText(text, errors);
}

QString TutorialManager::parseStringExpression(const QString &text, const QString &context, QString &rest,
                                               QStringList &errors) const
{
    return mTranslation->parseStringExpression(text, context, rest, errors);
}

QString TutorialManager::locale() const
{
    return mTranslation->locale();
}

QString TutorialManager::locale2() const
{
    return mTranslation->locale2();
}

void TutorialManager::setLocale(const QString &locale)
{
    mTranslation->setLocale(locale);
}

void TutorialManager::setLocale2(const QString &locale)
{
    mTranslation->setLocale2(locale);
}

bool TutorialManager::loadTranslation()
{
    return mTranslation->loadTranslation();
}

bool TutorialManager::saveTranslation()
{
    return mTranslation->saveTranslation();
}

bool TutorialManager::feedbackTranslation()
{
    return mTranslation->feedbackTranslation();
}

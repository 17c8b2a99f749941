// The link to the host editor: connection, records, keep-alive and every way in which it ends.

#include "tool/Log.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QLocalSocket>

#include <cstdio>
#include <cstdlib>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";

constexpr int kTickInterval = 100;
constexpr int kSilentTicks = 100;
constexpr int kAliveTicks = 10;
constexpr int kDeferredInterval = 10;
} // namespace

void TutorialManager::connectToHost(const QString &suffix)
{
    mSocket = new QLocalSocket(this);
    connect(mSocket, &QLocalSocket::readyRead, this, &TutorialManager::onReadyRead);
    connect(mSocket, &QLocalSocket::connected, this, &TutorialManager::onConnected);
    connect(mSocket, &QLocalSocket::disconnected, this, &TutorialManager::onDisconnected);
    connect(this, &TutorialManager::received, this, &TutorialManager::onReceived);
    mSocket->connectToServer(HostMessages::serverName(suffix), QIODevice::ReadWrite);

    if (applicationObject) {
        connect(applicationObject, &QGuiApplication::applicationStateChanged, this,
                &TutorialManager::onApplicationStateChanged);
    }
    mTickTimerId = startTimer(kTickInterval, Qt::CoarseTimer);
    setModified(false);
    mDeferredTimer.setInterval(kDeferredInterval);
    connect(&mDeferredTimer, &QTimer::timeout, this, &TutorialManager::onTimerTimeout);
    mDeferredTimer.start();
}

void TutorialManager::onConnected()
{
    Log::debug(kFolder, "TutorialManager::onConnected", __LINE__);
    mHostConnected = true;
}

void TutorialManager::sendMessage(const QString &text)
{
    if (!mSocket || !mHostConnected)
        return;
    mSocket->write(HostRecord::encode(HostRecord::kToHost, text));
}

void TutorialManager::onReadyRead()
{
    mSilenceTicks = 0;
    const QStringList messages = mReader.read(mSocket->readAll());
    for (const QString &message : messages) {
        if (HostMessages::name(message) == HostMessages::FromHost::kBye) {
            // What the same read holds behind it is lost.
            mReader.clear();
            stopGuidance();
            return;
        }
        Q_EMIT received(message);
    }
}

void TutorialManager::timerEvent(QTimerEvent *event)
{
    Q_UNUSED(event)
    mVisibility.tick();
    if (!mSocket)
        return;
    if (++mSilenceTicks >= kSilentTicks)
        requestClose();
    if (++mAliveTicks >= kAliveTicks) {
        mAliveTicks = 0;
        sendMessage(HostMessages::ToHost::kAlive);
    }
}

void TutorialManager::requestClose()
{
    Log::debug(kFolder, "TutorialManager::requestClose", __LINE__);
    if (UndoRedo *history = UndoRedo::instance())
        history->removeTemporaryDir();
    if (closeLogFileHook)
        closeLogFileHook();
    // Without the destructors of the process: those of the web engine crash while its threads are
    // still starting, and the exit code would be lost.
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}

void TutorialManager::onDisconnected()
{
    Log::debug(kFolder, "TutorialManager::onDisconnected", __LINE__);
    mSocket = nullptr;
    requestClose();
}

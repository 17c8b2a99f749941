#pragma once

#include "support/WarningGuard.h"
#include "Tutorial/HostRecord.h"
#include "Tutorial/HostRecordReader.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <memory>

/// What tests of the manager share: the manager in this process, linked to a host editor in this
/// process.
namespace ManagerFixture
{
/// The program's object with its periodic work in the test's hands.
class Manager : public TutorialManager
{
public:
    Manager() : TutorialManager(nullptr, nullptr) { installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        // Only the test's own ticks come through.
        return object == this && event->type() == QEvent::Timer && static_cast<QTimerEvent *>(event)->timerId() != 0;
    }

    void tick(int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            QTimerEvent event(0);
            QCoreApplication::sendEvent(this, &event);
        }
    }

    /// Fields parted by "|".
    void receive(const char *fields) { onReceived(QString::fromUtf8(fields).replace(QLatin1Char('|'), QChar(1))); }
};

/// The host editor's end of the link.
class Host
{
public:
    Host() : mReader(HostRecord::kToHost)
    {
        const QString name = QLatin1String("qelm") + QCoreApplication::arguments().at(1);
        QLocalServer::removeServer(name);
        if (!mServer.listen(name))
            qFatal("cannot listen");
    }

    bool accept()
    {
        if (mServer.waitForNewConnection(10000))
            mSocket.reset(mServer.nextPendingConnection());
        return mSocket != nullptr;
    }

    void send(const QByteArray &bytes)
    {
        mSocket->write(bytes);
        while (mSocket->bytesToWrite() > 0 && mSocket->waitForBytesWritten(1000)) { }
    }

    /// The fields of the next message that is no "alive"; empty when none comes.
    QStringList next(int timeout = 5000)
    {
        QElapsedTimer timer;
        timer.start();
        while (mMessages.isEmpty() && timer.elapsed() < timeout) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            mMessages += mReader.read(mSocket->readAll());
        }
        return mMessages.isEmpty() ? QStringList() : mMessages.takeFirst().split(QChar(1));
    }

    /// That nothing was sent before a message that is asked for now.
    bool silent(Manager &manager)
    {
        manager.sendMessage(QStringLiteral("marker"));
        return next() == QStringList{ QStringLiteral("marker") };
    }

    QLocalServer mServer;
    std::unique_ptr<QLocalSocket> mSocket; // goes before the server, which would free it too

private:
    HostRecordReader mReader;
    QStringList mMessages;
};

inline QByteArray record(const QList<QByteArray> &messages)
{
    QByteArray bytes("0");
    for (QByteArray message : messages)
        bytes += '\x02' + message.replace('|', '\x01');
    return bytes + '\0';
}

/// The two, made anew for each test function.
class Link
{
public:
    void begin()
    {
        mWarnings.begin();
        // Settings of the test's own, not the user's.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mSettings.path());
        QSettings().clear();
        mHost = std::make_unique<Host>();
        mManager = std::make_unique<Manager>();
        QVERIFY(mHost->accept());
        QTRY_VERIFY(mManager->connected());
    }

    void end()
    {
        mManager.reset();
        mHost.reset();
        qDeleteAll(qApp->findChildren<QTranslator *>());
        rootObject = nullptr;
        mWarnings.end();
    }

    std::unique_ptr<Host> mHost;
    std::unique_ptr<Manager> mManager;
    WarningGuard mWarnings;

private:
    QTemporaryDir mSettings;
};

/// An application whose first argument is the link's suffix, and none of the test's own.
class Application
{
public:
    Application(const char *program, const QByteArray &suffix)
        : mProgram(program)
        , mSuffix(suffix)
        , mApplication(mCount, mArguments)
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
        QCoreApplication::setApplicationName(QStringLiteral("Trelvane tests"));
        applicationObject = &mApplication;
    }

    static QByteArray ownSuffix() { return "test" + QByteArray::number(QCoreApplication::applicationPid()); }

private:
    QByteArray mProgram;
    QByteArray mSuffix;
    QByteArray mFurther = "further";
    int mCount = 3;
    char *mArguments[4] = { mProgram.data(), mSuffix.data(), mFurther.data(), nullptr };
    QApplication mApplication;
};
} // namespace ManagerFixture

#pragma once

#include "support/WarningGuard.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/link/HostRecordReader.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"

#include <QApplication>
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
    Manager() : TutorialManager(nullptr, nullptr) { }

    void timerEvent(QTimerEvent *) override { }

    void tick(int times = 1)
    {
        QTimerEvent event(0);
        while (times-- > 0)
            TutorialManager::timerEvent(&event);
    }

    /// Fields parted by "|".
    void receive(const char *fields)
    {
        onReceived(QString::fromUtf8(fields).replace(QLatin1Char('|'), HostMessages::kFieldSeparator));
    }
};

/// The host editor's end of the link.
class Host
{
public:
    Host() : mReader(HostRecord::kToHost)
    {
        const QString name = HostMessages::serverName(QCoreApplication::arguments().at(1));
        QLocalServer::removeServer(name);
        if (!mServer.listen(name))
            qFatal("cannot listen");
    }

    bool accept()
    {
        const bool came = mServer.waitForNewConnection(10000);
        mSocket.reset(mServer.nextPendingConnection());
        return came;
    }

    /// The fields of the next message; empty when none comes.
    QStringList next()
    {
        const bool came = QTest::qWaitFor([this] {
            mMessages += mReader.read(mSocket->readAll());
            return !mMessages.isEmpty();
        });
        return came ? HostMessages::split(mMessages.takeFirst()) : QStringList();
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
    int mCount = 2;
    char *mArguments[3] = { mProgram.data(), mSuffix.data(), nullptr };
    QApplication mApplication;
};
} // namespace ManagerFixture

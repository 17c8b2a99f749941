#pragma once

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"

#include <QApplication>
#include <QtTest>

/// What tests of the manager share: the manager in this process.
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

    /// Messages, their fields parted by "|".
    void receive(std::initializer_list<const char *> messages)
    {
        for (const char *message : messages)
            onReceived(QString::fromUtf8(message).replace(QLatin1Char('|'), HostMessages::kFieldSeparator));
    }
};

/// An application whose first argument is a suffix of its own for the link, and none of the test's own.
/// The end of the link would end the process as a success: here it fails the test.
class Application
{
public:
    explicit Application(const char *program) : mProgram(program), mApplication(mCount, mArguments)
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
        QCoreApplication::setApplicationName(QStringLiteral("Trelvane tests"));
        applicationObject = &mApplication;
        closeLogFileHook = [] { qFatal("the process ends"); };
    }

private:
    QByteArray mProgram;
    QByteArray mSuffix = "test" + QByteArray::number(QCoreApplication::applicationPid());
    int mCount = 2;
    char *mArguments[3] = { mProgram.data(), mSuffix.data(), nullptr };
    QApplication mApplication;
};
} // namespace ManagerFixture

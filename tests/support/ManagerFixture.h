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

    template <typename... Fields>
    void receive(QLatin1String name, const Fields &...fields)
    {
        onReceived(HostMessages::message(name, fields...));
    }
};

/// The window of that class, the first one if there are more.
template <typename Window>
Window *find()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<Window *>(window))
            return found;
    }
    return nullptr;
}

inline void tick(QObject *object, int times = 1)
{
    QTimerEvent event(0);
    while (times-- > 0)
        QCoreApplication::sendEvent(object, &event);
}
/// Runs a test in an application whose first argument is a suffix of its own for the link, and none of the test's
/// own. The end of the link would end the process as a success: here it fails the test.
template <typename Test>
int run(char *program)
{
    QByteArray suffix = "test" + QByteArray::number(QCoreApplication::applicationPid());
    char *arguments[] = { program, suffix.data(), nullptr };
    int count = 2;
    QApplication application(count, arguments);
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane tests"));
    applicationObject = &application;
    closeLogFileHook = [] { qFatal("the process ends"); };
    Test test;
    return QTest::qExec(&test);
}
} // namespace ManagerFixture

/// Like QTEST_MAIN.
#define MANAGER_TEST_MAIN(Test)                    \
    int main(int, char *argv[])                    \
    {                                              \
        return ManagerFixture::run<Test>(argv[0]); \
    }

#include "Tutorial/guidance/HostWindows.h"

#include <QtTest>

class tst_HostWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheWindowInFront();
    void knowsPositions();
};

void tst_HostWindows::knowsTheWindowInFront()
{
    HostWindows windows;
    const QSignalSpy changes(&windows, &HostWindows::currentKeyChanged);
    // After each step, the key of the window in front and the changes told so far.
    const auto seen = [&]() -> QString { return windows.currentKey() + QString::number(changes.size()); };
    QStringList story;
    windows.pop();
    story += seen();
    for (const char *key : { "A", "Popup", "Popup" })
        windows.push(QLatin1String(key));
    story += seen();
    windows.dropPopup();
    story += seen();
    windows.pop();
    story += seen();
    windows.dropPopup();
    story += seen();
    windows.push(QStringLiteral("A"));
    windows.clearStack();
    story += seen();
    windows.dropPopup();
    story += seen();
    QCOMPARE(story.join(QLatin1Char(' ')),
             QStringLiteral("ApplicationWindow0 Popup3 Popup4 A5 A5 ApplicationWindow7 ApplicationWindow7"));
}

void tst_HostWindows::knowsPositions()
{
    HostWindows windows;
    windows.setPosition(QStringLiteral("A"), { 1, 2 });
    windows.setPosition(QStringLiteral("A"), { -3, -4 });
    windows.setPosition(QString(), { 5, 6 });
    QCOMPARE(windows.position(QStringLiteral("A")), QPoint(-3, -4));
    QCOMPARE(windows.position(QStringLiteral("B")), QPoint());
    QCOMPARE(windows.position(QString()), QPoint());
}

QTEST_APPLESS_MAIN(tst_HostWindows)

#include "tst_HostWindows.moc"

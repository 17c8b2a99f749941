#include "Tutorial/guidance/HostWindows.h"

#include <QtTest>

class tst_HostWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfTheWindowInFront();
};

void tst_HostWindows::tellsOfTheWindowInFront()
{
    HostWindows windows;
    const QSignalSpy changes(&windows, &HostWindows::currentKeyChanged);
    const auto push = [&](const char *key) { return [&windows, key] { windows.push(QLatin1String(key)); }; };
    const auto pop = [&] { windows.pop(); };
    const auto dropPopup = [&] { windows.dropPopup(); };
    const struct
    {
        std::function<void()> event;
        const char *key;
        int changes;
    } rows[] = {
        { pop, "ApplicationWindow", 0 }, { dropPopup, "ApplicationWindow", 0 },
        { push("A"), "A", 1 },           { dropPopup, "A", 1 },
        { push("Popup"), "Popup", 2 },   { push("Popup"), "Popup", 3 },
        { dropPopup, "Popup", 4 },       { pop, "A", 5 },
        { push("A"), "A", 6 },           { [&] { windows.clearStack(); }, "ApplicationWindow", 7 },
    };
    for (const auto &row : rows) {
        row.event();
        QCOMPARE(windows.currentKey(), QString::fromLatin1(row.key));
        QCOMPARE(changes.size(), row.changes);
    }
}

QTEST_APPLESS_MAIN(tst_HostWindows)

#include "tst_HostWindows.moc"

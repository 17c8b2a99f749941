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
    // What happens, and the window in front and the changes that were told after it.
    const QVector<QByteArrayList> rows = {
        { "pop", "ApplicationWindow", "0" },
        { "drop", "ApplicationWindow", "0" },
        { "A", "A", "1" },
        { "drop", "A", "1" },
        { "Popup", "Popup", "2" },
        { "Popup", "Popup", "3" },
        { "drop", "Popup", "4" },
        { "pop", "A", "5" },
        { "A", "A", "6" },
        { "clear", "ApplicationWindow", "7" },
    };
    for (const QByteArrayList &row : rows) {
        if (row.first() == "pop")
            windows.pop();
        else if (row.first() == "drop")
            windows.dropPopup();
        else if (row.first() == "clear")
            windows.clearStack();
        else
            windows.push(QString::fromLatin1(row.first()));
        const QByteArrayList seen = { row.first(), windows.currentKey().toLatin1(),
                                      QByteArray::number(changes.size()) };
        QCOMPARE(seen, row);
    }
}

QTEST_APPLESS_MAIN(tst_HostWindows)

#include "tst_HostWindows.moc"

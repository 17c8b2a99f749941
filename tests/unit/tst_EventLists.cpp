#include "quick/TutorialEventListModel.h"
#include "quick/TutorialRaisedHandListModel.h"
#include "Tutorial/link/HostMessages.h"

#include <QTest>

/// The lists of the event dialog, fed by messages of the host editor.
class tst_EventLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messageIsRead_data();
    void messageIsRead();
    void oldLinesGo();
};

namespace
{
QString textOf(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, 0).data().toString());
    return texts.join(QLatin1Char('|'));
}
} // namespace

void tst_EventLists::messageIsRead_data()
{
    QTest::addColumn<QString>("message"); // a bar stands between the fields
    QTest::addColumn<QString>("result"); // the events; the controls; the coordinates
    const auto row = [](const char *message, const char *result) {
        QTest::newRow(message) << QString::fromLatin1(message) << QString::fromLatin1(result);
    };
    row("eventLog|coords|1, 2", ";old;1, 2");
    row("eventLog|append|<b>a</b>", "<b>a</b>;old;");
    row("eventLog|raisedHand|x|y", ";x|y;");
    row("eventLog|raisedHand", ";;");
    row("eventLog|appended|a", ";old;");
    row("eventLog", ";old;");
    row("eventLogs|append|a", ";old;");
}

void tst_EventLists::messageIsRead()
{
    QFETCH(QString, message);
    TutorialEventListModel events;
    TutorialRaisedHandListModel controls;
    controls.setSource(&events);
    events.setRaisedHandList({ QStringLiteral("old") });
    QString coordinates;
    connect(&events, &TutorialEventListModel::coordsTextChanged, this,
            [&coordinates](const QString &text) { coordinates = text; });
    events.readMessage(message.replace(QLatin1Char('|'), HostMessages::kFieldSeparator));
    QTEST(QStringList({ textOf(events), textOf(controls), coordinates }).join(QLatin1Char(';')), "result");
    QCOMPARE(events.getTagStrippedText(QStringLiteral("<b>a &amp; b</b> &lt;c&gt;")), QStringLiteral("a & b <c>"));
}

void tst_EventLists::oldLinesGo()
{
    TutorialEventListModel events;
    int most = 0;
    for (int i = 1; i <= 25000; ++i) {
        events.addEventText(QString::number(i));
        most = qMax(most, events.rowCount());
    }
    QCOMPARE(most, 10000);
    QCOMPARE(events.index(events.rowCount() - 1, 0).data().toInt(), 25000);
    QCOMPARE(events.index(0, 0).data().toInt(), 25001 - events.rowCount());
}

QTEST_GUILESS_MAIN(tst_EventLists)
#include "tst_EventLists.moc"

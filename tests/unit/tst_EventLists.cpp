#include "quick/TutorialEventListModel.h"
#include "quick/TutorialRaisedHandListModel.h"
#include "Tutorial/link/HostMessages.h"

#include <QtTest>

/// The lists of the event dialog, fed by messages of the host editor.
class tst_EventLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

void tst_EventLists::messageIsRead()
{
    // A bar stands between the fields. Of it come the events, the controls and the coordinates.
    static const char *const rows[][2] = {
        { "eventLog|coords|1, 2", ";old;1, 2" }, { "eventLog|append|<b>a</b>", "<b>a</b>;old;" },
        { "eventLog|raisedHand|x|y", ";x|y;" },  { "eventLog|raisedHand", ";;" },
        { "eventLog|appended|a", ";old;" },      { "eventLog", ";old;" },
        { "eventLogs|append|a", ";old;" },
    };
    for (const auto &row : rows) {
        TutorialEventListModel events;
        TutorialRaisedHandListModel controls;
        controls.setSource(&events);
        events.setRaisedHandList({ QStringLiteral("old") });
        QSignalSpy coordinates(&events, &TutorialEventListModel::coordsTextChanged);
        events.readMessage(QString::fromLatin1(row[0]).replace(QLatin1Char('|'), QChar(1)));
        const QString text = coordinates.isEmpty() ? QString() : coordinates.first().first().toString();
        const QStringList result{ textOf(events), textOf(controls), text };
        QCOMPARE(result.join(QLatin1Char(';')), QString::fromLatin1(row[1]));
    }
    const QString line = QStringLiteral("<b>a &amp; b</b> &lt;c&gt;");
    QCOMPARE(TutorialEventListModel().getTagStrippedText(line), QStringLiteral("a & b <c>"));
}

void tst_EventLists::oldLinesGo()
{
    TutorialEventListModel events;
    for (int i = 1; i <= 25000; ++i)
        events.addEventText(QString::number(i));
    QCOMPARE(events.rowCount(), 10000);
    QCOMPARE(events.index(0, 0).data().toInt(), 15001);
    QCOMPARE(events.index(9999, 0).data().toInt(), 25000);
}

QTEST_GUILESS_MAIN(tst_EventLists)
#include "tst_EventLists.moc"

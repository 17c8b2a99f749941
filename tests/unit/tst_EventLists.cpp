#include "quick/TutorialEventListModel.h"
#include "quick/TutorialRaisedHandListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

/// The lists of the event dialog, fed by messages of the host editor.
class tst_EventLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messageIsRead_data();
    void messageIsRead();
    void tagsAreStripped_data();
    void tagsAreStripped();
    void clearedListsComeBackOrStayGone();
};

namespace
{
QStringList names(const QAbstractItemModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row, 0).data().toString());
    return names;
}

QString message(const QStringList &fields)
{
    return fields.join(QChar(1));
}
} // namespace

void tst_EventLists::messageIsRead_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<QStringList>("controls");
    QTest::addColumn<QStringList>("coordinates");

    const QStringList none;
    const QStringList old = { QStringLiteral("old") };
    const QString log = QStringLiteral("eventLog");
    QTest::newRow("coords") << QStringList{ log, QStringLiteral("coords"), QStringLiteral("1, 2") } << none << old
                            << QStringList{ QStringLiteral("1, 2") };
    QTest::newRow("append") << QStringList{ log, QStringLiteral("append"), QStringLiteral("<b>a</b>") }
                            << QStringList{ QStringLiteral("<b>a</b>") } << old << none;
    QTest::newRow("raisedHand") << QStringList{ log, QStringLiteral("raisedHand"), QStringLiteral("x"),
                                                QStringLiteral("y") }
                                << none << QStringList{ QStringLiteral("x"), QStringLiteral("y") } << none;
    QTest::newRow("no control any more") << QStringList{ log, QStringLiteral("raisedHand") } << none << none << none;
    QTest::newRow("line without a text") << QStringList{ log, QStringLiteral("append") } << QStringList{ QString() }
                                         << old << none;
    QTest::newRow("unknown kind") << QStringList{ log, QStringLiteral("appended"), QStringLiteral("a") } << none << old
                                  << none;
    QTest::newRow("no kind") << QStringList{ log } << none << old << none;
    QTest::newRow("another message") << QStringList{ QStringLiteral("eventLogs"), QStringLiteral("append"),
                                                     QStringLiteral("a") }
                                     << none << old << none;
    QTest::newRow("empty") << QStringList{} << none << old << none;
}

void tst_EventLists::messageIsRead()
{
    QFETCH(QStringList, fields);
    QFETCH(QStringList, events);
    QFETCH(QStringList, controls);
    QFETCH(QStringList, coordinates);

    TutorialEventListModel eventModel;
    TutorialRaisedHandListModel controlModel;
    QAbstractItemModelTester eventTester(&eventModel);
    QAbstractItemModelTester controlTester(&controlModel);
    controlModel.setSource(&eventModel);
    eventModel.setRaisedHandList({ QStringLiteral("old") });
    QStringList told;
    connect(&eventModel, &TutorialEventListModel::coordsTextChanged, this,
            [&told](const QString &text) { told.append(text); });

    eventModel.readMessage(message(fields));
    QCOMPARE(names(eventModel), events);
    QCOMPARE(names(controlModel), controls);
    QCOMPARE(told, coordinates);

    // Who has another source, or none, is not told any more.
    controlModel.setSource(nullptr);
    eventModel.setRaisedHandList({ QStringLiteral("new") });
    QCOMPARE(names(controlModel), controls);
}

void tst_EventLists::tagsAreStripped_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("text");
    QTest::newRow("tags") << QStringLiteral("<b>abc</b>") << QStringLiteral("abc");
    QTest::newRow("entity") << QStringLiteral("a &amp; b &lt;c&gt;") << QStringLiteral("a & b <c>");
    QTest::newRow("plain") << QStringLiteral("click,MainWindow/tool") << QStringLiteral("click,MainWindow/tool");
}

void tst_EventLists::tagsAreStripped()
{
    QFETCH(QString, line);
    QFETCH(QString, text);
    QCOMPARE(TutorialEventListModel().getTagStrippedText(line), text);
}

void tst_EventLists::clearedListsComeBackOrStayGone()
{
    TutorialEventListModel eventModel;
    eventModel.addEventText(QStringLiteral("line"));
    eventModel.clear();
    eventModel.refresh();
    QCOMPARE(eventModel.rowCount(), 0);

    TutorialRaisedHandListModel controlModel;
    controlModel.setList({ QStringLiteral("a"), QStringLiteral("b") });
    controlModel.clear();
    QCOMPARE(controlModel.rowCount(), 0);
    controlModel.refresh();
    QCOMPARE(names(controlModel), QStringList({ QStringLiteral("a"), QStringLiteral("b") }));
}

QTEST_GUILESS_MAIN(tst_EventLists)
#include "tst_EventLists.moc"

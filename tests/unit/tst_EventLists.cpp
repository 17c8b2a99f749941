#include "quick/TutorialEventListModel.h"
#include "quick/TutorialRaisedHandListModel.h"

#include <QAbstractItemModelTester>
#include <QtTest>

namespace
{
QStringList linesOf(const QAbstractItemModel &model)
{
    QStringList lines;
    for (int i = 0; i < model.rowCount(); ++i)
        lines.append(model.index(i, 0).data(model.roleNames().key("name")).toString());
    return lines;
}
} // namespace

class EventListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void events();
    void trackedNames();
    void tagStrippedText_data();
    void tagStrippedText();
};

void EventListsTest::events()
{
    TutorialEventListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.addEventText(QStringLiteral("<b>abc</b>"));
    model.addEventText(QStringLiteral("d"));
    QCOMPARE(linesOf(model), QStringList({ QStringLiteral("<b>abc</b>"), QStringLiteral("d") }));
    model.clear();
    model.refresh();
    QCOMPARE(model.rowCount(), 0);
    model.addEventText(QStringLiteral("e"));
    QCOMPARE(linesOf(model), QStringList(QStringLiteral("e")));

    QSignalSpy coords(&model, &TutorialEventListModel::coordsTextChanged);
    model.setCoordsText(QStringLiteral("1, 2"));
    model.setCoordsText(QStringLiteral("1, 2"));
    QCOMPARE(coords.count(), 2);
    QSignalSpy hands(&model, &TutorialEventListModel::raisedHandChanged);
    model.setRaisedHandList({ QStringLiteral("a") });
    QCOMPARE(hands.first().first().toStringList(), QStringList(QStringLiteral("a")));
}

void EventListsTest::trackedNames()
{
    TutorialRaisedHandListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QStringList names = { QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b") };
    model.setList(names);
    QCOMPARE(linesOf(model), names);
    model.clear();
    QCOMPARE(model.rowCount(), 0);
    model.refresh();
    QCOMPARE(linesOf(model), names);
    model.setList(QStringList());
    QCOMPARE(model.rowCount(), 0);
}

void EventListsTest::tagStrippedText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stripped");
    QTest::newRow("plain") << QStringLiteral("abc") << QStringLiteral("abc");
    QTest::newRow("tags") << QStringLiteral("<b>a<i>b</i></b>c") << QStringLiteral("abc");
    QTest::newRow("entities") << QStringLiteral("a &amp; b") << QStringLiteral("a & b");
}

void EventListsTest::tagStrippedText()
{
    QFETCH(QString, text);
    QTEST(TutorialEventListModel().getTagStrippedText(text), "stripped");
}

QTEST_MAIN(EventListsTest)
#include "tst_EventLists.moc"

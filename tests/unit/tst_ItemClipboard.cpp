#include "EditingSession.h"
#include "Tutorial/ItemClipboard.h"

#include <QPointer>
#include <QtTest>

class ItemClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paste();
    void undoneAndForgotten();
    void badPayload_data();
    void badPayload();
};

using ItemClipboard::SecondHints;

namespace
{
QString payloadOf(const QList<int> &idList)
{
    QString payload;
    ItemClipboard::makePayload(idList, payload);
    return payload;
}
} // namespace

void ItemClipboardTest::paste()
{
    EditingSession session;
    session.load(QStringLiteral("1 2[3[4] 6]"));
    QString payload = QStringLiteral("before");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("treeItem not found 9")));
    QVERIFY(!ItemClipboard::makePayload({ 1, 9 }, payload));
    QCOMPARE(payload, QStringLiteral("before"));

    // Each takes the lowest free id, a folder before what it holds.
    session.record(1)->mHint = QStringLiteral("hint\n\"b\"");
    session.record(1)->mHint2 = QStringLiteral("second");
    session.record(4)->mHint2.clear();
    session.record(1)->mJump = 2;
    QCOMPARE(ItemClipboard::insertPayload(payloadOf({ 2, 1 }), SecondHints::Copied), QList<int>({ 5, 10 }));
    QCOMPARE(session.record(10)->mHint, session.record(1)->mHint);
    QCOMPARE(session.record(10)->mHint2, QStringLiteral("second"));
    QCOMPARE(session.record(8)->mHint2, QString());
    QCOMPARE(session.record(10)->mJump, 2);
    QCOMPARE(session.shape(), QStringLiteral("1 2[3[4] 6] 5[7[8] 9] 10"));
    QCOMPARE(ItemClipboard::insertPayload(payloadOf({}), SecondHints::Copied), QList<int>());
    QCOMPARE(ItemClipboard::insertPayload(payloadOf({ 1 }), SecondHints::LookedUp), QList<int>({ 11 }));
    QCOMPARE(session.record(11)->mHint2, QStringLiteral("#1"));
}

void ItemClipboardTest::undoneAndForgotten()
{
    EditingSession session;
    session.load(QStringLiteral("1[2]"));
    session.sequence(QStringLiteral("paste"),
                     [] { ItemClipboard::insertPayload(payloadOf({ 1 }), SecondHints::Copied); });
    QPointer<TutorialItemData> folder = session.record(3);
    QPointer<TutorialItemData> item = session.record(4);
    session.history().undo();
    session.history().redo();
    QCOMPARE(session.record(4), item.data());
    session.history().undo();
    QVERIFY(folder && item);
    session.history().clear();
    QVERIFY(!folder && !item);
}

void ItemClipboardTest::badPayload_data()
{
    QTest::addColumn<QString>("shape");
    QTest::newRow("") << QString();
    QTest::newRow("[ {") << QString();
    QTest::newRow("{\"id\":1}") << QString();
    QTest::newRow("[ 1, \"a\", {\"id\":7} ]") << QStringLiteral("1");
    QTest::newRow("[ {\"id\":1,\"folder\":true,\"children\":[{\"id\":2},3]} ]") << QString();
    QTest::newRow("[ {\"id\":1,\"folder\":true,\"children\":[{\"id\":1},{\"id\":1,\"hint2\":[]}]} ]")
        << QStringLiteral("1[2 3]");
    QTest::newRow("[ {\"id\":1,\"children\":[{\"id\":2}]}, {\"id\":3} ]") << QStringLiteral("1 2");
}

void ItemClipboardTest::badPayload()
{
    EditingSession session;
    ItemClipboard::insertPayload(QString::fromLatin1(QTest::currentDataTag()), SecondHints::Copied);
    QTEST(session.shape(), "shape");
    QCOMPARE(session.recordIds().size(), session.shape().count(QRegularExpression(QStringLiteral("\\d"))));
}

QTEST_MAIN(ItemClipboardTest)
#include "tst_ItemClipboard.moc"

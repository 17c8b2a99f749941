#include "EditingSession.h"
#include "Tutorial/ItemClipboard.h"

#include <QPointer>
#include <QtTest>

class ItemClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void payloadText();
    void unknownIdLeavesThePayload();
    void paste_data();
    void paste();
    void whatIsCarriedAcross();
    void names();
    void undoneAndForgotten();
    void badPayload_data();
    void badPayload();
};

namespace
{
QString payloadOf(const QList<int> &idList)
{
    QString payload;
    ItemClipboard::makePayload(idList, payload);
    return payload;
}
} // namespace

void ItemClipboardTest::payloadText()
{
    EditingSession session;
    session.load(QStringLiteral("1[2] 3[]"));
    session.record(2)->mHint = QStringLiteral("a \"b\"");
    QCOMPARE(payloadOf({}), QStringLiteral("[  ]"));
    const QString item = QStringLiteral("{\"id\":%1,\"name\":\"name%1\",\"x\":-9999,\"y\":-9999,\"windowKey\":\"\","
                                        "\"condition\":\"\",\"hint\":%2,\"hint2\":\"\",\"icon\":\"click\","
                                        "\"jump\":-1,\"jumpNo\":-1,\"command\":\"\",\"showArrow\":true,"
                                        "\"prohibited\":false,\"folder\":%3}");
    const QString child = item.arg(2).arg(QStringLiteral("\"a \\\"b\\\"\""), QStringLiteral("false"));
    const QString empty = QStringLiteral("\"\"");
    QCOMPARE(payloadOf({ 3, 1 }),
             QStringLiteral("[ ") + item.arg(3).arg(empty, QStringLiteral("true")) + QStringLiteral(", ")
                 + item.arg(1).arg(empty, QStringLiteral("true,\"children\":[") + child + QLatin1Char(']'))
                 + QStringLiteral(" ]"));
}

void ItemClipboardTest::unknownIdLeavesThePayload()
{
    EditingSession session;
    session.load(QStringLiteral("1"));
    QString payload = QStringLiteral("before");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("treeItem not found 9")));
    QVERIFY(!ItemClipboard::makePayload({ 1, 9 }, payload));
    QCOMPARE(payload, QStringLiteral("before"));
}

void ItemClipboardTest::paste_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QList<int>>("copied");
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QList<int>>("result");
    QTest::newRow("item") << QStringLiteral("1 2") << QList<int>({ 1 }) << QStringLiteral("1 2 3") << QList<int>({ 3 });
    QTest::newRow("gap") << QStringLiteral("1 3[5]") << QList<int>({ 5 }) << QStringLiteral("1 3[5] 2")
                         << QList<int>({ 2 });
    QTest::newRow("folder") << QStringLiteral("1[2 3] 4") << QList<int>({ 1 }) << QStringLiteral("1[2 3] 4 5[6 7]")
                            << QList<int>({ 5 });
    QTest::newRow("deep and several") << QStringLiteral("1 2[3[4] 5]") << QList<int>({ 2, 1 })
                                      << QStringLiteral("1 2[3[4] 5] 6[7[8] 9] 10") << QList<int>({ 6, 10 });
    QTest::newRow("nothing") << QStringLiteral("1") << QList<int>() << QStringLiteral("1") << QList<int>();
}

void ItemClipboardTest::paste()
{
    QFETCH(QString, document);
    QFETCH(QList<int>, copied);
    QFETCH(QString, shape);
    for (const bool inTransaction : { false, true }) {
        EditingSession session;
        session.load(document);
        QList<int> result;
        const auto paste = [&] { result = ItemClipboard::insertPayload(payloadOf(copied)); };
        if (inTransaction)
            session.sequence(QStringLiteral("paste"), paste);
        else
            paste();
        QCOMPARE(session.shape(), shape);
        QTEST(result, "result");
        QCOMPARE(session.history().canUndo(), inTransaction && !copied.isEmpty());
        if (session.history().canUndo()) {
            session.history().undo();
            QCOMPARE(session.shape(), document);
            session.history().redo();
            QCOMPARE(session.shape(), shape);
        }
    }
}

void ItemClipboardTest::whatIsCarriedAcross()
{
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    TutorialItemData *source = session.record(1);
    source->mX = 5;
    source->mHint = QStringLiteral("hint\n");
    source->mHint2 = QStringLiteral("second");
    source->mJump = 2;
    source->mProhibited = true;
    source->mShowArrow = false;
    ItemClipboard::insertPayload(payloadOf({ 1 }));
    TutorialItemData *copy = session.record(3);
    QCOMPARE(copy->mHint2, QStringLiteral("#1"));
    copy->mHint2 = source->mHint2;
    copy->mName = source->mName;
    copy->mId = source->mId;
    QCOMPARE(copy->toJsonText(QString()), source->toJsonText(QString()));
}

void ItemClipboardTest::names()
{
    EditingSession session;
    session.load(QStringLiteral("1 2 3 4 5 6"));
    const QStringList given = { QStringLiteral("a"),       QStringLiteral("a(3)"),  QStringLiteral("a(07)"),
                                QStringLiteral("a(3)(1)"), QStringLiteral("b(-5)"), QStringLiteral("b") };
    for (int i = 0; i < given.size(); ++i)
        session.record(i + 1)->mName = given.at(i);
    const QString payload = payloadOf({ 1, 1, 2, 3, 4, 5, 6, 6 });
    // Each as the one allocator of names gives it, over all names until then.
    QStringList expected = given;
    for (const QString &base : { given[0], given[0], given[1], given[2], given[3], given[4], given[5], given[5] })
        expected.append(DataSupport::getUniqueName(expected, base, -1));
    ItemClipboard::insertPayload(payload);
    QCOMPARE(session.data().getNameList(), expected);

    delete session.data().mDataList.takeFirst();
    session.data().removeItem(1);
    ItemClipboard::insertPayload(payload);
    QVERIFY(session.data().getNameList().contains(QStringLiteral("a")));
}

void ItemClipboardTest::undoneAndForgotten()
{
    EditingSession session;
    session.load(QStringLiteral("1[2]"));
    session.sequence(QStringLiteral("paste"), [] { ItemClipboard::insertPayload(payloadOf({ 1 })); });
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
    QTest::addColumn<QString>("payload");
    QTest::addColumn<QString>("shape");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("no JSON") << QStringLiteral("[ {") << QString();
    QTest::newRow("object") << QStringLiteral("{\"id\":1}") << QString();
    QTest::newRow("elements of other kinds") << QStringLiteral("[ 1, \"a\", {\"id\":7} ]") << QStringLiteral("1");
    QTest::newRow("bad child") << QStringLiteral("[ {\"id\":1,\"folder\":true,\"children\":[{\"id\":2},3]} ]")
                               << QString();
    QTest::newRow("same id twice") << QStringLiteral("[ {\"id\":1,\"folder\":true,\"children\":[{\"id\":1}]} ]")
                                   << QStringLiteral("1[]");
    QTest::newRow("children of an item") << QStringLiteral("[ {\"id\":1,\"children\":[{\"id\":2}]} ]")
                                         << QStringLiteral("1");
}

void ItemClipboardTest::badPayload()
{
    QFETCH(QString, payload);
    EditingSession session;
    ItemClipboard::insertPayload(payload);
    QTEST(session.shape(), "shape");
    QCOMPARE(session.recordIds().size(), session.shape().isEmpty() ? 0 : 1);
}

QTEST_MAIN(ItemClipboardTest)
#include "tst_ItemClipboard.moc"

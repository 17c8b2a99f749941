#include "support/EditingSession.h"
#include "Tutorial/ItemClipboard.h"

#include <QPointer>
#include <QtTest>

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

class tst_ItemClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesIdsAndNames();
    void copiesFields();
    void undoneAndForgotten();
    void badPayload();
};

void tst_ItemClipboard::givesIdsAndNames()
{
    // The new ids at the top level, the tree and the names.
    const auto pasted = [](const char *names, const QList<int> &ids, bool inHistory) {
        EditingSession session;
        session.load(QStringLiteral("1 2[3[4] 6]"));
        for (int i = 0; i < 5; ++i)
            session.data().mDataList.at(i)->mName = QString::fromLatin1(names).section(QLatin1Char(' '), i, i);
        QList<int> tops;
        const auto paste = [&] { tops = ItemClipboard::insertPayload(payloadOf(ids), SecondHints::Copied); };
        inHistory ? session.sequence(QString(), paste) : paste();
        const QStringList parts{ DataSupport::join(tops, QStringLiteral(" ")), session.shape(), session.fault() };
        return QString((parts + session.data().getNameList()).join(QLatin1Char('|')));
    };
    // Each takes the lowest free id, a folder before what it holds.
    for (const bool inHistory : { false, true })
        QCOMPARE(pasted("a b c d e", { 2, 1 }, inHistory),
                 QStringLiteral("5 10|1 2[3[4] 6] 5[7[8] 9] 10||a|b|c|d|e|b(1)|c(1)|d(1)|e(1)|a(1)"));
    QCOMPARE(pasted("a a(1) a(4) a(1)(3) a(07)", { 1, 2 }, true),
             QStringLiteral("5 7|1 2[3[4] 6] 5 7[8[9] 10]||a|a(1)|a(4)|a(1)(3)|a(07)|a(5)|a(1)(4)|a(4)(1)|a(1)(3)(1)|"
                            "a(07)(1)"));
    QCOMPARE(pasted("a b c d e", { 4, 4 }, true), QStringLiteral("5 7|1 2[3[4] 6] 5 7||a|b|c|d|e|d(1)|d(2)"));
    QCOMPARE(pasted("a b c d e", {}, true), QStringLiteral("|1 2[3[4] 6]||a|b|c|d|e"));
}

void tst_ItemClipboard::copiesFields()
{
    EditingSession session;
    session.load(QStringLiteral("1 2[3]"));
    QString payload = QStringLiteral("before");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("treeItem not found 9")));
    QVERIFY(!ItemClipboard::makePayload({ 1, 9 }, payload));
    QCOMPARE(payload, QStringLiteral("before"));

    TutorialItemData &source = *session.record(3);
    source.mHint = QStringLiteral("hint\n\"b\"");
    source.mHint2 = QStringLiteral("second");
    source.mJump = 1;
    source.mProhibited = true;
    ItemClipboard::insertPayload(payloadOf({ 2, 1 }), SecondHints::Copied);
    TutorialItemData expected(source);
    expected.mId = 5;
    expected.mName = QStringLiteral("name3(1)");
    QCOMPARE(session.record(5)->toJsonText(QString()), expected.toJsonText(QString()));
    QCOMPARE(session.record(6)->mHint2, QString());
    QCOMPARE(ItemClipboard::insertPayload(payloadOf({ 1 }), SecondHints::LookedUp), QList<int>({ 7 }));
    QCOMPARE(session.data().mDataList.last()->mHint2, QStringLiteral("#1"));
}

void tst_ItemClipboard::undoneAndForgotten()
{
    EditingSession session;
    session.load(QStringLiteral("1[2]"));
    session.sequence(QString(), [] { ItemClipboard::insertPayload(payloadOf({ 1 }), SecondHints::Copied); });
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

void tst_ItemClipboard::badPayload()
{
    // The payload and the tree that comes of it.
    static const char *const rows[][2] = {
        { "", "" },
        { "[ {", "" },
        { "{\"id\":1}", "" },
        { "[ 1, \"a\", {\"id\":7} ]", "1" },
        { "[ {\"id\":1,\"folder\":true,\"children\":[{\"id\":2},3]} ]", "" },
        { "[ {\"id\":1,\"folder\":true,\"children\":[{\"id\":1},{\"id\":1,\"hint2\":[]}]} ]", "1[2 3]" },
        { "[ {\"id\":1,\"children\":[{\"id\":2}]}, {\"id\":3} ]", "1 2" },
    };
    for (const auto &row : rows) {
        EditingSession session;
        ItemClipboard::insertPayload(QLatin1String(row[0]), SecondHints::Copied);
        QVERIFY2(session.shape() == QLatin1String(row[1]), row[0]);
        QCOMPARE(session.recordIds().size(), session.shape().count(QRegularExpression(QStringLiteral("\\d"))));
    }
}

QTEST_MAIN(tst_ItemClipboard)
#include "tst_ItemClipboard.moc"

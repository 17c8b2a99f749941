#include "support/EditingSession.h"
#include "Tutorial/ItemClipboard.h"

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

/// The items of a document: their records, their names and their copies.
class tst_Model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsRecords()
    {
        EditingSession session;
        session.context().mTranslations = { { QStringLiteral("#3"), QStringLiteral("three") } };
        // The record's text, and what makes it differ from an empty record.
        const char *const rows[][2] = {
            { "{\"id\":3,\"name\":\"n\",\"x\":1,\"y\":-2,\"windowKey\":\"w\",\"condition\":\"c\",\"hint\":\"h\","
              "\"hint2\":"
              "\"-\",\"icon\":\"eye\",\"jump\":4,\"jumpNo\":5,\"command\":\"d\",\"showArrow\":false,\"prohibited\":"
              "true}",
              "id=3 name=n x=1 y=-2 windowKey=w condition=c hint=h hint2=three icon=eye jump=4 jumpNo=5 command=d "
              "showArrow=false prohibited=true" },
            { "{\"id\":3,\"folder\":true,\"x\":5,\"hint\":\"h\",\"followWindow\":\"w\",\"prohibited\":true}",
              "id=3 prohibited=true" },
            { "{\"followWindow\":\"w\"}", "id=0 hint2=#0 windowKey=w" },
            { "{\"id\":\"3\",\"name\":5,\"x\":\"1\",\"y\":1.5,\"icon\":true,\"showArrow\":\"true\",\"jump\":null}",
              "id=0 hint2=#0 x=0 y=0 icon= showArrow=false jump=0" },
        };
        for (const auto &row : rows) {
            const std::unique_ptr<TutorialItemData> record(
                TutorialItemData::fromJson(JsonWrapper(QString::fromLatin1(row[0]))));
            TutorialItemData expected;
            for (const QString &change : QString::fromLatin1(row[1]).split(QLatin1Char(' ')))
                expected.setValue(change.section(QLatin1Char('='), 0, 0), change.section(QLatin1Char('='), 1));
            QVERIFY(record);
            QCOMPARE(record->toJsonText(QString()), expected.toJsonText(QString()));
        }
    }
    void makesValidNames()
    {
        // The name that is wanted, others that are there, and what comes of it.
        const char *const rows[][2] = {
            { "abc,abd,ABC,", "abc" },
            { "item007,item007,item012", "item013" },
            { "abc(2),abc(2),abc(10)", "abc(11)" },
            { "abc(x),abc(x)", "abc(x)1" },
        };
        for (const auto &row : rows) {
            const QStringList names = QString::fromUtf8(row[0]).split(QLatin1Char(','));
            EditingSession session;
            session.load(QStringLiteral("1 2 3"));
            for (int id = 1; id < names.size(); ++id)
                session.record(id)->mName = names.at(id);
            QCOMPARE(session.data().getValidName(names.first()), QString::fromUtf8(row[1]));
        }
    }
    void makesNewIds()
    {
        EditingSession session;
        QCOMPARE(session.data().getNewId(), 1);
        session.load(QStringLiteral("2 99999998 99999999 1 100000000"));
        QCOMPARE(session.recordIds(), (QList<int>{ 2, 99999998, 1 }));
        QCOMPARE(session.data().getNewId(), 3);
    }
    void pastesIdsAndNames()
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
        QCOMPARE(
            pasted("a a(1) a(4) a(1)(3) a(07)", { 1, 2 }, true),
            QStringLiteral("5 7|1 2[3[4] 6] 5 7[8[9] 10]||a|a(1)|a(4)|a(1)(3)|a(07)|a(5)|a(1)(4)|a(4)(1)|a(1)(3)(1)|"
                           "a(07)(1)"));
        QCOMPARE(pasted("a b c d e", { 4, 4 }, true), QStringLiteral("5 7|1 2[3[4] 6] 5 7||a|b|c|d|e|d(1)|d(2)"));
        QCOMPARE(pasted("a b c d e", {}, true), QStringLiteral("|1 2[3[4] 6]||a|b|c|d|e"));
    }
    void copiesFields()
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
        session.record(1)->mHint2.clear();
        ItemClipboard::insertPayload(payloadOf({ 2, 1 }), SecondHints::Copied);
        TutorialItemData expected(source);
        expected.mId = 5;
        expected.mName = QStringLiteral("name3(1)");
        QCOMPARE(session.record(5)->toJsonText(QString()), expected.toJsonText(QString()));
        QCOMPARE(session.record(6)->mHint2, QString());
        QCOMPARE(ItemClipboard::insertPayload(payloadOf({ 1 }), SecondHints::LookedUp), QList<int>({ 7 }));
        QCOMPARE(session.data().mDataList.last()->mHint2, QStringLiteral("#1"));
    }
};

QTEST_MAIN(tst_Model)
#include "tst_Model.moc"

#include "EditingSession.h"

#include <QtTest>

namespace
{
/// Runs an edit told in words: "item 3", "delete 2,4", "before 1,2 5", "into 1,2 5".
void run(const QString &edit)
{
    const QStringList words = edit.split(QLatin1Char(' '));
    const QString link = QStringLiteral("link");
    const QString &verb = words.at(0);
    const int target = words.last().toInt();
    const QList<int> idList = DataSupport::getIntList(words.at(1).split(QLatin1Char(',')));
    if (verb == QLatin1String("item"))
        UndoRedo::createItemCommand(target, -1, QStringLiteral("new"), link, QVariantMap());
    else if (verb == QLatin1String("delete"))
        UndoRedo::deleteItemsCommand(idList, link, QVariantMap());
    else
        UndoRedo::moveItemsCommand(idList, verb == QLatin1String("before"), target, link, QVariantMap());
}
} // namespace

class TreeCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edit_data();
    void edit();
    void moveWithoutAPlace();
    void deleteTakesBackJumps();
};

void TreeCommandsTest::edit_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("shape");
    const auto row = [](const char *document, const char *command, const char *shape) {
        QTest::newRow(command) << QString::fromLatin1(document) << QString::fromLatin1(shape);
    };
    row("1 2[3 4] 6", "item 3", "1 2[3 5 4] 6");
    row("1 2[3 4[5] 6] 7", "delete 3,2", "1 7");
    row("1 2 3 4", "before 4,3 1", "4 3 1 2");
    row("1 2 3 4", "before 1,2,1 4", "3 2 1 4");
    row("1[2 3 4]", "into 2 1", "1[3 4 2]");
    row("1[2 3[4]] 5", "before 1,3,4 5", "1[2] 3[] 4 5");
}

void TreeCommandsTest::edit()
{
    QFETCH(QString, document);
    QFETCH(QString, shape);
    EditingSession session;
    session.load(document);
    const QList<TutorialItemData *> records = session.data().mDataList;
    run(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(session.context().takeLink(), QString());
    QCOMPARE(session.shape(), shape);
    session.history().undo();
    QCOMPARE(session.context().takeLink(), QStringLiteral("link"));
    QCOMPARE(session.shape(), document);
    QCOMPARE(session.data().mDataList, records);
    session.history().redo();
    QCOMPARE(session.shape(), shape);
}

void TreeCommandsTest::moveWithoutAPlace()
{
    const QString document = QStringLiteral("1[2 3[4]] 5 6");
    for (const char *edit : { "into 5 9", "before 5 -1", "before 5 5", "into 1 3", "before 9 5" }) {
        EditingSession session;
        session.load(document);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("parent of .* not found")));
        run(QString::fromLatin1(edit));
        QCOMPARE(session.shape(), document);
    }
}

void TreeCommandsTest::deleteTakesBackJumps()
{
    EditingSession session;
    session.load(QStringLiteral("1 2[3] 4"));
    session.record(1)->mJump = 3;
    session.sequence(QStringLiteral("delete"), [] { run(QStringLiteral("delete 2")); });
    QCOMPARE(session.record(1)->mJump, -1);
    session.history().undo();
    QCOMPARE(session.record(1)->mJump, 3);
}

QTEST_MAIN(TreeCommandsTest)
#include "tst_TreeCommands.moc"

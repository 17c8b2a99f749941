#include "EditingSession.h"
#include "UndoRedo/AddFolderCommand.h"
#include "UndoRedo/CreateItemCommand.h"

#include <QPointer>
#include <QtTest>
#include <QUndoStack>

namespace
{
QList<int> idsOf(const QString &text)
{
    return DataSupport::getIntList(text.split(QLatin1Char(',')));
}

/// Runs an edit told in words: "item 3", "folder 3", "delete 2,4", "before 1,2 5", "into 1,2 5",
/// "rename 3", "insert 3".
void run(const QString &edit)
{
    const QStringList words = edit.split(QLatin1Char(' '));
    const QString link = QStringLiteral("link");
    const QString &verb = words.at(0);
    const int target = words.last().toInt();
    const QVariantMap option;
    if (verb == QLatin1String("item"))
        UndoRedo::createItemCommand(target, -1, QStringLiteral("new"), link, option);
    else if (verb == QLatin1String("folder"))
        UndoRedo::addFolderCommand(target, -1, link, option);
    else if (verb == QLatin1String("delete"))
        UndoRedo::deleteItemsCommand(idsOf(words.at(1)), link, option);
    else if (verb == QLatin1String("rename"))
        UndoRedo::renameItemCommand(target, QStringLiteral("new"), link, option);
    else if (verb == QLatin1String("insert"))
        UndoRedo::insertItemCommand(target, 0, 90, true, new TutorialItemData, link, option);
    else
        UndoRedo::moveItemsCommand(idsOf(words.at(1)), verb == QLatin1String("before"), target, link, option);
}
} // namespace

class TreeCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edit_data();
    void edit();
    void moveWithoutAPlace_data();
    void moveWithoutAPlace();
    void missingTarget();
    void linkFollowsEachRunButTheFirst_data();
    void linkFollowsEachRunButTheFirst();
    void addedIdStays();
    void folderIdByOption();
    void deleteGivesBackTheSameRecords();
    void deleteTakesBackJumps();
    void freedIdCanBeUsedMeanwhile();
    void recordsOfForgottenCommandsAreFreed();
    void texts_data();
    void texts();
};

void TreeCommandsTest::edit_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("records");

    const auto row = [](const char *name, const char *document, const char *command, const char *shape,
                        const char *records) {
        QTest::newRow(name) << QString::fromLatin1(document) << QString::fromLatin1(command)
                            << QString::fromLatin1(shape) << QString::fromLatin1(records);
    };
    row("item to the root", "1 2", "item -1", "1 2 3", "1, 2, 3");
    row("item into an empty document", "", "item -1", "1", "1");
    row("item behind an item", "1 2[3 4] 5", "item 3", "1 2[3 6 4] 5", "1, 2, 3, 4, 5, 6");
    row("item into a folder", "1 2[3] 4", "item 2", "1 2[3 5] 4", "1, 2, 3, 4, 5");
    row("lowest free id", "1 3 4", "item 1", "1 2 3 4", "1, 3, 4, 2");
    row("folder behind an item", "1 2", "folder 1", "1 3[] 2", "1, 2, 3");
    row("folder into a folder", "1[2]", "folder 1", "1[2 3[]]", "1, 2, 3");
    row("record at a position", "1 2", "insert -1", "90[] 1 2", "1, 2, 90");

    row("delete one", "1 2 3", "delete 2", "1 3", "1, 3");
    row("delete two", "1 2 3 4", "delete 2,4", "1 3", "1, 3");
    row("delete against the order", "1 2 3 4", "delete 4,1,3", "2", "2");
    row("delete a folder with two levels", "1 2[3 4[5] 6] 7", "delete 2", "1 7", "1, 7");
    row("delete in a folder", "1[2 3[4] 5]", "delete 3,5", "1[2]", "1, 2");
    row("delete an item with its folder", "1 2[3 4] 5", "delete 3,2", "1 5", "1, 5");
    row("delete all", "2[1] 3", "delete 2,3", "", "");
    row("delete what is not there", "1 2", "delete 7", "1 2", "1, 2");
    row("delete the root", "1 2", "delete -1", "1 2", "1, 2");

    row("first before the third", "1 2 3", "before 1 3", "2 1 3", "1, 2, 3");
    row("last before the first", "1 2 3", "before 3 1", "3 1 2", "1, 2, 3");
    row("two before one", "1 2 3 4", "before 1,3 4", "2 1 3 4", "1, 2, 3, 4");
    row("two in an order of their own", "1 2 3 4", "before 4,3 1", "4 3 1 2", "1, 2, 3, 4");
    row("one twice", "1 2 3 4", "before 1,2,1 4", "3 2 1 4", "1, 2, 3, 4");
    row("out of a folder", "1[2 3] 4", "before 3 4", "1[2] 3 4", "1, 2, 3, 4");
    row("folder into a folder", "1[2] 3[4] 5", "into 3 1", "1[2 3[4]] 5", "1, 2, 3, 4, 5");
    row("to the end of its own folder", "1[2 3 4]", "into 2 1", "1[3 4 2]", "1, 2, 3, 4");
    row("to the end of the root", "1[2] 3", "into 2,1 -1", "3 2 1[]", "1, 2, 3");
    row("folder and what it holds", "1[2 3[4]] 5", "before 1,3,4 5", "1[2] 3[] 4 5", "1, 2, 3, 4, 5");
    row("siblings and cousins", "1 2[3 4] 5[6]", "into 1,4,6 5", "2[3] 5[1 4 6]", "1, 2, 3, 4, 5, 6");
}

void TreeCommandsTest::edit()
{
    QFETCH(QString, document);
    QFETCH(QString, command);
    QFETCH(QString, shape);
    QFETCH(QString, records);
    EditingSession session;
    session.load(document);
    const QList<int> recordsBefore = session.recordIds();

    QCOMPARE(session.sequence(QStringLiteral("edit"),
                              [&] {
                                  run(command);
                                  if (command.startsWith(QLatin1String("insert")))
                                      session.data().mDataList.last()->mId = 90;
                              }),
             shape);
    QCOMPARE(DataSupport::join(session.recordIds(), QStringLiteral(", ")), records);
    for (int i = 0; i < 2; ++i) {
        session.history().undo();
        QCOMPARE(session.shape(), document);
        QCOMPARE(session.recordIds(), recordsBefore);
        session.history().redo();
        QCOMPARE(session.shape(), shape);
        QCOMPARE(DataSupport::join(session.recordIds(), QStringLiteral(", ")), records);
    }
}

void TreeCommandsTest::moveWithoutAPlace_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QString>("shape");

    const QString noTarget = QStringLiteral("parent of mTargetId not found");
    const QString noItem = QStringLiteral("parent of id not found");
    const QString same = QStringLiteral("1[2 3[4]] 5 6");
    QTest::newRow("unknown target") << QStringLiteral("before 5 9") << noTarget << same;
    QTest::newRow("unknown folder") << QStringLiteral("into 5 9") << noTarget << same;
    QTest::newRow("before the root") << QStringLiteral("before 5 -1") << noTarget << same;
    QTest::newRow("before itself") << QStringLiteral("before 5 5") << noTarget << same;
    QTest::newRow("into itself") << QStringLiteral("into 1 1") << noTarget << same;
    QTest::newRow("below itself") << QStringLiteral("into 1 3") << noTarget << same;
    QTest::newRow("unknown item") << QStringLiteral("before 9 5") << noItem << same;
    QTest::newRow("those in front of it move")
        << QStringLiteral("into 5,1,6 3") << noTarget << QStringLiteral("1[2 3[4 5]] 6");
}

void TreeCommandsTest::moveWithoutAPlace()
{
    QFETCH(QString, command);
    QFETCH(QString, warning);
    QFETCH(QString, shape);
    EditingSession session;
    const QString document = QStringLiteral("1[2 3[4]] 5 6");
    session.load(document);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    run(command);
    QCOMPARE(session.shape(), shape);
    session.history().undo();
    QCOMPARE(session.shape(), document);
}

void TreeCommandsTest::missingTarget()
{
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    QPointer<TutorialItemData> record = new TutorialItemData;
    const QRegularExpression warning(QStringLiteral("target not found 9"));
    for (int i = 0; i < 3; ++i)
        QTest::ignoreMessage(QtWarningMsg, warning);
    run(QStringLiteral("item 9"));
    run(QStringLiteral("folder 9"));
    UndoRedo::insertItemCommand(9, -1, 3, false, record, QString(), QVariantMap());
    QCOMPARE(session.shape(), QStringLiteral("1 2"));
    QCOMPARE(session.recordIds(), QList<int>({ 1, 2 }));
    while (session.history().canUndo())
        session.history().undo();
    QCOMPARE(session.recordIds(), QList<int>({ 1, 2 }));
    session.history().clear();
    QVERIFY(!record);
}

void TreeCommandsTest::linkFollowsEachRunButTheFirst_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command : { "item 1", "folder 1", "delete 2", "before 2 1", "rename 2" })
        QTest::newRow(command) << QString::fromLatin1(command);
}

void TreeCommandsTest::linkFollowsEachRunButTheFirst()
{
    QFETCH(QString, command);
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    run(command);
    QCOMPARE(session.context().takeLink(), QString());
    session.history().undo();
    QCOMPARE(session.context().takeLink(), QStringLiteral("link"));
    session.history().redo();
    QCOMPARE(session.context().takeLink(), QStringLiteral("link"));
}

void TreeCommandsTest::addedIdStays()
{
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    CreateItemCommand *item = UndoRedo::createItemCommand(-1, -1, QStringLiteral("new"), QString(), QVariantMap());
    QCOMPARE(item->newId(), 3);
    AddFolderCommand *folder = UndoRedo::addFolderCommand(-1, 0, QString(), QVariantMap());
    QCOMPARE(folder->newId(), 4);
    QCOMPARE(session.record(4)->mName, QStringLiteral("folder1"));
    session.history().undo();
    session.history().undo();
    session.history().redo();
    session.history().redo();
    QCOMPARE(session.shape(), QStringLiteral("4[] 1 2 3"));
    QCOMPARE(session.record(3)->mName, QStringLiteral("new"));
}

void TreeCommandsTest::folderIdByOption()
{
    EditingSession session;
    QVariantMap option;
    option.insert(QStringLiteral("newId"), 17);
    UndoRedo::addFolderCommand(-1, -1, QString(), option);
    QCOMPARE(session.shape(), QStringLiteral("17[]"));
}

void TreeCommandsTest::deleteGivesBackTheSameRecords()
{
    EditingSession session;
    session.load(QStringLiteral("1 2[3 4[5] 6] 7"));
    session.record(5)->mHint = QStringLiteral("hint");
    const QList<TutorialItemData *> records = session.data().mDataList;
    run(QStringLiteral("delete 2,7"));
    session.history().undo();
    QCOMPARE(session.data().mDataList, records);
    QCOMPARE(session.record(5)->mHint, QStringLiteral("hint"));
}

void TreeCommandsTest::deleteTakesBackJumps()
{
    EditingSession session;
    session.load(QStringLiteral("1 2[3] 4"));
    session.record(1)->mJump = 3;
    session.record(1)->mJumpNo = 4;
    session.record(4)->mJumpNo = 2;
    const auto jumps = [&session] {
        return QList<int>({ session.record(1)->mJump, session.record(1)->mJumpNo, session.record(4)->mJumpNo });
    };
    session.sequence(QStringLiteral("delete"), [] { run(QStringLiteral("delete 2")); });
    QCOMPARE(jumps(), QList<int>({ -1, 4, -1 }));
    session.history().undo();
    QCOMPARE(jumps(), QList<int>({ 3, 4, 2 }));
    session.history().redo();
    QCOMPARE(jumps(), QList<int>({ -1, 4, -1 }));
}

void TreeCommandsTest::freedIdCanBeUsedMeanwhile()
{
    EditingSession session;
    session.load(QStringLiteral("1 2 3"));
    run(QStringLiteral("delete 2"));
    run(QStringLiteral("item 3"));
    QCOMPARE(session.shape(), QStringLiteral("1 3 2"));
    QCOMPARE(session.record(2)->mName, QStringLiteral("new"));
    session.history().undo();
    session.history().undo();
    QCOMPARE(session.shape(), QStringLiteral("1 2 3"));
    QCOMPARE(session.record(2)->mName, QStringLiteral("name2"));
}

void TreeCommandsTest::recordsOfForgottenCommandsAreFreed()
{
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    QPointer<TutorialItemData> deleted = session.record(1);
    QPointer<TutorialItemData> kept = session.record(2);
    QPointer<TutorialItemData> inserted = new TutorialItemData;
    inserted->mId = 3;
    UndoRedo::insertItemCommand(-1, -1, 3, false, inserted, QString(), QVariantMap());
    session.history().undo();
    QVERIFY(!session.record(3));
    session.history().redo();
    QCOMPARE(session.record(3), inserted.data());
    session.history().undo();
    // The next step takes the place of the insertion.
    run(QStringLiteral("delete 1"));
    QVERIFY(!inserted);
    QVERIFY(deleted);
    session.history().clear();
    QVERIFY(!deleted);
    QVERIFY(kept);
}

void TreeCommandsTest::texts_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("text");
    QTest::newRow("item") << QStringLiteral("item 1") << QStringLiteral("AddItem(1, -1, new)");
    QTest::newRow("folder") << QStringLiteral("folder 1") << QStringLiteral("AddFolder(1, -1)");
    QTest::newRow("insert") << QStringLiteral("insert 1") << QStringLiteral("InsertTreeItemCommand(1, 0, 90)");
    QTest::newRow("delete") << QStringLiteral("delete 1,2") << QStringLiteral("DeleteTreeItemCommand((1, 2))");
    QTest::newRow("move") << QStringLiteral("before 1 2") << QStringLiteral("MoveTreeItemCommand((1), 1, 2)");
    QTest::newRow("rename") << QStringLiteral("rename 1") << QStringLiteral("RenameTreeItemName(1, new)");
}

void TreeCommandsTest::texts()
{
    QFETCH(QString, command);
    QFETCH(QString, text);
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    run(command);
    QCOMPARE(session.history().findChild<QUndoStack *>()->undoText(), text);
}

QTEST_MAIN(TreeCommandsTest)
#include "tst_TreeCommands.moc"

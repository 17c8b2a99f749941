#include "EditingSession.h"
#include "UndoRedo/AddFolderCommand.h"
#include "UndoRedo/CreateItemCommand.h"

#include <QtTest>

/// The history's transactions, its limit and the saved state.
class UndoRedoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void singleInsideASequence();
    void savedState_data();
    void savedState();
    void unredoable();
    void temporaryFolders();

private:
    void step() { UndoRedo::renameItemCommand(1, QStringLiteral("n%1").arg(++mCount), QString(), QVariantMap()); }
    UndoRedo &history() { return mSession->history(); }
    QString name() { return mSession->record(1)->mName; }

    std::unique_ptr<EditingSession> mSession;
    int mCount = 0;
};

void UndoRedoTest::init()
{
    mCount = 0;
    mSession.reset(); // there is but one history at a time
    mSession = std::make_unique<EditingSession>();
    mSession->load(QStringLiteral("1 2"));
}

void UndoRedoTest::singleInsideASequence()
{
    history().beginSequence(QStringLiteral("outer"));
    history().beginSingle(QStringLiteral("inner"));
    mSession->record(1)->setX(1);
    history().endSingle();
    QVERIFY(history().inTransaction());
    QVERIFY(!history().canUndo());
    mSession->record(1)->setY(2);
    history().endSequence();
    history().endSequence(); // of nothing
    history().undo();
    QCOMPARE(mSession->record(1)->mX, TutorialItemData::kNoPosition);
    QCOMPARE(mSession->record(1)->mY, TutorialItemData::kNoPosition);
    QVERIFY(!history().canUndo());
}

void UndoRedoTest::savedState_data()
{
    QTest::addColumn<bool>("modified");
    // s: a step in a sequence, u: undo, r: redo, S: save, c: clear, e: an empty sequence, x: commands
    // that find nothing to do.
    for (const char *script : { "su", "sSur", "sSe", "sSusc", "ssssssssssSsu", "ssssssssssuuuuuuuuuu", "x",
                                "sssssssssseuuuuuuuuuu", "ssssssssssxuuuuuuuuuu" })
        QTest::newRow(script) << false;
    for (const char *script : { "s", "sSu", "ssSus", "ssSusu", "sSueu", "sssssssssssuuuuuuuuuu" })
        QTest::newRow(script) << true;
}

void UndoRedoTest::savedState()
{
    QFETCH(bool, modified);
    const QHash<char, std::function<void()>> actions = {
        { 's', [this] { mSession->sequence(QStringLiteral("step"), [this] { step(); }); } },
        { 'x',
          [] {
              UndoRedo::renameItemCommand(99, QStringLiteral("n"), QString(), QVariantMap());
              UndoRedo::moveItemsCommand({ 99 }, true, 1, QString(), QVariantMap());
              UndoRedo::moveItemsCommand({ 1 }, true, 99, QString(), QVariantMap());
              UndoRedo::deleteItemsCommand({ 99 }, QString(), QVariantMap());
              QVERIFY(UndoRedo::createItemCommand(99, -1, QString(), QString(), QVariantMap())->newId() < 0);
              QVERIFY(UndoRedo::addFolderCommand(99, -1, QString(), QVariantMap())->newId() < 0);
              UndoRedo::insertItemCommand(99, -1, 98, false, new TutorialItemData, QString(), QVariantMap());
          } },
        { 'e', [this] { mSession->sequence(QStringLiteral("empty"), [] {}); } },
        { 'u', [this] { history().undo(); } },
        { 'r', [this] { history().redo(); } },
        { 'S', [this] { history().markClean(); } },
        { 'c', [this] { history().clear(); } },
    };
    for (const char *c = QTest::currentDataTag(); *c; ++c)
        actions.value (*c)();
    QCOMPARE(mSession->context().mModified, modified);
}

void UndoRedoTest::unredoable()
{
    step();
    step();
    history().undoAndMakeUnredoable();
    QCOMPARE(name(), QStringLiteral("n1"));
    QVERIFY(!history().canRedo());
    history().redo();
    QCOMPARE(name(), QStringLiteral("n1"));
    step();
    history().undo();
    QVERIFY(history().canRedo());
}

void UndoRedoTest::temporaryFolders()
{
    const QDir former(history().createTemporaryDir());
    QVERIFY(former.exists());
    history().removeTemporaryDir();
    QVERIFY(!former.exists());

    // Without a place for temporary folders none is made elsewhere.
    const QTemporaryDir current;
    const QString working = QDir::currentPath();
    const QByteArray place = qgetenv("TMPDIR");
    QVERIFY(QDir::setCurrent(current.path()));
    qputenv("TMPDIR", "/dev/null"); // no folder at all
    mSession.reset();
    mSession = std::make_unique<EditingSession>();
    QVERIFY(!history().isTemporaryDirAvailable());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Failed to mkdir")));
    QCOMPARE(history().createTemporaryDir(), QString());
    QVERIFY(QDir().isEmpty());
    place.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", place);
    QDir::setCurrent(working);
}

QTEST_MAIN(UndoRedoTest)
#include "tst_UndoRedo.moc"

#include "EditingSession.h"

#include <QFileInfo>
#include <QtTest>
#include <QUndoCommand>
#include <QUndoStack>

/// The history's transactions, its limit and the saved state.
class UndoRedoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void emptySequenceLeavesNoStep();
    void emptySequenceAtTheLimit();
    void nestedSequences();
    void endWithNothingOpen();
    void singleInsideASequence();
    void limit();
    void savedState_data();
    void savedState();
    void unredoable();
    void clearEndsATransaction();
    void lastTransactionName();
    void signalsFollowTheStack();
    void temporaryFolders();

private:
    void step() { UndoRedo::renameItemCommand(1, QStringLiteral("n%1").arg(++mCount), QString(), QVariantMap()); }
    UndoRedo &history() { return mSession->history(); }
    int index() { return history().findChild<QUndoStack *>()->index(); }
    QString name() { return mSession->record(1)->mName; }

    std::unique_ptr<EditingSession> mSession;
    int mCount = 0;
};

void UndoRedoTest::init()
{
    mCount = 0;
    mSession = std::make_unique<EditingSession>();
    mSession->load(QStringLiteral("1 2"));
}

void UndoRedoTest::cleanup()
{
    mSession.reset();
    QVERIFY(!UndoRedo::instance());
}

void UndoRedoTest::emptySequenceLeavesNoStep()
{
    step();
    step();
    history().undo();
    history().beginSequence(QStringLiteral("empty"));
    history().beginSequence(QStringLiteral("inner"));
    history().endSequence();
    history().endSequence();
    QCOMPARE(index(), 1);
    QVERIFY(history().canUndo());
    QVERIFY(!history().canRedo());
    history().redo();
    QCOMPARE(index(), 1);
    history().undo();
    QCOMPARE(name(), QStringLiteral("name1"));
}

void UndoRedoTest::emptySequenceAtTheLimit()
{
    for (int i = 0; i < 10; ++i)
        step();
    history().beginSequence(QStringLiteral("empty"));
    history().endSequence();
    history().undo();
    QCOMPARE(name(), QStringLiteral("n9"));
}

void UndoRedoTest::nestedSequences()
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Assertion failed: !mInTransaction")));
    history().beginSequence(QStringLiteral("outer"));
    history().beginSequence(QStringLiteral("inner"));
    step();
    history().endSequence();
    QVERIFY(history().inTransaction());
    QVERIFY(!history().canUndo());
    step();
    history().endSequence();
    QVERIFY(!history().inTransaction());
    QVERIFY(history().canUndo());
    history().undo();
    QCOMPARE(name(), QStringLiteral("name1"));
    QVERIFY(!history().canUndo());
}

void UndoRedoTest::endWithNothingOpen()
{
    step();
    history().endSequence();
    history().endSingle();
    QCOMPARE(index(), 1);
    QVERIFY(!history().inTransaction());
}

void UndoRedoTest::singleInsideASequence()
{
    history().beginSequence(QStringLiteral("outer"));
    history().beginSingle(QStringLiteral("inner"));
    mSession->record(1)->setX(1);
    history().endSingle();
    mSession->record(1)->setY(2);
    history().endSequence();
    history().undo();
    QCOMPARE(mSession->record(1)->mX, TutorialItemData::kNoPosition);
    QCOMPARE(mSession->record(1)->mY, TutorialItemData::kNoPosition);
    QVERIFY(!history().canUndo());
}

void UndoRedoTest::limit()
{
    for (int i = 0; i < 11; ++i)
        step();
    int undone = 0;
    for (; history().canUndo(); ++undone)
        history().undo();
    QCOMPARE(undone, 10);
    QCOMPARE(name(), QStringLiteral("n1"));
}

void UndoRedoTest::savedState_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<bool>("modified");
    // s: a step in a sequence, u: undo, r: redo, S: save, c: clear, e: an empty sequence.
    QTest::newRow("fresh") << QString() << false;
    QTest::newRow("step") << QStringLiteral("s") << true;
    QTest::newRow("step back") << QStringLiteral("su") << false;
    QTest::newRow("saved") << QStringLiteral("sS") << false;
    QTest::newRow("back from the saved state") << QStringLiteral("sSu") << true;
    QTest::newRow("back and forth") << QStringLiteral("sSur") << false;
    QTest::newRow("empty sequence") << QStringLiteral("sSe") << false;
    QTest::newRow("another branch of the same length") << QStringLiteral("ssSus") << true;
    QTest::newRow("back on another branch") << QStringLiteral("ssSusu") << true;
    QTest::newRow("saved state cut off by an empty sequence") << QStringLiteral("sSueu") << true;
    QTest::newRow("cleared") << QStringLiteral("sSssc") << false;
    QTest::newRow("cleared off a branch") << QStringLiteral("sSusc") << false;
    QTest::newRow("at the limit") << QStringLiteral("ssssssssssS") << false;
    QTest::newRow("past the limit") << QStringLiteral("ssssssssssSs") << true;
    QTest::newRow("past the limit and back") << QStringLiteral("ssssssssssSsu") << false;
    QTest::newRow("first state fell off") << QStringLiteral("sssssssssssuuuuuuuuuu") << true;
    QTest::newRow("first state stands") << QStringLiteral("ssssssssssuuuuuuuuuu") << false;
}

void UndoRedoTest::savedState()
{
    QFETCH(QString, script);
    QFETCH(bool, modified);
    for (const QChar c : script) {
        switch (c.toLatin1()) {
        case 's':
            mSession->sequence(QStringLiteral("step"), [this] { step(); });
            break;
        case 'e':
            mSession->sequence(QStringLiteral("empty"), [] {});
            break;
        case 'u':
            history().undo();
            break;
        case 'r':
            history().redo();
            break;
        case 'S':
            history().markClean();
            break;
        case 'c':
            history().clear();
            break;
        }
    }
    QCOMPARE(mSession->context().mModified, modified);
}

void UndoRedoTest::unredoable()
{
    step();
    step();
    mSession->context().setPendingJumpLink(QStringLiteral("link"));
    history().undoAndMakeUnredoable();
    QCOMPARE(mSession->context().takeLink(), QString());
    QCOMPARE(name(), QStringLiteral("n1"));
    QVERIFY(history().findChild<QUndoStack *>()->canRedo());
    QVERIFY(!history().canRedo());
    history().redo();
    QCOMPARE(index(), 1);
    step();
    QCOMPARE(index(), 2);
    history().undo();
    QVERIFY(history().canRedo());
}

void UndoRedoTest::clearEndsATransaction()
{
    history().beginSequence(QStringLiteral("open"));
    step();
    history().clear();
    QVERIFY(!history().inTransaction());
    QVERIFY(history().isEmpty());
    step();
    history().endSequence();
    QCOMPARE(index(), 1);
    QVERIFY(history().canUndo());
}

void UndoRedoTest::lastTransactionName()
{
    history().beginSequence(QStringLiteral("a"));
    history().endSequence();
    history().beginSingle(QStringLiteral("b"));
    QCOMPARE(history().lastTransactionName(), QStringLiteral("a"));
    history().endSingle();
    QCOMPARE(history().lastTransactionName(), QStringLiteral("b"));
}

void UndoRedoTest::signalsFollowTheStack()
{
    QSignalSpy undoSpy(&history(), &UndoRedo::canUndoChanged);
    QSignalSpy redoSpy(&history(), &UndoRedo::canRedoChanged);
    mSession->sequence(QStringLiteral("empty"), [] {});
    QCOMPARE(undoSpy.last().first().toBool(), false);
    QCOMPARE(redoSpy.last().first().toBool(), false);
    step();
    QCOMPARE(undoSpy.last().first().toBool(), true);
    history().undo();
    QCOMPARE(redoSpy.last().first().toBool(), true);
}

void UndoRedoTest::temporaryFolders()
{
    QVERIFY(history().isTemporaryDirAvailable());
    const QString first = history().createTemporaryDir();
    const QString second = history().createTemporaryDir();
    QVERIFY(first.endsWith(QLatin1String("/0")) && QFileInfo(first).isDir());
    QVERIFY(second.endsWith(QLatin1String("/1")) && QFileInfo(second).isDir());
    QVERIFY(QDir(QFileInfo(first).path()).mkdir(QStringLiteral("2")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Failed to mkdir")));
    QCOMPARE(history().createTemporaryDir(), QString());
    mSession.reset();
    QVERIFY(!QFileInfo::exists(first));
}

QTEST_MAIN(UndoRedoTest)
#include "tst_UndoRedo.moc"

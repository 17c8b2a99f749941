#include "EditingSession.h"

#include <QtTest>
#include <QUndoStack>

class MergeableCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void script_data();
    void script();
    void mergeWindow();
    void linksAreThoseOfTheRuns();
};

void MergeableCommandsTest::script_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("state");
    // The state is x and y of item 1, x of item 2, the index and the number of steps.
    const auto row = [](const char *name, const char *script, const char *state) {
        QTest::newRow(name) << QString::fromLatin1(script) << QString::fromLatin1(state);
    };
    row("same value", "seq:a 1.x=5 1.x=5 end single:b 1.x=5 done", "5 0 0 1/1");
    row("two items", "seq:a 1.x=5 2.x=6 1.y=7 2.x=8 end undo redo", "5 7 8 1/1");
    row("there and back", "seq:a 1.x=5 1.x=0 end", "0 0 0 1/1");
    row("round a tree command, undone", "seq:a 1.x=5 rename 1.x=6 end undo", "0 0 0 0/1");

    row("quick singles, undone", "single:a 1.x=5 done single:a 1.x=6 1.y=7 done undo", "0 0 0 0/1");
    row("another name, then back", "single:a 1.x=5 done single:b 1.x=6 done single:a 1.x=7 done", "7 0 0 3/3");
    row("unmergeable once", "single:a 1.x=5 done unmergeable single:a 1.x=6 done single:a 1.x=7 done", "7 0 0 2/2");
    row("single behind a sequence", "seq:a 1.x=5 rename 1.y=6 end single:a 1.x=7 done undo", "0 0 0 0/1");
    row("single with a tree command", "single:a rename 1.x=5 1.y=6 done undo", "0 0 0 1/2");
    row("sequences do not merge", "seq:a 1.x=5 end seq:a 1.x=6 end undo", "5 0 0 1/2");
    row("behind an undo, undone", "single:a 1.x=5 done single:b 1.x=6 done undo single:b 1.y=7 done undo", "5 0 0 1/2");
    row("behind an empty sequence", "single:a 1.x=5 done seq:a end single:a 1.x=6 done undo", "0 0 0 0/2");
    row("outside a transaction", "1.x=5 seq:a 1.x=6 end undo", "5 0 0 0/1");
}

void MergeableCommandsTest::script()
{
    QFETCH(QString, script);
    QFETCH(QString, state);
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    for (TutorialItemData *record : qAsConst(session.data().mDataList))
        record->mX = record->mY = 0;
    UndoRedo &history = session.history();

    for (const QString &token : script.split(QLatin1Char(' '))) {
        const QString name = token.section(QLatin1Char(':'), 1);
        if (token.startsWith(QLatin1String("seq:")))
            history.beginSequence(name);
        else if (token.startsWith(QLatin1String("single:")))
            history.beginSingle(name);
        else if (token == QLatin1String("end"))
            history.endSequence();
        else if (token == QLatin1String("done"))
            history.endSingle();
        else if (token == QLatin1String("undo"))
            history.undo();
        else if (token == QLatin1String("redo"))
            history.redo();
        else if (token == QLatin1String("clear"))
            history.clear();
        else if (token == QLatin1String("unmergeable"))
            history.setUnmergeable();
        else if (token == QLatin1String("rename"))
            UndoRedo::renameItemCommand(1, QStringLiteral("new"), QString(), QVariantMap());
        else
            session.record(token.leftRef(1).toInt())->setValue(token.mid(2, 1), token.midRef(4).toInt());
    }
    const auto *stack = history.findChild<QUndoStack *>();
    QCOMPARE(QStringLiteral("%1 %2 %3 %4/%5")
                 .arg(session.record(1)->mX)
                 .arg(session.record(1)->mY)
                 .arg(session.record(2)->mX)
                 .arg(stack->index())
                 .arg(stack->count()),
             state);
}

void MergeableCommandsTest::mergeWindow()
{
    EditingSession session;
    session.load(QStringLiteral("1"));
    UndoRedo &history = session.history();
    const auto edit = [&](int x) {
        history.beginSingle(QStringLiteral("setX"));
        session.record(1)->setX(x);
        history.endSingle();
    };
    edit(1);
    history.markClean();
    QTest::qWait(300);
    edit(2);
    // Measured from begin to begin.
    QTest::qWait(1000);
    edit(3);
    history.undo();
    QCOMPARE(session.record(1)->mX, 2);
    // A merge into the saved state leaves no saved state.
    QVERIFY(session.context().mModified);
    history.undo();
    QCOMPARE(session.record(1)->mX, TutorialItemData::kNoPosition);
}

void MergeableCommandsTest::linksAreThoseOfTheRuns()
{
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    session.sequence(QStringLiteral("set"), [&session] {
        session.record(1)->setHint(QStringLiteral("a"));
        session.record(2)->setHint(QStringLiteral("b"));
    });
    QCOMPARE(session.context().takeLink(), QString());
    session.history().undo();
    // The last link is that of the head, which is undone last.
    QCOMPARE(session.context().takeLink(), QStringLiteral("{ \"tutorialItemId\": 1 }"));
    session.history().redo();
    QCOMPARE(session.context().takeLink(), QStringLiteral("{ \"tutorialItemId\": 2 }"));
}

QTEST_MAIN(MergeableCommandsTest)
#include "tst_MergeableCommands.moc"

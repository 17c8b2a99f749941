#include "EditingSession.h"

#include <QtTest>
#include <QUndoStack>

#include <functional>

class MergeableCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void script_data();
    void script();
    void mergeWindow();
};

void MergeableCommandsTest::script_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("state");
    // The state is x and y of the item, the index and the number of steps.
    const auto row = [](const char *name, const char *script, const char *state) {
        QTest::newRow(name) << QString::fromLatin1(script) << QString::fromLatin1(state);
    };
    row("same value", "seq:a 1.x=5 1.x=5 end single:b 1.x=5 done", "5 0 1/1");
    row("round a tree command, undone", "seq:a 1.x=5 rename 1.x=6 end undo", "0 0 0/1");

    row("quick singles, undone", "single:a 1.x=5 done single:a 1.x=6 1.y=7 done undo", "0 0 0/1");
    row("unmergeable once", "single:a 1.x=5 done unmergeable single:a 1.x=6 done single:a 1.x=7 done", "7 0 2/2");
    row("single behind a sequence", "seq:a 1.x=5 rename 1.y=6 end single:a 1.x=7 done undo", "0 0 0/1");
    row("sequences do not merge", "seq:a 1.x=5 end seq:a 1.x=6 end undo", "5 0 1/2");
    row("behind an undo, undone", "single:a 1.x=5 done single:b 1.x=6 done undo single:b 1.y=7 done undo", "5 0 1/2");
    row("outside a transaction", "1.x=5 seq:a 1.x=6 end undo", "5 0 0/1");
}

void MergeableCommandsTest::script()
{
    QFETCH(QString, script);
    QFETCH(QString, state);
    EditingSession session;
    session.load(QStringLiteral("1"));
    session.record(1)->mX = session.record(1)->mY = 0;
    UndoRedo &history = session.history();

    const QHash<QString, std::function<void(const QString &)>> actions = {
        { QStringLiteral("seq"), [&](const QString &name) { history.beginSequence(name); } },
        { QStringLiteral("end"), [&](const QString &) { history.endSequence(); } },
        { QStringLiteral("single"), [&](const QString &name) { history.beginSingle(name); } },
        { QStringLiteral("done"), [&](const QString &) { history.endSingle(); } },
        { QStringLiteral("undo"), [&](const QString &) { history.undo(); } },
        { QStringLiteral("unmergeable"), [&](const QString &) { history.setUnmergeable(); } },
        { QStringLiteral("rename"),
          [](const QString &) { UndoRedo::renameItemCommand(1, QStringLiteral("new"), QString(), QVariantMap()); } },
    };
    for (const QString &token : script.split(QLatin1Char(' '))) {
        if (const auto action = actions.value(token.section(QLatin1Char(':'), 0, 0)))
            action(token.section(QLatin1Char(':'), 1));
        else
            session.record(token.leftRef(1).toInt())->setValue(token.mid(2, 1), token.midRef(4).toInt());
    }
    const auto *stack = history.findChild<QUndoStack *>();
    QCOMPARE(QStringLiteral("%1 %2 %3/%4")
                 .arg(session.record(1)->mX)
                 .arg(session.record(1)->mY)
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

QTEST_MAIN(MergeableCommandsTest)
#include "tst_MergeableCommands.moc"

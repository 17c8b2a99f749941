#include "EditingSession.h"
#include "UndoRedo/ModifyTutorialItemDataCommand.h"

#include <QtTest>
#include <QUndoStack>

class MergeableCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void script_data();
    void script();
    void mergeWindow();
    void mergeIntoTheSavedState();
    void listEntriesAreUndoneFirst();
    void linkFollowsEachRunButTheFirst();
    void everyProperty();
    void withoutEffect();
    void text();
};

void MergeableCommandsTest::script_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("state");
    // The state is x and y of item 1, x of item 2, the index and the number of steps.
    const auto row = [](const char *name, const char *script, const char *state) {
        QTest::newRow(name) << QString::fromLatin1(script) << QString::fromLatin1(state);
    };
    row("push", "seq:a 1.x=5 end", "5 0 0 1/1");
    row("undo", "seq:a 1.x=5 end undo", "0 0 0 0/1");
    row("redo", "seq:a 1.x=5 end undo redo", "5 0 0 1/1");
    row("discard", "seq:a 1.x=5 end undo seq:b 1.y=7 end", "0 7 0 1/1");
    row("same value", "seq:a 1.x=5 1.x=5 end single:b 1.x=5 done", "5 0 0 1/1");
    row("one property twice", "seq:a 1.x=5 1.x=6 end undo", "0 0 0 0/1");
    row("one property twice, again", "seq:a 1.x=5 1.x=6 end undo redo", "6 0 0 1/1");
    row("two properties", "seq:a 1.x=5 1.y=6 end undo", "0 0 0 0/1");
    row("two properties, again", "seq:a 1.x=5 1.y=6 end undo redo", "5 6 0 1/1");
    row("one of two twice", "seq:a 1.x=5 1.y=6 1.x=7 1.y=8 end undo redo", "7 8 0 1/1");
    row("two items", "seq:a 1.x=5 2.x=6 1.y=7 2.x=8 end undo redo", "5 7 8 1/1");
    row("there and back", "seq:a 1.x=5 1.x=0 end", "0 0 0 1/1");
    row("round a tree command", "seq:a 1.x=5 rename 1.x=6 end undo redo undo redo", "6 0 0 1/1");
    row("round a tree command, undone", "seq:a 1.x=5 rename 1.x=6 end undo", "0 0 0 0/1");

    row("quick singles", "single:a 1.x=5 done single:a 1.x=6 1.y=7 done", "6 7 0 1/1");
    row("quick singles, undone", "single:a 1.x=5 done single:a 1.x=6 1.y=7 done undo", "0 0 0 0/1");
    row("quick singles, again", "single:a 1.x=5 done single:a 1.x=6 1.y=7 done undo redo", "6 7 0 1/1");
    row("another name", "single:a 1.x=5 done single:b 1.x=6 done", "6 0 0 2/2");
    row("another name, then back", "single:a 1.x=5 done single:b 1.x=6 done single:a 1.x=7 done", "7 0 0 3/3");
    row("unmergeable", "single:a 1.x=5 done unmergeable single:a 1.x=6 done", "6 0 0 2/2");
    row("unmergeable once", "single:a 1.x=5 done unmergeable single:a 1.x=6 done single:a 1.x=7 done", "7 0 0 2/2");
    row("two in a single", "single:a 1.x=5 1.y=6 done undo", "0 0 0 0/1");
    row("single behind a sequence", "seq:a 1.x=5 rename 1.y=6 end single:a 1.x=7 done undo", "0 0 0 0/1");
    row("single behind a sequence that ends otherwise", "seq:a 1.x=5 rename end single:a 1.x=7 done undo", "5 0 0 1/2");
    row("single with a tree command", "single:a rename 1.x=5 1.y=6 done undo", "0 0 0 1/2");
    row("sequences do not merge", "seq:a 1.x=5 end seq:a 1.x=6 end undo", "5 0 0 1/2");
    row("behind an undo", "single:a 1.x=5 done single:b 1.x=6 done undo single:b 1.y=7 done", "5 7 0 2/2");
    row("behind an undo, undone", "single:a 1.x=5 done single:b 1.x=6 done undo single:b 1.y=7 done undo", "5 0 0 1/2");
    row("behind an empty sequence", "single:a 1.x=5 done seq:a end single:a 1.x=6 done undo", "0 0 0 0/2");
    row("outside a transaction", "1.x=5 seq:a 1.x=6 end undo", "5 0 0 0/1");
    row("cleared", "single:a 1.x=5 done clear single:a 1.x=6 done undo", "5 0 0 0/1");
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
    QTest::qWait(300);
    edit(2);
    // Measured from begin to begin.
    QTest::qWait(1000);
    edit(3);
    history.undo();
    QCOMPARE(session.record(1)->mX, 2);
    history.undo();
    QCOMPARE(session.record(1)->mX, TutorialItemData::kNoPosition);
}

void MergeableCommandsTest::mergeIntoTheSavedState()
{
    EditingSession session;
    session.load(QStringLiteral("1"));
    UndoRedo &history = session.history();
    for (int x = 1; x < 3; ++x) {
        history.beginSingle(QStringLiteral("setX"));
        session.record(1)->setX(x);
        history.endSingle();
        if (x == 1)
            history.markClean();
    }
    QVERIFY(session.context().mModified);
    history.undo();
    history.redo();
    QVERIFY(session.context().mModified);
}

void MergeableCommandsTest::listEntriesAreUndoneFirst()
{
    EditingSession session;
    session.load(QStringLiteral("1 2"));
    session.sequence(QStringLiteral("set"), [&session] {
        session.record(1)->setHint(QStringLiteral("a"));
        session.record(2)->setHint(QStringLiteral("b"));
    });
    session.context().takeLink();
    session.history().undo();
    // The last link is that of the head, which is undone last.
    QVERIFY(session.context().takeLink().contains(QLatin1String(": 1 ")));
    session.history().redo();
    QVERIFY(session.context().takeLink().contains(QLatin1String(": 2 ")));
}

void MergeableCommandsTest::linkFollowsEachRunButTheFirst()
{
    EditingSession session;
    session.load(QStringLiteral("5"));
    UndoRedo &history = session.history();
    const QString link = QStringLiteral("{ \"tutorialItemId\": 5 }");
    session.sequence(QStringLiteral("set"), [&session] { session.record(5)->setX(1); });
    QCOMPARE(session.context().takeLink(), QString());
    history.undo();
    QCOMPARE(session.context().takeLink(), link);
    history.redo();
    QCOMPARE(session.context().takeLink(), link);
}

void MergeableCommandsTest::everyProperty()
{
    EditingSession session;
    session.load(QStringLiteral("1"));
    TutorialItemData *record = session.record(1);
    const QVariantMap values = { { QStringLiteral("name"), QStringLiteral("n") },
                                 { QStringLiteral("x"), 1 },
                                 { QStringLiteral("y"), 2 },
                                 { QStringLiteral("windowKey"), QStringLiteral("w") },
                                 { QStringLiteral("condition"), QStringLiteral("c") },
                                 { QStringLiteral("hint"), QStringLiteral("h") },
                                 { QStringLiteral("hint2"), QStringLiteral("h2") },
                                 { QStringLiteral("icon"), QStringLiteral("eye") },
                                 { QStringLiteral("jump"), 3 },
                                 { QStringLiteral("jumpNo"), 4 },
                                 { QStringLiteral("command"), QStringLiteral("m") },
                                 { QStringLiteral("showArrow"), false },
                                 { QStringLiteral("prohibited"), true } };
    const QString before = record->toJsonText(QString());
    session.sequence(QStringLiteral("set"), [&] {
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            record->setValue(value.key(), value.value());
    });
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        QCOMPARE(record->getValue(value.key()), value.value());
    session.history().undo();
    QCOMPARE(record->toJsonText(QString()), before);
}

void MergeableCommandsTest::withoutEffect()
{
    EditingSession session;
    session.load(QStringLiteral("1"));
    const QString before = session.record(1)->toJsonText(QString());
    for (const char *name : { "id", "unknown" }) {
        PropertyHash target;
        target.insert(QStringLiteral("target"), QString::fromLatin1(name));
        QVERIFY(!ModifyTutorialItemDataCommand(1, target, 7, QString()).applyValue(7, true, true));
    }
    QVERIFY(!ModifyTutorialItemDataCommand(1, PropertyHash(), 7, QString()).applyValue(7, true, true));
    QCOMPARE(session.record(1)->toJsonText(QString()), before);

    PropertyHash target;
    target.insert(QStringLiteral("target"), QStringLiteral("x"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("tutorialItemData not found 9")));
    QVERIFY(!ModifyTutorialItemDataCommand(9, target, 7, QString()).applyValue(7, true, true));
}

void MergeableCommandsTest::text()
{
    PropertyHash target;
    target.insert(QStringLiteral("target"), QStringLiteral("hint"));
    const ModifyTutorialItemDataCommand command(5, target, QStringLiteral("%1 abc"), QString());
    QCOMPARE(command.text(), QStringLiteral("ModifyTutorialItemDataCommand(5: target:hint, %1 abc)"));
    QCOMPARE(command.clone()->text(), command.text());
}

QTEST_MAIN(MergeableCommandsTest)
#include "tst_MergeableCommands.moc"

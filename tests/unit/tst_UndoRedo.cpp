#include "support/EditingSession.h"

#include <QtTest>
#include <QUndoStack>

/// The history and its commands, by short scripts on a document (see EditingSession).
///
/// An edit is "1.x=5", "rename:1=a", "item:3" and "folder:3" (with that target, "3@7" for the id 7),
/// "delete:1,2", "before:1,2>5" or "into:1,2>5". "begin:a" and "end" make a sequence, "single:a" and
/// "done" a single; "step" is a rename in a sequence of its own. All else is named like what it
/// calls; "*3" repeats a word.
class tst_UndoRedo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mNames = 0;
        mSession.reset(); // there is but one history at a time
        mSession = std::make_unique<EditingSession>();
    }
    void scripts()
    {
        // What comes of it is the tree and all fields that are not as they were loaded; the steps done
        // and held; and what the history says of itself.
        // The commands of the tree. Only a step back or forth is told to the screens.
        script("1 2[3 4] 6", "item:3 undo redo", "1 2[3 5 4] 6 5.name=new 1/1 undo modified told");
        script("2[3] 4", "folder:2 folder:-1", "2[3 1[]] 4 5[] 1.name=folder1 5.name=folder2 2/2 undo modified");
        script("1 2", "folder:1@7 undo redo", "1 7[] 2 7.name=folder1 1/1 undo modified told");
        script("1 2[3 4[5] 6] 7", "delete:3,2", "1 7 1/1 undo modified");
        script("1 2 3 4", "delete:2,4 item:3 undo*2", "1 2 3 4 0/2 redo told");
        script("1 2[3] 4", "1.jump=3 4.jumpNo=2 delete:2", "1 4 1/1 undo modified");
        script("1 2[3] 4", "1.jump=3 4.jumpNo=2 begin:a delete:2 end undo",
               "1 2[3] 4 1.jump=3 4.jumpNo=2 0/1 redo told");
        script("1 2 3 4", "before:4,3>1", "4 3 1 2 1/1 undo modified");
        script("1 2 3 4", "before:1,2,1>4", "3 2 1 4 1/1 undo modified");
        script("1[2 3 4]", "into:2>1", "1[3 4 2] 1/1 undo modified");
        script("1[2 3[4]] 5", "before:1,3,4>5", "1[2] 3[] 4 5 1/1 undo modified");
        for (const char *words : { "into:5>9", "before:5>-1", "before:5>5", "into:1>3", "before:9>5" })
            script("1[2 3[4]] 5 6", words, "1[2 3[4]] 5 6 0/0", "parent of .* not found");
        script("1", "rename:9=a", "1 0/0", "not found");
        script("1", "item:9", "1 0/0", "target not found");
        script("1", "folder:9", "1 0/0", "target not found");
        script("1", "delete:9", "1 0/0");

        // Singles. What sequences, saves and steps make of the history is a part of the random sessions.
        script("1", "single:a 1.x=5 done single:a 1.x=6 1.y=7 done", "1 1.x=6 1.y=7 1/1 undo modified");
        script("1", "single:a 1.x=5 done single:b 1.x=6 done", "1 1.x=6 2/2 undo modified");
        script("1", "single:a 1.x=5 rename:1=a 1.x=6 done", "1 1.x=6 1.name=a 3/3 undo modified");
        script("1", "single:a 1.x=5 done setUnmergeable single:a 1.x=6 done single:a 1.x=7 done",
               "1 1.x=7 2/2 undo modified");
        script("1", "begin:a 1.x=5 rename:1=a 1.y=6 end single:a 1.x=7 done undo", "1 0/1 redo told");
        script("1", "single:a 1.x=5 done single:b 1.x=6 done undo single:b 1.y=7 done",
               "1 1.x=5 1.y=7 2/2 undo modified");
        // Measured from begin to begin. What is merged into the saved state is not saved.
        script("1", "single:a 1.x=1 done save wait:300 single:a 1.x=2 done wait:1000 single:a 1.x=3 done undo",
               "1 1.x=2 1/2 undo redo modified told");

        // The limit, and the end of what can be done again.
        script("1", "step*10 begin:a end rename:9=a undo*10", "1 0/10 redo told", "not found");
        script("1", "step*2 undoAndMakeUnredoable redo", "1 1.name=n1 1/2 undo modified");
        script("1", "step*2 undoAndMakeUnredoable step undo", "1 1.name=n1 1/2 undo redo modified told");
    }
    void temporaryFolders()
    {
        // Without a place for temporary folders none is made elsewhere.
        const QTemporaryDir current;
        const QString working = QDir::currentPath();
        QVERIFY(QDir::setCurrent(current.path()));
        // It is the last test of the process.
        for (const char *variable : { "TMPDIR", "TEMP", "TMP" })
            qputenv(variable, "/dev/null"); // no folder at all
        init();
        QVERIFY(!UndoRedo::instance()->isTemporaryDirAvailable());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Failed to mkdir")));
        QCOMPARE(UndoRedo::instance()->createTemporaryDir(), QString());
        QVERIFY(QDir().isEmpty());
        QDir::setCurrent(working);
    }

private:
    void script(const char *tree, const char *script, const char *expected, const char *warning = "")
    {
        init();
        mSession->load(QString::fromLatin1(tree));
        const QList<TutorialItemData *> records = mSession->data().mDataList;
        if (*warning)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(warning)));
        for (const QString &word : QString::fromLatin1(script).split(QLatin1Char(' '))) {
            for (int count = qMax(1, word.section(QLatin1Char('*'), 1).toInt()); count > 0; --count)
                run(word.section(QLatin1Char('*'), 0, 0));
        }
        QVERIFY2(state() == QLatin1String(expected), qPrintable(QLatin1String(script) + QLatin1String(": ") + state()));

        // As far back as it goes, with the same records, and forth again.
        const QString after = document();
        int steps = 0;
        for (; mSession->history().canUndo(); ++steps)
            mSession->history().undo();
        QCOMPARE(mSession->data().mDataList, records);
        for (; steps > 0; --steps)
            mSession->history().redo();
        QCOMPARE(document(), after);
    }
    void run(const QString &word)
    {
        UndoRedo &history = mSession->history();
        const QString verb = word.section(QLatin1Char(':'), 0, 0);
        const QString object = word.section(QLatin1Char(':'), 1);
        const QStringList parts = object.split(QRegularExpression(QStringLiteral("[>=@]")));
        const QList<int> ids = DataSupport::getIntList(parts.first().split(QLatin1Char(',')));
        const int second = parts.value(1).toInt();
        const QString jump = QStringLiteral("jump");
        const QVariantMap none;
        const QVariantMap newId{ { QStringLiteral("newId"), second } };
        const QHash<QByteArray, std::function<void()>> verbs = {
            { "rename", [&] { UndoRedo::renameItemCommand(ids.first(), parts.value(1), jump, none); } },
            { "item", [&] { UndoRedo::createItemCommand(ids.first(), -1, QStringLiteral("new"), jump, none); } },
            { "folder", [&] { UndoRedo::addFolderCommand(ids.first(), -1, jump, second ? newId : none); } },
            { "delete", [&] { UndoRedo::deleteItemsCommand(ids, jump, none); } },
            { "before", [&] { UndoRedo::moveItemsCommand(ids, true, second, jump, none); } },
            { "into", [&] { UndoRedo::moveItemsCommand(ids, false, second, jump, none); } },
            { "begin", [&] { history.beginSequence(object); } },
            { "end", [&] { history.endSequence(); } },
            { "single", [&] { history.beginSingle(object); } },
            { "done", [&] { history.endSingle(); } },
            { "step", [&] { mSession->sequence(verb, [&] { run(QStringLiteral("rename:1=n%1").arg(++mNames)); }); } },
            { "save", [&] { history.markClean(); } },
            { "wait", [&] { QTest::qWait(object.toInt()); } },
        };
        mSession->context().takeJumpLink();
        const QStringList field = word.split(QRegularExpression(QStringLiteral("[.=]")));
        if (const auto action = verbs.value(verb.toLatin1()))
            action();
        else if (field.size() == 3) // "1.x=5"
            mSession->record(field.first().toInt())->setValue(field.at(1), field.last().toInt());
        else
            QVERIFY2(QMetaObject::invokeMethod(&history, verb.toLatin1().constData()), qPrintable(verb));
    }
    QString state()
    {
        UndoRedo &history = mSession->history();
        const auto *stack = history.findChild<QUndoStack *>();
        QString text = QStringLiteral("%1 %2/%3").arg(document()).arg(stack->index()).arg(stack->count());
        const QPair<const char *, bool> flags[] = { { " undo", history.canUndo() },
                                                    { " redo", history.canRedo() },
                                                    { " open", history.inTransaction() },
                                                    { " modified", mSession->context().mModified },
                                                    { " told", !mSession->context().takeJumpLink().isEmpty() } };
        for (const auto &flag : flags)
            text += flag.second ? QLatin1String(flag.first) : QLatin1String();
        return text;
    }
    QString document()
    {
        QStringList parts{ mSession->shape() };
        for (const TutorialItemData *record : qAsConst(mSession->data().mDataList)) {
            TutorialItemData loaded;
            loaded.mName = QStringLiteral("name%1").arg(record->mId);
            for (const QString &field : QStringLiteral("x y jump jumpNo name").split(QLatin1Char(' '))) {
                const QString value = record->getValue(field).toString();
                if (value != loaded.getValue(field).toString())
                    parts.append(QStringLiteral("%1.%2=%3").arg(QString::number(record->mId), field, value));
            }
        }
        return parts.join(QLatin1Char(' ')) + mSession->fault();
    }

    std::unique_ptr<EditingSession> mSession;
    int mNames = 0;
};

QTEST_MAIN(tst_UndoRedo)
#include "tst_UndoRedo.moc"

#pragma once

#include "quick/DocumentFollower.h"
#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialItemListModel.h"
#include "support/EditingSession.h"
#include "Tutorial/ItemClipboard.h"

#include <QAbstractItemModelTester>
#include <QUndoStack>

/// One operation of a random session. What its numbers stand for depends on the document when it runs.
struct Operation
{
    int verb;
    unsigned a;
    unsigned b;
    unsigned c;
};

/// Runs operations on the document and its history, and keeps a picture of the whole document for
/// each state that the history can go to. After each operation the document is what its picture
/// shows and hangs together, and so do the rows of the screen.
class RandomSession
{
public:
    enum Form {
        Steering, // no edit
        Values, // makes commands only for what it changes, and only in a transaction
        Command, // makes one command, also one that changes nothing
        Commands // makes many, and comes in a sequence
    };

    /// What an operation's numbers stand for: one item or the root (-1), some items, and plain numbers.
    struct Target
    {
        int id;
        QList<int> ids;
        unsigned b;
        unsigned c;
    };

    struct Verb
    {
        const char *name;
        int weight;
        Form form;
        std::function<void(RandomSession &, const Target &)> run;
    };

    static const std::vector<Verb> &verbs();

    RandomSession()
    {
        mFollower.setHistory(&history());
        mFollower.setModel(&mModel);
        clear(history());
    }

    QString run(const Operation &op)
    {
        const Verb &verb = verbs()[static_cast<std::size_t>(op.verb)];
        Target target{ idOf(op.a), { idOf(op.b), idOf(op.c), idOf(op.a * op.b) }, op.b, op.c };
        target.ids.removeAll(-1);
        if (verb.form == Steering)
            verb.run(*this, target);
        else
            edit(data().mDataList.size() > kMaxItems ? verbs().front() : verb, target);
        return turnAndCheck(verb.form != Steering && op.c % 4 == 0);
    }

private:
    using Item = EditingSession::Item;
    using Model = TutorialItemListModel;
    static constexpr int kLimit = 10;
    static constexpr int kMaxItems = 50;
    static constexpr auto kCopied = ItemClipboard::SecondHints::Copied;

    /// The document after so many steps of the history.
    struct State
    {
        QByteArray document;
        bool saved;
    };

    UndoRedo &history() { return mSession.history(); }
    TreeDataTemplate<TutorialItemData> &data() { return mSession.data(); }

    void expect(bool holds, const char *what)
    {
        if (!holds && mWrong.isEmpty())
            mWrong = QLatin1String(what);
    }

    QByteArray picture()
    {
        QByteArray bytes = mSession.shape().toUtf8();
        for (const TutorialItemData *record : qAsConst(data().mDataList))
            bytes += record->toJsonText(QString()).toUtf8();
        return bytes;
    }

    template <typename Clearable>
    void clear(Clearable &historyOrDocument)
    {
        historyOrDocument.clear();
        mDocument = picture();
        mStates = { { mDocument, true } };
        mIndex = mDepth = 0;
        mInTransaction = false;
        mFollower.schedule();
    }

    void begin(bool sequence, unsigned number)
    {
        const QString name = QLatin1String(number % 2 ? "a" : "b");
        sequence ? history().beginSequence(name) : history().beginSingle(name);
        mInTransaction = true;
        if (sequence && mDepth++ == 0) {
            mStates = mStates.mid(0, mIndex + 1);
            mCommands = false;
        }
    }

    void end(bool sequence)
    {
        sequence ? history().endSequence() : history().endSingle();
        if (sequence && mDepth == 1)
            noteStep(mCommands, false);
        mDepth = qMax(mDepth - sequence, 0);
        mInTransaction = mDepth > 0;
    }

    void step(int by)
    {
        by < 0 ? history().undo() : history().redo();
        if (mDepth == 0 && mIndex + by >= 0 && mIndex + by < mStates.size())
            mIndex += by;
        if (mDepth == 0)
            mDocument = mStates.at(mIndex).document;
    }

    void save()
    {
        if (mDepth > 0)
            return;
        history().markClean();
        for (State &state : mStates)
            state.saved = &state == &mStates[mIndex];
    }

    const QUndoCommand *lastStep() const { return mStack->command(mStack->index() - 1); }

    /// An edit outside a transaction gets one of its own, if it needs one.
    void edit(const Verb &verb, const Target &target)
    {
        const bool outside = !mInTransaction && target.c % 5 == 0
            && (verb.form == Command || (mStates.size() == 1 && verb.form == Values));
        const bool open = mDepth > 0 || outside || (mInTransaction && verb.form != Commands);
        const bool sequence = target.c % 5 > 2 || verb.form == Commands;
        if (!open)
            begin(sequence, target.c);
        verb.run(*this, target);
        const bool changed = picture() != mDocument;
        mDocument = picture();
        mCommands = mCommands || changed || verb.form == Command;
        if (mDepth == 0)
            noteStep(changed || verb.form == Command, verb.form == Values);
        if (!open)
            end(sequence);
    }

    /// The history may have one more step, or the last one has taken in an edit.
    void noteStep(bool mayBeStep, bool mayBeTakenIn)
    {
        const bool step = lastStep() != mLastStep;
        const bool changed = mDocument != mStates.at(mIndex).document;
        expect(step ? mayBeStep : mayBeTakenIn || !changed, step ? "a step without an edit" : "an edit without a step");
        if (step) {
            expect(mStack->index() == qMin(mIndex + 1, kLimit), "several steps of one edit");
            mStates = mStates.mid(0, mIndex + 1) << State{ mDocument, false };
            mStates = mStates.mid(qMax(0, mStates.size() - kLimit - 1));
            mIndex = mStates.size() - 1;
        } else if (changed && mInTransaction) {
            expect(mIndex > 0 && mIndex + 1 == mStates.size(), "an edit taken in by no last step");
            mStates[mIndex] = { mDocument, false };
        } else if (changed) {
            mStates[0].document = mDocument;
            mFollower.schedule();
        }
    }

    /// An id of the document, or -1 for the root.
    int idOf(unsigned number)
    {
        const int index = static_cast<int>(number % static_cast<unsigned>(data().mDataList.size() + 1));
        return index == data().mDataList.size() ? -1 : data().mDataList.at(index)->mId;
    }

    /// The row of an item, also while the rows lag.
    QModelIndex row(int id)
    {
        mModel.refreshPartial();
        return mModel.getModelIndexById(id);
    }

    void rename(const Target &target)
    {
        static const char *const names[] = { "a", "a1", "a(2)", "item001", "folder1", "item007", "a(1)(1)", "12" };
        const QString name = mModel.getValidName(QLatin1String(names[target.b % 8]));
        mModel.changeItemName(row(target.id), name);
    }

    void move(bool before, const Target &target)
    {
        if (before)
            mModel.moveIdListBeforeIndex(row(target.id), target.ids);
        else if (data().findItem(target.id)->mFolder)
            mModel.moveIdListIntoIndex(row(target.id), target.ids);
    }

    void setProperty(const Target &target, unsigned which)
    {
        static const char *const properties[] = { "x",    "y",    "windowKey", "condition", "hint",     "hint2",
                                                  "icon", "jump", "jumpNo",    "command",   "showArrow" };
        static const char *const texts[] = { "", "a", "\"%1\"\n" };
        const QString property = QLatin1String(properties[which % 11]);
        QVariant value = mModel.getValue(target.id, property);
        if (value.type() == QVariant::String)
            value = QLatin1String(texts[target.c % 3]);
        else if (value.type() == QVariant::Bool)
            value = target.c % 2 == 0;
        else
            value = idOf(target.c);
        setValue(target.id, property, value);
    }

    void setValue(int id, const QString &property, const QVariant &value)
    {
        mModel.refreshPartial();
        mModel.setValue(id, property, value);
    }

    /// A folder is prohibited that holds items, all of them prohibited.
    bool isProhibited(const Item &item)
    {
        int items = 0;
        int prohibited = 0;
        item.visitAll([&](const Item &each) {
            items += !each.mFolder;
            prohibited += !each.mFolder && mSession.record(each.mId)->mProhibited;
        });
        return items > 0 && items == prohibited;
    }

    /// Empty, or the first row at or below this one that does not show what the document holds.
    QString difference(const QModelIndex &row, const Item &item)
    {
        const TutorialItemData *record = item.mId < 0 ? nullptr : mSession.record(item.mId);
        const bool same = row.data(Model::RoleId) == item.mId && row.data(Model::RoleFolder) == item.mFolder
            && row.data(Model::RoleName) == (record ? record->mName : QStringLiteral("/"))
            && row.data(Model::RoleProhibited).toBool() == isProhibited(item)
            && (!record || (row.data(Model::RoleIcon) == record->mIcon && row.data(Model::RoleJump) == record->mJump))
            && mModel.rowCount(row) == item.mChildren.size();
        QString different = same ? QString() : QStringLiteral("row of item %1").arg(item.mId);
        for (int i = 0; i < item.mChildren.size() && different.isEmpty(); ++i)
            different = difference(mModel.index(i, 0, row), item.mChildren.at(i));
        return different;
    }

    /// What a turn of the event loop does for the rows is all that is done for them.
    QString turnAndCheck(bool rowsLag)
    {
        if (!rowsLag)
            QCoreApplication::sendPostedEvents(&mFollower);
        expect(picture() == mDocument, "the document");
        expect(history().canUndo() == (mDepth == 0 && mIndex > 0), "canUndo");
        expect(history().canRedo() == (mDepth == 0 && mIndex + 1 < mStates.size()), "canRedo");
        expect(history().inTransaction() == mInTransaction, "inTransaction");
        expect(mSession.context().mModified != mStates.at(mIndex).saved, "modified");
        if (mWrong.isEmpty())
            mWrong = mSession.fault();
        if (mWrong.isEmpty() && !rowsLag && mDepth == 0)
            mWrong = difference(mModel.getRootIndex(), data().mRoot);
        mLastStep = lastStep();
        return mWrong;
    }

    EditingSession mSession;
    QUndoStack *mStack = history().findChild<QUndoStack *>();
    Model mModel;
    QAbstractItemModelTester mTester{ &mModel, QAbstractItemModelTester::FailureReportingMode::Warning };
    TreeListItemSelectionModel mSelection{ &mModel };
    DocumentFollower mFollower;
    QVector<State> mStates;
    int mIndex = 0;
    int mDepth = 0;
    bool mInTransaction = false;
    // Whether the open sequence may hold a command.
    bool mCommands = false;
    const QUndoCommand *mLastStep = nullptr;
    QByteArray mDocument;
    QString mPayload;
    QString mWrong;
};

inline const std::vector<RandomSession::Verb> &RandomSession::verbs()
{
    using S = RandomSession;
    using T = Target;
    // What comes first keeps the document from growing for ever.
    static const std::vector<Verb> verbs = {
        { "delete", 8, Commands, [](S &s, const T &t) { s.mModel.deleteIdList(t.ids); } },
        { "addItem", 14, Command, [](S &s, const T &t) { s.mModel.addItem(t.id); } },
        { "addFolder", 6, Command, [](S &s, const T &t) { s.mModel.addFolder(t.id); } },
        { "rename", 6, Command, [](S &s, const T &t) { s.rename(t); } },
        { "moveBefore", 8, Command, [](S &s, const T &t) { s.move(true, t); } },
        { "moveInto", 8, Command, [](S &s, const T &t) { s.move(false, t); } },
        { "setProperty", 16, Values,
          [](S &s, const T &t) {
              s.setProperty(t, t.b);
              // Of one item, so that one change must not be taken for the other.
              if (t.b % 3 == 0)
                  s.setProperty(t, t.b + 1);
          } },
        { "setProhibited", 4, Values,
          [](S &s, const T &t) { s.setValue(t.id, QStringLiteral("prohibited"), t.b % 2 == 0); } },
        { "paste", 6, Commands, [](S &s, const T &) { ItemClipboard::insertPayload(s.mPayload, kCopied); } },
        { "copy", 4, Steering, [](S &s, const T &t) { ItemClipboard::makePayload(t.ids, s.mPayload); } },
        { "select", 3, Steering, [](S &s, const T &t) { s.mSelection.setSelectedIdList(t.ids); } },
        { "beginSequence", 6, Steering, [](S &s, const T &t) { s.begin(true, t.b); } },
        { "endSequence", 8, Steering, [](S &s, const T &) { s.end(true); } },
        { "beginSingle", 6, Steering, [](S &s, const T &t) { s.begin(false, t.b); } },
        { "endSingle", 8, Steering, [](S &s, const T &) { s.end(false); } },
        { "setUnmergeable", 2, Steering, [](S &s, const T &) { s.history().setUnmergeable(); } },
        { "undo", 16, Steering, [](S &s, const T &) { s.step(-1); } },
        { "redo", 10, Steering, [](S &s, const T &) { s.step(1); } },
        { "save", 4, Steering, [](S &s, const T &) { s.save(); } },
        { "clearHistory", 1, Steering, [](S &s, const T &) { s.clear(s.history()); } },
        { "clearDocument", 1, Steering, [](S &s, const T &) { s.clear(*TutorialEditor::Manager::instance()); } },
    };
    return verbs;
}

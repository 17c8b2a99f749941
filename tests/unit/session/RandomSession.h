#pragma once

#include "../EditingSession.h"
#include "Comparison.h"
#include "Operation.h"
#include "quick/DocumentFollower.h"
#include "quick/TreeListItemSelectionModel.h"
#include "ReferenceHistory.h"
#include "Tutorial/ItemClipboard.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>

/// Runs operations on the program and on the reference side by side and compares the two after each.
class RandomSession
{
public:
    RandomSession()
    {
        mFollower.setHistory(&history());
        mFollower.setModel(&mModel);
    }

    /// Runs one operation. The result is empty, or tells what differs.
    QString run(const Operation &operation)
    {
        perform(operation);
        // The rows may lag behind for a while.
        const bool back = operation.kind == Operation::Undo || operation.kind == Operation::Redo;
        return turnAndCompare(!back && operation.c % 4 == 0);
    }

    /// Closes what is open, goes back as far as the history reaches, and forth again.
    QString backAndForth()
    {
        while (mHistory.inSequence())
            endSequence();
        while (mHistory.canUndo()) {
            undo();
            const QString different = turnAndCompare();
            if (!different.isEmpty())
                return QStringLiteral("on the way back: ") + different;
        }
        while (mHistory.canRedo()) {
            redo();
            const QString different = turnAndCompare();
            if (!different.isEmpty())
                return QStringLiteral("on the way forth: ") + different;
        }
        return QString();
    }

private:
    using Model = TutorialItemListModel;

    /// What a turn of the event loop does for the rows is all that is done for them.
    QString turnAndCompare(bool rowsLag = false)
    {
        mRowsLag = rowsLag || mHistory.inSequence();
        if (!rowsLag)
            QCoreApplication::sendPostedEvents(&mFollower);
        return difference();
    }

    UndoRedo &history() { return mSession.history(); }

    void perform(const Operation &op)
    {
        switch (op.kind) {
        case Operation::BeginSequence:
            beginSequence(nameOf(op.a));
            break;
        case Operation::EndSequence:
            endSequence();
            break;
        case Operation::BeginSingle:
            beginSingle(nameOf(op.a));
            break;
        case Operation::EndSingle:
            history().endSingle();
            mHistory.endTransaction();
            break;
        case Operation::SetUnmergeable:
            history().setUnmergeable();
            mHistory.setUnmergeable();
            break;
        case Operation::Undo:
            if (mHistory.canUndo())
                undo();
            break;
        case Operation::Redo:
            // The program must refuse by itself what can't be redone.
            if (!mHistory.inSequence())
                redo();
            break;
        case Operation::Save:
            if (!mHistory.inSequence()) {
                history().markClean();
                mHistory.save();
            }
            break;
        case Operation::ClearHistory:
            history().clear();
            mHistory.clear(mDocument);
            mFollower.schedule();
            break;
        case Operation::ClearDocument:
            TutorialEditor::Manager::instance()->clear();
            mDocument = ReferenceDocument();
            mHistory.clear(mDocument);
            mFollower.schedule();
            break;
        default:
            edit(op);
        }
    }

    /// An edit outside a transaction gets one of its own, if it needs one.
    void edit(Operation op)
    {
        // A document that would grow for ever shrinks instead.
        if (op.kind == Operation::AddItem && mDocument.records.size() > kMaxItems)
            op.kind = Operation::Delete;
        const bool open = mHistory.inTransaction();
        const bool recordsByItself = op.kind <= Operation::MoveInto;
        const bool mayStayOutside = recordsByItself || (mHistory.isEmpty() && op.kind != Operation::Delete);
        const unsigned form = op.c % 5;
        const bool outside = open || (form == 0 && mayStayOutside);
        const bool single = form < 3;
        if (!outside && single)
            beginSingle(nameOf(op.c));
        else if (!outside)
            beginSequence(nameOf(op.c));
        change(op);
        if (!outside && single) {
            history().endSingle();
            mHistory.endTransaction();
        } else if (!outside) {
            endSequence();
        }
        if (!open && outside && mHistory.isEmpty()) {
            mHistory.replaceFirst(mDocument);
            mFollower.schedule();
        }
    }

    void change(const Operation &op)
    {
        switch (op.kind) {
        case Operation::AddItem:
            addItem(targetOf(op.a));
            break;
        case Operation::AddFolder:
            addFolder(targetOf(op.a));
            break;
        case Operation::Rename:
            rename(op.a, op.b);
            break;
        case Operation::MoveBefore:
        case Operation::MoveInto:
            move(op);
            break;
        case Operation::Delete:
            remove({ op.a, op.b, op.c });
            break;
        case Operation::SetProperty:
            setProperty(op);
            break;
        case Operation::SetProhibited:
            setProhibited(targetOf(op.a), op.b % 2 == 0);
            break;
        case Operation::Copy:
            copy({ op.a, op.b });
            break;
        case Operation::Paste:
            if (mDocument.records.size() <= kMaxItems)
                paste();
            break;
        default:
            select({ op.a, op.b, op.c });
        }
    }

    static QString nameOf(unsigned number) { return QString(QLatin1Char(static_cast<char>('a' + number % 2))); }

    /// An id of the document, or -1 for the root.
    int targetOf(unsigned number) const
    {
        const QList<int> ids = mDocument.root.idsBelow();
        const int index = static_cast<int>(number % static_cast<unsigned>(ids.size() + 1));
        return index == ids.size() ? -1 : ids.at(index);
    }

    QList<int> idsOf(const QList<unsigned> &numbers) const
    {
        QList<int> ids;
        for (const unsigned number : numbers) {
            const int id = targetOf(number);
            if (id >= 0)
                ids.append(id);
        }
        return ids;
    }

    void beginSequence(const QString &name)
    {
        mSinceBegin.start();
        history().beginSequence(name);
        mHistory.beginSequence(name);
    }

    void endSequence()
    {
        history().endSequence();
        mHistory.endSequence(mDocument);
    }

    void beginSingle(const QString &name)
    {
        QElapsedTimer sinceThisBegin;
        sinceThisBegin.start();
        const bool mayMerge = mHistory.mayMerge(name);
        history().beginSingle(name);
        // What was measured from before the one to behind the other is never too short.
        const bool quick = mSinceBegin.isValid() && mSinceBegin.elapsed() < 1000;
        if (history().isMergeable() != mayMerge && (quick || !mayMerge))
            mDifference = QStringLiteral("a single merges or does not, against its name and the time");
        mHistory.beginSingle(name, history().isMergeable());
        mSinceBegin = sinceThisBegin;
    }

    void undo()
    {
        history().undo();
        mHistory.undo();
        mDocument = mHistory.state();
    }

    void redo()
    {
        history().redo();
        if (!mHistory.canRedo())
            return;
        mHistory.redo();
        mDocument = mHistory.state();
    }

    void addItem(int target)
    {
        ReferenceRecord record(mDocument.freeId());
        record.name = mDocument.numberedName(QStringLiteral("item"), 3);
        mDocument.add(target, record, false);
        if (mModel.addItem(target) != record.id)
            mDifference = QStringLiteral("id of a new item");
        mHistory.record(mDocument, false);
    }

    void addFolder(int target)
    {
        ReferenceRecord record(mDocument.freeId());
        record.name = mDocument.numberedName(QStringLiteral("folder"), 0);
        mDocument.add(target, record, true);
        if (mModel.addFolder(target) != record.id)
            mDifference = QStringLiteral("id of a new folder");
        mHistory.record(mDocument, false);
    }

    void rename(unsigned which, unsigned to)
    {
        static const QStringList candidates = { QStringLiteral("a"),       QStringLiteral("a1"),
                                                QStringLiteral("a(2)"),    QStringLiteral("item001"),
                                                QStringLiteral("folder1"), QStringLiteral("item007"),
                                                QStringLiteral("a(1)(1)"), QStringLiteral("12") };
        const int id = targetOf(which);
        if (id < 0)
            return;
        bringRowsInLine();
        const QString name = mDocument.validName(candidates.at(static_cast<int>(to) % candidates.size()));
        mDocument.record(id)->name = name;
        mModel.changeItemName(mModel.getModelIndexById(id),
                              mModel.getValidName(candidates.at(static_cast<int>(to) % candidates.size())));
        mHistory.record(mDocument, false);
    }

    void move(const Operation &op)
    {
        const bool before = op.kind == Operation::MoveBefore;
        const QList<int> ids = idsOf({ op.a, op.b, op.a * op.b });
        const int target = targetOf(op.a + op.c);
        if (ids.isEmpty() || (!before && !mDocument.root.find(target)->folder))
            return;
        bringRowsInLine();
        const bool moved = mDocument.move(ids, before, target);
        const QModelIndex index = mModel.getModelIndexById(target);
        if (before)
            mModel.moveIdListBeforeIndex(index, ids);
        else
            mModel.moveIdListIntoIndex(index, ids);
        if (moved)
            mHistory.record(mDocument, false);
    }

    void remove(const QList<unsigned> &numbers)
    {
        const QList<int> ids = idsOf(numbers);
        if (ids.isEmpty())
            return;
        const QSet<int> all = mDocument.withContents(ids);
        for (ReferenceRecord &record : mDocument.records) {
            for (const QString &jump : { QStringLiteral("jump"), QStringLiteral("jumpNo") }) {
                const int to = record.values.value(jump).toInt();
                if (to >= 0 && all.contains(to)) {
                    record.values.insert(jump, -1);
                    mHistory.record(mDocument, true);
                }
            }
        }
        mDocument.remove(all);
        mModel.deleteIdList(ids);
        mHistory.record(mDocument, false);
    }

    void setProperty(const Operation &op)
    {
        const int id = targetOf(op.a);
        if (id < 0)
            return;
        static const QStringList texts = { QString(), QStringLiteral("a"), QStringLiteral("\"%1\"\n") };
        const QVariant text = texts.at(static_cast<int>(op.c % 3));
        const QVariant number = static_cast<int>(op.c % 4);
        const QVariant flag = op.c % 2 == 0;
        const QVariantMap values = { { QStringLiteral("x"), number },
                                     { QStringLiteral("y"), number },
                                     { QStringLiteral("windowKey"), text },
                                     { QStringLiteral("condition"), text },
                                     { QStringLiteral("hint"), text },
                                     { QStringLiteral("hint2"), text },
                                     { QStringLiteral("icon"), text },
                                     { QStringLiteral("jump"), targetOf(op.c) },
                                     { QStringLiteral("jumpNo"), targetOf(op.c) },
                                     { QStringLiteral("command"), text },
                                     { QStringLiteral("showArrow"), flag } };
        const QString property = values.keys().at(static_cast<int>(op.b) % values.size());
        bringRowsInLine();
        setReferenceValue(id, property, values.value(property));
        mModel.setValue(id, property, values.value(property));
    }

    void setProhibited(int id, bool prohibited)
    {
        const QString property = QStringLiteral("prohibited");
        bringRowsInLine();
        const ReferenceNode node = *mDocument.root.find(id);
        if (!node.folder)
            setReferenceValue(id, property, prohibited);
        for (const int below : node.folder ? node.idsBelow() : QList<int>()) {
            if (!mDocument.root.find(below)->folder)
                setReferenceValue(below, property, prohibited);
        }
        mModel.setValue(id, property, prohibited);
    }

    void setReferenceValue(int id, const QString &property, const QVariant &value)
    {
        QVariant &field = mDocument.record(id)->values[property];
        if (field == value)
            return;
        field = value;
        if (mHistory.inTransaction())
            mHistory.record(mDocument, true);
    }

    void copy(const QList<unsigned> &numbers)
    {
        mCopied.clear();
        for (const int id : idsOf(numbers))
            mCopied.append(*mDocument.root.find(id));
        mCopiedRecords = mDocument.records;
        ItemClipboard::makePayload(idsOf(numbers), mPayload);
    }

    void paste()
    {
        QList<int> expected;
        for (const ReferenceNode &node : qAsConst(mCopied))
            expected.append(pasteReference(node, -1));
        if (ItemClipboard::insertPayload(mPayload, ItemClipboard::SecondHints::Copied) != expected)
            mDifference = QStringLiteral("ids of pasted items");
    }

    int pasteReference(const ReferenceNode &node, int parentId)
    {
        const auto source = std::find_if(mCopiedRecords.cbegin(), mCopiedRecords.cend(),
                                         [&node](const ReferenceRecord &r) { return r.id == node.id; });
        ReferenceRecord record(mDocument.freeId());
        if (!node.folder)
            record.values = source->values;
        record.values.insert(QStringLiteral("prohibited"), source->values.value(QStringLiteral("prohibited")));
        record.name = mDocument.hasName(source->name) ? mDocument.bracketedName(source->name) : source->name;
        mDocument.add(parentId, record, node.folder);
        if (mHistory.inTransaction())
            mHistory.record(mDocument, false);
        for (const ReferenceNode &child : node.children)
            pasteReference(child, record.id);
        return record.id;
    }

    void select(const QList<unsigned> &numbers)
    {
        bringRowsInLine();
        const QList<int> ids = idsOf(numbers);
        mSelection.setSelectedIdList(ids);
        if (mSelection.getTreeSelectedIdList() != DataSupport::getVariantList(mDocument.topsOf(ids)))
            mDifference = QStringLiteral("selected ids");
    }

    void bringRowsInLine() { mModel.refreshPartial(); }

    QString difference();

    static constexpr int kMaxItems = 50;

    EditingSession mSession;
    Model mModel;
    QAbstractItemModelTester mTester{ &mModel, QAbstractItemModelTester::FailureReportingMode::Warning };
    TreeListItemSelectionModel mSelection{ &mModel };
    DocumentFollower mFollower;
    ReferenceDocument mDocument;
    ReferenceHistory mHistory;
    QElapsedTimer mSinceBegin;
    QList<ReferenceNode> mCopied;
    QList<ReferenceRecord> mCopiedRecords;
    QString mPayload;
    QString mDifference;
    bool mRowsLag = false;
};

inline QString RandomSession::difference()
{
    if (!mDifference.isEmpty())
        return mDifference;
    const QString inDocument = Comparison::documentDifference(mSession.data(), mDocument);
    if (!inDocument.isEmpty())
        return inDocument;
    if (history().canUndo() != mHistory.canUndo())
        return QStringLiteral("canUndo");
    if (history().canRedo() != mHistory.canRedo())
        return QStringLiteral("canRedo");
    if (history().inTransaction() != mHistory.inTransaction())
        return QStringLiteral("inTransaction");
    if (mSession.context().mModified != mHistory.isModified())
        return QStringLiteral("modified");
    return mRowsLag ? QString() : Comparison::rowDifference(mModel.getRootIndex(), mDocument.root, mDocument);
}

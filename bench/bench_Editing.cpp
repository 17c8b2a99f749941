// Edits of a document of 1,000, 10,000 and 100,000 items, half of them at the top level and half in
// folders of a hundred. A folder that is moved or deleted holds a tenth of the document. The floors
// go over the same document, as little as an edit can.

#include "model/DocumentContext.h"
#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialItemListModel.h"
#include "Tutorial/ItemClipboard.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

namespace
{
class BenchContext : public DocumentContext
{
public:
    QString translate(const QString &key) const override { return key; }
    QString applyTranslationToText(const QString &text, QStringList &) const override { return text; }
    void setPendingJumpLink(const QString &) override { }
    void setModified(bool) override { }
};

class Session
{
    using Item = TreeItem<TutorialItemData>;

public:
    explicit Session(const benchmark::State &state)
        : mHistory(static_cast<UndoRedo *>(UndoRedo::create(nullptr, nullptr)))
    {
        const int count = static_cast<int>(state.range(0));
        Item bigFolder(kBigFolder, true);
        addRecord(kBigFolder);
        int id = kBigFolder;
        while (bigFolder.mChildren.size() < count / 10)
            bigFolder.mChildren.append(newItem(++id));
        root().mChildren.append(bigFolder);
        while (id < count / 2) {
            Item folder(++id, true);
            addRecord(id);
            while (folder.mChildren.size() < 100 && id < count / 2)
                folder.mChildren.append(newItem(++id));
            root().mChildren.append(folder);
        }
        while (id < count)
            root().mChildren.append(newItem(++id));
        model.refresh();
    }

    static constexpr int kBigFolder = 1;

    TreeDataTemplate<TutorialItemData> &data() { return mManager.mData; }
    Item &root() { return data().mRoot; }
    UndoRedo &history() { return *mHistory; }
    int lastId() { return root().mChildren.last().mId; }

    template <typename Edit>
    void sequence(Edit edit)
    {
        mHistory->beginSequence(QStringLiteral("edit"));
        edit();
        mHistory->endSequence();
    }

    void undo() { mHistory->undo(); }

    void deleteFolder()
    {
        sequence([this] { model.deleteIdList({ kBigFolder }); });
    }

    void moveFolder()
    {
        sequence([this] { model.moveIdListBeforeIndex(model.getModelIndexById(lastId()), { kBigFolder }); });
    }

private:
    void addRecord(int id)
    {
        auto record = std::make_unique<TutorialItemData>();
        record->mId = id;
        record->mName = QStringLiteral("item%1").arg(id);
        data().mDataList.append(record.release());
    }

    Item newItem(int id)
    {
        addRecord(id);
        return Item(id, false);
    }

    BenchContext mContext;
    TutorialEditor::Manager mManager;
    std::unique_ptr<UndoRedo> mHistory;

public:
    TutorialItemListModel model;
    TreeListItemSelectionModel selection{ &model };
};

/// Times the one and not what makes ready for it or takes it back.
template <typename Prepare, typename Timed>
void run(benchmark::State &state, Prepare prepare, Timed timed)
{
    Session session(state);
    for (auto _ : state) {
        state.PauseTiming();
        prepare(session);
        state.ResumeTiming();
        timed(session);
    }
}

void nothing(Session &) { }

void takeBack(Session &session)
{
    while (session.history().canUndo())
        session.undo();
    session.model.refreshPartial();
}

void addItem(benchmark::State &state)
{
    run(state, takeBack, [](Session &s) { s.sequence([&s] { s.model.addItem(s.lastId()); }); });
}

void undoOfAdd(benchmark::State &state)
{
    run(
        state, [](Session &s) { s.sequence([&s] { s.model.addItem(Session::kBigFolder); }); },
        [](Session &s) { s.undo(); });
}

void moveFolder(benchmark::State &state)
{
    run(state, takeBack, [](Session &s) { s.moveFolder(); });
}

void undoOfMove(benchmark::State &state)
{
    run(
        state, [](Session &s) { s.moveFolder(); }, [](Session &s) { s.undo(); });
}

void deleteFolder(benchmark::State &state)
{
    run(state, takeBack, [](Session &s) { s.deleteFolder(); });
}

void undoOfDelete(benchmark::State &state)
{
    run(
        state, [](Session &s) { s.deleteFolder(); }, [](Session &s) { s.undo(); });
}

void deleteWithJumps(benchmark::State &state)
{
    const auto prepare = [](Session &s) {
        takeBack(s);
        for (TutorialItemData *record : qAsConst(s.data().mDataList))
            record->mJump = Session::kBigFolder;
    };
    run(state, prepare, [](Session &s) { s.deleteFolder(); });
}

void moveEverything(Session &session)
{
    QList<int> idList;
    for (auto item = session.root().mChildren.crbegin(); item != session.root().mChildren.crend(); ++item)
        idList.append(item->mId);
    idList.removeLast();
    session.sequence(
        [&] { session.model.moveIdListBeforeIndex(session.model.getModelIndexById(Session::kBigFolder), idList); });
}

void moveAll(benchmark::State &state)
{
    run(state, takeBack, moveEverything);
}

void prohibitAll(benchmark::State &state)
{
    run(state, takeBack, [](Session &s) {
        s.model.setValue(-1, QStringLiteral("prohibited"), false);
        s.sequence([&s] { s.model.setValue(-1, QStringLiteral("prohibited"), true); });
    });
}

void paste(Session &session)
{
    QString payload;
    ItemClipboard::makePayload({ Session::kBigFolder }, payload);
    session.sequence([&payload] { ItemClipboard::insertPayload(payload, ItemClipboard::SecondHints::Copied); });
}

void copyAndPaste(benchmark::State &state)
{
    run(state, takeBack, paste);
}

void undoOfPaste(benchmark::State &state)
{
    run(state, paste, [](Session &s) { s.undo(); });
}

void refresh(benchmark::State &state)
{
    run(state, nothing, [](Session &s) { s.model.refresh(); });
}

void refreshPartialOfNothing(benchmark::State &state)
{
    run(state, nothing, [](Session &s) { s.model.refreshPartial(); });
}

void refreshPartialOfOneChange(benchmark::State &state)
{
    const auto prepare = [](Session &s) {
        takeBack(s);
        s.model.addItem(Session::kBigFolder);
    };
    run(state, prepare, [](Session &s) { s.model.refreshPartial(); });
}

void refreshPartialOfAllMoved(benchmark::State &state)
{
    const auto prepare = [](Session &s) {
        takeBack(s);
        moveEverything(s);
    };
    run(state, prepare, [](Session &s) { s.model.refreshPartial(); });
}

void editAndRefresh(benchmark::State &state)
{
    run(state, takeBack, [](Session &s) {
        s.sequence([&s] { s.model.addItem(Session::kBigFolder); });
        s.model.refreshPartial();
        s.model.refreshRoles();
    });
}

void moveAndRefresh(benchmark::State &state)
{
    run(state, takeBack, [](Session &s) {
        s.moveFolder();
        s.model.refreshPartial();
        s.model.refreshRoles();
    });
}

void deleteAndRefresh(benchmark::State &state)
{
    run(state, takeBack, [](Session &s) {
        s.deleteFolder();
        s.model.refreshPartial();
        s.model.refreshRoles();
    });
}

void getTreeJson(benchmark::State &state)
{
    run(state, nothing, [](Session &s) { benchmark::DoNotOptimize(s.model.getTreeJson()); });
}

QList<int> allIds(Session &session)
{
    return session.data().getIdList();
}

void getTreeSelectedIdListOfAll(benchmark::State &state)
{
    run(
        state, [](Session &s) { s.selection.setSelectedIdList(allIds(s)); },
        [](Session &s) { benchmark::DoNotOptimize(s.selection.getTreeSelectedIdList()); });
}

void setSelectedIdListToAll(benchmark::State &state)
{
    run(
        state, [](Session &s) { s.selection.clear(); }, [](Session &s) { s.selection.setSelectedIdList(allIds(s)); });
}

void setSelectedIdListFromEvenToOdd(benchmark::State &state)
{
    const auto every = [](Session &s, int remainder) {
        QList<int> idList;
        for (const int id : allIds(s)) {
            if (id % 2 == remainder)
                idList.append(id);
        }
        s.selection.setSelectedIdList(idList);
    };
    run(
        state, [every](Session &s) { every(s, 0); }, [every](Session &s) { every(s, 1); });
}
void floorReadTree(benchmark::State &state)
{
    run(state, nothing, [](Session &s) {
        int sum = 0;
        s.root().visitAll([&sum](const TreeItem<TutorialItemData> &item) { sum += item.mId; });
        benchmark::DoNotOptimize(sum);
    });
}

void floorReadRecords(benchmark::State &state)
{
    run(state, nothing, [](Session &s) {
        int sum = 0;
        for (const TutorialItemData *record : qAsConst(s.data().mDataList))
            sum += record->mId + record->mName.size();
        benchmark::DoNotOptimize(sum);
    });
}

void floorWriteRecords(benchmark::State &state)
{
    run(state, nothing, [](Session &s) {
        for (TutorialItemData *record : qAsConst(s.data().mDataList))
            record->mProhibited = !record->mProhibited;
    });
}

void floorCopyRecordList(benchmark::State &state)
{
    run(state, nothing, [](Session &s) {
        QList<TutorialItemData *> copy = s.data().mDataList;
        copy.detach();
        benchmark::DoNotOptimize(copy);
    });
}

void floorReadRows(benchmark::State &state)
{
    run(state, nothing, [](Session &s) {
        const std::function<int(const QStandardItem &)> sum = [&sum](const QStandardItem &row) {
            int ids = row.data(TutorialItemListModel::RoleId).toInt();
            for (int i = 0; i < row.rowCount(); ++i)
                ids += sum(*row.child(i));
            return ids;
        };
        benchmark::DoNotOptimize(sum(*s.model.invisibleRootItem()));
    });
}

void floorMakeRows(benchmark::State &state)
{
    run(state, nothing, [&state](Session &) {
        QStandardItemModel model;
        QList<QStandardItem *> rows;
        for (int i = 0; i < state.range(0); ++i) {
            rows.append(new QStandardItem(QStringLiteral("item")));
            rows.last()->setData(i, TutorialItemListModel::RoleId);
        }
        model.invisibleRootItem()->appendRows(rows);
    });
}
} // namespace

#define EDITING_BENCHMARK(name) BENCHMARK(name)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond)

EDITING_BENCHMARK(addItem);
// Runs no longer than what makes ready for it, which costs a thousand times as much.
EDITING_BENCHMARK(undoOfAdd)->Iterations(20);
EDITING_BENCHMARK(moveFolder);
EDITING_BENCHMARK(undoOfMove);
EDITING_BENCHMARK(moveAll);
EDITING_BENCHMARK(deleteFolder);
EDITING_BENCHMARK(undoOfDelete);
EDITING_BENCHMARK(deleteWithJumps);
EDITING_BENCHMARK(prohibitAll);
EDITING_BENCHMARK(copyAndPaste);
EDITING_BENCHMARK(undoOfPaste);
EDITING_BENCHMARK(refresh);
EDITING_BENCHMARK(refreshPartialOfNothing);
EDITING_BENCHMARK(refreshPartialOfOneChange);
EDITING_BENCHMARK(refreshPartialOfAllMoved);
EDITING_BENCHMARK(editAndRefresh);
EDITING_BENCHMARK(moveAndRefresh);
EDITING_BENCHMARK(deleteAndRefresh);
EDITING_BENCHMARK(getTreeJson);
EDITING_BENCHMARK(getTreeSelectedIdListOfAll);
EDITING_BENCHMARK(setSelectedIdListToAll);
EDITING_BENCHMARK(setSelectedIdListFromEvenToOdd);
EDITING_BENCHMARK(floorReadTree);
EDITING_BENCHMARK(floorReadRecords);
EDITING_BENCHMARK(floorWriteRecords);
EDITING_BENCHMARK(floorCopyRecordList);
EDITING_BENCHMARK(floorReadRows);
EDITING_BENCHMARK(floorMakeRows);

#include "UndoRedo/UndoRedo.h"

#include "model/DocumentContext.h"
#include "tool/Log.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/ModifyTutorialItemDataCommand.h"
#include "UndoRedo/PendingJumpLink.h"
#include "UndoRedo/StepItems.h"
#include "UndoRedo/TreeCommand.h"
#include "UndoRedo/UnredoableCommand.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QUndoStack>

namespace
{
constexpr char kFolder[] = "cpp/UndoRedo";
constexpr int kUndoLimit = 10;
constexpr qint64 kMergeWindowMs = 1000;

UndoRedo *currentUndoRedo = nullptr;

const QUndoCommand *lastChild(const QUndoCommand &command)
{
    return command.childCount() > 0 ? command.child(command.childCount() - 1) : nullptr;
}

void setModified(bool modified)
{
    if (DocumentContext *context = DocumentContext::instance())
        context->setModified(modified);
}
} // namespace

QObject *UndoRedo::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    Q_UNUSED(engine)
    Q_UNUSED(scriptEngine)
    return new UndoRedo;
}

UndoRedo *UndoRedo::instance()
{
    return currentUndoRedo;
}

UndoRedo::UndoRedo()
    : mUndoStack(new QUndoStack(this))
    , mUndoAction(mUndoStack->createUndoAction(this, tr("&Undo")))
    , mRedoAction(mUndoStack->createRedoAction(this, tr("&Redo")))
{
    currentUndoRedo = this;
    mUndoStack->setUndoLimit(kUndoLimit);
    mUndoAction->setShortcuts(QKeySequence::Undo);
    mRedoAction->setShortcuts(QKeySequence::Redo);
    connect(mUndoStack, &QUndoStack::canUndoChanged, this, &UndoRedo::onCanUndoChanged);
    connect(mUndoStack, &QUndoStack::canRedoChanged, this, &UndoRedo::onCanRedoChanged);
    connect(mUndoStack, &QUndoStack::indexChanged, this, &UndoRedo::onIndexChanged);
    Log::warning(kFolder, "UndoRedo::UndoRedo", __LINE__) << QCoreApplication::applicationName() << mTemporaryDir.path()
                                                          << QDir::tempPath() << mTemporaryDir.errorString();
}

UndoRedo::~UndoRedo()
{
    // The stack is a child and goes last: by then this is no history to report to.
    mUndoStack->disconnect(this);
    if (currentUndoRedo == this)
        currentUndoRedo = nullptr;
}

bool UndoRedo::canUndo() const
{
    return mSequenceNames.isEmpty() && mUndoStack->canUndo();
}

bool UndoRedo::canRedo() const
{
    return mSequenceNames.isEmpty() && mUndoStack->canRedo()
        && mUndoStack->command(mUndoStack->index())->id() != UnredoableCommand::kId;
}

void UndoRedo::onCanUndoChanged(bool canUndo)
{
    Q_EMIT canUndoChanged(canUndo);
}

void UndoRedo::onCanRedoChanged(bool)
{
    Q_EMIT canRedoChanged(canRedo());
}

void UndoRedo::onIndexChanged(int index)
{
    // The stack moves its clean index down as steps fall off, and forgets it when its step is gone.
    setModified(index != mUndoStack->cleanIndex());
}

void UndoRedo::beginSequence(const QString &name)
{
    if (mInTransaction)
        Log::debug(kFolder, "UndoRedo::beginSequence", __LINE__) << "Assertion failed:"
                                                                 << "!mInTransaction";
    mInTransaction = true;
    mMergeable = false;
    mTransactionName = name;
    mSinceLastBegin.start();
    mSequenceNames.append(name);
}

void UndoRedo::openMacros()
{
    for (; mOpenMacros < mSequenceNames.size(); ++mOpenMacros)
        mUndoStack->beginMacro(mSequenceNames.at(mOpenMacros));
}

void UndoRedo::endSequence()
{
    const bool open = !mSequenceNames.isEmpty();
    const bool recorded = mOpenMacros > 0;
    if (open)
        mSequenceNames.removeLast();
    if (mOpenMacros > mSequenceNames.size()) {
        --mOpenMacros;
        mUndoStack->endMacro();
    }
    if (!mSequenceNames.isEmpty())
        return;
    if (open && !recorded)
        cutRedoSide();
    endTransaction();
}

void UndoRedo::cutRedoSide()
{
    if (canRedo()) {
        // The push deletes all that could be redone.
        mUndoStack->push(new UnredoableCommand);
        mUndoStack->undo();
    }
    setPendingJumpLink(QString());
}

void UndoRedo::beginSingle(const QString &name)
{
    if (mInTransaction)
        Log::debug(kFolder, "UndoRedo::beginSingle", __LINE__) << "Assertion failed:"
                                                               << "!mInTransaction";
    mTransactionName = name;
    mInTransaction = true;
    if (name != mLastTransactionName)
        mUnmergeable = true;
    mMergeable = !mUnmergeable && mSinceLastBegin.isValid() && mSinceLastBegin.elapsed() < kMergeWindowMs;
    if (mMergeable)
        Log::debug(kFolder, "UndoRedo::beginSingle", __LINE__) << "may be merged";
    mSinceLastBegin.start();
}

void UndoRedo::endSingle()
{
    endTransaction();
}

void UndoRedo::endTransaction()
{
    // A sequence round a single is still open.
    mInTransaction = !mSequenceNames.isEmpty();
    mLastTransactionName = mTransactionName;
    mTransactionName.clear();
    mUnmergeable = false;
}

void UndoRedo::undo()
{
    if (!canUndo())
        return;
    const QUndoCommand *step = mUndoStack->command(mUndoStack->index() - 1);
    mUndoStack->undo();
    tellStep(*step, true);
}

void UndoRedo::redo()
{
    if (!canRedo())
        return;
    const QUndoCommand *step = mUndoStack->command(mUndoStack->index());
    mUndoStack->redo();
    tellStep(*step, false);
}

void UndoRedo::tellStep(const QUndoCommand &step, bool back)
{
    Q_EMIT stepped(stepItems(step), back);
    Q_EMIT documentChanged();
}

void UndoRedo::clear()
{
    mInTransaction = false;
    mSequenceNames.clear();
    mOpenMacros = 0;
    mRefused.reset();
    mUndoStack->clear();
    setModified(false);
}

void UndoRedo::markClean()
{
    mUndoStack->setClean();
    setModified(false);
}

bool UndoRedo::isEmpty() const
{
    return mUndoStack->count() == 0;
}

UndoMergeableCommand *UndoRedo::mergeTarget() const
{
    if (!mMergeable || !mInTransaction || canRedo() || mOpenMacros < mSequenceNames.size())
        return nullptr;
    const QUndoCommand *last = nullptr;
    if (mOpenMacros > 0) {
        // The macros stand in each other, the outermost after all steps.
        last = mUndoStack->command(mUndoStack->index());
        for (int i = 0; i < mOpenMacros && last; ++i)
            last = lastChild(*last);
    } else if (mUndoStack->index() > 0) {
        last = mUndoStack->command(mUndoStack->index() - 1);
        if (last->childCount() > 0)
            last = lastChild(*last);
    }
    // The stack gives out its commands for reading only; folding is what they are made for.
    return const_cast<UndoMergeableCommand *>(dynamic_cast<const UndoMergeableCommand *>(last));
}

void UndoRedo::addCommand(QUndoCommand *command)
{
    std::unique_ptr<QUndoCommand> owned(command);
    auto *treeCommand = dynamic_cast<TreeCommand *>(command);
    if (treeCommand && !treeCommand->runAhead()) {
        mRefused = std::move(owned);
        return;
    }
    // What can be redone was recorded on the present state, so that a step must lead to it.
    if (canRedo())
        mMergeable = false;
    openMacros();
    mUndoStack->push(owned.release());
    mMergeable = true;
    Q_EMIT documentChanged();
}

void UndoRedo::markUnsaved()
{
    if (mUndoStack->isClean())
        mUndoStack->resetClean();
    setModified(true);
}

void UndoRedo::recordChange(int itemId, const TutorialItemField &field, const QVariant &value)
{
    if (!TutorialEditor::Manager::instance()->mData.getData(itemId)) {
        Log::warning(kFolder, "UndoRedo::recordChange", __LINE__) << "tutorialItemData not found" << itemId;
        return;
    }
    UndoMergeableCommand *target = mergeTarget();
    if (!target) {
        PropertyHash hash;
        hash.insert(QStringLiteral("target"), field.name);
        addCommand(new ModifyTutorialItemDataCommand(itemId, hash, value));
        return;
    }
    target->takeIn(itemId, field, value);
    // If the state before was the saved one, no step leads to that any more. Within a sequence its end tells that.
    if (mOpenMacros == 0)
        markUnsaved();
    Q_EMIT documentChanged();
}

void UndoRedo::undoAndMakeUnredoable()
{
    undo();
    cutRedoSide();
}

bool UndoRedo::isTemporaryDirAvailable() const
{
    return !mTemporaryDir.path().isEmpty();
}

void UndoRedo::removeTemporaryDir()
{
    mTemporaryDir.remove();
}

QString UndoRedo::createTemporaryDir()
{
    const QString path = mTemporaryDir.path();
    const QString name = QString::number(mTemporaryDirCount);
    // An empty path would be the current folder.
    if (!isTemporaryDirAvailable() || !QDir(path).mkdir(name)) {
        Log::warning(kFolder, "UndoRedo::createTemporaryDir", __LINE__) << "Failed to mkdir" << path << name;
        return QString();
    }
    ++mTemporaryDirCount;
    return path + QLatin1Char('/') + name;
}

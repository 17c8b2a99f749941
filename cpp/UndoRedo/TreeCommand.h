#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QUndoCommand>
#include <QVariantMap>

/// The base of the commands that change the shape of the document. They work on ids and never keep
/// a pointer to a node; the history makes sure that each runs on the state of its first run.
///
/// After each run but the first, which is the one inside the push, the screens are told by linkInfo.
class TreeCommand : public QUndoCommand
{
public:
    void undo() final;
    void redo() final;
    /// Makes the first run before the push, whose own run is then passed over. False when there was
    /// nothing to do.
    bool runAhead();
    /// The items that the command is about, without what they hold.
    virtual QList<int> itemIds() const = 0;

    void setLinkInfo(const QString &linkInfo) { mLinkInfo = linkInfo; }

protected:
    TreeCommand(const QString &text, const QString &linkInfo, const QVariantMap &option);

    using Item = TreeItem<TutorialItemData>;
    using Document = TreeDataTemplate<TutorialItemData>;

    static Document &document();
    /// Puts a node beside or into the target: at that position, or with -1 at the end of a folder
    /// and right after an item. False with a warning in the log when there is no such target.
    static bool insertAt(int targetId, int position, const Item &item);
    /// An id list for a command's text.
    static QString listText(const QList<int> &idList);

    const QVariantMap &option() const { return mOption; }

private:
    /// False when a step failed; the screens are then told nothing.
    virtual bool apply() = 0;
    virtual bool revert() = 0;
    /// Whether the last run has changed the document.
    virtual bool hasEffect() const = 0;

    void run();

    QString mLinkInfo;
    QVariantMap mOption;
    bool mFirstRedo = true;
    bool mRanAhead = false;
};

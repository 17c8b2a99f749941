#include "quick/TutorialItemListModel.h"

#include "tool/Log.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioText.h"
#include "UndoRedo/AddFolderCommand.h"
#include "UndoRedo/CreateItemCommand.h"
#include "UndoRedo/UndoRedo.h"

namespace
{
constexpr char kFolder[] = "cpp/quick";

TreeDataTemplate<TutorialItemData> &document()
{
    return TutorialEditor::Manager::instance()->mData;
}

/// The text that tells the screens of an undo or redo.
QString makeLinkInfo(const QList<int> &idList, QVariantMap &option)
{
    option.clear();
    QVariantHash info;
    if (idList.size() == 1)
        info.insert(QStringLiteral("tutorialItemId"), idList.first());
    else
        info.insert(QStringLiteral("tutorialItemIdList"), DataSupport::getVariantList(idList));
    info.insert(QStringLiteral("refresh"), true);
    return JsonWrapper::getJsonString(info);
}

int idOf(const QModelIndex &index)
{
    return index.isValid() ? index.data(TutorialItemListModel::RoleId).toInt() : -1;
}

/// The role of that property in a row, or -1.
int roleOf(const QString &propertyName)
{
    static const QHash<QString, int> roles = { { QStringLiteral("name"), TutorialItemListModel::RoleName },
                                               { QStringLiteral("icon"), TutorialItemListModel::RoleIcon },
                                               { QStringLiteral("jump"), TutorialItemListModel::RoleJump },
                                               { QStringLiteral("prohibited"),
                                                 TutorialItemListModel::RoleProhibited } };
    return roles.value(propertyName, -1);
}
} // namespace

TutorialItemListModel::TutorialItemListModel(QObject *parent)
    : QStandardItemModel(parent)
    , mRoleNames({ { RoleName, QByteArrayLiteral("name") },
                   { RoleId, QByteArrayLiteral("id") },
                   { RoleIcon, QByteArrayLiteral("icon") },
                   { RoleJump, QByteArrayLiteral("jump") },
                   { RoleProhibited, QByteArrayLiteral("prohibited") },
                   { RoleFolder, QByteArrayLiteral("folder") } })
{
    setColumnCount(1);
    refresh();
}

QVariant TutorialItemListModel::getValue(int id, const QString &propertyName) const
{
    if (const TutorialItemData *record = document().getData(id))
        return record->getValue(propertyName);
    Log::warning(kFolder, "TutorialItemListModel::getValue", __LINE__) << "tutorialItemData not found" << id;
    return getDefaultValue(propertyName);
}

QVariant TutorialItemListModel::getDefaultValue(const QString &propertyName) const
{
    return TutorialItemData().getValue(propertyName);
}

void TutorialItemListModel::setValue(int id, const QString &propertyName, const QVariant &value)
{
    QStandardItem *row = findItemById(id);
    if (!row) {
        Log::warning(kFolder, "TutorialItemListModel::setValue", __LINE__) << "QStandardItem not found" << id;
        return;
    }
    if (row->data(RoleFolder).toBool() && propertyName == QLatin1String("prohibited")) {
        setProhibitedBelow(*row, value.toBool());
        refreshRoles();
        return;
    }
    TutorialItemData *record = document().getData(id);
    if (!record) {
        Log::warning(kFolder, "TutorialItemListModel::setValue", __LINE__) << "tutorialItemData not found" << id;
        return;
    }
    if (record->getValue(propertyName) == value)
        return;
    record->setValue(propertyName, value);
    if (managerInstance && propertyName == QLatin1String("hint2"))
        managerInstance->noteTranslated(id);
    const int role = roleOf(propertyName);
    if (role >= 0)
        row->setData(record->getValue(propertyName), role);
}

void TutorialItemListModel::setProhibitedBelow(const QStandardItem &row, bool prohibited)
{
    if (!row.data(RoleFolder).toBool()) {
        const int id = row.data(RoleId).toInt();
        if (TutorialItemData *record = document().getData(id)) {
            record->setValue(QStringLiteral("prohibited"), prohibited);
        } else {
            Log::warning(kFolder, "TutorialItemListModel::setValue", __LINE__) << "tutorialItemData not found" << id;
        }
    }
    for (int i = 0; i < row.rowCount(); ++i)
        setProhibitedBelow(*row.child(i), prohibited);
}

QString TutorialItemListModel::getRefusal(const QString &text) const
{
    const QString part = ScenarioText::findUnreadable(text);
    if (part.isEmpty())
        return QString();
    return tr("\"%1\" is not taken: with \"%2\" in it, the saved tutorial could not be opened again.").arg(text, part);
}

int TutorialItemListModel::addItem(int targetId)
{
    QVariantMap option;
    const QString linkInfo = makeLinkInfo({ targetId }, option);
    const QString name = document().getNewName(tr("item"), 3);
    return UndoRedo::createItemCommand(targetId, -1, name, linkInfo, option)->newId();
}

int TutorialItemListModel::addFolder(int targetId)
{
    QVariantMap option;
    const QString linkInfo = makeLinkInfo({ targetId }, option);
    AddFolderCommand *command = UndoRedo::addFolderCommand(targetId, -1, linkInfo, option);
    command->setLinkInfo(makeLinkInfo({ command->newId() }, option));
    return command->newId();
}

void TutorialItemListModel::changeItemName(const QModelIndex &index, const QString &name)
{
    QVariantMap option;
    const int id = idOf(index);
    const QString linkInfo = makeLinkInfo({ id }, option);
    UndoRedo::renameItemCommand(id, name, linkInfo, option);
}

QString TutorialItemListModel::getValidName(const QString &candidate) const
{
    return document().getValidName(candidate);
}

void TutorialItemListModel::moveIdListBeforeIndex(const QModelIndex &baseIndex, const QList<int> &idList)
{
    QVariantMap option;
    const QString linkInfo = makeLinkInfo(idList, option);
    UndoRedo::moveItemsCommand(idList, true, idOf(baseIndex), linkInfo, option);
}

void TutorialItemListModel::moveIdListIntoIndex(const QModelIndex &folderIndex, const QList<int> &idList)
{
    QVariantMap option;
    const QString linkInfo = makeLinkInfo(idList, option);
    UndoRedo::moveItemsCommand(idList, false, idOf(folderIndex), linkInfo, option);
}

void TutorialItemListModel::deleteIdList(const QList<int> &idList)
{
    QVariantMap option;
    const QString linkInfo = makeLinkInfo(idList, option);
    UndoRedo::deleteItemsCommand(idList, linkInfo, option);
}

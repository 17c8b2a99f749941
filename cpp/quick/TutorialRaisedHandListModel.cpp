#include "quick/TutorialRaisedHandListModel.h"

TutorialRaisedHandListModel::TutorialRaisedHandListModel(QObject *parent) : QStandardItemModel(parent)
{
    mRoleNames.insert(roleName(), QByteArrayLiteral("name"));
    setColumnCount(1);
    refresh();
}

void TutorialRaisedHandListModel::refresh()
{
    clear();
    for (const QString &name : qAsConst(mList))
        appendRow(new QStandardItem(name));
}

void TutorialRaisedHandListModel::clear()
{
    QStandardItemModel::clear();
}

void TutorialRaisedHandListModel::setList(const QStringList &list)
{
    mList = list;
    refresh();
}

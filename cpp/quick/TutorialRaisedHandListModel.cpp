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

void TutorialRaisedHandListModel::setSource(TutorialEventListModel *source)
{
    if (source == mSource)
        return;
    if (mSource)
        mSource->disconnect(this);
    mSource = source;
    if (source)
        connect(source, &TutorialEventListModel::raisedHandChanged, this, &TutorialRaisedHandListModel::setList);
    Q_EMIT sourceChanged();
}

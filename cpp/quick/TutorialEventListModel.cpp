#include "quick/TutorialEventListModel.h"

#include <QTextDocumentFragment>

TutorialEventListModel::TutorialEventListModel(QObject *parent) : QStandardItemModel(parent)
{
    mRoleNames.insert(roleName(), QByteArrayLiteral("name"));
    setColumnCount(1);
    refresh();
}

void TutorialEventListModel::refresh()
{
    clear();
}

void TutorialEventListModel::clear()
{
    QStandardItemModel::clear();
}

void TutorialEventListModel::addEventText(const QString &text)
{
    appendRow(new QStandardItem(text));
}

void TutorialEventListModel::setCoordsText(const QString &text)
{
    Q_EMIT coordsTextChanged(text);
}

QString TutorialEventListModel::getTagStrippedText(const QString &text) const
{
    return QTextDocumentFragment::fromHtml(text).toPlainText();
}

void TutorialEventListModel::setRaisedHandList(const QStringList &list)
{
    Q_EMIT raisedHandChanged(list);
}

#include "quick/TutorialEventListModel.h"

#include "Tutorial/link/HostMessages.h"

#include <QTextDocumentFragment>

using namespace HostMessages;

namespace
{
constexpr int kMostLines = 10000;
// Of the oldest lines, many go at once, so that the rest seldom moves; an even number, so that no row
// changes its stripe.
constexpr int kOldLines = 1000;
} // namespace

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
    if (rowCount() >= kMostLines)
        removeRows(0, kOldLines);
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

void TutorialEventListModel::readMessage(const QString &message)
{
    if (!HostMessages::isNamed(message, FromHost::kEventLog))
        return;
    const QStringList fields = HostMessages::split(message);
    const QString kind = fields.value(1);
    if (kind == FromHost::kCoords)
        setCoordsText(fields.value(2));
    else if (kind == FromHost::kAppend)
        addEventText(fields.value(2));
    else if (kind == FromHost::kRaisedHand)
        setRaisedHandList(fields.mid(2));
}

void TutorialEventListModel::setRaisedHandList(const QStringList &list)
{
    Q_EMIT raisedHandChanged(list);
}

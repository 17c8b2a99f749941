#pragma once

#include <QHash>
#include <QStandardItemModel>
#include <QStringList>

/// The events of the host editor as lines of rich text, for the event dialog.
class TutorialEventListModel : public QStandardItemModel
{
    Q_OBJECT
    Q_PROPERTY(int RoleName READ roleName CONSTANT)

public:
    explicit TutorialEventListModel(QObject *parent = nullptr);

    static int roleName() { return Qt::DisplayRole; }
    QHash<int, QByteArray> roleNames() const override { return mRoleNames; }

    /// Both remove all lines: there is no other copy of them.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void clear();
    /// Appends a line; tags in the text stay. Of very many lines, the oldest go.
    Q_INVOKABLE void addEventText(const QString &text);
    /// Passes the coordinates under the cursor on to the dialog.
    Q_INVOKABLE void setCoordsText(const QString &text);
    /// The text of a line as the dialog shows it, without its tags.
    Q_INVOKABLE QString getTagStrippedText(const QString &text) const;

    /// Carries out a message of the host editor if it is an "eventLog" message.
    Q_INVOKABLE void readMessage(const QString &message);

    /// Passes the names of the tracked controls on.
    void setRaisedHandList(const QStringList &list);

Q_SIGNALS:
    void coordsTextChanged(const QString &text);
    void raisedHandChanged(const QStringList &list);

private:
    QHash<int, QByteArray> mRoleNames;
};

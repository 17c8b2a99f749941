#pragma once

#include <QHash>
#include <QStandardItemModel>
#include <QStringList>

/// The names of the controls that the host editor tracks at the moment, for the event dialog.
class TutorialRaisedHandListModel : public QStandardItemModel
{
    Q_OBJECT
    Q_PROPERTY(int RoleName READ roleName CONSTANT)

public:
    explicit TutorialRaisedHandListModel(QObject *parent = nullptr);

    static int roleName() { return Qt::DisplayRole; }
    QHash<int, QByteArray> roleNames() const override { return mRoleNames; }

    /// Makes the rows those of the list.
    Q_INVOKABLE void refresh();
    /// Removes the rows; a refresh brings them back.
    Q_INVOKABLE void clear();

    void setList(const QStringList &list);

private:
    QStringList mList;
    QHash<int, QByteArray> mRoleNames;
};

#pragma once

#include "quick/TutorialEventListModel.h"

#include <QHash>
#include <QPointer>
#include <QStandardItemModel>
#include <QStringList>

/// The names of the controls that the host editor tracks at the moment, for the event dialog.
class TutorialRaisedHandListModel : public QStandardItemModel
{
    Q_OBJECT
    Q_PROPERTY(int RoleName READ roleName CONSTANT)
    /// The model whose lists are shown here, or null.
    Q_PROPERTY(TutorialEventListModel *source READ source WRITE setSource NOTIFY sourceChanged)

public:
    explicit TutorialRaisedHandListModel(QObject *parent = nullptr);

    static int roleName() { return Qt::DisplayRole; }
    QHash<int, QByteArray> roleNames() const override { return mRoleNames; }

    /// Makes the rows those of the list.
    Q_INVOKABLE void refresh();
    /// Removes the rows; a refresh brings them back.
    Q_INVOKABLE void clear();

    void setList(const QStringList &list);

    TutorialEventListModel *source() const { return mSource; }
    void setSource(TutorialEventListModel *source);

Q_SIGNALS:
    void sourceChanged();

private:
    QStringList mList;
    QHash<int, QByteArray> mRoleNames;
    QPointer<TutorialEventListModel> mSource;
};

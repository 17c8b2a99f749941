#pragma once

#include "quick/TutorialItemListModel.h"

/// All that a row and those below it show.
inline QString modelText(const QModelIndex &index)
{
    using Model = TutorialItemListModel;
    QString text =
        QStringLiteral("%1 %2 %3 %4 %5 %6(")
            .arg(index.data(Model::RoleId).toString(), index.data(Model::RoleName).toString(),
                 index.data(Model::RoleIcon).toString(), index.data(Model::RoleJump).toString(),
                 QString::number(index.data(Model::RoleProhibited).toBool()), index.data(Model::RoleFolder).toString());
    for (int i = 0; i < index.model()->rowCount(index); ++i)
        text += modelText(index.model()->index(i, 0, index));
    return text + QLatin1Char(')');
}

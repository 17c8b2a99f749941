#pragma once

#include <QStandardItemModel>

namespace TutorialEditor
{
/// A model of standard items for tutorials. The screens show theirs through TutorialItemListModel.
class Model : public QStandardItemModel
{ };
} // namespace TutorialEditor

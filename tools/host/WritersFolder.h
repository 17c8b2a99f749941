#pragma once

#include <QString>

/// The folder of a writer who starts the authoring mode from the desktop's menu.
namespace WritersFolder
{
/// "Trelvane" in the user's documents.
QString path();

/// The tutorials that are installed with the program, a folder "tutorial-win".
QString samples();

/// Where "folder" has no "tutorial-win" it gets a copy of the samples, whole or not at all; what is
/// there already is the writer's. Empty on success, else what is wrong.
QString layOut(const QString &folder, const QString &samples);
} // namespace WritersFolder

#pragma once

#include <QString>
#include <QStringList>

/// Runs xdotool, while the windows of this process go on living, and gives what it prints. The command is split at
/// its spaces.
QString xdotool(const QString &command, const QStringList &more = {});

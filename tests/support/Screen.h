#pragma once

#include <QImage>
#include <QRect>
#include <QStringList>
#include <QVector>

/// The screen as its user has it: mouse, keyboard and pixels, and what the X server says of any
/// process's windows, past the toolkit.
namespace Screen
{
/// Runs xdotool, while the windows of this process go on living, and gives what it prints. The
/// command is split at its spaces.
QString xdotool(const QString &command, const QStringList &more = {});
void click(const QPoint &place);

struct Window
{
    QRect place;
    int level; ///< among all on the screen from the bottom up, menus included
};

/// The windows of the process that are to be seen.
QVector<Window> windows(qint64 process);
/// The places of those of that size.
QVector<QRect> places(qint64 process, const QSize &size);

bool isManaged();

QImage pixels(const QRect &place);
} // namespace Screen

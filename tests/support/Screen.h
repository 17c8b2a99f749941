#pragma once

#include <QImage>
#include <QRect>
#include <QStringList>
#include <QVector>

/// The screen as its user has it: mouse, keyboard and pixels, and what the X server says of any
/// process's windows, past the toolkit.
namespace Screen
{
/// Runs xdotool, while the windows of this process go on living, and gives what it prints.
QString xdotool(const QStringList &arguments);
void click(const QPoint &place);

struct Window
{
    quint32 id;
    QRect place;
    int level; ///< among all on the screen from the bottom up, menus included
    bool keptAbove; ///< by the window manager's word
};

/// The windows of the process that are to be seen.
QVector<Window> windows(qint64 process);

/// Whether there is a window manager.
bool isManaged();

QImage pixels(const QRect &place);
} // namespace Screen

#pragma once

#include <QImage>
#include <QRect>
#include <QVector>
#include <QWindow>

/// The screen as its user has it: mouse, keyboard and pixels, and what the window system says of any process's
/// windows, past the toolkit.
namespace Screen
{
/// The windows of this process go on living while the input comes.
void click(const QPoint &place);
/// Types letters, one after the other.
void type(const QString &text);
/// Lets a window of this process have the keys, as a user who goes to it.
void focus(WId window);
void raise(WId window);

struct Window
{
    QRect place; ///< without a frame
    int level; ///< among all on the screen from the bottom up, menus included
};

/// The windows of the process that are to be seen.
QVector<Window> windows(qint64 process);
/// The places of those of that size.
QVector<QRect> places(qint64 process, const QSize &size);

/// Whether windows have frames, and some stay above the others.
bool isManaged();
/// Whether translucent windows are mixed with what lies below them.
bool isComposed();

QImage pixels(const QRect &place);
} // namespace Screen

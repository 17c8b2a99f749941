#pragma once

#include <QAccessible>

struct Speech;
class QWidget;

/// A window of the guidance that a screen reader speaks of, though it never gets the focus.
///
/// In the tree of accessible objects the window has its text as its name, and one child, a notification of the same
/// text. The child is what speaks: the toolkit tells of a window each time that it is shown, which is far more often
/// than there is something new to say.
class Spoken
{
public:
    Spoken();
    virtual ~Spoken();

    virtual Speech speech() const = 0;
    /// What the window is, to those who look round.
    virtual QAccessible::Role accessibleRole() const = 0;

    /// Tells a screen reader what the window says now. Without one it costs nothing.
    static void announce(QWidget *window);

private:
    Q_DISABLE_COPY(Spoken)
};

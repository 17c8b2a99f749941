#pragma once

#include <QElapsedTimer>
#include <QPalette>

class QWidget;

/// How the user wants to see the guidance, by the program's own settings and by the desktop's. Asked for again every
/// two seconds, so that a change shows while a step is on the screen.
class UserPreferences
{
public:
    UserPreferences() = default;

    /// Nothing moves and nothing fades. What is told stays.
    bool isMotionReduced();

    /// Gives a window and what is in it the colours of a desktop with high contrast, and takes them away again.
    void colour(QWidget *window);

private:
    Q_DISABLE_COPY(UserPreferences)

    void refresh();

    QElapsedTimer mAsked;
    bool mMotionReduced = false;
    QPalette mColours;
};

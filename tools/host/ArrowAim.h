#pragma once

#include <QPoint>

/// Where the program is told to point so that the arrow's tip stands where the step wants it.
///
/// For a place above the screen's upper edge the program turns the arrow upside down, with its tip
/// somewhat lower, and turns it back only well below that edge.
class ArrowAim
{
public:
    /// The place to send for a step's place. The places have to come in the order of the steps.
    QPoint aimAt(const QPoint &place);

private:
    bool mUpsideDown = false;
};

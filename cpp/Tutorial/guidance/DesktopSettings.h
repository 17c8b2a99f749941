#pragma once

#include <QPalette>

/// What the user has asked of the whole desktop, and the guidance has to ask for itself.
struct DesktopSettings
{
    /// Those of now.
    static DesktopSettings read();

    /// Nothing is to move on the screen by itself.
    bool reducedMotion = false;
    /// The colours of a desktop whose contrast is high, where the toolkit doesn't have them already; else a palette
    /// that sets no colour.
    QPalette highContrast;
};

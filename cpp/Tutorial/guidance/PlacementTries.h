#pragma once

class QScreen;
class QWidget;

/// Whether a window that could not get to its pixel in one move is to be moved again. A window manager may refuse, so
/// the tries end, until the window is shown or found on another screen.
class PlacementTries
{
public:
    /// How often a window is moved in vain.
    static constexpr int kTries = 20;

    /// The window is to be placed, as often as that takes.
    void begin();
    /// To be asked before each try. \param window may be null
    bool isDue(const QWidget *window);
    void tried(bool settled);

private:
    bool mSettled = true;
    int mLeft = kTries;
    const QScreen *mScreen = nullptr; // of the shown window; only compared
};

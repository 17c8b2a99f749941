#pragma once

#include <QRect>

/// What the guidance windows need of the program round them. The manager implements it; a test stands in
/// for it with a few lines. The windows don't own it, and it outlives them.
class GuidanceContext
{
public:
    enum class Button { Next, Yes, No };

    GuidanceContext() = default;
    virtual ~GuidanceContext();

    /// The user has pressed a button of the step.
    virtual void pressed(Button button) = 0;
    /// One of the windows has become the active one: a "Popup" on top of the host's window stack is gone.
    virtual void dropPopupWindowKey() = 0;
    /// Shows or hides every guidance window by the state of the host editor and of this process.
    virtual void updateGuidanceVisibility() = 0;
    /// The rectangle that the windows keep inside of, in screen pixels; null when the host gave none.
    virtual QRect hostRect() const = 0;
    /// Between "start" and "stop".
    virtual bool isGuidanceRunning() const = 0;
    /// The editor tooltip has been closed and must not be used again. Called from inside its close
    /// event, so the object may only be freed later.
    virtual void editorTooltipClosed() = 0;

private:
    Q_DISABLE_COPY(GuidanceContext)
};

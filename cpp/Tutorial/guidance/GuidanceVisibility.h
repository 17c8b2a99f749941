#pragma once

#include <QtGlobal>

/// Whether the guidance is to be seen: a state, the events that change it, and the orders that follow.
/// It knows no window.
///
/// While the guidance runs, its windows go only when the host editor is hidden and this process isn't the
/// active application. A tick is 100 ms.
class GuidanceVisibility
{
public:
    /// Carries the orders out. That can lead back to an event here, since a window that is shown or hidden
    /// may change the activation at once.
    class Stage
    {
    public:
        Stage() = default;
        virtual ~Stage();

        /// Makes the windows of the guidance and shows them, or shows those that are there.
        virtual void begin() = 0;
        /// Shows or hides the windows of the guidance, without the editor tooltip.
        virtual void setGuidanceVisible(bool visible) = 0;
        virtual void setEditorTooltipVisible(bool visible) = 0;
        virtual void showLog() = 0;

    private:
        Q_DISABLE_COPY(Stage)
    };

    /// The stage is not owned, and outlives this object.
    explicit GuidanceVisibility(Stage *stage);

    void start();
    void stop();
    void hostShown();
    void hostHidden();
    void setApplicationActive(bool active);
    void tick();
    /// Brings the windows in line with the state. From inside of an order it does nothing: what the order
    /// changes is followed after it.
    void update();

    /// Between `start()` and `stop()`.
    bool isRunning() const { return mGuidanceRunning; }

private:
    Q_DISABLE_COPY(GuidanceVisibility)

    bool isVisible() const;
    void order(bool visible);

    Stage *mStage;
    bool mGuidanceRunning = false;
    bool mHostHidden = false;
    bool mApplicationActive = false;
    int mShowDelayTicks = 0;
    int mHideDelayTicks = 0;
    bool mOrdering = false; // windows are being shown or hidden
};

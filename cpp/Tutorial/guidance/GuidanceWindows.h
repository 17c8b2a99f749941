#pragma once

#include "Tutorial/guidance/GuidanceVisibility.h"

#include <QString>

#include <memory>

class EditorTooltip;
class GuidanceContext;
class TutorialIndicator;
class TutorialLog;

/// The windows that lie over the host editor. Each is made when it is first needed.
class GuidanceWindows : public GuidanceVisibility::Stage
{
public:
    /// The context is not owned; it is called back while windows are made, shown, hidden and freed.
    explicit GuidanceWindows(GuidanceContext *context);
    ~GuidanceWindows() override;

    /// Null before the guidance has begun for the first time.
    TutorialIndicator *indicator() const { return mIndicator.get(); }
    /// Shows the window with arrow and hint, unless it was closed.
    void showTooltip();

    void showEditorTooltip(const QString &text, int x, int y);
    /// The editor tooltip was closed: the next one is made anew.
    void forgetEditorTooltip();

    /// Frees all windows.
    void clear();

    void begin() override;
    void setGuidanceVisible(bool visible) override;
    void setEditorTooltipVisible(bool visible) override;
    void showLog() override;

private:
    Q_DISABLE_COPY(GuidanceWindows)

    GuidanceContext *mContext;
    std::unique_ptr<TutorialIndicator> mIndicator;
    std::unique_ptr<EditorTooltip> mEditorTooltip;
    std::unique_ptr<TutorialLog> mLogWindow;
};

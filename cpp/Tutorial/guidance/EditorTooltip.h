#pragma once

#include "Tutorial/guidance/PlacementTries.h"
#include "Tutorial/guidance/Spoken.h"
#include "Tutorial/guidance/UserPreferences.h"

#include <QWidget>

class GuidanceContext;
class QTextEdit;

/// A text that the host editor asks for, centred on a point of the screen. It fades in after a second,
/// stays for five and fades out; it lets all input through. It is not shown by its construction.
///
/// Closing it tells the context to forget it; its owner frees it later.
class EditorTooltip : public QWidget, public Spoken
{
    Q_OBJECT

public:
    EditorTooltip(QWidget *parent, GuidanceContext *manager);
    ~EditorTooltip() override;

    /// Shows a plain or rich text centred on a point in screen pixels, from the beginning of its delay.
    /// Hides the base class's `show()` by name: `setVisible(true)` shows the window as it was.
    void show(const QString &text, int x, int y);

    /// The text while it is seen.
    Speech speech() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Window; }

    QTextEdit *mTextEdit; ///< a child; null once the window was closed
    GuidanceContext *mManager; ///< not owned
    int mTimerId; ///< ticks of 10 ms
    int mDelayTicks = 0; ///< ticks left before the fade-in begins
    int mHoldTicks = 0; ///< ticks of full opacity left
    int mFadeTicks = 0; ///< steps left of the fade under way

protected:
    void timerEvent(QTimerEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(EditorTooltip)

    void advance();
    void place();
    void setOpacity(float opacity);
    int nextFadeTicks();
    bool isSeen() const;
    void updateShape();

    UserPreferences mPreferences;
    QPoint mCentre; // in pixels
    QSize mTextSize; // of all of the text
    PlacementTries mPlacement;
};

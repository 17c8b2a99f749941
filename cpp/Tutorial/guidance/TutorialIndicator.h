#pragma once

#include "Tutorial/guidance/GuidanceContext.h"
#include "Tutorial/guidance/GuidanceStep.h"
#include "Tutorial/guidance/PlacementTries.h"

#include <QVariantList>
#include <QWidget>

#include <array>
#include <memory>

class QPushButton;
class QTextDocument;

/// Drives what the user sees of a step: moves the windows over the host editor, decides on which side
/// of the target they lie, and owns the tooltip window and the buttons Next, Yes and No.
///
/// The widget itself is never shown; its windows are top-level windows without parent. A closed window
/// is no longer reachable through its pointer, and is freed when it is made anew or with the indicator.
class TutorialIndicator : public QWidget, public GuidanceStep
{
    Q_OBJECT

public:
    TutorialIndicator(QWidget *parent, GuidanceContext *manager);
    ~TutorialIndicator() override;

    /// Begins a step: restarts the arrow's bounce and shows or hides the buttons.
    void init(bool nextVisible, bool yesNoVisible);
    /// Sets the point to aim at, in screen pixels. -9999 in both means that the step has none: the
    /// target stays as it was and the arrow goes, whatever `arrowVisible` says.
    void setTargetWindowOffset(int x, int y, const QString &windowKey, bool arrowVisible);
    /// Shows a plain text as the hint; an empty one hides it. Markup in it is shown as it stands.
    void setHint(const QString &hint);
    /// Has a screen reader speak of the step. A step that was announced is not again, as long as no button was
    /// pressed.
    void announceStep();
    /// The next step is announced whatever the last one was.
    void forgetAnnounced() { mAnnounced.clear(); }
    /// Hides the buttons that exist; the step still wants them.
    void hideButtons();
    /// Shows those buttons that the step wants.
    void showButtons();

    int mTimerId = 0; ///< 0 once the widget was closed
    int mOffsetX;
    int mOffsetY;
    QPushButton *mNextButton = nullptr; ///< null once the widget was closed, as the two below
    QPushButton *mYesButton = nullptr;
    QPushButton *mNoButton = nullptr;
    int mCurrentX = 0; ///< where the tooltip window stands, in screen pixels
    int mCurrentY = 0;
    int mTargetX = 0; ///< the point to aim at, in screen pixels
    int mTargetY = 0;
    bool mNextVisible = false; ///< the step wants the Next button
    bool mYesNoVisible = false; ///< the step wants the Yes and No buttons

public Q_SLOTS:
    void nextClicked();
    void yesClicked();
    void noClicked();

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    Q_DISABLE_COPY(TutorialIndicator)

    void makeTooltip();
    /// Has the windows placed anew when a screen comes, goes or changes: they may have been carried off with it.
    void followScreens();
    QPoint restingPlace() const;
    void decideFlips(const QPoint &current);
    bool measureHint();
    void moveWindows(int x, int y);
    void repaintTooltip();
    void press(GuidanceContext::Button button);

    // The document outlives every text edit that shows it.
    std::unique_ptr<QTextDocument> mHintDocument;
    std::unique_ptr<TutorialTooltip> mTooltipOwner;
    std::array<std::unique_ptr<QPushButton>, 3> mButtonOwners;
    int mPaintedIconType;
    PlacementTries mPlacement; // of all windows, by the tooltip
    QVariantList mAnnounced; // all that tells a step from another
};

#pragma once

#include "Tutorial/guidance/UserPreferences.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QString>

class GuidanceContext;
class TutorialTooltip;

/// What one step of the guidance shows. The indicator decides it, the tooltip window paints from it:
/// the two share this record and don't know each other's class otherwise.
struct GuidanceStep
{
    explicit GuidanceStep(GuidanceContext *manager);
    virtual ~GuidanceStep();

    /// The picture of `mIconType`; null for a number that names none, and for a picture that didn't load.
    QPixmap icon() const;

    QPixmap mArrowPixmap; ///< points down and to the left
    QPixmap mClickPixmap; ///< icon 0
    QPixmap mDoubleClickPixmap; ///< icon 1
    QPixmap mRightClickPixmap; ///< icon 2
    QPixmap mEyePixmap; ///< icon 3
    QPixmap mWaitPixmap; ///< icon 4
    QPixmap mKeyboardPixmap; ///< icon 5

    int mIconType = 6; ///< 0 to 5, any other number draws no icon
    QString mWindowKey; ///< what the step points at
    QString mHint; ///< the whole text as it was received
    int mHintHeight = 64; ///< height of the text edit in pixels
    GuidanceContext *mManager; ///< not owned
    QElapsedTimer mElapsedTimer; ///< phase of the arrow's bounce
    bool mFlipVertical = false; ///< the windows lie below the normal place
    bool mFlipHorizontal = false; ///< the windows lie to the left of the target
    bool mFullClear = false; ///< the next paint clears the whole window, and this flag
    bool mHintChanged = false; ///< the text edit waits to be measured
    UserPreferences mPreferences;
    TutorialTooltip *mTooltip = nullptr; ///< null once the window was closed
    bool mArrowVisible = true;

private:
    Q_DISABLE_COPY(GuidanceStep)
};

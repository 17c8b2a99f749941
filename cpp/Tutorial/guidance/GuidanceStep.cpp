#include "Tutorial/guidance/GuidanceStep.h"

GuidanceStep::GuidanceStep(GuidanceContext *manager)
    : mArrowPixmap(QStringLiteral(":/resource/png/arrow.png"))
    , mClickPixmap(QStringLiteral(":/resource/png/click.png"))
    , mDoubleClickPixmap(QStringLiteral(":/resource/png/double_click.png"))
    , mRightClickPixmap(QStringLiteral(":/resource/png/right_click.png"))
    , mEyePixmap(QStringLiteral(":/resource/png/eye.png"))
    , mWaitPixmap(QStringLiteral(":/resource/png/wait.png"))
    , mKeyboardPixmap(QStringLiteral(":/resource/png/keyboard.png"))
    , mManager(manager)
{ }

GuidanceStep::~GuidanceStep() = default;

QPixmap GuidanceStep::icon() const
{
    switch (mIconType) {
    case 0:
        return mClickPixmap;
    case 1:
        return mDoubleClickPixmap;
    case 2:
        return mRightClickPixmap;
    case 3:
        return mEyePixmap;
    case 4:
        return mWaitPixmap;
    case 5:
        return mKeyboardPixmap;
    default:
        return {};
    }
}

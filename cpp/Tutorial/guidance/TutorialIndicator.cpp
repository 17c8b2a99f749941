#include "Tutorial/guidance/TutorialIndicator.h"

#include "tool/Log.h"
#include "Tutorial/guidance/GuidanceGeometry.h"
#include "Tutorial/guidance/HintView.h"
#include "Tutorial/guidance/ScreenPixels.h"
#include "Tutorial/guidance/StepSpeech.h"
#include "Tutorial/guidance/TutorialTooltip.h"
#include "Tutorial/guidance/WindowActivation.h"
#include "Tutorial/guidance/WindowPlatform.h"
#include "Tutorial/guidance/WindowShape.h"

#include <QApplication>
#include <QEvent>
#include <QPushButton>
#include <QScreen>
#include <QTextDocument>
#include <QTextEdit>

namespace
{
std::unique_ptr<QPushButton> makeButton(const QString &label)
{
    auto button = std::make_unique<QPushButton>(label);
    button->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    button->setMinimumSize(GuidanceGeometry::kButtonSize);
    button->setMaximumSize(GuidanceGeometry::kButtonSize);
    button->setAttribute(Qt::WA_TranslucentBackground);
    button->setAttribute(Qt::WA_ShowWithoutActivating);
    WindowPlatform::refuseFocus(button.get());
    WindowPlatform::keepAbove(button.get());
    WindowShape::updateFixed(button.get());
    button->hide();
    return button;
}
} // namespace

TutorialIndicator::TutorialIndicator(QWidget *parent, GuidanceContext *manager)
    : QWidget(parent)
    , GuidanceStep(manager)
    , mOffsetX(GuidanceGeometry::kNoPosition)
    , mOffsetY(GuidanceGeometry::kNoPosition)
    , mPaintedIconType(mIconType)
{
    makeTooltip();
    mButtonOwners = { makeButton(tr("Next")), makeButton(tr("Yes")), makeButton(tr("No")) };
    mNextButton = mButtonOwners[0].get();
    mYesButton = mButtonOwners[1].get();
    mNoButton = mButtonOwners[2].get();
    // A window that was never placed stands where the window manager likes.
    moveWindows(mCurrentX, mCurrentY);
    followScreens();
    mTimerId = startTimer(100, Qt::CoarseTimer);
    connect(mNextButton, &QAbstractButton::clicked, this, &TutorialIndicator::nextClicked);
    connect(mYesButton, &QAbstractButton::clicked, this, &TutorialIndicator::yesClicked);
    connect(mNoButton, &QAbstractButton::clicked, this, &TutorialIndicator::noClicked);
    mElapsedTimer.start();
}

TutorialIndicator::~TutorialIndicator()
{
    if (mTimerId)
        killTimer(mTimerId);
}

void TutorialIndicator::init(bool nextVisible, bool yesNoVisible)
{
    Log::debug("cpp/Tutorial", "TutorialIndicator::init", __LINE__) << nextVisible << yesNoVisible;
    mElapsedTimer.restart();
    mNextVisible = nextVisible;
    mYesNoVisible = yesNoVisible;
    if (mNextButton)
        mNextButton->setVisible(nextVisible);
    if (mYesButton)
        mYesButton->setVisible(yesNoVisible);
    if (mNoButton)
        mNoButton->setVisible(yesNoVisible);
}

void TutorialIndicator::setTargetWindowOffset(int x, int y, const QString &windowKey, bool arrowVisible)
{
    Log::debug("cpp/Tutorial", "TutorialIndicator::setTargetWindowOffset", __LINE__)
        << x << y << windowKey << arrowVisible;
    if (!mTooltip)
        makeTooltip();
    mWindowKey = windowKey;
    mOffsetX = x;
    mOffsetY = y;
    if (x == GuidanceGeometry::kNoPosition && y == GuidanceGeometry::kNoPosition) {
        mArrowVisible = false;
        return;
    }
    mTargetX = x;
    mTargetY = y;
    mArrowVisible = arrowVisible;
}

void TutorialIndicator::setHint(const QString &hint)
{
    if (!mTooltip)
        makeTooltip();
    mHint = hint;
    if (hint.isEmpty()) {
        mTooltip->mTextEdit->hide();
        return;
    }
    if (!mHintDocument)
        mHintDocument = std::make_unique<QTextDocument>();
    HintView::show(mTooltip->mTextEdit, mHintDocument.get(), hint);
    mTooltip->mTextEdit->show();
    mHintChanged = true;
}

void TutorialIndicator::announceStep()
{
    if (!mTooltip)
        return;
    const QVariantList step{ mTooltip->speech().text(), mOffsetX, mOffsetY, mNextVisible, mYesNoVisible };
    if (step == mAnnounced)
        return;
    mAnnounced = step;
    Spoken::announce(mTooltip);
}

void TutorialIndicator::hideButtons()
{
    for (QPushButton *button : { mNextButton, mYesButton, mNoButton }) {
        if (button)
            button->hide();
    }
}

void TutorialIndicator::showButtons()
{
    if (mNextButton && mNextVisible)
        mNextButton->show();
    if (mYesButton && mYesNoVisible)
        mYesButton->show();
    if (mNoButton && mYesNoVisible)
        mNoButton->show();
}

void TutorialIndicator::nextClicked()
{
    press(GuidanceContext::Button::Next);
}

void TutorialIndicator::yesClicked()
{
    press(GuidanceContext::Button::Yes);
}

void TutorialIndicator::noClicked()
{
    press(GuidanceContext::Button::No);
}

void TutorialIndicator::press(GuidanceContext::Button button)
{
    forgetAnnounced();
    mManager->pressed(button);
}

void TutorialIndicator::timerEvent(QTimerEvent *)
{
    const QPoint before(mCurrentX, mCurrentY);
    const bool still = mPreferences.isMotionReduced();
    const QPoint current = still ? restingPlace() : before;
    decideFlips(current);
    const QPoint rest = restingPlace();
    const QPoint next = still ? rest : GuidanceGeometry::easingStep(current, rest);
    if (!mTooltip && mManager->isGuidanceRunning())
        makeTooltip();
    // Windows at rest are placed again too when the hint was measured: the buttons follow its height.
    const bool measured = measureHint();
    if (measured || next != before)
        mPlacement.begin();
    if (mPlacement.isDue(mTooltip))
        moveWindows(next.x(), next.y());
    for (QPushButton *button : { mNextButton, mYesButton, mNoButton }) {
        if (!button)
            continue;
        mPreferences.colour(button);
        WindowShape::updateFixed(button);
    }
    if (mTooltip) {
        mPreferences.colour(mTooltip);
        mTooltip->updateShape();
        repaintTooltip();
    }
}

void TutorialIndicator::closeEvent(QCloseEvent *event)
{
    if (mTimerId)
        killTimer(mTimerId);
    mTimerId = 0;
    for (QPushButton *button : { mNextButton, mYesButton, mNoButton }) {
        if (button)
            button->close();
    }
    mNextButton = nullptr;
    mYesButton = nullptr;
    mNoButton = nullptr;
    if (mTooltip)
        mTooltip->close();
    mTooltip = nullptr;
    QWidget::closeEvent(event);
}

void TutorialIndicator::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    WindowActivation::follow(this, *event, mManager, WindowActivation::TakeBack);
}

void TutorialIndicator::followScreens()
{
    const auto followGeometry = [this](QScreen *screen) {
        connect(screen, &QScreen::geometryChanged, this, [this] { mPlacement.begin(); });
        mPlacement.begin();
    };
    for (QScreen *screen : QGuiApplication::screens())
        followGeometry(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, followGeometry);
    connect(qApp, &QGuiApplication::screenRemoved, this, [this] { mPlacement.begin(); });
}

void TutorialIndicator::makeTooltip()
{
    // Frees the window that was closed before, if there was one.
    mTooltipOwner = std::make_unique<TutorialTooltip>(this);
    mTooltip = mTooltipOwner.get();
    mTooltip->mTextEdit->move(GuidanceGeometry::textPlace(mFlipHorizontal));
    moveWindows(mCurrentX, mCurrentY);
}

QPoint TutorialIndicator::restingPlace() const
{
    return GuidanceGeometry::restingPlace({ mTargetX, mTargetY }, { mFlipVertical, mFlipHorizontal });
}

void TutorialIndicator::decideFlips(const QPoint &current)
{
    const GuidanceGeometry::Flips flips{ mFlipVertical, mFlipHorizontal };
    if (!GuidanceGeometry::isNear(current, restingPlace()))
        return;
    const GuidanceGeometry::Flips decided =
        GuidanceGeometry::decideFlips({ mTargetX, mTargetY }, mManager->hostRect(), flips);
    if (decided == flips)
        return;
    mFlipVertical = decided.vertical;
    mFlipHorizontal = decided.horizontal;
    mFullClear = true;
    if (mTooltip)
        mTooltip->mTextEdit->move(GuidanceGeometry::textPlace(mFlipHorizontal));
}

bool TutorialIndicator::measureHint()
{
    if (!mHintChanged)
        return false;
    mHintChanged = false;
    if (mTooltip) {
        mHintHeight = HintView::height(mTooltip->mTextEdit);
        HintView::setHeight(mTooltip->mTextEdit, mHintHeight);
    }
    return true;
}

void TutorialIndicator::moveWindows(int x, int y)
{
    // On a screen of another scale the windows grow round the arrow's tip, which stays on its pixel.
    const QPoint tip = GuidanceGeometry::arrowTip({ mFlipVertical, mFlipHorizontal });
    ScreenPixels::Placement tooltip{ { x, y }, { x, y }, 1, true };
    if (mTooltip) {
        tooltip = ScreenPixels::placement(QPoint(x, y) + tip, tip, mTooltip);
        mTooltip->move(tooltip.place);
    }
    const auto moveButton = [&](QPushButton *button, const QPoint &inTooltip) {
        if (button)
            button->move(ScreenPixels::placement(tooltip.corner + (QPointF(inTooltip) * tooltip.scale).toPoint(),
                                                 QPoint(), button)
                             .place);
    };
    moveButton(mNextButton, GuidanceGeometry::nextButtonPlace(QPoint(), mHintHeight));
    moveButton(mYesButton, GuidanceGeometry::nextButtonPlace(QPoint(), mHintHeight));
    moveButton(mNoButton, GuidanceGeometry::noButtonPlace(QPoint(), mHintHeight));
    mCurrentX = x;
    mCurrentY = y;
    mPlacement.tried(tooltip.settled);
}

void TutorialIndicator::repaintTooltip()
{
    QRegion region = GuidanceGeometry::repaintRect(mFlipHorizontal, mFullClear);
    // Flipped, the icon lies beside the arrow's rectangle and would keep the picture of the step before.
    if (mPaintedIconType != mIconType)
        region += GuidanceGeometry::iconClearRect(mFlipHorizontal);
    mPaintedIconType = mIconType;
    mTooltip->repaint(region);
}

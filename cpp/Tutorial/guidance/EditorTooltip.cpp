#include "Tutorial/guidance/EditorTooltip.h"

#include "tool/Log.h"
#include "Tutorial/guidance/GuidanceContext.h"
#include "Tutorial/guidance/GuidanceGeometry.h"
#include "Tutorial/guidance/HintText.h"
#include "Tutorial/guidance/OverlayWindow.h"
#include "Tutorial/guidance/ScreenPixels.h"
#include "Tutorial/guidance/StepSpeech.h"
#include "Tutorial/guidance/WindowPlatform.h"
#include "Tutorial/guidance/WindowShape.h"

#include <QEvent>
#include <QTextEdit>

namespace
{
// In ticks of 10 ms.
const int kDelay = 100;
const int kHold = 500;
const int kFade = 25;
} // namespace

EditorTooltip::EditorTooltip(QWidget *parent, GuidanceContext *manager)
    : QWidget(parent)
    , mTextEdit(new QTextEdit(this))
    , mManager(manager)
{
    mTextEdit->setLineWrapMode(QTextEdit::NoWrap);
    mTextEdit->setAutoFormatting(QTextEdit::AutoAll);
    mTextEdit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mTextEdit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mTextEdit->setWindowFlag(Qt::WindowTransparentForInput);
    mTextSize = mTextEdit->size();

    OverlayWindow::setUp(this, QSize(320, 240));
    mTimerId = startTimer(10, Qt::CoarseTimer);
}

EditorTooltip::~EditorTooltip()
{
    Log::debug("cpp/Tutorial", "EditorTooltip::~EditorTooltip", __LINE__);
    if (mTimerId)
        killTimer(mTimerId);
}

void EditorTooltip::show(const QString &text, int x, int y)
{
    mPreferences.colour(this);
    if (text.isEmpty()) {
        mTextEdit->hide();
    } else {
        HintText::showIn(mTextEdit, text);
        mTextEdit->show();
        const QSizeF size = mTextEdit->document()->size();
        Log::debug("cpp/Tutorial", "EditorTooltip::show", __LINE__)
            << HintText::visiblePart(text) << size.width() << size.height();
        mTextSize = QSize(int(size.width()), int(size.height()));
        mTextEdit->resize(mTextSize.boundedTo(GuidanceGeometry::kMostText));
    }
    mCentre = { x, y };
    mPlacement.begin();
    place();
    setOpacity(0.0f);
    mDelayTicks = kDelay;
    mHoldTicks = kHold;
    mFadeTicks = kFade;
    updateShape();
    QWidget::show();
}

void EditorTooltip::timerEvent(QTimerEvent *)
{
    if (!isVisible())
        return;
    if (mPlacement.isDue(this))
        place();
    advance();
    updateShape();
}

void EditorTooltip::place()
{
    // Limited first, as any number can come in.
    const QPoint corner = GuidanceGeometry::centredPlace(mCentre, mTextSize);
    const QPoint centre(mTextSize.width() / 2, mTextSize.height() / 2);
    const ScreenPixels::Placement placement = ScreenPixels::placement(corner + centre, centre, this);
    mPlacement.tried(placement.settled);
    move(placement.place);
}

void EditorTooltip::advance()
{
    if (mDelayTicks > 0) {
        if (--mDelayTicks == 0)
            mFadeTicks = kFade;
    } else if (mHoldTicks > 0) {
        if (mFadeTicks > 0) {
            const bool first = mFadeTicks == kFade;
            mFadeTicks = nextFadeTicks();
            setOpacity(float(kFade - mFadeTicks) / kFade);
            if (first)
                Spoken::announce(this);
        } else if (--mHoldTicks == 0) {
            mFadeTicks = kFade;
        }
    } else if (mFadeTicks > 0) {
        mFadeTicks = nextFadeTicks();
        setOpacity(float(mFadeTicks) / kFade);
    }
}

int EditorTooltip::nextFadeTicks()
{
    return mPreferences.isMotionReduced() ? 0 : mFadeTicks - 1;
}

Speech EditorTooltip::speech() const
{
    return { isSeen() ? mTextEdit->toPlainText() : QString(), QString() };
}

bool EditorTooltip::isSeen() const
{
    return mTextEdit && !mTextEdit->isHidden() && windowOpacity() > 0;
}

void EditorTooltip::closeEvent(QCloseEvent *event)
{
    delete mTextEdit;
    mTextEdit = nullptr;
    QWidget::closeEvent(event);
    mManager->editorTooltipClosed();
}

void EditorTooltip::changeEvent(QEvent *event)
{
    Log::debug("cpp/Tutorial", "EditorTooltip::changeEvent", __LINE__);
    QWidget::changeEvent(event);
}

void EditorTooltip::setOpacity(float opacity)
{
    setWindowOpacity(qreal(opacity));
    WindowPlatform::flush();
}

void EditorTooltip::updateShape()
{
    WindowShape::update(this, [this] {
        // Nothing fades there either.
        return isSeen() ? QRegion(mTextEdit->geometry()) : QRegion();
    });
}

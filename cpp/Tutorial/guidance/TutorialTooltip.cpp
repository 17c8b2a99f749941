#include "Tutorial/guidance/TutorialTooltip.h"

#include "tool/Log.h"
#include "Tutorial/guidance/GuidanceContext.h"
#include "Tutorial/guidance/GuidanceGeometry.h"
#include "Tutorial/guidance/GuidanceStep.h"
#include "Tutorial/guidance/HintText.h"
#include "Tutorial/guidance/HintView.h"
#include "Tutorial/guidance/OverlayWindow.h"
#include "Tutorial/guidance/StepSpeech.h"
#include "Tutorial/guidance/WindowActivation.h"
#include "Tutorial/guidance/WindowShape.h"

#include <QEvent>
#include <QPainter>
#include <QTextEdit>

using namespace GuidanceGeometry;

namespace
{
QTransform arrowTransform(bool flipVertical, bool flipHorizontal)
{
    QTransform transform;
    transform.translate(flipHorizontal ? kArrowSize + kTextWidth : 0, flipVertical ? kArrowSize : 0);
    transform.scale(flipHorizontal ? -1 : 1, flipVertical ? -1 : 1);
    return transform;
}
} // namespace

TutorialTooltip::TutorialTooltip(QWidget *parent)
    : QWidget(nullptr)
    , mIndicator(dynamic_cast<GuidanceStep *>(parent))
    , mTextEdit(new QTextEdit(this))
{
    Q_ASSERT(mIndicator);
    HintView::setUp(mTextEdit, mIndicator->mHintHeight);

    if (mIndicator->mHint.isEmpty()) {
        mTextEdit->hide();
    } else {
        HintText::showIn(mTextEdit, mIndicator->mHint);
        mTextEdit->show();
        mIndicator->mHintChanged = true;
    }

    OverlayWindow::setUp(this, kTooltipSize);
    updateShape();
    show();
}

TutorialTooltip::~TutorialTooltip()
{
    Log::debug("cpp/Tutorial", "TutorialTooltip::~TutorialTooltip", __LINE__);
}

void TutorialTooltip::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        const bool flipHorizontal = mIndicator->mFlipHorizontal;
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        if (mIndicator->mFullClear) {
            painter.fillRect(rect(), Qt::transparent);
            mIndicator->mFullClear = false;
        } else {
            painter.fillRect(arrowClearRect(flipHorizontal), Qt::transparent);
            painter.fillRect(iconClearRect(flipHorizontal), Qt::transparent);
        }
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        drawStep(painter);
    }
    QWidget::paintEvent(event);
}

void TutorialTooltip::drawStep(QPainter &painter) const
{
    const bool flipHorizontal = mIndicator->mFlipHorizontal;
    if (mIndicator->mArrowVisible) {
        painter.save();
        painter.setTransform(arrowTransform(mIndicator->mFlipVertical, flipHorizontal), true);
        const qint64 phase = mIndicator->mPreferences.isMotionReduced() ? 0 : mIndicator->mElapsedTimer.elapsed();
        painter.drawPixmap(0, bounceOffset(phase), mIndicator->mArrowPixmap);
        painter.restore();
    }
    const QPixmap icon = mIndicator->icon();
    painter.drawPixmap(iconPlace(icon.width(), flipHorizontal), icon);
}

void TutorialTooltip::updateShape()
{
    WindowShape::update(this, [this] {
        const QRect arrowAndIcon = arrowClearRect(false) | arrowClearRect(true);
        QImage image(arrowAndIcon.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        {
            QPainter painter(&image);
            drawStep(painter);
        }
        const QRegion drawn = WindowShape::opaquePart(image);
        return mTextEdit && !mTextEdit->isHidden() ? drawn | mTextEdit->geometry() : drawn;
    });
}

Speech TutorialTooltip::speech() const
{
    return StepSpeech::ofStep(mIndicator->mHint, mIndicator->mIconType,
                              mIndicator->mArrowVisible ? mIndicator->mWindowKey : QString());
}

void TutorialTooltip::closeEvent(QCloseEvent *event)
{
    delete mTextEdit;
    mTextEdit = nullptr;
    mIndicator->mTooltip = nullptr;
    QWidget::closeEvent(event);
}

void TutorialTooltip::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    WindowActivation::follow(this, *event, mIndicator->mManager, WindowActivation::TakeBack);
}

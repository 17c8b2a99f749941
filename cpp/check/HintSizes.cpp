#include "check/HintSizes.h"

#include "Tutorial/guidance/GuidanceGeometry.h"
#include "Tutorial/guidance/HintView.h"

#include <QElapsedTimer>
#include <QTextDocument>
#include <QTextEdit>
#include <QWindow>

#include <limits>

namespace
{
// Texts that were typed through stay until there are so many of them.
constexpr int kMostForgotten = 4096;
} // namespace

HintSizes::HintSizes() = default;

HintSizes::~HintSizes() = default;

void HintSizes::measure(const QStringList &hints)
{
    measure(hints, std::numeric_limits<int>::max());
}

bool HintSizes::measure(const QStringList &hints, int milliseconds)
{
    forgetAllBut(hints);
    QElapsedTimer timer;
    timer.start();
    for (const QString &hint : hints) {
        if (mHeights.contains(hint))
            continue;
        if (timer.hasExpired(milliseconds))
            return false;
        mHeights.insert(hint, layOut(hint));
    }
    return true;
}

void HintSizes::forgetAllBut(const QStringList &hints)
{
    if (mHeights.size() <= hints.size() + kMostForgotten)
        return;
    QHash<QString, int> heights;
    for (const QString &hint : hints) {
        const auto height = mHeights.constFind(hint);
        if (height != mHeights.constEnd())
            heights.insert(hint, *height);
    }
    mHeights = heights;
}

int HintSizes::layOut(const QString &hint)
{
    if (hint.isEmpty())
        return 0; // It is not shown.
    if (!mWindow) {
        mDocument = std::make_unique<QTextDocument>();
        mWindow = std::make_unique<QWidget>();
        mWindow->setAttribute(Qt::WA_DontShowOnScreen);
        mWindow->resize(GuidanceGeometry::kTooltipSize);
        mTextEdit = new QTextEdit(mWindow.get());
        HintView::setUp(mTextEdit, HintView::mostHeight());
        mWindow->show();
        // Else a screen reader would come upon a window that nobody sees; it passes over popups.
        mWindow->windowHandle()->setFlags(Qt::Popup);
    }
    HintView::show(mTextEdit, mDocument.get(), hint);
    return HintView::height(mTextEdit);
}

#include "support/FakeGuidanceContext.h"
#include "support/HugeTexts.h"

#include "Tutorial/EditorTooltip.h"
#include "Tutorial/TutorialIndicator.h"
#include "Tutorial/TutorialLog.h"
#include "Tutorial/TutorialTooltip.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTextDocument>
#include <QTextEdit>
#include <QtTest>

#include <memory>

namespace
{
QPixmap filled(int width, int height, const QColor &color)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

/// What a window paints, with transparent pixels where it paints nothing.
QImage paintedBy(QWidget &window)
{
    QImage image(window.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    window.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}
} // namespace

class tst_GuidanceWindows : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeGuidanceContext> mContext;
    std::unique_ptr<TutorialIndicator> mIndicator;

    QTextEdit &textEdit() { return *mIndicator->mTooltip->mTextEdit; }
    QPoint current() const { return { mIndicator->mCurrentX, mIndicator->mCurrentY }; }

    void aimAt(int x, int y)
    {
        mIndicator->setTargetWindowOffset(x, y, QStringLiteral("MainWindow"), true);
        tick(*mIndicator, 60);
    }

private Q_SLOTS:
    void init()
    {
        mContext = std::make_unique<FakeGuidanceContext>();
        mIndicator = std::make_unique<TutorialIndicator>(nullptr, mContext.get());
        // The timer doesn't run by itself: each test drives it.
        mIndicator->killTimer(mIndicator->mTimerId);
        mIndicator->mTimerId = 0;
    }
    void cleanup() { mIndicator.reset(); }

    void startsAsAnArrowWithoutHint();
    void letsInputThroughAndFloats();
    void buttonsFollowTheFlags_data();
    void buttonsFollowTheFlags();
    void buttonsSendOneWord();
    void noPositionKeepsTheTarget();
    void hintIsShownAsItStands();
    void emptyHintKeepsTheHeight();
    void hugeTextsAreCut_data();
    void hugeTextsAreCut();
    void buttonsFollowTheHeightAtRest();
    void keepsItsSideFarAway();
    void textChangesSides();
    void closedTooltipIsMadeAnew();
    void closeLetsEverythingGo();
    void paintsTheStep_data();
    void paintsTheStep();
    void paintsTheIconOfTheNextStep();
    void activationReachesTheManager();
};

void tst_GuidanceWindows::startsAsAnArrowWithoutHint()
{
    QVERIFY(mIndicator->mTooltip->isVisible());
    QCOMPARE(mIndicator->mTooltip->geometry(), QRect(0, 0, 640, 480));
    QCOMPARE(textEdit().geometry(), QRect(128, 56, 256, 64));
    QVERIFY(textEdit().isHidden());
    QVERIFY(mIndicator->mArrowVisible);
    QVERIFY(mIndicator->mElapsedTimer.isValid());
    QVERIFY(!mIndicator->isVisible());
    for (QPushButton *button : { mIndicator->mNextButton, mIndicator->mYesButton, mIndicator->mNoButton }) {
        QVERIFY(button->isHidden() && button->isWindow());
        QCOMPARE(button->size(), QSize(64, 32));
        QCOMPARE(button->pos(), QPoint(button == mIndicator->mNoButton ? 184 : 128, 120));
    }
}

void tst_GuidanceWindows::letsInputThroughAndFloats()
{
    EditorTooltip editorTooltip(nullptr, mContext.get());
    for (const QWidget *window :
         { static_cast<QWidget *>(mIndicator->mTooltip), static_cast<QWidget *>(&editorTooltip) }) {
        QCOMPARE(window->windowFlags(),
                 Qt::NoDropShadowWindowHint | Qt::WindowTransparentForInput | Qt::WindowStaysOnTopHint
                     | Qt::FramelessWindowHint | Qt::Tool);
        QVERIFY(window->testAttribute(Qt::WA_ShowWithoutActivating));
        QVERIFY(window->testAttribute(Qt::WA_TranslucentBackground));
    }
    QCOMPARE(mIndicator->mNextButton->windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    const TutorialLog log(nullptr, mContext.get());
    QCOMPARE(log.geometry(), QRect(0, 0, 0, 0));
    QVERIFY(log.isVisible());
}

void tst_GuidanceWindows::buttonsFollowTheFlags_data()
{
    QTest::addColumn<bool>("next");
    QTest::addColumn<bool>("yesNo");
    for (const bool next : { false, true }) {
        for (const bool yesNo : { false, true })
            QTest::addRow("next %d, yes and no %d", next, yesNo) << next << yesNo;
    }
}

void tst_GuidanceWindows::buttonsFollowTheFlags()
{
    QFETCH(bool, next);
    QFETCH(bool, yesNo);
    const auto areShown = [this](bool nextShown, bool yesNoShown) {
        return mIndicator->mNextButton->isVisible() == nextShown && mIndicator->mYesButton->isVisible() == yesNoShown
            && mIndicator->mNoButton->isVisible() == yesNoShown;
    };
    mIndicator->init(!next, !yesNo);
    mIndicator->init(next, yesNo);
    QVERIFY(areShown(next, yesNo));
    mIndicator->hideButtons();
    QVERIFY(areShown(false, false));
    mIndicator->showButtons();
    QVERIFY(areShown(next, yesNo));
}

void tst_GuidanceWindows::buttonsSendOneWord()
{
    mIndicator->init(true, true);
    for (QPushButton *button : { mIndicator->mNextButton, mIndicator->mYesButton, mIndicator->mNoButton })
        QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(mContext->mSent, QStringList({ QStringLiteral("next"), QStringLiteral("yes"), QStringLiteral("no") }));
    QVERIFY(mIndicator->mNextButton->isVisible());
}

void tst_GuidanceWindows::noPositionKeepsTheTarget()
{
    mIndicator->setTargetWindowOffset(-10, 20, QStringLiteral("A"), true);
    mIndicator->setTargetWindowOffset(-9999, -9999, QStringLiteral("B"), true);
    QCOMPARE(QPoint(mIndicator->mTargetX, mIndicator->mTargetY), QPoint(-10, 20));
    QVERIFY(!mIndicator->mArrowVisible);
    QCOMPARE(mIndicator->mWindowKey, QStringLiteral("B"));
    QCOMPARE(mIndicator->mOffsetX, -9999);
    mIndicator->setTargetWindowOffset(-9999, 7, QStringLiteral("B"), true);
    QCOMPARE(QPoint(mIndicator->mTargetX, mIndicator->mTargetY), QPoint(-9999, 7));
    QVERIFY(mIndicator->mArrowVisible);
}

void tst_GuidanceWindows::hintIsShownAsItStands()
{
    const QString hint = QStringLiteral("C:\\new <b>\"A\" & &lt;\nsecond");
    mIndicator->setHint(hint);
    QCOMPARE(textEdit().toPlainText(), hint);
    QVERIFY(textEdit().isVisible());
    QCOMPARE(mIndicator->mHint, hint);

    QTextCursor cursor(textEdit().document());
    const auto family = [&](int index) {
        cursor.setPosition(index + 1);
        return cursor.charFormat().fontFamily();
    };
    const int backslash = 2;
    QVERIFY(!family(backslash).isEmpty());
    QVERIFY(family(backslash) != family(backslash + 1));
}

void tst_GuidanceWindows::emptyHintKeepsTheHeight()
{
    mIndicator->setHint(QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix\nseven"));
    tick(*mIndicator);
    const int height = mIndicator->mHintHeight;
    QVERIFY(height > 64);
    QCOMPARE(textEdit().height(), height);
    mIndicator->setHint(QString());
    QVERIFY(textEdit().isHidden());
    QVERIFY(!mIndicator->mHintChanged);
    tick(*mIndicator);
    QCOMPARE(mIndicator->mHintHeight, height);
    mIndicator->setHint(QStringLiteral("one"));
    tick(*mIndicator);
    QVERIFY(mIndicator->mHintHeight < height);
}

void tst_GuidanceWindows::hugeTextsAreCut_data()
{
    addHugeTexts();
}

void tst_GuidanceWindows::hugeTextsAreCut()
{
    QFETCH(QString, text);
    QElapsedTimer timer;
    timer.start();
    mIndicator->setHint(text);
    tick(*mIndicator);
    mIndicator->mTooltip->close();
    mIndicator->setTargetWindowOffset(1, 1, QString(), true);
    QVERIFY(timer.elapsed() < 20000);
    QCOMPARE(mIndicator->mHint, text);
    QVERIFY(!textEdit().toPlainText().contains(QChar::ReplacementCharacter));
}

void tst_GuidanceWindows::buttonsFollowTheHeightAtRest()
{
    aimAt(300, 200);
    const QPoint rest = current();
    mIndicator->setHint(QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix\nseven"));
    // The window moves by one pixel at the same time, which must not hide that the height has changed.
    for (const int down : { 0, 1 }) {
        mIndicator->mTargetY = rest.y() + down;
        mIndicator->mHintChanged = true;
        mIndicator->mNextButton->move(0, 0);
        tick(*mIndicator);
        const int below = current().y() + 56 + mIndicator->mHintHeight;
        QCOMPARE(mIndicator->mTooltip->pos(), current());
        QCOMPARE(mIndicator->mNextButton->pos(), QPoint(current().x() + 128, below));
        QCOMPARE(mIndicator->mYesButton->pos(), QPoint(current().x() + 128, below));
        QCOMPARE(mIndicator->mNoButton->pos(), QPoint(current().x() + 184, below));
    }
}

void tst_GuidanceWindows::keepsItsSideFarAway()
{
    mIndicator->setTargetWindowOffset(900, -50, QString(), true);
    tick(*mIndicator);
    QVERIFY(!mIndicator->mFlipHorizontal && !mIndicator->mFlipVertical);
    QCOMPARE(mIndicator->mTooltip->pos(), QPoint(225, -12));
    tick(*mIndicator, 60);
    QVERIFY(mIndicator->mFlipHorizontal && mIndicator->mFlipVertical);
    QVERIFY((current() - QPoint(900 - 308, -50 + 165)).manhattanLength() <= 6);
}

void tst_GuidanceWindows::textChangesSides()
{
    mContext->mHostRect = QRect(-2000, 0, 900, 700);
    aimAt(-1300, 100);
    QCOMPARE(textEdit().pos(), QPoint(0, 56));
    mIndicator->mTooltip->close();
    tick(*mIndicator);
    QCOMPARE(textEdit().pos(), QPoint(0, 56));
    QCOMPARE(mIndicator->mTooltip->pos(), current());
    aimAt(-1900, 100);
    QCOMPARE(textEdit().pos(), QPoint(128, 56));
}

void tst_GuidanceWindows::closedTooltipIsMadeAnew()
{
    mIndicator->setHint(QStringLiteral("hint"));
    tick(*mIndicator);
    QPointer<TutorialTooltip> closed = mIndicator->mTooltip;
    closed->close();
    QVERIFY(!mIndicator->mTooltip);
    QVERIFY(closed && !closed->mTextEdit);
    mIndicator->hideButtons();

    mContext->mRunning = false;
    tick(*mIndicator);
    QVERIFY(!mIndicator->mTooltip);
    mContext->mRunning = true;
    tick(*mIndicator);
    QVERIFY(mIndicator->mTooltip && mIndicator->mTooltip->isVisible());
    QVERIFY(!closed);
    QCOMPARE(textEdit().toPlainText(), QStringLiteral("hint"));
    QVERIFY(!mIndicator->mHintChanged);

    mContext->mRunning = false;
    mIndicator->mTooltip->close();
    mIndicator->setHint(QStringLiteral("next hint"));
    QCOMPARE(textEdit().toPlainText(), QStringLiteral("next hint"));
}

void tst_GuidanceWindows::closeLetsEverythingGo()
{
    mIndicator->init(true, true);
    mIndicator->close();
    QVERIFY(!mIndicator->mTooltip && !mIndicator->mNextButton && !mIndicator->mYesButton && !mIndicator->mNoButton);
    QCOMPARE(mIndicator->mTimerId, 0);
    mIndicator->hideButtons();
    mIndicator->showButtons();
    mIndicator->init(true, true);
    mContext->mRunning = false;
    tick(*mIndicator, 2);
    QVERIFY(!mIndicator->mTooltip);
}

void tst_GuidanceWindows::paintsTheStep_data()
{
    QTest::addColumn<bool>("flipVertical");
    QTest::addColumn<bool>("flipHorizontal");
    QTest::addColumn<bool>("arrowVisible");
    QTest::addColumn<QPoint>("tip");
    QTest::newRow("plain") << false << false << true << QPoint(5, 16 + 120);
    QTest::newRow("down") << true << false << true << QPoint(5, 0);
    QTest::newRow("left") << false << true << true << QPoint(384 - 6, 16 + 120);
    QTest::newRow("down and left") << true << true << true << QPoint(384 - 6, 0);
    QTest::newRow("no arrow") << false << false << false << QPoint(5, 16 + 120);
}

void tst_GuidanceWindows::paintsTheStep()
{
    QFETCH(bool, flipVertical);
    QFETCH(bool, flipHorizontal);
    QFETCH(bool, arrowVisible);
    QFETCH(QPoint, tip);
    // An arrow whose quarter at the bottom left is red, and the rest of it blue.
    mIndicator->mArrowPixmap = filled(128, 128, Qt::blue);
    {
        QPainter painter(&mIndicator->mArrowPixmap);
        painter.fillRect(0, 64, 64, 64, Qt::red);
    }
    mIndicator->mKeyboardPixmap = filled(56, 32, Qt::green);
    mIndicator->mIconType = 5;
    mIndicator->mFlipVertical = flipVertical;
    mIndicator->mFlipHorizontal = flipHorizontal;
    mIndicator->mArrowVisible = arrowVisible;
    mIndicator->mFullClear = true;
    mIndicator->init(false, false); // the arrow rests for a second

    const QImage image = paintedBy(*mIndicator->mTooltip);
    QVERIFY(!mIndicator->mFullClear);
    QCOMPARE(image.pixelColor(tip), arrowVisible ? QColor(Qt::red) : QColor(Qt::transparent));
    const int iconLeft = flipHorizontal ? 200 : 128;
    QCOMPARE(image.pixelColor(iconLeft, 0), QColor(Qt::green));
    QCOMPARE(image.pixelColor(iconLeft + 55, 31), QColor(Qt::green));
    QCOMPARE(image.pixelColor(iconLeft + 28, 40), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(500, 300), QColor(Qt::transparent));
}

void tst_GuidanceWindows::paintsTheIconOfTheNextStep()
{
    mIndicator->mClickPixmap = filled(48, 56, Qt::green);
    mIndicator->mEyePixmap = filled(56, 40, Qt::yellow);
    aimAt(900, 200);
    QVERIFY(mIndicator->mFlipHorizontal);
    QVERIFY(QTest::qWaitForWindowExposed(mIndicator->mTooltip));
    for (const int type : { 0, 3, 6 }) {
        mIndicator->mIconType = type;
        tick(*mIndicator);
        const QImage screen = QGuiApplication::primaryScreen()->grabWindow(mIndicator->mTooltip->winId()).toImage();
        const QColor color = screen.pixelColor(230, 20);
        QCOMPARE(color == QColor(Qt::green), type == 0);
        QCOMPARE(color == QColor(Qt::yellow), type == 3);
    }
}

void tst_GuidanceWindows::activationReachesTheManager()
{
    TutorialLog log(nullptr, mContext.get());
    for (QWidget *window : { static_cast<QWidget *>(&log), static_cast<QWidget *>(mIndicator->mTooltip) }) {
        mContext->mDropped = 0;
        mContext->mUpdated = 0;
        const bool isActive = window->isActiveWindow();
        QEvent event(QEvent::ActivationChange);
        QCoreApplication::sendEvent(window, &event);
        QCOMPARE(mContext->mDropped, isActive ? 1 : 0);
        QVERIFY(mContext->mUpdated >= 1);
        QEvent other(QEvent::FontChange);
        mContext->mUpdated = 0;
        QCoreApplication::sendEvent(window, &other);
        QCOMPARE(mContext->mUpdated, 0);
    }
}

QTEST_MAIN(tst_GuidanceWindows)

#include "tst_GuidanceWindows.moc"

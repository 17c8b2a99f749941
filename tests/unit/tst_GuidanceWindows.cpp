#include "support/FakeGuidanceContext.h"

#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialTooltip.h"

#include <QBuffer>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTextEdit>
#include <QTextFrame>
#include <QtTest>

#include <memory>

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

    void buttonsFollowTheFlags();
    void hintIsShownAsItStands();
    void hugeTextsAreCut_data();
    void hugeTextsAreCut();
    void textsAreShownWhole();
    void buttonsFollowTheHeightAtRest();
    void closedTooltipIsMadeAnew();
    void closeLetsEverythingGo();
};

void tst_GuidanceWindows::buttonsFollowTheFlags()
{
    const QVector<QPushButton *> buttons{ mIndicator->mNextButton, mIndicator->mYesButton, mIndicator->mNoButton };
    mIndicator->init(true, true);
    for (QPushButton *button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(mContext->mSent, QStringList({ QStringLiteral("next"), QStringLiteral("yes"), QStringLiteral("no") }));
    for (const bool next : { false, true }) {
        mIndicator->init(next, !next);
        mIndicator->hideButtons();
        for (QPushButton *button : buttons)
            QVERIFY(button->isHidden());
        mIndicator->showButtons();
        for (QPushButton *button : buttons)
            QCOMPARE(button->isVisible(), next == (button == mIndicator->mNextButton));
    }
}

void tst_GuidanceWindows::hintIsShownAsItStands()
{
    const QString hint = QStringLiteral("C:\\new <b>\"A\" & &lt;\nsecond");
    mIndicator->setHint(hint);
    QCOMPARE(textEdit().toPlainText(), hint);
    QVERIFY(textEdit().isVisible());
}

// Texts whose whole layout would take seconds, or no end.
void tst_GuidanceWindows::hugeTextsAreCut_data()
{
    QTest::addColumn<QString>("text");
    const int size = 5 << 20;
    QTest::newRow("one word") << QString(size, QLatin1Char('x'));
    QTest::newRow("lines") << QString(size, QLatin1Char('\n'));
    QTest::newRow("pairs of surrogates") << QString::fromUtf8("a") + QString::fromUtf8("\U0001F600").repeated(size / 2);
    QTest::newRow("tags") << QStringLiteral("<b>x</b>").repeated(size / 8);
    QTest::newRow("table without end") << QStringLiteral("<table>")
            + QStringLiteral("<tr><td>x</td></tr>").repeated(size / 19);
    QTest::newRow("tables in tables") << QStringLiteral("<table><tr><td>").repeated(200);
}

void tst_GuidanceWindows::hugeTextsAreCut()
{
    QFETCH(QString, text);
    EditorTooltip editorTooltip(nullptr, mContext.get());
    mIndicator->setHint(text);
    tick(*mIndicator);
    editorTooltip.show(text, 100, 100);
    // Of the rest nothing is laid out.
    QVERIFY(textEdit().document()->characterCount() < 20000);
    QVERIFY(editorTooltip.mTextEdit->document()->characterCount() < 20000);
    QVERIFY(!textEdit().toPlainText().contains(QChar::ReplacementCharacter));
}

// What has an end is not measured by its source.
void tst_GuidanceWindows::textsAreShownWhole()
{
    const QString hint = QStringLiteral("word & line\n").repeated(1000);
    mIndicator->setHint(hint);
    QCOMPARE(textEdit().toPlainText(), hint);

    QByteArray data;
    QBuffer buffer(&data);
    QRandomGenerator noise(1);
    QImage picture(64, 64, QImage::Format_RGB32);
    for (int i = 0; i < 64 * 64; ++i)
        picture.setPixel(i % 64, i / 64, noise.generate());
    picture.save(&buffer, "PNG");
    const QString inlined = QStringLiteral("before<img src=\"data:image/png;base64,%1\">after");
    const QString tables = QStringLiteral("<table><tr><td>cell</td></tr></table>").repeated(9);
    EditorTooltip editorTooltip(nullptr, mContext.get());
    editorTooltip.show(inlined.arg(QString::fromLatin1(data.toBase64())) + tables, 100, 100);
    const QTextDocument &document = *editorTooltip.mTextEdit->document();
    const QString shown = document.toPlainText();
    QVERIFY(data.size() > 5000 && document.size().height() > 64);
    QVERIFY(document.rootFrame()->childFrames().size() >= 9);
    QVERIFY(shown.startsWith(QLatin1String("before")) && shown.contains(QLatin1String("after")));
}

void tst_GuidanceWindows::buttonsFollowTheHeightAtRest()
{
    aimAt(300, 200);
    const QPoint rest = current();
    mIndicator->setHint(QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix\nseven"));
    // The window moves by one pixel at the same time, which must not hide that the height has changed.
    mIndicator->mTargetY = rest.y() + 1;
    tick(*mIndicator);
    const int below = current().y() + 56 + mIndicator->mHintHeight;
    QCOMPARE(mIndicator->mTooltip->pos(), current());
    QCOMPARE(mIndicator->mNextButton->pos(), QPoint(current().x() + 128, below));
    QCOMPARE(mIndicator->mNoButton->pos(), QPoint(current().x() + 184, below));
}

void tst_GuidanceWindows::closedTooltipIsMadeAnew()
{
    mIndicator->setHint(QStringLiteral("hint"));
    tick(*mIndicator);
    QPointer<TutorialTooltip> closed = mIndicator->mTooltip;
    closed->close();
    mContext->mRunning = false;
    tick(*mIndicator);
    QVERIFY(!mIndicator->mTooltip);
    mContext->mRunning = true;
    tick(*mIndicator);
    QVERIFY(mIndicator->mTooltip && mIndicator->mTooltip->isVisible());
    QVERIFY(!closed);
    QCOMPARE(textEdit().toPlainText(), QStringLiteral("hint"));
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

QTEST_MAIN(tst_GuidanceWindows)

#include "tst_GuidanceWindows.moc"

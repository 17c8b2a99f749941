#include "support/FakeGuidanceContext.h"

#include "Tutorial/guidance/EditorTooltip.h"

#include <QTextDocument>
#include <QTextEdit>
#include <QtTest>

class tst_EditorTooltip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fades();
    void isCentred();
    void closedTellsTheManager();
};

void tst_EditorTooltip::fades()
{
    FakeGuidanceContext context;
    EditorTooltip tooltip(nullptr, &context);
    tooltip.killTimer(tooltip.mTimerId);
    tooltip.mTimerId = 0;
    // A text that comes while another one is there starts from the beginning.
    for (int showing = 0; showing < 2; ++showing) {
        tooltip.show(QStringLiteral("text"), 100, 100);
        tick(tooltip, 100);
        QCOMPARE(tooltip.windowOpacity(), 0.0);
        tick(tooltip);
        QVERIFY(tooltip.windowOpacity() > 0);
        tooltip.hide(); // the counters stand still
        tick(tooltip, 50);
        tooltip.setVisible(true);
        tick(tooltip, 24);
        QCOMPARE(tooltip.windowOpacity(), 1.0);
        tick(tooltip, 500);
        QCOMPARE(tooltip.windowOpacity(), 1.0);
        tick(tooltip);
        QVERIFY(tooltip.windowOpacity() < 1);
    }
    tick(tooltip, 124);
    QCOMPARE(tooltip.windowOpacity(), 0.0);
}

void tst_EditorTooltip::isCentred()
{
    FakeGuidanceContext context;
    EditorTooltip tooltip(nullptr, &context);
    for (const QString &text : { QStringLiteral("<b>a</b><br>b"), QStringLiteral("word ").repeated(40) }) {
        tooltip.show(text, -50, 300);
        const QSize size = tooltip.mTextEdit->size();
        const QSizeF laidOut = tooltip.mTextEdit->document()->size();
        QCOMPARE(size, QSize(int(laidOut.width()), int(laidOut.height())));
        QCOMPARE(tooltip.pos(), QPoint(-50 - size.width() / 2, 300 - size.height() / 2));
    }
    tooltip.show(QString(), 10, 10);
    QVERIFY(tooltip.mTextEdit->isHidden() && tooltip.isVisible());
}

void tst_EditorTooltip::closedTellsTheManager()
{
    FakeGuidanceContext context;
    EditorTooltip tooltip(nullptr, &context);
    tooltip.show(QStringLiteral("text"), 0, 0);
    tooltip.close();
    QCOMPARE(context.mClosed, 1);
    QVERIFY(!tooltip.mTextEdit);
    tick(tooltip, 200);
}

QTEST_MAIN(tst_EditorTooltip)

#include "tst_EditorTooltip.moc"

#include "support/FakeGuidanceContext.h"
#include "support/HugeTexts.h"

#include "Tutorial/EditorTooltip.h"

#include <QElapsedTimer>
#include <QTextDocument>
#include <QTextEdit>
#include <QtTest>

class tst_EditorTooltip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fades();
    void isCentred_data();
    void isCentred();
    void hugeTextsAreCut_data() { addHugeTexts(); }
    void hugeTextsAreCut();
    void closedTellsTheManager();
};

void tst_EditorTooltip::fades()
{
    FakeGuidanceContext context;
    EditorTooltip tooltip(nullptr, &context);
    tooltip.killTimer(tooltip.mTimerId);
    tooltip.mTimerId = 0;
    QVERIFY(!tooltip.isVisible());
    tick(tooltip, 3);
    for (int showing = 0; showing < 2; ++showing) {
        tooltip.show(QStringLiteral("text"), 100, 100);
        QVERIFY(tooltip.isVisible());
        QCOMPARE(tooltip.windowOpacity(), 0.0);
        tick(tooltip, 100);
        QCOMPARE(tooltip.windowOpacity(), 0.0);
        tick(tooltip);
        QVERIFY(qAbs(tooltip.windowOpacity() - 1 / 25.0) < 0.01);
        tooltip.hide(); // the counters stand still
        tick(tooltip, 50);
        tooltip.setVisible(true);
        tick(tooltip, 24);
        QCOMPARE(tooltip.windowOpacity(), 1.0);
        tick(tooltip, 500);
        QCOMPARE(tooltip.windowOpacity(), 1.0);
        tick(tooltip);
        QVERIFY(qAbs(tooltip.windowOpacity() - 24 / 25.0) < 0.01);
        if (showing == 0)
            continue; // the next text starts from the beginning
        tick(tooltip, 24);
        QCOMPARE(tooltip.windowOpacity(), 0.0);
        tick(tooltip, 100);
        QCOMPARE(tooltip.windowOpacity(), 0.0);
        QVERIFY(tooltip.isVisible());
    }
}

void tst_EditorTooltip::isCentred_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << QStringLiteral("a < b") << QStringLiteral("a < b");
    QTest::newRow("rich") << QStringLiteral("<b>a</b><br>b") << QStringLiteral("a\nb");
    QTest::newRow("a long line") << QStringLiteral("word ").repeated(40) << QStringLiteral("word ").repeated(40);
}

void tst_EditorTooltip::isCentred()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    FakeGuidanceContext context;
    EditorTooltip tooltip(nullptr, &context);
    tooltip.show(text, -50, 300);
    const QSize size = tooltip.mTextEdit->size();
    QCOMPARE(tooltip.mTextEdit->toPlainText(), shown);
    QCOMPARE(
        size,
        QSize(int(tooltip.mTextEdit->document()->size().width()), int(tooltip.mTextEdit->document()->size().height())));
    QCOMPARE(tooltip.pos(), QPoint(-50 - size.width() / 2, 300 - size.height() / 2));
    QCOMPARE(tooltip.size(), QSize(320, 240));
    tooltip.show(QString(), 10, 10);
    QVERIFY(tooltip.mTextEdit->isHidden() && tooltip.isVisible());
    QCOMPARE(tooltip.pos(), QPoint(10 - size.width() / 2, 10 - size.height() / 2));
}

void tst_EditorTooltip::hugeTextsAreCut()
{
    QFETCH(QString, text);
    FakeGuidanceContext context;
    EditorTooltip tooltip(nullptr, &context);
    QElapsedTimer timer;
    timer.start();
    tooltip.show(text, 100, 100);
    QVERIFY(timer.elapsed() < 20000);
    QVERIFY(!tooltip.mTextEdit->toPlainText().contains(QChar::ReplacementCharacter));
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

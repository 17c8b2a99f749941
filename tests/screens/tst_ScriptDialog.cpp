#include "ScriptDialog.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class tst_ScriptDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksAndShows();
};

void tst_ScriptDialog::asksAndShows()
{
    ScriptDialog dialog;
    auto *source = dialog.findChild<QPlainTextEdit *>(QStringLiteral("source"));
    auto *answer = dialog.findChild<QPlainTextEdit *>(QStringLiteral("answer"));
    auto *button = dialog.findChild<QPushButton *>(QStringLiteral("convert"));
    QSignalSpy requests(&dialog, &ScriptDialog::conversionRequested);
    dialog.show();

    source->setPlainText(QStringLiteral("a = \"x\"\nb = ("));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(requests.size(), 1);
    const int key = requests.first().at(0).toInt();
    QCOMPARE(requests.first().at(1).toString(), QStringLiteral(R"("a = \"x\"\nb = (")"));

    dialog.showAnswer(key,
                      QStringLiteral(R"json({"error":"Error at line 2: missing )","javascript":"","line":2})json"));
    QCOMPARE(answer->toPlainText(), QStringLiteral("Error at line 2: missing )"));
    QCOMPARE(source->textCursor().selectedText(), QStringLiteral("b = ("));

    // An answer to an earlier request comes too late.
    QTest::mouseClick(button, Qt::LeftButton);
    const QString waiting = answer->toPlainText();
    dialog.showAnswer(key, QStringLiteral(R"json({"error":"","javascript":"late","line":-1})json"));
    QCOMPARE(answer->toPlainText(), waiting);
    const int lastKey = requests.last().at(0).toInt();
    dialog.showAnswer(lastKey, QStringLiteral(R"json({"error":"","javascript":"var a;\n","line":-1})json"));
    QCOMPARE(answer->toPlainText(), QStringLiteral("var a;\n"));
}

QTEST_MAIN(tst_ScriptDialog)

#include "tst_ScriptDialog.moc"

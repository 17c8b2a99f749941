#include "support/WarningGuard.h"
#include "TutorialEditor/ScenarioText.h"

#include <QtTest>

class tst_ScenarioText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void removesBlockComments_data();
    void removesBlockComments();
    void removesBlockCommentsLikeASearchFromTheTop();
    void removesLineComments_data();
    void removesLineComments();
    void removesTheAssignment_data();
    void removesTheAssignment();
    void addsTheAssignment_data();
    void addsTheAssignment();

private:
    static void row(const char *tag, const char *before, const char *after)
    {
        QTest::newRow(tag) << QString::fromUtf8(before) << QString::fromUtf8(after);
    }
    static void columns()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
    }

    WarningGuard mWarnings;
};

void tst_ScenarioText::removesBlockComments_data()
{
    columns();
    row("nothing", "", "");
    row("none", "a / * b", "a / * b");
    row("one", "a/* b */c", "ac");
    row("over lines", "a\n/* b\nc */\nd", "a\n\nd");
    row("several", "/**/a/***/b/* / * */", "ab");
    row("opening and closing share no star", "/*/a*/b", "b");
    row("not nested", "/* a /* b */c*/", "c*/");
    row("unclosed stays", "a/* b", "a/* b");
    row("unclosed behind a closed one", "a/*b*/c/*d", "ac/*d");
    row("closing alone stays", "a*/b", "a*/b");
    row("in a string", "\"a/*b\",\"c*/d\"", "\"ad\"");
    row("joined by a cut", "//* a */* b */c", "c");
    row("joined by a cut and unclosed", "//* a */* b", "/* b");
    row("slash in front stays", "//* a */b", "/b");
}

void tst_ScenarioText::removesBlockComments()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QCOMPARE(ScenarioText::removeBlockComments(before), after);
}

void tst_ScenarioText::removesBlockCommentsLikeASearchFromTheTop()
{
    // Every text of these characters up to a length, against the plain and slow way.
    const QString alphabet = QStringLiteral("/*a");
    const auto slowly = [](QString text) {
        for (;;) {
            const int start = text.indexOf(QLatin1String("/*"));
            const int end = start < 0 ? -1 : text.indexOf(QLatin1String("*/"), start + 2);
            if (end < 0)
                return text;
            text.remove(start, end + 2 - start);
        }
    };
    QStringList texts = { QString() };
    for (int length = 1; length <= 9; ++length) {
        QStringList longer;
        for (const QString &text : qAsConst(texts)) {
            for (const QChar character : alphabet)
                longer.append(text + character);
        }
        texts = longer;
        for (const QString &text : qAsConst(texts)) {
            const QString expected = slowly(text);
            QVERIFY2(ScenarioText::removeBlockComments(text) == expected, qPrintable(text));
        }
    }
}

void tst_ScenarioText::removesLineComments_data()
{
    columns();
    row("nothing", "", "");
    row("whole line", "a\n// b\nc\n", "a\nc\n");
    row("behind blanks and tabs", " \t // b\nc", "c");
    row("first and last line", "//a\nb\n//c\n", "b\n");
    row("last line without its end stays", "a\n// b", "a\n// b");
    row("behind other text stays", "a // b\n", "a // b\n");
    row("blank lines stay", "\n \n\t\na\n", "\n \n\t\na\n");
    row("one slash stays", "/ / a\n", "/ / a\n");
    row("carriage return", "// a\r\nb\r\n", "b\r\n");
    row("other space is no blank", "\f// a\n", "\f// a\n");
}

void tst_ScenarioText::removesLineComments()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QCOMPARE(ScenarioText::removeLineComments(before), after);
}

void tst_ScenarioText::removesTheAssignment_data()
{
    columns();
    row("nothing", "", "");
    row("array alone", "[1]", "[1]");
    row("assignment", "var scenario = [1];", "[1]");
    row("text round it stays", "x var scenario = [1]; y", "x [1] y");
    row("only the first of each", "var scenario = [\"];\", \"var scenario = [\"];", "[\"]\", \"var scenario = [\"];");
    row("other spacing", "var scenario =[1];", "var scenario =[1]");
    row("another name", "var list = [1];", "var list = [1]");
    row("blank in front of the end", "var scenario = [1] ;", "[1] ;");
}

void tst_ScenarioText::removesTheAssignment()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QCOMPARE(ScenarioText::removeAssignment(before), after);
    QString list = before;
    list.replace(QLatin1String("scenario"), QLatin1String("tutorials"));
    QString listAfter = after;
    listAfter.replace(QLatin1String("scenario"), QLatin1String("tutorials"));
    QCOMPARE(ScenarioText::removeAssignment(list, QStringLiteral("tutorials")), listAfter);
}

void tst_ScenarioText::addsTheAssignment_data()
{
    columns();
    row("array", "[\n1\n]", "var scenario = [\n1\n];");
    row("line ends at the end go", "[]\n\r\n\n", "var scenario = [];");
    row("blanks at the end stay", "[]\n ", "var scenario = []\n ;");
    row("nothing but line ends", "\n\n", "var scenario = ;");
    row("place markers are text", "[\"%1 %2\"]", "var scenario = [\"%1 %2\"];");
}

void tst_ScenarioText::addsTheAssignment()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QCOMPARE(ScenarioText::addAssignment(before), after);
}

QTEST_GUILESS_MAIN(tst_ScenarioText)
#include "tst_ScenarioText.moc"

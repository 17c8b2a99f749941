#include "support/WarningGuard.h"
#include "Tutorial/TranslatableText.h"

#include <QtTest>

namespace
{
QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

// "context/source" tells which lookup was made; some sources have a real translation.
QString lookUp(const QString &context, const QString &source)
{
    static const QHash<QString, QString> translations = {
        { text("#1"), text("次へ") },         { text("quote"), text("a \"b\" \\c") },
        { text("line"), text("a\nb") },       { text("marker"), text("qsTr(\"#1\") QT_TRANSLATE_NOOP(\"x\", \"#1\")") },
        { text("two %1 %2"), text("%2 %1") }, { text("empty"), text("") },
    };
    return translations.value(source, context + QLatin1Char('/') + source);
}

QString repeated(const char *part, int times)
{
    return QString::fromLatin1(part).repeated(times);
}
} // namespace

class tst_TranslatableText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void escapes_data();
    void escapes();
    void readsExpressions_data();
    void readsExpressions();
    void reportsFailures_data();
    void reportsFailures();
    void replacesInAScenario_data();
    void replacesInAScenario();
    void goesOnBehindAFailedPass();
    void replacesInTheList_data();
    void replacesInTheList();
    void survivesHostileDepth_data();
    void survivesHostileDepth();

private:
    WarningGuard mWarnings;
};

void tst_TranslatableText::escapes_data()
{
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("escaped");
    QTest::addColumn<QString>("unescaped");

    const auto row = [](const char *tag, const char *plain, const char *escaped, const char *unescaped) {
        QTest::newRow(tag) << text(plain) << text(escaped) << text(unescaped);
    };
    row("empty", "", "", "");
    row("plain", "次へ", "次へ", "次へ");
    row("quote", "a\"b", "a\\\"b", "a\"b");
    row("backslash and letter", "a\\nb", "a\\\\nb", "anb");
    row("two backslashes", "\\\\", "\\\\\\\\", "\\");
    row("backslash and line feed", "a\\\nb", "a\\\\\nb", "a\nb");
    row("backslash at the end", "a\\", "a\\\\", "a\\");
}

void tst_TranslatableText::escapes()
{
    QFETCH(QString, plain);
    QFETCH(QString, escaped);
    QFETCH(QString, unescaped);
    QCOMPARE(TranslatableText::escapeString(plain), escaped);
    QCOMPARE(TranslatableText::unescapeString(plain), unescaped);
    QCOMPARE(TranslatableText::unescapeString(escaped), plain);
}

void tst_TranslatableText::readsExpressions_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("literal");
    QTest::addColumn<QString>("rest");

    const auto row = [](const char *tag, const char *source, const char *literal, const char *rest) {
        QTest::newRow(tag) << text(source) << text(literal) << text(rest);
    };
    row("nothing", "", "", "");
    row("plain literal", "\"abc\", x", "\"abc\"", ", x");
    row("empty literal", "\"\"x", "\"\"", "x");
    row("literal with escapes", "\"a\\\"b\\n\"x", "\"a\\\"b\\n\"", "x");
    row("escaped backslash does not end a literal", "\"a\\\\\" \"", "\"a\\\\\" \"", "");
    row("literal takes no arguments", "\"%1\".arg(\"x\")", "\"%1\"", ".arg(\"x\")");

    row("translated", "qsTr(\"#1\"),", "\"次へ\"", ",");
    row("not translated", "qsTr(\"#2\")", "\"c/#2\"", "");
    row("empty source", "qsTr(\"\")", "\"c/\"", "");
    row("translation with escapes", "qsTr(\"quote\")", "\"a \\\"b\\\" \\\\c\"", "");
    row("translation with a line feed", "qsTr(\"line\")", "\"a\nb\"", "");
    row("empty translation", "qsTr(\"empty\")", "\"\"", "");
    row("source is looked up without its escapes", "qsTr(\"a\\\"b\")", "\"c/a\\\"b\"", "");
    row("escaped quote in front of the end", "qsTr(\"(\\\")\")", "\"c/(\\\\\"", "\")");

    row("context with blank", "QT_TRANSLATE_NOOP(\"ctx\", \"src\")!", "\"ctx/src\"", "!");
    row("context without blank", "QT_TRANSLATE_NOOP(\"ctx\",\"src\")!", "\"ctx/src\"", "!");
    row("empty context", "QT_TRANSLATE_NOOP(\"\", \"src\")", "\"/src\"", "");
    row("context is taken as it stands", "QT_TRANSLATE_NOOP(\"a\\b\", \"#9\")", "\"a\\\\b/#9\"", "");
    row("separator with the blank is preferred", "QT_TRANSLATE_NOOP(\"a\",\"b\", \"c\")", "\"a\\\",\\\"b/c\"", "");

    row("argument", "qsTr(\"Step %1\").arg(\"2\").", "\"c/Step 2\"", ".");
    row("arguments from left to right", "qsTr(\"a %1 %2\").arg(\"x\").arg(qsTr(\"#1\"))", "\"c/a x 次へ\"", "");
    row("places in the translation", "qsTr(\"two %1 %2\").arg(\"x\").arg(\"y\")", "\"y x\"", "");
    row("argument in an argument", "qsTr(\"%1\").arg(qsTr(\"%1\").arg(\"x\"))", "\"c/c/x\"", "");
    row("a place that an argument brings", "qsTr(\"%1 %2\").arg(\"%2\").arg(\"y\")", "\"c/y y\"", "");
    row("escapes in an argument stay", "qsTr(\"%1\").arg(\"a\\\"b\")", "\"c/a\\\"b\"", "");
    row("arguments of a NOOP", "QT_TRANSLATE_NOOP(\"k\",\"%1\").arg(\"x\")", "\"k/x\"", "");
}

void tst_TranslatableText::readsExpressions()
{
    QFETCH(QString, source);
    QFETCH(QString, literal);
    QFETCH(QString, rest);
    QString behind = QStringLiteral("left from before");
    QStringList errors;
    QCOMPARE(TranslatableText::parseStringExpression(source, text("c"), lookUp, behind, errors), literal);
    QCOMPARE(behind, rest);
    QCOMPARE(errors, QStringList());
}

void tst_TranslatableText::reportsFailures_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("literal");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char *tag, const char *source, const char *literal, const QStringList &errors) {
        QTest::newRow(tag) << text(source) << text(literal) << errors;
    };
    row("no end of a literal", "\"abc", "\"abc", { text("unterminated \"...\": \"abc") });
    row("end of a literal escaped", "\"abc\\\"", "\"abc\\\"", { text("unterminated \"...\": \"abc\\\"") });
    row("no end of a call", "qsTr(\"abc\" )", "qsTr(\"abc\" )", { text("not matched qsTr(\"...\"): qsTr(\"abc\" )") });
    row("no end of a NOOP", "QT_TRANSLATE_NOOP(\"a\", \"b", "QT_TRANSLATE_NOOP(\"a\", \"b",
        { text("not matched QT_TRANSLATE_NOOP(\"...\"): QT_TRANSLATE_NOOP(\"a\", \"b") });
    row("no separator", "QT_TRANSLATE_NOOP(\"a\") x", "QT_TRANSLATE_NOOP(\"a\") x",
        { text("not found \", \" or \",\": QT_TRANSLATE_NOOP(\"a\") x") });
    row("separator with two blanks", "QT_TRANSLATE_NOOP(\"a\",  \"b\")", "QT_TRANSLATE_NOOP(\"a\",  \"b\")",
        { text("not found \", \" or \",\": QT_TRANSLATE_NOOP(\"a\",  \"b\")") });
    row("no known form", "tr(\"a\")", "tr(\"a\")", { text("unable to parse as string: tr(\"a\")") });
    row("blank in front", " \"a\"", " \"a\"", { text("unable to parse as string:  \"a\"") });
    row("wrong case", "qstr(\"a\")", "qstr(\"a\")", { text("unable to parse as string: qstr(\"a\")") });
    row("argument not closed", "qsTr(\"a %1\").arg(\"b\" ) lost", "\"c/a b\"",
        { text("not closed .arg(: .arg(\"b\" ) lost") });
    row("second argument not closed", "qsTr(\"a %1 %2\").arg(\"b\").arg(\"d\"", "\"c/a b d\"",
        { text("not closed .arg(: .arg(\"d\"") });
    row("argument without an end", "qsTr(\"a %1\").arg(\"b)", "\"c/a b\"",
        { text("unterminated \"...\": \"b)"), text("not closed .arg(: .arg(\"b)") });
    row("argument of no known form", "qsTr(\"a %1\").arg(12)", "\"c/a 2\"",
        { text("unable to parse as string: 12)"), text("not closed .arg(: .arg(12)") });
    row("no argument", "qsTr(\"a %1\").arg(", "\"c/a \"", { text("not closed .arg(: .arg(") });
}

void tst_TranslatableText::reportsFailures()
{
    QFETCH(QString, source);
    QFETCH(QString, literal);
    QFETCH(QStringList, expected);
    QString rest = QStringLiteral("left from before");
    QStringList errors;
    QCOMPARE(TranslatableText::parseStringExpression(source, text("c"), lookUp, rest, errors), literal);
    QCOMPARE(errors, expected);
    QCOMPARE(rest, QString());
}

void tst_TranslatableText::replacesInAScenario_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *tag, const char *source, const char *expected) {
        QTest::newRow(tag) << text(source) << text(expected);
    };
    row("nothing", "", "");
    row("no marker", "[1, \"#1\"]", "[1, \"#1\"]");
    row("line feeds at the end go", "\n[\n]\n\n", "\n[\n]");
    row("other blanks at the end stay", "[]\n \n", "[]\n ");
    row("carriage returns at the end stay", "[]\r\n", "[]\r");
    row("several", "[qsTr(\"#1\"),qsTr(\"x\")]", "[\"次へ\",\"c/x\"]");
    row("side by side", "qsTr(\"#1\")qsTr(\"#1\")", "\"次へ\"\"次へ\"");
    row("both forms", "[QT_TRANSLATE_NOOP(\"k\",\"a\"), qsTr(\"#1\")]", "[\"k/a\", \"次へ\"]");
    row("blank in the marker", "[qsTr( \"x\"), qsTr (\"x\")]", "[qsTr( \"x\"), qsTr (\"x\")]");
    row("quote of another kind", "[qsTr('x')]", "[qsTr('x')]");
    row("marker in a translation", "[qsTr(\"marker\"),qsTr(\"#1\")]",
        "[\"qsTr(\\\"#1\\\") QT_TRANSLATE_NOOP(\\\"x\\\", \\\"#1\\\")\",\"次へ\"]");
    row("within a longer name", "[myqsTr(\"#1\")]", "[my\"次へ\"]");
}

void tst_TranslatableText::replacesInAScenario()
{
    QFETCH(QString, source);
    QFETCH(QString, expected);
    QStringList errors;
    QCOMPARE(TranslatableText::applyToScenario(source, text("c"), lookUp, errors), expected);
    QCOMPARE(errors, QStringList());
}

void tst_TranslatableText::goesOnBehindAFailedPass()
{
    // The first pass ends at its failure, the second one still runs over the whole text.
    QStringList errors;
    const QString result = TranslatableText::applyToScenario(
        text("qsTr(\"#1\") qsTr(\"x%1\").arg(\"1\" ) qsTr(\"#1\") QT_TRANSLATE_NOOP(\"k\", \"s\")"), text("c"), lookUp,
        errors);
    QCOMPARE(result, text("\"次へ\" \"c/x1\""));
    QCOMPARE(errors.size(), 1);

    errors.clear();
    QCOMPARE(TranslatableText::applyToScenario(text("QT_TRANSLATE_NOOP(\"k\", \"s\") qsTr(\"open"), text("c"), lookUp,
                                               errors),
             text("\"k/s\" qsTr(\"open"));
    QCOMPARE(errors, QStringList{ text("not matched qsTr(\"...\"): qsTr(\"open") });
}

void tst_TranslatableText::replacesInTheList_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *tag, const char *source, const char *expected) {
        QTest::newRow(tag) << text(source) << text(expected);
    };
    row("several", "[{\"a\": qsTr(\"#1\")}, {\"a\": qsTr(\"x\")}]\n", "[{\"a\": \"次へ\"}, {\"a\": \"c/x\"}]\n");
    row("two characters are skipped", "qsTr(\"#1\"), qsTr(\"#1\")", "\"次へ\", \"次へ\"");
    row("side by side", "qsTr(\"#1\")qsTr(\"#1\")", "\"次へ\"qsTr(\"#1\")");
    row("the other form stays", "[QT_TRANSLATE_NOOP(\"k\",\"a\")]", "[QT_TRANSLATE_NOOP(\"k\",\"a\")]");
    row("at the end", "qsTr(\"#1\")", "\"次へ\"");
}

void tst_TranslatableText::replacesInTheList()
{
    QFETCH(QString, source);
    QFETCH(QString, expected);
    QStringList errors;
    QCOMPARE(TranslatableText::applyToList(source, text("c"), lookUp, errors), expected);
    QCOMPARE(errors, QStringList());
}

void tst_TranslatableText::survivesHostileDepth_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("readable");

    const auto nested = [](int depth) -> QString {
        return repeated("qsTr(\"%1\").arg(", depth) + QStringLiteral("\"x\"") + repeated(")", depth);
    };
    QTest::newRow("deep") << nested(100) << true;
    QTest::newRow("deeper than anybody writes") << nested(100000) << false;
    QTest::newRow("never closed") << repeated("qsTr(\"%1\").arg(", 5000) << false;
    QTest::newRow("long chain") << QString(QStringLiteral("qsTr(\"a\")") + repeated(".arg(\"x\")", 1000)) << true;
}

void tst_TranslatableText::survivesHostileDepth()
{
    QFETCH(QString, source);
    QFETCH(bool, readable);
    if (qstrcmp(QTest::currentDataTag(), "long chain") == 0)
        mWarnings.expect(QStringLiteral("Argument missing"), 1000);
    QStringList errors;
    const QString result = TranslatableText::applyToScenario(
        source, QString(), [](const QString &, const QString &s) { return s; }, errors);
    QCOMPARE(errors.isEmpty(), readable);
    if (readable)
        QVERIFY2(result == QLatin1String("\"x\"") || result == QLatin1String("\"a\""), qPrintable(result.left(50)));
}

QTEST_GUILESS_MAIN(tst_TranslatableText)
#include "tst_TranslatableText.moc"

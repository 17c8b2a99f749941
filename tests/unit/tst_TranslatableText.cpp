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
} // namespace

class tst_TranslatableText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void escapes();
    void readsExpressions_data();
    void readsExpressions();
    void reportsFailures_data();
    void reportsFailures();
    void replaces_data();
    void replaces();
    void goesOnBehindAFailedPass();
    void survivesHostileDepth_data();
    void survivesHostileDepth();

private:
    WarningGuard mWarnings;
};

void tst_TranslatableText::escapes()
{
    for (const char *plain : { "", "次へ", "a\"b", "a\\nb", "\\\\", "a\\\nb", "a\\" })
        QCOMPARE(TranslatableText::unescapeString(TranslatableText::escapeString(text(plain))), text(plain));
    QCOMPARE(TranslatableText::escapeString(text("a\"\\\nb")), text("a\\\"\\\\\nb"));
    QCOMPARE(TranslatableText::unescapeString(text("a\\nb\\")), text("anb\\"));
}

void tst_TranslatableText::readsExpressions_data()
{
    QTest::addColumn<QString>("literal");
    QTest::addColumn<QString>("rest");

    const auto row = [](const char *source, const char *literal, const char *rest = "") {
        QTest::newRow(source) << text(literal) << text(rest);
    };
    row("", "");
    row("\"abc\", x", "\"abc\"", ", x");
    row("\"a\\\"b\\n\"x", "\"a\\\"b\\n\"", "x");
    row("\"a\\\\\" \"", "\"a\\\\\" \"");
    row("\"%1\".arg(\"x\")", "\"%1\"", ".arg(\"x\")");

    row("qsTr(\"#1\"),", "\"次へ\"", ",");
    row("qsTr(\"quote\")", "\"a \\\"b\\\" \\\\c\"");
    row("qsTr(\"line\")", "\"a\nb\"");
    row("qsTr(\"empty\")", "\"\"");
    row("qsTr(\"a\\\"b\")", "\"c/a\\\"b\"");
    row("qsTr(\"(\\\")\")", "\"c/(\\\\\"", "\")");

    row("QT_TRANSLATE_NOOP(\"ctx\", \"src\")!", "\"ctx/src\"", "!");
    row("QT_TRANSLATE_NOOP(\"a\\b\",\"#9\")", "\"a\\\\b/#9\"");
    row("QT_TRANSLATE_NOOP(\"a\",\"b\", \"c\")", "\"a\\\",\\\"b/c\"");
    row("QT_TRANSLATE_NOOP(\"k\",\"%1\").arg(\"x\")", "\"k/x\"");

    row("qsTr(\"a %1 %2\").arg(\"x\").arg(qsTr(\"#1\")).", "\"c/a x 次へ\"", ".");
    row("qsTr(\"two %1 %2\").arg(\"x\").arg(\"y\")", "\"y x\"");
    row("qsTr(\"%1\").arg(qsTr(\"%1\").arg(\"x\"))", "\"c/c/x\"");
    row("qsTr(\"%1 %2\").arg(\"%2\").arg(\"y\")", "\"c/y y\"");
}

void tst_TranslatableText::readsExpressions()
{
    QFETCH(QString, literal);
    QFETCH(QString, rest);
    QString behind = QStringLiteral("left from before");
    QStringList errors;
    QCOMPARE(TranslatableText::parseStringExpression(text(QTest::currentDataTag()), text("c"), lookUp, behind, errors),
             literal);
    QCOMPARE(behind, rest);
    QCOMPARE(errors, QStringList());
}

void tst_TranslatableText::reportsFailures_data()
{
    QTest::addColumn<QString>("expected");

    // What was read in front of the failure, and each error.
    const auto row = [](const char *source, const char *expected) { QTest::newRow(source) << text(expected); };
    row("\"a\\\"", "\"a\\\"|unterminated \"...\": \"a\\\"");
    row("qsTr(\"a\" )", "qsTr(\"a\" )|not matched qsTr(\"...\"): qsTr(\"a\" )");
    row("QT_TRANSLATE_NOOP(\"a", "QT_TRANSLATE_NOOP(\"a|not matched QT_TRANSLATE_NOOP(\"...\"): QT_TRANSLATE_NOOP(\"a");
    row("QT_TRANSLATE_NOOP(\"a\",  \"b\")",
        "QT_TRANSLATE_NOOP(\"a\",  \"b\")|not found \", \" or \",\": QT_TRANSLATE_NOOP(\"a\",  \"b\")");
    row(" \"a\"", " \"a\"|unable to parse as string:  \"a\"");
    row("qsTr(\"%1 %2\").arg(\"b\").arg(\"d\" ) lost", "\"c/b d\"|not closed .arg(: .arg(\"d\" ) lost");
    row("qsTr(\"%1\").arg(\"b)", "\"c/b\"|unterminated \"...\": \"b)|not closed .arg(: .arg(\"b)");
    row("qsTr(\"%1\").arg(", "\"c/\"|not closed .arg(: .arg(");
}

void tst_TranslatableText::reportsFailures()
{
    QFETCH(QString, expected);
    QString rest = QStringLiteral("left from before");
    QStringList errors;
    const QString literal =
        TranslatableText::parseStringExpression(text(QTest::currentDataTag()), text("c"), lookUp, rest, errors);
    QCOMPARE(literal + QLatin1Char('|') + errors.join(QLatin1Char('|')), expected);
    QCOMPARE(rest, QString());
}

void tst_TranslatableText::replaces_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QString>("list");

    const auto row = [](const char *source, const char *scenario, const char *list) {
        QTest::newRow(source) << text(scenario) << text(list);
    };
    row("\n[]\r\n\n", "\n[]\r", "\n[]\r\n\n");
    row("[qsTr(\"#1\"), qsTr(\"x\")]", "[\"次へ\", \"c/x\"]", "[\"次へ\", \"c/x\"]");
    row("qsTr(\"#1\")qsTr(\"#1\")", "\"次へ\"\"次へ\"", "\"次へ\"qsTr(\"#1\")");
    row("[QT_TRANSLATE_NOOP(\"k\",\"a\")]", "[\"k/a\"]", "[QT_TRANSLATE_NOOP(\"k\",\"a\")]");
    row("[qsTr( \"x\"), qsTr('x')]", "[qsTr( \"x\"), qsTr('x')]", "[qsTr( \"x\"), qsTr('x')]");
    row("qsTr(\"marker\")", "\"qsTr(\\\"#1\\\") QT_TRANSLATE_NOOP(\\\"x\\\", \\\"#1\\\")\"",
        "\"qsTr(\\\"#1\\\") QT_TRANSLATE_NOOP(\\\"x\\\", \\\"#1\\\")\"");
}

void tst_TranslatableText::replaces()
{
    QFETCH(QString, scenario);
    QFETCH(QString, list);
    const QString source = text(QTest::currentDataTag());
    QStringList errors;
    QCOMPARE(TranslatableText::applyToScenario(source, text("c"), lookUp, errors), scenario);
    QCOMPARE(TranslatableText::applyToList(source, text("c"), lookUp, errors), list);
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
}

void tst_TranslatableText::survivesHostileDepth_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("readable");

    const auto nested = [](int depth) -> QString {
        return QString(QLatin1String("qsTr(\"%1\").arg(")).repeated(depth) + QStringLiteral("\"x\"")
            + QString(depth, QLatin1Char(')'));
    };
    QTest::newRow("deep") << nested(100) << true;
    QTest::newRow("deeper than anybody writes") << nested(100000) << false;
    QTest::newRow("never closed") << QString(QLatin1String("qsTr(\"%1\").arg(")).repeated(5000) << false;
    QTest::newRow("long chain") << QString(QStringLiteral("qsTr(\"a\")")
                                           + QString(QLatin1String(".arg(\"x\")")).repeated(1000))
                                << true;
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

#include "support/WarningGuard.h"
#include "Tutorial/translation/TranslatableText.h"

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
        { text("line"), text("a\nb") },       { text("marker"), text("qsTr(\"#1\")") },
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

    void readsExpressions();
    void replaces();
    void survivesHostileTexts();

private:
    WarningGuard mWarnings;
};

void tst_TranslatableText::readsExpressions()
{
    // The source, the literal that it stands for, what follows it, and each error.
    const char *const rows[][2] = {
        { "", "||" },
        { "\"a\\\"b\\n\"x", "\"a\\\"b\\n\"|x|" },
        { "\"a\\\\\" \"", "\"a\\\\\" \"||" },
        { "\"%1\".arg(\"x\")", "\"%1\"|.arg(\"x\")|" },
        { "qsTr(\"quote\"),", "\"a \\\"b\\\" \\\\c\"|,|" },
        { "qsTr(\"line\")", "\"a\nb\"||" },
        { "qsTr(\"empty\")", "\"\"||" },
        { "qsTr(\"a\\nb\\\")", "\"c/anb\\\\\"||" },
        { "qsTr(\"a\\\"b\")", "\"c/a\\\"b\"||" },
        { "QT_TRANSLATE_NOOP(\"a\\b\",\"#9\")!", "\"a\\\\b/#9\"|!|" },
        { "QT_TRANSLATE_NOOP(\"k\", \"%1\").arg(\"x\")", "\"k/x\"||" },
        { "qsTr(\"a %1 %2\").arg(\"x\").arg(qsTr(\"#1\")).", "\"c/a x 次へ\"|.|" },
        { "qsTr(\"two %1 %2\").arg(\"x\").arg(\"y\")", "\"y x\"||" },
        { "qsTr(\"%1 %2\").arg(\"%2\").arg(\"y\")", "\"c/y y\"||" },
        { "\"a\\\"", "\"a\\\"||unterminated \"...\": \"a\\\"" },
        { "qsTr(\"a\" )", "qsTr(\"a\" )||not matched qsTr(\"...\"): qsTr(\"a\" )" },
        { " \"a\"", " \"a\"||unable to parse as string:  \"a\"" },
        { "qsTr(\"%1 %2\").arg(\"b\").arg(\"d\" ) lost", "\"c/b d\"||not closed .arg(: .arg(\"d\" ) lost" },
        { "qsTr(\"%1\").arg(\"b)", "\"c/b\"||unterminated \"...\": \"b)|not closed .arg(: .arg(\"b)" },
    };
    for (const auto &row : rows) {
        QString rest = QStringLiteral("left from before");
        QStringList errors;
        const QString literal = TranslatableText::parseStringExpression(text(row[0]), text("c"), lookUp, rest, errors);
        const QStringList outcome = { literal, rest, errors.join(QLatin1Char('|')) };
        QCOMPARE(outcome.join(QLatin1Char('|')), text(row[1]));
    }
}

void tst_TranslatableText::replaces()
{
    // A source, and what it becomes in a scenario and in a list.
    const char *const rows[][3] = {
        { "\n[]\r\n\n", "\n[]\r", "\n[]\r\n\n" },
        { "qsTr(\"#1\")qsTr(\"#1\")", "\"次へ\"\"次へ\"", "\"次へ\"qsTr(\"#1\")" },
        { "[QT_TRANSLATE_NOOP(\"k\",\"a\")]", "[\"k/a\"]", "[QT_TRANSLATE_NOOP(\"k\",\"a\")]" },
        // The separator with the blank is the one that counts, wherever it stands.
        { "QT_TRANSLATE_NOOP(\"k\",\"a\")QT_TRANSLATE_NOOP(\"b\", \"#1\")", "\"\"\"次へ\"",
          "QT_TRANSLATE_NOOP(\"k\",\"a\")QT_TRANSLATE_NOOP(\"b\", \"#1\")" },
        { "[qsTr( \"x\"), qsTr('x')]", "[qsTr( \"x\"), qsTr('x')]", "[qsTr( \"x\"), qsTr('x')]" },
        { "qsTr(\"marker\")", "\"qsTr(\\\"#1\\\")\"", "\"qsTr(\\\"#1\\\")\"" },
    };
    for (const auto &row : rows) {
        QStringList errors;
        QCOMPARE(TranslatableText::applyToScenario(text(row[0]), text("c"), lookUp, errors), text(row[1]));
        QCOMPARE(TranslatableText::applyToList(text(row[0]), text("c"), lookUp, errors), text(row[2]));
        QCOMPARE(errors, QStringList());
    }
}

void tst_TranslatableText::survivesHostileTexts()
{
    const QString open = text("qsTr(\"%1\").arg(");
    const auto nested = [&open](int depth) {
        return QString(open.repeated(depth) + QLatin1String("\"x\"") + QString(depth, QLatin1Char(')')));
    };
    const QString calls = text("QT_TRANSLATE_NOOP(\"k\") ").repeated(20000);
    const QString literals = text("\"\" ").repeated(20000);
    // A source, and what it becomes; nothing where it is given up as too deep.
    const QString rows[][2] = {
        { nested(100), text("\"x\"") },
        { nested(100000), QString() },
        { open.repeated(5000), QString() },
        { calls + text("\", \""), literals + text("\", \"") },
        { calls + text("\",\""), literals + text("\",\"") },
    };
    for (const auto &row : rows) {
        qint64 size = 0;
        QStringList errors;
        const QString result = TranslatableText::applyToScenario(
            row[0], QString(),
            [&size](const QString &context, const QString &key) {
                size += context.size() + key.size();
                return key;
            },
            errors);
        QCOMPARE(errors.isEmpty() ? result : QString(), row[1]);
        // What is looked up grows with the text, not with its square.
        QVERIFY2(size < 2 * row[0].size(), qPrintable(QString::number(size)));
    }
}

QTEST_GUILESS_MAIN(tst_TranslatableText)
#include "tst_TranslatableText.moc"

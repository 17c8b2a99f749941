#include "Tutorial/translation/TranslatableText.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/translation/TranslationXml.h"

#include <QtTest>

using TranslationSource::Entry;

namespace
{
const QString kContext = QStringLiteral("T");
const QString kKey = QStringLiteral("#1");

QByteArray message(const QByteArray &source, const QByteArray &translation)
{
    return "<message><source>" + source + "</source>" + translation + "</message>";
}

QByteArray translated(const QByteArray &text)
{
    return message("#1", "<translation>" + text + "</translation>");
}

QDomDocument parse(const QByteArray &bytes)
{
    QDomDocument result;
    if (!TranslationXml::parse(bytes, result))
        qFatal("not well-formed: %s", bytes.constData());
    return result;
}

/// A whole source round the messages of one context.
QDomDocument document(const QByteArray &messages, const QByteArray &context = "T")
{
    return parse("<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"ja_JP\">"
                 "<context encoding=\"UTF-8\"><name>A</name><comment>c</comment>"
                 + translated("other") + "</context><context><name>" + context + "</name>" + messages
                 + "</context><!-- end --></TS>\n");
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

// "context/source" tells which lookup was made; one source has a real translation.
QString lookUp(const QString &context, const QString &source)
{
    return source == QLatin1String("two %1 %2") ? text("%2 qsTr(\"%1\")\n") : context + QLatin1Char('/') + source;
}
} // namespace

/// The texts of tutorials: in the translation sources, and in the scenarios that call for them.
class tst_TranslationTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAndWrites();
    void keepsBlanks();
    void readsOtherLineEndsAndEncodings();
    void readsExpressions();
    void replaces();
    void survivesHostileTexts();
};

void tst_TranslationTexts::readsAndWrites()
{
    // The messages, what is in force for the key, and the messages once that is "new".
    const auto row = [](const QByteArray &messages, const char *read, const QByteArray &after) {
        QDomDocument source = document(messages);
        QCOMPARE(TranslationSource::readMessages(source).value(kContext).value(kKey, kKey), text(read));
        // What is in force, or the key itself, is no edit.
        const QByteArray before = source.toByteArray(4);
        TranslationSource::writeMessages(source, kContext, { { kKey, text(read) } });
        QCOMPARE(source.toByteArray(4), before);
        // Said a second and third time it changes nothing.
        for (int times = 1; times <= 2; ++times) {
            TranslationSource::writeMessages(source, kContext, QVector<Entry>(times, { kKey, QStringLiteral("new") }));
            QCOMPARE(source.toByteArray(4), document(after).toByteArray(4));
        }
    };
    const QByteArray fresh = translated("new");
    const QByteArray vanished = message("#1", "<translation type=\"vanished\">x</translation>");
    const QByteArray other = message("#1", "<comment>c</comment><translation>a</translation>")
        + "<message "
          "numerus=\"yes\"><source>#1</source><translation><numerusform>a</numerusform></translation></message>";
    const QByteArray noted = "<location filename=\"a\" line=\"1\"/><extracomment>e</extracomment><translation>";
    const QByteArray again = "</context><context><name>T</name>";
    row(translated("a"), "a", fresh);
    row(translated(""), "", fresh);
    row(message("#1", "<translation type=\"unfinished\">a</translation>"), "a", fresh);
    row(message("#1", "<translation type=\"unfinished\"/>"), "#1", fresh);
    row(message("#1", ""), "#1", fresh);
    row(message("#1", "<translation type=\"obsolete\">x</translation>"), "#1", fresh);
    row(translated("a") + translated("b"), "b", translated("a") + fresh);
    row(message("#1", noted + "a</translation>"), "a", message("#1", noted + "new</translation>"));
    row(translated("&lt;&amp;&gt;&#x6b21;<![CDATA[<a>]]>"), "<&>次<a>", fresh);
    row(translated("<byte value=\"x1f\"/>b<!-- c --><byte value=\"13\"/>"), "\037b\r", fresh);
    row(other + again + translated("a") + vanished, "a", other + again + fresh + vanished);
    row(other + again + vanished + again, "#1", other + again + fresh + again);
    row(other, "#1", other + fresh);
}

void tst_TranslationTexts::keepsBlanks()
{
    const QByteArray blanks[] = { " ",       "\t\n ",         "\u3000",
                                  "&#xd; ",  " a\n ",         " <byte value=\"x1\"/> ",
                                  " <x/>a ", "<![CDATA[ ]]>", "a<!-- c -->",
                                  "a<x/>" };
    for (const QByteArray &blank : blanks) {
        QByteArray messages;
        for (const char *name : { "source", "comment", "oldsource", "extracomment", "translatorcomment", "userdata",
                                  "translation", "extra-x" })
            messages += QByteArray("\n<") + name + '>' + blank + "</" + name + ">\t";
        messages += "<translation><numerusform>" + blank + "</numerusform>\n<numerusform/></translation>\n";
        const QByteArray bytes = document("\n  <message>" + messages + "</message>", blank).toByteArray(4);
        QCOMPARE(bytes.count('>' + blank + '<'), 10);
        QVERIFY(bytes.contains("\n            <source>"));
        QCOMPARE(parse(bytes).toByteArray(4), bytes);
    }
}

void tst_TranslationTexts::readsOtherLineEndsAndEncodings()
{
    const QString source =
        text("<context><name>T</name>") + text(translated("é\r\n&#xd;b")) + text("</context></TS>\r\n");
    for (const char *encoding : { "utf-8", "ISO-8859-1", "utf-16" }) {
        const QString start = QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>\r\n<TS>\r\n").arg(text(encoding));
        const QByteArray bytes = QTextCodec::codecForName(encoding)->fromUnicode(start + source);
        const QByteArray written = parse(bytes).toByteArray(4);
        QCOMPARE(parse(written).toByteArray(4), written);
        QCOMPARE(TranslationSource::readMessages(parse(written)).value(kContext).value(kKey), text("é\n\rb"));
    }
    // Bytes that can't be read would be gone from what is written. What is too deep would end the program.
    const QByteArray refused[] = { "<TS>" + translated("\xef\xbf\xbd\xe9") + "</TS>",
                                   QByteArray("<TS>").repeated(100000) + QByteArray("</TS>").repeated(100000) };
    for (const QByteArray &bytes : refused) {
        QDomDocument none;
        QVERIFY(!TranslationXml::parse(bytes, none));
        QVERIFY(none.isNull());
    }
}

void tst_TranslationTexts::readsExpressions()
{
    // The source, the literal that it stands for, what follows it, and each error.
    const char *const rows[][2] = {
        { "", "||" },
        { "\"a\\\"b\\n\"x", "\"a\\\"b\\n\"|x|" },
        { "qsTr(\"a\\nb\\\")", "\"c/anb\\\\\"||" },
        { "qsTr(\"a\\\"b\")", "\"c/a\\\"b\"||" },
        { "QT_TRANSLATE_NOOP(\"a\\b\",\"#9\")!", "\"a\\\\b/#9\"|!|" },
        { "QT_TRANSLATE_NOOP(\"k\", \"%1\").arg(\"x\")", "\"k/x\"||" },
        { "qsTr(\"a %1 %2\").arg(\"x\").arg(qsTr(\"b\")).", "\"c/a x c/b\"|.|" },
        { "qsTr(\"two %1 %2\").arg(\"x\").arg(\"y\")", "\"y qsTr(\\\"x\\\")\n\"||" },
        { "qsTr(\"%1 %2\").arg(\"%2\").arg(\"y\")", "\"c/y y\"||" },
        { "\"a\\\"", "\"a\\\"||unterminated \"...\": \"a\\\"" },
        { "qsTr(\"a\" )", "qsTr(\"a\" )||not matched qsTr(\"...\"): qsTr(\"a\" )" },
        { " \"a\"", " \"a\"||unable to parse as string:  \"a\"" },
        { "qsTr(\"%1 %2\").arg(\"b\").arg(\"d\" ) lost", "\"c/b d\"||not closed .arg(: .arg(\"d\" ) lost" },
    };
    for (const auto &row : rows) {
        QString rest = QStringLiteral("left from before");
        QStringList errors;
        const QString literal = TranslatableText::parseStringExpression(text(row[0]), text("c"), lookUp, rest, errors);
        QCOMPARE(QStringList({ literal, rest, errors.join(QLatin1Char('|')) }).join(QLatin1Char('|')), text(row[1]));
    }
}

void tst_TranslationTexts::replaces()
{
    // A source, and what it becomes in a scenario and in a list.
    const char *const rows[][3] = {
        { "\n[]\r\n\n", "\n[]\r", "\n[]\r\n\n" },
        { "qsTr(\"a\")qsTr(\"a\")", "\"c/a\"\"c/a\"", "\"c/a\"qsTr(\"a\")" },
        // The separator with the blank is the one that counts, wherever it stands.
        { "QT_TRANSLATE_NOOP(\"k\",\"a\")QT_TRANSLATE_NOOP(\"b\", \"a\")", "\"\"\"b/a\"",
          "QT_TRANSLATE_NOOP(\"k\",\"a\")QT_TRANSLATE_NOOP(\"b\", \"a\")" },
        { "[qsTr( \"x\"), qsTr('x')]", "[qsTr( \"x\"), qsTr('x')]", "[qsTr( \"x\"), qsTr('x')]" },
        { "qsTr(\"two %1 %2\")", "\"%2 qsTr(\\\"%1\\\")\n\"", "\"%2 qsTr(\\\"%1\\\")\n\"" },
    };
    for (const auto &row : rows) {
        QStringList errors;
        QCOMPARE(TranslatableText::applyToScenario(text(row[0]), text("c"), lookUp, errors), text(row[1]));
        QCOMPARE(TranslatableText::applyToList(text(row[0]), text("c"), lookUp, errors), text(row[2]));
        QCOMPARE(errors, QStringList());
    }
}

void tst_TranslationTexts::survivesHostileTexts()
{
    const QString open = text("qsTr(\"%1\").arg(");
    const QString calls = text("QT_TRANSLATE_NOOP(\"k\") ").repeated(20000) + text("\", \"");
    // A source, and what it becomes; nothing where it is given up as too deep, or as too long.
    const QString rows[][2] = {
        { open.repeated(100) + text("\"x\"") + text(")").repeated(100), text("\"x\"") },
        { open.repeated(1000) + text("\"x\"") + text(")").repeated(1000), QString() },
        { calls, text("\"\" ").repeated(20000) + text("\", \"") },
        { text("qsTr(\"%1%1\")") + text(".arg(\"%1%1\")").repeated(23), QString() },
    };
    for (const auto &row : rows) {
        int size = 0;
        QStringList errors;
        const auto count = [&size](const QString &context, const QString &key) {
            size += context.size() + key.size();
            return key;
        };
        const QString result = TranslatableText::applyToScenario(row[0], QString(), count, errors);
        QCOMPARE(errors.isEmpty() ? result : QString(), row[1]);
        // What is looked up grows with the text, not with its square.
        QVERIFY2(size < 2 * row[0].size(), qPrintable(QString::number(size)));
    }
}

QTEST_GUILESS_MAIN(tst_TranslationTexts)
#include "tst_TranslationTexts.moc"

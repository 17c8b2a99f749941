#include "support/WarningGuard.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/translation/TranslationXml.h"

#include <QTextCodec>
#include <QtTest>

using TranslationSource::Entry;

namespace
{
const QString kContext = QStringLiteral("T");
const QString kKey = QStringLiteral("#1");

QByteArray context(const QByteArray &name, const QByteArray &messages)
{
    return "<context><name>" + name + "</name>" + messages + "</context>";
}

QByteArray message(const QByteArray &source, const QByteArray &translation)
{
    return "<message><source>" + source + "</source>" + translation + "</message>";
}

QByteArray translated(const QByteArray &text)
{
    return message("#1", "<translation>" + text + "</translation>");
}

QByteArray obsolete(const QByteArray &text)
{
    return message("#1", "<translation type=\"vanished\">" + text + "</translation>");
}

QDomDocument parse(const QByteArray &bytes)
{
    QDomDocument result;
    if (!TranslationXml::parse(bytes, result))
        qWarning("not well-formed: %s", bytes.constData());
    return result;
}

QDomDocument document(const QByteArray &contexts)
{
    return parse("<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"ja_JP\">"
                 + contexts + "</TS>\n");
}
} // namespace

class tst_TranslationSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void reads_data();
    void reads();
    void keepsBlanks();
    void leavesAllElseUntouched();
    void writes();
    void readsOtherLineEndsAndEncodings();

private:
    WarningGuard mWarnings;
};

void tst_TranslationSource::reads_data()
{
    QTest::addColumn<QString>("expected");

    const auto row = [](const QByteArray &messages, const char *expected) {
        QTest::newRow(messages.constData()) << QString::fromUtf8(expected);
    };
    row(translated("a"), "a");
    row(message("#1", "<translation type=\"unfinished\">a</translation>"), "a");
    row(message("#1", "<translation type=\"unfinished\"></translation>"), "none");
    row(translated("a") + obsolete("b"), "a");
    row(translated("a") + translated("b"), "b");
    row(message("#1", "<comment>c</comment><translation>a</translation>"), "none");
    row("<message numerus=\"yes\"><source>#1</source><translation><numerusform>a</numerusform></translation></message>",
        "none");
    row(translated("&lt;&amp;&gt;&quot;&apos;&#x6b21;<![CDATA[<a>]]>"), "<&>\"'次<a>");
    row(translated("a<byte value=\"x1\"/>b<!-- c --><byte value=\"13\"/>"),
        "a\x01"
        "b\r");
    row(message("#1", "<location filename=\"a\"/><translatorcomment>t</translatorcomment><translation>a</translation>"),
        "a");
    row("</context>" + context("T", translated("a")) + "<context>", "a");
}

void tst_TranslationSource::reads()
{
    QFETCH(QString, expected);
    QDomDocument source = document(context("T", QTest::currentDataTag()));
    const QString read = TranslationSource::readMessages(source).value(kContext).value(kKey, QStringLiteral("none"));
    QCOMPARE(read, expected);
    // What the screen shows, a translation or the key itself, is no edit.
    const QByteArray before = source.toByteArray();
    TranslationSource::writeMessages(source, kContext, { { kKey, read == QLatin1String("none") ? kKey : read } });
    QCOMPARE(source.toByteArray(), before);
}

void tst_TranslationSource::keepsBlanks()
{
    const QByteArray blanks[] = {
        " ", "\t\n ", "\u3000", "&#xd; ", " a\n ", " <byte value=\"x1\"/> ", "<![CDATA[ ]]>"
    };
    for (const QByteArray &blank : blanks) {
        QByteArray messages;
        for (const char *name : { "source", "comment", "oldsource", "extracomment", "translatorcomment", "userdata",
                                  "translation", "extra-x" })
            messages += QByteArray("\n<") + name + '>' + blank + "</" + name + ">\t";
        messages += "<translation><numerusform>" + blank + "</numerusform>\n<numerusform/></translation>\n";
        const QByteArray bytes = document(context(blank, "\n  <message>" + messages + "</message>")).toByteArray(4);
        QCOMPARE(bytes.count('>' + blank + '<'), 10);
        QVERIFY(bytes.contains("\n            <source>"));
        QCOMPARE(parse(bytes).toByteArray(4), bytes);
    }
    // Where nothing stands between them yet, they are layout too.
    QByteArray written;
    for (const char *contexts : { "", "\n", "\n<context>\n<name>T</name></context>\n" }) {
        QDomDocument source = document(contexts);
        TranslationSource::writeMessages(source, kContext, { { kKey, QStringLiteral("a") } });
        written = written.isEmpty() ? source.toByteArray(4) : written;
        QCOMPARE(source.toByteArray(4), written);
    }
}

void tst_TranslationSource::leavesAllElseUntouched()
{
    const QByteArray before = "<context encoding=\"UTF-8\"><name>A</name><comment>c</comment>"
        + message("#1", "<extracomment>e</extracomment><translation type=\"unfinished\">x</translation>") + "</context>"
        + context("T",
                  message("#1",
                          "<location filename=\"a\" line=\"1\"/><oldsource>o</oldsource>"
                          "<translatorcomment>t</translatorcomment><translation>old</translation>")
                      + message("#1", "<comment>c</comment><translation>other</translation>")
                      + "<message numerus=\"yes\"><source>#1</source><translation><numerusform>n</numerusform>"
                        "</translation></message>"
                      + message("#2", "<translation type=\"vanished\">gone</translation>"))
        + "<!-- end -->";
    QByteArray after = before;
    after.replace("<translation>old</translation>", "<translation>new</translation>");
    after.replace("gone</translation></message>",
                  "gone</translation></message>" + message("#3", "<translation>third</translation>"));

    QDomDocument source = document(before);
    TranslationSource::writeMessages(
        source, kContext, { { kKey, QStringLiteral("new") }, { QStringLiteral("#3"), QStringLiteral("third") } });
    QCOMPARE(source.toByteArray(4), document(after).toByteArray(4));
}

void tst_TranslationSource::writes()
{
    struct Row
    {
        QByteArray before;
        const char *translation;
        QByteArray after;
    };
    const QByteArray other = message("#2", "<translation>b</translation>");
    const Row rows[] = {
        { context("T", translated("a")), "<b>&amp;", context("T", translated("&lt;b>&amp;amp;")) },
        { context("T", translated("a") + other), "", context("T", translated("") + other) },
        { context("T", message("#1", "<translation type=\"unfinished\"/>")), "a", context("T", translated("a")) },
        { context("T", obsolete("x")), "a", context("T", translated("a")) },
        { context("U", other), "a", context("U", other) + context("T", translated("a")) },
        { context("U", other), "#1", context("U", other) },
        { context("T", other) + context("T", translated("a") + obsolete("b")), "c",
          context("T", other) + context("T", translated("c") + obsolete("b")) },
    };
    for (const Row &row : rows) {
        QDomDocument source = document(row.before);
        // Said a second and third time it changes nothing.
        for (int round = 0; round < 2; ++round) {
            const Entry entry = { kKey, QString::fromUtf8(row.translation) };
            TranslationSource::writeMessages(source, kContext, QVector<Entry>(1 + round, entry));
            QCOMPARE(source.toByteArray(4), document(row.after).toByteArray(4));
        }
    }
}

void tst_TranslationSource::readsOtherLineEndsAndEncodings()
{
    const QString text = QString::fromUtf8("é\n\rb");
    const QString source = QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>\r\n<TS>\r\n%2</TS>\r\n")
                               .arg(QStringLiteral("%1"), QString::fromUtf8(context("T", translated("é\r\n&#xd;b"))));
    for (const char *encoding : { "utf-8", "ISO-8859-1", "utf-16" }) {
        const QByteArray bytes = QTextCodec::codecForName(encoding)->fromUnicode(source.arg(QLatin1String(encoding)));
        const QByteArray written = parse(bytes).toByteArray(4);
        QCOMPARE(parse(written).toByteArray(4), written);
        QCOMPARE(TranslationSource::readMessages(parse(written)).value(kContext).value(kKey), text);
    }
    // Bytes that can't be read would be gone from what is written.
    QDomDocument none;
    QVERIFY(!TranslationXml::parse("<TS>" + context("T", translated("\xef\xbf\xbd\xe9")) + "</TS>", none));
    QVERIFY(none.isNull());
}

QTEST_GUILESS_MAIN(tst_TranslationSource)
#include "tst_TranslationSource.moc"

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
        qWarning("not well-formed: %s", bytes.constData());
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
} // namespace

class tst_TranslationSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void readsAndWrites_data();
    void readsAndWrites();
    void keepsBlanks();
    void readsOtherLineEndsAndEncodings();

private:
    WarningGuard mWarnings;
};

void tst_TranslationSource::readsAndWrites_data()
{
    QTest::addColumn<QString>("read");
    QTest::addColumn<QByteArray>("after");

    // The messages, what is in force for the key, and the messages once that is "new".
    const auto row = [](const QByteArray &before, const char *read, const QByteArray &after) {
        QTest::newRow(before.constData()) << QString::fromUtf8(read) << after;
    };
    const QByteArray fresh = translated("new");
    const QByteArray vanished = message("#1", "<translation type=\"vanished\">x</translation>");
    const QByteArray distinct = message("#1", "<comment>c</comment><translation>a</translation>");
    const QByteArray plural =
        "<message numerus=\"yes\"><source>#1</source><translation><numerusform>a</numerusform></translation></message>";
    const QByteArray noted =
        "<location filename=\"a\" line=\"1\"/><oldsource>o</oldsource><extracomment>e</extracomment>"
        "<translatorcomment>t</translatorcomment><translation>";
    const QByteArray otherContext = "</context><context><name>T</name>";
    row(translated("a"), "a", fresh);
    row(translated(""), "", fresh);
    row(message("#1", "<translation type=\"unfinished\">a</translation>"), "a", fresh);
    row(message("#1", "<translation type=\"unfinished\"/>"), "#1", fresh);
    row(message("#1", ""), "#1", fresh);
    row(vanished, "#1", fresh);
    row(translated("a") + vanished, "a", fresh + vanished);
    row(translated("a") + translated("b"), "b", translated("a") + fresh);
    row(distinct + plural, "#1", distinct + plural + fresh);
    row(message("#1", noted + "a</translation>"), "a", message("#1", noted + "new</translation>"));
    row(translated("&lt;&amp;&gt;&quot;&apos;&#x6b21;<![CDATA[<a>]]>"), "<&>\"'次<a>", fresh);
    row(translated("<byte value=\"x1f\"/>b<!-- c --><byte value=\"13\"/>"),
        "\x1f"
        "b\r",
        fresh);
    row(distinct + otherContext + translated("a") + vanished, "a", distinct + otherContext + fresh + vanished);
    row(distinct + otherContext + vanished + otherContext, "#1", distinct + otherContext + fresh + otherContext);
}

void tst_TranslationSource::readsAndWrites()
{
    QFETCH(QString, read);
    QFETCH(QByteArray, after);
    QDomDocument source = document(QTest::currentDataTag());
    QCOMPARE(TranslationSource::readMessages(source).value(kContext).value(kKey, kKey), read);
    // What is in force, or the key itself, is no edit.
    const QByteArray before = source.toByteArray(4);
    TranslationSource::writeMessages(source, kContext, { { kKey, read } });
    QCOMPARE(source.toByteArray(4), before);
    // Said a second and third time it changes nothing.
    for (int times = 1; times <= 2; ++times) {
        TranslationSource::writeMessages(source, kContext, QVector<Entry>(times, { kKey, QStringLiteral("new") }));
        QCOMPARE(source.toByteArray(4), document(after).toByteArray(4));
    }
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
        const QByteArray bytes = document("\n  <message>" + messages + "</message>", blank).toByteArray(4);
        QCOMPARE(bytes.count('>' + blank + '<'), 10);
        QVERIFY(bytes.contains("\n            <source>"));
        QCOMPARE(parse(bytes).toByteArray(4), bytes);
    }
    // Where nothing stands between them yet, they are layout too.
    QByteArray written;
    for (const char *contexts : { "", "\n", "\n<context>\n<name>T</name></context>\n" }) {
        QDomDocument source = parse(QByteArray("<TS>") + contexts + "</TS>");
        TranslationSource::writeMessages(source, kContext, { { kKey, QStringLiteral("a") } });
        written = written.isEmpty() ? source.toByteArray(4) : written;
        QCOMPARE(source.toByteArray(4), written);
    }
}

void tst_TranslationSource::readsOtherLineEndsAndEncodings()
{
    const QString text = QString::fromUtf8("é\n\rb");
    const QString source =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>\r\n<TS>\r\n%2</TS>\r\n")
            .arg(QStringLiteral("%1"),
                 QString::fromUtf8("<context><name>T</name>" + translated("é\r\n&#xd;b") + "</context>"));
    for (const char *encoding : { "utf-8", "ISO-8859-1", "utf-16" }) {
        const QByteArray bytes = QTextCodec::codecForName(encoding)->fromUnicode(source.arg(QLatin1String(encoding)));
        const QByteArray written = parse(bytes).toByteArray(4);
        QCOMPARE(parse(written).toByteArray(4), written);
        QCOMPARE(TranslationSource::readMessages(parse(written)).value(kContext).value(kKey), text);
    }
    // Bytes that can't be read would be gone from what is written.
    QDomDocument none;
    QVERIFY(!TranslationXml::parse("<TS>" + translated("\xef\xbf\xbd\xe9") + "</TS>", none));
    QVERIFY(none.isNull());
}

QTEST_GUILESS_MAIN(tst_TranslationSource)
#include "tst_TranslationSource.moc"

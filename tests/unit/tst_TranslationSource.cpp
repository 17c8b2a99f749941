#include "support/FileBytes.h"
#include "support/WarningGuard.h"
#include "Tutorial/DocumentTranslator.h"
#include "Tutorial/TranslationSource.h"

#include <QLibraryInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

using TranslationSource::Entry;
using TranslationSource::Messages;

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
    if (!result.setContent(bytes))
        qWarning("not well-formed: %s", bytes.constData());
    TranslationSource::keepBytesInLine(result);
    return result;
}

QDomDocument document(const QByteArray &contexts)
{
    return parse("<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"ja_JP\">"
                 + contexts + "</TS>\n");
}

QVector<Entry> entriesOf(const Messages &messages)
{
    QVector<Entry> entries;
    for (auto message = messages.cbegin(); message != messages.cend(); ++message)
        entries.append({ message.key(), message.value() });
    return entries;
}

QString nastyText(QRandomGenerator &random)
{
    static const QStringList parts =
        QString::fromUtf8(" |\n|\t|\r|\r\n|\x01|\x1f|\x7f|\u0085|\u00a0|\u2028|\u3000|😀|次へ|שלום|<b>&amp;|]]>|\"'|%1|"
                          "<byte value=\"x9\"/>|a|a")
            .split(QLatin1Char('|'))
        + QStringList{ QChar(0xfffe), QChar(0xffff), QChar(0xd800), QChar(0xdc00) };
    QString text;
    for (int count = random.bounded(6); count > 0; --count)
        text += parts.at(random.bounded(parts.size()));
    return text;
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
    void leavesAllElseUntouched();
    void writes_data();
    void writes();
    void keepsTexts();
    void isCompiledByLrelease();
    void answersLookUps();

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
    row(translated(""), "");
    row(message("#1", "<translation type=\"unfinished\">a</translation>"), "a");
    row(message("#1", "<translation type=\"unfinished\"></translation>"), "none");
    row(message("#1", "<translation type=\"obsolete\">a</translation>"), "none");
    row(translated("a") + obsolete("b"), "a");
    row(message("#1", ""), "none");
    row(message("#1", "<comment>c</comment><translation>a</translation>"), "none");
    row("<message numerus=\"yes\"><source>#1</source><translation><numerusform>a</numerusform></translation></message>",
        "none");
    row(translated("&lt;&amp;&gt;&quot;&apos;&#x6b21;<![CDATA[<a>]]>"), "<&>\"'次<a>");
    row(translated("a<byte value=\"x1\"/>b<!-- c --><byte value=\"13\"/>"),
        "a\x01"
        "b\r");
    row(message("#1", "<location filename=\"a\"/><translatorcomment>t</translatorcomment><translation>a</translation>"),
        "a");
    row("</context>" + context("U", translated("a")) + "<context>", "none");
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

void tst_TranslationSource::writes_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QByteArray>("after");

    const auto row = [](const QByteArray &before, const char *translation, const QByteArray &after) {
        QTest::addRow("%s to %s", before.constData(), translation) << before << QString::fromUtf8(translation) << after;
    };
    const QByteArray other = message("#2", "<translation>b</translation>");
    row(context("T", translated("a") + other), "c", context("T", translated("c") + other));
    row(context("T", translated("a")), "", context("T", translated("")));
    row(context("T", translated("a")), "#1", context("T", translated("#1")));
    row(context("T", translated("a")), "<b>&amp;", context("T", translated("&lt;b>&amp;amp;")));
    row(context("T", message("#1", "<translation type=\"unfinished\"/>")), "a", context("T", translated("a")));
    row(context("T", obsolete("x")), "a", context("T", translated("a")));
    row(context("T", message("#1", "")), "a", context("T", translated("a")));
    row(context("T", other) + context("U", other), "", context("T", other + translated("")) + context("U", other));
    row(context("U", other), "a", context("U", other) + context("T", translated("a")));
    row(context("U", other), "#1", context("U", other));
    row(context("T", other) + context("T", translated("a")), "c", context("T", other) + context("T", translated("c")));
    row(context("T", translated("a") + obsolete("b")), "c", context("T", translated("c") + obsolete("b")));
}

void tst_TranslationSource::writes()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, translation);
    QFETCH(QByteArray, after);
    QDomDocument source = document(before);
    // Said a second and third time it changes nothing.
    for (int round = 0; round < 2; ++round) {
        TranslationSource::writeMessages(source, kContext, QVector<Entry>(1 + round, { kKey, translation }));
        QCOMPARE(source.toByteArray(4), document(after).toByteArray(4));
    }
}

void tst_TranslationSource::keepsTexts()
{
    QRandomGenerator random(99);
    for (int round = 0; round < 500; ++round) {
        const QString name = nastyText(random) + kContext;
        QDomDocument source = TranslationSource::emptyDocument(QStringLiteral("en_US"));
        Messages expected;
        // Texts are written over others, so that what stood there must be gone.
        for (int pass = 0; pass < 2; ++pass) {
            for (const QString &key : { kKey, QStringLiteral(" \r\x01<#2> ") })
                expected.insert(key, nastyText(random));
            TranslationSource::writeMessages(source, name, entriesOf(expected));
        }
        for (int pass = 0; pass < 2; ++pass) {
            const QByteArray bytes = source.toByteArray(4);
            source = parse(bytes);
            QCOMPARE(TranslationSource::readMessages(source).value(name), expected);
            QCOMPARE(source.toByteArray(4), bytes);
        }
    }
}

void tst_TranslationSource::isCompiledByLrelease()
{
    QRandomGenerator random(5);
    Messages texts;
    for (int id = 1; id <= 400; ++id) {
        // The compiled form has no place for half a pair.
        const QString text = nastyText(random).remove(QChar(0xd800)).remove(QChar(0xdc00));
        if (!text.isEmpty())
            texts.insert(QStringLiteral("#%1").arg(id), text);
    }
    QDomDocument source = TranslationSource::emptyDocument(QStringLiteral("ja_JP"));
    TranslationSource::writeMessages(source, kContext, entriesOf(texts));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.ts"));
    writeAll(path, source.toByteArray(4));
    QCOMPARE(QProcess::execute(QLibraryInfo::location(QLibraryInfo::BinariesPath) + QLatin1String("/lrelease"),
                               { QStringLiteral("-silent"), path }),
             0);
    QTranslator translator;
    QVERIFY(translator.load(folder.filePath(QStringLiteral("a.qm"))));
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        QCOMPARE(translator.translate("T", text.key().toUtf8().constData()), text.value());
}

void tst_TranslationSource::answersLookUps()
{
    DocumentTranslator translator;
    translator.setMessages(TranslationSource::readMessages(document(
        context("T", translated("一") + message("#2", "<translation/>"))
        + context("main", message("Undo", "<translation/>") + message("-", "<translation>ー</translation>")))));
    translator.setOwnContext(kContext);
    QCOMPARE(translator.translate("T", "#1"), QString::fromUtf8("一"));
    const QString empty = translator.translate("T", "#2");
    QVERIFY(empty.isEmpty() && !empty.isNull());
    // A key of the own context stays a key, whatever other translators know.
    QCOMPARE(translator.translate("T", "#3"), QStringLiteral("#3"));
    // Elsewhere an empty translation and a missing one are left to them.
    QCOMPARE(translator.translate("main", "-"), QString::fromUtf8("ー"));
    QVERIFY(translator.translate("main", "Undo").isNull() && translator.translate("U", "#1").isNull());
}

QTEST_GUILESS_MAIN(tst_TranslationSource)
#include "tst_TranslationSource.moc"

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

namespace
{
const QByteArray kHead = "<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS>\n";

QByteArray document(const QByteArray &contexts)
{
    return kHead + "<TS version=\"2.1\" language=\"ja_JP\">" + contexts + "</TS>\n";
}

QByteArray context(const QByteArray &name, const QByteArray &messages)
{
    return "<context><name>" + name + "</name>" + messages + "</context>";
}

QByteArray message(const QByteArray &source, const QByteArray &translation)
{
    return "<message><source>" + source + "</source>" + translation + "</message>";
}

QDomDocument parse(const QByteArray &bytes)
{
    QDomDocument result;
    if (!result.setContent(bytes))
        qWarning("not well-formed: %s", bytes.constData());
    TranslationSource::keepBytesInLine(result);
    return result;
}

/// The document as it is when it was written and read again.
QDomDocument reread(const QDomDocument &written)
{
    return parse(written.toByteArray(4));
}

TranslationSource::Messages messagesOf(const QDomDocument &source, const char *contextName)
{
    return TranslationSource::readMessages(source).value(QString::fromUtf8(contextName));
}

QString nastyText(QRandomGenerator &random)
{
    static const QStringList parts = {
        QStringLiteral(" "),       QStringLiteral("\n"),       QStringLiteral("\t"),
        QStringLiteral("\r"),      QStringLiteral("\r\n"),     QString(QChar(0x1)),
        QString(QChar(0x1f)),      QString(QChar(0x7f)),       QString(QChar(0x85)),
        QString(QChar(0xa0)),      QString(QChar(0x2028)),     QString(QChar(0xfffe)),
        QString(QChar(0xffff)),    QString::fromUtf8("😀"),     QString::fromUtf8("次へ"),
        QString::fromUtf8("שלום"), QStringLiteral("<b>&amp;"), QStringLiteral("]]>"),
        QStringLiteral("\"'"),     QStringLiteral("%1"),       QStringLiteral("<byte value=\"x9\"/>"),
        QStringLiteral("a"),       QString(QChar(0xd800)),     QString(QChar(0xdc00))
    };
    QString text;
    const int count = random.bounded(6);
    for (int i = 0; i < count; ++i)
        text += parts.at(random.bounded(parts.size()));
    return text;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAll(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

bool runQtTool(const char *name, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QLibraryInfo::location(QLibraryInfo::BinariesPath) + QLatin1Char('/') + QLatin1String(name),
                  arguments);
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    qWarning("%s: %s", name, process.readAll().constData());
    return false;
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
    void writesNothingWithoutAnEdit_data();
    void writesNothingWithoutAnEdit();
    void leavesAllElseUntouched();
    void writes_data();
    void writes();
    void keepsTexts_data();
    void keepsTexts();
    void keepsRandomTexts();
    void makesADocument();
    void isCompiledByLrelease();
    void isKeptByLupdate();
    void savesTheProgramsOwnSources_data();
    void savesTheProgramsOwnSources();
    void answersLookUps();

private:
    WarningGuard mWarnings;
};

void tst_TranslationSource::reads_data()
{
    QTest::addColumn<QByteArray>("contexts");
    QTest::addColumn<QVariantMap>("expected");

    const QVariantMap none;
    const auto found = [](const char *translation) {
        return QVariantMap{ { QStringLiteral("#1"), QString::fromUtf8(translation) } };
    };
    const auto row = [](const char *tag, const QByteArray &messages, const QVariantMap &expected) {
        QTest::newRow(tag) << QByteArray(context("T", messages)) << expected;
    };
    row("finished", message("#1", "<translation>a</translation>"), found("a"));
    row("empty", message("#1", "<translation></translation>"), found(""));
    row("unfinished with a text", message("#1", "<translation type=\"unfinished\">a</translation>"), found("a"));
    row("unfinished and empty", message("#1", "<translation type=\"unfinished\"></translation>"), none);
    row("obsolete", message("#1", "<translation type=\"obsolete\">a</translation>"), none);
    row("vanished", message("#1", "<translation type=\"vanished\">a</translation>"), none);
    row("obsolete behind one in force",
        message("#1", "<translation>a</translation>") + message("#1", "<translation type=\"obsolete\">b</translation>"),
        found("a"));
    row("no translation", message("#1", ""), none);
    row("disambiguation", message("#1", "<comment>c</comment><translation>a</translation>"), none);
    row("plural forms",
        "<message numerus=\"yes\"><source>#1</source><translation><numerusform>a</numerusform></translation></message>",
        none);
    row("entities", message("#1", "<translation>&lt;&amp;&gt;&quot;&apos;&#x6b21;</translation>"), found("<&>\"'次"));
    row("literal text", message("#1", "<translation><![CDATA[<a>]]></translation>"), found("<a>"));
    row("bytes", message("#1", "<translation>a<byte value=\"x1\"/>b<byte value=\"13\"/></translation>"),
        found("a\x01"
              "b\r"));
    row("comment in the file", message("#1", "<translation>a<!-- c -->b</translation>"), found("ab"));
    row("location and translator's comment",
        message("#1",
                "<location filename=\"a\" line=\"1\"/><translatorcomment>t</translatorcomment>"
                "<translation>a</translation>"),
        found("a"));
    QTest::newRow("another context") << context("U", message("#1", "<translation>a</translation>")) << none;
    QTest::newRow("a context that stands twice")
        << QByteArray(context("T", message("#2", "<translation>#2</translation>"))
                      + context("T", message("#1", "<translation>a</translation>")))
        << QVariantMap{ { QStringLiteral("#1"), QStringLiteral("a") }, { QStringLiteral("#2"), QStringLiteral("#2") } };
    QTest::newRow("no context") << QByteArray() << none;
}

void tst_TranslationSource::reads()
{
    QFETCH(QByteArray, contexts);
    QFETCH(QVariantMap, expected);
    QVariantMap read;
    const TranslationSource::Messages messages = messagesOf(parse(document(contexts)), "T");
    for (auto entry = messages.cbegin(); entry != messages.cend(); ++entry)
        read.insert(entry.key(), entry.value());
    QCOMPARE(read, expected);
}

void tst_TranslationSource::writesNothingWithoutAnEdit_data()
{
    reads_data();
}

void tst_TranslationSource::writesNothingWithoutAnEdit()
{
    QFETCH(QByteArray, contexts);
    QDomDocument source = parse(document(contexts));
    const QByteArray before = source.toByteArray(4);
    // What the screen shows for each key: its translation, or the key itself.
    const TranslationSource::Messages messages = messagesOf(source, "T");
    QVector<Entry> entries;
    for (const char *key : { "#1", "#2", "#3" }) {
        const QString text = QString::fromLatin1(key);
        entries.append({ text, messages.value(text, text) });
    }
    TranslationSource::writeMessages(source, QStringLiteral("T"), entries);
    QCOMPARE(source.toByteArray(4), before);
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

    QDomDocument source = parse(document(before));
    TranslationSource::writeMessages(
        source, QStringLiteral("T"),
        { { QStringLiteral("#1"), QStringLiteral("new") }, { QStringLiteral("#3"), QStringLiteral("third") } });
    QCOMPARE(source.toByteArray(4), parse(document(after)).toByteArray(4));
}

void tst_TranslationSource::writes_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QByteArray>("after");

    const auto row = [](const char *tag, const QByteArray &before, const char *translation, const QByteArray &after) {
        QTest::newRow(tag) << before << QString::fromUtf8(translation) << after;
    };
    const QByteArray other = message("#2", "<translation>b</translation>");
    const auto translated = [](const QByteArray &text) {
        return message("#1", "<translation>" + text + "</translation>");
    };
    row("edited", context("T", translated("a") + other), "c", context("T", translated("c") + other));
    row("emptied", context("T", translated("a")), "", context("T", translated("")));
    row("set to its key", context("T", translated("a")), "#1", context("T", translated("#1")));
    row("filled in", context("T", message("#1", "<translation type=\"unfinished\"></translation>")), "a",
        context("T", translated("a")));
    row("brought back", context("T", message("#1", "<translation type=\"obsolete\">x</translation>")), "a",
        context("T", translated("a")));
    row("without a translation element", context("T", message("#1", "")), "a", context("T", translated("a")));
    row("new at the end of the context", context("T", other) + context("U", other), "a",
        context("T", other + translated("a")) + context("U", other));
    row("new and empty", context("T", other), "", context("T", other + translated("")));
    row("new context at the end", context("U", other), "a", context("U", other) + context("T", translated("a")));
    row("first context", QByteArray(), "a", context("T", translated("a")));
    row("no context for a key alone", context("U", other), "#1", context("U", other));
    row("in the second context of that name", context("T", other) + context("T", translated("a")), "c",
        context("T", other) + context("T", translated("c")));
    row("the one in force",
        context("T", translated("a") + message("#1", "<translation type=\"vanished\">b</translation>")), "c",
        context("T", translated("c") + message("#1", "<translation type=\"vanished\">b</translation>")));
    row("markup is text", context("T", translated("a")), "<b>&amp;", context("T", translated("&lt;b>&amp;amp;")));
}

void tst_TranslationSource::writes()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, translation);
    QFETCH(QByteArray, after);
    QDomDocument source = parse(document(before));
    const QString key = QStringLiteral("#1");
    TranslationSource::writeMessages(source, QStringLiteral("T"), { { key, translation } });
    QCOMPARE(source.toByteArray(4), parse(document(after)).toByteArray(4));
    QCOMPARE(messagesOf(source, "T").value(key, key), translation);
    // Said a second time it changes nothing.
    TranslationSource::writeMessages(source, QStringLiteral("T"), { { key, translation }, { key, translation } });
    QCOMPARE(source.toByteArray(4), parse(document(after)).toByteArray(4));
}

void tst_TranslationSource::keepsTexts_data()
{
    QTest::addColumn<QString>("text");

    const auto row = [](const char *tag, const QString &text) { QTest::newRow(tag) << text; };
    row("empty", QString());
    row("one blank", QStringLiteral(" "));
    row("blanks alone", QStringLiteral(" \t\n "));
    row("blanks round a text", QStringLiteral("  \n a \n\t"));
    row("carriage returns", QStringLiteral("\ra\r\nb\r"));
    row("carriage returns alone", QStringLiteral("\r\r"));
    row("control characters",
        QString(QChar(1)) + QStringLiteral("a") + QChar(0x1f) + QChar(0x1b) + QStringLiteral(" "));
    row("blank between control characters", QString(QChar(1)) + QLatin1Char(' ') + QChar(2));
    row("characters that are none", QString(QChar(0xfffe)) + QChar(0xffff));
    row("half a pair", QStringLiteral("a") + QChar(0xd83d) + QStringLiteral("b") + QChar(0xde00));
    row("emoji", QString::fromUtf8("😀a😀"));
    row("blanks of other scripts", QString(QChar(0x2028)) + QChar(0x85) + QChar(0xa0) + QChar(0x3000));
    row("markup", QStringLiteral("<a b=\"c\">&amp;]]>'"));
}

void tst_TranslationSource::keepsTexts()
{
    QFETCH(QString, text);
    const QString key = QStringLiteral("#1");
    QDomDocument source = TranslationSource::emptyDocument(QStringLiteral("ja_JP"));
    TranslationSource::writeMessages(source, text + QLatin1Char('T'), { { key, text }, { text, QStringLiteral("t") } });
    for (int round = 0; round < 3; ++round) {
        const TranslationSource::Messages messages =
            TranslationSource::readMessages(source).value(text + QLatin1Char('T'));
        QCOMPARE(messages.value(key, QStringLiteral("none")), text);
        QCOMPARE(messages.value(text), QStringLiteral("t"));
        const QByteArray bytes = source.toByteArray(4);
        source = reread(source);
        QCOMPARE(source.toByteArray(4), bytes);
    }
}

void tst_TranslationSource::keepsRandomTexts()
{
    QRandomGenerator random(99);
    for (int round = 0; round < 300; ++round) {
        QDomDocument source = TranslationSource::emptyDocument(QStringLiteral("en_US"));
        QHash<QString, QString> expected;
        // Texts are written over others, so that what stood there must be gone.
        for (int pass = 0; pass < 2; ++pass) {
            QVector<Entry> entries;
            for (int id = 1; id <= 5; ++id) {
                entries.append({ QStringLiteral("#%1").arg(id), nastyText(random) });
                expected.insert(entries.last().source, entries.last().translation);
            }
            TranslationSource::writeMessages(source, QStringLiteral("T"), entries);
        }
        QCOMPARE(messagesOf(reread(source), "T"), expected);
    }
}

void tst_TranslationSource::makesADocument()
{
    QDomDocument source = TranslationSource::emptyDocument(QStringLiteral("en_US"));
    TranslationSource::writeMessages(source, QStringLiteral("T"), { { QStringLiteral("#1"), QStringLiteral("a") } });
    QByteArray expected = document(context("T", message("#1", "<translation>a</translation>")));
    expected.replace("ja_JP", "en_US");
    QCOMPARE(source.toByteArray(4), parse(expected).toByteArray(4));
}

void tst_TranslationSource::isCompiledByLrelease()
{
    QRandomGenerator random(5);
    QHash<QString, QString> expected;
    QVector<Entry> entries;
    for (int id = 1; id <= 400; ++id) {
        const QString key = QStringLiteral("#%1").arg(id);
        QString text = nastyText(random);
        // The compiled form has no place for these.
        text.remove(QChar(0xd800)).remove(QChar(0xdc00));
        entries.append({ key, text });
        if (!text.isEmpty() && text != key)
            expected.insert(key, text);
    }
    QDomDocument source = TranslationSource::emptyDocument(QStringLiteral("ja_JP"));
    TranslationSource::writeMessages(source, QStringLiteral("T"), entries);
    QTemporaryDir folder;
    const QString ts = folder.filePath(QStringLiteral("a.ts"));
    const QString qm = folder.filePath(QStringLiteral("a.qm"));
    // The second time from a document that was read, as a save without an edit does.
    for (int round = 0; round < 2; ++round) {
        writeAll(ts, source.toByteArray(4));
        QVERIFY(runQtTool("lrelease", { QStringLiteral("-silent"), ts, QStringLiteral("-qm"), qm }));
        QTranslator translator;
        QVERIFY(translator.load(qm));
        for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry)
            QCOMPARE(translator.translate("T", entry.key().toUtf8().constData()), entry.value());
        source = reread(source);
    }
}

void tst_TranslationSource::isKeptByLupdate()
{
    QTemporaryDir folder;
    const QString script = folder.filePath(QStringLiteral("T.js"));
    const QString ts = folder.filePath(QStringLiteral("a.ts"));
    writeAll(script, "var scenario = [\n{\n\"hint\":qsTr(\"#1\"),\n\"hint\":qsTr(\"#2\")\n}\n];");
    QDomDocument source = TranslationSource::emptyDocument(QStringLiteral("ja_JP"));
    const QHash<QString, QString> texts = { { QStringLiteral("#1"), QString::fromUtf8("一\n<b>") },
                                            { QStringLiteral("#2"), QString::fromUtf8("二 \r") } };
    QVector<Entry> entries;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        entries.append({ text.key(), text.value() });
    TranslationSource::writeMessages(source, QStringLiteral("T"), entries);
    writeAll(ts, source.toByteArray(4));
    QVERIFY(runQtTool("lupdate", { QStringLiteral("-silent"), script, QStringLiteral("-ts"), ts }));
    QCOMPARE(messagesOf(parse(readAll(ts)), "T"), texts);
}

void tst_TranslationSource::savesTheProgramsOwnSources_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ja_JP") << QStringLiteral("ja_JP.ts");
    QTest::newRow("en_US") << QStringLiteral("en_US.ts");
}

void tst_TranslationSource::savesTheProgramsOwnSources()
{
    QFETCH(QString, name);
    const QByteArray bytes = readAll(QFINDTESTDATA(QString(QLatin1String("../../translations/") + name)));
    QVERIFY(!bytes.isEmpty());
    QDomDocument source = parse(bytes);
    const auto before = TranslationSource::readMessages(source);
    QVERIFY(!before.isEmpty());
    for (auto messages = before.cbegin(); messages != before.cend(); ++messages) {
        QVector<Entry> entries;
        for (auto entry = messages->cbegin(); entry != messages->cend(); ++entry)
            entries.append({ entry.key(), entry.value() });
        TranslationSource::writeMessages(source, messages.key(), entries);
    }
    QCOMPARE(source.toByteArray(4), parse(bytes).toByteArray(4));
    QCOMPARE(TranslationSource::readMessages(reread(source)), before);
}

void tst_TranslationSource::answersLookUps()
{
    DocumentTranslator translator;
    QVERIFY(translator.isEmpty());
    QVERIFY(translator.translate("T", "#1").isNull());
    translator.setMessages(TranslationSource::readMessages(parse(document(
        context("T", message("#1", "<translation>一</translation>") + message("#2", "<translation/>"))
        + context("main", message("&amp;Undo", "<translation/>") + message("-", "<translation>ー</translation>"))))));
    QVERIFY(!translator.isEmpty());
    translator.setOwnContext(QStringLiteral("T"));
    QCOMPARE(translator.translate("T", "#1"), QString::fromUtf8("一"));
    const QString empty = translator.translate("T", "#2");
    QVERIFY(empty.isEmpty() && !empty.isNull());
    // A key of the own context stays a key, whatever other translators know.
    QCOMPARE(translator.translate("T", "#3"), QStringLiteral("#3"));
    // Elsewhere an empty translation and a missing one are left to them.
    QCOMPARE(translator.translate("main", "-"), QString::fromUtf8("ー"));
    QVERIFY(translator.translate("main", "&Undo").isNull());
    QVERIFY(translator.translate("U", "#1").isNull());
}

QTEST_GUILESS_MAIN(tst_TranslationSource)
#include "tst_TranslationSource.moc"

#include <QtTest>

#include <QDir>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTranslator>

/// What a translator can get wrong in the catalogs without any tool complaining.
class CatalogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesKeepTheirShape_data();
    void messagesKeepTheirShape();
    void everyHintHasItsWords_data();
    void everyHintHasItsWords();
};

namespace
{

QStringList matches(const QString &text, const QString &pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator each = QRegularExpression(pattern).globalMatch(text);
    while (each.hasNext())
        found << each.next().captured();
    found.sort();
    return found;
}

} // namespace

void CatalogsTest::messagesKeepTheirShape_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");

    for (const char *locale : { "ja_JP", "en_US" }) {
        QFile file(QFINDTESTDATA(QStringLiteral("../../translations/%1.ts").arg(QLatin1String(locale))));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDomDocument document;
        QVERIFY(document.setContent(&file));

        const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
        QVERIFY(!messages.isEmpty());
        for (int i = 0; i < messages.count(); ++i) {
            const QDomElement message = messages.at(i).toElement();
            const QString context = message.parentNode().firstChildElement(QStringLiteral("name")).text();
            const QString source = message.firstChildElement(QStringLiteral("source")).text();
            QTest::addRow("%s %s %s", locale, qPrintable(context), qPrintable(source))
                << source << message.firstChildElement(QStringLiteral("translation")).text();
        }
    }
}

void CatalogsTest::messagesKeepTheirShape()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    if (translation.isEmpty())
        return; // The source text is shown.

    const QString placeholder = QStringLiteral("%\\d");
    QCOMPARE(matches(translation, placeholder), matches(source, placeholder));
    const QString mnemonic = QStringLiteral("&\\w");
    QCOMPARE(matches(translation, mnemonic).size(), matches(source, mnemonic).size());
    // Behind the colon of an error comes the text at fault.
    QCOMPARE(translation.endsWith(QLatin1Char(' ')), source.endsWith(QLatin1Char(' ')));
}

void CatalogsTest::everyHintHasItsWords_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QStringList>("calls");

    const QDir folder(QStringLiteral(":/qml/Tutorial"));
    const QStringList names = folder.entryList({ QStringLiteral("*.js") }, QDir::Files);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QTest::newRow(qPrintable(name)) << QFileInfo(name).baseName()
                                        << matches(QString::fromUtf8(file.readAll()),
                                                   QStringLiteral("(?<=qsTr\\(\")[^\"]+"));
    }
}

void CatalogsTest::everyHintHasItsWords()
{
    QFETCH(QString, context);
    QFETCH(QStringList, calls);

    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral("ja_JP"), QStringLiteral(":/translations")));
    QVERIFY(!calls.isEmpty());
    for (const QString &source : calls) {
        const QString words = translator.translate(qPrintable(context), qPrintable(source));
        QVERIFY2(!words.isEmpty(), qPrintable(source));
    }
}

QTEST_MAIN(CatalogsTest)

#include "tst_Catalogs.moc"

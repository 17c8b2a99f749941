#include "../../main/Translators.h"
#include "support/FileBytes.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QDomDocument>
#include <QPushButton>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

namespace
{
QStringList matches(const QString &text, const char *pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator each = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (each.hasNext())
        found << each.next().captured();
    found.sort();
    return found;
}
} // namespace

/// What a translator can get wrong in the catalogs without any tool complaining.
class tst_Catalogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesKeepTheirShape();
    void everyHintHasItsWords();
    void toolkitIsTranslated();
};

void tst_Catalogs::messagesKeepTheirShape()
{
    for (const char *locale : { "ja_JP", "en_US" }) {
        QFile file(QFINDTESTDATA(QStringLiteral("../../translations/%1.ts").arg(QLatin1String(locale))));
        QDomDocument document;
        QVERIFY(file.open(QIODevice::ReadOnly) && document.setContent(&file));
        const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
        QVERIFY(!messages.isEmpty());
        for (int i = 0; i < messages.count(); ++i) {
            const QDomElement message = messages.at(i).toElement();
            const QString source = message.firstChildElement(QStringLiteral("source")).text();
            const QString words = message.firstChildElement(QStringLiteral("translation")).text();
            if (words.isEmpty())
                continue; // The source text is shown.
            QVERIFY2(matches(words, "%\\d") == matches(source, "%\\d"), qPrintable(source));
            QVERIFY2(matches(words, "&\\w").size() == matches(source, "&\\w").size(), qPrintable(source));
            // After the colon of an error comes the text at fault.
            QVERIFY2(words.endsWith(QLatin1Char(' ')) == source.endsWith(QLatin1Char(' ')), qPrintable(source));
        }
    }
}

void tst_Catalogs::everyHintHasItsWords()
{
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral("ja_JP"), QStringLiteral(":/translations")));
    const QFileInfoList scripts = QDir(QStringLiteral(":/qml/Tutorial")).entryInfoList({ QStringLiteral("*.js") });
    QVERIFY(!scripts.isEmpty());
    for (const QFileInfo &script : scripts) {
        const QStringList calls = matches(QString::fromUtf8(readAll(script.filePath())), "(?<=qsTr\\(\")[^\"]+");
        QVERIFY2(!calls.isEmpty(), qPrintable(script.fileName()));
        for (const QString &source : calls) {
            const QString words = translator.translate(qPrintable(script.baseName()), qPrintable(source));
            QVERIFY2(!words.isEmpty(), qPrintable(script.fileName() + source));
        }
    }
}

void tst_Catalogs::toolkitIsTranslated()
{
    installTranslators(*qApp);
    QDialogButtonBox box(QDialogButtonBox::Cancel);
    QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("キャンセル"));
    QCOMPARE(QCoreApplication::translate("main", "&File"), QStringLiteral("ファイル(&F)"));
}

QTEST_MAIN(tst_Catalogs)
#include "tst_Catalogs.moc"

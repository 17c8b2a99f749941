#include "../../main/Translators.h"
#include "support/FileBytes.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDomDocument>
#include <QLibraryInfo>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

/// What a translator can get wrong in the catalogs without any tool complaining.
class tst_Catalogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesKeepTheirShape();
    void everyTextOfTheProgramIsThere();
    void toolkitIsTranslated();
};

void tst_Catalogs::messagesKeepTheirShape()
{
    for (const char *locale : { "ja_JP", "en_US" }) {
        QDomDocument document;
        document.setContent(
            readAll(QFINDTESTDATA(QStringLiteral("../../translations/%1.ts").arg(QLatin1String(locale)))));
        const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
        QVERIFY(!messages.isEmpty());
        for (int i = 0; i < messages.count(); ++i) {
            const QString source = messages.at(i).firstChildElement(QStringLiteral("source")).text();
            const QString words = messages.at(i).firstChildElement(QStringLiteral("translation")).text();
            // The source text is shown then, which says nothing where it is the key of a hint.
            QVERIFY2(!words.isEmpty() || !source.startsWith(QLatin1Char('#')), qPrintable(source));
            if (words.isEmpty())
                continue;
            // Places for values, and the keys of menus.
            for (const char *part : { "%1", "%2", "%3", "%n", "&" })
                QVERIFY2(words.count(QLatin1String(part)) == source.count(QLatin1String(part)), qPrintable(source));
            // After the colon of an error comes the text at fault.
            QVERIFY2(words.endsWith(QLatin1Char(' ')) == source.endsWith(QLatin1Char(' ')), qPrintable(source));
        }
    }
}

void tst_Catalogs::everyTextOfTheProgramIsThere()
{
    const QString root = QFileInfo(QFINDTESTDATA("../../translations/ja_JP.ts")).path() + QLatin1String("/../");
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("ja_JP.ts"));
    QVERIFY(QFile::copy(root + QLatin1String("translations/ja_JP.ts"), copy));
    const QString tool = QLibraryInfo::location(QLibraryInfo::BinariesPath) + QLatin1String("/lupdate");
    QCOMPARE(QProcess::execute(tool,
                               { QStringLiteral("-silent"), root + QLatin1String("cpp"), root + QLatin1String("main"),
                                 root + QLatin1String("qml"), QStringLiteral("-ts"), copy }),
             0);
    // What the tool finds in the sources alone is added as a message without words.
    const QByteArray updated = readAll(copy);
    QVERIFY(updated.contains("</TS>"));
    QVERIFY2(!updated.contains("unfinished"), updated.mid(updated.indexOf("unfinished") - 200, 200));
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

#include "../../main/Translators.h"
#include "support/FileBytes.h"
#include "SystemService/InterfaceTranslator.h"
#include "Tutorial/translation/TutorialTranslation.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDomDocument>
#include <QKeySequence>
#include <QtTest>

/// What a translator can get wrong in the catalogs without any tool complaining.
class tst_Catalogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesKeepTheirShape()
    {
        for (const char *name : { "ja_JP", "en_US", "interface_en" }) {
            const bool isWhole = qstrcmp(name, "interface_en") == 0;
            QDomDocument document;
            document.setContent(
                readAll(QFINDTESTDATA(QStringLiteral("../../translations/%1.ts").arg(QLatin1String(name)))));
            const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
            QVERIFY(!messages.isEmpty());
            for (int i = 0; i < messages.count(); ++i) {
                const QString source = messages.at(i).firstChildElement(QStringLiteral("source")).text();
                const QString words = messages.at(i).firstChildElement(QStringLiteral("translation")).text();
                // The source text is shown then, which says nothing where it is the key of a hint.
                QVERIFY2(!words.isEmpty() || !source.startsWith(QLatin1Char('#')), qPrintable(source));
                // The interface's English would fall through to the Japanese.
                QVERIFY2(!words.isEmpty() || !isWhole, qPrintable(source));
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
    void everyTextOfTheProgramIsThere()
    {
        for (const char *locale : { "ja_JP", "interface_en" }) {
            // Tutorials and the guidance are in the language that the host editor names.
            const bool forLearners = qstrcmp(locale, "ja_JP") == 0;
            const QString name = QLatin1String(locale) + QLatin1String(".ts");
            const QString root = QFileInfo(QFINDTESTDATA("../../translations/ja_JP.ts")).path() + QLatin1String("/../");
            const QTemporaryDir folder;
            const QString copy = folder.filePath(name);
            QVERIFY(QFile::copy(root + QLatin1String("translations/") + name, copy));
            const QString tool = QLibraryInfo::location(QLibraryInfo::BinariesPath) + QLatin1String("/lupdate");
            QCOMPARE(
                QProcess::execute(tool,
                                  { QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("absolute"),
                                    root + QLatin1String("cpp"), root + QLatin1String("main"),
                                    root + QLatin1String("qml"), QStringLiteral("-ts"), copy }),
                0);
            // What the tool finds in the sources alone is added as a message without words.
            QDomDocument updated;
            QVERIFY(updated.setContent(readAll(copy)));
            const QDomNodeList messages = updated.elementsByTagName(QStringLiteral("message"));
            for (int i = 0; i < messages.count(); ++i) {
                const QDomElement message = messages.at(i).toElement();
                const QDomElement place = message.firstChildElement(QStringLiteral("location"));
                const QString file = place.attribute(QStringLiteral("filename"));
                const bool isForLearners =
                    file.contains(QLatin1String("/guidance/")) || file.contains(QLatin1String("/qml/Tutorial/"));
                const QString state =
                    message.firstChildElement(QStringLiteral("translation")).attribute(QStringLiteral("type"));
                const QString source = message.firstChildElement(QStringLiteral("source")).text();
                QVERIFY2((state == QLatin1String("unfinished")) == (isForLearners && !forLearners), qPrintable(source));
            }
        }
    }
    void interfaceHasItsLanguage()
    {
        const auto text = [](const char *context, const char *source) {
            return QCoreApplication::translate(context, source);
        };
        const auto toolkit = [] { return QDialogButtonBox(QDialogButtonBox::Cancel).buttons().first()->text(); };
        // The toolkit's answer last, and the guidance has no other but the standard one.
        const auto translators = [] { return qApp->findChildren<QTranslator *>(); };
        installTranslators(*qApp, QString());
        QVERIFY(!InterfaceTranslator::instance());
        QCOMPARE(toolkit(), QStringLiteral("キャンセル"));
        QCOMPARE(translators().last()->translate("main", "&File"), QStringLiteral("ファイル(&F)"));
        qDeleteAll(translators());
        installTranslators(*qApp, QStringLiteral("ja"));
        QVERIFY(translators().last() == InterfaceTranslator::instance());
        QVERIFY(!translators().at(translators().size() - 2)->translate("main", "&File").isEmpty());
        QCOMPARE(toolkit(), QStringLiteral("キャンセル"));
        QCOMPARE(text("main", "&File"), QStringLiteral("ファイル(&F)"));
        for (const char *name : { "fr", "", "EN", "en_US" })
            QCOMPARE(InterfaceTranslator::languageOf(QLatin1String(name)),
                     QByteArray(name).startsWith("en") ? QStringLiteral("en") : QString());
        InterfaceTranslator::instance()->setLanguage(QStringLiteral("en"));
        QCOMPARE(toolkit(), QStringLiteral("Cancel"));

        // What a writer's files and the host editor bring comes first among the others only.
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("tutorial-win/translations")));
        QDir::setCurrent(folder.path());
        QVERIFY(QFile::copy(QFINDTESTDATA("../../translations/ja_JP.ts"),
                            QStringLiteral("tutorial-win/translations/ja_JP.ts")));
        TreeDataTemplate<TutorialItemData> document;
        TutorialTranslation translation(true, qApp, document);
        const auto hint = [&translation] { return translation.translate(QStringLiteral("#2")); };
        const auto words = [&translation] {
            return translation.applyTranslation(QStringLiteral("main"), QStringLiteral("&File"));
        };
        translation.beginLoad(QStringLiteral("TutorialSideViewStep0"));
        QVERIFY(hint().startsWith(QStringLiteral("ようこそ")));
        for (const char *locale : { "ja_JP", "en_US" }) {
            translation.installTranslator(QLatin1String(locale));
            QCOMPARE(text("main", "&File"), QStringLiteral("&File"));
            QVERIFY(hint().startsWith(QStringLiteral("ようこそ")));
            // A script may name any context.
            QCOMPARE(words(), QStringLiteral("ファイル(&F)"));
            QCOMPARE(text("TutorialIndicator", "Next"), QStringLiteral("次へ"));
            QCOMPARE(text("TutorialList", "Side-view"), QStringLiteral("サイドビュー"));
        }
        InterfaceTranslator::instance()->setLanguage(QStringLiteral("ja"));
        QCOMPARE(text("main", "&File"), QStringLiteral("ファイル(&F)"));
        QCOMPARE(toolkit(), QStringLiteral("キャンセル"));
        QDir::setCurrent(QDir::rootPath());
    }
    void pagesTellWhatIsThere()
    {
        const QString root = QFileInfo(QFINDTESTDATA("../../translations/ja_JP.ts")).path() + QLatin1String("/../");
        const auto textOf = [&root](const QString &folder, const QStringList &names) {
            QString text;
            QDirIterator files(root + folder, names, QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext())
                text += QString::fromUtf8(readAll(files.next()));
            return text;
        };
        const auto foundIn = [](const QString &text, const char *pattern) {
            QStringList found;
            auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
            while (matches.hasNext())
                found.append(matches.next().captured(1));
            return found;
        };
        // The writer's guide has the texts of the screens in bold, and keys as keys.
        QDomDocument document;
        QVERIFY(document.setContent(readAll(root + QLatin1String("translations/interface_en.ts"))));
        const QDomNodeList messages = document.elementsByTagName(QStringLiteral("translation"));
        QStringList texts;
        for (int i = 0; i < messages.count(); ++i)
            texts.append(messages.at(i).toElement().text().remove(QLatin1Char('&')));
        const QString guide = QString::fromUtf8(readAll(root + QLatin1String("docs/writing-tutorials.md")));
        const QStringList told = foundIn(guide, "\\*\\*([^*]+)\\*\\*");
        QVERIFY(told.size() > 20);
        for (const QString &text : told)
            QVERIFY2(texts.contains(text), qPrintable(text));
        const QString screens = textOf(QStringLiteral("qml"), { QStringLiteral("*.qml") });
        QStringList keys = foundIn(screens, "\\b(?:shortcut|sequence): \"([^\"]+)\"")
            + foundIn(screens, "Qt\\.Key_(\\w+)") + foundIn(texts.join(QLatin1Char(' ')), "(Ctrl\\+\\w+)");
        const QMetaEnum standardKeys = QMetaEnum::fromType<QKeySequence::StandardKey>();
        for (const QString &name : foundIn(screens, "StandardKey\\.(\\w+)")) {
            const auto key = QKeySequence::StandardKey(standardKeys.keyToValue(name.toLatin1().constData()));
            keys += QKeySequence::listToString(QKeySequence::keyBindings(key), QKeySequence::PortableText)
                        .split(QStringLiteral("; "));
        }
        for (const QString &key : foundIn(guide, "<kbd>([^<]+)</kbd>"))
            QVERIFY2(keys.contains(key), qPrintable(key));

        // A picture that no command draws gets old.
        const QString scripts = textOf(QStringLiteral("scripts"), { QStringLiteral("*") })
            + QString::fromUtf8(readAll(root + QLatin1String("run")));
        QSet<QString> shown;
        for (const char *page : { "README.md", "CONTRIBUTING.md", "docs/writing-tutorials.md" }) {
            const QString text = QString::fromUtf8(readAll(root + QLatin1String(page)));
            const QStringList pictures = foundIn(text, "\\]\\(([^)]+\\.(?:png|gif|webp))\\)")
                + foundIn(text, "src=\"([^\"]+\\.(?:png|gif|webp))\"");
            for (const QString &picture : pictures) {
                const QFileInfo file(QFileInfo(root + QLatin1String(page)).dir(), picture);
                QVERIFY2(file.exists(), qPrintable(picture));
                QVERIFY2(scripts.contains(file.fileName()), qPrintable(picture));
                shown.insert(file.fileName());
            }
        }
        for (const QString &picture : QDir(root + QLatin1String("docs")).entryList({ QStringLiteral("*.png") }))
            QVERIFY2(shown.contains(picture), qPrintable(picture));
    }
};

QTEST_MAIN(tst_Catalogs)
#include "tst_Catalogs.moc"

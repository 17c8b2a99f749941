#include "Tutorial/translation/HintExchange.h"

#include "tool/DataSupport.h"
#include "Tutorial/translation/Lconvert.h"
#include "Tutorial/translation/StaleHints.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/translation/TranslationXml.h"
#include "Tutorial/translation/XliffText.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QLocale>
#include <QTemporaryDir>

namespace
{
const QString kMessage = QStringLiteral("message");
const QString kTranslation = QStringLiteral("translation");
const QString kType = QStringLiteral("type");
const QString kComment = QStringLiteral("comment");

QString message(const char *text)
{
    return QCoreApplication::translate("TutorialManager", text);
}

QString markOf(const QString &translation)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(HintExchange::cleaned(translation).toUtf8(), QCryptographicHash::Sha1)
            .toHex()
            .left(8));
}

QDomElement append(QDomNode parent, const QString &name, const QString &text = QString())
{
    QDomElement element = parent.ownerDocument().createElement(name);
    TranslationXml::setText(element, HintExchange::cleaned(text));
    parent.appendChild(element);
    return element;
}

/// As a translation source, but with the first hints in place of their keys.
QDomDocument documentOf(const HintExchange::Header &header, const QVector<HintExchange::Entry> &entries)
{
    QDomDocument document = TranslationSource::emptyDocument(header.locale);
    QDomElement root = document.documentElement();
    root.setAttribute(QStringLiteral("sourcelanguage"), header.sourceLocale);
    QDomElement context = append(root, QStringLiteral("context"));
    append(context, QStringLiteral("name"), header.context);
    for (const HintExchange::Entry &entry : entries) {
        const QString key = StaleHints::key(entry.id);
        QDomElement element = append(context, kMessage);
        element.setAttribute(QStringLiteral("id"), key);
        append(element, QStringLiteral("source"), entry.source);
        append(element, kComment, key + QLatin1Char(' ') + markOf(entry.translation));
        append(element, QStringLiteral("extracomment"), entry.name);
        QDomElement translation = append(element, kTranslation, entry.translation);
        if (!entry.finished)
            translation.setAttribute(kType, QStringLiteral("unfinished"));
    }
    return document;
}

/// The number in a key, which may have more after it; -1 without one.
int idOf(const QString &key)
{
    bool ok = false;
    const int id = key.mid(1).section(QLatin1Char(' '), 0, 0).toInt(&ok);
    return ok && key.startsWith(QLatin1Char('#')) ? id : -1;
}

HintExchange::Entry entryOf(const QDomElement &element)
{
    HintExchange::Entry entry;
    const QString comment = TranslationXml::textOf(element.firstChildElement(kComment));
    entry.id = idOf(comment);
    if (entry.id >= 0)
        entry.mark = comment.section(QLatin1Char(' '), 1, 1);
    else // Some tools keep the one, some the other.
        entry.id = idOf(element.attribute(QStringLiteral("id")));
    const QDomElement translation = element.firstChildElement(kTranslation);
    entry.source = HintExchange::cleaned(TranslationXml::textOf(element.firstChildElement(QStringLiteral("source"))));
    entry.translation = HintExchange::cleaned(TranslationXml::textOf(translation));
    entry.finished = !translation.hasAttribute(kType);
    // Tools begin with the source where there is no target.
    if (!entry.finished && entry.translation == entry.source)
        entry.translation.clear();
    return entry;
}

bool isOfLanguage(const QString &name, const QString &locale)
{
    // A tool may drop the country.
    return name.isEmpty() || QLocale(name).language() == QLocale(locale).language();
}
} // namespace

QString HintExchange::cleaned(const QString &text)
{
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    // What XML can't hold stands in elements of their own, without text.
    QDomDocument document;
    QDomElement element = document.createElement(kTranslation);
    TranslationXml::setText(element, lines);
    return element.text();
}

bool HintExchange::isAsWritten(const Entry &entry, const QString &translation)
{
    return entry.mark == markOf(translation);
}

QString HintExchange::write(const QString &path, const Header &header, const QVector<Entry> &entries)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("hints.ts"));
    const QString converted = folder.filePath(QStringLiteral("hints.xlf"));
    QByteArray bytes;
    if (!folder.isValid() || !DataSupport::writeFile(source, documentOf(header, entries).toByteArray(4)))
        return message(QT_TRANSLATE_NOOP("TutorialManager", "Failed to write %1.")).arg(folder.path());
    QString error = Lconvert::convert(source, QStringLiteral("ts"), converted, QStringLiteral("xlf"));
    if (!error.isEmpty())
        return error;
    if (!DataSupport::readFile(converted, bytes) || !DataSupport::writeFile(path, bytes))
        return message("Failed to write %1.").arg(path);
    return QString();
}

QString HintExchange::read(const QString &path, const Header &header, QVector<Entry> &entries)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("hints.xlf"));
    const QString converted = folder.filePath(QStringLiteral("hints.ts"));
    QByteArray bytes;
    if (!DataSupport::readFile(path, bytes))
        return message(QT_TRANSLATE_NOOP("TutorialManager", "Failed to read %1.")).arg(path);
    QByteArray simplified;
    QString error = XliffText::simplify(bytes, simplified);
    if (!error.isEmpty())
        return message("The file can't be read as XLIFF.") + QLatin1Char('\n') + error;
    if (!folder.isValid() || !DataSupport::writeFile(copy, simplified))
        return message("Failed to write %1.").arg(folder.path());
    error = Lconvert::convert(copy, QStringLiteral("xlf"), converted, QStringLiteral("ts"));
    if (!error.isEmpty())
        return error;
    QDomDocument document;
    if (!DataSupport::readFile(converted, bytes) || !TranslationXml::parse(bytes, document))
        return message("Failed to read %1.").arg(path);
    const QDomElement root = document.documentElement();
    const QString language = root.attribute(QStringLiteral("language"));
    const QString sourceLanguage = root.attribute(QStringLiteral("sourcelanguage"));
    if (!isOfLanguage(language, header.locale) || !isOfLanguage(sourceLanguage, header.sourceLocale)) {
        return message(QT_TRANSLATE_NOOP("TutorialManager", "The file is a translation from %1 to %2."))
            .arg(sourceLanguage, language);
    }
    for (QDomElement context = root.firstChildElement(QStringLiteral("context")); !context.isNull();
         context = context.nextSiblingElement(QStringLiteral("context"))) {
        if (TranslationXml::textOf(context.firstChildElement(QStringLiteral("name"))) != cleaned(header.context))
            continue;
        for (QDomElement element = context.firstChildElement(kMessage); !element.isNull();
             element = element.nextSiblingElement(kMessage))
            entries.append(entryOf(element));
    }
    if (!entries.isEmpty())
        return QString();
    return message(QT_TRANSLATE_NOOP("TutorialManager", "The file holds no hint of this tutorial."));
}

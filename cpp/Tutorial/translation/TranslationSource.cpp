#include "Tutorial/translation/TranslationSource.h"

#include "Tutorial/translation/TranslationXml.h"

namespace
{
using TranslationXml::setText;
using TranslationXml::textOf;

const QString kContext = QStringLiteral("context");
const QString kName = QStringLiteral("name");
const QString kMessage = QStringLiteral("message");
const QString kSource = QStringLiteral("source");
const QString kTranslation = QStringLiteral("translation");
const QString kType = QStringLiteral("type");
const QString kUnfinished = QStringLiteral("unfinished");

bool isPlainMessage(const QDomElement &message)
{
    return message.firstChildElement(QStringLiteral("comment")).isNull()
        && message.attribute(QStringLiteral("numerus")) != QLatin1String("yes");
}

bool isInForce(const QDomElement &translation)
{
    if (translation.isNull())
        return false;
    const QString type = translation.attribute(kType);
    if (type == QLatin1String("obsolete") || type == QLatin1String("vanished"))
        return false;
    return type != kUnfinished || translation.hasChildNodes();
}

bool isStale(const QDomElement &translation)
{
    return translation.attribute(kType) == kUnfinished && !textOf(translation).isEmpty();
}

QDomElement appendElement(QDomNode parent, const QString &name, const QString &text)
{
    QDomElement element = parent.ownerDocument().createElement(name);
    setText(element, text);
    parent.appendChild(element);
    return element;
}

/// All contexts of that name, which may be several.
QVector<QDomElement> findContexts(const QDomDocument &document, const QString &name)
{
    QVector<QDomElement> contexts;
    const QDomElement root = document.documentElement();
    for (QDomElement context = root.firstChildElement(kContext); !context.isNull();
         context = context.nextSiblingElement(kContext)) {
        if (textOf(context.firstChildElement(kName)) == name)
            contexts.append(context);
    }
    return contexts;
}

/// The message by source text that a lookup answers from: the last one in force, and the first one
/// where none is.
QHash<QString, QDomElement> findMessages(const QVector<QDomElement> &contexts)
{
    QHash<QString, QDomElement> messageBySource;
    for (const QDomElement &context : contexts) {
        for (QDomElement message = context.firstChildElement(kMessage); !message.isNull();
             message = message.nextSiblingElement(kMessage)) {
            if (!isPlainMessage(message))
                continue;
            const QString source = textOf(message.firstChildElement(kSource));
            if (!messageBySource.contains(source) || isInForce(message.firstChildElement(kTranslation)))
                messageBySource.insert(source, message);
        }
    }
    return messageBySource;
}

void setTranslation(QDomElement &message, const QString &text)
{
    QDomElement translation = message.firstChildElement(kTranslation);
    if (translation.isNull()) {
        appendElement(message, kTranslation, text);
        return;
    }
    translation.removeAttribute(kType);
    setText(translation, text);
}
} // namespace

QHash<QString, TranslationSource::Messages> TranslationSource::readMessages(const QDomDocument &document)
{
    QHash<QString, Messages> contexts;
    const QDomElement root = document.documentElement();
    for (QDomElement context = root.firstChildElement(kContext); !context.isNull();
         context = context.nextSiblingElement(kContext)) {
        Messages &messages = contexts[textOf(context.firstChildElement(kName))];
        for (QDomElement message = context.firstChildElement(kMessage); !message.isNull();
             message = message.nextSiblingElement(kMessage)) {
            const QDomElement translation = message.firstChildElement(kTranslation);
            if (isPlainMessage(message) && isInForce(translation))
                messages.insert(textOf(message.firstChildElement(kSource)), textOf(translation));
        }
    }
    return contexts;
}

QHash<QString, int> TranslationSource::readLines(const QDomDocument &document, const QString &context)
{
    QHash<QString, int> lines;
    const QHash<QString, QDomElement> messages = findMessages(findContexts(document, context));
    for (auto message = messages.cbegin(); message != messages.cend(); ++message)
        lines.insert(message.key(), message.value().lineNumber());
    return lines;
}

void TranslationSource::writeMessages(QDomDocument &document, const QString &context, const QVector<Entry> &entries)
{
    QVector<QDomElement> contexts = findContexts(document, context);
    QHash<QString, QDomElement> messageBySource = findMessages(contexts);
    for (const Entry &entry : entries) {
        auto found = messageBySource.find(entry.source);
        if (found == messageBySource.end()) {
            if (entry.translation == entry.source)
                continue;
            if (contexts.isEmpty()) {
                contexts.append(appendElement(document.documentElement(), kContext, QString()));
                appendElement(contexts.last(), kName, context);
            }
            QDomElement message = appendElement(contexts.last(), kMessage, QString());
            appendElement(message, kSource, entry.source);
            appendElement(message, kTranslation, entry.translation);
            messageBySource.insert(entry.source, message);
            continue;
        }
        const QDomElement translation = found->firstChildElement(kTranslation);
        if ((isInForce(translation) ? textOf(translation) : entry.source) != entry.translation)
            setTranslation(*found, entry.translation);
    }
}

QSet<QString> TranslationSource::staleSources(const QDomDocument &document, const QString &context)
{
    QSet<QString> sources;
    for (const QDomElement &element : findContexts(document, context)) {
        for (QDomElement message = element.firstChildElement(kMessage); !message.isNull();
             message = message.nextSiblingElement(kMessage)) {
            const QDomElement translation = message.firstChildElement(kTranslation);
            const bool stale = isStale(translation);
            // Mostly there is nothing to look at any closer.
            if ((!stale && sources.isEmpty()) || !isPlainMessage(message) || !isInForce(translation))
                continue;
            const QString source = textOf(message.firstChildElement(kSource));
            // The last one counts.
            if (stale)
                sources.insert(source);
            else
                sources.remove(source);
        }
    }
    return sources;
}

void TranslationSource::markStale(QDomDocument &document, const QString &context,
                                  const QHash<QString, bool> &staleBySource)
{
    const QSet<QString> former = staleSources(document, context);
    QStringList sources;
    for (auto stale = staleBySource.cbegin(); stale != staleBySource.cend(); ++stale) {
        if (former.contains(stale.key()) != *stale)
            sources.append(stale.key());
    }
    if (sources.isEmpty())
        return;
    const QHash<QString, QDomElement> messageBySource = findMessages(findContexts(document, context));
    for (const QString &source : qAsConst(sources)) {
        QDomElement translation = messageBySource.value(source).firstChildElement(kTranslation);
        if (!isInForce(translation))
            continue;
        if (staleBySource.value(source))
            translation.setAttribute(kType, kUnfinished);
        else
            translation.removeAttribute(kType);
    }
}

QDomDocument TranslationSource::emptyDocument(const QString &language)
{
    QDomDocument document(QStringLiteral("TS"));
    document.appendChild(
        document.createProcessingInstruction(QStringLiteral("xml"), QStringLiteral("version='1.0' encoding='utf-8'")));
    QDomElement root = document.createElement(QStringLiteral("TS"));
    root.setAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    root.setAttribute(QStringLiteral("language"), language);
    document.appendChild(root);
    return document;
}

#include "Tutorial/TranslationSource.h"

namespace
{
const QString kContext = QStringLiteral("context");
const QString kName = QStringLiteral("name");
const QString kMessage = QStringLiteral("message");
const QString kSource = QStringLiteral("source");
const QString kTranslation = QStringLiteral("translation");
const QString kByte = QStringLiteral("byte");
const QString kValue = QStringLiteral("value");
const QString kType = QStringLiteral("type");

/// Text that holds "byte" elements for what XML can't.
QString textOf(const QDomElement &element)
{
    QString text;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isText()) {
            text += node.nodeValue();
        } else if (node.nodeName() == kByte) {
            const QString value = node.toElement().attribute(kValue);
            const bool hexadecimal = value.startsWith(QLatin1Char('x'));
            text += QChar(hexadecimal ? value.midRef(1).toUShort(nullptr, 16) : value.toUShort());
        }
    }
    return text;
}

bool isBlank(QChar character)
{
    return character == QLatin1Char(' ') || character == QLatin1Char('\t') || character == QLatin1Char('\n')
        || character == QLatin1Char('\r');
}

/// XML 1.0 has no way to write these, and reads a carriage return as a line feed.
bool needsByteElement(QChar character)
{
    const ushort code = character.unicode();
    return (code < 0x20 && code != '\t' && code != '\n') || code == 0xfffe || code == 0xffff;
}

void appendByteElement(QDomElement &element, QChar character)
{
    QDomElement byte = element.ownerDocument().createElement(kByte);
    byte.setAttribute(kValue, QLatin1Char('x') + QString::number(character.unicode(), 16));
    element.appendChild(byte);
}

void appendText(QDomElement &element, const QString &text)
{
    element.appendChild(element.ownerDocument().createTextNode(text));
}

void setText(QDomElement &element, const QString &text)
{
    while (element.hasChildNodes())
        element.removeChild(element.firstChild());
    // A stretch of blanks alone is lost when the document is read again.
    int start = 0;
    while (start < text.size()) {
        int end = start;
        bool onlyBlanks = true;
        while (end < text.size() && !needsByteElement(text.at(end))) {
            onlyBlanks = onlyBlanks && isBlank(text.at(end));
            ++end;
        }
        if (onlyBlanks) {
            for (; start < end; ++start)
                appendByteElement(element, text.at(start));
        } else {
            appendText(element, text.mid(start, end - start));
        }
        if (end < text.size())
            appendByteElement(element, text.at(end));
        start = end + 1;
    }
    // Between two texts nothing is written but they: without a text at each end, the writer would
    // put an indent round the elements, and that would count as text.
    if (element.lastChild().nodeName() == kByte)
        appendText(element, QString());
    if (element.firstChild().nodeName() == kByte)
        element.insertBefore(element.ownerDocument().createTextNode(QString()), element.firstChild());
}

bool isPlainMessage(const QDomElement &message)
{
    return message.firstChildElement(QStringLiteral("comment")).isNull()
        && message.attribute(QStringLiteral("numerus")) != QLatin1String("yes");
}

bool isInForce(const QDomElement &translation)
{
    const QString type = translation.attribute(kType);
    if (type == QLatin1String("obsolete") || type == QLatin1String("vanished"))
        return false;
    return type != QLatin1String("unfinished") || translation.hasChildNodes();
}

QDomElement appendElement(QDomNode parent, const QString &name, const QString &text)
{
    QDomElement element = parent.ownerDocument().createElement(name);
    setText(element, text);
    parent.appendChild(element);
    return element;
}

QDomElement findOrAddContext(QDomDocument &document, const QString &name)
{
    QDomElement root = document.documentElement();
    for (QDomElement context = root.firstChildElement(kContext); !context.isNull();
         context = context.nextSiblingElement(kContext)) {
        if (textOf(context.firstChildElement(kName)) == name)
            return context;
    }
    QDomElement context = document.createElement(kContext);
    appendElement(context, kName, name);
    root.appendChild(context);
    return context;
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
            if (isPlainMessage(message) && !translation.isNull() && isInForce(translation))
                messages.insert(textOf(message.firstChildElement(kSource)), textOf(translation));
        }
    }
    return contexts;
}

void TranslationSource::writeMessages(QDomDocument &document, const QString &context, const QVector<Entry> &entries)
{
    QDomElement contextElement = findOrAddContext(document, context);
    QHash<QString, QDomElement> messageBySource;
    for (QDomElement message = contextElement.firstChildElement(kMessage); !message.isNull();
         message = message.nextSiblingElement(kMessage)) {
        if (isPlainMessage(message))
            messageBySource.insert(textOf(message.firstChildElement(kSource)), message);
    }
    for (const Entry &entry : entries) {
        auto found = messageBySource.find(entry.source);
        if (found == messageBySource.end()) {
            if (entry.translation == entry.source)
                continue;
            QDomElement message = document.createElement(kMessage);
            appendElement(message, kSource, entry.source);
            appendElement(message, kTranslation, entry.translation);
            contextElement.appendChild(message);
            messageBySource.insert(entry.source, message);
            continue;
        }
        const QDomElement translation = found->firstChildElement(kTranslation);
        const bool inForce = !translation.isNull() && isInForce(translation);
        if ((inForce ? textOf(translation) : entry.source) != entry.translation)
            setTranslation(*found, entry.translation);
    }
}

QDomDocument TranslationSource::emptyDocument(const QString &language)
{
    QDomDocument document(QStringLiteral("TS"));
    document.appendChild(document.createProcessingInstruction(QStringLiteral("xml"),
                                                              QStringLiteral("version=\"1.0\" encoding=\"utf-8\"")));
    QDomElement root = document.createElement(QStringLiteral("TS"));
    root.setAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    root.setAttribute(QStringLiteral("language"), language);
    document.appendChild(root);
    return document;
}

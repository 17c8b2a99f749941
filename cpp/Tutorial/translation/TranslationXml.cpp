#include "Tutorial/translation/TranslationXml.h"

#include "tool/DataSupport.h"

#include <QRegularExpression>
#include <QStringList>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <algorithm>

namespace
{
const QString kByte = QStringLiteral("byte");
const QString kValue = QStringLiteral("value");

// A document is walked, written and freed by recursion. A translation source needs seven.
constexpr int kMaximumDepth = 100;

/// XML 1.0 has no way to write these, and reads a carriage return as a line feed.
bool needsByteElement(const QString &text, int position)
{
    const QChar character = text.at(position);
    if (character.isHighSurrogate())
        return position + 1 >= text.size() || !text.at(position + 1).isLowSurrogate();
    if (character.isLowSurrogate())
        return position == 0 || !text.at(position - 1).isHighSurrogate();
    const ushort code = character.unicode();
    return (code < 0x20 && code != '\t' && code != '\n') || code == 0xfffe || code == 0xffff;
}

/// The writer puts an indent round what has no text beside it, and the indent would count as text. So a node among
/// texts stands between two, which may be empty.
void keepInLine(const QDomNode &node)
{
    QDomNode parent = node.parentNode();
    const auto emptyText = [&node] { return node.ownerDocument().createTextNode(QString()); };
    if (!node.previousSibling().isText())
        parent.insertBefore(emptyText(), node);
    if (!node.nextSibling().isText())
        parent.insertAfter(emptyText(), node);
}

void appendByteElement(QDomElement &element, QChar character)
{
    QDomElement byte = element.ownerDocument().createElement(kByte);
    byte.setAttribute(kValue, QLatin1Char('x') + QString::number(character.unicode(), 16));
    element.appendChild(byte);
    keepInLine(byte);
}

bool isBlank(const QDomNode &node)
{
    const QString text = node.nodeValue();
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80 && c.isSpace(); });
}

/// Blanks between elements are the layout of the file, which the writer makes anew. All others are text.
void tellLayoutFromText(QDomNode parent)
{
    static const QStringList structure = { QStringLiteral("TS"), QStringLiteral("context"), QStringLiteral("message") };
    bool holdsElements = parent.isDocument() || structure.contains(parent.nodeName());
    bool holdsText = false;
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        holdsElements = holdsElements || (node.isElement() && node.nodeName() != kByte);
        holdsText = holdsText || (node.isText() && !isBlank(node));
        tellLayoutFromText(node);
    }
    const bool isLayout = holdsElements && !holdsText;
    QDomNode next;
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = next) {
        next = node.nextSibling();
        // The writer ends the line after an instruction, wherever that stands. And round the root element the reader
        // lets an entity pass that it refuses the next time.
        const bool isLost = isLayout ? node.isText() || (parent.isDocument() && node.isEntityReference())
                                     : node.isProcessingInstruction();
        if (isLost)
            parent.removeChild(node);
        else if (!isLayout && !node.isText())
            keepInLine(node);
    }
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
/// Refuses elements that stand too deep in each other.
class DepthGuard : public QXmlDefaultHandler
{
public:
    bool startElement(const QString &, const QString &, const QString &, const QXmlAttributes &) override
    {
        return ++mDepth <= kMaximumDepth;
    }
    bool endElement(const QString &, const QString &, const QString &) override
    {
        --mDepth;
        return true;
    }

private:
    int mDepth = 0;
};

/// The usual way to parse a document drops each text of blanks alone. This older one can keep it.
bool parseWithBlanks(const QByteArray &bytes, QDomDocument &document)
{
    QXmlSimpleReader reader;
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setFeature(QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"), true);
    QXmlInputSource source;
    source.setData(bytes);
    QString text = source.data();
    // What is read in part only must not be written back.
    if (DataSupport::isDamaged(text, bytes))
        return false;
    // It leaves this to its caller, too.
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    source.setData(text);
    DepthGuard guard;
    reader.setContentHandler(&guard);
    if (!reader.parse(source))
        return false;
    source.reset();
    return document.setContent(&source, &reader);
}
QT_WARNING_POP

/// The writer writes UTF-8, whatever the file was in. And it writes the declaration as it was read, though the reader
/// takes one from which nothing could be read again.
void declareUtf8(QDomDocument document)
{
    static const QRegularExpression sound(
        QStringLiteral("^version='1\\.[0-9]' encoding='utf-8'( standalone='(yes|no)')?$"),
        QRegularExpression::CaseInsensitiveOption);
    const QString utf8 = QStringLiteral("version='1.0' encoding='utf-8'");
    const QString xml = QStringLiteral("xml");
    QDomProcessingInstruction first = document.firstChild().toProcessingInstruction();
    if (first.target() == xml) {
        if (!sound.match(first.data()).hasMatch())
            first.setData(utf8);
    } else if (first.target().startsWith(xml)) {
        // The reader would look for the encoding in all that begins so.
        document.insertBefore(document.createProcessingInstruction(xml, utf8), first);
    }
}

void appendText(QDomElement &element, const QString &text)
{
    element.appendChild(element.ownerDocument().createTextNode(text));
}
} // namespace

bool TranslationXml::parse(const QByteArray &bytes, QDomDocument &document)
{
    QDomDocument parsed;
    if (!parseWithBlanks(bytes, parsed))
        return false;
    tellLayoutFromText(parsed);
    declareUtf8(parsed);
    document = parsed;
    return true;
}

QString TranslationXml::textOf(const QDomElement &element)
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

void TranslationXml::setText(QDomElement &element, const QString &text)
{
    while (element.hasChildNodes())
        element.removeChild(element.firstChild());
    int start = 0;
    while (start < text.size()) {
        int end = start;
        while (end < text.size() && !needsByteElement(text, end))
            ++end;
        if (end > start)
            appendText(element, text.mid(start, end - start));
        if (end < text.size())
            appendByteElement(element, text.at(end));
        start = end + 1;
    }
}

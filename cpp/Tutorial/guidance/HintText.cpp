#include "Tutorial/guidance/HintText.h"

#include <QImage>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{
const int kMostCharacters = 16384;

// Each tag costs the parser hundreds of bytes.
const int kMostTags = 16384;

// The layout of a table takes twice as long with each table round it.
const int kMostTableCost = 1024;

/// A text from elsewhere: it may bring pictures with it, and must not reach for anything on the disk or the network.
class ClosedDocument : public QTextDocument
{
public:
    explicit ClosedDocument(QObject *parent = nullptr) : QTextDocument(parent) { }

    /// Whether the text that was set names something that would have to be loaded.
    bool wouldLoad() const
    {
        const QVector<QTextFormat> formats = allFormats();
        return mIsAsked || std::any_of(formats.begin(), formats.end(), [](const QTextFormat &format) {
                   return format.isImageFormat() || format.hasProperty(QTextFormat::BackgroundImageUrl);
               });
    }

protected:
    QVariant loadResource(int type, const QUrl &name) override
    {
        mIsAsked = true;
        if (type != ImageResource)
            return QVariant();
        QImage picture;
        if (name.scheme() == QLatin1String("data"))
            picture.loadFromData(QTextDocument::loadResource(type, name).toByteArray());
        if (picture.isNull()) {
            // Without any the toolkit would take the name for that of a file.
            picture = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::transparent);
        }
        return picture;
    }

private:
    bool mIsAsked = false;
};

/// The source up to the tag that is one too many.
QString parsedPart(const QString &source)
{
    int tags = 0;
    for (int i = 0; i < source.size(); ++i) {
        if (source.at(i) == QLatin1Char('<') && ++tags > kMostTags)
            return source.left(i);
    }
    return source;
}

bool isLength(const QVariant &value)
{
    // More than any window has room for.
    constexpr double kMostPixels = 4096;
    // Flags are among the whole numbers.
    constexpr int kMostCount = 32768;
    switch (value.userType()) {
    case QMetaType::Int:
        return qAbs(value.toLongLong()) <= kMostCount;
    case QMetaType::Float:
    case QMetaType::Double:
        return std::abs(value.toDouble()) <= kMostPixels;
    case QMetaType::QTextLength:
        return std::abs(qvariant_cast<QTextLength>(value).value(100)) <= kMostPixels;
    default:
        break;
    }
    const auto lengths = value.value<QVector<QTextLength>>();
    return std::all_of(lengths.begin(), lengths.end(), [](const QTextLength &length) { return isLength(length); });
}

/// Lengths that are too large for the numbers of the layout can keep it going without end.
bool areLengthsSound(const QTextDocument &document)
{
    const QVector<QTextFormat> formats = document.allFormats();
    return std::all_of(formats.begin(), formats.end(), [](const QTextFormat &format) {
        const QMap<int, QVariant> properties = format.properties();
        return std::all_of(properties.begin(), properties.end(), isLength);
    });
}

bool areTablesCheap(const QTextDocument &document)
{
    int cost = 0;
    QVector<std::pair<QTextFrame *, int>> frames{ { document.rootFrame(), 1 } };
    while (!frames.isEmpty()) {
        const auto [frame, frameCost] = frames.takeLast();
        const bool isTable = qobject_cast<QTextTable *>(frame);
        const int childCost = isTable ? frameCost * 2 : frameCost;
        if (isTable)
            cost += childCost;
        if (cost > kMostTableCost)
            return false;
        const QList<QTextFrame *> children = frame->childFrames();
        for (QTextFrame *child : children)
            frames.append({ child, childCost });
    }
    return true;
}

/// Whether the shape of the text keeps the layout from coming to its end.
bool isHostile(const QTextDocument &document)
{
    return !areLengthsSound(document) || !areTablesCheap(document);
}
} // namespace

namespace HintText
{
QString visiblePart(const QString &text)
{
    if (text.size() <= kMostCharacters)
        return text;
    const bool cutsPair = text.at(kMostCharacters - 1).isHighSurrogate();
    return text.left(cutsPair ? kMostCharacters - 1 : kMostCharacters);
}

void showIn(QTextEdit *textEdit, const QString &text)
{
    if (!dynamic_cast<ClosedDocument *>(textEdit->document()))
        textEdit->setDocument(new ClosedDocument(textEdit));
    if (!Qt::mightBeRichText(text)) {
        textEdit->setPlainText(visiblePart(text));
        return;
    }
    // A document that nobody shows is parsed, but not laid out.
    const QString parsed = parsedPart(text);
    ClosedDocument document;
    document.setHtml(parsed);
    if (document.characterCount() <= kMostCharacters && !isHostile(document))
        textEdit->setHtml(parsed);
    else
        textEdit->setPlainText(visiblePart(document.toPlainText()));
}

QString withoutLoading(const QString &richText)
{
    if (!richText.contains(QLatin1Char('<')))
        return richText;
    ClosedDocument document;
    document.setHtml(richText);
    return document.wouldLoad() || isHostile(document) ? toRichText(document.toPlainText()) : richText;
}

QString toRichText(const QString &text)
{
    QString richText = text.toHtmlEscaped();
    richText.replace(QLatin1Char('\\'), QLatin1String("<tt>&#x5c;</tt>"));
    richText.replace(QLatin1Char('\n'), QLatin1String("<br />"));
    return richText;
}
} // namespace HintText

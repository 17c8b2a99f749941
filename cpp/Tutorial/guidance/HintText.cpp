#include "Tutorial/guidance/HintText.h"

#include <QTextDocument>
#include <QTextEdit>
#include <QTextTable>

#include <utility>

namespace
{
const int kMostCharacters = 16384;

// Each tag costs the parser hundreds of bytes.
const int kMostTags = 16384;

// The layout of a table takes twice as long with each table round it.
const int kMostTableCost = 1024;

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
    if (!Qt::mightBeRichText(text)) {
        textEdit->setPlainText(visiblePart(text));
        return;
    }
    // A document that nobody shows is parsed, but not laid out.
    const QString parsed = parsedPart(text);
    QTextDocument document;
    document.setHtml(parsed);
    if (document.characterCount() <= kMostCharacters && areTablesCheap(document))
        textEdit->setHtml(parsed);
    else
        textEdit->setPlainText(visiblePart(document.toPlainText()));
}

QString toRichText(const QString &text)
{
    QString richText = text.toHtmlEscaped();
    richText.replace(QLatin1Char('\\'), QLatin1String("<tt>&#x5c;</tt>"));
    richText.replace(QLatin1Char('\n'), QLatin1String("<br />"));
    return richText;
}
} // namespace HintText

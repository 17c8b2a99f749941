#include "Tutorial/HintText.h"

#include <QTextEdit>

namespace
{
// The larger window has room for some thirty lines of at most a hundred of the narrowest letters.
const int kLongestText = 4096;

// The layout of tables in tables takes four times as long with each two levels.
const int kMostTables = 8;
} // namespace

namespace HintText
{
QString visiblePart(const QString &text)
{
    if (text.size() <= kLongestText)
        return text;
    const bool cutsPair = text.at(kLongestText - 1).isHighSurrogate();
    return text.left(cutsPair ? kLongestText - 1 : kLongestText);
}

void showIn(QTextEdit *textEdit, const QString &text)
{
    const QString visible = visiblePart(text);
    if (visible.count(QStringLiteral("<table"), Qt::CaseInsensitive) > kMostTables)
        textEdit->setPlainText(visible);
    else
        textEdit->setText(visible);
}

QString toRichText(const QString &text)
{
    QString richText = text.toHtmlEscaped();
    richText.replace(QLatin1Char('\\'), QLatin1String("<tt>&#x5c;</tt>"));
    richText.replace(QLatin1Char('\n'), QLatin1String("<br />"));
    return richText;
}
} // namespace HintText

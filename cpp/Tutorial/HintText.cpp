#include "Tutorial/HintText.h"

namespace
{
// A window has room for some thirty lines of at most a hundred of the narrowest letters.
const int kLongestText = 16384;
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

QString toRichText(const QString &text)
{
    QString richText = text.toHtmlEscaped();
    richText.replace(QLatin1Char('\\'), QLatin1String("<tt>&#x5c;</tt>"));
    richText.replace(QLatin1Char('\n'), QLatin1String("<br />"));
    return richText;
}
} // namespace HintText

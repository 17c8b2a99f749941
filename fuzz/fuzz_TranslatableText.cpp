// Script text with translation calls.

#include "FuzzTarget.h"
#include "Tutorial/translation/TranslatableText.h"

using FuzzTarget::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(FuzzTarget::bytesOf(data, size));
    const QString context = QStringLiteral("Fuzz");
    const auto translate = [](const QString &context, const QString &source) { return context + source; };
    QStringList errors;
    TranslatableText::applyToScenario(text, context, translate, errors);
    const QString list = TranslatableText::applyToList(text, context, translate, errors);
    require(list == text || text.contains(QLatin1String("qsTr(\"")), "a text without calls stays");

    QString rest;
    errors.clear();
    const QString literal = TranslatableText::parseStringExpression(text, context, translate, rest, errors);
    require(text.endsWith(rest), "the rest is the end of the text");
    require(!errors.isEmpty() || text.isEmpty()
                || (literal.size() >= 2 && literal.startsWith(QLatin1Char('"')) && literal.endsWith(QLatin1Char('"'))),
            "an expression is a literal or an error");

    const QString escaped = TranslatableText::escapeString(text);
    require(TranslatableText::unescapeString(escaped) == text, "an escaped text comes back");
    const QString literalOfText = QLatin1Char('"') + escaped + QLatin1Char('"');
    errors.clear();
    rest.clear();
    const bool endsInBackslash = text.endsWith(QLatin1Char('\\'));
    if (!endsInBackslash && !text.contains(QLatin1String("\\\"")))
        require(TranslatableText::parseStringExpression(literalOfText, context, translate, rest, errors)
                        == literalOfText
                    && rest.isEmpty() && errors.isEmpty(),
                "the literal of a text is read as one");
    return 0;
}

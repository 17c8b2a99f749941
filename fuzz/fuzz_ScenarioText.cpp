// The text of a scenario, as far as it is looked at before it is parsed as JSON.

#include "Tutorial/translation/TranslatableText.h"
#include "TutorialEditor/ScenarioText.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const auto translate = [](const QString &context, const QString &source) { return context + source; };
    QStringList errors;
    const QString array =
        ScenarioText::removeAssignment(ScenarioText::removeLineComments(ScenarioText::removeBlockComments(text)));
    TranslatableText::applyToScenario(array, QStringLiteral("Fuzz"), translate, errors);
    TranslatableText::applyToList(array, QStringLiteral("Fuzz"), translate, errors);
    QString rest;
    TranslatableText::parseStringExpression(array, QStringLiteral("Fuzz"), translate, rest, errors);
    if (TranslatableText::unescapeString(TranslatableText::escapeString(text)) != text)
        std::abort();
    return 0;
}

#include "Tutorial/guidance/StepSpeech.h"

#include "Tutorial/guidance/HintText.h"

#include <QCoreApplication>
#include <QStringList>

QString Speech::text() const
{
    return description.isEmpty() ? name : name + QLatin1Char('\n') + description;
}

QString StepSpeech::iconMeaning(int iconType)
{
    switch (iconType) {
    case 0:
        return QCoreApplication::translate("StepSpeech", "Click");
    case 1:
        return QCoreApplication::translate("StepSpeech", "Double-click");
    case 2:
        return QCoreApplication::translate("StepSpeech", "Right-click");
    case 3:
        return QCoreApplication::translate("StepSpeech", "Look");
    case 4:
        return QCoreApplication::translate("StepSpeech", "Wait");
    case 5:
        return QCoreApplication::translate("StepSpeech", "Use the keyboard");
    default:
        return {};
    }
}

Speech StepSpeech::ofStep(const QString &hint, int iconType, const QString &targetKey)
{
    QStringList drawn;
    const QString icon = iconMeaning(iconType);
    if (!icon.isEmpty())
        drawn.append(icon);
    if (!targetKey.isEmpty())
        drawn.append(QCoreApplication::translate("StepSpeech", "The arrow points at %1").arg(targetKey));
    const QString description = drawn.join(QStringLiteral(", "));
    if (hint.isEmpty())
        return { description, QString() };
    return { HintText::visiblePart(hint), description };
}

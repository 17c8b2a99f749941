#include "StepCondition.h"

#include <QHash>
#include <QStringList>

namespace
{
enum class Value { None, Number, Visibility, Truth, Gesture };

bool isValid(Value type, const QString &value)
{
    bool valid = true;
    switch (type) {
    case Value::None:
        break;
    case Value::Number:
        value.toInt(&valid);
        break;
    case Value::Visibility:
        return value == QLatin1String("show") || value == QLatin1String("hide");
    case Value::Truth:
        return value == QLatin1String("true") || value == QLatin1String("false");
    case Value::Gesture:
        return value == QLatin1String("drag") || value == QLatin1String("doubleClick")
            || value == QLatin1String("rightClick");
    }
    return valid;
}

// The kinds that wait for an event, with the value that comes after the key.
const QHash<QString, Value> &eventKinds()
{
    static const QHash<QString, Value> kinds = {
        { QStringLiteral("click"), Value::None },
        { QStringLiteral("action"), Value::None },
        { QStringLiteral("popup"), Value::None },
        { QStringLiteral("pressed"), Value::None },
        { QStringLiteral("windowState"), Value::Visibility },
        { QStringLiteral("textLength"), Value::Number },
        { QStringLiteral("list"), Value::Number },
        { QStringLiteral("comboBox"), Value::Number },
        { QStringLiteral("spinBox"), Value::Number },
        { QStringLiteral("checked"), Value::Truth },
        { QStringLiteral("mouseEvent"), Value::Gesture },
    };
    return kinds;
}

StepCondition notUnderstood()
{
    StepCondition condition;
    condition.understood = false;
    return condition;
}
} // namespace

StepCondition parseCondition(const QString &text)
{
    QStringList fields;
    for (const QString &field : text.split(QLatin1Char(',')))
        fields.append(field.trimmed());

    StepCondition condition;
    condition.kind = fields.first();
    if (condition.kind == QLatin1String("click") && fields.value(1).isEmpty())
        return condition;
    if (condition.kind == QLatin1String("yesNo")) {
        condition.waits = StepCondition::Waits::ForAnswer;
        return condition;
    }
    if (condition.kind == QLatin1String("wait")) {
        condition.waits = StepCondition::Waits::ForTime;
        condition.value = fields.value(1);
        return isValid(Value::Number, condition.value) && condition.milliseconds() >= 0 ? condition : notUnderstood();
    }
    const auto kind = eventKinds().constFind(condition.kind);
    condition.waits = StepCondition::Waits::ForEvent;
    condition.key = fields.value(1);
    condition.value = fields.value(2);
    if (kind == eventKinds().constEnd() || condition.key.isEmpty() || !isValid(*kind, condition.value))
        return notUnderstood();
    return condition;
}

bool isMetBy(const StepCondition &condition, const HostEvent &event)
{
    if (condition.waits != StepCondition::Waits::ForEvent || condition.kind != event.kind || condition.key != event.key)
        return false;
    if (condition.kind == QLatin1String("textLength"))
        return event.value.toInt() >= condition.value.toInt();
    return condition.value.isEmpty() || condition.value == event.value;
}

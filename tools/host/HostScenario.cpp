#include "HostScenario.h"

#include <QJSEngine>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace
{
using namespace HostScenario;

struct Field
{
    const char *key;
    std::function<void(Step &, const QVariant &)> read;
};

template <typename T>
Field field(const char *key, T Step::*member)
{
    return { key, [member](Step &step, const QVariant &value) { step.*member = value.value<T>(); } };
}

// What a step has in the script. The value of a key that is missing stands in the structure.
const Field kFields[] = {
    field("id", &Step::id),         field("name", &Step::name),           field("x", &Step::x),
    field("y", &Step::y),           field("windowKey", &Step::windowKey), field("condition", &Step::condition),
    field("hint", &Step::hint),     field("icon", &Step::icon),           field("jump", &Step::jump),
    field("jumpNo", &Step::jumpNo), field("showArrow", &Step::showArrow), field("prohibited", &Step::prohibited),
};

Step readStep(const QVariantMap &item)
{
    Step step;
    for (const Field &field : kFields) {
        const auto value = item.constFind(QLatin1String(field.key));
        if (value != item.constEnd())
            field.read(step, *value);
    }
    return step;
}

void append(const QVariantList &items, Scenario &scenario)
{
    for (const QVariant &entry : items) {
        const QVariantMap item = entry.toMap();
        const int id = item.value(QStringLiteral("id")).toInt();
        if (!scenario.indexById.contains(id))
            scenario.indexById.insert(id, scenario.steps.size());
        if (item.value(QStringLiteral("folder")).toBool())
            append(item.value(QStringLiteral("children")).toList(), scenario);
        else
            scenario.steps.append(readStep(item));
    }
}
} // namespace

HostScenario::Scenario HostScenario::evaluate(const QString &script)
{
    QJSEngine engine;
    Scenario scenario;
    const QJSValue result = engine.evaluate(script);
    if (result.isError()) {
        scenario.error = QStringLiteral("line %1: %2")
                             .arg(result.property(QStringLiteral("lineNumber")).toInt())
                             .arg(result.toString());
        return scenario;
    }
    const QJSValue items = engine.globalObject().property(QStringLiteral("scenario"));
    if (!items.isArray()) {
        scenario.error = QStringLiteral("the script assigns no array to \"scenario\"");
        return scenario;
    }
    return flatten(items.toVariant().toList());
}

HostScenario::Scenario HostScenario::flatten(const QVariantList &items)
{
    Scenario scenario;
    append(items, scenario);
    return scenario;
}

int HostScenario::firstAllowed(const Scenario &scenario, int index)
{
    for (int i = qMax(index, 0); i < scenario.steps.size(); ++i) {
        if (!scenario.steps.at(i).prohibited)
            return i;
    }
    return kNone;
}

int HostScenario::startIndex(const Scenario &scenario, int id)
{
    return firstAllowed(scenario, id == kNone ? 0 : scenario.indexById.value(id, 0));
}

int HostScenario::nextIndex(const Scenario &scenario, int current, bool answeredNo)
{
    const Step &step = scenario.steps.at(current);
    const int jump = answeredNo ? step.jumpNo : step.jump;
    const int following = current + 1;
    return firstAllowed(scenario, jump == kNone ? following : scenario.indexById.value(jump, following));
}

int HostScenario::iconNumber(const QString &icon)
{
    static const QStringList names = { QStringLiteral("click"),      QStringLiteral("doubleClick"),
                                       QStringLiteral("rightClick"), QStringLiteral("eye"),
                                       QStringLiteral("wait"),       QStringLiteral("keyboard") };
    const int index = names.indexOf(icon);
    return index < 0 ? names.size() : index;
}

#include "HostScenario.h"

#include <QJSEngine>
#include <QStringList>
#include <QVariantMap>

namespace
{
using namespace HostScenario;

int number(const QVariantMap &item, const char *key, int standard)
{
    return item.value(QLatin1String(key), standard).toInt();
}

QString text(const QVariantMap &item, const char *key)
{
    return item.value(QLatin1String(key)).toString();
}

Step readStep(const QVariantMap &item)
{
    Step step;
    step.id = number(item, "id", 0);
    step.name = text(item, "name");
    step.x = number(item, "x", HostMessages::kNoPosition);
    step.y = number(item, "y", HostMessages::kNoPosition);
    step.windowKey = text(item, "windowKey");
    step.condition = text(item, "condition");
    step.hint = text(item, "hint");
    step.icon = text(item, "icon");
    step.jump = number(item, "jump", kNone);
    step.jumpNo = number(item, "jumpNo", kNone);
    step.showArrow = item.value(QStringLiteral("showArrow"), true).toBool();
    step.prohibited = item.value(QStringLiteral("prohibited"), false).toBool();
    return step;
}

void append(const QVariantList &items, Scenario &scenario)
{
    for (const QVariant &entry : items) {
        const QVariantMap item = entry.toMap();
        const int id = number(item, "id", 0);
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

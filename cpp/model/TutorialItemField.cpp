#include "model/TutorialItemField.h"

#include "model/TutorialItemData.h"

#include <QJsonObject>

#include <algorithm>
#include <type_traits>

namespace
{
void assign(int &field, const QJsonValue &value)
{
    field = value.toInt();
}

void assign(QString &field, const QJsonValue &value)
{
    field = value.toString();
}

void assign(bool &field, const QJsonValue &value)
{
    field = value.toBool();
}
} // namespace

const std::vector<TutorialItemField> &TutorialItemField::all()
{
    using Data = TutorialItemData;
    static const std::vector<TutorialItemField> fields = {
        { QStringLiteral("id"), &Data::mId, Owner::Item },
        { QStringLiteral("name"), &Data::mName, Owner::Item },
        { QStringLiteral("x"), &Data::mX },
        { QStringLiteral("y"), &Data::mY },
        { QStringLiteral("windowKey"), &Data::mWindowKey, Owner::Step, Form::Value, QStringLiteral("followWindow") },
        { QStringLiteral("condition"), &Data::mCondition },
        { QStringLiteral("hint"), &Data::mHint, Owner::Step, Form::Hint },
        { QStringLiteral("hint2"), &Data::mHint2, Owner::Step, Form::Nowhere },
        { QStringLiteral("icon"), &Data::mIcon },
        { QStringLiteral("jump"), &Data::mJump },
        { QStringLiteral("jumpNo"), &Data::mJumpNo },
        { QStringLiteral("command"), &Data::mCommand },
        { QStringLiteral("showArrow"), &Data::mShowArrow },
        { QStringLiteral("prohibited"), &Data::mProhibited, Owner::StepOrOlderFolder },
    };
    return fields;
}

const TutorialItemField *TutorialItemField::find(const QString &name)
{
    const auto found = std::find_if(all().begin(), all().end(),
                                    [&name](const TutorialItemField &field) { return field.name == name; });
    return found == all().end() ? nullptr : &*found;
}

const TutorialItemField &TutorialItemField::find(const Member &member)
{
    return *std::find_if(all().begin(), all().end(),
                         [&member](const TutorialItemField &field) { return field.member == member; });
}

QVariant TutorialItemField::read(const TutorialItemData &record) const
{
    return std::visit([&record](auto field) { return QVariant(record.*field); }, member);
}

QVariant TutorialItemField::convert(const QVariant &value) const
{
    return std::visit(
        [&value](auto field) {
            using Value = std::decay_t<decltype(std::declval<TutorialItemData &>().*field)>;
            return QVariant(value.value<Value>());
        },
        member);
}

void TutorialItemField::write(TutorialItemData &record, const QVariant &value) const
{
    std::visit(
        [&](auto field) {
            using Value = std::decay_t<decltype(record.*field)>;
            record.*field = value.value<Value>();
        },
        member);
}

void TutorialItemField::copy(TutorialItemData &record, const TutorialItemData &other) const
{
    std::visit([&](auto field) { record.*field = other.*field; }, member);
}

void TutorialItemField::appendJson(QString &json, const TutorialItemData &record) const
{
    std::visit([&](auto field) { JsonWrapper::appendJson(json, record.*field); }, member);
}

bool TutorialItemField::isKept(const QJsonValue &value) const
{
    // In the order of the member's alternatives.
    constexpr QJsonValue::Type types[] = { QJsonValue::Double, QJsonValue::String, QJsonValue::Bool };
    const QJsonValue::Type type = types[member.index()];
    return value.type() == type && (type != QJsonValue::Double || value.toInt(0) == value.toInt(1));
}

bool TutorialItemField::readJson(TutorialItemData &record, const QJsonObject &object) const
{
    auto entry = object.constFind(name);
    bool kept = true;
    if (!olderName.isEmpty()) {
        const auto older = object.constFind(olderName);
        if (entry == object.constEnd())
            entry = older;
        else
            kept = older == object.constEnd();
    }
    if (entry == object.constEnd())
        return true;
    const QJsonValue value = *entry;
    std::visit([&](auto field) { assign(record.*field, value); }, member);
    return kept && isKept(value);
}

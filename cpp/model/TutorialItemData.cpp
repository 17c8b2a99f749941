#include "model/TutorialItemData.h"

#include "model/DocumentContext.h"
#include "model/EditHistory.h"
#include "tool/JsonWrapperException.h"
#include "tool/Log.h"

#include <memory>

namespace
{
QString secondHint(int id)
{
    const QString key = QLatin1Char('#') + QString::number(id);
    const DocumentContext *context = DocumentContext::instance();
    const QString translated = context ? context->translate(key) : QString();
    return translated.isEmpty() ? key : translated;
}
} // namespace

TutorialItemData::TutorialItemData(QObject *parent) : QObject(parent) { }

TutorialItemData::TutorialItemData(const TutorialItemData &other) : QObject(nullptr), NameData(other)
{
    for (const TutorialItemField &field : TutorialItemField::all())
        field.copy(*this, other);
}

TutorialItemData *TutorialItemData::fromJson(const JsonWrapper &json, bool *kept)
{
    using Field = TutorialItemField;
    auto record = std::make_unique<TutorialItemData>();
    try {
        record->mId = json[QStringLiteral("id")].toInt();
        const QJsonObject object = json.toObject();
        const QJsonValue folderValue = object.value(QLatin1String("folder"));
        const bool folder = folderValue.toBool();
        bool allKept = folderValue.isBool() || folderValue.isUndefined();
        for (const Field &field : Field::all()) {
            if (field.form != Field::Form::Nowhere && !(folder && field.owner == Field::Owner::Step))
                allKept = field.readJson(*record, object) && allKept;
        }
        if (kept && !allKept)
            *kept = false;
        if (!folder)
            record->mHint2 = secondHint(record->mId);
    } catch (const JsonWrapperException &exception) {
        Log::warning("cpp/model", "TutorialItemData::fromJson", __LINE__) << exception.message();
        return nullptr;
    }
    return record.release();
}

QVariant TutorialItemData::getValue(const QString &propertyName) const
{
    const TutorialItemField *field = TutorialItemField::find(propertyName);
    if (!field) {
        Log::warning("cpp/model", "TutorialItemData::getValue", __LINE__) << "invalid propertyName" << propertyName;
        return QVariant();
    }
    return field->read(*this);
}

void TutorialItemData::setValue(const QString &propertyName, const QVariant &value)
{
    const TutorialItemField *field = TutorialItemField::find(propertyName);
    if (!field) {
        Log::warning("cpp/model", "TutorialItemData::setValue", __LINE__) << "invalid propertyName" << propertyName;
        return;
    }
    if (field->member == TutorialItemField::Member(&TutorialItemData::mId))
        setId(value.toInt());
    else
        change(*field, value);
}

QString TutorialItemData::toJsonText(const QString &extra) const
{
    QString json;
    for (const TutorialItemField &field : TutorialItemField::all()) {
        json += json.isEmpty() ? QLatin1String("{\"") : QLatin1String(",\"");
        json += field.name;
        json += QLatin1String("\":");
        field.appendJson(json, *this);
    }
    if (!extra.isEmpty()) {
        json += QLatin1Char(',');
        json += extra;
    }
    json += QLatin1Char('}');
    return json;
}

void TutorialItemData::change(const TutorialItemField &field, const QVariant &value)
{
    const QVariant converted = field.convert(value);
    if (field.read(*this) == converted)
        return;
    EditHistory *history = EditHistory::instance();
    if (history && history->inTransaction())
        history->recordChange(mId, field, converted);
    else
        field.write(*this, converted);
}

#include "model/TutorialItemData.h"

#include "model/DocumentContext.h"
#include "model/EditHistory.h"
#include "tool/JsonWrapperException.h"
#include "tool/Log.h"

#include <QStringList>

#include <memory>

namespace
{
/// One property by its name. Exactly one of the three pointers is set.
struct Property
{
    const char *name;
    int TutorialItemData::*number;
    QString TutorialItemData::*text;
    bool TutorialItemData::*flag;
};

Property numberProperty(const char *name, int TutorialItemData::*field)
{
    return { name, field, nullptr, nullptr };
}

Property textProperty(const char *name, QString TutorialItemData::*field)
{
    return { name, nullptr, field, nullptr };
}

Property flagProperty(const char *name, bool TutorialItemData::*field)
{
    return { name, nullptr, nullptr, field };
}

/// All properties, in the order of the JSON text.
const Property kProperties[] = {
    numberProperty("id", &TutorialItemData::mId),
    textProperty("name", &TutorialItemData::mName),
    numberProperty("x", &TutorialItemData::mX),
    numberProperty("y", &TutorialItemData::mY),
    textProperty("windowKey", &TutorialItemData::mWindowKey),
    textProperty("condition", &TutorialItemData::mCondition),
    textProperty("hint", &TutorialItemData::mHint),
    textProperty("hint2", &TutorialItemData::mHint2),
    textProperty("icon", &TutorialItemData::mIcon),
    numberProperty("jump", &TutorialItemData::mJump),
    numberProperty("jumpNo", &TutorialItemData::mJumpNo),
    textProperty("command", &TutorialItemData::mCommand),
    flagProperty("showArrow", &TutorialItemData::mShowArrow),
    flagProperty("prohibited", &TutorialItemData::mProhibited),
};

const Property *findProperty(const QString &name)
{
    for (const Property &property : kProperties) {
        if (name == QLatin1String(property.name))
            return &property;
    }
    return nullptr;
}

QVariant readField(const TutorialItemData &record, const Property &property)
{
    if (property.number)
        return record.*property.number;
    if (property.text)
        return record.*property.text;
    return record.*property.flag;
}

void readNumber(const JsonWrapper &json, const QString &key, int &field)
{
    if (json.contains(key))
        field = json[key].toInt();
}

void readText(const JsonWrapper &json, const QString &key, QString &field)
{
    if (json.contains(key))
        field = json[key].toString();
}

void readFlag(const JsonWrapper &json, const QString &key, bool &field)
{
    if (json.contains(key))
        field = json[key].toBool();
}

QString secondHint(int id)
{
    const QString key = QStringLiteral("#%1").arg(id);
    const DocumentContext *context = DocumentContext::instance();
    const QString translated = context ? context->translate(key) : QString();
    return translated.isEmpty() ? key : translated;
}

void readStep(const JsonWrapper &json, TutorialItemData &record)
{
    readNumber(json, QStringLiteral("x"), record.mX);
    readNumber(json, QStringLiteral("y"), record.mY);
    // "followWindow" is the older name of the field.
    const QString windowKey = QStringLiteral("windowKey");
    readText(json, json.contains(windowKey) ? windowKey : QStringLiteral("followWindow"), record.mWindowKey);
    readText(json, QStringLiteral("condition"), record.mCondition);
    readText(json, QStringLiteral("hint"), record.mHint);
    record.mHint2 = secondHint(record.mId);
    readText(json, QStringLiteral("icon"), record.mIcon);
    readNumber(json, QStringLiteral("jump"), record.mJump);
    readNumber(json, QStringLiteral("jumpNo"), record.mJumpNo);
    readText(json, QStringLiteral("command"), record.mCommand);
    readFlag(json, QStringLiteral("showArrow"), record.mShowArrow);
}

QString linkInfo(int id)
{
    QVariantHash link;
    link.insert(QStringLiteral("tutorialItemId"), id);
    return JsonWrapper::getJsonString(link);
}
} // namespace

TutorialItemData::TutorialItemData(QObject *parent) : QObject(parent) { }

TutorialItemData::TutorialItemData(const TutorialItemData &other) : QObject(nullptr), NameData(other)
{
    for (const Property &property : kProperties) {
        if (property.number)
            this->*property.number = other.*property.number;
        else if (property.text)
            this->*property.text = other.*property.text;
        else
            this->*property.flag = other.*property.flag;
    }
}

TutorialItemData *TutorialItemData::fromJson(const JsonWrapper &json)
{
    auto record = std::make_unique<TutorialItemData>();
    try {
        record->mId = json[QStringLiteral("id")].toInt();
        readText(json, QStringLiteral("name"), record->mName);
        bool folder = false;
        readFlag(json, QStringLiteral("folder"), folder);
        if (!folder)
            readStep(json, *record);
        readFlag(json, QStringLiteral("prohibited"), record->mProhibited);
    } catch (const JsonWrapperException &exception) {
        Log::warning("cpp/model", "TutorialItemData::fromJson", __LINE__) << exception.message();
        return nullptr;
    }
    return record.release();
}

QVariant TutorialItemData::getValue(const QString &propertyName) const
{
    const Property *property = findProperty(propertyName);
    if (!property) {
        Log::warning("cpp/model", "TutorialItemData::getValue", __LINE__) << "invalid propertyName" << propertyName;
        return QVariant();
    }
    return readField(*this, *property);
}

bool TutorialItemData::writeField(const QString &propertyName, const QVariant &value, QVariant &oldValue)
{
    const Property *property = findProperty(propertyName);
    if (!property || property->number == &NameData::mId)
        return false;
    oldValue = readField(*this, *property);
    if (property->number)
        this->*property->number = value.toInt();
    else if (property->text)
        this->*property->text = value.toString();
    else
        this->*property->flag = value.toBool();
    return true;
}

void TutorialItemData::setValue(const QString &propertyName, const QVariant &value)
{
    const Property *property = findProperty(propertyName);
    if (!property) {
        Log::warning("cpp/model", "TutorialItemData::setValue", __LINE__) << "invalid propertyName" << propertyName;
        return;
    }
    if (property->number == &NameData::mId)
        setId(value.toInt());
    else if (property->number)
        change(property->name, property->number, value.toInt());
    else if (property->text)
        change(property->name, property->text, value.toString());
    else
        change(property->name, property->flag, value.toBool());
}

QString TutorialItemData::toJsonText(const QString &extra) const
{
    QStringList entries;
    for (const Property &property : kProperties) {
        const QString value = JsonWrapper::getJsonString(readField(*this, property));
        entries.append(QLatin1Char('"') + QLatin1String(property.name) + QLatin1String("\":") + value);
    }
    if (!extra.isEmpty())
        entries.append(extra);
    return QLatin1Char('{') + entries.join(QLatin1Char(',')) + QLatin1Char('}');
}

template <typename Owner, typename Value>
void TutorialItemData::change(const char *propertyName, Value Owner::*field, const Value &value)
{
    if (this->*field == value)
        return;
    EditHistory *history = EditHistory::instance();
    if (history && history->inTransaction())
        history->recordChange(mId, QLatin1String(propertyName), value, linkInfo(mId));
    else
        this->*field = value;
}

void TutorialItemData::setName(const QString &name)
{
    change("name", &TutorialItemData::mName, name);
}

void TutorialItemData::setX(int x)
{
    change("x", &TutorialItemData::mX, x);
}

void TutorialItemData::setY(int y)
{
    change("y", &TutorialItemData::mY, y);
}

void TutorialItemData::setWindowKey(const QString &windowKey)
{
    change("windowKey", &TutorialItemData::mWindowKey, windowKey);
}

void TutorialItemData::setCondition(const QString &condition)
{
    change("condition", &TutorialItemData::mCondition, condition);
}

void TutorialItemData::setIcon(const QString &icon)
{
    change("icon", &TutorialItemData::mIcon, icon);
}

void TutorialItemData::setHint(const QString &hint)
{
    change("hint", &TutorialItemData::mHint, hint);
}

void TutorialItemData::setHint2(const QString &hint2)
{
    change("hint2", &TutorialItemData::mHint2, hint2);
}

void TutorialItemData::setJump(int jump)
{
    change("jump", &TutorialItemData::mJump, jump);
}

void TutorialItemData::setJumpNo(int jumpNo)
{
    change("jumpNo", &TutorialItemData::mJumpNo, jumpNo);
}

void TutorialItemData::setCommand(const QString &command)
{
    change("command", &TutorialItemData::mCommand, command);
}

void TutorialItemData::setShowArrow(bool showArrow)
{
    change("showArrow", &TutorialItemData::mShowArrow, showArrow);
}

void TutorialItemData::setProhibited(bool prohibited)
{
    change("prohibited", &TutorialItemData::mProhibited, prohibited);
}

#include "TutorialEditor/LoadLosses.h"

#include "TutorialEditor/Manager.h"

#include <QJsonArray>
#include <QJsonObject>

using TutorialEditor::Manager;

namespace
{
const QString kFolderKey = QStringLiteral("folder");
const QString kChildrenKey = QStringLiteral("children");

QJsonValue::Type jsonType(const TutorialItemField &field)
{
    // In the order of the member's alternatives.
    constexpr QJsonValue::Type types[] = { QJsonValue::Double, QJsonValue::String, QJsonValue::Bool };
    return types[field.member.index()];
}

QString label(const QJsonObject &item)
{
    const QString id = QStringLiteral("#%1").arg(item.value(QLatin1String("id")).toInt());
    const QString name = item.value(QLatin1String("name")).toString();
    return name.isEmpty() ? id : QString(name + QLatin1String(" (") + id + QLatin1Char(')'));
}

/// Whether the reader takes the value as it is.
bool isKept(const QJsonValue &value, QJsonValue::Type type)
{
    if (value.type() != type)
        return false;
    return type != QJsonValue::Double || value.toInt(0) == value.toInt(1);
}
} // namespace

void LoadLosses::inspect(const QJsonValue &element)
{
    const int before = mLines.size();
    if (inspect(element, QString(), mCount++))
        return;
    mLines = mLines.mid(0, before);
    mLines.append(element.isObject()
                      ? Manager::tr("%1, with all in it: %2 can't be read").arg(label(element.toObject()), mUnreadable)
                      : Manager::tr("%1 can't be read").arg(mUnreadable));
}

bool LoadLosses::inspect(const QJsonValue &element, const QString &parentPath, int position)
{
    if (!element.isObject()) {
        mUnreadable = parentPath + Manager::tr("entry %1").arg(position + 1);
        return false;
    }
    const QJsonObject item = element.toObject();
    const QString path = parentPath + label(item);
    const int id = item.value(QLatin1String("id")).toInt();
    // Where two items share an id, the first one's record stands for both.
    if (mIds.contains(id))
        mLines.append(Manager::tr("%1: another item has the same id").arg(path));
    mIds.insert(id);
    inspectValues(item, path);

    if (!item.contains(kChildrenKey))
        return true;
    const QString below = path + QLatin1String(" / ");
    if (!item.value(kChildrenKey).isArray()) {
        mUnreadable = below + kChildrenKey;
        return false;
    }
    const QJsonArray children = item.value(kChildrenKey).toArray();
    if (!children.isEmpty() && !item.value(kFolderKey).toBool())
        mLines.append(Manager::tr("%1: what stands in it, for it is no folder").arg(path));
    for (int i = 0; i < children.size(); ++i) {
        if (!inspect(children.at(i), below, i))
            return false;
    }
    return true;
}

void LoadLosses::inspectValues(const QJsonObject &item, const QString &path)
{
    const auto inspectValue = [&](const QString &key, QJsonValue::Type type) {
        const auto value = item.constFind(key);
        if (value != item.constEnd() && !isKept(*value, type))
            mLines.append(Manager::tr("%1: the value of \"%2\"").arg(path, key));
    };
    const bool folder = item.value(kFolderKey).toBool();
    inspectValue(kFolderKey, QJsonValue::Bool);
    for (const TutorialItemField &field : TutorialItemField::all()) {
        if (field.form == TutorialItemField::Form::Nowhere || (folder && field.owner == TutorialItemField::Owner::Step))
            continue;
        inspectValue(field.name, jsonType(field));
        if (!field.olderName.isEmpty())
            inspectValue(field.olderName, jsonType(field));
    }
}

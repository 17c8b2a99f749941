#include "TutorialEditor/LoadLosses.h"

#include "TutorialEditor/Manager.h"

#include <QJsonArray>

using TutorialEditor::Manager;

namespace
{
const QString kFolderKey = QStringLiteral("folder");
const QString kChildrenKey = QStringLiteral("children");
const QLatin1String kSeparator(" / ");

QString label(const QJsonObject &item)
{
    const QString id = QStringLiteral("#%1").arg(item.value(QLatin1String("id")).toInt());
    const QString name = item.value(QLatin1String("name")).toString();
    return name.isEmpty() ? id : QString(name + QLatin1String(" (") + id + QLatin1Char(')'));
}
} // namespace

void LoadLosses::inspectKept(const QJsonValue &element, const QList<int> &ids)
{
    int newCount = 0;
    while (newCount < ids.size() && addId(ids.at(newCount)))
        ++newCount;
    if (newCount == ids.size()) {
        ++mCount;
        return;
    }
    for (int i = 0; i < newCount; ++i)
        mIds.remove(ids.at(i));
    inspect(element);
}

bool LoadLosses::addId(int id)
{
    const int count = mIds.size();
    mIds.insert(id);
    return mIds.size() > count;
}

void LoadLosses::inspect(const QJsonValue &element)
{
    const int before = mLines.size();
    const int lossesBefore = mLosses.size();
    mItem = -1;
    if (inspect(element, nullptr, mCount++))
        return;
    mLines = mLines.mid(0, before);
    mLosses.resize(lossesBefore);
    add(Loss::Kind::Element, element.toObject());
    mLines.append(element.isObject()
                      ? Manager::tr("%1, with all in it: %2 can't be read").arg(label(element.toObject()), mUnreadable)
                      : Manager::tr("%1 can't be read").arg(mUnreadable));
}

QString LoadLosses::path(const Place *place)
{
    return place->parent ? QString(path(place->parent) + kSeparator + label(place->item)) : label(place->item);
}

bool LoadLosses::inspect(const QJsonValue &element, const Place *parent, int position)
{
    ++mItem;
    if (!element.isObject()) {
        const QString entry = Manager::tr("entry %1").arg(position + 1);
        mUnreadable = parent ? QString(path(parent) + kSeparator + entry) : entry;
        return false;
    }
    const QJsonObject item = element.toObject();
    const Place place{ item, parent };
    // Where two items share an id, the first one's record stands for both.
    if (!addId(item.value(QLatin1String("id")).toInt())) {
        add(Loss::Kind::Id, item);
        mLines.append(Manager::tr("%1: another item has the same id").arg(path(&place)));
    }
    inspectValues(place);

    const auto entry = item.constFind(kChildrenKey);
    if (entry == item.constEnd())
        return true;
    const QJsonValue value = *entry;
    if (!value.isArray()) {
        mUnreadable = path(&place) + kSeparator + kChildrenKey;
        return false;
    }
    const QJsonArray children = value.toArray();
    if (!children.isEmpty() && !item.value(kFolderKey).toBool()) {
        add(Loss::Kind::Children, item, kChildrenKey);
        mLines.append(Manager::tr("%1: what stands in it, for it is no folder").arg(path(&place)));
    }
    for (int i = 0; i < children.size(); ++i) {
        if (!inspect(children.at(i), &place, i))
            return false;
    }
    return true;
}

void LoadLosses::add(Loss::Kind kind, const QJsonObject &item, const QString &key)
{
    const int id = item.isEmpty() ? -1 : item.value(QLatin1String("id")).toInt();
    mLosses.append({ kind, mCount - 1, mItem, id, item.value(QLatin1String("name")).toString(), key });
}

void LoadLosses::inspectValues(const Place &place)
{
    const QJsonObject &item = place.item;
    const bool folder = item.value(kFolderKey).toBool();
    const auto tell = [&](const QString &key) {
        add(Loss::Kind::Value, item, key);
        mLines.append(Manager::tr("%1: the value of \"%2\"").arg(path(&place), key));
    };
    if (item.contains(kFolderKey) && !item.value(kFolderKey).isBool())
        tell(kFolderKey);
    for (const TutorialItemField &field : TutorialItemField::all()) {
        if (field.form == TutorialItemField::Form::Nowhere || (folder && field.owner == TutorialItemField::Owner::Step))
            continue;
        for (const QString &key : { field.name, field.olderName }) {
            if (!key.isEmpty() && item.contains(key) && !field.isKept(item.value(key)))
                tell(key);
        }
    }
}

#include "check/NameRules.h"

#include "check/CheckSubject.h"
#include "check/TutorialCheck.h"
#include "TutorialEditor/ScenarioText.h"

namespace
{
/// As a writer knows the field.
QString fieldName(const TutorialItemField &field)
{
    const QString &name = field.name;
    if (name == QLatin1String("name"))
        return TutorialCheck::tr("The name");
    if (name == QLatin1String("windowKey"))
        return TutorialCheck::tr("The key of the control");
    if (name == QLatin1String("condition"))
        return TutorialCheck::tr("The condition");
    if (name == QLatin1String("icon"))
        return TutorialCheck::tr("The name of the icon");
    return TutorialCheck::tr("The command");
}

void checkTexts(const TutorialItemData &record, QVector<Problem> &problems)
{
    for (const TutorialItemField &field : TutorialItemField::all()) {
        const auto *text = std::get_if<QString TutorialItemData::*>(&field.member);
        if (!text || field.form != TutorialItemField::Form::Value)
            continue;
        const QString part = ScenarioText::findUnreadable(record.**text);
        if (part.isEmpty())
            continue;
        problems.append(
            { QStringLiteral("text-unreadable"), Problem::Severity::Error, record.mId, record.mName,
              TutorialCheck::tr("%1 holds \"%2\", with which the saved file could not be read again: write it without.")
                  .arg(fieldName(field), part),
              QString(), 0, field.name });
    }
}
} // namespace

QVector<Problem> NameRules::check(const CheckSubject &subject)
{
    QVector<Problem> problems;
    QSet<int> ids;
    QHash<QString, int> idsByName;
    subject.document->mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        const TutorialItemData *record = item.mId == -1 ? nullptr : subject.document->getData(item.mId);
        if (!record)
            return;
        if (ids.contains(item.mId)) {
            problems.append({ QStringLiteral("id-twice"), Problem::Severity::Error, item.mId, record->mName,
                              TutorialCheck::tr("Another item has the id #%1, too, so that both are one: give one of "
                                                "them an id of its own.")
                                  .arg(item.mId),
                              QString(), 0, QStringLiteral("id") });
            return;
        }
        ids.insert(item.mId);
        const int other = idsByName.value(record->mName, item.mId);
        if (other != item.mId) {
            problems.append({ QStringLiteral("name-twice"), Problem::Severity::Remark, item.mId, record->mName,
                              TutorialCheck::tr("#%1 has the same name: give one of them another.").arg(other),
                              QString(), 0, QStringLiteral("name") });
        }
        idsByName.insert(record->mName, other);
        checkTexts(*record, problems);
    });
    return problems;
}

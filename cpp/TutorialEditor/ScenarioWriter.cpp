#include "tool/Log.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioText.h"

namespace
{
constexpr char kFolder[] = "cpp/TutorialEditor";

QString entry(const QString &key, const QString &valueText)
{
    return QLatin1Char('"') + key + QLatin1String("\":") + valueText;
}

QString fieldText(const TutorialItemField &field, const TutorialItemData &record, bool forSaving)
{
    if (field.form == TutorialItemField::Form::Hint && forSaving)
        return QStringLiteral("qsTr(\"#%1\")").arg(record.mId);
    return JsonWrapper::getJsonString(field.read(record));
}

/// What steps and folders have, or what steps have beside that.
QStringList fieldEntries(const TutorialItemData &record, bool ofStep, bool forSaving)
{
    QStringList entries;
    for (const TutorialItemField &field : TutorialItemField::all()) {
        const bool isOfStep = field.owner != TutorialItemField::Owner::Item;
        if (isOfStep == ofStep && field.form != TutorialItemField::Form::Nowhere)
            entries.append(entry(field.name, fieldText(field, record, forSaving)));
    }
    return entries;
}
} // namespace

namespace TutorialEditor
{
void Manager::getJsonText(int level, const TreeItem<TutorialItemData> &item,
                          const TreeDataTemplate<TutorialItemData> &data, QString &text, bool forSaving) const
{
    const QString indent(4 * (level + 1), QLatin1Char(' '));
    text += QLatin1String("[\n");
    bool first = true;
    for (const TreeItem<TutorialItemData> &child : item.mChildren) {
        const TutorialItemData *record = data.getData(child.mId);
        if (!record) {
            Log::warning(kFolder, "TutorialEditor::Manager::getJsonText", __LINE__) << "data not found" << child.mId;
            continue;
        }
        if (!first)
            text += QLatin1String(",\n");
        first = false;

        text += indent + QLatin1String("{\n");
        QStringList entries = fieldEntries(*record, false, forSaving);
        entries.append(entry(QStringLiteral("folder"), JsonWrapper::getJsonString(child.mFolder)));
        text += entries.join(QLatin1String(",\n")) + QLatin1String(",\n");
        if (child.mFolder) {
            // Written where it stands, so that a deep tree is not copied once for each level.
            text += QLatin1String("\"children\":");
            getJsonText(level + 1, child, data, text, forSaving);
        } else {
            text += fieldEntries(*record, true, forSaving).join(QLatin1String(",\n"));
        }
        text += indent + QLatin1Char('\n') + indent + QLatin1Char('}');
    }
    text += QLatin1String("\n]");
}

QString Manager::getScenario(bool forSaving) const
{
    QString text;
    getJsonText(0, mData.mRoot, mData, text, forSaving);
    Log::debug(kFolder, "TutorialEditor::Manager::getScenario", __LINE__) << mFilename << text;
    return ScenarioText::addAssignment(text);
}
} // namespace TutorialEditor

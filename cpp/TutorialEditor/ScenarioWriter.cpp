#include "tool/Log.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioText.h"

namespace
{
constexpr char kFolder[] = "cpp/TutorialEditor";

QString entry(const char *key, const QString &valueText)
{
    return QLatin1Char('"') + QLatin1String(key) + QLatin1String("\":") + valueText;
}

QString valueEntry(const char *key, const QVariant &value)
{
    return entry(key, JsonWrapper::getJsonString(value));
}

QStringList stepEntries(const TutorialItemData &record, bool forSaving)
{
    const QString hint =
        forSaving ? QStringLiteral("qsTr(\"#%1\")").arg(record.mId) : JsonWrapper::getJsonString(record.mHint);
    return { valueEntry("x", record.mX),
             valueEntry("y", record.mY),
             valueEntry("windowKey", record.mWindowKey),
             valueEntry("condition", record.mCondition),
             entry("hint", hint),
             valueEntry("icon", record.mIcon),
             valueEntry("jump", record.mJump),
             valueEntry("jumpNo", record.mJumpNo),
             valueEntry("command", record.mCommand),
             valueEntry("showArrow", record.mShowArrow),
             valueEntry("prohibited", record.mProhibited) };
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
        text += valueEntry("id", record->mId) + QLatin1String(",\n") + valueEntry("name", record->mName)
            + QLatin1String(",\n") + valueEntry("folder", child.mFolder) + QLatin1String(",\n");
        if (child.mFolder) {
            // Written where it stands, so that a deep tree is not copied once for each level.
            text += QLatin1String("\"children\":");
            getJsonText(level + 1, child, data, text, forSaving);
        } else {
            text += stepEntries(*record, forSaving).join(QLatin1String(",\n"));
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

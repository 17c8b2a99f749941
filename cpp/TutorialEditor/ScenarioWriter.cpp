#include "tool/Log.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioText.h"

namespace
{
constexpr char kFolder[] = "cpp/TutorialEditor";
const QLatin1String kSeparator(",\n");

// Appended piece by piece: the sum of several pieces would make room for just these, and so move the text each time.
void appendKey(QString &text, const QString &key)
{
    text += QLatin1Char('"');
    text += key;
    text += QLatin1String("\":");
}

/// Appends what steps and folders have, or what steps have beside that, each entry with the separator after it.
void appendFields(QString &text, const TutorialItemData &record, bool ofStep, bool forSaving)
{
    for (const TutorialItemField &field : TutorialItemField::all()) {
        const bool isOfStep = field.owner != TutorialItemField::Owner::Item;
        if (isOfStep != ofStep || field.form == TutorialItemField::Form::Nowhere)
            continue;
        appendKey(text, field.name);
        if (field.form == TutorialItemField::Form::Hint && forSaving) {
            text += QLatin1String("qsTr(\"#");
            text += QString::number(record.mId);
            text += QLatin1String("\")");
        } else {
            field.appendJson(text, record);
        }
        text += kSeparator;
    }
}
} // namespace

namespace TutorialEditor
{
void Manager::getJsonText(int level, const TreeItem<TutorialItemData> &item,
                          const TreeDataTemplate<TutorialItemData> &data, QString &text, bool forSaving)
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
            text += kSeparator;
        first = false;

        text += indent;
        text += QLatin1String("{\n");
        appendFields(text, *record, false, forSaving);
        appendKey(text, QStringLiteral("folder"));
        JsonWrapper::appendJson(text, child.mFolder);
        text += kSeparator;
        if (child.mFolder) {
            // Written where it stands, so that a deep tree is not copied once for each level.
            appendKey(text, QStringLiteral("children"));
            getJsonText(level + 1, child, data, text, forSaving);
        } else {
            appendFields(text, *record, true, forSaving);
            text.chop(kSeparator.size());
        }
        text += indent;
        text += QLatin1Char('\n');
        text += indent;
        text += QLatin1Char('}');
    }
    text += QLatin1String("\n]");
}

QString Manager::getScenario(bool forSaving) const
{
    QString text;
    getJsonText(0, mData.mRoot, mData, text, forSaving);
    Log::debugEachText(kFolder, "TutorialEditor::Manager::getScenario", __LINE__, { mFilename, text });
    return ScenarioText::addAssignment(std::move(text));
}
} // namespace TutorialEditor

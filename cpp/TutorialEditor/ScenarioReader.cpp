#include "TutorialEditor/ScenarioReader.h"

#include "SystemService/InterfaceTranslator.h"
#include "tool/FreeNames.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioText.h"

#include <QSet>
#include <QTextCodec>

#include <algorithm>
#include <memory>

namespace
{
/// Most items have the key, the condition and the icon of others, and one hint for both languages where only one is
/// known. Texts holds one of each.
void shareTexts(TutorialItemData &record, QSet<QString> &texts)
{
    for (QString *text : { &record.mWindowKey, &record.mCondition, &record.mIcon, &record.mCommand })
        *text = *texts.insert(*text);
    if (record.mHint2 == record.mHint)
        record.mHint2 = record.mHint;
}

void fillInNames(TreeDataTemplate<TutorialItemData> &document)
{
    const auto isNameless = [](const TutorialItemData *record) { return record->mName.isEmpty(); };
    if (std::none_of(document.mDataList.cbegin(), document.mDataList.cend(), isNameless))
        return;
    QStringList names = document.getNameList();
    names.removeAll(QString());
    FreeNames freeNames(names);
    // The next save writes them: they are the same whoever has opened the file.
    const InterfaceTranslator::Silence silence;
    const QString folderBase = TutorialEditor::Manager::tr("folder");
    const QString itemBase = TutorialEditor::Manager::tr("item");
    document.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        TutorialItemData *record = item.mId < 0 ? nullptr : document.getData(item.mId);
        if (record && record->mName.isEmpty())
            record->mName = freeNames.next(item.mFolder ? folderBase : itemBase, 3);
    });
}
} // namespace

QString ScenarioReader::decoded(const QByteArray &bytes)
{
    const QTextCodec *codec = QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"));
    QTextCodec::ConverterState state;
    return codec->toUnicode(bytes.constData(), bytes.size(), &state);
}

QString ScenarioReader::arrayOf(QString text, TextMap *map)
{
    // Each step lets go of the text before it, which a large document is better off without.
    text = ScenarioText::removeBlockComments(text, map);
    text = ScenarioText::removeLineComments(text, map);
    return ScenarioText::removeAssignment(std::move(text), QStringLiteral("scenario"), map);
}

bool ScenarioReader::read(const QString &arrayText, TreeDataTemplate<TutorialItemData> &document, QStringList &leftOut,
                          QVector<LoadLosses::Loss> *allLosses)
{
    const JsonWrapper json(arrayText);
    if (!json.isArray())
        return false;
    LoadLosses losses;
    QSet<QString> texts;
    const int length = json.length();
    for (int i = 0; i < length; ++i) {
        const JsonWrapper element = json[i];
        bool kept = true;
        const int firstRecord = document.mDataList.size();
        const std::unique_ptr<TreeItem<TutorialItemData>> item(
            TreeItem<TutorialItemData>::createFromJson(element, &document.mDataList, &kept));
        if (item)
            document.mRoot.mChildren.append(*item);
        QList<int> ids;
        for (int record = firstRecord; record < document.mDataList.size(); ++record) {
            shareTexts(*document.mDataList.at(record), texts);
            ids.append(document.mDataList.at(record)->mId);
        }
        if (item && kept)
            losses.inspectKept(element.toValue(), ids);
        else
            losses.inspect(element.toValue());
    }
    leftOut = losses.lines();
    if (allLosses)
        *allLosses = losses.losses();
    // The text of several values stands for the first one.
    if (json.kind() == JsonWrapper::kValue) {
        if (allLosses)
            allLosses->prepend({ LoadLosses::Loss::Kind::Trailing });
        leftOut.prepend(TutorialEditor::Manager::tr("What follows the steps"));
    }
    fillInNames(document);
    return true;
}

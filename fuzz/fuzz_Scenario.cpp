// The file of a tutorial: read, saved, read again.

#include "FuzzTarget.h"
#include "support/DocumentFakes.h"
#include "support/FileBytes.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioText.h"

#include <QTemporaryDir>

#include <algorithm>

using FuzzTarget::require;

namespace
{
/// Whether no text of the document is one that the screens would have refused, or begins with a byte order mark, which
/// the reader drops.
bool isReadable(const TreeDataTemplate<TutorialItemData> &data)
{
    return std::all_of(data.mDataList.cbegin(), data.mDataList.cend(), [](const TutorialItemData *record) {
        const QStringList texts = { record->mName, record->mWindowKey, record->mCondition, record->mIcon,
                                    record->mCommand };
        return std::all_of(texts.cbegin(), texts.cend(), [](const QString &text) {
            return ScenarioText::findUnreadable(text).isEmpty() && !text.startsWith(QChar::ByteOrderMark);
        });
    });
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("a.js"));
    const FakeContext context;
    const QByteArray bytes = FuzzTarget::bytesOf(data, size);
    writeAll(path, bytes);

    TutorialEditor::Manager manager;
    manager.setContents(path);
    if (!manager.isLoaded()) {
        require(manager.mData.mDataList.isEmpty(), "what can't be read leaves nothing");
        require(manager.isSaveable() || !manager.save().isEmpty(), "what can't be read is not replaced");
        return 0;
    }
    if (!isReadable(manager.mData))
        return 0;
    const QString text = manager.getScenario(true);
    require(manager.save().isEmpty() && readAll(path) == text.toUtf8(), "a save writes the tutorial");
    require(manager.setContents(path).isEmpty() && manager.isLoaded(), "what was saved can be read");
    require(manager.getScenario(true) == text, "what was saved comes back");
    return 0;
}

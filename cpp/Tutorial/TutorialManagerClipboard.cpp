// The item clipboard: the program's own, not the system's.

#include "tool/Log.h"
#include "Tutorial/ItemClipboard.h"
#include "Tutorial/TutorialManager.h"

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";

const QString kItemListType = QStringLiteral("TutorialItemData/ItemList");
} // namespace

void TutorialManager::copyTutorialItemList(const QList<int> &idList)
{
    QString payload;
    if (ItemClipboard::makePayload(idList, payload))
        setMimeData(kItemListType, payload.toUtf8());
}

QList<int> TutorialManager::pasteTutorialItemList()
{
    const auto secondHints =
        isMakingSupported() ? ItemClipboard::SecondHints::Copied : ItemClipboard::SecondHints::LookedUp;
    return ItemClipboard::insertPayload(QString::fromUtf8(mMimeData.data(kItemListType)), secondHints);
}

void TutorialManager::clearMimeData()
{
    mMimeData.clear();
    setMimeType(QStringLiteral("Empty"));
}

void TutorialManager::setMimeData(const QString &mimeType, const QByteArray &data)
{
    Log::debug(kFolder, "TutorialManager::setMimeData", __LINE__) << mimeType << QString::fromUtf8(data);
    mMimeData.clear();
    mMimeData.setData(mimeType, data);
    setMimeType(mimeType);
}

void TutorialManager::setMimeType(const QString &mimeType)
{
    if (mimeType == mMimeType)
        return;
    mMimeType = mimeType;
    Q_EMIT mimeTypeChanged();
}

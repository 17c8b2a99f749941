// The item clipboard: the program's own, not the system's.

#include "tool/Log.h"
#include "Tutorial/TutorialManager.h"

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";
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

// The loaded tutorial: from its file to the host editor and back to its file. And the item clipboard, which is the
// program's own, not the system's.

#include "model/EditHistory.h"
#include "tool/DataSupport.h"
#include "tool/Log.h"
#include "Tutorial/ItemClipboard.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/recovery/Recovery.h"
#include "Tutorial/translation/TutorialTranslation.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioText.h"

#include <QFileInfo>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";

const QLatin1String kSuffix(".js");
const QString kItemListType = QStringLiteral("TutorialItemData/ItemList");

/// Whether the host editor's name for a tutorial leads to that file in its folder, and not through it to elsewhere.
bool isInItsFolder(const QString &name, const QFileInfo &file)
{
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    return DataSupport::isFileName(name) && (!file.isSymLink() || file.canonicalPath() == folder);
}
} // namespace

QString TutorialManager::baseName(const QString &filename)
{
    QString name = filename.mid(filename.lastIndexOf(QLatin1Char('/')) + 1);
    if (name.endsWith(kSuffix))
        name.chop(kSuffix.size());
    return name;
}

QString TutorialManager::loadTutorial(const QString &filename)
{
    return load(filename, filename);
}

QString TutorialManager::load(const QString &source, const QString &filename)
{
    const QString name = baseName(filename);
    mTranslation->beginLoad(name);
    setTutorialName(name);
    const QStringList errors = mEditorManager->setContents(source);
    if (filename != source)
        mEditorManager->saveAs(filename);
    // What stayed because the file could not be opened keeps its hints.
    if (mEditorManager->isLoaded() || mEditorManager->mData.mDataList.isEmpty())
        mTranslation->endLoad();
    else
        mTranslation->keepItems();
    followHistory();
    Q_EMIT documentReplaced();
    mRecovery->lookFor(filename);
    return errors.join(QLatin1Char('\n'));
}

QString TutorialManager::reload()
{
    return loadTutorial(mEditorManager->mFilename);
}

QString TutorialManager::findUnreloadable() const
{
    const QString filename = mEditorManager->mFilename;
    const bool isGone = isModified() && !DataSupport::fileExists(filename);
    return isGone ? tr("%1 is not there any more.").arg(filename) : TutorialEditor::Manager::findUnopenable(filename);
}

void TutorialManager::loadAndFeedback(const QString &name)
{
    const QString path = QStringLiteral("qml/Tutorial/%1.js").arg(name);
    QString source = getExistsFilename(path);
    QString filename = source;
    if (isMakingSupported()) {
        filename = QLatin1String("tutorial-win/") + path;
        if (!isInItsFolder(name, QFileInfo(filename))) {
            Log::warning(kFolder, "TutorialManager::loadAndFeedback", __LINE__) << "no tutorial of the folder" << name;
            return;
        }
        // A resource can be read; it is saved as a file, which from then on goes before it.
        if (DataSupport::fileExists(filename) || !DataSupport::fileExists(source))
            source = filename;
        const QString refusal = TutorialEditor::Manager::findUnopenable(source);
        if (!refusal.isEmpty()) {
            Log::warning(kFolder, "TutorialManager::loadAndFeedback", __LINE__) << refusal;
            return;
        }
        // The steps of the history belong to the tutorial before.
        if (EditHistory *history = EditHistory::instance())
            history->clear();
    }
    const QString error = load(source, filename);
    if (error.isEmpty())
        startFromId(-1);
    else
        Log::warning(kFolder, "TutorialManager::loadAndFeedback", __LINE__) << "Failed to loadTutorial" << error;
}

void TutorialManager::startFromId(int id)
{
    QStringList errors;
    QString scenario =
        applyTranslationToText(ScenarioText::removeAssignment(mEditorManager->getScenario(false)), errors);
    scenario.prepend(QLatin1String("var scenario = "));
    scenario += QLatin1Char(';');
    sendMessage(HostMessages::message(HostMessages::ToHost::kStart, scenario, id));
}

QString TutorialManager::getTutorialJson()
{
    const QString path = getExistsFilename(QStringLiteral("qml/Tutorial/TutorialList.js"));
    QByteArray bytes;
    if (!DataSupport::readFile(path, bytes)) {
        Log::warning(kFolder, "TutorialManager::getTutorialJson", __LINE__) << "Failed to load" << path;
        return QString();
    }
    QStringList errors;
    const QString array = ScenarioText::removeAssignment(QString::fromUtf8(bytes), QStringLiteral("list"));
    QString text = mTranslation->applyTranslationToList(array, errors);
    if (!errors.isEmpty())
        Log::warning(kFolder, "TutorialManager::getTutorialJson", __LINE__) << errors;
    return text;
}

QString TutorialManager::getTutorialPath() const
{
    return QFileInfo(QStringLiteral("tutorial-win/qml/Tutorial")).absoluteFilePath();
}

QString TutorialManager::getChosenFilename(const QString &filename) const
{
    if (filename.endsWith(kSuffix) || DataSupport::fileExists(filename))
        return filename;
    return filename + kSuffix;
}

bool TutorialManager::isChangedOnDisk() const
{
    return mEditorManager->isChangedOnDisk();
}

QString TutorialManager::leftOut() const
{
    constexpr int shown = 10;
    QStringList lines = mEditorManager->leftOut();
    if (lines.isEmpty())
        return QString();
    if (lines.size() > shown) {
        const QString more = tr("and %1 more").arg(lines.size() - shown);
        lines = lines.mid(0, shown);
        lines.append(more);
    }
    lines.prepend(tr("The file holds what the tutorial leaves out:"));
    return lines.join(QLatin1Char('\n'));
}

QString TutorialManager::unreadableTranslations() const
{
    const QString paths = unreadableSources().join(QLatin1Char('\n'));
    return paths.isEmpty() ? paths : tr("The hints can't be read, and nothing is saved until they can:\n%1").arg(paths);
}

QStringList TutorialManager::unreadableSources() const
{
    return mTranslation->unreadableSources();
}

QString TutorialManager::save()
{
    // Of several files some may be the new ones and some the old ones when the process ends here.
    mRecovery->flush();
    // What is not the content of its file must not go into the translations either.
    if (mEditorManager->isSaveable() && !(feedbackTranslation() && saveTranslation()))
        return tr("Failed to save translation.");
    QString error = mEditorManager->save();
    if (error.isEmpty())
        Q_EMIT saved();
    return error;
}

void TutorialManager::unload()
{
    mEditorManager->clear();
    setTutorialName(QString());
    Q_EMIT documentReplaced();
}

void TutorialManager::setTutorialName(const QString &name)
{
    if (name == mTutorialName)
        return;
    mTutorialName = name;
    Q_EMIT tutorialNameChanged();
}

void TutorialManager::copyTutorialItemList(const QList<int> &idList)
{
    QString payload;
    if (ItemClipboard::makePayload(idList, payload, mTranslation->staleIds()))
        setMimeData(kItemListType, payload.toUtf8());
}

QList<int> TutorialManager::pasteTutorialItemList()
{
    const auto secondHints =
        isMakingSupported() ? ItemClipboard::SecondHints::Copied : ItemClipboard::SecondHints::LookedUp;
    QHash<int, bool> staleById;
    const QList<int> ids =
        ItemClipboard::insertPayload(QString::fromUtf8(mMimeData.data(kItemListType)), secondHints, &staleById);
    mTranslation->setStale(staleById);
    return ids;
}

void TutorialManager::clearMimeData()
{
    mMimeData.clear();
    setMimeType(QStringLiteral("Empty"));
}

void TutorialManager::setMimeData(const QString &mimeType, const QByteArray &data)
{
    Log::debugEachText(kFolder, "TutorialManager::setMimeData", __LINE__, { mimeType, QString::fromUtf8(data) });
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

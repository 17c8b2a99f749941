#include "TutorialEditor/Manager.h"

#include "model/DocumentContext.h"
#include "model/EditHistory.h"
#include "model/StepIcon.h"
#include "tool/DataSupport.h"
#include "tool/Log.h"
#include "TutorialEditor/ScenarioReader.h"
#include "TutorialEditor/ScenarioText.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace
{
constexpr char kFolder[] = "cpp/TutorialEditor";

TutorialEditor::Manager *currentManager = nullptr;

QByteArray hashOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md4); // the fastest of Qt's
}

QString translated(const QString &array, QStringList &errors)
{
    const DocumentContext *context = DocumentContext::instance();
    return context ? context->applyTranslationToText(array, errors) : array;
}

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.isSpace(); });
}
} // namespace

namespace TutorialEditor
{
Manager::Manager()
{
    Log::debug(kFolder, "TutorialEditor::Manager::Manager", __LINE__);
    currentManager = this;
    mData.mRoot = TreeItem<TutorialItemData>(-1, true);
}

Manager::~Manager()
{
    Log::debug(kFolder, "TutorialEditor::Manager::~Manager", __LINE__);
    currentManager = nullptr;
    dropRecords();
}

Manager *Manager::instance()
{
    if (!currentManager)
        new Manager; // stored by the constructor; the process owns it
    return currentManager;
}

/// Why a file that is there is not even opened: a device and a pipe may have no end, or never a beginning.
QString Manager::refusalOf(const QString &filename)
{
    const QFileInfo info(filename);
    if (info.exists() && !info.isFile() && !info.isDir())
        return tr("It is no file: %1").arg(filename);
    if (info.size() > DataSupport::kMostBytes)
        return tr("It is larger than %1 MiB: %2").arg(DataSupport::kMostBytes / 1024 / 1024).arg(filename);
    return QString();
}

QString Manager::findUnopenable(const QString &filename)
{
    QFile file(filename);
    QString refusal = refusalOf(filename);
    if (!refusal.isEmpty() || !file.exists() || DataSupport::openWhole(file))
        return refusal;
    return tr("%1 can't be read").arg(filename);
}

QStringList Manager::setContents(const QString &filename)
{
    mFilename = filename;
    mState = State::Unreadable;
    mLeftOut.clear();
    mFileHash.clear();
    QFile file(filename);
    const QString refusal = refusalOf(file.fileName());
    if (!refusal.isEmpty()) {
        replaceDocument();
        return { refusal };
    }
    if (!DataSupport::openWhole(file)) {
        Log::debug(kFolder, "TutorialEditor::Manager::setContents", __LINE__) << "failed to open" << filename;
        if (!file.exists())
            mState = State::New;
        return QStringList();
    }
    QByteArray bytes = file.readAll();
    mFileHash = hashOf(bytes);
    QString text = ScenarioReader::decoded(bytes);
    // A read that broke off is no blank file.
    const bool blank = isBlank(text) && file.error() == QFile::NoError;
    const bool damaged = DataSupport::isDamaged(text, bytes);
    file.close();
    bytes.clear(); // which a large document is better off without

    QStringList errors;
    text = translated(ScenarioReader::arrayOf(std::move(text)), errors);
    replaceDocument();
    if (ScenarioReader::read(text, mData, mLeftOut)) {
        mState = State::Loaded;
        if (damaged)
            mLeftOut.prepend(tr("Characters that are not UTF-8"));
    } else {
        mState = blank ? State::New : State::Unreadable;
        errors.append(QStringLiteral("json is not array"));
    }
    if (!errors.isEmpty())
        Log::debug(kFolder, "TutorialEditor::Manager::setContents", __LINE__) << errors;
    return errors;
}

QString Manager::save()
{
    const QString text = getScenario(true);
    Log::debugEachText(kFolder, "TutorialEditor::Manager::save", __LINE__, { mFilename, text });
    if (mFilename.isEmpty())
        return tr("Tutorial not loaded yet.");
    // What could not be read is not in the document, so that writing the document would empty the
    // file.
    if (!isSaveable())
        return tr("Failed to save.");
    // The folders of a new tutorial may be new too.
    const bool hasFolder = DataSupport::mkpath(QFileInfo(mFilename).path());
    const QByteArray bytes = text.toUtf8();
    if (!hasFolder || !DataSupport::writeFile(mFilename, bytes)) {
        // What has got there all the same is no one else's change.
        QByteArray written;
        if (DataSupport::readFile(mFilename, written) && written == bytes)
            mFileHash = hashOf(bytes);
        return tr("Failed to save.");
    }
    mState = State::Loaded;
    mLeftOut.clear();
    mFileHash = hashOf(bytes);
    if (EditHistory *history = EditHistory::instance())
        history->markClean();
    return QString();
}

void Manager::saveAs(const QString &filename)
{
    mFilename = filename;
    mFileHash.clear();
}

bool Manager::isChangedOnDisk() const
{
    return isSaveable() && compareFile(mFilename, mFileHash) == FileState::Changed;
}

Manager::FileState Manager::compareFile(const QString &filename, const QByteArray &hash)
{
    // Not QFile's own word, which takes a link that leads nowhere for a file.
    if (!QFileInfo::exists(filename))
        return FileState::Missing;
    QFile file(filename);
    // What can't be read any more is something else, too.
    return DataSupport::openWhole(file) && hashOf(file.readAll()) == hash ? FileState::Same : FileState::Changed;
}

bool Manager::restore(const QString &filename, const QString &array, const QByteArray &fileHash,
                      const QStringList &leftOut)
{
    TreeDataTemplate<TutorialItemData> document;
    QStringList lost;
    if (!ScenarioReader::read(array, document, lost)) {
        qDeleteAll(document.mDataList);
        return false;
    }
    replaceDocument();
    mData.mDataList = document.mDataList;
    mData.mRoot.mChildren = document.mRoot.mChildren;
    mFilename = filename;
    mFileHash = fileHash;
    mLeftOut = leftOut;
    mState = State::Loaded;
    return true;
}

void Manager::save(const QString &text)
{
    Log::debugEachText(kFolder, "TutorialEditor::Manager::save", __LINE__, { mFilename, text });
    if (mFilename.isEmpty())
        return;
    const bool saved = DataSupport::writeFile(mFilename, ScenarioText::addAssignment(text).toUtf8());
    Log::debug(kFolder, "TutorialEditor::Manager::save", __LINE__) << (saved ? "saved" : "failed to save") << mFilename;
}

void Manager::clear()
{
    // The commands of the history go first: they may hold records of this document.
    if (EditHistory *history = EditHistory::instance())
        history->clear();
    dropRecords();
    mData.clearTree();
    mData.mRoot = TreeItem<TutorialItemData>(-1, true);
    // Nothing is loaded any more, so that a save has no file to empty.
    mFilename.clear();
    mState = State::Unreadable;
    mLeftOut.clear();
}

void Manager::replaceDocument()
{
    mReplacedRecords += mData.mDataList;
    mData.mDataList.clear();
    mData.clearTree();
    const EditHistory *history = EditHistory::instance();
    if (!history || history->isEmpty())
        dropRecords();
}

void Manager::dropRecords()
{
    qDeleteAll(mReplacedRecords);
    mReplacedRecords.clear();
    qDeleteAll(mData.mDataList);
    mData.mDataList.clear();
}

QString Manager::getStepIconPath(int index)
{
    return StepIcon::picture(index);
}

void Manager::focusActionId(int id)
{
    Log::debug(kFolder, "TutorialEditor::Manager::focusActionId", __LINE__) << id;
    instance();
}

void Manager::setCoordinates(int x, int y)
{
    Log::debug(kFolder, "TutorialEditor::Manager::setCoordinates", __LINE__) << x << y;
    instance();
}

void Manager::setCondition(const QStringList &conditions)
{
    Log::debug(kFolder, "TutorialEditor::Manager::setCondition", __LINE__) << conditions;
    instance();
}

void Manager::clearDialog()
{
    Log::debug(kFolder, "TutorialEditor::Manager::clearDialog", __LINE__);
}
} // namespace TutorialEditor

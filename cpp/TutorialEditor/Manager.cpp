#include "TutorialEditor/Manager.h"

#include "model/DocumentContext.h"
#include "model/EditHistory.h"
#include "tool/DataSupport.h"
#include "tool/FreeNames.h"
#include "tool/Log.h"
#include "TutorialEditor/LoadLosses.h"
#include "TutorialEditor/ScenarioText.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTextCodec>

#include <algorithm>

namespace
{
constexpr char kFolder[] = "cpp/TutorialEditor";

TutorialEditor::Manager *currentManager = nullptr;

QByteArray hashOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md4); // the fastest of Qt's
}

/// As a text stream reads it, at once: what a byte order mark says, else UTF-8; a character cut short at the end is
/// left out.
QString decoded(const QByteArray &bytes)
{
    const QTextCodec *codec = QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"));
    QTextCodec::ConverterState state;
    return codec->toUnicode(bytes.constData(), bytes.size(), &state);
}

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.isSpace(); });
}

/// Most items have the key, the condition and the icon of others, and one hint for both languages where only one is
/// known. Texts holds one of each.
void shareTexts(TutorialItemData &record, QSet<QString> &texts)
{
    for (QString *text : { &record.mWindowKey, &record.mCondition, &record.mIcon, &record.mCommand })
        *text = *texts.insert(*text);
    if (record.mHint2 == record.mHint)
        record.mHint2 = record.mHint;
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
QString Manager::refusalOf(const QString &filename) const
{
    const QFileInfo info(filename);
    if (info.exists() && !info.isFile() && !info.isDir())
        return tr("It is no file: %1").arg(filename);
    if (info.size() > DataSupport::kMostBytes)
        return tr("It is larger than %1 MiB: %2").arg(DataSupport::kMostBytes / 1024 / 1024).arg(filename);
    return QString();
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
    QString text = decoded(bytes);
    // A read that broke off is no blank file.
    const bool blank = isBlank(text) && file.error() == QFile::NoError;
    const bool damaged = DataSupport::isDamaged(text, bytes);
    file.close();
    bytes.clear(); // which a large document is better off without

    text = ScenarioText::removeLineComments(ScenarioText::removeBlockComments(text));
    text = ScenarioText::removeAssignment(std::move(text));
    QStringList errors;
    if (const DocumentContext *context = DocumentContext::instance())
        text = context->applyTranslationToText(text, errors);

    replaceDocument();
    if (readItems(text)) {
        mState = State::Loaded;
        if (damaged)
            mLeftOut.prepend(tr("Characters that are not UTF-8"));
        fillInNames();
    } else {
        mState = blank ? State::New : State::Unreadable;
        errors.append(QStringLiteral("json is not array"));
    }
    if (!errors.isEmpty())
        Log::debug(kFolder, "TutorialEditor::Manager::setContents", __LINE__) << errors;
    return errors;
}

bool Manager::readItems(const QString &arrayText)
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
        const int firstRecord = mData.mDataList.size();
        const std::unique_ptr<TreeItem<TutorialItemData>> item(
            TreeItem<TutorialItemData>::createFromJson(element, &mData.mDataList, &kept));
        if (item)
            mData.mRoot.mChildren.append(*item);
        QList<int> ids;
        for (int record = firstRecord; record < mData.mDataList.size(); ++record) {
            shareTexts(*mData.mDataList.at(record), texts);
            ids.append(mData.mDataList.at(record)->mId);
        }
        if (item && kept)
            losses.inspectKept(element.toValue(), ids);
        else
            losses.inspect(element.toValue());
    }
    mLeftOut = losses.lines();
    // The text of several values stands for the first one.
    if (json.kind() == JsonWrapper::kValue)
        mLeftOut.prepend(tr("What follows the steps"));
    return true;
}

void Manager::fillInNames()
{
    const auto isNameless = [](const TutorialItemData *record) { return record->mName.isEmpty(); };
    if (std::none_of(mData.mDataList.cbegin(), mData.mDataList.cend(), isNameless))
        return;
    QStringList names = mData.getNameList();
    names.removeAll(QString());
    FreeNames freeNames(names);
    const QString folderBase = tr("folder");
    const QString itemBase = tr("item");
    mData.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        TutorialItemData *record = item.mId < 0 ? nullptr : mData.getData(item.mId);
        if (record && record->mName.isEmpty())
            record->mName = freeNames.next(item.mFolder ? folderBase : itemBase, 3);
    });
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
    QDir().mkpath(QFileInfo(mFilename).path());
    const QByteArray bytes = text.toUtf8();
    if (!DataSupport::writeFile(mFilename, bytes)) {
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

bool Manager::isChangedOnDisk() const
{
    QFile file(mFilename);
    // What can't be read any more is something else, too.
    return isSaveable() && file.exists() && !(DataSupport::openWhole(file) && hashOf(file.readAll()) == mFileHash);
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
    static const QStringList files = { QStringLiteral("click.png"),       QStringLiteral("double_click.png"),
                                       QStringLiteral("right_click.png"), QStringLiteral("eye.png"),
                                       QStringLiteral("wait.png"),        QStringLiteral("keyboard.png") };
    if (index < 0 || index >= files.size())
        return QString();
    return QStringLiteral(":/resource/png/%1").arg(files.at(index));
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

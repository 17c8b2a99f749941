#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace TutorialEditor
{
/// The document of the one loaded tutorial: its file, its records and its tree. It exists once in
/// the process, and owns the records that stand in its list.
///
/// It shows no message: what fails is returned as a text for the user or as a list of such texts.
class Manager : public QObject
{
    Q_OBJECT

public:
    Manager();
    ~Manager() override;

    /// The single instance, made if there is none yet.
    static Manager *instance();

    /// Reads the file into the document. The result is empty when no error was seen. A file that
    /// can't be opened leaves the document as it was and gives no error; one that doesn't parse
    /// leaves it empty. Where the file is missing or blank, the document is a new one of its name.
    QStringList setContents(const QString &filename);

    /// The scenario as script text; with forSaving each hint is a translation call with its item's
    /// key, else a plain string.
    QString getScenario(bool forSaving) const;

    /// Appends the array of the item's children to the text.
    static void getJsonText(int level, const TreeItem<TutorialItemData> &item,
                            const TreeDataTemplate<TutorialItemData> &data, QString &text, bool forSaving);

    /// Stores the scenario in its file. The result is empty on success, else a translated message;
    /// the document then still counts as modified.
    QString save();
    /// Stores a given scenario array in the file, without touching the history.
    void save(const QString &text);

    /// Whether the document is what its file held.
    bool isLoaded() const { return mState == State::Loaded; }
    /// Whether a save loses nothing that stands in the file.
    bool isSaveable() const { return mState != State::Unreadable; }

    /// Why a load of the file would leave the document as it is, or empty it, although something is there; empty if it
    /// would not.
    static QString findUnopenable(const QString &filename);

    /// Has the document saved as that file from here on.
    void saveAs(const QString &filename);

    /// Whether the file holds something else than when it was read or saved here; false where it is
    /// missing.
    bool isChangedOnDisk() const;
    /// What has become of a file since it had that content.
    enum class FileState { Same, Changed, Missing };
    static FileState compareFile(const QString &filename, const QByteArray &hash);
    /// Which content of the file the document was read from, or saved to; empty for a file that was missing.
    const QByteArray &fileHash() const { return mFileHash; }

    /// Makes the array of a scenario, in which no hint needs a translation, the document of that file, as if it had
    /// been read from the file when that had that content, and edited since. False, with the document as it was, if it
    /// can't be read.
    bool restore(const QString &filename, const QString &array, const QByteArray &fileHash, const QStringList &leftOut);

    /// What stands in the file and not in the document, as texts for the user. A save drops it.
    const QStringList &leftOut() const { return mLeftOut; }

    /// Forgets the document and its history.
    void clear();

    /// The picture of an icon by its number, or an empty text for a number that has none.
    static QString getStepIconPath(int index);

    /// Requests from outside. They are logged and change nothing.
    static void focusActionId(int id);
    static void setCoordinates(int x, int y);
    static void setCondition(const QStringList &conditions);
    static void clearDialog();

    /// Full name of the scenario file; empty until a load.
    QString mFilename;
    TreeDataTemplate<TutorialItemData> mData;

private:
    Q_DISABLE_COPY(Manager)

    enum class State {
        Unreadable, // nothing is loaded, or the file holds what is not in the document
        New, // the file is missing or blank
        Loaded
    };

    static QString refusalOf(const QString &filename);
    void replaceDocument();
    void dropRecords();

    // Undo commands can still point to the records of a replaced document until the history is
    // cleared.
    QList<TutorialItemData *> mReplacedRecords;
    QStringList mLeftOut;
    QByteArray mFileHash; // of the file as it was read or saved
    State mState = State::Unreadable;
};
} // namespace TutorialEditor

#pragma once

#include "model/DocumentContext.h"
#include "Tutorial/guidance/GuidanceContext.h"
#include "Tutorial/guidance/GuidanceVisibility.h"
#include "Tutorial/guidance/GuidanceWindows.h"
#include "Tutorial/guidance/HostWindows.h"
#include "Tutorial/link/HostLink.h"
#include "Tutorial/recovery/RecoveryContext.h"

#include <QHash>
#include <QMimeData>
#include <QObject>
#include <QPoint>
#include <QSet>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <memory>

class QJSEngine;
class QQmlEngine;
class Recovery;
class TutorialTranslation;

namespace TutorialEditor
{
class Manager;
}

/// The hub of the program: the link to the host editor, the guidance windows, the loaded tutorial,
/// its translations and the item clipboard. A QML singleton.
///
/// Positions are in screen pixels, ticks are 100 ms. Failures are returned as translated texts for
/// the user, empty on success; what nobody can act on is a warning in the log.
class TutorialManager : public QObject, public DocumentContext, public GuidanceContext, public RecoveryContext
{
    Q_OBJECT
    Q_PROPERTY(bool modified READ isModified WRITE setModified NOTIFY modifiedChanged)
    Q_PROPERTY(QString mimeType READ mimeType NOTIFY mimeTypeChanged)
    Q_PROPERTY(QString tutorialName READ tutorialName NOTIFY tutorialNameChanged)
    Q_PROPERTY(QString currentWindowKey READ getCurrentWindowKey NOTIFY currentWindowKeyChanged)
    Q_PROPERTY(QString locale READ locale WRITE setLocale NOTIFY localeChanged)
    /// The Recovery.
    Q_PROPERTY(QObject *recovery READ recovery CONSTANT)
    Q_PROPERTY(QString locale2 READ locale2 WRITE setLocale2 NOTIFY locale2Changed)

public:
    TutorialManager(QQmlEngine *engine, QJSEngine *scriptEngine);
    ~TutorialManager() override;

    /// Makes the singleton; both engines may be null. The first becomes its parent.
    static QObject *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    // The link.
    /// Sends one message. It is dropped without a word while there is no link.
    void sendMessage(const QString &text);
    Q_INVOKABLE bool connected() const { return mLink.isConnected(); }
    /// Closes the log and ends the process with the exit code 0. Does not return.
    Q_INVOKABLE void requestClose();
    Q_INVOKABLE void callbackCoffeeJs(int key, const QString &result);
    /// A constant of the build: whether this is the authoring mode.
    Q_INVOKABLE static bool isMakingSupported();

    // The host editor's windows, and whether the guidance is to be seen.
    Q_INVOKABLE QString getCurrentWindowKey() const;
    /// The last reported position of a window or control; (0, 0) for a key that was never reported.
    Q_INVOKABLE QPoint getXy(const QString &windowKey) const;
    const HostWindows &hostWindows() const { return mHostWindows; }
    Q_INVOKABLE QPoint getCursorPos() const;
    /// Tells the host editor, and the indicator, of an item's new place.
    Q_INVOKABLE void updateIndicatorXyWindowKey(int x, int y, const QString &windowKey);
    void setPosition(const QString &key, int x, int y);
    void dropPopupWindowKey() override;
    void updateGuidanceVisibility() override;
    void pressed(Button button) override;
    void editorTooltipClosed() override;
    QRect hostRect() const override { return mHostWindows.hostRect(); }
    bool isGuidanceRunning() const override { return mVisibility.isRunning(); }

    // The loaded tutorial.
    /// Makes the file the loaded tutorial. Its name is set also when the load fails.
    Q_INVOKABLE QString loadTutorial(const QString &filename);
    /// Loads the tutorial of tutorialName again from the file that it came from.
    Q_INVOKABLE QString reload();
    /// Why a reload would lose what is loaded and give nothing for it; empty if it would not.
    Q_INVOKABLE QString findUnreloadable() const;
    /// Sends the loaded scenario to the host editor, which begins at the item of that id; -1 is the
    /// beginning.
    Q_INVOKABLE void startFromId(int id = -1);
    /// Whether someone else has changed the file of the loaded tutorial since it was read or saved.
    Q_INVOKABLE bool isChangedOnDisk() const;
    /// What the file of the loaded tutorial holds and a save would drop; empty if there is nothing.
    Q_INVOKABLE QString leftOut() const;
    /// The translation sources that can't be read, as a text for the user; empty if there are none. Until they can be
    /// read, a save is refused.
    Q_INVOKABLE QString unreadableTranslations() const;
    /// Their paths.
    QStringList unreadableSources() const;
    /// Saves the translations and then the scenario.
    Q_INVOKABLE QString save();
    Q_INVOKABLE void unload();
    /// The translated list of tutorials as JSON text; empty when it can't be read.
    Q_INVOKABLE QString getTutorialJson();
    /// The folder of the tutorials that the authoring mode edits, as an absolute path.
    Q_INVOKABLE QString getTutorialPath() const;
    /// The file that a writer means by what was chosen: a new one gets the suffix of the tutorials.
    Q_INVOKABLE QString getChosenFilename(const QString &filename) const;
    /// Loads the tutorial that the host editor has named, and hands it over. In the authoring mode
    /// the history ends, and what the writer has on disk is taken where it is there.
    Q_INVOKABLE void loadAndFeedback(const QString &name);

    // What is unsaved when the process ends.
    QObject *recovery() const;
    QString project() const override;
    bool isKeepable() const override;
    bool isModified() const override { return mModified; }
    UnsavedWork unsavedWork(const QList<TypedValue> &typed) const override;
    TutorialState storedState(const QString &path) const override;
    bool takeUp(const RecoveryCopy &copy) override;

    // The item clipboard.
    Q_INVOKABLE void clearMimeData();
    /// The clipboard stays as it was when one of the ids has no item.
    Q_INVOKABLE void copyTutorialItemList(const QList<int> &idList);
    /// The new ids of the pasted items at the top level.
    Q_INVOKABLE QList<int> pasteTutorialItemList();
    void setMimeData(const QString &mimeType, const QByteArray &data);

    // Translation.
    /// The text in the installed translators; the text itself when none knows it.
    QString applyTranslation(const QString &context, const QString &sourceText) const;
    QString applyTranslationToText(const QString &text, QStringList &errors) const override;
    QString parseStringExpression(const QString &text, const QString &context, QString &rest,
                                  QStringList &errors) const;
    QString translate(const QString &key) const override;
    /// Reads the translation sources of both locales; false with a warning when one can't be read.
    bool loadTranslation();
    bool saveTranslation();
    /// Reads the translation documents again and hands the hints of all items to them. An item that was not edited
    /// takes over what others have written for it since the load. False with a warning when a file can't be read.
    bool feedbackTranslation();
    /// The items whose second hint was made from another first hint than that of now.
    QSet<int> staleIds() const;
    /// The second hint of the item stands although the first one has changed. A save then says so in the file.
    Q_INVOKABLE void confirmTranslation(int id);
    /// The writer has made the second hint of the item from the first one of now.
    void noteTranslated(int id);
    /// Writes the hints as an XLIFF file for a translator. The reason for a failure, if any.
    Q_INVOKABLE QString exportTranslation(const QString &path) const;
    /// Takes over what was translated in such a file, as one step of the history. "error" has the reason for a failure,
    /// which has changed nothing; else "report" tells what was taken and what was not.
    Q_INVOKABLE QVariantMap importTranslation(const QString &path);

    void setModified(bool modified) override;
    void setPendingJumpLink(const QString &linkInfo) override;
    QString mimeType() const { return mMimeType; }
    QString tutorialName() const { return mTutorialName; }
    QString locale() const;
    QString locale2() const;
    void setLocale(const QString &locale);
    void setLocale2(const QString &locale);

public Q_SLOTS:
    void onApplicationStateChanged(Qt::ApplicationState state);
    /// Carries out one message of the host editor.
    void onReceived(const QString &text);
    void onReadyRead();
    void onConnected();
    void onDisconnected();
    void onTimerTimeout();

Q_SIGNALS:
    void received(const QString &text);
    void modifiedChanged();
    void saved();
    /// Comes a little after an undo or redo, never from inside one.
    void jumpLinkChanged(const QString &linkInfo);
    void mimeTypeChanged();
    void tutorialNameChanged();
    void localeChanged();
    void locale2Changed();
    void actionIdChanged(int actionId);
    void currentWindowKeyChanged();
    /// The host editor wants that tutorial, in the authoring mode: loadAndFeedback() is for the
    /// screen to call, after the save check.
    void tutorialRequested(const QString &name);
    /// The document was loaded anew or unloaded: what shows it must be rebuilt.
    void documentReplaced();
    /// Second hints have become stale, or are so no more, though no text has changed.
    void staleIdsChanged();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    Q_DISABLE_COPY(TutorialManager)

    using MessageHandler = void (TutorialManager::*)(const QStringList &fields);
    static const QHash<QString, MessageHandler> &messageHandlers();
    void onCoffeeJs(const QStringList &fields);
    void onStart(const QStringList &fields);
    void onStop(const QStringList &fields);
    void onTutorialList(const QStringList &fields);
    void onIndicator(const QStringList &fields);
    void onState(const QStringList &fields);
    void onWindowStack(const QStringList &fields);
    void onPosition(const QStringList &fields);
    void onTutorial(const QStringList &fields);
    void onFromServer(const QStringList &fields);
    void onRequestPresetData(const QStringList &fields);
    void onShowTooltip(const QStringList &fields);
    void onHideTooltip(const QStringList &fields);

    void connectToHost(const QString &suffix);
    void startGuidance();
    void stopGuidance();

    void followHistory();
    /// The name of the tutorial of that file.
    static QString baseName(const QString &filename);
    QString load(const QString &source, const QString &filename);
    void setTutorialName(const QString &name);
    void setMimeType(const QString &mimeType);

    QQmlEngine *mEngine;
    QJSEngine *mScriptEngine;
    HostWindows mHostWindows;
    GuidanceWindows mGuidanceWindows;
    GuidanceVisibility mVisibility;
    HostLink mLink;
    int mTickTimerId = 0;
    bool mModified = false;
    QString mPendingJumpLink;
    QTimer mDeferredTimer;
    std::unique_ptr<TutorialEditor::Manager> mEditorManager;
    std::unique_ptr<TutorialTranslation> mTranslation; // works on the editor manager's document
    std::unique_ptr<Recovery> mRecovery;
    QMimeData mMimeData;
    QString mMimeType;
    QString mTutorialName;
};

/// The single instance; null before it is made and after its end.
extern TutorialManager *managerInstance;

#pragma once

#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QQmlApplicationEngine>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <QVariant>

class QQuickItem;
class QQuickWindow;
class QWidget;

/// Takes down what scripts of the screens report.
class Recorder : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void add(const QVariant &value) { mValues += value.toString(); }
    const QStringList &values() const { return mValues; }
    QStringList take() { return std::exchange(mValues, {}); }

private:
    QStringList mValues;
};

/// The application window of the authoring mode in the test's own process, with a link that is kept
/// alive and a tutorial in a folder of its own. The singletons are the real ones, so that a process
/// has one of these.
class MainWindowFixture : public QObject
{
    Q_OBJECT

public:
    /// The link suffix that the application object must have been given.
    static QString linkSuffix();

    MainWindowFixture();

    /// Lays out the tutorial's folder, and loads the window. False with a line in the log.
    bool load();

    QQuickWindow *window() const { return mWindow; }
    QObject *manager() const { return mManager; }
    Recorder &recorder() { return mRecorder; }

    /// Evaluates a script in the context of the window.
    QVariant evaluate(const QString &script) const;
    /// Loads the tutorial of the folder.
    void loadTutorial();
    QString tutorialFile() const;

    /// The visible window of that object name, or null.
    QQuickWindow *visibleWindow(const QString &objectName) const;
    /// The visible item in the window with that object name or text, or null.
    static QQuickItem *find(QQuickItem *item, const QString &nameOrText);
    static void click(QQuickWindow *window, const QString &nameOrText);
    /// The visible dialog that the toolkit makes of a widget, or null.
    static QWidget *visibleDialog();
    /// Opens a menu by its mnemonic and gives its window.
    QQuickWindow *openMenu(Qt::Key mnemonic) const;

private:
    QTemporaryDir mFolder;
    QLocalServer mServer;
    QLocalSocket *mSocket = nullptr;
    QTimer mAlive;
    Recorder mRecorder;
    QQmlApplicationEngine mEngine;
    QQuickWindow *mWindow = nullptr;
    QObject *mManager = nullptr;
};

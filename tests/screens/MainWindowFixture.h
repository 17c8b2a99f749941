#pragma once

#include "ProgramLink.h"

#include <QMessageBox>
#include <QQmlApplicationEngine>
#include <QTemporaryDir>
#include <QVariant>

#include <memory>

class QApplication;
class QQuickItem;
class QQuickWindow;

/// The application window of the authoring mode in the test's own process, linked to a host and with
/// a project in a folder of its own. The singletons are the real ones: a process has one of these.
class MainWindowFixture
{
public:
    /// The application object, with settings of its own.
    static std::unique_ptr<QApplication> makeApplication(char *program);

    /// Lays out the project, which becomes the current directory, and loads the window. False with a
    /// line in the log.
    bool load();
    /// Lets the window have the focus, which dialogs may have taken.
    bool activate() const;

    QQuickWindow *window() const { return mWindow; }
    ProgramLink &host() { return mHost; }

    /// Evaluates a script in the context of the window, which has a list "answers" for its use.
    QVariant evaluate(const QString &script) const;

    static void writeFile(const QString &path, const QByteArray &contents);
    /// The visible window of that object name, or null.
    static QQuickWindow *visibleWindow(const char *objectName);
    /// The visible item in the item with that object name or text, or null.
    static QQuickItem *find(QQuickItem *item, const QString &nameOrText);
    static void click(QQuickItem *item, bool twice = false);
    /// The visible dialog that the toolkit makes of a widget, or null.
    static QWidget *dialog();
    static QMessageBox *messageBox() { return qobject_cast<QMessageBox *>(dialog()); }
    /// Waits for a message box, clicks a button of it and waits until it is gone. The text of the box.
    static QString answer(QMessageBox::StandardButton button);

private:
    QTemporaryDir mFolder;
    ProgramLink mHost;
    QQmlApplicationEngine mEngine;
    QQuickWindow *mWindow = nullptr; // owned by the engine
};

#pragma once

#include "Measurement.h"

#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QVariant>

#include <functional>
#include <memory>

class HostStub;
class TreeListItemSelectionModel;

/// The application window of the authoring mode, linked to a host that says no more than that it is alive, with a
/// project in a folder of its own, and with the hands of a writer. A process has one of these.
class AuthoringWindow
{
public:
    /// Listens on the suffix that the application was given before it loads the window.
    AuthoringWindow();
    ~AuthoringWindow();

    /// The keys of the menus are those of the active window's.
    void activate();

    /// Stores a tutorial with those items and their hints in both languages, for open().
    void store(int itemCount, const QString &scenario);
    /// Opens what was stored last, from nothing: what was edited is forgotten.
    Cost open();
    /// Loads what was stored last into the document.
    void load();

    /// What the act costs until the condition holds, the tree has come to rest and the next frame shows it.
    Cost measure(const std::function<void()> &act, const std::function<bool()> &done = nullptr);

    QQuickWindow *window() const { return mWindow; }
    QQuickItem *item(const char *name) const { return mWindow->findChild<QQuickItem *>(QLatin1String(name)); }
    QQuickItem *tree() const { return mTree; }
    TreeListItemSelectionModel *selection() const;
    /// The delegate of a row; null where it is out of view.
    QQuickItem *row(int id) const;
    int currentId() const;
    QVariant evaluate(const QString &script) const;

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void click(const QQuickItem *target) const;
    void click(int id, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// A point of a row that is in view; dy from its middle.
    QPoint at(int id, int dy = 0) const;
    /// Turns the wheel over the tree, so many pixels down.
    void wheel(int pixels) const;
    /// Scrolls without a wheel, to the row of that number.
    void scrollToRow(int number);
    qreal scrolled() const;
    /// Waits until the tree has come to rest and a frame shows it.
    void settle();

private:
    bool rests() const;

    bool mEmpty = true;
    QTemporaryDir mFolder;
    std::unique_ptr<HostStub> mHost;
    QQmlApplicationEngine mEngine;
    QQuickWindow *mWindow = nullptr; // owned by the engine
    QQuickItem *mTree = nullptr;
    QVector<QPointer<QObject>> mTimers; // those of the tree
};

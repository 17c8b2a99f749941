#pragma once

#include "HostLink.h"

#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QMessageBox>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

/// The real application window in the authoring mode, on a small tutorial of its own: a folder (1)
/// with the items 2 and 3, and the item 4 behind it.
class SettingScreenFixture : public QObject
{
    Q_OBJECT

public:
    explicit SettingScreenFixture(HostLink *host) : mHost(host) { }

    /// Runs a test beside a host editor of its own.
    template <typename Test>
    static int run(int argc, char *argv[])
    {
        return run(argc, argv, [](HostLink *host) -> QObject * { return new Test(host); });
    }

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    static int run(int argc, char *argv[], QObject *(*makeTest)(HostLink *host));

    /// The translation of an item's hint in the file on disk.
    static QString savedHint(const QString &locale, int id);

    template <typename T = QQuickItem>
    T *find(const char *name)
    {
        return mWindow->findChild<T *>(QLatin1String(name));
    }
    QObject *screen() { return find<QObject>("TutorialSettingItem"); }
    QQuickItem *tree() { return find("treeListView"); }
    int currentId() { return screen()->property("itemId").toInt(); }
    QString condition(int id) { return record(id)->mCondition; }
    static TutorialItemData *record(int id) { return TutorialEditor::Manager::instance()->mData.getData(id); }

    void select(int id);
    void click(QQuickItem *target, QQuickWindow *window = nullptr, bool twice = false);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    void typeInto(const char *name, const QString &text);
    QVariant call(const char *function)
    {
        QVariant r;
        QMetaObject::invokeMethod(screen(), function, Q_RETURN_ARG(QVariant, r));
        return r;
    }
    void answer(QMessageBox::StandardButton button);
    QMessageBox *openBox() const;

    HostLink *mHost;
    QScopedPointer<QTemporaryDir> mFolder;
    QQmlApplicationEngine mEngine;
    QQuickWindow *mWindow = nullptr; // owned by the engine
};

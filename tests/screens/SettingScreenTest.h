#pragma once

#include "MainWindowFixture.h"

#include "TutorialEditor/Manager.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

/// A test of the settings screen in the real application window, by mouse and key events.
class SettingScreenTest : public QObject
{
protected:
    /// Brings the window up. It goes with the test.
    void load();
    /// Loads a scenario of these items, as the window's own reload does.
    void loadScenario(const QByteArray &items);

    /// An item as the scenario file has it.
    static QByteArray itemText(int id, const QString &name, const QString &condition = QString());
    static QString scenarioPath();

    QQuickItem *find(const char *name) { return mWindow->findChild<QQuickItem *>(QLatin1String(name)); }
    QString shown(const char *field) { return find(field)->property("text").toString(); }
    QQuickItem *screen() { return find("TutorialSettingItem"); }
    QQuickItem *tree() { return find("treeListView"); }
    int currentId() { return screen()->property("itemId").toInt(); }
    static TutorialItemData *record(int id) { return TutorialEditor::Manager::instance()->mData.getData(id); }
    static QString condition(int id) { return record(id)->mCondition; }

    /// Waits until no timer of the tree runs: what follows a selection in short timers must not take
    /// the focus from what is done next.
    void settle();
    void select(int id);
    static void click(QQuickItem *target);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    void typeInto(const char *name, const QString &text);

    std::unique_ptr<MainWindowFixture> mFixture;
    QQuickWindow *mWindow = nullptr; // owned by the fixture
};

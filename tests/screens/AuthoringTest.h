#pragma once

#include "ProgramLink.h"
#include "support/EditingSession.h"
#include "support/WarningGuard.h"

#include <QApplication>
#include <QMessageBox>
#include <QPoint>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QVariant>

#include <memory>

/// A test of the real application window of the authoring mode, in the test's own process, with the
/// hands and eyes of a writer. The window is linked to a host and has a project in a folder of its
/// own. The singletons are the real ones: a process has one of these.
class AuthoringTest : public QObject
{
    Q_OBJECT

public:
    /// Runs a test. At its end the window is closed, which has to end the process; its result is the
    /// test's. A window that asks about changes gets the answer No.
    template <typename Test>
    static int run(int argc, char *argv[])
    {
        const auto application = makeApplication(argv[0]);
        Test test;
        const int result = QTest::qExec(&test, argc, argv);
        return result == 0 ? test.endByClosing() : result;
    }

protected Q_SLOTS:
    void initTestCase();
    void init()
    {
        mStarts.clear();
        mWarnings.begin();
        QVERIFY(activate());
    }
    void cleanup();

protected:
    // File names in the project.
    static inline const QString kTutorial = QStringLiteral("tutorial-win/qml/Tutorial/Sample.js");
    static inline const QString kJapanese = QStringLiteral("tutorial-win/translations/ja_JP.ts");
    static inline const QString kEnglish = QStringLiteral("tutorial-win/translations/en_US.ts");
    static inline const QString kShape = QStringLiteral("1 2[3 4[5 6] 7] 8[] 9");

    /// Loads a tutorial of that shape: "1 2[3 4[]] 5" is item 1, folder 2 with item 3 and the empty
    /// folder 4, and item 5, with the names "name1" to "name5".
    void load(const QString &shape);
    static QString longShape(int count);
    static QString shape() { return EditingSession::shapeOf(TutorialEditor::Manager::instance()->mData.mRoot); }
    static TutorialItemData *record(int id) { return TutorialEditor::Manager::instance()->mData.getData(id); }
    /// Evaluates a script in the context of the window.
    QVariant evaluate(const QString &script) const;

    // What is on the screen

    QQuickItem *item(const char *name) const { return mWindow->findChild<QQuickItem *>(QLatin1String(name)); }
    QString shown(const char *field) const { return item(field)->property("text").toString(); }
    QQuickItem *screen() const { return item("TutorialSettingItem"); }
    QQuickItem *tree() const { return item("treeListView"); }
    QQuickItem *marker() const { return item("marker"); }
    /// The id in the settings, and the ids that are highlighted in tree order.
    int currentId() const { return screen()->property("itemId").toInt(); }
    QString selected() const;
    QQuickItem *row(int id) const;
    QQuickItem *renameField(int id) const { return row(id)->findChild<QQuickItem *>(QStringLiteral("renameField")); }
    /// The rows in view from the top, as their delegates show them: id and name, with "/" for a
    /// folder and a blank per level before.
    QStringList shownRows() const;
    QString shownIds() const;
    qreal scrolled() const;
    static QQuickWindow *visibleWindow(const char *objectName);
    static QQuickWindow *saveQuestion() { return visibleWindow("SaveChangeDialog"); }
    static QQuickItem *find(QQuickItem *item, const QString &nameOrText);
    static QWidget *dialog() { return QApplication::activeModalWidget(); }
    static QMessageBox *messageBox() { return qobject_cast<QMessageBox *>(dialog()); }

    // What the writer does

    bool activate() const;
    /// Waits until no timer of the tree runs: what follows a selection in short timers must not take
    /// the focus from what is done next.
    void settle() const;
    /// Goes to an item as the host does, and waits.
    void select(int id) const;
    void selectInTree(int id) const;
    bool open(int folderId) const;
    /// A point of a row: x counts from the tree's left edge, dy from the row's middle.
    QPoint at(int id, int x = 100, int dy = 0) const;
    void click(QQuickItem *target) const;
    void click(int id, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void press(const QKeySequence &keys) const;
    void type(const QString &text) const;
    void typeInto(const char *field, const QString &text) const;
    void rename(int id, const QString &name) const;
    void undo() const { press(QKeySequence::Undo); }
    void redo() const { press(QKeySequence::Redo); }
    /// Presses on a row and takes it, in small steps, to a point; drop() lets it go.
    void drag(int id, const QPoint &target);
    void moveTo(const QPoint &target);
    void drop() const { QTest::mouseRelease(mWindow, Qt::LeftButton, Qt::NoModifier, mMouse); }
    /// The menus of the menu bar, and the one of the tree as the last.
    QList<QObject *> menus() const;
    /// Chooses an entry of a menu of the menu bar, by their texts.
    void choose(const char *title, const char *entry) const;
    /// Right-clicks a point of the tree and chooses an entry of the menu that opens there.
    void chooseAt(const QPoint &place, const char *entry) const;
    /// Waits for a message box, clicks a button of it and waits until it is gone. The text of the box.
    static QString answer(QMessageBox::StandardButton button);
    /// The same with the question about unsaved changes. False if it has not come or not gone.
    static bool answerSaveQuestion(const char *button);

    ProgramLink mHost;
    QStringList mStarts; // the ids from which the host was to start
    QQuickWindow *mWindow = nullptr; // owned by the engine
    WarningGuard mWarnings;

private:
    static std::unique_ptr<QApplication> makeApplication(char *program);
    int endByClosing();
    /// Waits until the menu is open and goes to an entry by keys; closes it where that is off.
    void chooseFrom(QObject *menu, const char *entry) const;

    static inline QTemporaryDir mFolder;
    QQmlApplicationEngine mEngine;
    QPoint mMouse;
};

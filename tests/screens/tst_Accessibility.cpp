#include "AuthoringTest.h"

#include "quick/TutorialRaisedHandListModel.h"
#include "UndoRedo/UndoRedo.h"

#include <QAccessible>

/// What the toolkit tells a screen reader of the focus: the object that an item belongs to, each time that one gets it.
class FocusWords : public QObject
{
public:
    FocusWords() { qApp->installEventFilter(this); }

    QStringList said;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        QObject *told = event->type() == QEvent::FocusIn ? qobject_cast<QQuickItem *>(watched) : nullptr;
        while (told && !QAccessible::queryAccessibleInterface(told))
            told = told->parent();
        if (told && !qobject_cast<QWindow *>(told)) {
            const QVariant rowId = told->property("rowId");
            said.append(rowId.isValid() ? rowId.toString()
                                        : QAccessible::queryAccessibleInterface(told)->text(QAccessible::Name));
        }
        return false;
    }
};

/// What the screens say of themselves to who can't see them, and that keys reach all that the mouse reaches.
class tst_Accessibility : public AuthoringTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasRoleAndName();
    void tabKeyReadsTheScreen();
    void saysWhatIsOff();
    void readerActsOnRows();
    void rootRowIsToggled();
    void rowsAreThoseInView();
    void childrenAreFollowed();
    void keysDoWhatTheMouseDoes();
    void rowThatKeepsTheKeysIsSaidOnce();
    void eventsAreTakenByKeys();

private:
    static QAccessibleInterface *accessible(QObject *object) { return QAccessible::queryAccessibleInterface(object); }
    static void act(QObject *object, const QString &action) { accessible(object)->actionInterface()->doAction(action); }
    /// Nothing may be focused or clicked that has no role and no name, itself or as a part of what has them.
    static QStringList namelessIn(QQuickWindow *window)
    {
        // There is one of each where it is met, and the toolkit makes them.
        static const QVector<QAccessible::Role> kOfTheWindow{ QAccessible::ScrollBar, QAccessible::MenuBar };
        QStringList nameless;
        for (QQuickItem *item : visibleItems(window->contentItem())) {
            const bool isText = item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit");
            const bool isMouseArea =
                item->inherits("QQuickMouseArea") && item->isEnabled() && item->acceptedMouseButtons();
            // What covers a whole part of the window takes the focus from what stands on it.
            const bool isBackground = item->width() * item->height() > window->width() * window->height() / 8.0;
            if (!isText && !item->activeFocusOnTab() && (!isMouseArea || isBackground))
                continue;
            QQuickItem *named = item;
            while (named && !accessible(named))
                named = named->parentItem();
            const QAccessibleInterface *found = named ? accessible(named) : nullptr;
            // The divider's own mouse area lies beside it.
            const QList<QQuickItem *> beside = item->parentItem()->childItems();
            if (std::any_of(beside.begin(), beside.end(),
                            [](const QQuickItem *each) { return each->objectName() == QLatin1String("splitHandle"); }))
                continue;
            if (!found || found->role() == QAccessible::Client
                || (found->text(QAccessible::Name).isEmpty() && !kOfTheWindow.contains(found->role())))
                nameless.append(
                    QString::fromLatin1("%1 %2 in %3")
                        .arg(QLatin1String(item->metaObject()->className()), item->objectName(), window->title()));
        }
        return nameless;
    }
    static QString focused(const QQuickWindow *window)
    {
        QQuickItem *item = window->activeFocusItem();
        while (item && !accessible(item))
            item = item->parentItem();
        return item ? accessible(item)->text(QAccessible::Name) : QString();
    }
};

void tst_Accessibility::everyControlHasRoleAndName()
{
    load(kShape);
    selectInTree(9);
    press(Qt::Key_F2);
    QTRY_VERIFY(renameField(9)->isVisible());
    QCOMPARE(namelessIn(mWindow).join(QLatin1Char('\n')), QString());
    press(Qt::Key_Escape);
    mHost.send(HostMessages::FromHost::kEventLog, HostMessages::FromHost::kAppend, QStringLiteral("<b>drag</b>"));
    mHost.send(HostMessages::FromHost::kEventLog, HostMessages::FromHost::kRaisedHand, QStringLiteral("canvas"));
    QTRY_VERIFY(find(visibleWindow("TutorialEventDialog")->contentItem(), QStringLiteral("canvas")));
    managerInstance->setModified(true);
    const std::pair<const char *, const char *> windows[] = { { "TutorialEventDialog", "" },
                                                              { "ProblemsWindow", "menuBar.problemsRequested()" },
                                                              { "TranslationWindow", "menuBar.translationRequested()" },
                                                              { "LicenseWindow", "menuBar.licenseRequested()" },
                                                              { "SaveChangeDialog", "checkSaveTutorial(null)" } };
    for (const auto &[name, opener] : windows) {
        evaluate(QLatin1String(opener));
        QTRY_VERIFY2(visibleWindow(name), name);
        QVERIFY(QTest::qWaitForWindowExposed(visibleWindow(name)));
        QTRY_COMPARE(namelessIn(visibleWindow(name)).join(QLatin1Char('\n')), QString());
        if (*opener)
            visibleWindow(name)->close();
        QVERIFY(activate());
    }
}

/// From the tree to the last button and on to the tree again, and back the same way.
void tst_Accessibility::tabKeyReadsTheScreen()
{
    load(kShape);
    selectInTree(9);
    const QString row = focused(mWindow);
    const auto walk = [&](Qt::Key key) {
        QStringList names;
        do {
            press(key == Qt::Key_Tab ? QKeySequence(key) : QKeySequence(int(Qt::SHIFT) + key));
            names.append(focused(mWindow));
        } while (names.last() != row && names.size() < 40);
        return names;
    };
    QStringList names = walk(Qt::Key_Tab);
    QCOMPARE(
        names.join(QLatin1Char('|')),
        QStringLiteral(
            "Add folder|Add item|Delete|Track|Track this window: ApplicationWindow|X|Y|Icon|Command|Show arrow|Hint|"
            "Hint: en_US|Condition|Jump|Jump(No)|Divider|Save|Translation|")
            + row);
    QStringList back = walk(Qt::Key_Backtab);
    std::reverse(names.begin(), names.end() - 1);
    QCOMPARE(back, names);
}

void tst_Accessibility::saysWhatIsOff()
{
    load(kShape);
    selectInTree(2);
    const QAccessibleInterface *hint = accessible(item("hint.edit"));
    QVERIFY(hint->state().disabled && !hint->state().editable && !hint->state().focusable);
    QVERIFY(accessible(item("undoButton"))->state().disabled);
    const auto state = [this] { return accessible(row(2))->state(); };
    QVERIFY(state().selected && state().focused && state().collapsed);
    accessible(row(2))->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(state().expanded);
    // Nothing is written where nobody could type.
    accessible(item("hint.edit"))->editableTextInterface()->replaceText(0, 0, QStringLiteral("lost"));
    QVERIFY(!UndoRedo::instance()->canUndo());
}

void tst_Accessibility::readerActsOnRows()
{
    load(kShape);
    selectInTree(9);
    act(row(1), QAccessibleActionInterface::setFocusAction());
    QTRY_COMPARE(currentId(), 1);
    QCOMPARE(selected(), QStringLiteral("1"));
    // A name that is being typed stays when its folder is closed, by a reader or by the mouse.
    for (const bool byMouse : { false, true }) {
        QVERIFY(open(2));
        selectInTree(3);
        press(Qt::Key_F2);
        QVERIFY(renameField(3)->isVisible());
        const QString name = byMouse ? QStringLiteral("clicked") : QStringLiteral("toggled");
        type(name);
        const int branch = int(row(2)->mapToScene(QPointF()).x()) - 10;
        if (byMouse)
            QTest::mouseClick(mWindow, Qt::LeftButton, Qt::NoModifier, at(2, branch));
        else
            act(row(2), QAccessibleActionInterface::toggleAction());
        QTRY_VERIFY(!row(3));
        QCOMPARE(record(3)->mName, name);
    }
    // A move that leads nowhere ends the typing; the keys stay with the row.
    selectInTree(1);
    press(Qt::Key_F2);
    type(QStringLiteral("q"));
    press(Qt::ALT + Qt::Key_Up);
    QCOMPARE(record(1)->mName, QStringLiteral("q"));
    QVERIFY(accessible(row(1))->state().focused);
    // No action goes past a question.
    evaluate(QStringLiteral("checkSaveTutorial(function() {})"));
    QTRY_VERIFY(saveQuestion());
    QVERIFY(accessible(row(1))->state().disabled);
    act(row(1)->findChild<QQuickItem *>(QStringLiteral("prohibition")), QAccessibleActionInterface::toggleAction());
    QVERIFY(!record(1)->mProhibited);
    accessible(item("hint.edit"))->editableTextInterface()->replaceText(0, 0, QStringLiteral("lost"));
    QVERIFY(!record(1)->mHint.contains(QLatin1String("lost")));
    QVERIFY(!accessible(find(saveQuestion()->contentItem(), QStringLiteral("no")))->state().disabled);
    QVERIFY(answerSaveQuestion("no"));
}

/// All items are prohibited and permitted again there, by a reader, by the key and by the menu.
void tst_Accessibility::rootRowIsToggled()
{
    load(kShape);
    click(-1);
    QTRY_VERIFY(accessible(row(-1))->state().selected);
    for (int i = 0; i < 3; ++i) {
        for (const bool prohibited : { true, false }) {
            auto *box = row(-1)->findChild<QQuickItem *>(QStringLiteral("prohibition"));
            if (i == 0)
                act(box, QAccessibleActionInterface::toggleAction());
            else if (i == 1)
                press(Qt::Key_Space);
            else
                choose("&Edit", "Prohibit or permit (Space)");
            QTRY_COMPARE(record(5)->mProhibited, prohibited);
            QTRY_COMPARE(bool(accessible(box)->state().checked), prohibited);
        }
    }
}

/// A reader that asks for all rows of a long list makes none that is not drawn.
void tst_Accessibility::rowsAreThoseInView()
{
    load(longShape(2000));
    selectInTree(1000);
    QAccessibleInterface *list = accessible(item("view"));
    QCOMPARE(list->role(), QAccessible::Tree);
    QVERIFY(list->childCount() > 10 && list->childCount() < 60);
    int above = INT_MIN;
    for (int i = 0; i < list->childCount(); ++i) {
        QCOMPARE(list->indexOfChild(list->child(i)), i);
        if (list->child(i)->role() != QAccessible::TreeItem)
            continue;
        QVERIFY(list->child(i)->rect().top() > above);
        above = list->child(i)->rect().top();
    }
}

/// What is asked of a list in one turn holds for as long as nothing changes, and no hit goes to what nobody sees.
void tst_Accessibility::childrenAreFollowed()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.9\nimport QtQuick.Window 2.2\n"
                      "Window { visible: true; width: 200; height: 200; Item { objectName: 'list'; width: 100;"
                      " height: 90; clip: true; Accessible.role: Accessible.List; Item { Repeater { model: 4; Item {"
                      " y: 30 * (3 - index); width: 100; height: 40; Accessible.role: Accessible.ListItem;"
                      " Accessible.name: index } } } } }",
                      QUrl());
    const std::unique_ptr<QObject> window(component.create());
    auto *item = window->findChild<QQuickItem *>(QStringLiteral("list"));
    QAccessibleInterface *list = accessible(item);
    const auto names = [list] {
        QString names;
        for (int i = 0; i < list->childCount(); ++i)
            names += list->child(i)->text(QAccessible::Name);
        return names;
    };
    const auto hit = [list](int x, int y) {
        const QPoint place = list->rect().topLeft() + QPoint(x, y);
        const QAccessibleInterface *found = list->childAt(place.x(), place.y());
        return found ? found->text(QAccessible::Name) : QString();
    };
    QCOMPARE(names(), QStringLiteral("3210"));
    QCOMPARE(list->indexOfChild(list->child(2)), 2);
    QCOMPARE(hit(5, 50), QStringLiteral("2"));
    // Below the list's edge, and in place of what is hidden.
    QCOMPARE(hit(5, 95), QString());
    auto *second = qobject_cast<QQuickItem *>(list->child(1)->object());
    second->setVisible(false);
    QCOMPARE(hit(5, 65), QStringLiteral("1"));
    QCOMPARE(hit(5, 50), QString());
    delete second;
    QCOMPARE(names(), QStringLiteral("310"));
    qobject_cast<QQuickItem *>(list->child(0)->object())->setY(100);
    QCoreApplication::processEvents();
    QCOMPARE(names(), QStringLiteral("103"));
}

void tst_Accessibility::keysDoWhatTheMouseDoes()
{
    load(kShape);
    selectInTree(9);
    press(Qt::Key_Space);
    QVERIFY(record(9)->mProhibited);
    undo();
    QVERIFY(!record(9)->mProhibited);
    press(Qt::SHIFT + Qt::Key_Space);
    press(Qt::CTRL + Qt::Key_Space);
    QVERIFY(!record(9)->mProhibited && selected().isEmpty());
    press(Qt::CTRL + Qt::Key_Space);
    QVERIFY(!record(9)->mProhibited && accessible(row(9))->state().selected);
    // The sign tells its words until the keys go on.
    const auto told = [this] {
        return find(mWindow->contentItem(),
                    accessible(row(9))->text(QAccessible::Name).section(QStringLiteral(", "), 1));
    };
    QTRY_VERIFY(accessible(row(9))->text(QAccessible::Name).contains(QLatin1Char(',')));
    QVERIFY(!told());
    press(Qt::Key_F1);
    QVERIFY(told());
    press(Qt::Key_Up);
    QVERIFY(!told());
    QObject *menu = menus().last();
    press(Qt::SHIFT + Qt::Key_F10);
    QTRY_VERIFY(menu->property("__popupVisible").toBool());
    QMetaObject::invokeMethod(menu, "__dismissMenu");
    QTRY_VERIFY(!menu->property("__popupVisible").toBool());
    // The divider gives way as far as the parts allow.
    const qreal width = tree()->width();
    item("splitHandle")->forceActiveFocus();
    press(Qt::Key_Right);
    QCOMPARE(tree()->width(), width + 16);
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_Left);
    QCOMPARE(tree()->width(), 200.0);
    tree()->parentItem()->parentItem()->setWidth(width);
}

/// No neighbour on the way, and no silence either.
void tst_Accessibility::rowThatKeepsTheKeysIsSaidOnce()
{
    const auto check = [this](const char *name, const QKeySequence &keys, const char *said, int last = 1) {
        load(kShape);
        selectInTree(1);
        FocusWords words;
        for (int i = 0; i < keys.count(); ++i)
            press(keys[i]);
        QCoreApplication::processEvents();
        settle();
        QVERIFY2(words.said.join(QLatin1Char('|')) == QLatin1String(said), name);
        QVERIFY2(accessible(row(last))->state().focused, name);
        QVERIFY2(!evaluate(QStringLiteral("menuBar.open")).toBool(), name);
        cleanup();
        init();
    };
    // A name that is being typed is ended by keys that lead nowhere, too.
    check("name and nowhere", { Qt::Key_F2, Qt::Key_Q, Qt::ALT + Qt::Key_Up }, "Name|1");
    check("name and save", { Qt::Key_F2, Qt::Key_Q, Qt::CTRL + Qt::Key_S }, "Name|1");
    check("name and start", { Qt::Key_F2, Qt::Key_Q, Qt::Key_F6 }, "Name|1");
    check("name and move", { Qt::Key_F2, Qt::Key_Q, Qt::ALT + Qt::Key_Down }, "Name|1|1");
    check("moves", { Qt::ALT + Qt::Key_Down, Qt::ALT + Qt::Key_Down, Qt::ALT + Qt::Key_Up }, "1|1|1");
    check("move into a folder", { Qt::ALT + Qt::Key_Right }, "1");
    check("move and undo", { Qt::ALT + Qt::Key_Down, Qt::CTRL + Qt::Key_Z }, "1|1");
    check("delete", { Qt::Key_Delete }, "2", 2);
    // The menu bar does not take Alt for pressed any more.
    check("move and letter", { Qt::ALT + Qt::Key_Down, Qt::Key_F }, "1");
}

void tst_Accessibility::eventsAreTakenByKeys()
{
    load(kShape);
    selectInTree(9);
    for (const char *text : { "first", "<b>second</b>" })
        mHost.send(HostMessages::FromHost::kEventLog, HostMessages::FromHost::kAppend, QLatin1String(text));
    QQuickWindow *dialog = visibleWindow("TutorialEventDialog");
    QTRY_VERIFY(find(dialog->contentItem(), QStringLiteral("first")));
    dialog->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), dialog);
    find(dialog->contentItem(), QStringLiteral("eventList"))->forceActiveFocus();
    QTest::keyClick(dialog, Qt::Key_End);
    QTest::keyClick(dialog, Qt::Key_Return);
    QTRY_COMPARE(record(9)->mCondition, QStringLiteral("second"));
    // A page is what is in view, of the list that stands there at its full height too.
    QQuickItem *controls = find(dialog->contentItem(), QStringLiteral("trackingList"));
    QStringList names;
    for (int number = 0; number < 80; ++number)
        names.append(QString::number(number));
    controls->property("model").value<TutorialRaisedHandListModel *>()->setList(names);
    QTRY_COMPARE(controls->property("count").toInt(), 80);
    controls->forceActiveFocus();
    QTest::keyClick(dialog, Qt::Key_Home);
    QTest::keyClick(dialog, Qt::Key_PageDown);
    const int row = controls->property("currentIndex").toInt();
    QVERIFY(row > 2 && row < 60);
    QVERIFY(activate());
    undo();
}

AUTHORING_TEST_MAIN(tst_Accessibility)
#include "tst_Accessibility.moc"

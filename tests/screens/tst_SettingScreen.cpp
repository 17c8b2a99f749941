#include "AuthoringTest.h"

#include "UndoRedo/UndoRedo.h"

#include <QClipboard>
#include <QDir>
#include <QStandardPaths>

using namespace HostMessages;

/// The settings of an item and the event dialog.
class tst_SettingScreen : public AuthoringTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init()
    {
        AuthoringTest::init();
        managerInstance->setLocale(QStringLiteral("ja_JP"));
        load(QStringLiteral("1[2 3] 4[5]"));
        select(2);
    }

private Q_SLOTS:
    void keysStayWhereTheyWere();
    void fieldsGoThroughTheHistory();
    void typedTextIsNotLost();
    void hostIsShownTheStep();
    void stepBackOpensItsFolder();
    void textThatCantBeSavedIsRefused();
    void takenNameIsAskedFor();
    void localeIsSwitched();
    void eventIsTakenOver();
    void copyThatFails();

private:
    static QString condition(int id) { return record(id)->mCondition; }
};

void tst_SettingScreen::keysStayWhereTheyWere()
{
    // Nothing was clicked yet. The menu bar takes the focus with Escape and with Alt.
    const auto goesOn = [this](int key, int id) {
        QTRY_VERIFY(evaluate(QStringLiteral("activeMenu !== null && activeMenu.addItemMi.enabled")).toBool());
        press(key);
        QTRY_COMPARE(currentId(), id);
        settle();
    };
    goesOn(Qt::Key_Down, 3);
    press(Qt::Key_Escape);
    goesOn(Qt::Key_Up, 2);
    press(Qt::Key_Alt);
    press(Qt::Key_Alt);
    goesOn(Qt::Key_Down, 3);
    // A save hands over what is being typed into a row.
    press(Qt::Key_F2);
    type(QStringLiteral("new"));
    press(QKeySequence::Save);
    QCOMPARE(record(3)->mName, QStringLiteral("new"));
    // The jump menus know it, and that no step goes on with itself. They are read when one opens.
    item("jump")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    auto *menu = item("jump")->property("lastPopup").value<QObject *>();
    QTRY_VERIFY(menu->property("__popupVisible").toBool());
    const QObject *entry = QQmlListReference(QQmlListReference(menu, "items").at(2), "items").at(1);
    QCOMPARE(entry->property("text").toString(), QStringLiteral("new"));
    QVERIFY(!entry->property("enabled").toBool());
    QMetaObject::invokeMethod(menu, "__dismissMenu");
    QTRY_VERIFY(!menu->property("__popupVisible").toBool());
    click(3);
    settle();
    goesOn(Qt::Key_Up, 2);

    typeInto("condition", QStringLiteral("wa"));
    press(Qt::Key_Escape);
    QTRY_VERIFY(item("condition")->isAncestorOf(mWindow->activeFocusItem()));
    type(QStringLiteral("it"));
    press(Qt::Key_Return);
    QCOMPARE(condition(2), QStringLiteral("wait"));
    // Nor does a step back move the cursor.
    typeInto("hint.edit", QStringLiteral("abc"));
    undo();
    QTRY_COMPARE(shown("hint.edit"), QStringLiteral("ab"));
    type(QStringLiteral("d"));
    QCOMPARE(record(2)->mHint, QStringLiteral("abd"));
}

void tst_SettingScreen::fieldsGoThroughTheHistory()
{
    const auto texts = [this] {
        return QStringList{ item("x")->property("value").toString(), shown("condition"),
                            item("icon")->property("currentText").toString(),
                            item("showArrow")->property("checked").toString(), shown("hint.edit") };
    };
    const auto typeThere = [this](const char *field, const char *keys) {
        item(field)->forceActiveFocus(Qt::TabFocusReason);
        type(QLatin1String(keys));
    };
    const QStringList before = texts();
    const QStringList after = QStringLiteral("-42;wait,\"5\\%1;keyboard;false;c%d").split(QLatin1Char(';'));
    typeInto("x", after.at(0));
    typeInto("condition", after.at(1));
    typeThere("icon", "k");
    typeThere("showArrow", " ");
    typeInto("hint.edit", after.at(4));
    // A step for each field, and for each key in a hint, the first of which takes the place of the
    // selected text.
    constexpr int kSteps = 7;
    for (int i = 0; i < kSteps; ++i) {
        const QStringList previous = texts();
        undo();
        QTRY_VERIFY(texts() != previous);
    }
    QCOMPARE(texts(), before);
    // Showing it added nothing to the history.
    QVERIFY(!UndoRedo::instance()->canUndo());
    QVERIFY(!managerInstance->isModified());
    settle();
    for (int i = 0; i < kSteps; ++i) {
        redo();
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(texts(), after);
    QVERIFY(managerInstance->isModified());
    QVERIFY(!UndoRedo::instance()->canRedo());
}

void tst_SettingScreen::typedTextIsNotLost()
{
    const auto check = [this](const char *name, const std::function<void()> &leave) {
        if (currentId() != 2)
            select(2);
        const QString text = QStringLiteral("wait,") + QLatin1String(name);
        typeInto("command", QStringLiteral("play"));
        typeInto("condition", text);
        leave();
        QTRY_COMPARE(condition(2), text);
        if (currentId() != 2) {
            // It is no other row's text.
            const QString own = condition(currentId());
            QTRY_COMPARE(shown("condition"), own);
            press(Qt::Key_Tab);
            QCOMPARE(condition(currentId()), own);
        }
    };
    check("close", [this] {
        QVERIFY(!mWindow->close());
        QVERIFY(answerSaveQuestion("cancel"));
        QVERIFY(activate());
    });
    check("undo by menu", [this] {
        choose("&Edit", "&Undo");
        QTRY_COMPARE(shown("condition"), QStringLiteral("wait,close"));
        redo();
    });
    check("start", [this] { press(Qt::Key_F5); });
    check("other row", [this] { select(3); });
    check("add item", [this] { click(item("addItemButton")); });
    check("save", [this] { click(item("saveButton")); });
    // Typing goes on after it was saved.
    QVERIFY(!managerInstance->isModified());
    type(QStringLiteral("5"));
    press(Qt::Key_Return);
    QCOMPARE(condition(2), QStringLiteral("wait,save5"));
    check("language", [this] { item("localeComboBox")->setProperty("currentIndex", 1); });
}

void tst_SettingScreen::hostIsShownTheStep()
{
    // From the beginning, from the current step, and one whose looks are edited.
    press(Qt::Key_F5);
    press(Qt::Key_F6);
    item("showArrow")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QTRY_COMPARE(mStarts.join(QLatin1Char(' ')), QStringLiteral("-1 2 2"));
}

void tst_SettingScreen::stepBackOpensItsFolder()
{
    select(5);
    typeInto("condition", QStringLiteral("wait"));
    selectInTree(4);
    press(Qt::Key_Left);
    QTRY_VERIFY(!row(5));
    undo();
    QTRY_VERIFY(row(5));
    QTRY_COMPARE(currentId(), 5);
}

void tst_SettingScreen::textThatCantBeSavedIsRefused()
{
    const QString text = QStringLiteral("a];b");
    const auto isRefused = [&] { return answer(QMessageBox::Ok).contains(text) && !UndoRedo::instance()->canUndo(); };
    typeInto("condition", text);
    press(Qt::Key_Return);
    QVERIFY(isRefused());
    QCOMPARE(shown("condition"), condition(2));
    rename(2, text);
    QVERIFY(isRefused());
    QCOMPARE(record(2)->mName, QStringLiteral("name2"));
    // The writer hears of it before the window goes.
    typeInto("condition", text);
    QVERIFY(!mWindow->close());
    QVERIFY(isRefused());
    QVERIFY(mWindow->isVisible());
}

void tst_SettingScreen::takenNameIsAskedFor()
{
    for (const bool taken : { false, true }) {
        rename(2, QStringLiteral("name3"));
        QVERIFY(answer(taken ? QMessageBox::Yes : QMessageBox::No).endsWith(QLatin1String("Change name3 to name6 ?")));
        QTRY_COMPARE(record(2)->mName, QLatin1String(taken ? "name6" : "name2"));
        QCOMPARE(UndoRedo::instance()->canUndo(), taken);
        QTRY_VERIFY(evaluate(QStringLiteral("activeMenu !== null")).toBool());
    }
}

void tst_SettingScreen::localeIsSwitched()
{
    // What each locale shows first, the other shows second, whatever the text.
    const QString text = QString::fromUtf8(
        "\"a\" 'b' \\n \\\\ \\\" %1 100 % %% %n <b>&amp;</b> ]]> <!-- -->\n\n two \n]; var scenario = [ "
        "qsTr(\"#3\") // /*\n\xf0\x9f\x98\x80 \xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d (abc)");
    select(5);
    select(2);
    click(item("hint2.edit"));
    press(QKeySequence::SelectAll);
    press(Qt::Key_Delete);
    click(item("hint.edit"));
    press(QKeySequence::SelectAll);
    QGuiApplication::clipboard()->setText(text);
    press(QKeySequence::Paste);
    for (const bool switched : { false, true }) {
        item("localeComboBox")->forceActiveFocus();
        press(Qt::Key_E);
        answer(switched ? QMessageBox::Yes : QMessageBox::No);
        QTRY_COMPARE(managerInstance->locale(), QLatin1String(switched ? "en_US" : "ja_JP"));
        QTRY_COMPARE(item("localeComboBox")->property("currentText").toString(), managerInstance->locale());
        QTRY_COMPARE(shown(switched ? "hint2.edit" : "hint.edit"), text);
        QCOMPARE(shown(switched ? "hint.edit" : "hint2.edit"), QString());
        QCOMPARE(managerInstance->isModified(), !switched);
    }
    // The item stays, and the folders open.
    QCOMPARE(currentId(), 2);
    settle();
    QVERIFY(row(5));
}

void tst_SettingScreen::eventIsTakenOver()
{
    auto *dialog = screen()->property("tutorialEventDialog").value<QQuickWindow *>();
    QVERIFY(dialog);
    const auto row = [&](const char *list, int number = 0) -> QQuickItem * {
        const QVariant content = dialog->findChild<QQuickItem *>(QLatin1String(list))->property("contentItem");
        for (QQuickItem *each : content.value<QQuickItem *>()->childItems()) {
            if (each->property("row") == number)
                return each;
        }
        return nullptr;
    };
    const auto doubleClick = [&](const char *list) {
        click(row(list));
        QTest::mouseDClick(dialog, Qt::LeftButton, Qt::NoModifier, row(list)->mapToScene(QPointF(9, 9)).toPoint());
    };
    mHost.send(FromHost::kEventLog, FromHost::kAppend, QStringLiteral("<b>click</b>,Row &amp; more"));
    mHost.send(FromHost::kEventLog, FromHost::kRaisedHand, QStringLiteral("MainWindow/<i>tool</i>"));
    QTRY_VERIFY(row("eventList") && row("trackingList"));
    // A folder takes none; the item does.
    for (const int id : { 1, 2 }) {
        selectInTree(id);
        press(Qt::Key_F4);
        doubleClick("eventList");
        doubleClick("trackingList");
    }
    QCOMPARE(condition(1) + record(1)->mWindowKey, QString());
    QVERIFY(record(1)->mX == TutorialItemData::kNoPosition && record(2)->mX != TutorialItemData::kNoPosition);
    QCOMPARE(condition(2), QStringLiteral("click,Row & more"));
    QCOMPARE(record(2)->mWindowKey, QStringLiteral("MainWindow/<i>tool</i>"));

    // The newest line comes into view, what isn't in view has no row, and old lines go.
    for (int i = 0; i < 25000; ++i)
        mHost.send(FromHost::kEventLog, FromHost::kAppend, i);
    mHost.send(FromHost::kEventLog, FromHost::kCoords, QStringLiteral("1, 2"));
    QTRY_COMPARE(dialog->findChild<QQuickItem *>(QStringLiteral("coordinates"))->property("text").toString(),
                 QStringLiteral("1, 2"));
    QTRY_VERIFY(row("eventList", 9000) && !row("eventList", 8900));
}

// Who types goes on, and sees it until it is over.
void tst_SettingScreen::copyThatFails()
{
    const auto notice = [this] { return item("copyNotice")->property("text").toString(); };
    QDir copies(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1String("/recovery"));
    QVERIFY(copies.removeRecursively());
    writeAll(copies.path(), QByteArray());
    // How often it is tried is told by warnings.
    mWarnings.end();
    typeInto("hint.edit", QStringLiteral("ab"));
    QTRY_VERIFY(notice().contains(QDir::toNativeSeparators(copies.path())));
    type(QStringLiteral("cd"));
    QCOMPARE(shown("hint.edit"), QStringLiteral("abcd"));
    QVERIFY(QFile::remove(copies.path()));
    QTRY_COMPARE_WITH_TIMEOUT(notice(), QString(), 60000);
    mWarnings.begin();
    QVERIFY(copies.exists());
}

AUTHORING_TEST_MAIN(tst_SettingScreen)
#include "tst_SettingScreen.moc"

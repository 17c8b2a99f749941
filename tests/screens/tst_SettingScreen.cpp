#include "HostLink.h"
#include "QmlTypes.h"

#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TranslationSource.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

namespace
{
const QString kSuffix = QStringLiteral("-setting-screen-%1");
const QString kScenario = QStringLiteral("tutorial-win/qml/Tutorial/TutorialSideViewStep0.js");
const QString kTranslation = QStringLiteral("tutorial-win/translations/%1.ts");
const QString kContext = QStringLiteral("TutorialSideViewStep0");

QString item(int id, const QString &name, const QString &condition)
{
    return QStringLiteral("{\"id\":%1,\"name\":\"%2\",\"folder\":false,\"x\":10,\"y\":20,\"windowKey\":\"MainWindow\","
                          "\"condition\":\"%3\",\"hint\":qsTr(\"#%1\"),\"icon\":\"eye\",\"jump\":-1,\"jumpNo\":-1,"
                          "\"command\":\"\",\"showArrow\":true,\"prohibited\":false}")
        .arg(QString::number(id), name, condition);
}

void writeFile(const QString &path, const QString &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

QString savedHint(const QString &locale, int id)
{
    QFile file(kTranslation.arg(locale));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return QStringLiteral("no document");
    return TranslationSource::readMessages(document).value(kContext).value(QStringLiteral("#%1").arg(id));
}
} // namespace

/// The settings screen and the event dialog in the real application window, by mouse and key events.
class tst_SettingScreen : public QObject
{
    Q_OBJECT

public:
    explicit tst_SettingScreen(HostLink *host) : mHost(host) { }

private Q_SLOTS:
    void init();
    void cleanup();

    void fieldEditsItsProperty_data();
    void fieldEditsItsProperty();
    void choiceEditsItsProperty_data();
    void choiceEditsItsProperty();
    void fillingTheFieldsRecordsNothing();
    void typedTextIsNotLost_data();
    void typedTextIsNotLost();
    void numberOutOfTheLimitsStays();
    void cursorIsCaptured();
    void jumpMenuOffersAllButTheItemItself();
    void takenNameIsAskedFor_data();
    void takenNameIsAskedFor();
    void itemsCanBeAddedPastedAndDeleted();
    void itemThatIsGoneIsNotEdited();
    void localeIsSwitched_data();
    void localeIsSwitched();
    void hintsSurvive_data();
    void hintsSurvive();
    void eventIsTakenOver();
    void tabLeadsThroughTheFields();

private:
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

void tst_SettingScreen::init()
{
    mFolder.reset(new QTemporaryDir);
    QDir::setCurrent(mFolder->path());
    QDir().mkpath(QStringLiteral("tutorial-win/qml/Tutorial"));
    QDir().mkpath(QStringLiteral("tutorial-win/translations"));
    const QStringList items = { item(2, QStringLiteral("first"), QStringLiteral("click")),
                                item(3, QStringLiteral("second"), QString()) };
    writeFile(
        kScenario,
        QStringLiteral("var scenario = [\n{\"id\":1,\"name\":\"folder\",\"folder\":true,\"children\":[%1]},\n%2\n];")
            .arg(items.join(QLatin1Char(',')), item(4, QStringLiteral("third"), QStringLiteral("yesNo"))));
    for (const QString &locale : { QStringLiteral("ja_JP"), QStringLiteral("en_US") }) {
        QDomDocument document = TranslationSource::emptyDocument(locale);
        TranslationSource::writeMessages(document, kContext,
                                         { { QStringLiteral("#2"), locale + QStringLiteral(" 2") },
                                           { QStringLiteral("#3"), locale + QStringLiteral(" 3") },
                                           { QStringLiteral("#4"), locale + QStringLiteral(" 4") } });
        writeFile(kTranslation.arg(locale), QString::fromUtf8(document.toByteArray(4)));
    }
    if (!mWindow) {
        mEngine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
        mWindow = qobject_cast<QQuickWindow *>(mEngine.rootObjects().value(0));
        QVERIFY(mWindow);
        QVERIFY(screen());
    } else {
        managerInstance->setLocale(QStringLiteral("ja_JP"));
        QMetaObject::invokeMethod(mWindow, "reloadTutorial");
    }
    // The offscreen platform has a small screen.
    mWindow->resize(966, 788);
    mWindow->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
    select(2);
}

void tst_SettingScreen::cleanup()
{
    if (QMessageBox *box = openBox())
        box->close();
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->objectName() == QLatin1String("SaveChangeDialog"))
            window->close();
    }
    QDir::setCurrent(QDir::rootPath());
}

void tst_SettingScreen::select(int id)
{
    tree()->setProperty("focusId", id);
    QMetaObject::invokeMethod(tree(), "focusOn");
    QTRY_COMPARE(currentId(), id);
    // What follows the selection in short timers must not take the focus from what is done next.
    QTest::qWait(250);
}

void tst_SettingScreen::click(QQuickItem *target, QQuickWindow *window, bool twice)
{
    QVERIFY(target);
    const QPoint point = target->mapToScene(QPointF(target->width() / 2, target->height() / 2)).toPoint();
    if (!window)
        window = target->window();
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, point);
    if (twice)
        QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, point);
}

void tst_SettingScreen::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(mWindow, Qt::Key(key), modifiers);
}

void tst_SettingScreen::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(mWindow, character.toLatin1());
}

void tst_SettingScreen::typeInto(const char *name, const QString &text)
{
    click(find(name));
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
}

QMessageBox *tst_SettingScreen::openBox() const
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        if (box && box->isVisible())
            return box;
    }
    return nullptr;
}

void tst_SettingScreen::answer(QMessageBox::StandardButton button)
{
    QTRY_VERIFY(openBox());
    QTest::mouseClick(openBox()->button(button), Qt::LeftButton);
    QTRY_VERIFY(!openBox());
}

void tst_SettingScreen::fieldEditsItsProperty_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("sequence");
    QTest::addColumn<int>("steps");

    const auto row = [](const char *field, const char *typed, const QVariant &value, const char *sequence,
                        int steps = 1) {
        QTest::newRow(field) << QString::fromLatin1(field) << QString::fromLatin1(field).remove(QStringLiteral(".edit"))
                             << QString::fromLatin1(typed) << value << QString::fromLatin1(sequence) << steps;
    };
    row("windowKey", "Popup/cut", QStringLiteral("Popup/cut"), "setWindowKey");
    row("x", "-42", -42, "setX");
    row("y", "300", 300, "setY");
    row("command", "presetData", QStringLiteral("presetData"), "setCommand");
    row("condition", "wait,\"5\\%1", QStringLiteral("wait,\"5\\%1"), "setCondition");
    // A step of the history for each key, the first of which takes the place of the selected text.
    row("hint.edit", "ab", QStringLiteral("ab"), "setHint", 2);
    row("hint2.edit", "c%d", QStringLiteral("c%d"), "setHint2", 3);
}

void tst_SettingScreen::fieldEditsItsProperty()
{
    QFETCH(QString, field);
    QFETCH(QString, key);
    QFETCH(QString, typed);
    QFETCH(QVariant, value);
    QFETCH(QString, sequence);
    QFETCH(int, steps);

    const QVariant before = record(2)->getValue(key);
    typeInto(field.toLatin1().constData(), typed);
    press(Qt::Key_Tab);
    QCOMPARE(record(2)->getValue(key), value);
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), sequence);
    QVERIFY(managerInstance->isModified());

    QQuickItem *control = find(field.toLatin1().constData());
    const char *shown = value.type() == QVariant::Int ? "value" : "text";
    QCOMPARE(control->property(shown).toString(), value.toString());
    for (int i = 0; i < steps; ++i)
        click(find("undoButton"));
    QCOMPARE(record(2)->getValue(key), before);
    QTRY_COMPARE(control->property(shown).toString(), before.toString());
    QVERIFY(!managerInstance->isModified());
    QVERIFY(UndoRedo::instance()->canRedo());
    QTest::qWait(50);
    // Showing it again was no edit, which would have cut off what can be redone.
    QVERIFY(UndoRedo::instance()->canRedo());
    for (int i = 0; i < steps; ++i)
        click(find("redoButton"));
    QTRY_COMPARE(control->property(shown).toString(), value.toString());
}

void tst_SettingScreen::choiceEditsItsProperty_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("pressed");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("sequence");

    QTest::newRow("icon") << QStringLiteral("icon") << int(Qt::Key_K) << QVariant(QStringLiteral("keyboard"))
                          << QStringLiteral("setIcon");
    QTest::newRow("arrow") << QStringLiteral("showArrow") << int(Qt::Key_Space) << QVariant(false)
                           << QStringLiteral("setShowArrow");
}

void tst_SettingScreen::choiceEditsItsProperty()
{
    QFETCH(QString, control);
    QFETCH(int, pressed);
    QFETCH(QVariant, value);
    QFETCH(QString, sequence);

    const QVariant before = record(2)->getValue(control);
    QSignalSpy received(mHost, &HostLink::received);
    find(control.toLatin1().constData())->forceActiveFocus(Qt::TabFocusReason);
    press(pressed);
    QCOMPARE(record(2)->getValue(control), value);
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), sequence);
    // The host editor shows the edited step at once.
    QTRY_VERIFY(received.count() > 0 && received.last().first().toStringList().first() == QLatin1String("start"));
    QCOMPARE(received.last().first().toStringList().value(2), QStringLiteral("2"));

    click(find("undoButton"));
    QCOMPARE(record(2)->getValue(control), before);
    QTRY_COMPARE(screen()->property(control.toLatin1().constData()), before);
    QVERIFY(UndoRedo::instance()->canRedo());
}

void tst_SettingScreen::fillingTheFieldsRecordsNothing()
{
    for (const int id : { 3, 4, 1, 2 }) {
        select(id);
        call("updateSettings");
    }
    call("showDocument");
    QVERIFY(!UndoRedo::instance()->canUndo());
    QVERIFY(!managerInstance->isModified());
}

void tst_SettingScreen::typedTextIsNotLost_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : { "save", "Ctrl+S", "other row", "add item", "undo", "close", "F4", "language" })
        QTest::newRow(action) << QString::fromLatin1(action);
}

void tst_SettingScreen::typedTextIsNotLost()
{
    QFETCH(QString, action);

    typeInto("condition", QStringLiteral("wait,7"));
    QCOMPARE(condition(2), QStringLiteral("click"));
    if (action == QLatin1String("save")) {
        click(find("saveButton"));
        QVERIFY(!managerInstance->isModified());
    } else if (action == QLatin1String("Ctrl+S")) {
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!managerInstance->isModified());
        // Typing goes on.
        type(QStringLiteral("5"));
        press(Qt::Key_Return);
        QCOMPARE(condition(2), QStringLiteral("wait,75"));
        return;
    } else if (action == QLatin1String("other row")) {
        select(3);
        QCOMPARE(find("condition")->property("text").toString(), QString());
        press(Qt::Key_Tab);
        QCOMPARE(condition(3), QString());
    } else if (action == QLatin1String("add item")) {
        click(find("addItemButton"));
        QTRY_VERIFY(currentId() != 2);
        QCOMPARE(condition(currentId()), QString());
    } else if (action == QLatin1String("undo")) {
        // Nothing was recorded before, so that the button wakes up with the edit.
        press(Qt::Key_Return);
        typeInto("condition", QStringLiteral("wait,8"));
        click(find("undoButton"));
    } else if (action == QLatin1String("close")) {
        QVERIFY(!mWindow->close());
        QVERIFY(find<QQuickWindow>("SaveChangeDialog")->isVisible());
    } else if (action == QLatin1String("F4")) {
        press(Qt::Key_F4);
    } else if (action == QLatin1String("language")) {
        find("localeComboBox")->setProperty("currentIndex", 1);
        QTRY_VERIFY(openBox());
    }
    QTRY_COMPARE(condition(2), QStringLiteral("wait,7"));
}

void tst_SettingScreen::numberOutOfTheLimitsStays()
{
    record(3)->mX = 5000;
    select(3);
    click(find("x"));
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    select(2);
    QCOMPARE(record(3)->mX, 5000);
    QVERIFY(!UndoRedo::instance()->canUndo());
}

void tst_SettingScreen::cursorIsCaptured()
{
    managerInstance->setPosition(QStringLiteral("MainWindow"), 100, -30);
    QCursor::setPos(321, 234);
    QSignalSpy received(mHost, &HostLink::received);
    find("hint.edit")->forceActiveFocus();
    press(Qt::Key_F4);
    QCOMPARE(QPoint(record(2)->mX, record(2)->mY), QCursor::pos() - QPoint(100, -30));
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), QStringLiteral("setXy"));
    QTRY_VERIFY(received.count() > 0 && received.last().first().toStringList().first() == QLatin1String("start"));
    click(find("undoButton"));
    QCOMPARE(QPoint(record(2)->mX, record(2)->mY), QPoint(10, 20));

    // A folder has no place on the screen.
    select(1);
    press(Qt::Key_F4);
    QCOMPARE(record(1)->mX, TutorialItemData::kNoPosition);
}

void tst_SettingScreen::jumpMenuOffersAllButTheItemItself()
{
    auto *button = find("jump");
    const auto entry = [&](const QString &name) -> QObject * {
        for (QObject *each : button->property("lastPopup").value<QObject *>()->findChildren<QObject *>()) {
            if (each->property("text").toString() == name)
                return each;
        }
        return nullptr;
    };
    const QString next = QCoreApplication::translate("TutorialSettingItem", "(Next)");
    QCOMPARE(button->property("text").toString(), next);
    QVERIFY(entry(next));
    QVERIFY(!entry(QStringLiteral("first"))->property("enabled").toBool());
    QVERIFY(QMetaObject::invokeMethod(entry(QStringLiteral("third")), "trigger"));
    QCOMPARE(record(2)->mJump, 4);
    QCOMPARE(button->property("text").toString(), QStringLiteral("third"));
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), QStringLiteral("setJump"));

    // The item itself, by a way that leads past the menu.
    button->setProperty("itemId", 2);
    QCOMPARE(button->property("itemId").toInt(), -1);
    QCOMPARE(record(2)->mJump, -1);

    select(4);
    QVERIFY(entry(QStringLiteral("first"))->property("enabled").toBool());
    QVERIFY(!entry(QStringLiteral("third"))->property("enabled").toBool());
    QVERIFY(QMetaObject::invokeMethod(entry(next), "trigger"));
    QCOMPARE(record(4)->mJump, -1);
}

void tst_SettingScreen::takenNameIsAskedFor_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sequence");
    const int none = QMessageBox::NoButton;
    QTest::newRow("free") << "renamed" << none << "renamed"
                          << "changeSceneName";
    QTest::newRow("taken, Yes") << "second" << int(QMessageBox::Yes) << "second1"
                                << "changeName";
    QTest::newRow("taken, No") << "second" << int(QMessageBox::No) << "first"
                               << "";
}

void tst_SettingScreen::takenNameIsAskedFor()
{
    QFETCH(QString, typed);
    QFETCH(int, button);
    QFETCH(QString, name);
    QFETCH(QString, sequence);

    const QString before = UndoRedo::instance()->lastTransactionName();
    select(3);
    tree()->setProperty("autoActiveFocusOneShot", true);
    select(2);
    press(Qt::Key_F2);
    press(Qt::Key_A, Qt::ControlModifier);
    type(typed);
    press(Qt::Key_Return);
    if (button != QMessageBox::NoButton)
        answer(QMessageBox::StandardButton(button));
    QTRY_COMPARE(record(2)->mName, name);
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), sequence.isEmpty() ? before : sequence);
    // The other item's menu offers the new name.
    QTRY_COMPARE(find("jump")->property("idNameHash").toMap().value(QStringLiteral("2")).toString(), name);
}

void tst_SettingScreen::itemsCanBeAddedPastedAndDeleted()
{
    const auto size = [] { return TutorialEditor::Manager::instance()->mData.mDataList.size(); };
    click(find("addItemButton"));
    QTRY_VERIFY(currentId() > 4);
    const int added = currentId();
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), QStringLiteral("addTutorialItem"));
    QTRY_COMPARE(screen()->property("selectedIdList").toList(), QVariantList({ added }));

    call("copyItems");
    call("pasteItems");
    QCOMPARE(size(), 6);
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), QStringLiteral("pasteTutorialItemList"));
    QTRY_VERIFY(currentId() != added);
    QTest::qWait(250);

    click(find("deleteButton"));
    QCOMPARE(size(), 5);
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), QStringLiteral("deleteTutorialItem"));
    click(find("addFolderButton"));
    QCOMPARE(size(), 6);
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), QStringLiteral("addFolder"));
    for (int i = 0; i < 4; ++i) {
        click(find("undoButton"));
        QTest::qWait(250);
    }
    QCOMPARE(size(), 4);
    QVERIFY(!managerInstance->isModified());
}

void tst_SettingScreen::itemThatIsGoneIsNotEdited()
{
    click(find("deleteButton"));
    QTRY_COMPARE(currentId(), -1);
    QVERIFY(!find("condition")->isEnabled());
    QCOMPARE(find("condition")->property("text").toString(), QString());
    click(find("undoButton"));
    QTRY_VERIFY(record(2));
    QTRY_COMPARE(currentId(), 2);

    select(4);
    click(find("addItemButton"));
    QTRY_VERIFY(currentId() > 4);
    click(find("undoButton"));
    QTRY_VERIFY(currentId() <= 4);
    QTRY_VERIFY(currentId() != -1);
}

void tst_SettingScreen::localeIsSwitched_data()
{
    QTest::addColumn<bool>("changed");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("switched");
    QTest::newRow("nothing to save") << false << int(QMessageBox::NoButton) << true;
    QTest::newRow("Yes") << true << int(QMessageBox::Yes) << true;
    QTest::newRow("No") << true << int(QMessageBox::No) << false;
}

void tst_SettingScreen::localeIsSwitched()
{
    QFETCH(bool, changed);
    QFETCH(int, button);
    QFETCH(bool, switched);

    const QString before = managerInstance->locale();
    const QString other = managerInstance->locale2();
    if (changed)
        typeInto("hint.edit", QStringLiteral("new"));
    find("localeComboBox")->forceActiveFocus();
    press(before == QLatin1String("ja_JP") ? Qt::Key_E : Qt::Key_J);
    if (button != QMessageBox::NoButton)
        answer(QMessageBox::StandardButton(button));
    QTRY_COMPARE(managerInstance->locale(), switched ? other : before);
    QTRY_COMPARE(find("localeComboBox")->property("currentText").toString(), managerInstance->locale());
    QTRY_COMPARE(currentId(), 2);
    const QString first = changed ? QStringLiteral("new") : before + QStringLiteral(" 2");
    const QString second = other + QStringLiteral(" 2");
    QTRY_COMPARE(find("hint.edit")->property("text").toString(), switched ? second : first);
    QCOMPARE(find("hint2.edit")->property("text").toString(), switched ? first : second);
    QCOMPARE(managerInstance->isModified(), changed && !switched);
    QCOMPARE(savedHint(before, 2), changed && switched ? QStringLiteral("new") : before + QStringLiteral(" 2"));
}

void tst_SettingScreen::hintsSurvive_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("quotes and backslashes") << QStringLiteral("\"a\" 'b' \\n \\\\ \\\"");
    QTest::newRow("percent signs") << QStringLiteral("%1 100 % %% %n");
    QTest::newRow("line feeds") << QStringLiteral("\n\none\n two \n");
    QTest::newRow("markup") << QStringLiteral("<b>&amp;</b> ]]> <!-- -->");
    QTest::newRow("emoji") << QString::fromUtf8("\xf0\x9f\x98\x80 \xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x9a\x80");
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d (abc) \xd9\x85");
    QTest::newRow("script") << QStringLiteral("]; var scenario = [ qsTr(\"#3\") // /*");
    QTest::newRow("key") << QStringLiteral("#3");
    QTest::newRow("empty") << QString();
    QTest::newRow("long") << QString(20000, QLatin1Char('x')) + QStringLiteral("\nend");
}

void tst_SettingScreen::hintsSurvive()
{
    QFETCH(QString, text);
    const QString first = managerInstance->locale();
    const QString second = managerInstance->locale2();
    const auto paste = [&](const char *field, const QString &pasted) {
        click(find(field));
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        if (pasted.isEmpty())
            return;
        QGuiApplication::clipboard()->setText(pasted);
        press(Qt::Key_V, Qt::ControlModifier);
    };
    const auto shown = [&](const char *field) { return find(field)->property("text").toString(); };

    paste("hint.edit", text);
    paste("hint2.edit", text + QStringLiteral("2"));
    select(3);
    select(2);
    QCOMPARE(shown("hint.edit"), text);
    click(find("saveButton"));
    QVERIFY(!managerInstance->isModified());
    QCOMPARE(savedHint(second, 2), text + QStringLiteral("2"));

    QMetaObject::invokeMethod(mWindow, "reloadTutorial");
    QCOMPARE(shown("hint.edit"), text);
    QCOMPARE(shown("hint2.edit"), text + QStringLiteral("2"));
    managerInstance->setLocale(second);
    QMetaObject::invokeMethod(mWindow, "reloadTutorial");
    QCOMPARE(shown("hint.edit"), text + QStringLiteral("2"));
    QCOMPARE(shown("hint2.edit"), text);
    click(find("saveButton"));
    QMetaObject::invokeMethod(mWindow, "reloadTutorial");
    QCOMPARE(shown("hint2.edit"), text);
    managerInstance->setLocale(first);
    QVERIFY(!managerInstance->isModified());
}

void tst_SettingScreen::eventIsTakenOver()
{
    auto *dialog = screen()->property("tutorialEventDialog").value<QQuickWindow *>();
    QVERIFY(dialog);
    const auto send = [this](const QStringList &fields) {
        mHost->send(QStringList{ QStringLiteral("eventLog") } + fields);
    };
    const auto row = [&](const char *list, int index) {
        QQuickItem *found = nullptr;
        for (QQuickItem *each : dialog->findChild<QQuickItem *>(QLatin1String(list))
                                    ->property("contentItem")
                                    .value<QQuickItem *>()
                                    ->childItems()) {
            if (each->property("row") == index)
                found = each;
        }
        return found;
    };
    for (int i = 0; i < 60; ++i)
        send({ QStringLiteral("append"), QStringLiteral("<b>click</b>,Row%1 &amp; more").arg(i) });
    send({ QStringLiteral("coords"), QStringLiteral("MainWindow 3, 4") });
    send({ QStringLiteral("raisedHand"), QStringLiteral("MainWindow"), QStringLiteral("MainWindow/<i>tool</i>") });
    QTRY_VERIFY(row("trackingList", 1));
    QTRY_COMPARE(dialog->property("coordinates").toString(), QStringLiteral("MainWindow 3, 4"));
    QTest::qWait(50);
    // The newest one is in view.
    const QRectF last = row("eventList", 59)->mapRectToScene(QRectF(0, 0, 100, 32));
    QVERIFY2(last.bottom() <= dialog->height() && last.top() > 0, qPrintable(QString::number(last.bottom())));

    click(row("eventList", 59), dialog, true);
    QCOMPARE(condition(2), QStringLiteral("click,Row59 & more"));
    QSignalSpy received(mHost, &HostLink::received);
    click(row("trackingList", 1), dialog, true);
    QCOMPARE(record(2)->mWindowKey, QStringLiteral("MainWindow/<i>tool</i>"));
    QTRY_VERIFY(received.count() > 0 && received.last().first().toStringList().first() == QLatin1String("start"));

    select(1);
    click(row("eventList", 58), dialog, true);
    click(row("trackingList", 0), dialog, true);
    QCOMPARE(condition(1), QString());
    QCOMPARE(record(1)->mWindowKey, QString());

    click(dialog->findChild<QQuickItem *>(QStringLiteral("clearButton")), dialog);
    QTRY_VERIFY(!row("eventList", 0));
    QVERIFY(row("trackingList", 0));
}

void tst_SettingScreen::tabLeadsThroughTheFields()
{
    const QStringList order = { QStringLiteral("windowKey"), QStringLiteral("x"),          QStringLiteral("y"),
                                QStringLiteral("icon"),      QStringLiteral("command"),    QStringLiteral("showArrow"),
                                QStringLiteral("hint.edit"), QStringLiteral("hint2.edit"), QStringLiteral("condition"),
                                QStringLiteral("jump"),      QStringLiteral("jumpNo") };
    click(find("windowKey"));
    QStringList visited;
    for (int i = 0; i < 30 && visited.size() < order.size(); ++i) {
        for (QQuickItem *each = mWindow->activeFocusItem(); each; each = each->parentItem()) {
            if (order.contains(each->objectName())) {
                visited.append(each->objectName());
                break;
            }
        }
        press(Qt::Key_Tab);
    }
    QCOMPARE(visited, order);
}

int main(int argc, char *argv[])
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    QByteArray suffix = kSuffix.arg(qint64(qHash(home.path()))).toLocal8Bit();
    char *arguments[] = { argv[0], suffix.data(), nullptr };
    int count = 2;
    QApplication application(count, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    applicationObject = &application;
    registerQmlTypes();
    HostLink host;
    const QString error = host.listen(QString::fromLocal8Bit(suffix));
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    tst_SettingScreen test(&host);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SettingScreen.moc"

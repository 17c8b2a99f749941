#include "SettingScreenTest.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QClipboard>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

#include <functional>

using namespace HostMessages;

namespace
{
const QString kTranslation = QStringLiteral("tutorial-win/translations/%1.ts");
const QString kContext = QStringLiteral("TutorialSideViewStep0");

QString savedHint(const QString &locale, int id)
{
    QFile file(kTranslation.arg(locale));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return QStringLiteral("no document");
    return TranslationSource::readMessages(document).value(kContext).value(QStringLiteral("#%1").arg(id));
}
} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

/// The settings screen and the event dialog in the real application window, by mouse and key events.
class tst_SettingScreen : public SettingScreenTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { load(); }
    void init();
    void cleanup();

    void keysStayWhereTheyWere();
    void fieldEditsItsProperty_data();
    void fieldEditsItsProperty();
    void typedTextIsNotLost_data();
    void typedTextIsNotLost();
    void textThatCantBeSavedIsRefused();
    void takenNameIsAskedFor();
    void localeIsSwitched();
    void missingHintsAreMarked();
    void hintsSurvive();
    void eventIsTakenOver();
};

void tst_SettingScreen::init()
{
    for (const QString &locale : { QStringLiteral("ja_JP"), QStringLiteral("en_US") }) {
        QDomDocument document = TranslationSource::emptyDocument(locale);
        TranslationSource::writeMessages(document, kContext,
                                         { { QStringLiteral("#2"), locale + QStringLiteral(" 2") } });
        MainWindowFixture::writeFile(kTranslation.arg(locale), document.toByteArray());
    }
    managerInstance->setLocale(QStringLiteral("ja_JP"));
    loadScenario(R"({"id":1,"name":"folder","folder":true,"children":[)"
                 + itemText(2, QStringLiteral("first"), QStringLiteral("click")) + ','
                 + itemText(3, QStringLiteral("second")) + "]}");
    select(2);
}

void tst_SettingScreen::cleanup()
{
    if (QWidget *dialog = MainWindowFixture::dialog())
        dialog->close();
    if (QQuickWindow *dialog = MainWindowFixture::visibleWindow("SaveChangeDialog"))
        dialog->close();
}

void tst_SettingScreen::keysStayWhereTheyWere()
{
    // Nothing was clicked yet. The menu bar takes the focus with Escape and with Alt.
    const auto goesOn = [this](int key, int id) {
        QTRY_VERIFY(mFixture->evaluate(QStringLiteral("activeMenu !== null && activeMenu.addItemMi.enabled")).toBool());
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
    QMetaObject::invokeMethod(mWindow, "saveTutorial");
    QCOMPARE(record(3)->mName, QStringLiteral("new"));
    goesOn(Qt::Key_Up, 2);

    typeInto("condition", QStringLiteral("wa"));
    press(Qt::Key_Escape);
    QTRY_VERIFY(find("condition")->isAncestorOf(mWindow->activeFocusItem()));
    type(QStringLiteral("it"));
    press(Qt::Key_Return);
    QCOMPARE(condition(2), QStringLiteral("wait"));
}

void tst_SettingScreen::fieldEditsItsProperty_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("steps");

    const auto row = [](const char *field, const char *property, const char *typed, const QVariant &value,
                        int steps = 1) {
        QTest::newRow(field) << QString::fromLatin1(property) << QString::fromLatin1(typed) << value << steps;
    };
    row("windowKey", "text", "Popup/cut", QStringLiteral("Popup/cut"));
    row("x", "value", "-42", -42);
    row("condition", "text", "wait,\"5\\%1", QStringLiteral("wait,\"5\\%1"));
    row("icon", "currentText", "k", QStringLiteral("keyboard"));
    row("showArrow", "checked", " ", false);
    // A step of the history for each key, the first of which takes the place of the selected text.
    row("hint2.edit", "text", "c%d", QStringLiteral("c%d"), 3);
}

void tst_SettingScreen::fieldEditsItsProperty()
{
    QFETCH(QString, property);
    QFETCH(QString, typed);
    QFETCH(QVariant, value);
    QFETCH(int, steps);

    const char *field = QTest::currentDataTag();
    const QString key = QString::fromLatin1(field).section(QLatin1Char('.'), 0, 0);
    const QVariant before = record(2)->getValue(key);
    QQuickItem *control = find(field);
    const auto shownNow = [&] { return control->property(property.toLatin1().constData()); };
    if (property == QLatin1String("text")) {
        click(control);
        press(Qt::Key_A, Qt::ControlModifier);
    } else {
        control->forceActiveFocus(Qt::TabFocusReason);
    }
    type(typed);
    press(Qt::Key_Tab);
    QCOMPARE(record(2)->getValue(key), value);
    QVERIFY(managerInstance->isModified());
    QCOMPARE(shownNow().toString(), value.toString());

    for (int i = 0; i < steps; ++i)
        click(find("undoButton"));
    QCOMPARE(record(2)->getValue(key), before);
    QTRY_COMPARE(shownNow().toString(), before.toString());
    QVERIFY(!managerInstance->isModified());
    settle();
    // Showing it again was no edit, which would have cut off what can be redone.
    for (int i = 0; i < steps; ++i)
        click(find("redoButton"));
    QTRY_COMPARE(shownNow().toString(), value.toString());
}

void tst_SettingScreen::typedTextIsNotLost_data()
{
    QTest::addColumn<std::function<void()>>("leave");
    const auto row = [](const char *name, const std::function<void()> &leave) { QTest::newRow(name) << leave; };
    row("save", [this] { click(find("saveButton")); });
    row("other row", [this] { select(3); });
    row("add item", [this] { click(find("addItemButton")); });
    row("language", [this] { find("localeComboBox")->setProperty("currentIndex", 1); });
    row("close", [this] { QVERIFY(!mWindow->close()); });
}

void tst_SettingScreen::typedTextIsNotLost()
{
    QFETCH(std::function<void()>, leave);
    typeInto("condition", QStringLiteral("wait,7"));
    QCOMPARE(condition(2), QStringLiteral("click"));
    leave();
    QTRY_COMPARE(condition(2), QStringLiteral("wait,7"));
    if (currentId() != 2) {
        // It is no other row's text.
        QTRY_COMPARE(shown("condition"), QString());
        press(Qt::Key_Tab);
        QCOMPARE(condition(currentId()), QString());
    }
    if (!managerInstance->isModified()) {
        // Typing goes on after it was saved.
        type(QStringLiteral("5"));
        press(Qt::Key_Return);
        QCOMPARE(condition(2), QStringLiteral("wait,75"));
    }
}

void tst_SettingScreen::textThatCantBeSavedIsRefused()
{
    const QString text = QStringLiteral("a];b");
    const auto isRefused = [&] {
        const bool told = MainWindowFixture::answer(QMessageBox::Ok).contains(text);
        return mFixture->activate() && told && !UndoRedo::instance()->canUndo();
    };
    for (const char *field : { "windowKey", "condition", "command" }) {
        const QString before = record(2)->getValue(QLatin1String(field)).toString();
        typeInto(field, text);
        press(Qt::Key_Return);
        QVERIFY(isRefused());
        QCOMPARE(shown(field), before);
        QCOMPARE(record(2)->getValue(QLatin1String(field)).toString(), before);
    }
    tree()->setProperty("autoActiveFocusOneShot", true);
    select(2);
    press(Qt::Key_F2);
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
    press(Qt::Key_Return);
    QVERIFY(isRefused());
    QCOMPARE(record(2)->mName, QStringLiteral("first"));
    // The writer hears of it before the window goes.
    typeInto("condition", text);
    QVERIFY(!mWindow->close());
    QVERIFY(isRefused());
    QVERIFY(mWindow->isVisible());
}

void tst_SettingScreen::takenNameIsAskedFor()
{
    for (const bool taken : { false, true }) {
        tree()->setProperty("autoActiveFocusOneShot", true);
        select(2);
        press(Qt::Key_F2);
        press(Qt::Key_A, Qt::ControlModifier);
        type(QStringLiteral("second"));
        press(Qt::Key_Return);
        MainWindowFixture::answer(taken ? QMessageBox::Yes : QMessageBox::No);
        QTRY_COMPARE(record(2)->mName, taken ? QStringLiteral("second1") : QStringLiteral("first"));
        QCOMPARE(UndoRedo::instance()->canUndo(), taken);
        QVERIFY(mFixture->activate());
        QTRY_VERIFY(mFixture->evaluate(QStringLiteral("activeMenu !== null")).toBool());
    }
    QCOMPARE(UndoRedo::instance()->lastTransactionName(), QStringLiteral("changeName"));
}

void tst_SettingScreen::localeIsSwitched()
{
    const QString first = QStringLiteral("ja_JP");
    const QString second = QStringLiteral("en_US");
    loadScenario(R"({"id":1,"name":"folder","folder":true,"children":[)" + itemText(2, QStringLiteral("first"))
                 + R"(]},{"id":3,"name":"other","folder":true,"children":[)" + itemText(4, QStringLiteral("second"))
                 + "]}");
    select(4);
    select(2);
    typeInto("hint.edit", QStringLiteral("new"));
    for (const bool switched : { false, true }) {
        QVERIFY(mFixture->activate());
        find("localeComboBox")->forceActiveFocus();
        press(Qt::Key_E);
        MainWindowFixture::answer(switched ? QMessageBox::Yes : QMessageBox::No);
        QTRY_COMPARE(managerInstance->locale(), switched ? second : first);
        QTRY_COMPARE(find("localeComboBox")->property("currentText").toString(), managerInstance->locale());
        QTRY_COMPARE(shown(switched ? "hint2.edit" : "hint.edit"), QStringLiteral("new"));
        QCOMPARE(shown(switched ? "hint.edit" : "hint2.edit"), QStringLiteral("en_US 2"));
        QCOMPARE(managerInstance->isModified(), !switched);
        QCOMPARE(savedHint(first, 2), switched ? QStringLiteral("new") : QStringLiteral("ja_JP 2"));
    }
    QCOMPARE(currentId(), 2);
    settle();
    QVERIFY(mFixture->evaluate(QStringLiteral("settingScreen.treeListView.getItemById(4) !== null")).toBool());
}

// Learners see the key where a hint is empty.
void tst_SettingScreen::missingHintsAreMarked()
{
    const auto marks = [this] {
        return QStringLiteral("%1 %2")
            .arg(find("hintLabel.missing")->isVisible())
            .arg(find("hint2Label.missing")->isVisible());
    };
    QCOMPARE(marks(), QStringLiteral("0 0"));
    click(find("hint.edit"));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    QCOMPARE(marks(), QStringLiteral("1 0"));
    click(find("undoButton"));
    QTRY_COMPARE(marks(), QStringLiteral("0 0"));
    select(3);
    QCOMPARE(shown("hint2.edit"), QStringLiteral("#3"));
    QCOMPARE(marks(), QStringLiteral("1 1"));
    select(1);
    QCOMPARE(marks(), QStringLiteral("0 0"));
}

void tst_SettingScreen::hintsSurvive()
{
    const QString text = QString::fromUtf8(
        "\"a\" 'b' \\n \\\\ \\\" %1 100 % %% %n <b>&amp;</b> ]]> <!-- -->\n\n two \n]; var scenario = [ "
        "qsTr(\"#3\") // /*\n\xf0\x9f\x98\x80 \xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d (abc)");
    const QString second = managerInstance->locale2();
    click(find("hint.edit"));
    press(Qt::Key_A, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
    click(find("hint2.edit"));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    select(3);
    select(2);
    QCOMPARE(shown("hint.edit"), text);
    click(find("saveButton"));
    QVERIFY(!managerInstance->isModified());
    QCOMPARE(savedHint(second, 2), QString());

    managerInstance->setLocale(second);
    QMetaObject::invokeMethod(mWindow, "reloadTutorial");
    QCOMPARE(shown("hint.edit"), QString());
    QCOMPARE(shown("hint2.edit"), text);
    QVERIFY(!managerInstance->isModified());
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
    mFixture->host().send(FromHost::kEventLog, FromHost::kAppend, QStringLiteral("<b>click</b>,Row &amp; more"));
    mFixture->host().send(FromHost::kEventLog, FromHost::kRaisedHand, QStringLiteral("MainWindow/<i>tool</i>"));
    QTRY_VERIFY(row("eventList") && row("trackingList"));
    // A folder takes none; the item does.
    for (const int id : { 1, 2 }) {
        select(id);
        MainWindowFixture::click(row("eventList"), true);
        MainWindowFixture::click(row("trackingList"), true);
    }
    QCOMPARE(condition(1) + record(1)->mWindowKey, QString());
    QCOMPARE(condition(2), QStringLiteral("click,Row & more"));
    QCOMPARE(record(2)->mWindowKey, QStringLiteral("MainWindow/<i>tool</i>"));

    // The newest line comes into view; what isn't in view has no row.
    for (int i = 0; i < 500; ++i)
        mFixture->host().send(FromHost::kEventLog, FromHost::kAppend, i);
    QTRY_VERIFY(row("eventList", 500));
    QTRY_VERIFY(!row("eventList", 400));
}

int main(int argc, char *argv[])
{
    const auto application = MainWindowFixture::makeApplication(argv[0]);
    tst_SettingScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SettingScreen.moc"

#include "SettingScreenFixture.h"

/// The fields of the settings screen, by mouse and key events.
class tst_SettingFields : public SettingScreenFixture
{
    Q_OBJECT

public:
    using SettingScreenFixture::SettingScreenFixture;

private Q_SLOTS:
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
    void tabLeadsThroughTheFields();
};

void tst_SettingFields::fieldEditsItsProperty_data()
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

void tst_SettingFields::fieldEditsItsProperty()
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

void tst_SettingFields::choiceEditsItsProperty_data()
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

void tst_SettingFields::choiceEditsItsProperty()
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

void tst_SettingFields::fillingTheFieldsRecordsNothing()
{
    for (const int id : { 3, 4, 1, 2 }) {
        select(id);
        call("updateSettings");
    }
    call("showDocument");
    QVERIFY(!UndoRedo::instance()->canUndo());
    QVERIFY(!managerInstance->isModified());
}

void tst_SettingFields::typedTextIsNotLost_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : { "save", "Ctrl+S", "other row", "add item", "undo", "close", "F4", "language" })
        QTest::newRow(action) << QString::fromLatin1(action);
}

void tst_SettingFields::typedTextIsNotLost()
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

void tst_SettingFields::numberOutOfTheLimitsStays()
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

void tst_SettingFields::cursorIsCaptured()
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

void tst_SettingFields::jumpMenuOffersAllButTheItemItself()
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

void tst_SettingFields::tabLeadsThroughTheFields()
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
    return SettingScreenFixture::run<tst_SettingFields>(argc, argv);
}

#include "tst_SettingFields.moc"

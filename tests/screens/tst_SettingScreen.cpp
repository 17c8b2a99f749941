#include "SettingScreenFixture.h"

#include <QClipboard>
#include <QGuiApplication>

/// The tree of the settings screen, the languages and the event dialog, by mouse and key events.
class tst_SettingScreen : public SettingScreenFixture
{
    Q_OBJECT

public:
    using SettingScreenFixture::SettingScreenFixture;

private Q_SLOTS:
    void takenNameIsAskedFor_data();
    void takenNameIsAskedFor();
    void itemsCanBeAddedPastedAndDeleted();
    void itemThatIsGoneIsNotEdited();
    void localeIsSwitched_data();
    void localeIsSwitched();
    void hintsSurvive_data();
    void hintsSurvive();
    void eventIsTakenOver();
};

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

int main(int argc, char *argv[])
{
    return SettingScreenFixture::run<tst_SettingScreen>(argc, argv);
}

#include "tst_SettingScreen.moc"

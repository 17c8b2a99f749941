#include "SettingScreenTest.h"

#include "quick/DocumentFollower.h"
#include "quick/TutorialItemListModel.h"
#include "support/ModelRows.h"
#include "support/WarningGuard.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QtTest>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

/// The one history of the tree, the fields and the keys.
class tst_UndoOnScreen : public SettingScreenTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void stepsAreShown_data();
    void stepsAreShown();
    void fieldKeysGoThroughTheHistory_data();
    void fieldKeysGoThroughTheHistory();
    void menusTakeWhatIsTyped_data();
    void menusTakeWhatIsTyped();

private:
    static constexpr int kItems = 90;

    TutorialItemListModel *rows() { return screen()->property("model").value<TutorialItemListModel *>(); }
    qreal scrolled();
    QQuickItem *row(int id);
    void drag(int id, int targetId);
    void chooseEntry(Qt::Key menu, const char *entry);
    void checkShown(int id, qreal place);

    WarningGuard mWarnings;
};

void tst_UndoOnScreen::initTestCase()
{
    mWarnings.begin();
    // What the history says of itself at its start.
    mWarnings.expect(QStringLiteral("UndoRedo::UndoRedo"));
    load();
    mWarnings.end();
}

void tst_UndoOnScreen::init()
{
    mWarnings.begin();
    QByteArrayList items;
    for (int id = 1; id <= kItems; ++id)
        items.append(itemText(id, QStringLiteral("step%1").arg(id)));
    items.append(R"({"id":91,"name":"folder","folder":true,"children":[)" + itemText(92, QStringLiteral("inner"))
                 + "]}");
    loadScenario(items.join(','));
    tree()->setProperty("autoActiveFocusOneShot", true);
    select(62);
}

void tst_UndoOnScreen::cleanup()
{
    mFixture->evaluate(QStringLiteral("commitEditing()"));
    managerInstance->setModified(false);
    managerInstance->unload();
    mWarnings.end();
}

qreal tst_UndoOnScreen::scrolled()
{
    QVariant place;
    QMetaObject::invokeMethod(tree()->findChild<QQuickItem *>(QStringLiteral("view")), "scrolled",
                              Q_RETURN_ARG(QVariant, place));
    return place.toReal();
}

QQuickItem *tst_UndoOnScreen::row(int id)
{
    QVariant delegate;
    QMetaObject::invokeMethod(tree(), "getItemById", Q_RETURN_ARG(QVariant, delegate), Q_ARG(QVariant, id));
    return delegate.value<QQuickItem *>();
}

void tst_UndoOnScreen::drag(int id, int targetId)
{
    const auto middle = [this](int of) { return row(of)->mapToScene(QPointF(100, row(of)->height() / 2)).toPoint(); };
    const QPoint start = middle(id);
    const QPoint end = middle(targetId) - QPoint(0, 7);
    QTest::mousePress(mWindow, Qt::LeftButton, Qt::NoModifier, start);
    for (int i = 1; i <= 12; ++i)
        QTest::mouseMove(mWindow, start + (end - start) * i / 12);
    QTest::mouseRelease(mWindow, Qt::LeftButton, Qt::NoModifier, end);
}

void tst_UndoOnScreen::chooseEntry(Qt::Key menu, const char *entry)
{
    const int before = QGuiApplication::allWindows().size();
    press(menu, Qt::AltModifier);
    QTRY_VERIFY(QGuiApplication::allWindows().size() > before);
    QVERIFY(QTest::qWaitForWindowExposed(QGuiApplication::allWindows().last()));
    const QObject *item = mWindow->findChild<QObject *>(QLatin1String(entry));
    MainWindowFixture::click(item->property("__visualItem").value<QQuickItem *>());
}

/// The rows are those of the document, the row of the id is selected and in view, and the tree has
/// not been scrolled, but for a row that is gone from its end.
void tst_UndoOnScreen::checkShown(int id, qreal place)
{
    QTRY_COMPARE(currentId(), id);
    settle();
    QCOMPARE(ModelRows::difference(*rows()), QString());
    QCOMPARE(currentId(), id);
    QCOMPARE(screen()->property("selectedIdList").toList(), QVariantList{ id });
    QVERIFY(row(id));
    QVERIFY2(scrolled() == place || scrolled() == place - 24, QByteArray::number(scrolled()).constData());
}

void tst_UndoOnScreen::stepsAreShown_data()
{
    QTest::addColumn<std::function<void()>>("edit");
    QTest::addColumn<int>("editedId");
    QTest::addColumn<int>("undoneId");
    QTest::addColumn<int>("redoneId");
    const auto line = [](const char *name, int edited, int undone, int redone, const std::function<void()> &edit) {
        QTest::newRow(name) << edit << edited << undone << redone;
    };
    line("add", 93, 62, 93, [this] { click(find("addItemButton")); });
    line("paste", 93, 91, 93, [this] {
        press(Qt::Key_C, Qt::ControlModifier);
        press(Qt::Key_V, Qt::ControlModifier);
    });
    line("delete", 63, 62, 63, [this] { press(Qt::Key_Delete); });
    line("move", 62, 62, 62, [this] { drag(62, 58); });
    line("rename", 62, 62, 62, [this] {
        press(Qt::Key_F2);
        type(QStringLiteral("new"));
        press(Qt::Key_Return);
    });
    // The writer has gone on to another row.
    line("field", 64, 62, 62, [this] {
        typeInto("condition", QStringLiteral("click"));
        select(64);
    });
}

void tst_UndoOnScreen::stepsAreShown()
{
    QFETCH(std::function<void()>, edit);
    QFETCH(int, editedId);
    QFETCH(int, undoneId);
    QFETCH(int, redoneId);

    edit();
    QTRY_VERIFY(UndoRedo::instance()->canUndo());
    QTRY_COMPARE(currentId(), editedId);
    settle();
    const qreal place = scrolled();
    QVERIFY(place > 0);
    auto *follower = screen()->findChild<DocumentFollower *>();
    QVERIFY(follower);
    QSignalSpy changes(follower, &DocumentFollower::rowsAboutToChange);
    QSignalSpy passes(follower, &DocumentFollower::followed);
    for (int i = 0; i < 2; ++i) {
        click(find("undoButton"));
        checkShown(undoneId, place);
        click(find("redoButton"));
        checkShown(redoneId, place);
    }
    QVERIFY(changes.count() <= 4);
    QCOMPARE(passes.count(), 4);
}

void tst_UndoOnScreen::fieldKeysGoThroughTheHistory_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("steps");
    QTest::newRow("condition") << QStringLiteral("text") << QStringLiteral("wait") << 1;
    QTest::newRow("x") << QStringLiteral("value") << QStringLiteral("33") << 1;
    QTest::newRow("hint.edit") << QStringLiteral("text") << QStringLiteral("abc") << 3;
}

void tst_UndoOnScreen::fieldKeysGoThroughTheHistory()
{
    QFETCH(QString, property);
    QFETCH(QString, typed);
    QFETCH(int, steps);
    QQuickItem *field = find(QTest::currentDataTag());
    const auto value = [&] { return field->property(property.toLatin1().constData()).toString(); };
    const QString before = value();

    typeInto("command", QStringLiteral("play"));
    click(field);
    press(Qt::Key_A, Qt::ControlModifier);
    type(typed);
    for (int i = 0; i < steps; ++i) {
        QVERIFY(value() != before);
        press(Qt::Key_Z, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(value(), before);
    QVERIFY(UndoRedo::instance()->canRedo());
    QCOMPARE(record(62)->mCommand, QStringLiteral("play"));
    // On through the history, and nothing was added to it.
    press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(record(62)->mCommand, QString());
    QVERIFY(!UndoRedo::instance()->canUndo());
    for (int i = 0; i < steps + 1; ++i)
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(value(), typed);
    QVERIFY(!UndoRedo::instance()->canRedo());
}

void tst_UndoOnScreen::menusTakeWhatIsTyped_data()
{
    QTest::addColumn<std::function<void()>>("choose");
    QTest::addColumn<bool>("undone");
    QTest::newRow("undo") << std::function<void()>([this] { chooseEntry(Qt::Key_E, "undo"); }) << true;
    QTest::newRow("start tutorial") << std::function<void()>([this] { press(Qt::Key_F5); }) << false;
    QTest::newRow("start current") << std::function<void()>([this] { press(Qt::Key_F6); }) << false;
    QTest::newRow("save") << std::function<void()>([this] { press(Qt::Key_S, Qt::ControlModifier); }) << false;
}

void tst_UndoOnScreen::menusTakeWhatIsTyped()
{
    QFETCH(std::function<void()>, choose);
    QFETCH(bool, undone);
    typeInto("command", QStringLiteral("play"));
    typeInto("condition", QStringLiteral("wait"));
    choose();
    QTRY_COMPARE(UndoRedo::instance()->lastTransactionName(), QStringLiteral("setCondition"));
    QTRY_COMPARE(record(62)->mCondition, undone ? QString() : QStringLiteral("wait"));
    QCOMPARE(shown("condition"), record(62)->mCondition);
    QCOMPARE(record(62)->mCommand, QStringLiteral("play"));
    QCOMPARE(UndoRedo::instance()->canRedo(), undone);
}

int main(int argc, char *argv[])
{
    const auto application = MainWindowFixture::makeApplication(argv[0]);
    tst_UndoOnScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_UndoOnScreen.moc"

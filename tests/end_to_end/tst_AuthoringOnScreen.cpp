#include "AuthorDriver.h"

#include <QFile>
#include <QTest>

namespace
{
const QString kSaveQuestion = QStringLiteral("^プロジェクトの保存$");
} // namespace

/// A writer at work: the real program in the authoring mode, by mouse and keyboard.
class tst_AuthoringOnScreen : public AuthorDriver
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void untouchedTutorialIsSavedAsItWas();
    void editsAreSavedAndReadAgain();
    void treeIsRearrangedAndPutBack();
};

void tst_AuthoringOnScreen::init()
{
    makeFolder();
    for (const QString &name : { kScenario, kJapanese, kEnglish }) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(original(name)) > 0);
    }
    QVERIFY(start());
}

void tst_AuthoringOnScreen::cleanup()
{
    end();
}

void tst_AuthoringOnScreen::untouchedTutorialIsSavedAsItWas()
{
    press(QStringLiteral("ctrl+s"));
    QVERIFY(!items().isEmpty());
    for (const QString &name : { kScenario, kJapanese, kEnglish })
        QCOMPARE(read(path(name)), original(name));
    QVERIFY(leave());
}

void tst_AuthoringOnScreen::editsAreSavedAndReadAgain()
{
    // Row 3 is the item of the id 3, row 4 that of the id 4.
    click(row(3));
    press(QStringLiteral("F2"));
    type(QStringLiteral("look round?"));
    press(QStringLiteral("Return"));
    QVERIFY(becomes(3, "name", QStringLiteral("look round?")));
    press(QStringLiteral("ctrl+z"));
    QVERIFY(becomes(3, "name", QStringLiteral("askLook")));
    QVERIFY(!isModified());
    press(QStringLiteral("ctrl+shift+z"));
    QVERIFY(becomes(3, "name", QStringLiteral("look round?")));

    clickSlowlyAgain(row(4));
    type(QStringLiteral("the tools"));
    press(QStringLiteral("Return"));
    QVERIFY(becomes(4, "name", QStringLiteral("the tools")));

    click(kHint);
    press(QStringLiteral("ctrl+End"));
    type(QStringLiteral(" \"a\" \\ 50%"));
    click(kHint2);
    press(QStringLiteral("ctrl+End"));
    press(QStringLiteral("Return"));
    type(QStringLiteral("<b> & 'c'"));

    // The menu opens at (Next). After that and the separator stands the first folder; its second item.
    click(kJump);
    for (const char *key : { "Down", "Right", "Down" }) {
        press(QLatin1String(key));
        QTest::qWait(200);
    }
    press(QStringLiteral("Return"));
    QVERIFY(becomes(4, "jump", 3));

    // A position over the window that the step tracks, and a text that is still being typed.
    mHost->send(HostMessages::FromHost::kControlPosition, QStringLiteral("MainWindow/toolSelect"), 40, -50);
    click(kCondition);
    press(QStringLiteral("ctrl+a"));
    type(QStringLiteral("wait,300"));
    press(QStringLiteral("F4"));
    const QStringList cursor =
        xdotool({ QStringLiteral("getmouselocation"), QStringLiteral("--shell") }).split(QLatin1Char('\n'));
    const int x = cursor.at(0).mid(2).toInt() - 40;
    const int y = cursor.at(1).mid(2).toInt() + 50;
    QVERIFY(becomes(4, "x", x));
    QCOMPARE(value(4, "y").toInt(), y);

    press(QStringLiteral("ctrl+s"));
    QTRY_VERIFY(!isModified());

    QByteArray scenario = original(kScenario);
    scenario.replace("\"askLook\"", "\"look round?\"").replace("\"tools\"", "\"the tools\"");
    const int item = scenario.indexOf("\"id\":4,");
    QByteArray rest = scenario.mid(item, scenario.indexOf("\"id\":5,") - item);
    const int size = rest.size();
    rest.replace("\"x\":6,", "\"x\":" + QByteArray::number(x) + ',')
        .replace("\"y\":-117,", "\"y\":" + QByteArray::number(y) + ',')
        .replace("\"condition\":\"click\"", "\"condition\":\"wait,300\"")
        .replace("\"jump\":-1", "\"jump\":3");
    scenario.replace(item, size, rest);
    QCOMPARE(read(path(kScenario)), scenario);
    QByteArray japanese = original(kJapanese);
    const QByteArray hint = QStringLiteral("今マウスで使える道具です。").toUtf8();
    QCOMPARE(japanese.count(hint), 1);
    QCOMPARE(read(path(kJapanese)), japanese.replace(hint, hint + " \"a\" \\ 50%"));
    QByteArray english = original(kEnglish);
    const QByteArray hint2 = "what the mouse does on the canvas.";
    QCOMPARE(english.count(hint2), 1);
    QCOMPARE(read(path(kEnglish)), english.replace(hint2, hint2 + "\n&lt;b> &amp; 'c'"));

    const QList<QJsonObject> before = items();
    QVERIFY(leave());
    QVERIFY(start());
    QCOMPARE(items(), before);
    QVERIFY(!isModified());
    QVERIFY(leave());
}

void tst_AuthoringOnScreen::treeIsRearrangedAndPutBack()
{
    const QStringList before = names();
    const auto undone = [&] {
        press(QStringLiteral("ctrl+z"));
        return becomes(before) && !isModified();
    };

    click(row(4));
    press(QStringLiteral("ctrl+c"));
    press(QStringLiteral("ctrl+v"));
    QStringList pasted = before;
    pasted.append(QStringLiteral("tools(1)"));
    QVERIFY(becomes(pasted));

    // Behind the question, the window answers no key although a click has given it the focus.
    press(QStringLiteral("ctrl+w"));
    QTRY_VERIFY(
        !xdotool({ QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"), kSaveQuestion })
             .isEmpty());
    QTest::qWait(kSlow);
    click(kCondition);
    press(QStringLiteral("ctrl+z"));
    press(QStringLiteral("alt+f"));
    QTest::qWait(kSlow);
    press(QStringLiteral("Escape"));
    QTest::qWait(kSlow);
    QVERIFY(becomes(pasted));
    QVERIFY(undone());

    // Two rows at once, to before the first one.
    click(row(4));
    move(row(5));
    xdotool({ QStringLiteral("keydown"), QStringLiteral("shift"), QStringLiteral("click"), QStringLiteral("1"),
              QStringLiteral("keyup"), QStringLiteral("shift") });
    QTest::qWait(kSlow);
    drag(row(5) + QPoint(0, 2), row(2) - QPoint(0, 9));
    QStringList moved = before;
    moved.move(moved.indexOf(QStringLiteral("tools")), 1);
    moved.move(moved.indexOf(QStringLiteral("canvas")), 2);
    QVERIFY(becomes(moved));
    QVERIFY(undone());

    click(row(2));
    press(QStringLiteral("Delete"));
    QStringList deleted = before;
    deleted.removeAll(QStringLiteral("hello"));
    QVERIFY(becomes(deleted));
    QVERIFY(undone());

    press(QStringLiteral("ctrl+s"));
    QTest::qWait(kSlow);
    QCOMPARE(read(path(kScenario)), original(kScenario));
    QCOMPARE(read(path(kJapanese)), original(kJapanese));
    QVERIFY(leave());
}

QTEST_GUILESS_MAIN(tst_AuthoringOnScreen)
#include "tst_AuthoringOnScreen.moc"

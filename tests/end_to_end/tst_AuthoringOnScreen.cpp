#include "support/HostPeer.h"

#include <QDir>
#include <QFile>
#include <QJSEngine>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_AUTHOR_PROGRAM);
const QString kSourceFolder = QStringLiteral(TRELVANE_SOURCE_DIR);
const QString kTutorial = QStringLiteral("TutorialSideViewStep0");
const QString kScenario = QStringLiteral("qml/Tutorial/TutorialSideViewStep0.js");
const QString kJapanese = QStringLiteral("translations/ja_JP.ts");
const QString kEnglish = QStringLiteral("translations/en_US.ts");
const QString kFolderName = QStringLiteral("tutorial-win/");

// Places in the window at its first size, in pixels.
constexpr int kFirstRowY = 58;
constexpr int kRowHeight = 24;
constexpr QPoint kWindowKey(400, 68);
constexpr QPoint kHint(600, 340);
constexpr QPoint kHint2(600, 570);
constexpr QPoint kCondition(480, 678);
constexpr QPoint kJump(430, 714);

// Two clicks further apart than a double click.
constexpr int kSlow = 700;

QPoint row(int index)
{
    return QPoint(110, kFirstRowY + index * kRowHeight);
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The items of the script, in order, folders before their contents.
QList<QJsonObject> evaluate(const QString &script)
{
    QJSEngine engine;
    engine.evaluate(script);
    const QString json = engine.evaluate(QStringLiteral("JSON.stringify(scenario)")).toString();
    QList<QJsonObject> items;
    std::function<void(const QJsonArray &)> collect = [&](const QJsonArray &array) {
        for (const QJsonValue &value : array) {
            items.append(value.toObject());
            collect(value.toObject().value(QLatin1String("children")).toArray());
        }
    };
    collect(QJsonDocument::fromJson(json.toUtf8()).array());
    return items;
}
} // namespace

/// A writer at work: the real program in the authoring mode, by mouse and keyboard.
class tst_AuthoringOnScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void untouchedTutorialIsSavedAsItWas();
    void editsAreSavedAndReadAgain();
    void treeIsRearrangedAndPutBack();

private:
    bool start();
    bool leave();
    QString path(const QString &name) const { return mFolder->filePath(kFolderName + name); }
    static QByteArray original(const QString &name) { return read(kSourceFolder + QLatin1Char('/') + name); }

    /// Runs xdotool and gives what it prints.
    static QString xdotool(const QStringList &arguments);
    void move(const QPoint &place);
    void click(const QPoint &place);
    void clickSlowlyAgain(const QPoint &place);
    static void press(const QString &keys) { xdotool({ QStringLiteral("key"), keys }); }
    static void type(const QString &text);
    bool isModified() const;

    /// What the host editor is told to play, the way that F5 tells it.
    QList<QJsonObject> items();
    QJsonValue value(int id, const char *key);
    QStringList names();
    /// Waits for the entry of an item, or for the names of all items, to be so.
    bool becomes(int id, const char *key, const QJsonValue &wanted);
    bool becomes(const QStringList &wanted);

    QScopedPointer<QTemporaryDir> mFolder;
    QScopedPointer<HostPeer> mHost;
    QTimer mAlive;
    QString mWindow;
};

void tst_AuthoringOnScreen::init()
{
    mFolder.reset(new QTemporaryDir);
    for (const QString &name : { kScenario, kJapanese, kEnglish }) {
        QDir().mkpath(QFileInfo(path(name)).path());
        QVERIFY(QFile::copy(kSourceFolder + QLatin1Char('/') + name, path(name)));
    }
    QVERIFY(start());
}

void tst_AuthoringOnScreen::cleanup()
{
    mAlive.disconnect();
    mHost.reset();
}

bool tst_AuthoringOnScreen::start()
{
    mAlive.disconnect();
    mHost.reset(new HostPeer);
    mHost->process().setWorkingDirectory(mFolder->path());
    if (!mHost->start(kProgram))
        return false;
    connect(&mAlive, &QTimer::timeout, this, [this] { mHost->send({ QStringLiteral("alive") }); });
    mAlive.start(1000);
    const QStringList search = { QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                                 QStringLiteral("^\\*?%1$").arg(kTutorial) };
    if (!QTest::qWaitFor([&] { return !(mWindow = xdotool(search)).isEmpty(); }, 20000))
        return false;
    xdotool({ QStringLiteral("windowactivate"), QStringLiteral("--sync"), mWindow });
    return QTest::qWaitFor([this] { return !items().isEmpty(); }, 20000);
}

bool tst_AuthoringOnScreen::leave()
{
    press(QStringLiteral("ctrl+q"));
    return mHost->waitForExit(10000) && mHost->process().exitCode() == 0;
}

QString tst_AuthoringOnScreen::xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void tst_AuthoringOnScreen::move(const QPoint &place)
{
    xdotool({ QStringLiteral("mousemove"), QStringLiteral("--window"), mWindow, QString::number(place.x()),
              QString::number(place.y()) });
}

void tst_AuthoringOnScreen::click(const QPoint &place)
{
    move(place);
    xdotool({ QStringLiteral("click"), QStringLiteral("1") });
    // What follows a selection in short timers.
    QTest::qWait(kSlow);
}

void tst_AuthoringOnScreen::clickSlowlyAgain(const QPoint &place)
{
    click(place);
    click(place);
}

void tst_AuthoringOnScreen::type(const QString &text)
{
    xdotool({ QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), text });
}

bool tst_AuthoringOnScreen::isModified() const
{
    return xdotool({ QStringLiteral("getwindowname"), mWindow }).startsWith(QLatin1Char('*'));
}

QList<QJsonObject> tst_AuthoringOnScreen::items()
{
    press(QStringLiteral("F5"));
    // An edit may have restarted the tutorial before: the last one counts.
    QStringList last;
    QStringList fields = mHost->waitForMessage(QStringLiteral("start"), 2000);
    while (!fields.isEmpty()) {
        last = fields;
        fields = mHost->waitForMessage(QStringLiteral("start"), 200);
    }
    return evaluate(last.value(1));
}

QJsonValue tst_AuthoringOnScreen::value(int id, const char *key)
{
    for (const QJsonObject &item : items()) {
        if (item.value(QLatin1String("id")).toInt() == id)
            return item.value(QLatin1String(key));
    }
    return QJsonValue();
}

QStringList tst_AuthoringOnScreen::names()
{
    QStringList names;
    for (const QJsonObject &item : items())
        names.append(item.value(QLatin1String("name")).toString());
    return names;
}

bool tst_AuthoringOnScreen::becomes(int id, const char *key, const QJsonValue &wanted)
{
    return QTest::qWaitFor([&] { return value(id, key) == wanted; }, 5000);
}

bool tst_AuthoringOnScreen::becomes(const QStringList &wanted)
{
    return QTest::qWaitFor([&] { return names() == wanted; }, 5000);
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

    // The second item of the first folder, behind (Next) and the separator.
    click(kJump);
    for (const char *key : { "Down", "Down", "Right", "Down" }) {
        press(QLatin1String(key));
        QTest::qWait(200);
    }
    press(QStringLiteral("Return"));
    QVERIFY(becomes(4, "jump", 3));

    // A position over the window that the step tracks, and a text that is still being typed.
    mHost->send({ QStringLiteral("controlPosition"), QStringLiteral("MainWindow/toolSelect"), QStringLiteral("40"),
                  QStringLiteral("-50") });
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
    QVERIFY(undone());

    // Two rows at once, to before the first one.
    click(row(4));
    move(row(5));
    xdotool({ QStringLiteral("keydown"), QStringLiteral("shift"), QStringLiteral("click"), QStringLiteral("1"),
              QStringLiteral("keyup"), QStringLiteral("shift") });
    QTest::qWait(kSlow);
    move(row(5) + QPoint(0, 2));
    xdotool({ QStringLiteral("mousedown"), QStringLiteral("1") });
    for (int y = row(5).y(); y >= row(2).y() - 9; y -= 4) {
        move(QPoint(row(5).x(), y));
        QTest::qWait(30);
    }
    QTest::qWait(300);
    xdotool({ QStringLiteral("mouseup"), QStringLiteral("1") });
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

#include "support/WarningGuard.h"
#include "Tutorial/EditorTooltip.h"
#include "Tutorial/HostRecord.h"
#include "Tutorial/HostRecordReader.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialIndicator.h"
#include "Tutorial/TutorialLog.h"
#include "Tutorial/TutorialManager.h"
#include "Tutorial/TutorialTooltip.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QPushButton>
#include <QResource>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <cstdio>

namespace
{
const QByteArray kPreset("\x00\x01preset\xff\n", 10);

/// The program's object with its periodic work in the test's hands.
class Manager : public TutorialManager
{
public:
    Manager() : TutorialManager(nullptr, nullptr) { installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        // Only the test's own ticks come through.
        return object == this && event->type() == QEvent::Timer && static_cast<QTimerEvent *>(event)->timerId() != 0;
    }

    void tick(int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            QTimerEvent event(0);
            QCoreApplication::sendEvent(this, &event);
        }
    }

    /// Fields parted by "|".
    void receive(const char *fields) { onReceived(QString::fromUtf8(fields).replace(QLatin1Char('|'), QChar(1))); }
};

/// The host editor's end of the link.
class Host
{
public:
    Host() : mReader(HostRecord::kToHost)
    {
        const QString name = QLatin1String("qelm") + QCoreApplication::arguments().at(1);
        QLocalServer::removeServer(name);
        if (!mServer.listen(name))
            qFatal("cannot listen");
    }

    bool accept()
    {
        if (mServer.waitForNewConnection(10000))
            mSocket.reset(mServer.nextPendingConnection());
        return mSocket != nullptr;
    }

    void send(const QByteArray &bytes)
    {
        mSocket->write(bytes);
        while (mSocket->bytesToWrite() > 0 && mSocket->waitForBytesWritten(1000)) { }
    }

    /// The fields of the next message that is no "alive"; empty when none comes.
    QStringList next(int timeout = 5000)
    {
        QElapsedTimer timer;
        timer.start();
        while (mMessages.isEmpty() && timer.elapsed() < timeout) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            mMessages += mReader.read(mSocket->readAll());
        }
        return mMessages.isEmpty() ? QStringList() : mMessages.takeFirst().split(QChar(1));
    }

    /// That nothing was sent before a message that is asked for now.
    bool silent(Manager &manager)
    {
        manager.sendMessage(QStringLiteral("marker"));
        return next() == QStringList{ QStringLiteral("marker") };
    }

    QLocalServer mServer;
    std::unique_ptr<QLocalSocket> mSocket; // goes before the server, which would free it too

private:
    HostRecordReader mReader;
    QStringList mMessages;
};

QByteArray record(const QList<QByteArray> &messages)
{
    QByteArray bytes("0");
    for (QByteArray message : messages)
        bytes += '\x02' + message.replace('|', '\x01');
    return bytes + '\0';
}

template <typename T>
T *findWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (T *found = qobject_cast<T *>(window))
            return found;
    }
    return nullptr;
}

/// What can be seen, a letter each: tooltip, next, yes, no, log, editor tooltip.
QString seen()
{
    QString letters;
    const auto add = [&letters](const QWidget *window, char letter) {
        if (window && window->isVisible())
            letters += QLatin1Char(letter);
    };
    add(findWindow<TutorialTooltip>(), 't');
    if (const auto *indicator = findWindow<TutorialIndicator>()) {
        add(indicator->mNextButton, 'n');
        add(indicator->mYesButton, 'y');
        add(indicator->mNoButton, 'o');
    }
    add(findWindow<TutorialLog>(), 'l');
    add(findWindow<EditorTooltip>(), 'e');
    return letters;
}

/// A root object as the screens have it.
class Root : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE QVariant requestCoffeeJs(const QVariant &key, const QVariant &source)
    {
        mRequests.append(key.toString() + QLatin1Char(':') + source.toString());
        return QVariant();
    }

    QStringList mRequests;
};

/// Counts how often a window was hidden and shown.
class Visibility : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Hide || event->type() == QEvent::Show)
            mChanges += event->type() == QEvent::Hide ? QLatin1Char('h') : QLatin1Char('s');
        return false;
    }

    QString mChanges;
};

/// Runs in a process of its own, since the end of the link is the end of the process.
int runChild(QApplication &application, const QByteArray &task)
{
    closeLogFileHook = [] { std::puts("log closed"); };
    constexpr int tooLong = 9;
    constexpr int survived = 7;
    QTimer::singleShot(20000, &application, [] { QCoreApplication::exit(tooLong); });
    if (task == "silence") {
        Manager manager;
        manager.tick(99);
        std::puts("99 ticks");
        manager.tick();
        return survived;
    }
    auto *manager = new Manager;
    if (task == "close")
        manager->requestClose();
    return QApplication::exec();
}
} // namespace

class tst_TutorialManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void sendsAliveOnEachTenthTick();
    void dropsMessagesWithoutALink();
    void readsRecords();
    void losesWhatStandsBehindBye();
    void takesAFlood();
    void anyByteIsASignOfLife();
    void endsTheProcess_data();
    void endsTheProcess();

    void startsAndStops();
    void takesTheHostRectangle();
    void showsSteps();
    void sendsThePressedButton();
    void guardsMessagesBeforeTheStart();
    void ignoresMessages_data();
    void ignoresMessages();
    void decidesWhatIsSeen_data();
    void decidesWhatIsSeen();
    void bringsTheWindowsToTheTop();
    void hidesWithDelay();
    void showsTheEditorTooltip();
    void tracksTheWindowStack();
    void tracksPositions();
    void tellsOfANewPlace();

    void namesTutorials_data();
    void namesTutorials();
    void loadsAndHandsOver();
    void sendsNoStartForABrokenScenario();
    void sendsTheScenarioThatIsThere();
    void keepsPlaceMarkers();
    void unloads();
    void sendsTheTutorialList();
    void sendsPresetData();
    void compilesCoffeeScript();
    void defersJumpLinks();
    void switchesTheLocale();
    void installsTranslatorsForTheHost_data();
    void installsTranslatorsForTheHost();

private:
    void start()
    {
        mManager->receive("start|0|0|800|600");
        mManager->receive("indicator|update|100|200|MainWindow|Hint|7|3");
    }

    QTemporaryDir mFolder;
    std::unique_ptr<Host> mHost;
    std::unique_ptr<Manager> mManager;
    WarningGuard mWarnings;
};

void tst_TutorialManager::initTestCase()
{
    QVERIFY(mFolder.isValid());
    const auto write = [this](const char *name, const QByteArray &bytes) {
        QFile file(mFolder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(write("Broken.js", "var scenario = [{\"id\":1,\"hint\":qsTr(\"open];"));
    QVERIFY(write("Percent.js", "var scenario = [{\"id\":7,\"name\":\"%2\",\"hint\":\"%1 and %3\"}];"));
    QVERIFY(write("a.bin", kPreset));
    QVERIFY(write("a.qrc",
                  "<RCC><qresource prefix=\"/qml/Tutorial\"><file>Broken.js</file><file>Percent.js</file></qresource>"
                  "<qresource prefix=\"/resource/preset\"><file>a.bin</file></qresource></RCC>"));
    QProcess process;
    process.start(QLibraryInfo::location(QLibraryInfo::BinariesPath) + QLatin1String("/rcc"),
                  { QStringLiteral("--binary"), mFolder.filePath(QStringLiteral("a.qrc")), QStringLiteral("-o"),
                    mFolder.filePath(QStringLiteral("a.rcc")) });
    QVERIFY(process.waitForFinished() && process.exitCode() == 0);
    QVERIFY(QResource::registerResource(mFolder.filePath(QStringLiteral("a.rcc"))));
    // Settings of the test's own, not the user's.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mFolder.path());
}

void tst_TutorialManager::init()
{
    mWarnings.begin();
    QSettings().clear();
    mHost = std::make_unique<Host>();
    mManager = std::make_unique<Manager>();
    QVERIFY(mHost->accept());
    QTRY_VERIFY(mManager->connected());
}

void tst_TutorialManager::cleanup()
{
    mManager.reset();
    mHost.reset();
    qDeleteAll(qApp->findChildren<QTranslator *>());
    rootObject = nullptr;
    mWarnings.end();
}

void tst_TutorialManager::sendsAliveOnEachTenthTick()
{
    mManager->tick(9);
    QVERIFY(mHost->silent(*mManager));
    for (int i = 0; i < 3; ++i) {
        mManager->tick(i == 0 ? 1 : 9);
        mManager->sendMessage(QStringLiteral("other"));
        mManager->tick(i == 0 ? 0 : 1);
    }
    QStringList names;
    for (int i = 0; i < 6; ++i)
        names.append(mHost->next().value(0));
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("alive other other alive other alive"));
}

void tst_TutorialManager::dropsMessagesWithoutALink()
{
    mManager.reset();
    mHost.reset();
    Manager unlinked;
    QVERIFY(!unlinked.connected());
    unlinked.sendMessage(QStringLiteral("lost"));
    unlinked.tick(20);
    // The server that comes later gets nothing of it.
    mHost = std::make_unique<Host>();
    mManager = std::make_unique<Manager>();
    QVERIFY(mHost->accept());
    QVERIFY(mHost->silent(*mManager));
}

void tst_TutorialManager::readsRecords()
{
    QSignalSpy received(mManager.get(), &TutorialManager::received);
    const QByteArray text = record({ "alive", "windowStack|push|次" }) + record({ "windowPosition|次|-3|4" });
    for (const char byte : text) {
        mHost->send(QByteArray(1, byte));
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(received.size(), 3);
    QCOMPARE(mManager->getCurrentWindowKey(), QString::fromUtf8("次"));
    QCOMPARE(mManager->getXy(QString::fromUtf8("次")), QPoint(-3, 4));

    // A rejected read takes nothing with it.
    mHost->send("1\x02"
                "windowStack");
    QCoreApplication::processEvents();
    mHost->send(record({ "windowStack|pop" }));
    QTRY_COMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
}

void tst_TutorialManager::losesWhatStandsBehindBye()
{
    QSignalSpy received(mManager.get(), &TutorialManager::received);
    mHost->send(record({ "start|1|2|3|4", "windowStack|push|A", "bye|x|y", "windowStack|push|B" })
                + record({ "windowStack|push|C" })
                + "0\x02"
                  "windowSt");
    QTRY_COMPARE(received.size(), 2);
    QVERIFY(!mManager->isGuidanceRunning());
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("A"));
    QCOMPARE(seen(), QString());
    mHost->send(record({ "byebye" }) + record({ "windowStack|push|D" }));
    QTRY_COMPARE(mManager->getCurrentWindowKey(), QStringLiteral("D"));
    QVERIFY(mManager->connected());
}

void tst_TutorialManager::takesAFlood()
{
    QSignalSpy received(mManager.get(), &TutorialManager::received);
    const int count = 20000;
    QByteArray bytes;
    for (int i = 0; i < count; ++i)
        bytes += record({ "windowPosition|k|" + QByteArray::number(i) + "|" + QByteArray::number(-i) });
    int sent = 0;
    while (sent < bytes.size()) {
        mHost->mSocket->write(bytes.mid(sent, 50021));
        sent += 50021;
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE_WITH_TIMEOUT(received.size(), count, 60000);
    QCOMPARE(mManager->getXy(QStringLiteral("k")), QPoint(count - 1, 1 - count));
}

void tst_TutorialManager::anyByteIsASignOfLife()
{
    for (const QByteArray &bytes : { QByteArray("x"), QByteArray("1\x02rejected"), record({ "alive" }) }) {
        // One tick more without it would end the process.
        mManager->tick(99);
        QSignalSpy read(mManager->findChild<QLocalSocket *>(), &QIODevice::readyRead);
        mHost->send(bytes);
        QTRY_COMPARE(read.size(), 1);
    }
    mManager->tick(99);
    QVERIFY(mManager->connected());
}

void tst_TutorialManager::endsTheProcess_data()
{
    QTest::addColumn<QString>("task");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("output");

    const QString suffix = QStringLiteral("child%1").arg(QCoreApplication::applicationPid());
    const QString closed = QStringLiteral("log closed\n");
    QTest::newRow("no server") << QStringLiteral("silence") << suffix << QString(QLatin1String("99 ticks\n") + closed);
    QTest::newRow("asked for") << QStringLiteral("close") << suffix << closed;
    QTest::newRow("link closed") << QStringLiteral("link") << suffix << closed;
    QTest::newRow("no link at all") << QStringLiteral("empty") << QString() << QString();
}

void tst_TutorialManager::endsTheProcess()
{
    QFETCH(QString, task);
    QFETCH(QString, suffix);
    QFETCH(QString, output);
    QLocalServer server;
    if (task == QLatin1String("link"))
        QVERIFY(server.listen(QLatin1String("qelm") + suffix));
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--child"), suffix, task });
    QVERIFY(process.waitForStarted());
    if (server.isListening()) {
        QVERIFY(server.waitForNewConnection(20000));
        server.nextPendingConnection()->close();
    }
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), output);
}

void tst_TutorialManager::startsAndStops()
{
    QSignalSpy keyChanged(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    mManager->receive("stop");
    QVERIFY(!findWindow<TutorialIndicator>() && !findWindow<TutorialLog>());
    mManager->receive("windowStack|push|A");
    mManager->receive("start");
    QVERIFY(mManager->isGuidanceRunning());
    QCOMPARE(keyChanged.size(), 2);
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(seen(), QStringLiteral("tl"));
    const TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    mManager->receive("indicator|update|1|2|A|Hint|7|0");
    QCOMPARE(seen(), QStringLiteral("tnyol"));

    // A second one while it runs changes the rectangle alone.
    mManager->receive("windowStack|push|B");
    findWindow<TutorialTooltip>()->hide();
    mManager->receive("start|1|2|3|4");
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("B"));
    QCOMPARE(seen(), QStringLiteral("nyol"));
    QCOMPARE(mManager->hostRect(), QRect(1, 2, 3, 4));

    mManager->receive("stop");
    QCOMPARE(seen(), QString());
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("B"));
    QCOMPARE(mManager->hostRect(), QRect(1, 2, 3, 4));
    mManager->receive("start");
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    QCOMPARE(findWindow<TutorialIndicator>(), indicator);
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
}

void tst_TutorialManager::takesTheHostRectangle()
{
    QVERIFY(!mManager->hostRect().isValid());
    mManager->receive("start|1|2|3");
    QVERIFY(!mManager->hostRect().isValid());
    QVERIFY(mManager->isGuidanceRunning());
    mManager->receive("start|-10|20|640|480|more");
    QCOMPARE(mManager->hostRect(), QRect(-10, 20, 640, 480));
    mManager->receive("start|x||3.5|");
    QCOMPARE(mManager->hostRect(), QRect(0, 0, 0, 0));
}

void tst_TutorialManager::showsSteps()
{
    mManager->receive("start|0|0|800|600");
    TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    mManager->receive("indicator|update|-5|6|Key|Hint\"|5|2");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(-5, 6));
    QCOMPARE(indicator->mWindowKey, QStringLiteral("Key"));
    QCOMPARE(indicator->mHint, QStringLiteral("Hint\""));
    QCOMPARE(indicator->mIconType, 2);
    QVERIFY(indicator->mArrowVisible);
    QCOMPARE(seen(), QStringLiteral("tnl"));

    mManager->receive("indicator|update|-9999|-9999|Key||2|x");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(-5, 6));
    QVERIFY(!indicator->mArrowVisible);
    QCOMPARE(indicator->mIconType, 0);
    QCOMPARE(seen(), QStringLiteral("tyol"));

    mManager->receive("indicator|updateXy|70|-80");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(70, -80));
    mManager->receive("indicator|updateXy");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(0, 0));
    mManager->receive("indicator|update");
    QCOMPARE(seen(), QStringLiteral("tl"));
    mManager->receive("indicator|unknown|1|2");
    mManager->receive("indicator");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(0, 0));
}

void tst_TutorialManager::sendsThePressedButton()
{
    start();
    const TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    indicator->mNextButton->click();
    indicator->mYesButton->click();
    indicator->mNoButton->click();
    for (const char *name : { "next", "yes", "no" })
        QCOMPARE(mHost->next(), QStringList{ QLatin1String(name) });
}

void tst_TutorialManager::guardsMessagesBeforeTheStart()
{
    for (const char *message : { "indicator|update|1|2|A|Hint|7|0", "indicator|updateXy|1|2", "state|show",
                                 "state|hide", "hideTooltip", "windowStack|pop" })
        mManager->receive(message);
    mManager->tick(3);
    QVERIFY(!findWindow<TutorialIndicator>() && !findWindow<TutorialLog>() && !findWindow<EditorTooltip>());
    // The "hide" was not taken down either.
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
}

void tst_TutorialManager::ignoresMessages_data()
{
    QTest::addColumn<QByteArray>("message");
    for (const char *message : { "", "|", "alive", "contents|1|2", "log|append|text", "eventLog|coords|1|2", "Start",
                                 "bye", "unknown|1", "stopped", "windowPosition", "windowPosition||5|6",
                                 "controlPosition||5|6", "windowStack", "windowStack|other|A", "state", "state|other" })
        QTest::addRow("\"%s\"", message) << QByteArray(message);
}

void tst_TutorialManager::ignoresMessages()
{
    QFETCH(QByteArray, message);
    start();
    mManager->receive("windowStack|push|A");
    QSignalSpy keyChanged(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    mManager->receive(message.constData());
    mManager->tick();
    QCOMPARE(keyChanged.size(), 0);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    QCOMPARE(mManager->getXy(QString()), QPoint());
    QVERIFY(mManager->isGuidanceRunning());
    QVERIFY(mHost->silent(*mManager));
}

void tst_TutorialManager::decidesWhatIsSeen_data()
{
    QTest::addColumn<bool>("running");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<bool>("active");
    QTest::addColumn<bool>("editorTooltip");
    QTest::addColumn<QString>("expected");

    for (int bits = 0; bits < 16; ++bits) {
        const bool running = bits & 8;
        const bool hidden = bits & 4;
        const bool active = bits & 2;
        const bool tooltip = bits & 1;
        const bool visible = running && (!hidden || active);
        const QString expected = visible ? QStringLiteral("tnyole") : QLatin1String(!running && tooltip ? "e" : "");
        QTest::addRow("%s, host %s, %s, tooltip %s", running ? "running" : "stopped", hidden ? "hidden" : "seen",
                      active ? "active" : "inactive", tooltip ? "seen" : "hidden")
            << running << hidden << active << tooltip << expected;
    }
}

void tst_TutorialManager::decidesWhatIsSeen()
{
    QFETCH(bool, running);
    QFETCH(bool, hidden);
    QFETCH(bool, active);
    QFETCH(bool, editorTooltip);
    QFETCH(QString, expected);
    start();
    mManager->receive("showTooltip|text|1|2");
    if (hidden)
        mManager->receive("state|hide");
    if (!running)
        mManager->receive("stop");
    if (!editorTooltip)
        mManager->receive("hideTooltip");
    mManager->onApplicationStateChanged(active ? Qt::ApplicationActive : Qt::ApplicationInactive);
    QCOMPARE(seen(), expected);
    mManager->updateGuidanceVisibility();
    QCOMPARE(seen(), expected);
    // The other states of the application are no news.
    mManager->onApplicationStateChanged(Qt::ApplicationSuspended);
    mManager->onApplicationStateChanged(Qt::ApplicationHidden);
    mManager->updateGuidanceVisibility();
    QCOMPARE(seen(), expected);
}

void tst_TutorialManager::bringsTheWindowsToTheTop()
{
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    Visibility tooltip;
    Visibility button;
    findWindow<TutorialTooltip>()->installEventFilter(&tooltip);
    findWindow<TutorialIndicator>()->mNextButton->installEventFilter(&button);
    mManager->receive("state|show");
    QCOMPARE(tooltip.mChanges, QStringLiteral("hs"));
    QCOMPARE(button.mChanges, QStringLiteral("hs"));
    QCOMPARE(seen(), QStringLiteral("tnyol"));

    // Once more on the next tick, and then no more.
    findWindow<TutorialLog>()->hide();
    findWindow<TutorialTooltip>()->hide();
    mManager->tick();
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    findWindow<TutorialLog>()->hide();
    mManager->tick();
    QCOMPARE(seen(), QStringLiteral("tnyo"));

    mManager->receive("stop");
    mManager->receive("state|show");
    mManager->tick();
    QCOMPARE(seen(), QString());
}

void tst_TutorialManager::hidesWithDelay()
{
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    mManager->receive("state|hide");
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    mManager->tick();
    QCOMPARE(seen(), QString());
    mManager->receive("state|show");
    QCOMPARE(seen(), QStringLiteral("tnyol"));

    // The activation of this process within the tick keeps them, its loss takes them at once.
    mManager->receive("state|hide");
    mManager->onApplicationStateChanged(Qt::ApplicationActive);
    mManager->tick(2);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(seen(), QString());
}

void tst_TutorialManager::showsTheEditorTooltip()
{
    mManager->receive("hideTooltip");
    mManager->receive("showTooltip|text|300|400");
    QCOMPARE(seen(), QStringLiteral("e"));
    EditorTooltip *tooltip = findWindow<EditorTooltip>();
    mManager->receive("hideTooltip");
    QCOMPARE(seen(), QString());
    mManager->receive("showTooltip");
    QCOMPARE(findWindow<EditorTooltip>(), tooltip);
    QCOMPARE(seen(), QStringLiteral("e"));

    // Closed twice before it is freed, it is forgotten once, and the next one is new.
    tooltip->close();
    tooltip->close();
    mManager->receive("hideTooltip");
    mManager->receive("showTooltip|text|1|2");
    tooltip->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mManager->receive("showTooltip|text|1|2");
    QCOMPARE(seen(), QStringLiteral("e"));
}

void tst_TutorialManager::tracksTheWindowStack()
{
    QSignalSpy keyChanged(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    const auto top = [this] { return mManager->getCurrentWindowKey(); };
    QCOMPARE(top(), QStringLiteral("ApplicationWindow"));
    mManager->receive("windowStack|pop");
    mManager->dropPopupWindowKey();
    QCOMPARE(keyChanged.size(), 0);
    for (const char *message : { "windowStack|push|Popup", "windowStack|push|A", "windowStack|push|A" })
        mManager->receive(message);
    mManager->dropPopupWindowKey();
    QCOMPARE(keyChanged.size(), 3);
    QCOMPARE(mManager->property("currentWindowKey").toString(), QStringLiteral("A"));
    for (int i = 0; i < 2; ++i)
        mManager->receive("windowStack|pop");
    QCOMPARE(top(), QStringLiteral("Popup"));
    mManager->receive("windowStack|push|Popup");
    mManager->dropPopupWindowKey();
    QCOMPARE(top(), QStringLiteral("Popup"));
    mManager->dropPopupWindowKey();
    QCOMPARE(top(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(keyChanged.size(), 8);
    mManager->receive("windowStack|push");
    QCOMPARE(top(), QString());
}

void tst_TutorialManager::tracksPositions()
{
    const auto xy = [this](const char *key) { return mManager->getXy(QString::fromUtf8(key)); };
    QCOMPARE(xy("A"), QPoint(0, 0));
    mManager->receive("windowPosition|A|-5|6");
    mManager->receive("controlPosition|A|7|x");
    mManager->receive("controlPosition|B|1");
    QCOMPARE(xy("A"), QPoint(7, 0));
    QCOMPARE(xy("B"), QPoint(1, 0));
    QCOMPARE(xy("a"), QPoint(0, 0));
}

void tst_TutorialManager::tellsOfANewPlace()
{
    mManager->updateIndicatorXyWindowKey(-3, 4, QStringLiteral("%1"));
    QCOMPARE(mHost->next().join(QLatin1Char('|')), QStringLiteral("indicator|updateXYWindowKey|-3|4|%1"));
    mManager->receive("start");
    mManager->receive("indicator|update|1|2|A|Hint|0|0");
    TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    mManager->updateIndicatorXyWindowKey(8, 9, QStringLiteral("B"));
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(8, 9));
    QCOMPARE(indicator->mWindowKey, QStringLiteral("B"));
    QVERIFY(!indicator->mArrowVisible);
    indicator->mArrowVisible = true;
    mManager->updateIndicatorXyWindowKey(8, 9, QStringLiteral("B"));
    QVERIFY(indicator->mArrowVisible);
}

void tst_TutorialManager::namesTutorials_data()
{
    QTest::addColumn<QString>("filename");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *filename, const char *name) {
        QTest::newRow(filename) << QString::fromLatin1(filename) << QString::fromLatin1(name);
    };
    row("C:/a/b.c.js", "b.c");
    row("name", "name");
    row("NAME.JS", "NAME.JS");
    row("a.js/b", "b");
    row("a/b.js.js", "b.js");
    row("a/.js", "");
}

void tst_TutorialManager::namesTutorials()
{
    QFETCH(QString, filename);
    QFETCH(QString, name);
    QSignalSpy nameChanged(mManager.get(), &TutorialManager::tutorialNameChanged);
    QSignalSpy replaced(mManager.get(), &TutorialManager::documentReplaced);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(mManager->loadTutorial(filename), QString());
    QCOMPARE(mManager->tutorialName(), name);
    QCOMPARE(nameChanged.size(), name.isEmpty() ? 0 : 1);
    QCOMPARE(replaced.size(), 2);
}

void tst_TutorialManager::loadsAndHandsOver()
{
    mManager->receive("tutorial|TutorialSideViewStep1");
    const QStringList raw = mHost->next();
    QCOMPARE(raw.size(), 3);
    QCOMPARE(raw.at(0), QStringLiteral("start"));
    QCOMPARE(raw.at(2), QStringLiteral("-1"));
    QVERIFY(raw.at(1).contains(QLatin1String("\"hint\":\"#1\"")));

    // The language is the one of the moment of the load.
    mManager->receive("fromServer|-");
    mManager->startFromId(12);
    QStringList fields = mHost->next();
    QVERIFY(fields.value(1).contains(QLatin1String("\"hint\":\"#1\"")));
    QCOMPARE(fields.value(2), QStringLiteral("12"));
    mManager->receive("tutorial|TutorialSideViewStep1");
    QString text = mHost->next().value(1);
    QVERIFY(text.startsWith(QLatin1String("var scenario = [\n")) && text.endsWith(QLatin1String("\n];")));
    text = text.mid(15);
    text.chop(1);
    const QJsonArray items = QJsonDocument::fromJson(text.toUtf8()).array();
    QCOMPARE(items.size(), 2);
    QCOMPARE(items.at(0).toObject().value(QLatin1String("hint")).toString(),
             QString::fromUtf8("これはサイドビューチュートリアルのダミーです。"));
    QCOMPARE(items.at(1).toObject().value(QLatin1String("name")).toString(), QString::fromUtf8("項目001"));
}

void tst_TutorialManager::sendsNoStartForABrokenScenario()
{
    mManager->receive("tutorial|TutorialTopViewStep1");
    QCOMPARE(mHost->next().value(0), QStringLiteral("start"));
    mWarnings.expect(QStringLiteral("Json parse error"));
    mWarnings.expect(QStringLiteral("Failed to loadTutorial \"not matched"));
    mManager->receive("tutorial|Broken");
    QVERIFY(mHost->silent(*mManager));
    QCOMPARE(mManager->tutorialName(), QStringLiteral("Broken"));
    mWarnings.expect(QStringLiteral("Json parse error"));
    const QStringList errors =
        mManager->loadTutorial(QStringLiteral(":/qml/Tutorial/Broken.js")).split(QLatin1Char('\n'));
    QCOMPARE(errors.size(), 2);
    QCOMPARE(errors.last(), QStringLiteral("json is not array"));
    mManager->startFromId();
    QCOMPARE(mHost->next().value(1), QStringLiteral("var scenario = [\n\n];"));
}

void tst_TutorialManager::sendsTheScenarioThatIsThere()
{
    mManager->startFromId(3);
    QCOMPARE(mHost->next().join(QLatin1Char('|')), QStringLiteral("start|var scenario = [\n\n];|3"));
    mManager->receive("tutorial|TutorialTopViewStep1");
    const QStringList loaded = mHost->next();
    mManager->receive("tutorial|Missing");
    QCOMPARE(mHost->next(), loaded);
    QCOMPARE(mManager->tutorialName(), QStringLiteral("Missing"));
}

void tst_TutorialManager::keepsPlaceMarkers()
{
    mManager->receive("tutorial|Percent");
    const QStringList fields = mHost->next();
    QCOMPARE(fields.size(), 3);
    QVERIFY(fields.at(1).contains(QLatin1String("\"name\":\"%2\",")));
    QVERIFY(fields.at(1).contains(QLatin1String("\"hint\":\"%1 and %3\",")));
    QCOMPARE(fields.at(2), QStringLiteral("-1"));
}

void tst_TutorialManager::unloads()
{
    QSignalSpy nameChanged(mManager.get(), &TutorialManager::tutorialNameChanged);
    mManager->unload();
    QCOMPARE(nameChanged.size(), 0);
    mManager->loadTutorial(QStringLiteral(":/qml/Tutorial/Percent.js"));
    mManager->unload();
    QCOMPARE(nameChanged.size(), 2);
    QCOMPARE(mManager->tutorialName(), QString());
    mManager->startFromId();
    QCOMPARE(mHost->next().value(1), QStringLiteral("var scenario = [\n\n];"));
    QCOMPARE(mManager->save(), QStringLiteral("Tutorial not loaded yet."));
}

void tst_TutorialManager::sendsTheTutorialList()
{
    const auto titles = [this] {
        mManager->receive("tutorialList");
        const QStringList fields = mHost->next();
        if (fields.size() != 2 || fields.first() != QLatin1String("tutorialList"))
            return QStringList();
        QStringList found;
        const QJsonArray groups = QJsonDocument::fromJson(fields.last().toUtf8()).array();
        for (const QJsonValue &group : groups) {
            found.append(group.toObject().value(QLatin1String("title")).toString());
            const QJsonArray contents = group.toObject().value(QLatin1String("contents")).toArray();
            for (const QJsonValue &entry : contents) {
                found.append(entry.toObject().value(QLatin1String("filename")).toString());
                found.append(entry.toObject().value(QLatin1String("title")).toString());
            }
        }
        return found;
    };
    QCOMPARE(titles(),
             (QStringList{ QStringLiteral("Side-view"), QStringLiteral("TutorialSideViewStep1"),
                           QStringLiteral("Step 1: Side-view Basics"), QStringLiteral("Top-view"),
                           QStringLiteral("TutorialTopViewStep1"), QStringLiteral("Step 1: Top-view Basics") }));
    mManager->receive("fromServer");
    QCOMPARE(titles().value(0), QString::fromUtf8("サイドビュー"));
    QCOMPARE(titles().value(5), QString::fromUtf8("ステップ１：トップビューの基本"));
}

void tst_TutorialManager::sendsPresetData()
{
    mManager->receive("requestPresetData|a.bin");
    QCOMPARE(mHost->next(),
             (QStringList{ QStringLiteral("feedbackPresetData"), QString::fromLatin1(kPreset.toBase64()) }));
    mWarnings.expect(QStringLiteral("presetData not found \":/resource/preset/b.bin\" \"b.bin\""));
    mManager->receive("requestPresetData|b.bin");
    QVERIFY(mHost->silent(*mManager));
}

void tst_TutorialManager::compilesCoffeeScript()
{
    mManager->receive("coffeeJs|5|lost");
    Root root;
    rootObject = &root;
    mManager->receive("coffeeJs|5|\"a = 1\"");
    mManager->receive("coffeeJs");
    QCOMPARE(root.mRequests, (QStringList{ QStringLiteral("5:\"a = 1\""), QStringLiteral(":") }));
    mManager->callbackCoffeeJs(5, QStringLiteral("{\"%1\":\"%2\"}"));
    QCOMPARE(mHost->next().join(QLatin1Char('|')), QStringLiteral("callbackCoffeeJs|5|{\"%1\":\"%2\"}"));
}

void tst_TutorialManager::defersJumpLinks()
{
    QSignalSpy changed(mManager.get(), &TutorialManager::jumpLinkChanged);
    mManager->setPendingJumpLink(QStringLiteral("a"));
    mManager->setPendingJumpLink(QStringLiteral("b"));
    QCOMPARE(changed.size(), 0);
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("b"));
    mManager->onTimerTimeout();
    QCOMPARE(changed.size(), 1);
    // A link that is set from inside the signal is not lost.
    connect(mManager.get(), &TutorialManager::jumpLinkChanged, mManager.get(), [this](const QString &link) {
        if (link == QLatin1String("c"))
            mManager->setPendingJumpLink(QStringLiteral("d"));
    });
    mManager->setPendingJumpLink(QStringLiteral("c"));
    mManager->onTimerTimeout();
    mManager->onTimerTimeout();
    QCOMPARE(changed.last().first().toString(), QStringLiteral("d"));
}

void tst_TutorialManager::switchesTheLocale()
{
    QStringList signalNames;
    connect(mManager.get(), &TutorialManager::localeChanged, mManager.get(),
            [&] { signalNames += QStringLiteral("1"); });
    connect(mManager.get(), &TutorialManager::locale2Changed, mManager.get(),
            [&] { signalNames += QStringLiteral("2"); });
    const auto state = [&] {
        const QString text = QStringList{ mManager->locale(), mManager->locale2(), signalNames.join(QString()),
                                          QString::number(qApp->findChildren<QTranslator *>().size()),
                                          QSettings().value(QStringLiteral("debugLocale")).toString() }
                                 .join(QLatin1Char(' '));
        signalNames.clear();
        return text;
    };
    QCOMPARE(state(), QStringLiteral("ja_JP en_US  0 "));
    mManager->setLocale(QStringLiteral("ja_JP"));
    QCOMPARE(state(), QStringLiteral("ja_JP en_US  0 "));
    mManager->setLocale(QStringLiteral("en_US"));
    QCOMPARE(state(), QStringLiteral("en_US ja_JP 21 1 en_US"));
    mManager->setLocale2(QStringLiteral("Raw"));
    QCOMPARE(state(), QStringLiteral("en_US Raw 2 1 en_US"));
    mManager->setLocale(QStringLiteral("ja_JP"));
    QCOMPARE(state(), QStringLiteral("ja_JP en_US 21 2 ja_JP"));
    const QString next = QCoreApplication::translate("TutorialIndicator", "Next");
    QCOMPARE(next, QString::fromUtf8("次へ"));
    // The catalog of before goes on answering for what the new one lacks.
    mManager->setLocale(QStringLiteral("en_US"));
    QCOMPARE(QCoreApplication::translate("TutorialIndicator", "Next"), next);
    mManager->setLocale(QStringLiteral("Raw"));
    QCOMPARE(state(), QStringLiteral("Raw ja_JP 211 4 Raw"));

    mManager.reset();
    mManager = std::make_unique<Manager>();
    QCOMPARE(mManager->locale(), QStringLiteral("Raw"));
    QCOMPARE(mManager->locale2(), QStringLiteral("ja_JP"));
}

void tst_TutorialManager::installsTranslatorsForTheHost_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<int>("translators");
    QTest::addColumn<QString>("next");

    QTest::newRow("Japanese") << QByteArray("fromServer|ja_JP") << 1 << QString::fromUtf8("次へ");
    QTest::newRow("English") << QByteArray("fromServer|en_US") << 1 << QStringLiteral("Next");
    QTest::newRow("standard by a dash") << QByteArray("fromServer|-") << 1 << QString::fromUtf8("次へ");
    QTest::newRow("standard by nothing") << QByteArray("fromServer|") << 1 << QString::fromUtf8("次へ");
    QTest::newRow("standard by no field") << QByteArray("fromServer") << 1 << QString::fromUtf8("次へ");
    QTest::newRow("none") << QByteArray("fromServer|Raw") << 0 << QStringLiteral("Next");
    QTest::newRow("unknown") << QByteArray("fromServer|xx_XX") << 1 << QStringLiteral("Next");
}

void tst_TutorialManager::installsTranslatorsForTheHost()
{
    QFETCH(QByteArray, message);
    QFETCH(int, translators);
    QFETCH(QString, next);
    mManager->receive(message.constData());
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), translators);
    QCOMPARE(QCoreApplication::translate("TutorialIndicator", "Next"), next);
    QCOMPARE(mManager->locale(), QStringLiteral("ja_JP"));
    // Windows that are made from now on speak it.
    start();
    QCOMPARE(findWindow<TutorialIndicator>()->mNextButton->text(), next);
}

int main(int argc, char *argv[])
{
    const bool child = argc == 4 && qstrcmp(argv[1], "--child") == 0;
    // The first argument of the program is the link's suffix, and not one of the test's own.
    QByteArray suffix = child ? QByteArray(argv[2]) : "test" + QByteArray::number(QCoreApplication::applicationPid());
    QByteArray further("further");
    char *arguments[] = { argv[0], suffix.data(), further.data(), nullptr };
    int count = 3;
    QApplication application(count, arguments);
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_TutorialManager"));
    applicationObject = &application;
    if (child)
        return runChild(application, argv[3]);
    tst_TutorialManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TutorialManager.moc"

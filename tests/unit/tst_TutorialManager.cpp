#include "support/FileBytes.h"
#include "support/HostEnd.h"
#include "support/ManagerFixture.h"
#include "support/WarningGuard.h"
#include "Tutorial/link/HostLink.h"

#include <QQmlComponent>
#include <QQmlEngine>

#ifdef Q_OS_LINUX
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

using namespace HostMessages;

namespace
{
const QString kWindow = QStringLiteral("Window");
const QString kPopup = QStringLiteral("Popup");

QByteArray record(const QString &message)
{
    return HostRecord::encode(HostRecord::kFromHost, message);
}

#ifdef Q_OS_LINUX
bool isServerOfAnother = false;
#endif
} // namespace

#ifdef Q_OS_LINUX
/// Answers in place of the system: only root could run a server of another user's.
extern "C" int getsockopt(int socket, int level, int name, void *value, socklen_t *size) noexcept
{
    const auto result = static_cast<int>(::syscall(SYS_getsockopt, socket, level, name, value, size));
    if (isServerOfAnother && result == 0 && level == SOL_SOCKET && name == SO_PEERCRED)
        ++static_cast<ucred *>(value)->uid;
    return result;
}
#endif

class tst_TutorialManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mWarnings.begin();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mFolder.path());
        QSettings().clear();
        mHost = std::make_unique<HostEnd>();
        QVERIFY(mHost->listen(QCoreApplication::arguments().at(1)));
        mManager = std::make_unique<ManagerFixture::Manager>();
        QVERIFY(mHost->accept());
        QTRY_VERIFY(mManager->connected());
    }
    void cleanup()
    {
        mManager.reset();
        mHost.reset();
        mWarnings.end();
    }

    void carriesOutWhatTheLinkBrings();
    void tellsOfItself();
    void sendsTheScenarioThatIsThere();
    void answersWithPresetData();
    void refusesToConvertWithoutAPage();
#ifdef Q_OS_LINUX
    void givesUpAServerOfAnotherUser();
#endif

private:
    /// The messages that have gone to the host editor since the last call.
    QStringList sent()
    {
        const QString end = QStringLiteral("end");
        mManager->sendMessage(end);
        QStringList messages;
        for (QStringList fields = mHost->next(); fields.value(0, end) != end; fields = mHost->next())
            messages += join(fields);
        return messages;
    }

    QTemporaryDir mFolder;
    std::unique_ptr<HostEnd> mHost;
    std::unique_ptr<ManagerFixture::Manager> mManager;
    WarningGuard mWarnings;
};

void tst_TutorialManager::carriesOutWhatTheLinkBrings()
{
    const QSignalSpy keys(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    mHost->send(FromHost::kWindowStack, FromHost::kPush, QStringLiteral("Former"));
    mHost->send(FromHost::kStart);
    mHost->send(FromHost::kWindowPosition, kWindow, -3, 4);
    mHost->send(FromHost::kWindowPosition, QString(), 5, 6);
    mHost->send(FromHost::kControlPosition, QStringLiteral("Control"), 7, 8);
    mHost->send(FromHost::kWindowStack, FromHost::kPush, kWindow);
    QTRY_COMPARE(keys.size(), 3);
    QVERIFY(mManager->isGuidanceRunning());
    QCOMPARE(mManager->getXy(kWindow), QPoint(-3, 4));
    QCOMPARE(mManager->getXy(QStringLiteral("Control")), QPoint(7, 8));
    QCOMPARE(mManager->getXy(QString()), QPoint());

    // What comes in the same read after it is lost, a record that has not ended too.
    const QByteArray lost = record(message(FromHost::kWindowStack, FromHost::kPush, QStringLiteral("Lost")));
    mHost->sendBytes(record(FromHost::kBye) + lost + lost.left(lost.size() - 1));
    QTRY_VERIFY(!mManager->isGuidanceRunning());
    mHost->send(FromHost::kWindowStack, FromHost::kPush, kPopup);
    QTRY_COMPARE(keys.size(), 4);
    mManager->receive(FromHost::kWindowStack, FromHost::kPush, kPopup);
    // Only a popup closes by itself.
    for (const QString &key : { kPopup, kWindow, kWindow }) {
        mManager->dropPopupWindowKey();
        QCOMPARE(mManager->getCurrentWindowKey(), key);
    }
    for (int i = 0; i < 2; ++i) {
        mManager->receive(FromHost::kWindowStack, FromHost::kPop);
        QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    }
    QCOMPARE(keys.size(), 8);
}

void tst_TutorialManager::tellsOfItself()
{
    mManager->tick(9);
    mManager->updateIndicatorXyWindowKey(-1, 2, kWindow);
    mManager->tick(1);
    QCOMPARE(sent(),
             (QStringList{ message(ToHost::kIndicator, ToHost::kUpdateXYWindowKey, -1, 2, kWindow), ToHost::kAlive }));
}

void tst_TutorialManager::sendsTheScenarioThatIsThere()
{
    const auto nothing = [](int id) {
        return QStringList(message(ToHost::kStart, QStringLiteral("var scenario = [\n\n];"), id));
    };
    mManager->startFromId(3);
    QCOMPARE(sent(), nothing(3));

    const QString file = mFolder.filePath(QStringLiteral("a.js"));
    writeAll(file, "var scenario = [{\"id\":7,\"name\":\"%2\",\"hint\":\"%1 and %3\"}];");
    QCOMPARE(mManager->loadTutorial(file), QString());
    // One that is missing changes nothing but the name.
    mManager->receive(FromHost::kTutorial, QStringLiteral("Missing"));
    QCOMPARE(mManager->tutorialName(), QStringLiteral("Missing"));
    const QString loaded = sent().value(0);
    QVERIFY(loaded.contains(QLatin1String("\"name\":\"%2\",")));
    QVERIFY(loaded.contains(QLatin1String("\"hint\":\"%1 and %3\",")));

    // One that is none leaves nothing, and does not start.
    mWarnings.expect(QStringLiteral("Json parse error"));
    mWarnings.expect(QStringLiteral("Failed to loadTutorial"));
    mManager->receive(FromHost::kTutorial, QStringLiteral("TutorialList"));
    QCOMPARE(sent(), QStringList());
    mManager->startFromId();
    QCOMPARE(sent(), nothing(kFromBeginning));
    mManager->loadTutorial(file);
    mManager->unload();
    mManager->startFromId();
    QCOMPARE(sent(), nothing(kFromBeginning));
    QCOMPARE(mManager->save(), QStringLiteral("Tutorial not loaded yet."));
}

void tst_TutorialManager::answersWithPresetData()
{
    mManager->receive(FromHost::kRequestPresetData, QStringLiteral("../png/click.png"));
    const QByteArray picture = readAll(QStringLiteral(":/resource/png/click.png")).toBase64();
    QCOMPARE(sent(), QStringList(message(ToHost::kFeedbackPresetData, QString::fromLatin1(picture))));
    // Neither one that is missing nor a folder has an answer.
    mWarnings.expect(QStringLiteral("presetData not found \":/resource/preset/missing\""));
    mWarnings.expect(QStringLiteral("Failed to open"));
    mWarnings.expect(QStringLiteral("Failed to read"));
    for (const char *name : { "missing", "../png" })
        mManager->receive(FromHost::kRequestPresetData, QString::fromLatin1(name));
    QCOMPARE(sent(), QStringList());
}

// As it is in a build without the web engine, or where that is not installed.
void tst_TutorialManager::refusesToConvertWithoutAPage()
{
    static TutorialManager *manager = nullptr;
    manager = mManager.get();
    qmlRegisterSingletonType<TutorialManager>("Morvi.kess", 1, 0, "TutorialManager", [](auto *, auto *) -> QObject * {
        QQmlEngine::setObjectOwnership(manager, QQmlEngine::CppOwnership);
        return manager;
    });
    QQmlEngine engine;
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/qml/ConversionService.qml")));
    const std::unique_ptr<QObject> service(component.create());
    QVERIFY2(service, qPrintable(component.errorString()));
    const QScopedValueRollback<QPointer<QObject>> root(rootObject, service.get());
    service->setProperty("viewSource", QStringLiteral("qrc:/qml/NoPage.qml"));

    const QString refusal =
        QStringLiteral("{\"error\":\"The conversion is not available.\",\"javascript\":\"\",\"line\":-1}");
    const auto answer = [&](int key) {
        return QStringList{ ToHost::kCallbackCoffeeJs, QString::number(key), refusal };
    };
    mWarnings.expect(QStringLiteral("NoPage.qml"));
    // The one waits for the page, the other comes when there is known to be none.
    mManager->receive(FromHost::kCoffeeJs, 1, QStringLiteral("'a = 1'"));
    service->setProperty("active", true);
    QCOMPARE(mHost->next(), answer(1));
    mManager->receive(FromHost::kCoffeeJs, 2, QStringLiteral("'a = 1'"));
    QCOMPARE(mHost->next(), answer(2));
}

#ifdef Q_OS_LINUX
void tst_TutorialManager::givesUpAServerOfAnotherUser()
{
    HostLink link;
    const QSignalSpy connected(&link, &HostLink::connected);
    const QSignalSpy disconnected(&link, &HostLink::disconnected);
    mWarnings.expect(QStringLiteral("the server belongs to another user"));
    const QScopedValueRollback<bool> another(isServerOfAnother, true);
    link.open(serverName(QCoreApplication::arguments().at(1)));
    QTRY_COMPARE(disconnected.size(), 1);
    QCOMPARE(connected.size(), 0);
}
#endif

MANAGER_TEST_MAIN(tst_TutorialManager)
#include "tst_TutorialManager.moc"

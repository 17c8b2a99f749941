// Messages of the host editor to the whole program, with its windows: each line of the input is one, its fields are
// separated by tabs. Two more stand for what happens meanwhile: "tick", and "close" by the user.

#include "FuzzTarget.h"
#include "support/ManagerFixture.h"
#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialLog.h"
#include "Tutorial/link/HostRecord.h"

#include <QTemporaryDir>
#include <QTranslator>

using FuzzTarget::require;
using namespace ManagerFixture;

namespace
{
// With a hundred and no byte on the link the host editor counts as silent, which ends the program as it should.
constexpr int kMostTicks = 90;

void tickAll(Manager &manager)
{
    manager.tick();
    if (auto *indicator = find<TutorialIndicator>())
        ManagerFixture::tick(indicator);
    if (auto *tooltip = find<EditorTooltip>())
        ManagerFixture::tick(tooltip);
}

template <typename Window>
void close()
{
    if (Window *window = find<Window>())
        window->close();
}

void carryOut(Manager &manager, const QString &message)
{
    if (message == QLatin1String("tick")) {
        tickAll(manager);
    } else if (message == QLatin1String("close indicator")) {
        close<TutorialIndicator>();
    } else if (message == QLatin1String("close tooltip")) {
        close<EditorTooltip>();
    } else if (message == QLatin1String("close log")) {
        close<TutorialLog>();
    } else {
        manager.onReceived(message);
    }
}

QApplication *makeApplication()
{
    static const QTemporaryDir folder;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    static char program[] = "fuzz";
    static QByteArray suffix = "fuzz" + QByteArray::number(QCoreApplication::applicationPid());
    static char *arguments[] = { program, suffix.data(), nullptr };
    static int count = 2;
    static QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    closeLogFileHook = [] { require(false, "no message ends the process"); };
    return &application;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QApplication *const application = makeApplication();
    applicationObject = application;
    const QByteArray bytes = FuzzTarget::exchangeSeparators(FuzzTarget::bytesOf(data, size));
    {
        Manager manager;
        int ticks = 0;
        for (const QByteArray &message : bytes.split(HostRecord::kEnd)) {
            if (message != "tick" || ++ticks <= kMostTicks)
                carryOut(manager, QString::fromUtf8(message));
        }
        tickAll(manager);
        // A stop while nothing runs leaves what a late step shows.
        manager.onReceived(HostMessages::FromHost::kStart);
        manager.onReceived(HostMessages::FromHost::kStop);
        QCoreApplication::processEvents();
        for (const QWidget *window : QApplication::topLevelWidgets())
            require(window->isHidden() || qobject_cast<const EditorTooltip *>(window), "nothing is seen after a stop");
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    require(QApplication::topLevelWidgets().isEmpty(), "no window is left over");
    // In the program they stay; here they would pile up.
    qDeleteAll(qApp->findChildren<QTranslator *>());
    return 0;
}

#include "WindowReporter.h"

#include "ControlRegistry.h"
#include "Tutorial/link/HostMessages.h"

using namespace HostMessages;

namespace
{
constexpr int kPeriod = 50;

QStringList stackedWindows()
{
    return { QStringLiteral("MainWindow"), QStringLiteral("SettingsDialog"), QStringLiteral("Popup") };
}
} // namespace

WindowReporter::WindowReporter(const ControlRegistry *registry, QObject *parent) : QObject(parent), mRegistry(registry)
{
    connect(&mTimer, &QTimer::timeout, this, &WindowReporter::scan);
    mTimer.start(kPeriod);
}

void WindowReporter::reportAll()
{
    mStack.clear();
    mPositions.clear();
    scan();
}

void WindowReporter::scan()
{
    scanStack();
    const QStringList keys = mRegistry->keys();
    for (const QString &key : keys) {
        const QRect rect = mRegistry->screenRect(key);
        const QPoint place = rect.topLeft();
        const auto known = mPositions.constFind(key);
        if (!rect.isValid()) {
            mPositions.remove(key);
        } else if (known == mPositions.constEnd() || *known != place) {
            mPositions.insert(key, place);
            const bool control = key.contains(QLatin1Char('/'));
            Q_EMIT message(HostMessages::message(control ? FromHost::kControlPosition : FromHost::kWindowPosition, key,
                                                 place.x(), place.y()));
            Q_EMIT moved(key);
        }
    }
}

void WindowReporter::scanStack()
{
    QStringList stack;
    const QStringList windows = stackedWindows();
    for (const QString &key : windows) {
        if (mRegistry->screenRect(key).isValid())
            stack.append(key);
    }
    int common = 0;
    while (common < stack.size() && common < mStack.size() && stack.at(common) == mStack.at(common))
        ++common;
    for (int i = mStack.size(); i > common; --i)
        Q_EMIT message(HostMessages::message(FromHost::kWindowStack, FromHost::kPop));
    for (int i = common; i < stack.size(); ++i)
        Q_EMIT message(HostMessages::message(FromHost::kWindowStack, FromHost::kPush, stack.at(i)));
    mStack = stack;
    if (common > 0 && common < stack.size())
        Q_EMIT covered();
}

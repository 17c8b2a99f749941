// The messages of the host editor, and the answers to it.

#include "SystemService/SystemService.h"
#include "tool/DataSupport.h"
#include "tool/Log.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/translation/TutorialTranslation.h"
#include "Tutorial/TutorialManager.h"

#include <QMetaObject>
#include <QVariant>

using namespace HostMessages;

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";

/// Messages that come too often to be worth a line of the log each.
bool isLogged(const QString &text)
{
    static const QString coordinates = HostMessages::message(FromHost::kEventLog, FromHost::kCoords);
    return !text.startsWith(FromHost::kAlive) && !text.startsWith(coordinates);
}
} // namespace

const QHash<QString, TutorialManager::MessageHandler> &TutorialManager::messageHandlers()
{
    static const QHash<QString, MessageHandler> handlers = {
        { FromHost::kCoffeeJs, &TutorialManager::onCoffeeJs },
        { FromHost::kStart, &TutorialManager::onStart },
        { FromHost::kStop, &TutorialManager::onStop },
        { FromHost::kTutorialList, &TutorialManager::onTutorialList },
        { FromHost::kIndicator, &TutorialManager::onIndicator },
        { FromHost::kState, &TutorialManager::onState },
        { FromHost::kWindowStack, &TutorialManager::onWindowStack },
        { FromHost::kWindowPosition, &TutorialManager::onPosition },
        { FromHost::kControlPosition, &TutorialManager::onPosition },
        { FromHost::kTutorial, &TutorialManager::onTutorial },
        { FromHost::kFromServer, &TutorialManager::onFromServer },
        { FromHost::kRequestPresetData, &TutorialManager::onRequestPresetData },
        { FromHost::kShowTooltip, &TutorialManager::onShowTooltip },
        { FromHost::kHideTooltip, &TutorialManager::onHideTooltip },
        // Accepted, and nothing follows.
        { FromHost::kAlive, &TutorialManager::onIgnored },
        { FromHost::kContents, &TutorialManager::onIgnored },
        { FromHost::kLog, &TutorialManager::onIgnored },
    };
    return handlers;
}

void TutorialManager::onReceived(const QString &text)
{
    const QStringList fields = HostMessages::split(text);
    if (isLogged(text))
        Log::debug(kFolder, "TutorialManager::onReceived", __LINE__) << fields;
    const MessageHandler handler = messageHandlers().value(fields.first(), &TutorialManager::onIgnored);
    (this->*handler)(fields);
}

void TutorialManager::onIgnored(const QStringList &fields)
{
    Q_UNUSED(fields)
}

void TutorialManager::onCoffeeJs(const QStringList &fields)
{
    if (!rootObject)
        return;
    QVariant result;
    QMetaObject::invokeMethod(rootObject, "requestCoffeeJs", Q_RETURN_ARG(QVariant, result),
                              Q_ARG(QVariant, HostMessages::text(fields, 1)),
                              Q_ARG(QVariant, HostMessages::text(fields, 2)));
}

void TutorialManager::callbackCoffeeJs(int key, const QString &result)
{
    Log::debug(kFolder, "TutorialManager::callbackCoffeeJs", __LINE__) << key << result;
    sendMessage(HostMessages::message(ToHost::kCallbackCoffeeJs, key, result));
}

void TutorialManager::onStart(const QStringList &fields)
{
    if (HostMessages::hasHostRect(fields))
        mHostWindows.setHostRect(HostMessages::readHostRect(fields));
    startGuidance();
}

void TutorialManager::startGuidance()
{
    if (!isGuidanceRunning())
        mHostWindows.clearStack();
    mVisibility.start();
}

void TutorialManager::onStop(const QStringList &fields)
{
    Q_UNUSED(fields)
    stopGuidance();
}

void TutorialManager::stopGuidance()
{
    mVisibility.stop();
}

void TutorialManager::onTutorialList(const QStringList &fields)
{
    Q_UNUSED(fields)
    sendMessage(HostMessages::message(ToHost::kTutorialList, getTutorialJson()));
}

void TutorialManager::onIndicator(const QStringList &fields)
{
    TutorialIndicator *indicator = mGuidanceWindows.indicator();
    if (!indicator)
        return;
    const QString command = HostMessages::text(fields, 1);
    if (command == FromHost::kUpdate) {
        showStep(fields);
    } else if (command == FromHost::kUpdateXy) {
        indicator->mTargetX = HostMessages::number(fields, 2);
        indicator->mTargetY = HostMessages::number(fields, 3);
    }
}

void TutorialManager::showStep(const QStringList &fields)
{
    const HostMessages::Step step = HostMessages::readStep(fields);
    TutorialIndicator *indicator = mGuidanceWindows.indicator();
    indicator->setTargetWindowOffset(step.x, step.y, step.windowKey, step.arrowVisible);
    indicator->setHint(step.hint);
    indicator->init(step.nextVisible, step.yesNoVisible);
    indicator->mIconType = step.iconType;
    mGuidanceWindows.showTooltip();
}

void TutorialManager::onState(const QStringList &fields)
{
    if (!mGuidanceWindows.indicator())
        return;
    const QString state = HostMessages::text(fields, 1);
    if (state == FromHost::kShow)
        mVisibility.hostShown();
    else if (state == FromHost::kHide)
        mVisibility.hostHidden();
}

void TutorialManager::onTutorial(const QStringList &fields)
{
    const QString name = HostMessages::text(fields, 1);
    // The writer may have unsaved changes, and what is being typed is known to the screens alone.
    if (isMakingSupported())
        Q_EMIT tutorialRequested(name);
    else
        loadAndFeedback(name);
}

void TutorialManager::onFromServer(const QStringList &fields)
{
    const QString locale = HostMessages::text(fields, 1);
    if (locale == FromHost::kRawLocale)
        return;
    const bool standard = locale.isEmpty() || locale == FromHost::kStandardLocale;
    mTranslation->installTranslator(standard ? SystemService::getDefaultLocale() : locale);
}

void TutorialManager::onRequestPresetData(const QStringList &fields)
{
    const QString name = HostMessages::text(fields, 1);
    const QString path = getExistsFilename(QStringLiteral("resource/preset/") + name);
    if (!DataSupport::fileExists(path)) {
        Log::warning(kFolder, "TutorialManager::onRequestPresetData", __LINE__)
            << "presetData not found" << path << name;
        return;
    }
    QByteArray bytes;
    if (!DataSupport::readFile(path, bytes)) {
        Log::warning(kFolder, "TutorialManager::onRequestPresetData", __LINE__) << "Failed to read" << path;
        return;
    }
    sendMessage(HostMessages::message(ToHost::kFeedbackPresetData, QString::fromLatin1(bytes.toBase64())));
}

void TutorialManager::onShowTooltip(const QStringList &fields)
{
    mGuidanceWindows.showEditorTooltip(HostMessages::text(fields, 1), HostMessages::number(fields, 2),
                                       HostMessages::number(fields, 3));
}

void TutorialManager::onHideTooltip(const QStringList &fields)
{
    Q_UNUSED(fields)
    mGuidanceWindows.setEditorTooltipVisible(false);
}

void TutorialManager::editorTooltipClosed()
{
    mGuidanceWindows.forgetEditorTooltip();
}

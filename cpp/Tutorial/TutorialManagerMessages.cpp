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
    static const QString coordinates = message(FromHost::kEventLog, FromHost::kCoords);
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
    };
    return handlers;
}

void TutorialManager::onReceived(const QString &text)
{
    const QStringList fields = split(text);
    if (isLogged(text))
        Log::debugTexts(kFolder, "TutorialManager::onReceived", __LINE__, fields);
    if (const MessageHandler handler = messageHandlers().value(fields.first()))
        (this->*handler)(fields);
}

void TutorialManager::onCoffeeJs(const QStringList &fields)
{
    if (!rootObject)
        return;
    QVariant result;
    QMetaObject::invokeMethod(rootObject, "requestCoffeeJs", Q_RETURN_ARG(QVariant, result),
                              Q_ARG(QVariant, text(fields, 1)), Q_ARG(QVariant, text(fields, 2)));
}

void TutorialManager::onStart(const QStringList &fields)
{
    if (hasHostRect(fields))
        mHostWindows.setHostRect(readHostRect(fields));
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
    sendMessage(message(ToHost::kTutorialList, getTutorialJson()));
}

void TutorialManager::onIndicator(const QStringList &fields)
{
    TutorialIndicator *indicator = mGuidanceWindows.indicator();
    if (!indicator)
        return;
    const QString command = text(fields, 1);
    if (command == FromHost::kUpdate) {
        const Step step = readStep(fields);
        indicator->setTargetWindowOffset(step.x, step.y, step.windowKey, step.arrowVisible);
        indicator->setHint(step.hint);
        indicator->init(step.nextVisible, step.yesNoVisible);
        indicator->mIconType = step.iconType;
        mGuidanceWindows.showTooltip();
        indicator->announceStep();
    } else if (command == FromHost::kUpdateXy) {
        indicator->mTargetX = number(fields, 2);
        indicator->mTargetY = number(fields, 3);
    }
}

void TutorialManager::onState(const QStringList &fields)
{
    if (!mGuidanceWindows.indicator())
        return;
    const QString state = text(fields, 1);
    if (state == FromHost::kShow)
        mVisibility.hostShown();
    else if (state == FromHost::kHide)
        mVisibility.hostHidden();
}

void TutorialManager::onWindowStack(const QStringList &fields)
{
    const QString command = text(fields, 1);
    if (command == FromHost::kPush)
        mHostWindows.push(text(fields, 2));
    else if (command == FromHost::kPop)
        mHostWindows.pop();
}

void TutorialManager::onPosition(const QStringList &fields)
{
    setPosition(text(fields, 1), number(fields, 2), number(fields, 3));
}

void TutorialManager::onTutorial(const QStringList &fields)
{
    const QString name = text(fields, 1);
    // The writer may have unsaved changes, and what is being typed is known to the screens alone.
    if (isMakingSupported())
        Q_EMIT tutorialRequested(name);
    else
        loadAndFeedback(name);
}

void TutorialManager::onFromServer(const QStringList &fields)
{
    const QString locale = text(fields, 1);
    if (locale == FromHost::kRawLocale)
        return;
    const bool standard = locale.isEmpty() || locale == FromHost::kStandardLocale;
    mTranslation->installTranslator(standard ? SystemService::getDefaultLocale() : locale);
}

void TutorialManager::onRequestPresetData(const QStringList &fields)
{
    const QString name = text(fields, 1);
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
    sendMessage(message(ToHost::kFeedbackPresetData, QString::fromLatin1(bytes.toBase64())));
}

void TutorialManager::onShowTooltip(const QStringList &fields)
{
    mGuidanceWindows.showEditorTooltip(text(fields, 1), number(fields, 2), number(fields, 3));
}

void TutorialManager::onHideTooltip(const QStringList &fields)
{
    Q_UNUSED(fields)
    mGuidanceWindows.setEditorTooltipVisible(false);
}

void TutorialManager::callbackCoffeeJs(int key, const QString &result)
{
    Log::debug(kFolder, "TutorialManager::callbackCoffeeJs", __LINE__) << key << result;
    sendMessage(message(ToHost::kCallbackCoffeeJs, key, result));
}

void TutorialManager::pressed(Button button)
{
    switch (button) {
    case Button::Next:
        sendMessage(ToHost::kNext);
        break;
    case Button::Yes:
        sendMessage(ToHost::kYes);
        break;
    case Button::No:
        sendMessage(ToHost::kNo);
        break;
    }
}

void TutorialManager::updateIndicatorXyWindowKey(int x, int y, const QString &windowKey)
{
    sendMessage(message(ToHost::kIndicator, ToHost::kUpdateXYWindowKey, x, y, windowKey));
    if (TutorialIndicator *indicator = mGuidanceWindows.indicator())
        indicator->setTargetWindowOffset(x, y, windowKey, indicator->mArrowVisible);
}

#pragma once

#include <QLatin1String>
#include <QRect>
#include <QString>
#include <QStringList>

/// The wire on one page: every message between the host editor and this program, in both directions. Only here are
/// messages and their words spelled; docs/protocol.md is the same for whoever writes the other end, and a test holds
/// the two together. HostRecord.h has the bytes round a message.
///
/// A message is a text of fields. Each line below that is indented gives a message: its words and, in angle brackets,
/// its further fields in order. Numbers are decimal; one that is missing or is no number reads as 0, a text that is
/// missing as empty. More fields than told do no harm. Positions and sizes are in pixels of the screen.
namespace HostMessages
{
/// A word of a message, as a constant of the build.
template <int Size>
constexpr QLatin1String word(const char (&text)[Size])
{
    return QLatin1String(text, Size - 1);
}

/// The local server that the host editor listens on; its suffix is the program's first argument.
constexpr QLatin1String kServerName = word("qelm%1");
constexpr QLatin1String kStandardSuffix = word("20180123-0000");
QString serverName(const QString &suffix);

constexpr QChar kFieldSeparator(0x01);

/// In both x and y of a step: it points at nothing.
constexpr int kNoPosition = -9999;
/// In place of an item's id: the tutorial's beginning.
constexpr int kFromBeginning = -1;
/// The bits of a step's flags.
enum StepFlag { kNextFlag = 1, kYesNoFlag = 2, kArrowFlag = 4 };

/// From the host editor to this program.
namespace FromHost
{
///     alive
/// Nothing but a sign of life; any byte is one.
constexpr QLatin1String kAlive = word("alive");

///     start <left> <top> <width> <height>
/// The guidance begins. Its windows keep inside of the rectangle; without all four the one before stays.
constexpr QLatin1String kStart = word("start");

///     stop
/// The guidance ends, its windows go.
constexpr QLatin1String kStop = word("stop");

///     bye
/// As "stop"; what else came in the same read is lost.
constexpr QLatin1String kBye = word("bye");

///     tutorialList
/// Asks for the tutorials there are. Answer: "tutorialList".
constexpr QLatin1String kTutorialList = word("tutorialList");

///     tutorial <name>
/// Loads the tutorial of that name. Answer: "start", none when it can't be loaded.
constexpr QLatin1String kTutorial = word("tutorial");

///     fromServer <locale>
/// The language from here on, such as "en_US"; empty or "-" for the standard one, "Raw" for no change.
constexpr QLatin1String kFromServer = word("fromServer");
constexpr QLatin1String kStandardLocale = word("-");
constexpr QLatin1String kRawLocale = word("Raw");

///     indicator update <x> <y> <windowKey> <hint> <flags> <icon>
/// Shows a step; see Step.
///
///     indicator updateXy <x> <y>
/// Moves the point that the step aims at.
constexpr QLatin1String kIndicator = word("indicator");
constexpr QLatin1String kUpdate = word("update");
constexpr QLatin1String kUpdateXy = word("updateXy");

///     state show
/// The host editor is to be seen again, or has opened a window: the guidance is raised above it.
///
///     state hide
/// The host editor is not to be seen. The guidance goes too, unless this program is the active one.
constexpr QLatin1String kState = word("state");
constexpr QLatin1String kShow = word("show");
constexpr QLatin1String kHide = word("hide");

///     windowStack push <windowKey>
/// A window has come to stand in front of the others.
///
///     windowStack pop
/// The window in front has closed.
constexpr QLatin1String kWindowStack = word("windowStack");
constexpr QLatin1String kPush = word("push");
constexpr QLatin1String kPop = word("pop");

///     windowPosition <windowKey> <x> <y>
/// Where the upper left corner of a window is.
constexpr QLatin1String kWindowPosition = word("windowPosition");

///     controlPosition <windowKey> <x> <y>
/// The same of a control in a window.
constexpr QLatin1String kControlPosition = word("controlPosition");

///     showTooltip <text> <x> <y>
/// Shows the editor tooltip at that place.
constexpr QLatin1String kShowTooltip = word("showTooltip");

///     hideTooltip
constexpr QLatin1String kHideTooltip = word("hideTooltip");

///     coffeeJs <key> <source>
/// Asks for a conversion. The source is a script expression that gives the CoffeeScript text, the key a whole number
/// for the answer. Answer: "callbackCoffeeJs".
constexpr QLatin1String kCoffeeJs = word("coffeeJs");

///     requestPresetData <name>
/// Asks for a preset file. Answer: "feedbackPresetData", none when there is no such file.
constexpr QLatin1String kRequestPresetData = word("requestPresetData");

///     eventLog coords <text>
/// The event dialog of the authoring mode shows the coordinates under the cursor.
///
///     eventLog append <line>
/// It shows one more line of rich text.
///
///     eventLog raisedHand <windowKey>...
/// It lists the windows and controls that are tracked, all of them.
constexpr QLatin1String kEventLog = word("eventLog");
constexpr QLatin1String kCoords = word("coords");
constexpr QLatin1String kAppend = word("append");
constexpr QLatin1String kRaisedHand = word("raisedHand");

///     contents <text>...
/// Accepted, and nothing follows.
constexpr QLatin1String kContents = word("contents");

///     log <text>...
/// Accepted, and nothing follows.
constexpr QLatin1String kLog = word("log");
} // namespace FromHost

/// From this program to the host editor.
namespace ToHost
{
///     alive
/// Comes every second.
constexpr QLatin1String kAlive = word("alive");

///     tutorialList <list>
/// The tutorials in JSON; empty when they can't be read.
constexpr QLatin1String kTutorialList = word("tutorialList");

///     start <scenario> <id>
/// Begin this tutorial. The scenario is a script that assigns an array to "scenario", the id that of the item to begin
/// with, or kFromBeginning.
constexpr QLatin1String kStart = word("start");

///     next
/// The button Next was pressed.
constexpr QLatin1String kNext = word("next");

///     yes
/// The button Yes was pressed.
constexpr QLatin1String kYes = word("yes");

///     no
/// The button No was pressed.
constexpr QLatin1String kNo = word("no");

///     indicator updateXYWindowKey <x> <y> <windowKey>
/// The writer has moved the shown step: so many pixels from the corner of that window or control.
constexpr QLatin1String kIndicator = word("indicator");
constexpr QLatin1String kUpdateXYWindowKey = word("updateXYWindowKey");

///     callbackCoffeeJs <key> <record>
/// A conversion's result in JSON, with the request's key.
constexpr QLatin1String kCallbackCoffeeJs = word("callbackCoffeeJs");

///     feedbackPresetData <contents>
/// The bytes of the preset file in base64.
constexpr QLatin1String kFeedbackPresetData = word("feedbackPresetData");
} // namespace ToHost

QStringList split(const QString &message);
QString join(const QStringList &fields);

/// Whether that is the message's name, its first field.
bool isNamed(const QString &message, QLatin1String name);

QString text(const QStringList &fields, int index);
int number(const QStringList &fields, int index);

inline QString field(const QString &text)
{
    return text;
}
inline QString field(QLatin1String text)
{
    return text;
}
inline QString field(int number)
{
    return QString::number(number);
}

/// The message of that name and these further fields: texts as they are, numbers in decimal.
template <typename... Fields>
QString message(QLatin1String name, const Fields &...fields)
{
    return join({ field(name), field(fields)... });
}

/// One step, as "indicator" "update" describes it.
struct Step
{
    int x; ///< the point to aim at, or kNoPosition in both
    int y;
    QString windowKey; ///< the window or control that it stands in
    QString hint; ///< empty for none
    bool nextVisible;
    bool yesNoVisible;
    bool arrowVisible;
    int iconType; ///< 0 click, 1 double click, 2 right click, 3 eye, 4 wait, 5 keyboard; else none
};
QString stepMessage(const Step &step);
Step readStep(const QStringList &fields);

/// Left, top, width and height, as the host editor's "start" tells them.
QString startMessage(const QRect &hostRect);
/// Whether the message carries a rectangle.
bool hasHostRect(const QStringList &fields);
QRect readHostRect(const QStringList &fields);
} // namespace HostMessages

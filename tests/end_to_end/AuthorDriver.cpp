#include "AuthorDriver.h"

#include "support/FileBytes.h"
#include "support/Screen.h"

#include <QDir>
#include <QJSEngine>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <functional>

namespace
{
const QString kProgram = QStringLiteral(TRELVANE_AUTHOR_PROGRAM);
const QString kSourceFolder = QStringLiteral(TRELVANE_SOURCE_DIR);
const QString kFolderName = QStringLiteral("tutorial-win/");

constexpr int kFirstRowY = 58;
constexpr int kRowHeight = 24;

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

const QString AuthorDriver::kTutorial = QStringLiteral("TutorialSideViewStep0");
const QString AuthorDriver::kScenario = QStringLiteral("qml/Tutorial/TutorialSideViewStep0.js");
const QString AuthorDriver::kJapanese = QStringLiteral("translations/ja_JP.ts");
const QString AuthorDriver::kEnglish = QStringLiteral("translations/en_US.ts");

QPoint AuthorDriver::row(int index)
{
    return QPoint(110, kFirstRowY + index * kRowHeight);
}

QByteArray AuthorDriver::original(const QString &name)
{
    return readAll(kSourceFolder + QLatin1Char('/') + name);
}

QString AuthorDriver::path(const QString &name) const
{
    return mFolder->filePath(kFolderName + name);
}

void AuthorDriver::makeFolder()
{
    mFolder = std::make_unique<QTemporaryDir>();
    for (const QString &name : { kScenario, kJapanese })
        QDir().mkpath(QFileInfo(path(name)).path());
}

bool AuthorDriver::start()
{
    end();
    mHost = std::make_unique<HostPeer>();
    mHost->process().setWorkingDirectory(mFolder->path());
    if (!mHost->start(kProgram))
        return false;
    mHost->keepAlive();
    return findWindow() && QTest::qWaitFor([this] { return !startMessage(QStringLiteral("F5")).isEmpty(); }, kLimit);
}

bool AuthorDriver::findWindow()
{
    const QStringList search = { QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                                 QStringLiteral("^\\*?%1$").arg(kTutorial) };
    if (!QTest::qWaitFor([&] { return !(mWindow = Screen::xdotool(search)).isEmpty(); }, kLimit))
        return false;
    Screen::xdotool({ QStringLiteral("windowactivate"), QStringLiteral("--sync"), mWindow });
    return true;
}

bool AuthorDriver::leave()
{
    press(QStringLiteral("ctrl+q"));
    return mHost->waitForExit(kLimit) && mHost->process().exitCode() == 0;
}

void AuthorDriver::end()
{
    mHost.reset();
}

void AuthorDriver::move(const QPoint &place)
{
    Screen::xdotool({ QStringLiteral("mousemove"), QStringLiteral("--window"), mWindow, QString::number(place.x()),
                      QString::number(place.y()) });
}

void AuthorDriver::click(const QPoint &place)
{
    move(place);
    Screen::xdotool({ QStringLiteral("click"), QStringLiteral("1") });
    // What follows a selection in short timers.
    QTest::qWait(kSlow);
}

void AuthorDriver::drag(const QPoint &from, const QPoint &to)
{
    move(from);
    Screen::xdotool({ QStringLiteral("mousedown"), QStringLiteral("1") });
    const int step = to.y() < from.y() ? -4 : 4;
    for (int y = from.y(); (to.y() - y) * step >= 0; y += step) {
        move(QPoint(from.x(), y));
        QTest::qWait(30);
    }
    QTest::qWait(300);
    Screen::xdotool({ QStringLiteral("mouseup"), QStringLiteral("1") });
}

void AuthorDriver::press(const QString &keys)
{
    Screen::xdotool({ QStringLiteral("key"), keys });
}

void AuthorDriver::type(const QString &text)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        // Typed as a character, a line feed is another key than Return.
        if (i > 0)
            press(QStringLiteral("Return"));
        Screen::xdotool({ QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), QStringLiteral("--"),
                          lines.at(i) });
    }
}

bool AuthorDriver::isModified() const
{
    return Screen::xdotool({ QStringLiteral("getwindowname"), mWindow }).startsWith(QLatin1Char('*'));
}

QStringList AuthorDriver::startMessage(const QString &keys)
{
    press(keys);
    // An edit may have restarted the tutorial before: the last one counts.
    QStringList last;
    QStringList fields = mHost->waitForMessage(HostMessages::ToHost::kStart, 2000);
    while (!fields.isEmpty()) {
        last = fields;
        fields = mHost->waitForMessage(HostMessages::ToHost::kStart, 200);
    }
    return last;
}

QList<QJsonObject> AuthorDriver::items()
{
    return evaluate(startMessage(QStringLiteral("F5")).value(1));
}

int AuthorDriver::current()
{
    const QStringList fields = startMessage(QStringLiteral("F6"));
    return fields.isEmpty() ? -1 : fields.value(2).toInt();
}

QJsonValue AuthorDriver::value(int id, const char *key)
{
    for (const QJsonObject &item : items()) {
        if (item.value(QLatin1String("id")).toInt() == id)
            return item.value(QLatin1String(key));
    }
    return QJsonValue();
}

QStringList AuthorDriver::names()
{
    QStringList names;
    for (const QJsonObject &item : items())
        names.append(item.value(QLatin1String("name")).toString());
    return names;
}

bool AuthorDriver::becomes(int id, const char *key, const QJsonValue &wanted)
{
    return QTest::qWaitFor([&] { return value(id, key) == wanted; }, kLimit);
}

bool AuthorDriver::becomes(const QStringList &wanted)
{
    return QTest::qWaitFor([&] { return names() == wanted; }, kLimit);
}

#pragma once

#include "support/HostPeer.h"
#include "support/Screen.h"
#include "support/StoredTutorial.h"
#include "support/XDoTool.h"

/// What the tests of the authoring mode stand on: the real program in a folder of its own, driven by
/// mouse and keyboard, and the host editor's end of its link.
class AuthorDriver
{
protected:
    // Two clicks further apart than a double click.
    static constexpr int kSlow = 700;
    // How long the program may take for an edit.
    static constexpr int kLimit = 20000;

    /// Starts the program and waits until it answers; ends the one before.
    bool start()
    {
        return launch() && find() && QTest::qWaitFor([this] { return !startMessage("F5").isEmpty(); }, kLimit);
    }

    bool launch()
    {
        for (const char *folder : { "tutorial-win/qml/Tutorial", "tutorial-win/translations" })
            QDir(mFolder.path()).mkpath(QLatin1String(folder));
        mHost = std::make_unique<HostPeer>();
        mHost->process().setWorkingDirectory(mFolder.path());
        // What the program keeps for itself stays from one start to the next.
        QProcessEnvironment environment = mHost->process().processEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), mFolder.path());
        mHost->process().setProcessEnvironment(environment);
        const bool started = mHost->start(QStringLiteral(TRELVANE_AUTHOR_PROGRAM));
        mHost->keepAlive();
        return started;
    }

    /// The window of that title, or nothing.
    static QString window(const char *title)
    {
        return xdotool(QStringLiteral("search --onlyvisible --name ^%1$").arg(QString::fromUtf8(title)));
    }

    /// Waits for the window and activates it.
    bool find(const char *title = "\\*?TutorialSideViewStep0")
    {
        const bool found = QTest::qWaitFor([&] { return !(mWindow = window(title)).isEmpty(); }, kLimit);
        xdotool(QStringLiteral("windowactivate --sync"), { mWindow });
        return found;
    }

    /// The row of the list, from 0 for the one over all others.
    static QPoint row(int index) { return QPoint(110, 58 + index * 24); }

    void click(const QPoint &place)
    {
        xdotool(QStringLiteral("mousemove --window %1 %2 %3 click 1").arg(mWindow).arg(place.x()).arg(place.y()));
        // What follows a selection in short timers.
        QTest::qWait(kSlow);
    }

    static void press(const char *keys) { xdotool(QStringLiteral("key ") + QLatin1String(keys)); }

    static void type(const QString &text)
    {
        const QStringList lines = text.split(QLatin1Char('\n'));
        for (int i = 0; i < lines.size(); ++i) {
            // Typed as a character, a line feed is another key than Return.
            if (i > 0)
                press("Return");
            xdotool(QStringLiteral("type --delay 30 --"), { lines.at(i) });
        }
    }

    bool isModified() const
    {
        return xdotool(QStringLiteral("getwindowname"), { mWindow }).startsWith(QLatin1Char('*'));
    }

    QList<QJsonObject> stored(const char *locale) const
    {
        return StoredTutorial::items(mFolder.filePath(QStringLiteral("tutorial-win")),
                                     QStringLiteral("TutorialSideViewStep0"), QLatin1String(locale));
    }
    /// What the host editor is told to play.
    QList<QJsonObject> items() { return StoredTutorial::items(startMessage("F5").value(1)); }
    /// The id of the item in the settings.
    int current() { return startMessage("F6").value(2).toInt(); }

    /// Waits until the item has that value; the ids are counted up.
    bool becomes(int id, const char *key, const QJsonValue &wanted)
    {
        return QTest::qWaitFor([&] { return items().value(id - 1).value(QLatin1String(key)) == wanted; }, kLimit);
    }

    const QTemporaryDir mFolder;
    std::unique_ptr<HostPeer> mHost;
    QString mWindow;

private:
    QStringList startMessage(const char *keys)
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
};

#pragma once

#include "support/HostPeer.h"

#include <QJsonObject>
#include <QPoint>
#include <QTemporaryDir>

#include <memory>

/// What the tests of the authoring mode stand on: the real program with a tutorial folder of its
/// own, driven by mouse and keyboard, and the host editor's end of its link.
class AuthorDriver : public QObject
{
    Q_OBJECT

public:
    AuthorDriver() = default;

protected:
    static const QString kTutorial;
    // Beside each other in the tutorial folder, and in the sources.
    static const QString kScenario;
    static const QString kJapanese;
    static const QString kEnglish;

    // Places in the window at its first size, in pixels.
    static QPoint row(int index);
    static constexpr QPoint kHint2 = QPoint(600, 570);
    static constexpr QPoint kCondition = QPoint(480, 678);
    static constexpr QPoint kJump = QPoint(430, 714);
    static constexpr QPoint kJumpNo = QPoint(800, 714);

    // Two clicks further apart than a double click.
    static constexpr int kSlow = 700;
    // How long the program may take for an edit.
    static constexpr int kLimit = 20000;

    static QByteArray original(const QString &name);
    QString path(const QString &name) const;

    /// Makes the folder for the tutorial anew.
    void makeFolder();
    /// Starts the program in the folder; ends the one before.
    bool start();
    /// Waits for the program's window and activates it.
    bool findWindow();
    bool leave();
    void end();

    void move(const QPoint &place);
    void click(const QPoint &place);
    /// Moves the mouse with the button held, in small steps.
    void drag(const QPoint &from, const QPoint &to);
    static void press(const QString &keys);
    static void type(const QString &text);
    bool isModified() const;

    /// What the host editor is told to play, the way that F5 tells it.
    QList<QJsonObject> items();
    QJsonValue value(int id, const char *key);
    QStringList names();
    /// The id of the item in the settings, the way that F6 tells it; -1 for none.
    int current();
    /// Waits for the entry of an item, or for the names of all items, to be so.
    bool becomes(int id, const char *key, const QJsonValue &wanted);
    bool becomes(const QStringList &wanted);

    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<HostPeer> mHost;
    QString mWindow;

private:
    Q_DISABLE_COPY(AuthorDriver)

    QStringList startMessage(const QString &keys);
};

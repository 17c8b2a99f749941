#pragma once

#include "ArrowAim.h"
#include "AutoPlayer.h"
#include "ControlRegistry.h"
#include "EventLog.h"
#include "HostOptions.h"
#include "MainWindow.h"
#include "ProgramLink.h"
#include "ScenarioWalker.h"
#include "WindowReporter.h"

#include <QObject>
#include <QProcess>
#include <QProcessEnvironment>

/// One run of the stand-in: its window, the link, the program and the tutorial that they walk.
class HostSession : public QObject
{
    Q_OBJECT

public:
    /// \param environment of the program
    HostSession(const HostOptions &options, const QProcessEnvironment &environment);
    ~HostSession() override;

    /// Opens the window and the link and starts the program. Empty on success, else what is wrong.
    QString begin();

private:
    void greet();
    void receive(const QStringList &fields);
    void startTutorial(const QString &script, int id);
    void showStep();
    void followTarget(const QString &key);
    void leaveStep();
    void endTutorial();
    void takePicture();
    void programEnded(int exitCode, QProcess::ExitStatus status);
    void linkEnded();
    void leave(int exitCode);

    bool targetKnown() const;
    QPoint target();

    HostOptions mOptions;
    ControlRegistry mRegistry;
    MainWindow mWindow;
    WindowReporter mReporter;
    EventLog mEventLog;
    ProgramLink mLink;
    ScenarioWalker mWalker;
    AutoPlayer mPlayer;
    ArrowAim mAim;
    QProcess mProgram;
    bool mPointing = false;
    bool mPictureTaken = false;
    bool mLeaving = false;
    int mPictures = 0;
};

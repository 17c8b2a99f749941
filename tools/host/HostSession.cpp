#include "HostSession.h"

#include "ScriptDialog.h"
#include "Transcript.h"
#include "Tutorial/link/HostMessages.h"
#include "WritersFolder.h"

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QStandardPaths>

using namespace HostMessages;

namespace
{
// Time for the last messages to be seen at work before the link ends.
constexpr int kFarewell = 600;
constexpr int kProgramEndLimit = 20000;

QString pictureName(int number, const QString &stepName)
{
    QString name = stepName;
    for (QChar &character : name) {
        if (!character.isLetterOrNumber() && character != QLatin1Char('-'))
            character = QLatin1Char('_');
    }
    return QStringLiteral("%1-%2.png").arg(number, 2, 10, QLatin1Char('0')).arg(name);
}
} // namespace

HostSession::HostSession(const HostOptions &options, const QProcessEnvironment &environment)
    : mOptions(options)
    , mWindow(&mRegistry)
    , mReporter(&mRegistry)
    , mEventLog(&mRegistry)
    , mWalker([this](const StepCondition &condition) { return mRegistry.holds(condition); })
    , mPlayer(options, &mWalker, &mRegistry)
{
    mProgram.setProcessEnvironment(environment);
    connect(&mLink, &ProgramLink::connected, this, &HostSession::greet);
    connect(&mLink, &ProgramLink::disconnected, this, &HostSession::linkEnded);
    connect(&mLink, &ProgramLink::received, this, &HostSession::receive);
    connect(&mReporter, &WindowReporter::message, &mLink, &ProgramLink::sendMessage);
    connect(&mEventLog, &EventLog::message, &mLink, &ProgramLink::sendMessage);
    connect(&mRegistry, &ControlRegistry::happened, &mEventLog, &EventLog::append);
    connect(&mReporter, &WindowReporter::moved, this, &HostSession::followTarget);
    // The program then raises its windows over a dialog. A menu stays above them, so steps point beside it.
    connect(&mReporter, &WindowReporter::covered, this, [this] { mLink.send(FromHost::kState, FromHost::kShow); });
    connect(mWindow.scriptDialog(), &ScriptDialog::conversionRequested, &mLink,
            [this](int key, const QString &expression) { mLink.send(FromHost::kCoffeeJs, key, expression); });
    connect(&mRegistry, &ControlRegistry::happened, &mWalker, &ScenarioWalker::handleEvent);
    connect(&mWalker, &ScenarioWalker::entered, this, [this] {
        mPictureTaken = false;
        showStep();
    });
    connect(&mWalker, &ScenarioWalker::leaving, this, &HostSession::leaveStep);
    connect(&mWalker, &ScenarioWalker::finished, this, &HostSession::endTutorial);
    connect(&mPlayer, &AutoPlayer::atRest, this, &HostSession::takePicture);
    connect(&mPlayer, &AutoPlayer::failed, this, [this](const QString &reason) {
        Transcript::remark(reason);
        leave(1);
    });
    connect(&mProgram, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &HostSession::programEnded);
    connect(&mWindow, &MainWindow::minimised, this, [this] { mLink.send(FromHost::kState, FromHost::kHide); });
    connect(&mWindow, &MainWindow::restored, this, [this] { mLink.send(FromHost::kState, FromHost::kShow); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            mLink.send(FromHost::kState, FromHost::kShow);
    });
}

HostSession::~HostSession()
{
    mLeaving = true;
    mProgram.disconnect(this);
    mLink.disconnect(this);
    // The program ends by itself when the link does.
    mLink.close();
    if (mProgram.state() != QProcess::NotRunning && !mProgram.waitForFinished(kProgramEndLimit)) {
        Transcript::remark(QStringLiteral("the program did not end with the link and is stopped"));
        mProgram.kill();
        mProgram.waitForFinished();
    }
}

QString HostSession::begin()
{
    if (mOptions.automatic) {
        QString obstacle = AutoPlayer::obstacle();
        if (!obstacle.isEmpty())
            return obstacle;
    }
    if (!mOptions.pictureFolder.isEmpty() && !QDir().mkpath(mOptions.pictureFolder))
        return QStringLiteral("cannot make the folder \"%1\"").arg(mOptions.pictureFolder);
    if (mOptions.inDocuments) {
        const QString folder = WritersFolder::path();
        QString obstacle = WritersFolder::layOut(folder, WritersFolder::samples());
        if (!obstacle.isEmpty())
            return obstacle;
        mProgram.setWorkingDirectory(folder);
        Transcript::remark(QStringLiteral("the tutorials lie in %1").arg(folder));
    }
    QString error = mLink.listen(mOptions.suffix);
    if (!error.isEmpty())
        return error;
    Transcript::remark(QStringLiteral("listening on %1").arg(HostMessages::serverName(mOptions.suffix)));

    mWindow.takePlace();
    mWindow.show();
    if (mOptions.exitAfter > 0) {
        QTimer::singleShot(mOptions.exitAfter * 1000, this, [this] {
            Transcript::remark(
                QStringLiteral("%1 seconds are over, --exit-after ends this run").arg(mOptions.exitAfter));
            leave(1);
        });
    }
    if (mOptions.program.isEmpty())
        return QString();
    // The program writes its log only where there is a folder for it.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                  + QLatin1String("/Harnwick/Trelvane"));
    if (mOptions.programLog)
        mProgram.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    else
        mProgram.setStandardErrorFile(QProcess::nullDevice());
    mProgram.setStandardOutputFile(QProcess::nullDevice());
    QStringList arguments = { mOptions.suffix };
    if (!mOptions.language.isEmpty())
        arguments += { QStringLiteral("--language"), mOptions.language };
    mProgram.start(mOptions.program, arguments);
    if (!mProgram.waitForStarted())
        return QStringLiteral("cannot start \"%1\": %2").arg(mOptions.program, mProgram.errorString());
    mPlayer.setProcess(mProgram.processId());
    return QString();
}

void HostSession::greet()
{
    mReporter.reportAll();
    if (mOptions.eventLog)
        mEventLog.start();
    mLink.send(FromHost::kFromServer, mOptions.locale);
    mLink.send(FromHost::kTutorialList);
    if (!mOptions.tutorial.isEmpty())
        mLink.send(FromHost::kTutorial, mOptions.tutorial);
}

void HostSession::receive(const QStringList &fields)
{
    const QString &name = fields.first();
    if (name == ToHost::kStart) {
        startTutorial(fields.value(1), fields.value(2).toInt());
    } else if (name == ToHost::kNext || name == ToHost::kYes || name == ToHost::kNo) {
        mWalker.handleButton(name);
    } else if (name == ToHost::kIndicator && fields.value(1) == ToHost::kUpdateXYWindowKey) {
        if (!mWalker.isRunning())
            return;
        mWalker.moveStep(fields.value(2).toInt(), fields.value(3).toInt(), fields.value(4));
        showStep();
    } else if (name == ToHost::kCallbackCoffeeJs) {
        mWindow.scriptDialog()->showAnswer(fields.value(1).toInt(), fields.value(2));
    }
}

void HostSession::startTutorial(const QString &script, int id)
{
    const HostScenario::Scenario scenario = HostScenario::evaluate(script);
    if (!scenario.error.isEmpty()) {
        Transcript::remark(QStringLiteral("the scenario cannot be run: %1").arg(scenario.error));
        if (mOptions.automatic)
            leave(1);
        return;
    }
    // The whole screen: hints keep clear of its edge, and may lie beside the editor's window.
    mLink.sendMessage(HostMessages::startMessage(QGuiApplication::primaryScreen()->availableGeometry()));
    // The program forgets its window stack with the first "start".
    mReporter.reportAll();
    mPlayer.stepLeft();
    mWalker.start(scenario, id);
}

bool HostSession::targetKnown() const
{
    return mWalker.step().hasPlace() && mReporter.isKnown(mWalker.step().windowKey);
}

QPoint HostSession::target()
{
    if (!targetKnown())
        return QPoint(kNoPosition, kNoPosition);
    return mAim.aimAt(mReporter.position(mWalker.step().windowKey) + QPoint(mWalker.step().x, mWalker.step().y));
}

void HostSession::showStep()
{
    const HostScenario::Step &step = mWalker.step();
    mPointing = targetKnown();
    const QPoint place = target();
    const StepCondition::Waits waits = mWalker.condition().waits;
    mLink.sendMessage(HostMessages::stepMessage(
        { place.x(), place.y(), step.windowKey, step.hint, waits == StepCondition::Waits::ForNext,
          waits == StepCondition::Waits::ForAnswer, step.showArrow, HostScenario::iconNumber(step.icon) }));
    if (mOptions.automatic)
        mPlayer.stepShown();
}

void HostSession::followTarget(const QString &key)
{
    if (!mWalker.isRunning() || key != mWalker.step().windowKey || !mWalker.step().hasPlace())
        return;
    if (!mPointing) {
        // It was not to be seen when the step began.
        showStep();
        return;
    }
    const QPoint place = target();
    mLink.send(FromHost::kIndicator, FromHost::kUpdateXy, place.x(), place.y());
}

void HostSession::leaveStep()
{
    mPlayer.stepLeft();
    takePicture();
}

void HostSession::endTutorial()
{
    mLink.send(FromHost::kStop);
    if (mOptions.automatic)
        QTimer::singleShot(kFarewell, this, [this] { leave(0); });
}

void HostSession::takePicture()
{
    if (mOptions.pictureFolder.isEmpty() || mPictureTaken)
        return;
    mPictureTaken = true;
    const QString filename = QDir(mOptions.pictureFolder).filePath(pictureName(++mPictures, mWalker.step().name));
    if (!QGuiApplication::primaryScreen()->grabWindow(0).save(filename))
        Transcript::remark(QStringLiteral("cannot write the picture \"%1\"").arg(filename));
}

void HostSession::programEnded(int exitCode, QProcess::ExitStatus status)
{
    if (mLeaving)
        return;
    const bool crashed = status == QProcess::CrashExit;
    Transcript::remark(crashed ? QStringLiteral("the program has crashed")
                               : QStringLiteral("the program has ended with exit code %1").arg(exitCode));
    leave(crashed || exitCode != 0 || mOptions.automatic ? 1 : 0);
}

void HostSession::linkEnded()
{
    // A program of ours is watched itself; one that was started by hand may be started again.
    if (mOptions.automatic && mOptions.program.isEmpty())
        leave(1);
}

void HostSession::leave(int exitCode)
{
    if (mLeaving)
        return;
    mLeaving = true;
    QCoreApplication::exit(exitCode);
}

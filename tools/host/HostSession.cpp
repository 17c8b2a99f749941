#include "HostSession.h"

#include "ScriptDialog.h"
#include "Transcript.h"

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QStandardPaths>

namespace
{
// Time for the last messages to be seen at work before the link ends.
constexpr int kFarewell = 600;
constexpr int kProgramEndLimit = 5000;

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

HostSession::HostSession(const HostOptions &options)
    : mOptions(options)
    , mWindow(&mRegistry)
    , mReporter(&mRegistry)
    , mEventLog(&mRegistry)
    , mWalker([this](const StepCondition &condition) { return mRegistry.holds(condition); })
    , mPlayer(options, &mWalker, &mRegistry)
{
    connect(&mLink, &HostLink::connected, this, &HostSession::greet);
    connect(&mLink, &HostLink::disconnected, this, &HostSession::linkEnded);
    connect(&mLink, &HostLink::received, this, &HostSession::receive);
    connect(&mReporter, &WindowReporter::message, &mLink, &HostLink::send);
    connect(&mEventLog, &EventLog::message, &mLink, &HostLink::send);
    connect(&mRegistry, &ControlRegistry::happened, &mEventLog, &EventLog::append);
    connect(&mReporter, &WindowReporter::moved, this, &HostSession::followTarget);
    // The program then raises its windows over a dialog. A menu stays above them, so steps point beside it.
    connect(&mReporter, &WindowReporter::covered, this, [this] { sendState(QStringLiteral("show")); });
    connect(mWindow.scriptDialog(), &ScriptDialog::conversionRequested, &mLink,
            [this](int key, const QString &expression) {
                mLink.send({ QStringLiteral("coffeeJs"), QString::number(key), expression });
            });
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
    connect(&mWindow, &MainWindow::minimised, this, [this] { sendState(QStringLiteral("hide")); });
    connect(&mWindow, &MainWindow::restored, this, [this] { sendState(QStringLiteral("show")); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            sendState(QStringLiteral("show"));
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
    QString error = mLink.listen(mOptions.suffix);
    if (!error.isEmpty())
        return error;
    Transcript::remark(QStringLiteral("listening on qelm%1").arg(mOptions.suffix));

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
    mProgram.start(mOptions.program, { mOptions.suffix });
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
    mLink.send({ QStringLiteral("fromServer"), mOptions.locale });
    mLink.send({ QStringLiteral("tutorialList") });
    if (!mOptions.tutorial.isEmpty())
        mLink.send({ QStringLiteral("tutorial"), mOptions.tutorial });
}

void HostSession::receive(const QStringList &fields)
{
    const QString &name = fields.first();
    if (name == QLatin1String("start")) {
        startTutorial(fields.value(1), fields.value(2).toInt());
    } else if (name == QLatin1String("next") || name == QLatin1String("yes") || name == QLatin1String("no")) {
        mWalker.handleButton(name);
    } else if (name == QLatin1String("indicator") && fields.value(1) == QLatin1String("updateXYWindowKey")) {
        if (!mWalker.isRunning())
            return;
        mWalker.moveStep(fields.value(2).toInt(), fields.value(3).toInt(), fields.value(4));
        showStep();
    } else if (name == QLatin1String("callbackCoffeeJs")) {
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
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    mLink.send({ QStringLiteral("start"), QString::number(screen.x()), QString::number(screen.y()),
                 QString::number(screen.width()), QString::number(screen.height()) });
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
        return QPoint(HostScenario::kNoPosition, HostScenario::kNoPosition);
    return mAim.aimAt(mReporter.position(mWalker.step().windowKey) + QPoint(mWalker.step().x, mWalker.step().y));
}

void HostSession::showStep()
{
    const HostScenario::Step &step = mWalker.step();
    mPointing = targetKnown();
    const QPoint place = target();
    mLink.send({ QStringLiteral("indicator"), QStringLiteral("update"), QString::number(place.x()),
                 QString::number(place.y()), step.windowKey, step.hint, QString::number(mWalker.flags()),
                 QString::number(HostScenario::iconNumber(step.icon)) });
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
    mLink.send({ QStringLiteral("indicator"), QStringLiteral("updateXy"), QString::number(place.x()),
                 QString::number(place.y()) });
}

void HostSession::leaveStep()
{
    mPlayer.stepLeft();
    takePicture();
}

void HostSession::endTutorial()
{
    mLink.send({ QStringLiteral("stop") });
    if (mOptions.automatic)
        QTimer::singleShot(kFarewell, this, [this] { leave(0); });
}

void HostSession::sendState(const QString &state)
{
    mLink.send({ QStringLiteral("state"), state });
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

// Runs random edits on the program and on a plain reference, and compares the two after each.
//
//     tst_RandomSession [--seed N] [--steps N] [--seconds N]
//
// runs one session of that seed, or with --seconds session after session with the seeds from N up.
// A difference is told with the shortest list of operations that shows it.

#include "session/RandomSession.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QtTest>

namespace
{
QString unexpectedWarning;

/// The program's own messages are no concern here; any other warning is a fault.
void onMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !text.startsWith(QLatin1String("cpp/")))
        unexpectedWarning = text;
}

struct Failure
{
    int step = -1;
    QString text;
};

Failure runSession(const QVector<Operation> &operations)
{
    const QtMessageHandler previous = qInstallMessageHandler(onMessage);
    unexpectedWarning.clear();
    Failure failure;
    {
        RandomSession session;
        for (int i = 0; i < operations.size() && failure.text.isEmpty(); ++i)
            failure = { i, session.run(operations.at(i)) + unexpectedWarning };
        if (failure.text.isEmpty())
            failure = { operations.size(), session.backAndForth() + unexpectedWarning };
    }
    qInstallMessageHandler(previous);
    return failure;
}

/// The operations without all that the failure does not need.
QVector<Operation> shortest(QVector<Operation> operations)
{
    for (int length = operations.size() / 2; length > 0;) {
        bool shorter = false;
        for (int start = 0; start < operations.size();) {
            QVector<Operation> without = operations;
            without.remove(start, std::min(length, operations.size() - start));
            const Failure failure = runSession(without);
            if (failure.text.isEmpty()) {
                start += length;
                continue;
            }
            operations = without.mid(0, failure.step + 1);
            shorter = true;
        }
        if (length > 1 || !shorter)
            length /= 2;
    }
    return operations;
}

QString report(unsigned seed, const QVector<Operation> &operations, const Failure &failure)
{
    // First of all, since the search for the shortest list takes its time.
    qWarning("seed %u, step %d: %s", seed, failure.step, qPrintable(failure.text));
    const QVector<Operation> few = shortest(operations.mid(0, failure.step + 1));
    QString text = QStringLiteral("shortest list:\n");
    for (const Operation &operation : few)
        text += operation.text() + QLatin1Char('\n');
    return text + QStringLiteral("which ends with ") + runSession(few).text;
}

unsigned firstSeed = 1;
int steps = 600;
int sessionCount = 12;
int seconds = 0;
} // namespace

class RandomSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sessions();
};

void RandomSessionTest::sessions()
{
    QElapsedTimer running;
    running.start();
    int sessions = 0;
    while (seconds > 0 ? running.elapsed() < seconds * 1000LL : sessions < sessionCount) {
        const unsigned seed = firstSeed + static_cast<unsigned>(sessions++);
        const QVector<Operation> operations = randomOperations(seed, steps);
        const Failure failure = runSession(operations);
        // Longer than a message of Qt Test may be.
        if (!failure.text.isEmpty())
            qWarning("%s", qPrintable(report(seed, operations, failure)));
        QVERIFY2(failure.text.isEmpty(), "the program differs from the reference");
    }
    qInfo("%d sessions of %d operations", sessions, steps);
}

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({ { QStringLiteral("seed"), QStringLiteral("Seed of the first session."), QStringLiteral("N") },
                        { QStringLiteral("steps"), QStringLiteral("Operations of a session."), QStringLiteral("N") },
                        { QStringLiteral("seconds"), QStringLiteral("How long to go on."), QStringLiteral("N") } });
    parser.addHelpOption();
    parser.process(application);
    if (parser.isSet(QStringLiteral("seed"))) {
        firstSeed = parser.value(QStringLiteral("seed")).toUInt();
        sessionCount = 1;
    }
    if (parser.isSet(QStringLiteral("steps")))
        steps = parser.value(QStringLiteral("steps")).toInt();
    if (parser.isSet(QStringLiteral("seconds")))
        seconds = parser.value(QStringLiteral("seconds")).toInt();
    // A difference is searched for its cause, which takes longer than Qt Test allows a function.
    qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(24 * 60 * 60 * 1000));
    RandomSessionTest test;
    return QTest::qExec(&test, { application.arguments().first() });
}

#include "tst_RandomSession.moc"

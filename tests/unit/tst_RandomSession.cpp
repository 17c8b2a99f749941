// Runs random edits and steps of the history, and looks at the whole document after each. A fault
// is told with the shortest list of operations that shows it.
//
// SESSION_COUNT=N runs so many sessions, and SESSION_SEED=N begins with that seed.

#include "RandomSession.h"

#include <QElapsedTimer>
#include <QtTest>

#include <random>

namespace
{
QString unexpectedWarning;

/// The program's own messages are no concern here; any other warning is a fault.
void onMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !text.startsWith(QLatin1String("cpp/")))
        unexpectedWarning = text;
}

QVector<Operation> randomOperations(unsigned seed, int count)
{
    QStringList names;
    std::vector<int> weights;
    for (const RandomSession::Verb &verb : RandomSession::verbs()) {
        names.append(QLatin1String(verb.name));
        weights.push_back(verb.weight);
    }
    std::mt19937 random(seed);
    std::discrete_distribution<int> verbs(weights.begin(), weights.end());
    std::uniform_int_distribution<unsigned> numbers(0, 999);
    QVector<Operation> operations(count);
    for (Operation &operation : operations)
        operation = { verbs(random), numbers(random), numbers(random), numbers(random) };
    // At last all that is open is closed, and it goes back as far as the history reaches, and forth.
    for (const char *verb : { "endSequence", "undo", "redo" })
        operations += QVector<Operation>(20, { names.indexOf(QLatin1String(verb)), 0, 0, 0 });
    return operations;
}

/// What went wrong, or nothing. The operations are cut after the one that showed it.
QString runSession(QVector<Operation> &operations)
{
    const QtMessageHandler previous = qInstallMessageHandler(onMessage);
    unexpectedWarning.clear();
    QString wrong;
    {
        RandomSession session;
        for (int i = 0; i < operations.size() && wrong.isEmpty(); ++i) {
            wrong = session.run(operations.at(i)) + unexpectedWarning;
            if (!wrong.isEmpty())
                operations.resize(i + 1);
        }
    }
    qInstallMessageHandler(previous);
    return wrong;
}

/// The operations without all that the fault does not need, as text.
QString shortest(QVector<Operation> operations)
{
    for (int length = operations.size() / 2; length > 0; length /= 2) {
        for (int start = 0; start < operations.size();) {
            QVector<Operation> fewer = operations;
            fewer.remove(start, qMin(length, operations.size() - start));
            if (runSession(fewer).isEmpty())
                start += length;
            else
                operations = fewer;
        }
    }
    QString text;
    for (const Operation &op : qAsConst(operations)) {
        const char *verb = RandomSession::verbs()[static_cast<std::size_t>(op.verb)].name;
        text += QStringLiteral("%1 %2 %3 %4\n").arg(QLatin1String(verb)).arg(op.a).arg(op.b).arg(op.c);
    }
    return text + QStringLiteral("which ends with ") + runSession(operations);
}
} // namespace

class RandomSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sessions();
};

void RandomSessionTest::sessions()
{
    const int count = qEnvironmentVariableIntValue("SESSION_COUNT");
    const int first = qEnvironmentVariableIntValue("SESSION_SEED");
    for (int seed = first; seed < first + (count ? count : 12); ++seed) {
        QVector<Operation> operations = randomOperations(static_cast<unsigned>(seed), 600);
        const QString wrong = runSession(operations);
        // Longer than a message of Qt Test may be.
        if (!wrong.isEmpty())
            qWarning("seed %d: %s\n%s", seed, qPrintable(wrong), qPrintable(shortest(operations)));
        QVERIFY2(wrong.isEmpty(), "the document or its history went wrong");
    }
}

QTEST_MAIN(RandomSessionTest)
#include "tst_RandomSession.moc"

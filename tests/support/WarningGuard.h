#pragma once

#include <QtTest>

#include <algorithm>

/// Makes a test fail for a warning that it did not announce, and for one that it announced and that
/// did not come. Debug lines are dropped. It begins in init() and ends in cleanup().
class WarningGuard
{
public:
    void begin()
    {
        mExpected.clear();
        mUnexpected.clear();
        sCurrent = this;
        mPrevious = qInstallMessageHandler(handle);
    }

    void end()
    {
        qInstallMessageHandler(mPrevious);
        if (!mUnexpected.isEmpty())
            QTest::qFail(qPrintable(QLatin1String("unexpected: ") + mUnexpected.first()), __FILE__, __LINE__);
        else if (!mExpected.isEmpty())
            QTest::qFail(qPrintable(QLatin1String("not warned of: ") + mExpected.first()), __FILE__, __LINE__);
    }

    /// The next warning that holds this text is expected; each call stands for one warning.
    void expect(const QString &part, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            mExpected.append(part);
    }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        // The offscreen platform says this of each window that is raised, and the toolkit this of one
        // that goes during an animation.
        if (type == QtDebugMsg || message.startsWith(QLatin1String("This plugin does not support"))
            || message.startsWith(QLatin1String("QUnifiedTimer::stopAnimationDriver")))
            return;
        if (type == QtWarningMsg) {
            const auto isExpected = [&message](const QString &part) { return message.contains(part); };
            QStringList &expected = sCurrent->mExpected;
            const auto found = std::find_if(expected.begin(), expected.end(), isExpected);
            if (found != expected.end()) {
                expected.erase(found);
                return;
            }
            sCurrent->mUnexpected.append(message);
        }
        sCurrent->mPrevious(type, context, message);
    }

    static inline WarningGuard *sCurrent = nullptr;
    QStringList mExpected;
    QStringList mUnexpected;
    QtMessageHandler mPrevious = nullptr;
};

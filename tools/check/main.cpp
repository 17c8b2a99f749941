#include "check/ProblemText.h"
#include "check/TutorialFiles.h"
#include "CheckOptions.h"

#include <QApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTranslator>

#include <algorithm>
#include <cstdio>

namespace
{
constexpr int kProblems = 1;
constexpr int kUnreadable = 2;

CheckOptions readCommandLine(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return parseOptions(QCoreApplication::arguments());
}

void print(const QString &text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
}

QString translationsOf(const QString &file, const CheckOptions &options)
{
    return options.translations.isEmpty() ? TutorialFiles::translationsOf(file) : options.translations;
}

/// Reads and reports all files. The result is the exit code.
int run(const CheckOptions &options)
{
    if (!options.translations.isEmpty() && !QFileInfo(options.translations).isDir()) {
        std::fprintf(stderr, "trelvane-check: no folder: %s\n", qPrintable(options.translations));
        return kUnreadable;
    }
    int result = 0;
    QJsonArray all;
    for (const QString &file : options.files) {
        TutorialFiles tutorial;
        const QString unreadable = tutorial.read(file, translationsOf(file, options));
        if (!unreadable.isEmpty()) {
            std::fprintf(stderr, "trelvane-check: can't be read: %s\n", qPrintable(unreadable));
            result = kUnreadable;
            continue;
        }
        tutorial.measureHints();
        const QVector<Problem> problems = tutorial.problems();
        for (const Problem &problem : problems) {
            if (options.json)
                all.append(ProblemText::json(problem));
            else
                print(ProblemText::line(problem));
            if (problem.severity != Problem::Severity::Remark)
                result = std::max(result, kProblems);
        }
    }
    if (options.json)
        print(QString::fromUtf8(QJsonDocument(all).toJson()).trimmed());
    return result;
}
} // namespace

int main(int argc, char **argv)
{
    const CheckOptions options = readCommandLine(argc, argv);
    if (!options.help.isEmpty()) {
        std::fputs(qPrintable(options.help), stdout);
        return 0;
    }
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "trelvane-check: %s Try --help.\n", qPrintable(options.error));
        return kUnreadable;
    }

    // The log is for those who look for a fault of the program.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    // Hints are laid out, but no window is shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QTranslator translator;
    if (translator.load(options.locale, QStringLiteral(":/translations")))
        QCoreApplication::installTranslator(&translator);
    return run(options);
}

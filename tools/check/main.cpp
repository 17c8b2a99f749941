#include "check/MapPicture.h"
#include "check/ProblemText.h"
#include "check/StepGraph.h"
#include "check/TutorialFiles.h"
#include "check/TutorialMap.h"
#include "check/Walk.h"
#include "check/WalkReport.h"
#include "CheckOptions.h"
#include "tool/DataSupport.h"
#include "Translators.h"

#include <QApplication>
#include <QFileInfo>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSysInfo>

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

/// That of a learner's screen: the toolkit's own on X11, where no desktop has set another, at 96 dots per inch. Without
/// a display the toolkit has a larger one.
QFont guidanceFont()
{
    QFont font(QStringLiteral("Sans Serif"));
    font.setPixelSize(12);
    return font;
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

/// Writes the map of a tutorial. The result is empty, or tells what went wrong.
QString draw(const TutorialFiles &tutorial, const StepGraph &graph, const Walk &walk, const QVector<Problem> &problems,
             const QString &title, const QString &file)
{
    const QString dot = TutorialMap::dot(*tutorial.subject().document, graph, walk, problems, title);
    QString error;
    const QByteArray bytes = file.endsWith(QLatin1String(".dot")) ? dot.toUtf8() : MapPicture::svg(dot, error);
    if (error.isEmpty() && !DataSupport::writeFile(file, bytes))
        error = file;
    return error;
}

/// Reads and reports all files. The result is the exit code.
int run(const CheckOptions &options)
{
    if (!options.translations.isEmpty() && !TutorialFiles::hasTranslations(options.translations)) {
        std::fprintf(stderr, "trelvane-check: no translations: %s\n", qPrintable(options.translations));
        return kUnreadable;
    }
    int result = 0;
    QJsonArray all;
    QJsonArray walks;
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
        const StepGraph graph(*tutorial.subject().document);
        const Walk walk(graph);
        if (options.walk && options.json) {
            QJsonObject report = WalkReport::json(graph, walk);
            report.insert(QStringLiteral("file"), file);
            walks.append(report);
        } else if (options.walk) {
            print(file + QLatin1String(":\n") + WalkReport::text(graph, walk).trimmed());
        }
        // What can't be read must not draw over a good map.
        if (options.map.isEmpty() || graph.steps().isEmpty())
            continue;
        const QString error = draw(tutorial, graph, walk, problems, QFileInfo(file).completeBaseName(), options.map);
        if (!error.isEmpty()) {
            std::fprintf(stderr, "trelvane-check: the map can't be written: %s\n", qPrintable(error));
            result = kUnreadable;
        }
    }
    if (options.json) {
        const QJsonDocument document = options.walk
            ? QJsonDocument(QJsonObject{ { QStringLiteral("problems"), all }, { QStringLiteral("walks"), walks } })
            : QJsonDocument(all);
        print(QString::fromUtf8(document.toJson()).trimmed());
    }
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
    // Hints are laid out, but no window is shown. Windows has a display in any case, and the fonts of that.
    const bool isOffscreen = QSysInfo::kernelType() != QLatin1String("winnt");
    if (isOffscreen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (isOffscreen)
        QApplication::setFont(guidanceFont());
    installTranslators(application, options.language);
    const int result = run(options);
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return result;
    std::fputs("trelvane-check: the output can't be written.\n", stderr);
    return kUnreadable;
}

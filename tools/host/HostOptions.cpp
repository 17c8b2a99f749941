#include "HostOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{
const QString kStandardTutorial = QStringLiteral("TutorialSideViewStep0");
const QString kStandardLocale = QStringLiteral("-");

QCommandLineOption option(const char *name, const char *description, const char *valueName = "")
{
    return QCommandLineOption(QLatin1String(name), QLatin1String(description), QLatin1String(valueName));
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("A stand-in for the host editor: a little drawing editor that starts Trelvane, walks a "
                       "tutorial with it and prints every message in both directions (\"-->\" to the program, "
                       "\"<--\" from it)."));
    parser.addOptions({
        option("help", "Show this help."),
        option("suffix", "Listen on the local server qelm<suffix>. Default: a fresh one.", "suffix"),
        option("program", "The program to start. Default: trelvane beside this executable.", "path"),
        option("author", "Start trelvane-author, the authoring mode, instead."),
        option("documents",
               "With --author: work in the folder Trelvane of the user's documents, which begins with "
               "copies of the installed tutorials. Default: the current folder."),
        option("no-program", "Start no program, wait for one that is started by hand."),
        option("program-log", "Pass the program's own log on to standard error."),
        option("event-log", "Tell the program what the user does. --author implies it."),
        option("locale", "Language of the tutorial: ja_JP or en_US. Default: that of the system.", "locale"),
        option("language", "Language of the authoring mode's own texts: ja or en. Goes with --author.", "language"),
        option("tutorial", "The tutorial to play. Default: TutorialSideViewStep0; with --author none.", "name"),
        option("auto", "Play the tutorial without a user, then leave."),
        option("answer", "What --auto answers to questions: yes, no, or both (no first, then yes). Default: yes.",
               "answer"),
        option("delay", "Milliseconds between the steps of --auto. Default: 1200.", "ms"),
        option("screenshots", "Put a picture of the screen at each step into this folder.", "folder"),
        option("exit-after", "Leave with exit code 1 after that many seconds.", "seconds"),
    });
}

int readNumber(const QCommandLineParser &parser, const QString &name, int standard, HostOptions &options)
{
    if (!parser.isSet(name))
        return standard;
    bool valid = false;
    const int number = parser.value(name).toInt(&valid);
    if (!valid || number < 0)
        options.error = QStringLiteral("--%1 takes a number, not \"%2\".").arg(name, parser.value(name));
    return number;
}

void readAnswers(const QCommandLineParser &parser, HostOptions &options)
{
    if (!parser.isSet(QStringLiteral("answer")))
        return;
    const QString answer = parser.value(QStringLiteral("answer"));
    if (answer == QLatin1String("yes"))
        options.answers = AnswerPolicy::Yes;
    else if (answer == QLatin1String("no"))
        options.answers = AnswerPolicy::No;
    else if (answer == QLatin1String("both"))
        options.answers = AnswerPolicy::Both;
    else
        options.error = QStringLiteral("--answer takes yes, no or both, not \"%1\".").arg(answer);
}

void readProgram(const QCommandLineParser &parser, const QString &folder, HostOptions &options)
{
    const bool author = parser.isSet(QStringLiteral("author"));
    options.program = parser.value(QStringLiteral("program"));
    options.inDocuments = parser.isSet(QStringLiteral("documents"));
    if (options.inDocuments && !author)
        options.error = QStringLiteral("--documents goes with --author.");
    if (parser.isSet(QStringLiteral("no-program"))) {
        if (author || !options.program.isEmpty())
            options.error = QStringLiteral("--no-program goes with neither --program nor --author.");
        return;
    }
    if (options.program.isEmpty())
        options.program = folder + (author ? QStringLiteral("/trelvane-author") : QStringLiteral("/trelvane"));
    else if (author)
        options.error = QStringLiteral("--author and --program name two programs; give one of them.");
    else if (!QFileInfo::exists(options.program))
        options.error = QStringLiteral("There is no program \"%1\".").arg(options.program);
}
} // namespace

HostOptions parseOptions(const QStringList &arguments)
{
    HostOptions options;
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments)) {
        options.error = parser.errorText();
        return options;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        options.help = parser.helpText();
        return options;
    }
    if (!parser.positionalArguments().isEmpty())
        options.error = QStringLiteral("Unknown argument \"%1\".").arg(parser.positionalArguments().constFirst());

    readProgram(parser, QFileInfo(arguments.constFirst()).absolutePath(), options);
    readAnswers(parser, options);
    options.delay = readNumber(parser, QStringLiteral("delay"), options.delay, options);
    options.exitAfter = readNumber(parser, QStringLiteral("exit-after"), options.exitAfter, options);
    options.programLog = parser.isSet(QStringLiteral("program-log"));
    options.eventLog = parser.isSet(QStringLiteral("event-log")) || parser.isSet(QStringLiteral("author"));
    options.automatic = parser.isSet(QStringLiteral("auto"));
    options.pictureFolder = parser.value(QStringLiteral("screenshots"));

    options.suffix = parser.value(QStringLiteral("suffix"));
    if (!parser.isSet(QStringLiteral("suffix")))
        options.suffix = QStringLiteral("-host-%1").arg(QCoreApplication::applicationPid());
    else if (!QRegularExpression(QStringLiteral("^[A-Za-z0-9._-]+$")).match(options.suffix).hasMatch())
        options.error =
            QStringLiteral("--suffix takes letters, digits, dots and dashes, not \"%1\".").arg(options.suffix);

    options.locale = parser.isSet(QStringLiteral("locale")) ? parser.value(QStringLiteral("locale")) : kStandardLocale;
    if (parser.isSet(QStringLiteral("locale")) && options.locale != QLatin1String("ja_JP")
        && options.locale != QLatin1String("en_US"))
        options.error = QStringLiteral("--locale takes ja_JP or en_US, not \"%1\".").arg(options.locale);

    options.language = parser.value(QStringLiteral("language"));
    if (parser.isSet(QStringLiteral("language")) && !parser.isSet(QStringLiteral("author")))
        options.error = QStringLiteral("--language goes with --author.");
    else if (parser.isSet(QStringLiteral("language"))
             && !QStringList(
                     { QStringLiteral("ja"), QStringLiteral("en"), QStringLiteral("ja_JP"), QStringLiteral("en_US") })
                     .contains(options.language))
        options.error = QStringLiteral("--language takes ja or en, not \"%1\".").arg(options.language);

    const bool ownTutorial = parser.isSet(QStringLiteral("author"));
    options.tutorial = parser.value(QStringLiteral("tutorial"));
    if (!parser.isSet(QStringLiteral("tutorial")) && !ownTutorial)
        options.tutorial = kStandardTutorial;
    return options;
}

#include "CheckOptions.h"

#include "SystemService/InterfaceTranslator.h"

#include <QCommandLineParser>
#include <QLocale>

namespace
{
QCommandLineOption option(const char *name, const char *description, const char *valueName = "")
{
    return QCommandLineOption(QLatin1String(name), QLatin1String(description), QLatin1String(valueName));
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Looks for what a learner would stumble over in tutorials, and prints a line for each:\n"
                       "file:line: severity: what is wrong and what to do [rule].\n\n"
                       "Exit code: 0 with nothing but remarks, 1 with problems, 2 for a file that can't be opened."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("Scenario files, such as qml/Tutorial/X.js."),
                                 QStringLiteral("FILE..."));
    parser.addOptions({
        option("help", "Show this help."),
        option(
            "translations",
            "The folder of ja_JP.ts and en_US.ts. Default: the folder \"translations\" two levels above a file's own, "
            "if there is one.",
            "dir"),
        option("json", "Print one JSON array of all problems; with --walk an object of \"problems\" and \"walks\"."),
        option("walk", "Also tell of the ways through each tutorial: ends, the shortest way to each, the longest one."),
        option("map",
               "Also draw the tutorial into that file, as SVG by Graphviz, or as Graphviz text if its name ends in "
               ".dot.",
               "file"),
        option("language", "Language of the texts: ja or en. Default: that of the system.", "language"),
    });
}

/// A slip must not draw over a tutorial or its translations.
bool isPicture(const QString &file)
{
    return file.endsWith(QLatin1String(".svg")) || file.endsWith(QLatin1String(".dot"));
}

QString systemLanguage()
{
    return QLocale::system().language() == QLocale::Japanese ? QStringLiteral("ja") : QStringLiteral("en");
}
} // namespace

CheckOptions parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    CheckOptions options;
    if (!parser.parse(arguments)) {
        options.error = parser.errorText();
        return options;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        options.help = parser.helpText();
        return options;
    }
    options.files = parser.positionalArguments();
    options.translations = parser.value(QStringLiteral("translations"));
    options.json = parser.isSet(QStringLiteral("json"));
    options.walk = parser.isSet(QStringLiteral("walk"));
    options.map = parser.value(QStringLiteral("map"));
    const QString language =
        parser.isSet(QStringLiteral("language")) ? parser.value(QStringLiteral("language")) : systemLanguage();
    options.language = InterfaceTranslator::languageOf(language);
    if (options.language.isEmpty())
        options.error = QStringLiteral("--language takes ja or en, not \"%1\".").arg(language);
    else if (options.files.isEmpty())
        options.error = QStringLiteral("No file is named.");
    else if (parser.isSet(QStringLiteral("map")) && (options.map.isEmpty() || options.files.size() > 1))
        options.error = QStringLiteral("--map takes the name of a file, for the map of one tutorial.");
    else if (!options.map.isEmpty() && !isPicture(options.map))
        options.error = QStringLiteral("--map takes a name that ends in .svg or .dot.");
    return options;
}

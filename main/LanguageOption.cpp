#include "LanguageOption.h"

#include "SystemService/InterfaceTranslator.h"

LanguageOption takeLanguageOption(int &argc, char **argv)
{
    const QByteArray name("--language");
    LanguageOption option;
    int left = 0;
    for (int i = 0; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (i == 0 || (argument != name && !argument.startsWith(name + '='))) {
            argv[left++] = argv[i];
            continue;
        }
        const QString value = QString::fromLocal8Bit(argument == name ? QByteArray(++i < argc ? argv[i] : "")
                                                                      : argument.mid(name.size() + 1));
        option.language = InterfaceTranslator::languageOf(value);
        if (option.language.isEmpty())
            option.error = QStringLiteral("--language takes ja or en, not \"%1\".").arg(value);
    }
    argc = left;
    argv[argc] = nullptr;
    return option;
}

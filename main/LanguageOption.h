#pragma once

#include <QString>

/// What the command line says of the language of the program's own texts.
struct LanguageOption
{
    QString language; ///< one of InterfaceTranslator::languages(); empty where nothing is said
    QString error; ///< what is wrong, as a sentence
};

/// Takes "--language <name>" out of the arguments, wherever it stands: what is left is for the link.
LanguageOption takeLanguageOption(int &argc, char **argv);

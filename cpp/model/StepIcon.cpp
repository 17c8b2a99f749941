#include "model/StepIcon.h"

namespace
{
struct Icon
{
    const char *name;
    const char *file;
};

const Icon kIcons[] = {
    { "click", "click.png" },
    { "doubleClick", "double_click.png" },
    { "rightClick", "right_click.png" },
    { "eye", "eye.png" },
    { "wait", "wait.png" },
    { "keyboard", "keyboard.png" },
};

QStringList readNames()
{
    QStringList names;
    for (const Icon &icon : kIcons)
        names.append(QLatin1String(icon.name));
    return names;
}
} // namespace

const QStringList &StepIcon::names()
{
    static const QStringList names = readNames();
    return names;
}

QString StepIcon::picture(int number)
{
    if (number < 0 || number >= names().size())
        return QString();
    return QStringLiteral(":/resource/png/%1").arg(QLatin1String(kIcons[number].file));
}

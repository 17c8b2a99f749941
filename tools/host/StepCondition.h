#pragma once

#include <QString>

/// Something that happened in the host editor, in the words of the conditions: a kind, the control,
/// window, menu or action that it happened to, and the value that it has now.
struct HostEvent
{
    QString kind;
    QString key;
    QString value;
};

/// What ends a step.
///
///     click                          the Next button
///     click,<control>                a click on that control
///     yesNo                          the Yes or No button
///     wait,<milliseconds>
///     action,<name>                  a menu entry or toolbar button was triggered
///     windowState,<window>,show|hide
///     popup,<menu>                   a menu was opened
///     pressed,<control>              the mouse button went down on it
///     textLength,<control>,<n>       at least n characters were typed
///     list,<control>,<row>           that row was selected
///     comboBox,<control>,<index>     that entry was chosen
///     checked,<control>,true|false
///     spinBox,<control>,<value>
///     mouseEvent,<control>,drag|doubleClick|rightClick
struct StepCondition
{
    enum class Waits { ForNext, ForAnswer, ForTime, ForEvent };

    Waits waits = Waits::ForNext;
    QString kind;
    QString key;
    QString value;
    /// False for a text that is none of the above. It waits for Next, so that nobody gets stuck.
    bool understood = true;

    int milliseconds() const { return value.toInt(); }
};

StepCondition parseCondition(const QString &text);

bool isMetBy(const StepCondition &condition, const HostEvent &event);

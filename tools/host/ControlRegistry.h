#pragma once

#include "StepCondition.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QRect>

#include <functional>

class QWidget;

/// The windows and controls of the editor under their keys: where each stands on the screen, what
/// state it is in, and what happens to it.
class ControlRegistry : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// A part of a widget, in the widget's coordinates.
    using Area = std::function<QRect()>;
    using State = std::function<QString()>;

    /// A whole window or control. A window is watched for its showing and hiding, a control for
    /// presses and clicks.
    void add(const QString &key, QWidget *widget);
    /// A part of a widget that is no widget itself, such as a menu's title. A new one of the same
    /// key takes the place of the old one.
    void addArea(const QString &key, QWidget *widget, const Area &area);

    /// What conditions of that kind compare for the key. report() is to be called at each change.
    void addState(const QString &kind, const QString &key, const State &state);

    /// The place on the screen; an invalid rectangle for an unknown key and for what isn't shown.
    QRect screenRect(const QString &key) const;
    /// The widget, for an area the one that it belongs to; null for an unknown key.
    QWidget *widget(const QString &key) const;
    QStringList keys() const { return mControls.keys(); }

    /// Whether the state that the condition waits for is there already.
    bool holds(const StepCondition &condition) const;

    /// Tells that the state of a key has changed, or that something has happened to it.
    void report(const QString &kind, const QString &key);
    void report(const QString &kind, const QString &key, const QString &value);

Q_SIGNALS:
    void happened(const HostEvent &event);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct Control
    {
        QPointer<QWidget> widget;
        Area area;
    };

    QMap<QString, Control> mControls;
    // The windows and controls that are watched, with all widgets inside the controls.
    QHash<QObject *, QString> mKeyByObject;
    QMap<QPair<QString, QString>, State> mStates;
};

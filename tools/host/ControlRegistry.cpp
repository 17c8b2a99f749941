#include "ControlRegistry.h"

#include <QMouseEvent>
#include <QWidget>

namespace
{
const QString kShown = QStringLiteral("show");
const QString kHidden = QStringLiteral("hide");
} // namespace

void ControlRegistry::add(const QString &key, QWidget *widget)
{
    addArea(key, widget, [widget] { return widget->rect(); });
    if (widget->isWindow()) {
        addState(QStringLiteral("windowState"), key, [widget] { return widget->isVisible() ? kShown : kHidden; });
        mKeyByObject.insert(widget, key);
        widget->installEventFilter(this);
        return;
    }
    // The mouse meets the innermost widget: the viewport of a list, the line edit of a spin box.
    QList<QWidget *> parts = widget->findChildren<QWidget *>();
    parts.append(widget);
    for (QWidget *part : parts) {
        mKeyByObject.insert(part, key);
        part->installEventFilter(this);
    }
}

void ControlRegistry::addArea(const QString &key, QWidget *widget, const Area &area)
{
    mControls.insert(key, { widget, area });
}

void ControlRegistry::addState(const QString &kind, const QString &key, const State &state)
{
    mStates.insert({ kind, key }, state);
}

QRect ControlRegistry::screenRect(const QString &key) const
{
    const auto control = mControls.constFind(key);
    if (control == mControls.constEnd() || !control->widget || !control->widget->isVisible())
        return QRect();
    const QRect area = control->area();
    return area.isValid() ? QRect(control->widget->mapToGlobal(area.topLeft()), area.size()) : QRect();
}

QWidget *ControlRegistry::widget(const QString &key) const
{
    return mControls.value(key).widget;
}

bool ControlRegistry::holds(const StepCondition &condition) const
{
    const auto state = mStates.constFind({ condition.kind, condition.key });
    return state != mStates.constEnd() && isMetBy(condition, { condition.kind, condition.key, (*state)() });
}

void ControlRegistry::report(const QString &kind, const QString &key)
{
    const State state = mStates.value({ kind, key });
    report(kind, key, state ? state() : QString());
}

void ControlRegistry::report(const QString &kind, const QString &key, const QString &value)
{
    Q_EMIT happened({ kind, key, value });
}

bool ControlRegistry::eventFilter(QObject *object, QEvent *event)
{
    const auto key = mKeyByObject.constFind(object);
    if (key == mKeyByObject.constEnd())
        return QObject::eventFilter(object, event);
    auto *widget = static_cast<QWidget *>(object);
    if (widget->isWindow()) {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            report(QStringLiteral("windowState"), *key, event->type() == QEvent::Show ? kShown : kHidden);
    } else if (event->type() == QEvent::MouseButtonPress) {
        report(QStringLiteral("pressed"), *key);
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton && widget->rect().contains(mouse->pos()))
            report(QStringLiteral("click"), *key);
    }
    return QObject::eventFilter(object, event);
}

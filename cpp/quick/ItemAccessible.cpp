#include "quick/ItemAccessible.h"

#include "quick/MenuEntryFollower.h"
#include "quick/ModalGuard.h"
#include "quick/TextAccessible.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>

namespace
{
QAccessibleInterface *makeInterface(const QString &key, QObject *object)
{
    auto *item = key == QLatin1String("QQuickItem") ? qobject_cast<QQuickItem *>(object) : nullptr;
    if (!item || !ChildrenWithRole::attachedOf(item))
        return nullptr;
    if (item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit"))
        return new TextAccessible(item);
    MenuEntryFollower::follow(item);
    return new ItemAccessible(item);
}

/// What can be seen of an item, in the window: not what is outside of that, or of what it is scrolled in.
QRectF seenPart(const QQuickItem &item)
{
    QRectF seen = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    const QQuickWindow *window = item.window();
    seen &= QRectF(QPointF(), window ? window->size() : QSize());
    for (const QQuickItem *above = item.parentItem(); above && !seen.isEmpty(); above = above->parentItem()) {
        if (above->clip())
            seen &= above->mapRectToScene(QRectF(0, 0, above->width(), above->height()));
    }
    return seen;
}

/// The actions that a control has by its role.
QStringList usualActions(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::MenuItem:
        return { QAccessibleActionInterface::pressAction() };
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
        return { QAccessibleActionInterface::toggleAction(), QAccessibleActionInterface::pressAction() };
    case QAccessible::SpinBox:
    case QAccessible::Slider:
        return { QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction() };
    default:
        return {};
    }
}

/// Whether the keys go to the item, or to a part of it that has no role of its own.
bool hasKeys(const QQuickItem &item)
{
    const QQuickItem *focused = item.hasActiveFocus() ? item.window()->activeFocusItem() : nullptr;
    while (focused && focused != &item && !ChildrenWithRole::attachedOf(focused))
        focused = focused->parentItem();
    return focused == &item;
}

QByteArray functionOf(const QString &action)
{
    return "accessible" + action.toLatin1() + "Action";
}
} // namespace

void ItemAccessible::install(QQmlEngine &engine)
{
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.9\nItem {}", QUrl());
    delete component.create();
    QAccessible::installFactory(makeInterface);
}

ItemAccessible::ItemAccessible(QQuickItem *item) : QAccessibleObject(item), mChildren(*item) { }

QQuickItem *ItemAccessible::item() const
{
    return static_cast<QQuickItem *>(object());
}

QVariant ItemAccessible::attached(const char *property) const
{
    const QObject *attached = ChildrenWithRole::attachedOf(item());
    return attached ? attached->property(property) : QVariant();
}

QWindow *ItemAccessible::window() const
{
    return item()->window();
}

QRect ItemAccessible::rect() const
{
    const QQuickWindow *window = item()->window();
    if (!window)
        return {};
    const QPointF place = item()->mapToScene(QPointF());
    return { window->mapToGlobal(place.toPoint()), QSizeF(item()->width(), item()->height()).toSize() };
}

QAccessibleInterface *ItemAccessible::parent() const
{
    QQuickItem *above = item()->parentItem();
    while (above && !ChildrenWithRole::attachedOf(above))
        above = above->parentItem();
    return QAccessible::queryAccessibleInterface(above ? static_cast<QObject *>(above) : item()->window());
}

const QVector<QPointer<QQuickItem>> &ItemAccessible::children() const
{
    return mChildren.items(role() == QAccessible::List || role() == QAccessible::Tree);
}

QAccessibleInterface *ItemAccessible::child(int index) const
{
    return QAccessible::queryAccessibleInterface(children().value(index).data());
}

QAccessibleInterface *ItemAccessible::childAt(int x, int y) const
{
    if (!item()->window())
        return nullptr;
    const QPointF place = item()->window()->mapFromGlobal(QPoint(x, y));
    const QVector<QPointer<QQuickItem>> items = children();
    // The last one is drawn on top.
    for (auto it = items.crbegin(); it != items.crend(); ++it) {
        QQuickItem *each = it->data();
        QAccessibleInterface *found = each && each->isVisible() ? QAccessible::queryAccessibleInterface(each) : nullptr;
        if (!found)
            continue;
        if (QAccessibleInterface *below = found->childAt(x, y))
            return below;
        if (seenPart(*each).contains(place))
            return found;
    }
    return nullptr;
}

int ItemAccessible::childCount() const
{
    return children().size();
}

int ItemAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    return children().indexOf(qobject_cast<QQuickItem *>(child->object()));
}

QAccessible::Role ItemAccessible::role() const
{
    const auto role = static_cast<QAccessible::Role>(attached("role").toInt());
    return role == QAccessible::NoRole ? QAccessible::Client : role;
}

bool ItemAccessible::isEnabled() const
{
    return item()->isEnabled() && !ModalGuard::isBlocked(item()->window());
}

bool ItemAccessible::isEditable() const
{
    return isEnabled() && !item()->property("readOnly").toBool();
}

QAccessible::State ItemAccessible::state() const
{
    const auto has = [this](const char *property) { return attached(property).toBool(); };
    QAccessible::State state;
    state.disabled = !isEnabled();
    state.invisible = !item()->window() || !item()->window()->isVisible() || !item()->isVisible();
    state.offscreen = seenPart(*item()).isEmpty();
    state.focusable =
        isEnabled() && (has("focusable") || item()->activeFocusOnTab() || role() == QAccessible::EditableText);
    state.focused = role() == QAccessible::MenuItem ? MenuEntryFollower::isCurrent(*item()) : hasKeys(*item());
    state.checkable = has("checkable");
    state.checked = has("checked");
    state.pressed = has("pressed");
    state.selectable = has("selectable");
    state.selected = has("selected");
    state.defaultButton = has("defaultButton");
    state.editable = has("editable") && isEditable();
    state.readOnly = has("readOnly");
    state.multiLine = has("multiLine");
    state.hasPopup = role() == QAccessible::ButtonMenu || role() == QAccessible::ComboBox;
    if (item()->property("accessibleExpandable").toBool()) {
        state.expandable = true;
        state.expanded = item()->property("accessibleExpanded").toBool();
        state.collapsed = !state.expanded;
    }
    return state;
}

QString ItemAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Description)
        return attached("description").toString();
    if (kind != QAccessible::Name)
        return {};
    // A field takes the name of its label, which ends with a colon.
    QString name = attached("name").toString().trimmed();
    if (name.endsWith(QLatin1Char(':')) || name.endsWith(QChar(0xff1a)))
        name.chop(1);
    return name.trimmed();
}

void *ItemAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    if (type == QAccessible::ValueInterface && (role() == QAccessible::SpinBox || role() == QAccessible::Slider))
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleObject::interface_cast(type);
}

bool ItemAccessible::hasAction(const QString &name) const
{
    const QByteArray signature = functionOf(name) + "()";
    return item()->metaObject()->indexOfMethod(signature.constData()) >= 0;
}

QStringList ItemAccessible::actionNames() const
{
    QStringList names = usualActions(role());
    for (const QString &name :
         { pressAction(), toggleAction(), showMenuAction(), increaseAction(), decreaseAction() }) {
        if (hasAction(name) && !names.contains(name))
            names.append(name);
    }
    if (state().focusable)
        names.append(setFocusAction());
    return names;
}

void ItemAccessible::doAction(const QString &name)
{
    if (!isEnabled() || !actionNames().contains(name))
        return;
    if (hasAction(name))
        QMetaObject::invokeMethod(item(), functionOf(name).constData());
    else if (name == setFocusAction())
        item()->forceActiveFocus(Qt::OtherFocusReason);
    else if (role() == QAccessible::CheckBox || role() == QAccessible::RadioButton)
        item()->setProperty("checked", role() == QAccessible::RadioButton || !item()->property("checked").toBool());
    else if (name == increaseAction() || name == decreaseAction())
        step(name == increaseAction() ? 1 : -1);
    else if (QObject *attached = ChildrenWithRole::attachedOf(item()))
        QMetaObject::invokeMethod(attached, "pressAction");
}

QStringList ItemAccessible::keyBindingsForAction(const QString &) const
{
    return {};
}

void ItemAccessible::step(int direction)
{
    setCurrentValue(currentValue().toDouble() + direction * minimumStepSize().toDouble());
}

QVariant ItemAccessible::currentValue() const
{
    return item()->property("value");
}

void ItemAccessible::setCurrentValue(const QVariant &value)
{
    if (!isEnabled())
        return;
    item()->setProperty("value", qBound(minimumValue().toDouble(), value.toDouble(), maximumValue().toDouble()));
    finishEditing();
}

QVariant ItemAccessible::maximumValue() const
{
    return item()->property("maximumValue");
}

QVariant ItemAccessible::minimumValue() const
{
    return item()->property("minimumValue");
}

QVariant ItemAccessible::minimumStepSize() const
{
    return item()->property("stepSize");
}

void ItemAccessible::finishEditing() const
{
    if (!item()->hasActiveFocus() && item()->metaObject()->indexOfSignal("editingFinished()") >= 0)
        QMetaObject::invokeMethod(item(), "editingFinished");
}

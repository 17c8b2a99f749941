#pragma once

#include "quick/ChildrenWithRole.h"

#include <QAccessibleObject>

class QQmlEngine;

/// What a screen reader meets of an item of the screens that has a role. It takes the place of the
/// toolkit's own interface, which knows no disabled control, no open row and no edit of a text.
///
/// An item says of itself, beside what the toolkit's attached properties offer:
/// - accessibleExpandable, accessibleExpanded: a row that can be opened, and whether it is open;
/// - accessible<Name>Action(): what an action does in place of what is usual for the role.
/// The rows of a list or a tree come from the top down, however the view keeps them.
class ItemAccessible : public QAccessibleObject, public QAccessibleActionInterface, public QAccessibleValueInterface
{
public:
    /// Once a process, before the screens are loaded: the toolkit's own comes with the engine's first
    /// import.
    static void install(QQmlEngine &engine);

    explicit ItemAccessible(QQuickItem *item);

    QWindow *window() const override;
    QRect rect() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    /// The innermost one of those that can be seen there, in pixels of the screen.
    QAccessibleInterface *childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    QQuickItem *item() const;
    QVariant attached(const char *property) const;
    /// Not while a question of another window waits for its answer.
    bool isEnabled() const;
    bool isEditable() const;
    /// Ends an edit where nobody is typing; a text that is being typed counts when that ends.
    void finishEditing() const;

private:
    const QVector<QPointer<QQuickItem>> &children() const;
    bool hasAction(const QString &name) const;
    void step(int direction);

    mutable ChildrenWithRole mChildren;
};

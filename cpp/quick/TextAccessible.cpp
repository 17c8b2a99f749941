#include "quick/TextAccessible.h"

#include <QQuickItem>
#include <QQuickWindow>

QString TextAccessible::content() const
{
    return item()->property("text").toString();
}

QAccessible::State TextAccessible::state() const
{
    QAccessible::State state = ItemAccessible::state();
    state.editable = isEditable();
    state.readOnly = item()->property("readOnly").toBool();
    state.multiLine = item()->inherits("QQuickTextEdit");
    state.selectableText = true;
    return state;
}

QString TextAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? content() : ItemAccessible::text(kind);
}

void TextAccessible::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
}

void *TextAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface && !item()->property("readOnly").toBool())
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return ItemAccessible::interface_cast(type);
}

QString TextAccessible::text(int start, int end) const
{
    const int from = qMax(0, start);
    return content().mid(from, end < 0 ? -1 : qMax(0, end - from));
}

int TextAccessible::characterCount() const
{
    return content().size();
}

int TextAccessible::cursorPosition() const
{
    return item()->property("cursorPosition").toInt();
}

void TextAccessible::setCursorPosition(int position)
{
    item()->setProperty("cursorPosition", qBound(0, position, characterCount()));
}

int TextAccessible::selectionCount() const
{
    return item()->property("selectionStart") == item()->property("selectionEnd") ? 0 : 1;
}

void TextAccessible::selection(int index, int *start, int *end) const
{
    *start = index == 0 ? item()->property("selectionStart").toInt() : 0;
    *end = index == 0 ? item()->property("selectionEnd").toInt() : 0;
}

void TextAccessible::addSelection(int start, int end)
{
    QMetaObject::invokeMethod(item(), "select", Q_ARG(int, start), Q_ARG(int, end));
}

void TextAccessible::removeSelection(int)
{
    QMetaObject::invokeMethod(item(), "deselect");
}

void TextAccessible::setSelection(int, int start, int end)
{
    addSelection(start, end);
}

QRect TextAccessible::characterRect(int offset) const
{
    QRectF place;
    QMetaObject::invokeMethod(item(), "positionToRectangle", Q_RETURN_ARG(QRectF, place), Q_ARG(int, offset));
    return { item()->window()->mapToGlobal(item()->mapRectToScene(place).topLeft().toPoint()), place.size().toSize() };
}

int TextAccessible::offsetAtPoint(const QPoint &point) const
{
    // A line of text offers no such call.
    if (!item()->inherits("QQuickTextEdit"))
        return -1;
    const QPointF place = item()->mapFromScene(item()->window()->mapFromGlobal(point));
    int offset = -1;
    QMetaObject::invokeMethod(item(), "positionAt", Q_RETURN_ARG(int, offset), Q_ARG(qreal, place.x()),
                              Q_ARG(qreal, place.y()));
    return offset;
}

void TextAccessible::scrollToSubstring(int start, int)
{
    setCursorPosition(start);
}

QString TextAccessible::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void TextAccessible::deleteText(int start, int end)
{
    replaceText(start, end, QString());
}

void TextAccessible::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void TextAccessible::replaceText(int start, int end, const QString &text)
{
    if (!isEditable())
        return;
    const int from = qBound(0, start, characterCount());
    const int to = end < 0 ? characterCount() : qBound(from, end, characterCount());
    // In one go: each change of a field may be a step of the history.
    item()->setProperty("text", content().replace(from, to - from, text));
    setCursorPosition(from + text.size());
    finishEditing();
}

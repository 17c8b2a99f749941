#include "Tutorial/guidance/Spoken.h"

#include "Tutorial/guidance/Announcement.h"
#include "Tutorial/guidance/StepSpeech.h"

#include <QAccessibleWidget>
#include <QWidget>
#include <QWindow>

namespace
{
QString textOf(const Speech &speech, QAccessible::Text kind)
{
    switch (kind) {
    case QAccessible::Name:
        return speech.name;
    case QAccessible::Description:
        return speech.description;
    default:
        return {};
    }
}

/// What speaks. Its window's interface owns it.
class Notification : public QAccessibleInterface
{
public:
    explicit Notification(QAccessibleInterface *window) : mWindow(window) { }

    bool isValid() const override { return mWindow->isValid(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return mWindow->window(); }
    QAccessibleInterface *parent() const override { return mWindow; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QRect rect() const override { return mWindow->rect(); }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return mWindow->state(); }
    QString text(QAccessible::Text kind) const override { return mWindow->text(kind); }
    void setText(QAccessible::Text, const QString &) override { }

private:
    QAccessibleInterface *mWindow;
};

class SpokenWindow : public QAccessibleWidget
{
public:
    explicit SpokenWindow(QWidget *window)
        : QAccessibleWidget(window)
        , mNotificationId(QAccessible::registerAccessibleInterface(new Notification(this)))
    { }
    ~SpokenWindow() override { QAccessible::deleteAccessibleInterface(mNotificationId); }

    QAccessible::Role role() const override
    {
        return spoken() ? spoken()->accessibleRole() : QAccessibleWidget::role();
    }
    QString text(QAccessible::Text kind) const override { return textOf(speech(), kind); }
    int childCount() const override { return speech().isEmpty() ? 0 : 1; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 && childCount() ? QAccessible::accessibleInterface(mNotificationId) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child == this->child(0) ? 0 : -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override { return rect().contains(x, y) ? child(0) : nullptr; }
    QAccessibleInterface *focusChild() const override { return nullptr; }

private:
    // None once the window is being destroyed.
    const Spoken *spoken() const { return dynamic_cast<const Spoken *>(object()); }
    Speech speech() const { return spoken() ? spoken()->speech() : Speech(); }

    QAccessible::Id mNotificationId;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    return dynamic_cast<Spoken *>(object) ? new SpokenWindow(static_cast<QWidget *>(object)) : nullptr;
}

void sendChange(QAccessibleInterface *changed, QAccessible::Event type)
{
    QAccessibleEvent event(changed, type);
    QAccessible::updateAccessibility(&event);
}
} // namespace

Spoken::Spoken()
{
    QAccessible::installFactory(makeInterface);
}

Spoken::~Spoken() = default;

void Spoken::announce(QWidget *window)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(window);
    QAccessibleInterface *notification = interface ? interface->child(0) : nullptr;
    if (!notification)
        return;
    // A screen reader keeps the texts that it has read until it hears that they are others.
    for (QAccessibleInterface *changed : { interface, notification }) {
        sendChange(changed, QAccessible::NameChanged);
        sendChange(changed, QAccessible::DescriptionChanged);
    }
    Announcement::send(notification);
}

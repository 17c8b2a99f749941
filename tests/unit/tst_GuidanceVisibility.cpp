#include "Tutorial/guidance/GuidanceVisibility.h"

#include <QtTest>

#include <functional>

namespace
{
/// Notes the orders, a letter each: b(egin), g(uidance), t(ooltip of the editor), l(og); a capital shows.
class Notes : public GuidanceVisibility::Stage
{
public:
    void begin() override { note('b'); }
    void setGuidanceVisible(bool visible) override { note(visible ? 'G' : 'g'); }
    void setEditorTooltipVisible(bool visible) override { note(visible ? 'T' : 't'); }
    void showLog() override { note('L'); }

    QByteArray mOrders;
    std::function<void()> mAfterAnOrder = [] {};

private:
    void note(char order)
    {
        mOrders.append(order);
        mAfterAnOrder();
    }
};

using Visibility = GuidanceVisibility;
const QMap<QByteArray, void (*)(Visibility &)> kEvents = {
    { "start", [](Visibility &visibility) { visibility.start(); } },
    { "stop", [](Visibility &visibility) { visibility.stop(); } },
    { "show", [](Visibility &visibility) { visibility.hostShown(); } },
    { "hide", [](Visibility &visibility) { visibility.hostHidden(); } },
    { "active", [](Visibility &visibility) { visibility.setApplicationActive(true); } },
    { "inactive", [](Visibility &visibility) { visibility.setApplicationActive(false); } },
    { "tick", [](Visibility &visibility) { visibility.tick(); } },
};

void send(Visibility &visibility, const QByteArray &events)
{
    for (const QByteArray &event : events.simplified().split(' '))
        kEvents[event](visibility);
}
} // namespace

class tst_GuidanceVisibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ordersByStateAndEvent();
    void followsWhatAnOrderChanges();
};

void tst_GuidanceVisibility::ordersByStateAndEvent()
{
    const QByteArrayList events = { "start", "stop", "show", "hide", "active", "inactive", "tick" };
    const struct
    {
        QByteArray state;
        QByteArrayList orders; // of each event and the tick after it
    } rows[] = {
        { "stop", { "b", "", "ggLg", "g", "g", "g", "" } },
        { "active", { "b", "", "ggLg", "g", "g", "g", "" } },
        { "hide tick", { "b", "", "ggLg", "g", "g", "g", "" } },
        { "active hide tick", { "b", "", "ggLg", "g", "g", "g", "" } },
        { "start", { "", "g", "gGTLGT", "gt", "GT", "GT", "" } },
        { "start active", { "", "g", "gGTLGT", "GT", "GT", "GT", "" } },
        { "start hide tick", { "", "g", "gGTLGT", "gt", "GT", "gt", "" } },
        { "start active hide tick", { "", "g", "gGTLGT", "GT", "GT", "gt", "" } },
        // With a delay that runs.
        { "start hide", { "gt", "gg", "gGTLGTGT", "gt", "GTGT", "gtgt", "gt" } },
        { "start show", { "LGT", "gLg", "gGTLGT", "Lgtgt", "GTLGT", "GTLGT", "LGT" } },
    };
    for (const auto &row : rows) {
        QByteArrayList orders;
        for (const QByteArray &event : events) {
            Notes notes;
            Visibility visibility(&notes);
            send(visibility, row.state);
            notes.mOrders.clear();
            send(visibility, event + " tick");
            orders.append(notes.mOrders);
        }
        QCOMPARE(QByteArray(row.state + ": " + orders.join(' ')), QByteArray(row.state + ": " + row.orders.join(' ')));
    }
}

// A window that is shown or hidden can change the activation at once.
void tst_GuidanceVisibility::followsWhatAnOrderChanges()
{
    const struct
    {
        const char *state;
        const char *event;
        const char *duringAnOrder;
        QByteArray orders;
    } rows[] = {
        { "start hide", "inactive", "active", "gtGT" },
        { "start hide", "active", "inactive", "GTgt" },
        { "start", "active", "stop", "Ggg" },
        { "start", "show", "inactive", "gGT" },
    };
    for (const auto &row : rows) {
        Notes notes;
        Visibility visibility(&notes);
        send(visibility, row.state);
        notes.mOrders.clear();
        notes.mAfterAnOrder = [&] { send(visibility, row.duringAnOrder); };
        send(visibility, row.event);
        QCOMPARE(notes.mOrders, row.orders);
    }
}

QTEST_APPLESS_MAIN(tst_GuidanceVisibility)

#include "tst_GuidanceVisibility.moc"

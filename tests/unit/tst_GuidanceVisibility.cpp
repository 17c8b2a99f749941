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
    for (const QByteArray &event : events.split(' '))
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
    // By the events that lead to a state, the orders of each of those events and of the tick after it.
    const QVector<QPair<QByteArray, QByteArrayList>> rows = {
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
        for (int i = 0; i < events.size(); ++i) {
            Notes notes;
            Visibility visibility(&notes);
            send(visibility, row.first);
            notes.mOrders.clear();
            send(visibility, events.at(i) + " tick");
            QVERIFY2(notes.mOrders == row.second.at(i), QByteArray(row.first + ", " + events.at(i)));
        }
    }
}

// A window that is shown or hidden can change the activation at once.
void tst_GuidanceVisibility::followsWhatAnOrderChanges()
{
    // The events that lead to a state, the event, what each of its orders brings with it, all orders.
    const QVector<QByteArrayList> rows = { { "start hide", "inactive", "active", "gtGT" },
                                           { "start hide", "active", "inactive", "GTgt" },
                                           { "start", "active", "stop", "Ggg" },
                                           { "start", "show", "inactive", "gGT" } };
    for (const QByteArrayList &row : rows) {
        Notes notes;
        Visibility visibility(&notes);
        send(visibility, row.at(0));
        notes.mOrders.clear();
        notes.mAfterAnOrder = [&] { send(visibility, row.at(2)); };
        send(visibility, row.at(1));
        QCOMPARE(notes.mOrders, row.at(3));
    }
}

QTEST_APPLESS_MAIN(tst_GuidanceVisibility)

#include "tst_GuidanceVisibility.moc"

#include "Tutorial/guidance/GuidanceVisibility.h"

#include <QtTest>

#include <functional>

namespace
{
/// Notes the orders, a letter each: b(egin), g(uidance), t(ooltip of the editor), l(og); capital is shown.
class Notes : public GuidanceVisibility::Stage
{
public:
    void begin() override { note('b'); }
    void setGuidanceVisible(bool visible) override { note(visible ? 'G' : 'g'); }
    void setEditorTooltipVisible(bool visible) override { note(visible ? 'T' : 't'); }
    void showLog() override { note('L'); }

    QByteArray mOrders;
    std::function<void()> mAfterAnOrder;

private:
    void note(char order)
    {
        mOrders.append(order);
        if (mAfterAnOrder)
            mAfterAnOrder();
    }
};

void send(GuidanceVisibility &visibility, const QByteArray &events)
{
    using Visibility = GuidanceVisibility;
    static const QHash<QByteArray, void (*)(Visibility &)> byName = {
        { "start", [](Visibility &v) { v.start(); } },
        { "stop", [](Visibility &v) { v.stop(); } },
        { "show", [](Visibility &v) { v.hostShown(); } },
        { "hide", [](Visibility &v) { v.hostHidden(); } },
        { "active", [](Visibility &v) { v.setApplicationActive(true); } },
        { "inactive", [](Visibility &v) { v.setApplicationActive(false); } },
        { "tick", [](Visibility &v) { v.tick(); } },
        { "", [](Visibility &) {} },
    };
    for (const QByteArray &name : events.split(' '))
        byName[name](visibility);
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
    const struct
    {
        const char *state;
        const char *event;
        const char *orders;
    } rows[] = {
        { "", "start", "b" },
        { "", "stop", "" },
        { "", "show", "gg" },
        { "", "hide", "" },
        { "", "tick", "" },
        { "", "active", "g" },
        { "show", "tick", "Lg" },
        { "start", "start", "" },
        { "start", "stop", "g" },
        { "start", "show", "gGT" },
        { "start", "hide", "" },
        { "start", "tick", "" },
        { "start", "active", "GT" },
        { "start", "inactive", "GT" },
        { "start show", "tick", "LGT" },
        { "start show tick", "tick", "" },
        { "start hide", "tick", "gt" },
        { "start hide", "inactive", "gt" },
        { "start hide active", "tick", "GT" },
        { "start hide tick", "tick", "" },
        { "start hide tick", "active", "GT" },
        { "start hide tick", "show", "gGT" },
        { "start active hide tick", "inactive", "gt" },
        { "start active hide tick", "show", "gGT" },
        { "start hide show", "tick", "LGTGT" },
        { "start show hide", "tick", "Lgtgt" },
        { "start hide active stop", "start", "b" },
        { "hide start", "tick", "gt" },
        { "hide start stop", "active", "g" },
    };
    for (const auto &row : rows) {
        Notes notes;
        GuidanceVisibility visibility(&notes);
        send(visibility, row.state);
        notes.mOrders.clear();
        send(visibility, row.event);
        const QByteArray where = QByteArray(row.state) + ", " + row.event + ": ";
        QCOMPARE(QByteArray(where + notes.mOrders), QByteArray(where + row.orders));
    }
}

// A window that is shown or hidden can change the activation at once.
void tst_GuidanceVisibility::followsWhatAnOrderChanges()
{
    const char *const rows[][3] = {
        // The hidden windows activate this process, the shown ones lose the activation.
        { "start hide", "active", "gtGT" },
        { "start active hide", "inactive", "GTgt" },
        { "start", "stop", "Ggg" },
    };
    for (const auto &row : rows) {
        Notes notes;
        GuidanceVisibility visibility(&notes);
        send(visibility, row[0]);
        notes.mOrders.clear();
        notes.mAfterAnOrder = [&] { send(visibility, row[1]); };
        visibility.update();
        QCOMPARE(notes.mOrders, QByteArray(row[2]));
    }

    // Between the hiding and the showing of one event nothing is shown.
    Notes notes;
    GuidanceVisibility visibility(&notes);
    send(visibility, "start");
    notes.mOrders.clear();
    notes.mAfterAnOrder = [&] { visibility.update(); };
    visibility.hostShown();
    QCOMPARE(notes.mOrders, QByteArray("gGT"));
}

QTEST_APPLESS_MAIN(tst_GuidanceVisibility)

#include "tst_GuidanceVisibility.moc"

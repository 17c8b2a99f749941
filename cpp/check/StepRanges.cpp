#include "check/StepRanges.h"

#include "check/StepGraph.h"

QString StepRanges::text(const StepGraph &graph, const QVector<int> &steps, const QString &separator, int limit)
{
    const auto name = [&](int i) -> QString { return QLatin1Char('#') + QString::number(graph.steps().at(i).id); };
    QString text;
    int count = 0;
    for (int i = 0; i < steps.size(); ++count) {
        if (limit > 0 && count == limit)
            return text + separator + QChar(0x2026);
        const int first = steps.at(i);
        int last = first;
        while (++i < steps.size() && steps.at(i) == graph.shownAfter(last))
            last = steps.at(i);
        if (count > 0)
            text += separator;
        text += name(first);
        if (last != first)
            text += QChar(0x2013) + name(last);
    }
    return text;
}

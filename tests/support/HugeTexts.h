#pragma once

#include <QTest>

/// Rows of texts whose whole layout would take seconds, or no end.
inline void addHugeTexts()
{
    QTest::addColumn<QString>("text");
    const int size = 5 << 20;
    QTest::newRow("one word") << QString(size, QLatin1Char('x'));
    QTest::newRow("lines") << QString(size, QLatin1Char('\n'));
    QTest::newRow("backslashes") << QString(size, QLatin1Char('\\'));
    QTest::newRow("pairs of surrogates") << QString::fromUtf8("a") + QString::fromUtf8("\U0001F600").repeated(size / 2);
    QTest::newRow("markup") << QStringLiteral("<b>").repeated(size / 3);
    QTest::newRow("tables in tables") << QStringLiteral("<table><tr><td>").repeated(200);
}

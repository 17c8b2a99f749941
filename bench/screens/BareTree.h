#pragma once

#include "Measurement.h"

#include <QQmlEngine>
#include <QQuickWindow>
#include <QStandardItemModel>

#include <memory>

/// The toolkit's own tree view over a plain model of as many rows: what no screen of trees can beat.
class BareTree
{
public:
    explicit BareTree(int rowCount);

    /// Shows the rows from nothing.
    Cost open();
    Cost insertOne();
    Cost selectAll();
    /// The longest frame of many.
    Cost scroll();

private:
    Cost measure(const std::function<void()> &act);

    QStandardItemModel mModel;
    QQmlEngine mEngine;
    std::unique_ptr<QQuickWindow> mWindow;
    QObject *mView = nullptr; // part of the window
};

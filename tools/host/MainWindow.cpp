#include "MainWindow.h"

#include "ControlRegistry.h"
#include "PropertyPane.h"
#include "ScriptDialog.h"
#include "SettingsDialog.h"
#include "ToolIcon.h"

#include <QAction>
#include <QActionGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{
constexpr QSize kWindowSize(880, 560);
constexpr QSize kToolSize(104, 32);
constexpr int kListRowHeight = 26;
// Tutorials point beside an open menu, as it covers the guidance.
constexpr int kMenuWidth = 184;
// The guidance arrow points down from above. This much room over the window lets it reach the menus.
constexpr int kRoomAbove = 160;
// Who types has finished a name when the keyboard rests this long.
constexpr int kTypingPause = 800;

QString controlKey(const QString &name)
{
    return QStringLiteral("MainWindow/") + name;
}
} // namespace

MainWindow::MainWindow(ControlRegistry *registry)
    : mRegistry(registry)
    , mCanvas(new DrawingCanvas(&mDrawing))
    , mObjectList(new QListWidget)
    , mPane(new PropertyPane(&mDrawing))
    , mSettings(new SettingsDialog(this))
    , mScript(new ScriptDialog(this))
    , mCanvasMenu(new QMenu(this))
{
    setWindowTitle(tr("Little drawing editor"));
    makePanes();
    makeTools();
    makeMenus();
    makeDialog();
    registerControls();
    reportValues();
    resize(kWindowSize);
}

void MainWindow::takePlace()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const int left = (screen.width() - width()) / 2;
    const int top = qMin(kRoomAbove, screen.height() - height() - 40);
    move(screen.topLeft() + QPoint(qMax(left, 0), qMax(top, 0)));
}

void MainWindow::makePanes()
{
    auto *center = new QWidget;
    auto *layout = new QHBoxLayout(center);
    layout->setContentsMargins(6, 6, 0, 0);
    layout->setSpacing(6);

    auto *objects = new QVBoxLayout;
    objects->setSpacing(4);
    objects->addWidget(new QLabel(tr("Objects")));
    objects->addWidget(mObjectList);
    mObjectList->setFixedWidth(160);
    mObjectList->setUniformItemSizes(true);
    layout->addLayout(objects);
    layout->addWidget(mCanvas, 1);
    layout->addWidget(mPane);
    setCentralWidget(center);

    connect(&mDrawing, &Drawing::changed, this, &MainWindow::fillList);
    connect(&mDrawing, &Drawing::selectionChanged, this, [this] { mObjectList->setCurrentRow(mDrawing.selected()); });
    connect(mObjectList, &QListWidget::currentRowChanged, &mDrawing, &Drawing::select);
    connect(mObjectList, &QListWidget::itemDoubleClicked, mPane, &PropertyPane::editName);
    connect(mCanvas, &DrawingCanvas::menuRequested, this, [this](const QPoint &position) {
        mDuplicateAction->setEnabled(mDrawing.selected() >= 0);
        mDeleteAction->setEnabled(mDrawing.selected() >= 0);
        mCanvasMenu->popup(position);
    });
    connect(mCanvas, &DrawingCanvas::pointed, this, [this](const QPoint &point) {
        statusBar()->showMessage(QStringLiteral("%1, %2").arg(point.x()).arg(point.y()));
    });
}

void MainWindow::makeTools()
{
    struct Tool
    {
        DrawingCanvas::Tool tool;
        QString name;
        QString label;
    };
    const QVector<Tool> tools = {
        { DrawingCanvas::Tool::Select, QStringLiteral("toolSelect"), tr("Select") },
        { DrawingCanvas::Tool::Rectangle, QStringLiteral("toolRectangle"), tr("Rectangle") },
        { DrawingCanvas::Tool::Ellipse, QStringLiteral("toolEllipse"), tr("Ellipse") },
        { DrawingCanvas::Tool::Erase, QStringLiteral("toolErase"), tr("Erase") },
    };
    QToolBar *bar = addToolBar(tr("Tools"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto *group = new QActionGroup(this);
    for (const Tool &tool : tools) {
        QAction *action = bar->addAction(ToolIcon::make(tool.tool), tool.label);
        action->setObjectName(tool.name);
        action->setCheckable(true);
        group->addAction(action);
        QWidget *button = bar->widgetForAction(action);
        button->setFixedSize(kToolSize);
        mRegistry->add(controlKey(tool.name), button);
        connect(action, &QAction::triggered, this, [this, tool] {
            mCanvas->setTool(tool.tool);
            showHelp(tool.tool);
            mRegistry->report(QStringLiteral("action"), tool.name);
        });
    }
    group->actions().constFirst()->setChecked(true);
    showHelp(DrawingCanvas::Tool::Select);
}

QAction *MainWindow::addAction(QMenu *menu, const QString &name, const QString &text)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, name] { mRegistry->report(QStringLiteral("action"), name); });
    return action;
}

void MainWindow::makeMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    connect(addAction(file, QStringLiteral("newDrawing"), tr("&New drawing")), &QAction::triggered, &mDrawing,
            &Drawing::clear);
    connect(addAction(file, QStringLiteral("savePicture"), tr("&Save picture...")), &QAction::triggered, this,
            &MainWindow::savePicture);
    file->addSeparator();
    connect(addAction(file, QStringLiteral("quit"), tr("&Quit")), &QAction::triggered, this, &QWidget::close);
    prepareMenu(file, controlKey(QStringLiteral("menuFile")));

    QMenu *view = menuBar()->addMenu(tr("&View"));
    mGridAction = addAction(view, QStringLiteral("showGrid"), tr("Show &grid"));
    mGridAction->setCheckable(true);
    connect(addAction(view, QStringLiteral("settings"), tr("&Settings...")), &QAction::triggered, mSettings,
            &QDialog::open);
    connect(addAction(view, QStringLiteral("coffeeScript"), tr("&CoffeeScript...")), &QAction::triggered, mScript,
            &QWidget::show);
    prepareMenu(view, controlKey(QStringLiteral("menuView")));

    mDuplicateAction = addAction(mCanvasMenu, QStringLiteral("duplicate"), tr("&Duplicate"));
    connect(mDuplicateAction, &QAction::triggered, this, [this] { mDrawing.duplicate(mDrawing.selected()); });
    mDeleteAction = addAction(mCanvasMenu, QStringLiteral("deleteShape"), tr("D&elete"));
    connect(mDeleteAction, &QAction::triggered, this, [this] { mDrawing.remove(mDrawing.selected()); });
    prepareMenu(mCanvasMenu, controlKey(QStringLiteral("canvasMenu")));

    connect(mGridAction, &QAction::toggled, mPane->gridCheck(), &QCheckBox::setChecked);
    connect(mPane->gridCheck(), &QCheckBox::toggled, mGridAction, &QAction::setChecked);
    connect(mGridAction, &QAction::toggled, mCanvas, &DrawingCanvas::setGridShown);
}

void MainWindow::prepareMenu(QMenu *menu, const QString &key)
{
    menu->setFixedWidth(kMenuWidth);
    QAction *title = menu->menuAction();
    if (menuBar()->actions().contains(title))
        mRegistry->addArea(key, menuBar(), [this, title] { return menuBar()->actionGeometry(title); });
    connect(menu, &QMenu::aboutToShow, this, [this, menu, key] {
        mRegistry->add(QStringLiteral("Popup"), menu);
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (!action->isSeparator())
                mRegistry->addArea(QStringLiteral("Popup/") + action->objectName(), menu,
                                   [menu, action] { return menu->actionGeometry(action); });
        }
        mRegistry->report(QStringLiteral("popup"), key);
    });
}

void MainWindow::makeDialog()
{
    connect(mSettings, &SettingsDialog::paperChosen, mCanvas, &DrawingCanvas::setPaper);
    connect(mSettings, &SettingsDialog::snappingChosen, mCanvas, &DrawingCanvas::setSnapping);
}

void MainWindow::registerControls()
{
    mRegistry->add(QStringLiteral("MainWindow"), this);
    mRegistry->addArea(QStringLiteral("ApplicationWindow"), this, [this] { return rect(); });
    mRegistry->add(controlKey(QStringLiteral("objectList")), mObjectList);
    mRegistry->add(controlKey(QStringLiteral("canvas")), mCanvas);
    mRegistry->add(controlKey(QStringLiteral("nameField")), mPane->nameField());
    mRegistry->add(controlKey(QStringLiteral("widthSpin")), mPane->widthSpin());
    mRegistry->add(controlKey(QStringLiteral("layerCombo")), mPane->layerCombo());
    mRegistry->add(controlKey(QStringLiteral("gridCheck")), mPane->gridCheck());
    mRegistry->add(controlKey(QStringLiteral("statusBar")), statusBar());
    mRegistry->add(QStringLiteral("SettingsDialog"), mSettings);
    mRegistry->add(QStringLiteral("SettingsDialog/paperCombo"), mSettings->paperCombo());
    mRegistry->add(QStringLiteral("SettingsDialog/snapCheck"), mSettings->snapCheck());
    mRegistry->add(QStringLiteral("SettingsDialog/okButton"), mSettings->okButton());
}

void MainWindow::reportValues()
{
    const auto watchCombo = [this](const QString &key, QComboBox *combo) {
        mRegistry->addState(QStringLiteral("comboBox"), key,
                            [combo] { return QString::number(combo->currentIndex()); });
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), mRegistry,
                [this, key] { mRegistry->report(QStringLiteral("comboBox"), key); });
    };
    watchCombo(controlKey(QStringLiteral("layerCombo")), mPane->layerCombo());
    watchCombo(QStringLiteral("SettingsDialog/paperCombo"), mSettings->paperCombo());

    const auto watchCheck = [this](const QString &key, QCheckBox *check) {
        mRegistry->addState(QStringLiteral("checked"), key,
                            [check] { return check->isChecked() ? QStringLiteral("true") : QStringLiteral("false"); });
        connect(check, &QCheckBox::toggled, mRegistry,
                [this, key] { mRegistry->report(QStringLiteral("checked"), key); });
    };
    watchCheck(controlKey(QStringLiteral("gridCheck")), mPane->gridCheck());
    watchCheck(QStringLiteral("SettingsDialog/snapCheck"), mSettings->snapCheck());

    const QString spin = controlKey(QStringLiteral("widthSpin"));
    mRegistry->addState(QStringLiteral("spinBox"), spin,
                        [this] { return QString::number(mPane->widthSpin()->value()); });
    connect(mPane->widthSpin(), QOverload<int>::of(&QSpinBox::valueChanged), mRegistry,
            [this, spin] { mRegistry->report(QStringLiteral("spinBox"), spin); });

    const QString list = controlKey(QStringLiteral("objectList"));
    mRegistry->addState(QStringLiteral("list"), list, [this] { return QString::number(mObjectList->currentRow()); });
    connect(mObjectList, &QListWidget::currentRowChanged, mRegistry,
            [this, list] { mRegistry->report(QStringLiteral("list"), list); });
    connect(mObjectList, &QListWidget::itemDoubleClicked, mRegistry,
            [this, list] { mRegistry->report(QStringLiteral("mouseEvent"), list, QStringLiteral("doubleClick")); });

    // No state for the text: what stands there from before was not typed for the step.
    mTypingPause.setSingleShot(true);
    mTypingPause.setInterval(kTypingPause);
    connect(mPane->nameField(), &QLineEdit::textEdited, &mTypingPause, QOverload<>::of(&QTimer::start));
    connect(&mTypingPause, &QTimer::timeout, mRegistry, [this] {
        mRegistry->report(QStringLiteral("textLength"), controlKey(QStringLiteral("nameField")),
                          QString::number(mPane->nameField()->text().size()));
    });

    const auto reportCanvas = [this](const QString &gesture) {
        mRegistry->report(QStringLiteral("mouseEvent"), controlKey(QStringLiteral("canvas")), gesture);
    };
    connect(mCanvas, &DrawingCanvas::dragged, mRegistry, [=] { reportCanvas(QStringLiteral("drag")); });
    connect(mCanvas, &DrawingCanvas::doubleClicked, mRegistry, [=] { reportCanvas(QStringLiteral("doubleClick")); });
    connect(mCanvas, &DrawingCanvas::menuRequested, mRegistry, [=] { reportCanvas(QStringLiteral("rightClick")); });
}

void MainWindow::fillList()
{
    // The list follows the drawing; meanwhile it must not choose for it.
    const QSignalBlocker blocker(mObjectList);
    const QVector<Shape> &shapes = mDrawing.shapes();
    while (mObjectList->count() > shapes.size())
        delete mObjectList->takeItem(mObjectList->count() - 1);
    for (int i = 0; i < shapes.size(); ++i) {
        if (i == mObjectList->count()) {
            auto *item = new QListWidgetItem(mObjectList);
            item->setSizeHint(QSize(0, kListRowHeight));
        }
        mObjectList->item(i)->setText(shapes.at(i).name);
    }
    mObjectList->setCurrentRow(mDrawing.selected());
}

void MainWindow::savePicture()
{
    const QString filename =
        QFileDialog::getSaveFileName(this, tr("Save picture"), QStringLiteral("drawing.png"), tr("Pictures (*.png)"));
    if (!filename.isEmpty() && !mCanvas->grab().save(filename))
        statusBar()->showMessage(tr("The picture could not be saved."));
}

void MainWindow::showHelp(DrawingCanvas::Tool tool)
{
    switch (tool) {
    case DrawingCanvas::Tool::Select:
        statusBar()->showMessage(tr("Click a shape to select it, drag it to move it."));
        break;
    case DrawingCanvas::Tool::Rectangle:
        statusBar()->showMessage(tr("Drag on the canvas to draw a rectangle."));
        break;
    case DrawingCanvas::Tool::Ellipse:
        statusBar()->showMessage(tr("Drag on the canvas to draw an ellipse."));
        break;
    case DrawingCanvas::Tool::Erase:
        statusBar()->showMessage(tr("Click a shape to erase it."));
        break;
    }
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    if (isMinimized())
        Q_EMIT minimised();
    else
        Q_EMIT restored();
}

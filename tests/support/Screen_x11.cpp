#include "support/Screen.h"
#include "support/XDoTool.h"

#include <QProcess>
#include <QTest>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace
{
template <typename T>
std::unique_ptr<T, decltype(&std::free)> owned(T *reply)
{
    return { reply, &std::free };
}

// A connection of its own sees what others see.
xcb_connection_t *xcb()
{
    static const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(xcb_connect(nullptr, nullptr),
                                                                                         &xcb_disconnect);
    return connection.get();
}

xcb_window_t root()
{
    return xcb_setup_roots_iterator(xcb_get_setup(xcb())).data->root;
}

xcb_atom_t atom(const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(xcb(), false, quint16(name.size()), name.constData());
    const auto reply = owned(xcb_intern_atom_reply(xcb(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

QVector<quint32> property(xcb_window_t window, const char *name, xcb_atom_t type)
{
    const auto cookie = xcb_get_property(xcb(), false, window, atom(name), type, 0, 64);
    const auto reply = owned(xcb_get_property_reply(xcb(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *values = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return QVector<quint32>(values, values + reply->value_len);
}

QVector<xcb_window_t> children(xcb_window_t window)
{
    const auto tree = owned(xcb_query_tree_reply(xcb(), xcb_query_tree(xcb(), window), nullptr));
    if (!tree)
        return {};
    const xcb_window_t *first = xcb_query_tree_children(tree.get());
    return QVector<xcb_window_t>(first, first + tree->children_len);
}

bool isVisible(xcb_window_t window)
{
    const auto reply = owned(xcb_get_window_attributes_reply(xcb(), xcb_get_window_attributes(xcb(), window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

QRect place(xcb_window_t window)
{
    const auto size = owned(xcb_get_geometry_reply(xcb(), xcb_get_geometry(xcb(), window), nullptr));
    const auto corner =
        owned(xcb_translate_coordinates_reply(xcb(), xcb_translate_coordinates(xcb(), window, root(), 0, 0), nullptr));
    return size && corner ? QRect(corner->dst_x, corner->dst_y, size->width, size->height) : QRect();
}

/// A window manager has put the windows into frames of its own.
void collect(xcb_window_t window, int level, quint32 process, QVector<Screen::Window> &found)
{
    if (!isVisible(window))
        return;
    if (property(window, "_NET_WM_PID", XCB_ATOM_CARDINAL) == QVector<quint32>{ process })
        found.append({ place(window), level });
    for (const xcb_window_t child : children(window))
        collect(child, level, process, found);
}
} // namespace

QString xdotool(const QString &command, const QStringList &more)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), command.split(QLatin1Char(' ')) + more);
    const bool ended = QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 60000);
    return ended ? QString::fromUtf8(process.readAllStandardOutput()).trimmed() : QString();
}

void Screen::click(const QPoint &place)
{
    xdotool(QStringLiteral("mousemove %1 %2 click 1").arg(place.x()).arg(place.y()));
}

void Screen::type(const QString &text)
{
    xdotool(QStringLiteral("type --delay 5"), { text });
}

void Screen::focus(WId window)
{
    xdotool(QStringLiteral("windowfocus %1").arg(window));
}

void Screen::raise(WId window)
{
    xdotool(QStringLiteral("windowraise %1").arg(window));
}

QVector<Screen::Window> Screen::windows(qint64 process)
{
    QVector<Window> found;
    const QVector<xcb_window_t> outermost = children(root());
    for (int level = 0; level < outermost.size(); ++level)
        collect(outermost.at(level), level, quint32(process), found);
    return found;
}

bool Screen::isManaged()
{
    return !property(root(), "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW).isEmpty();
}

bool Screen::isComposed()
{
    return false;
}

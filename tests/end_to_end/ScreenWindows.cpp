#include "ScreenWindows.h"

#include <QByteArray>

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

xcb_atom_t atom(const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(xcb(), false, quint16(name.size()), name.constData());
    const auto reply = owned(xcb_intern_atom_reply(xcb(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}
} // namespace

bool ScreenWindows::isKeptAbove(WId window)
{
    const auto cookie =
        xcb_get_property(xcb(), false, xcb_window_t(window), atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 0, 64);
    const auto reply = owned(xcb_get_property_reply(xcb(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return false;
    const auto *states = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply.get()));
    const auto *end = states + reply->value_len;
    return std::find(states, end, atom("_NET_WM_STATE_ABOVE")) != end;
}

int ScreenWindows::stackingPlace(WId window)
{
    auto outermost = xcb_window_t(window);
    const auto attributes =
        owned(xcb_get_window_attributes_reply(xcb(), xcb_get_window_attributes(xcb(), outermost), nullptr));
    if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE)
        return -1;
    while (const auto tree = owned(xcb_query_tree_reply(xcb(), xcb_query_tree(xcb(), outermost), nullptr))) {
        if (tree->parent != tree->root) {
            outermost = tree->parent;
            continue;
        }
        const auto top = owned(xcb_query_tree_reply(xcb(), xcb_query_tree(xcb(), tree->root), nullptr));
        if (!top)
            break;
        const xcb_window_t *children = xcb_query_tree_children(top.get());
        return int(std::find(children, children + top->children_len, outermost) - children);
    }
    return -1;
}

bool ScreenWindows::areManaged()
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(xcb())).data->root;
    const auto cookie = xcb_get_property(xcb(), false, root, atom("_NET_SUPPORTING_WM_CHECK"), XCB_ATOM_WINDOW, 0, 1);
    const auto reply = owned(xcb_get_property_reply(xcb(), cookie, nullptr));
    return reply && reply->type == XCB_ATOM_WINDOW;
}

QPoint ScreenWindows::place(WId window)
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(xcb())).data->root;
    const auto cookie = xcb_translate_coordinates(xcb(), xcb_window_t(window), root, 0, 0);
    const auto reply = owned(xcb_translate_coordinates_reply(xcb(), cookie, nullptr));
    return reply ? QPoint(reply->dst_x, reply->dst_y) : QPoint(-1, -1);
}

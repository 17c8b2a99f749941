#pragma once

#include <QByteArray>
#include <QVector>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

/// The little that the files for X11 share.
namespace X11
{
template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Reply<T> owned(T *reply)
{
    return { reply, &std::free };
}

/// Null on every platform but X11, the offscreen one of the tests among them.
xcb_connection_t *connection();

/// A frame can go at any time, so errors of a window that is no more are nobody's concern.
void ignoreErrors(xcb_connection_t *xcb, xcb_void_cookie_t cookie);

xcb_atom_t atom(xcb_connection_t *xcb, const QByteArray &name);

/// The values of a property that holds a list of atoms.
QVector<xcb_atom_t> atoms(xcb_connection_t *xcb, xcb_window_t window, xcb_atom_t property);
} // namespace X11

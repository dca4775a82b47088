// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/windowStacking.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <algorithm>

#ifdef QUILLETS_HAS_XCB
#include <xcb/xcb.h>

#include <cstring>
#endif

namespace windowStacking
{
namespace
{

#ifdef QUILLETS_HAS_XCB

xcb_connection_t *connection()
{
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t *display, const char *name)
{
    const auto cookie = xcb_intern_atom(display, 0, static_cast<uint16_t>(std::strlen(name)), name);
    xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(display, cookie, nullptr);
    const xcb_atom_t result = reply != nullptr ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    std::free(reply);
    return result;
}

struct Atoms
{
    explicit Atoms(xcb_connection_t *display)
        : state(atom(display, "_NET_WM_STATE")), skipTaskBar(atom(display, "_NET_WM_STATE_SKIP_TASKBAR")),
          skipPager(atom(display, "_NET_WM_STATE_SKIP_PAGER"))
    {}
    xcb_atom_t state;
    xcb_atom_t skipTaskBar;
    xcb_atom_t skipPager;
};

#endif

} // namespace

void sendNow()
{
#ifdef QUILLETS_HAS_XCB
    if (auto *display = connection())
        xcb_flush(display);
#endif
}

void SetWindowOnTop(QWidget &window, bool onTop)
{
    Qt::WindowFlags flags = window.windowFlags();
    flags.setFlag(Qt::WindowStaysOnTopHint, onTop);
    // The widget's own setter would destroy the window and take the focus.
    window.overrideWindowFlags(flags);
    if (QWindow *handle = window.windowHandle())
        handle->setFlag(Qt::WindowStaysOnTopHint, onTop);
    sendNow();
}

void keepAboveNotes(QWidget &dialog)
{
    const auto windows = QApplication::topLevelWidgets();
    const bool covered = std::any_of(windows.begin(), windows.end(), [&dialog](const QWidget *window) {
        return window != &dialog && window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    });
    if (covered)
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

void bringForward(QWidget &window)
{
    window.raise();
    sendNow();
}

void SetForegroundWindow(QWidget &window)
{
    window.raise();
    window.activateWindow();
    sendNow();
}

void skipTaskBar(QWidget &window)
{
#ifdef QUILLETS_HAS_XCB
    auto *display = connection();
    if (display == nullptr || window.windowHandle() == nullptr)
        return;
    static const Atoms atoms(display);
    constexpr uint32_t Add = 1;
    constexpr uint32_t FromApplication = 1;
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<xcb_window_t>(window.windowHandle()->winId());
    event.type = atoms.state;
    event.data.data32[0] = Add;
    event.data.data32[1] = atoms.skipTaskBar;
    event.data.data32[2] = atoms.skipPager;
    event.data.data32[3] = FromApplication;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    xcb_send_event(display, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(display);
#else
    Q_UNUSED(window)
#endif
}

std::optional<QPoint> nativePlaceOf(const QWidget &window)
{
#ifdef QUILLETS_HAS_XCB
    auto *display = connection();
    if (display == nullptr || window.windowHandle() == nullptr)
        return std::nullopt;
    const auto id = static_cast<xcb_window_t>(window.windowHandle()->winId());
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const auto cookie = xcb_translate_coordinates(display, id, root, 0, 0);
    xcb_translate_coordinates_reply_t *reply = xcb_translate_coordinates_reply(display, cookie, nullptr);
    if (reply == nullptr)
        return std::nullopt;
    const QPoint place(reply->dst_x, reply->dst_y);
    std::free(reply);
    return place;
#else
    Q_UNUSED(window)
    return std::nullopt;
#endif
}

} // namespace windowStacking

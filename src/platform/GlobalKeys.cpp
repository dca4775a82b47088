// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/GlobalKeys.h"

#include "platform/displayPlatform.h"

#include <QGuiApplication>

#ifdef QUILLETS_HAS_DBUS
#include "platform/PortalKeys.h"
#endif

#ifdef QUILLETS_HAS_XCB
#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#endif

namespace
{

constexpr auto Commanding = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

#ifdef QUILLETS_HAS_XCB

constexpr std::array<quint16, 4> Locks{0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2,
                                       XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2}; ///< Caps Lock and Num Lock do not count.

struct Freed
{
    void operator()(void *reply) const { std::free(reply); }
};
template <class Reply> using Owned = std::unique_ptr<Reply, Freed>;

xcb_connection_t *connection()
{
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_window_t root(xcb_connection_t *display)
{
    return xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
}

struct NamedKey
{
    Qt::Key key;
    xcb_keysym_t symbol;
};
constexpr NamedKey NamedKeys[] = {
    {Qt::Key_Space, 0x20},    {Qt::Key_Insert, 0xff63},   {Qt::Key_Delete, 0xffff}, {Qt::Key_Home, 0xff50},
    {Qt::Key_Left, 0xff51},   {Qt::Key_Up, 0xff52},       {Qt::Key_Right, 0xff53},  {Qt::Key_Down, 0xff54},
    {Qt::Key_PageUp, 0xff55}, {Qt::Key_PageDown, 0xff56}, {Qt::Key_End, 0xff57},    {Qt::Key_Print, 0xff61},
    {Qt::Key_Pause, 0xff13},
};

/// As keysymdef.h has them; 0 for keys that have none here.
xcb_keysym_t symbolOf(Qt::Key key)
{
    constexpr xcb_keysym_t FirstFunctionKey = 0xffbe;
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return static_cast<xcb_keysym_t>('a' + (key - Qt::Key_A));
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return FirstFunctionKey + static_cast<xcb_keysym_t>(key - Qt::Key_F1);
    const auto *named =
        std::find_if(std::begin(NamedKeys), std::end(NamedKeys), [key](const NamedKey &row) { return row.key == key; });
    if (named != std::end(NamedKeys))
        return named->symbol;
    return key > Qt::Key_Space && key <= Qt::Key_AsciiTilde ? static_cast<xcb_keysym_t>(key) : 0;
}

/// The key that writes the symbol without Shift; 0 where none does.
xcb_keycode_t keyCodeOf(xcb_connection_t *display, xcb_keysym_t symbol)
{
    const xcb_setup_t *setup = xcb_get_setup(display);
    const auto first = setup->min_keycode;
    const auto count = static_cast<quint8>(setup->max_keycode - first + 1);
    const Owned<xcb_get_keyboard_mapping_reply_t> reply(
        xcb_get_keyboard_mapping_reply(display, xcb_get_keyboard_mapping(display, first, count), nullptr));
    if (reply == nullptr || reply->keysyms_per_keycode == 0 || symbol == 0)
        return 0;
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (int at = 0; at < count; ++at)
        if (symbols[at * reply->keysyms_per_keycode] == symbol)
            return static_cast<xcb_keycode_t>(first + at);
    return 0;
}

quint16 modifiersOf(Qt::KeyboardModifiers modifiers)
{
    quint16 mask = 0;
    if (modifiers & Qt::ShiftModifier)
        mask |= XCB_MOD_MASK_SHIFT;
    if (modifiers & Qt::ControlModifier)
        mask |= XCB_MOD_MASK_CONTROL;
    if (modifiers & Qt::AltModifier)
        mask |= XCB_MOD_MASK_1;
    if (modifiers & Qt::MetaModifier)
        mask |= XCB_MOD_MASK_4;
    return mask;
}

#endif

bool isOnX11()
{
#ifdef QUILLETS_HAS_XCB
    return connection() != nullptr && !displayPlatform::isX11InWayland();
#else
    return false;
#endif
}

} // namespace

GlobalKeys::GlobalKeys(QObject *parent) : QObject(parent)
{
    if (isOnX11())
        qApp->installNativeEventFilter(this);
}

GlobalKeys::~GlobalKeys()
{
    release();
}

bool GlobalKeys::isSupported()
{
#ifdef QUILLETS_HAS_DBUS
    if (displayPlatform::isX11InWayland() || displayPlatform::hidesPlaces())
        return PortalKeys::isThere();
#endif
    return isOnX11();
}

bool GlobalKeys::canBe(const QKeySequence &keys)
{
#ifdef QUILLETS_HAS_XCB
    return keys.isEmpty() || (keys.count() == 1 && symbolOf(keys[0].key()) != 0 &&
                              (keys[0].keyboardModifiers() & Commanding) != Qt::NoModifier);
#else
    return keys.isEmpty();
#endif
}

QList<QKeySequence> GlobalKeys::grab(const QList<Wanted> &wanted)
{
    release();
    QList<QKeySequence> taken;
    if (!isSupported())
        return taken;
    if (!isOnX11())
        askPortal(wanted);
    for (int index = 0; isOnX11() && index < wanted.size(); ++index) {
        const QKeySequence &keys = wanted[index].keys;
        if (!keys.isEmpty() && canBe(keys) && !grabOne(keys, index))
            taken.append(keys);
    }
    return taken;
}

void GlobalKeys::askPortal([[maybe_unused]] const QList<Wanted> &wanted)
{
#ifdef QUILLETS_HAS_DBUS
    if (m_portal == nullptr) {
        m_portal = new PortalKeys(this);
        connect(m_portal, &PortalKeys::pressed, this, [this](const QString &id) { emit pressed(id.toInt()); });
        connect(m_portal, &PortalKeys::refused, this, &GlobalKeys::refused);
    }
    QList<PortalKeys::Wanted> asked;
    for (int index = 0; index < wanted.size(); ++index)
        asked.append({QString::number(index), wanted[index].description, wanted[index].keys});
    m_portal->want(asked);
#endif
}

bool GlobalKeys::grabOne([[maybe_unused]] const QKeySequence &keys, [[maybe_unused]] int index)
{
#ifdef QUILLETS_HAS_XCB
    xcb_connection_t *display = connection();
    const xcb_keycode_t code = keyCodeOf(display, symbolOf(keys[0].key()));
    const quint16 modifiers = modifiersOf(keys[0].keyboardModifiers());
    if (code == 0)
        return false;
    m_grabbed.push_back({code, modifiers, index});
    for (const quint16 locks : Locks) {
        const auto request = xcb_grab_key_checked(display, 0, root(display), modifiers | locks, code,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        if (const Owned<xcb_generic_error_t> error(xcb_request_check(display, request)); error != nullptr)
            return false;
    }
#endif
    return true;
}

void GlobalKeys::release()
{
#ifdef QUILLETS_HAS_XCB
    xcb_connection_t *display = m_grabbed.empty() ? nullptr : connection();
    for (const Grabbed &key : m_grabbed)
        for (const quint16 locks : Locks)
            if (display != nullptr)
                xcb_ungrab_key(display, key.keyCode, root(display), key.modifiers | locks);
    if (display != nullptr)
        xcb_flush(display);
#endif
    m_grabbed.clear();
}

bool GlobalKeys::nativeEventFilter([[maybe_unused]] const QByteArray &type, [[maybe_unused]] void *message, qintptr *)
{
#ifdef QUILLETS_HAS_XCB
    constexpr quint8 SentByPrograms = 0x80;
    constexpr quint16 Counted = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;
    if (m_grabbed.empty() || type != "xcb_generic_event_t")
        return false;
    const int kind = static_cast<xcb_generic_event_t *>(message)->response_type & ~SentByPrograms;
    if (kind != XCB_KEY_PRESS && kind != XCB_KEY_RELEASE)
        return false;
    const auto &key = *static_cast<xcb_key_press_event_t *>(message); // A release is the same.
    if (key.event != root(connection()))
        return false;
    if (kind == XCB_KEY_RELEASE) {
        m_down = 0;
        m_released = key.time;
        return true;
    }
    // A key that is held down comes again without a release, or with one of the same moment.
    const bool isRepeat = m_down == key.detail || m_released == key.time;
    m_down = key.detail;
    const auto found = std::find_if(m_grabbed.begin(), m_grabbed.end(), [&key](const Grabbed &row) {
        return row.keyCode == key.detail && row.modifiers == (key.state & Counted);
    });
    if (found != m_grabbed.end() && !isRepeat)
        QMetaObject::invokeMethod(
            this, [this, index = found->index] { emit pressed(index); }, Qt::QueuedConnection);
    return true;
#else
    return false;
#endif
}

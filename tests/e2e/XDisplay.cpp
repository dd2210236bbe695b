// SPDX-License-Identifier: GPL-3.0-or-later
#include "XDisplay.h"

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace Quillbox {
namespace {

/// Between two movements of a key: what comes in the same moment counts as the repetition of a key
/// that is held.
constexpr std::uint32_t MovementMilliseconds = 2;
constexpr std::uint32_t LongestText = 1024; ///< of a title, in units of four bytes

struct Freed {
    void operator()(void *memory) const { std::free(memory); }
};
template <typename Reply>
using Answer = std::unique_ptr<Reply, Freed>;

/// The answer to a request, none when the window that it is about has gone.
template <typename Reply, typename Cookie>
Answer<Reply> Await(Reply *(*reply)(xcb_connection_t *, Cookie, xcb_generic_error_t **),
                    xcb_connection_t *connection, Cookie cookie) {
    return Answer<Reply>(reply(connection, cookie, nullptr));
}

QByteArray BytesOf(const Answer<xcb_get_property_reply_t> &property) {
    if (!property || property->format != 8)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(property.get())),
            xcb_get_property_value_length(property.get())};
}

} // namespace

XDisplay::XDisplay()
    : Connection_(xcb_connect(nullptr, nullptr)) {
    const xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(Connection_));
    Root_ = screens.data->root;
    // Programs answer for signs of life at the root.
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(Connection_, Root_, XCB_CW_EVENT_MASK, &mask);
}

XDisplay::~XDisplay() { xcb_disconnect(Connection_); }

XWindow XDisplay::Atom(const std::string &name) {
    XWindow &atom = Atoms_[name];
    if (atom == 0) {
        const auto length = static_cast<std::uint16_t>(name.size());
        atom = Await(xcb_intern_atom_reply, Connection_,
                     xcb_intern_atom(Connection_, 0, length, name.c_str()))
                   ->atom;
    }
    return atom;
}

/// Only a window manager that is at work publishes the desktop's number.
bool XDisplay::HasWindowManager() {
    const auto property =
        Await(xcb_get_property_reply, Connection_,
              xcb_get_property(Connection_, 0, Root_, Atom("_NET_CURRENT_DESKTOP"),
                               XCB_ATOM_CARDINAL, 0, 1));
    return property && property->value_len == 1;
}

/// Level by level, so that the display is asked once for a level.
std::vector<XWindow> XDisplay::AllWindows() {
    std::vector<XWindow> windows{Root_};
    for (std::size_t level = 0; level < windows.size();) {
        std::vector<xcb_query_tree_cookie_t> cookies;
        for (; level < windows.size(); ++level)
            cookies.push_back(xcb_query_tree(Connection_, windows[level]));
        for (const auto cookie : cookies)
            if (const auto tree = Await(xcb_query_tree_reply, Connection_, cookie))
                windows.insert(windows.end(), xcb_query_tree_children(tree.get()),
                               xcb_query_tree_children(tree.get()) + tree->children_len);
    }
    return windows;
}

std::vector<VisibleWindow> XDisplay::VisibleWindows() {
    struct Cookies {
        xcb_get_window_attributes_cookie_t Attributes;
        xcb_get_property_cookie_t Title;
        xcb_get_property_cookie_t PlainTitle;
        xcb_get_property_cookie_t Class;
    };
    const auto ask = [this](XWindow window, XWindow property) {
        return xcb_get_property(Connection_, 0, window, property, XCB_ATOM_ANY, 0, LongestText);
    };
    const auto text = [this](xcb_get_property_cookie_t cookie) {
        return BytesOf(Await(xcb_get_property_reply, Connection_, cookie));
    };
    const XWindow title = Atom("_NET_WM_NAME");
    const std::vector<XWindow> windows = AllWindows();
    std::vector<Cookies> cookies;
    for (const XWindow window : windows)
        cookies.push_back({xcb_get_window_attributes(Connection_, window), ask(window, title),
                           ask(window, XCB_ATOM_WM_NAME), ask(window, XCB_ATOM_WM_CLASS)});
    std::vector<VisibleWindow> visible;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const auto attributes =
            Await(xcb_get_window_attributes_reply, Connection_, cookies[i].Attributes);
        const QString name = QString::fromUtf8(text(cookies[i].Title));
        const QString plainName = QString::fromLatin1(text(cookies[i].PlainTitle));
        // Up to the first NUL; the class follows it.
        const QByteArray program = text(cookies[i].Class).constData();
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE)
            visible.push_back({windows[i], name.isEmpty() ? plainName : name, program,
                               attributes->override_redirect != 0});
    }
    return visible;
}

bool XDisplay::IsVisible(XWindow window) {
    const auto attributes = Await(xcb_get_window_attributes_reply, Connection_,
                                  xcb_get_window_attributes(Connection_, window));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

QRect XDisplay::PlaceOf(XWindow window) {
    const auto geometryCookie = xcb_get_geometry(Connection_, window);
    const auto cornerCookie = xcb_translate_coordinates(Connection_, window, Root_, 0, 0);
    const auto geometry = Await(xcb_get_geometry_reply, Connection_, geometryCookie);
    const auto corner = Await(xcb_translate_coordinates_reply, Connection_, cornerCookie);
    if (!geometry || !corner)
        return {};
    return {corner->dst_x, corner->dst_y, geometry->width, geometry->height};
}

std::uint32_t XDisplay::NumberIn(XWindow window, const std::string &property) {
    const auto reply =
        Await(xcb_get_property_reply, Connection_,
              xcb_get_property(Connection_, 0, window, Atom(property), XCB_ATOM_ANY, 0, 1));
    std::uint32_t number = 0;
    if (reply && reply->format == 32 && reply->value_len == 1)
        std::memcpy(&number, xcb_get_property_value(reply.get()), sizeof number);
    return number;
}

qint64 XDisplay::ProcessOf(XWindow window) { return NumberIn(window, "_NET_WM_PID"); }

void XDisplay::Resize(XWindow window, QSize size) {
    const std::uint32_t values[] = {static_cast<std::uint32_t>(size.width()),
                                    static_cast<std::uint32_t>(size.height())};
    xcb_configure_window(Connection_, window, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         values);
    xcb_flush(Connection_);
}

void XDisplay::SendToWindow(XWindow target, std::uint32_t mask, XWindow window,
                            const std::string &type, const std::uint32_t (&values)[3]) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = Atom(type);
    std::memcpy(message.data.data32, values, sizeof values);
    xcb_send_event(Connection_, 0, target, mask, reinterpret_cast<const char *>(&message));
    xcb_flush(Connection_);
}

void XDisplay::Activate(XWindow window) {
    constexpr std::uint32_t asThePersonWishes = 2;
    SendToWindow(Root_, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 window, "_NET_ACTIVE_WINDOW", {asThePersonWishes, XCB_CURRENT_TIME, 0});
}

/// The display takes the keyboard from a window that goes before the window manager knows.
XWindow XDisplay::WindowWithKeyboard() {
    const XWindow active = NumberIn(Root_, "_NET_ACTIVE_WINDOW");
    const auto focus =
        Await(xcb_get_input_focus_reply, Connection_, xcb_get_input_focus(Connection_));
    return focus && focus->focus == active ? active : 0;
}

void XDisplay::Ping(XWindow window) {
    IsPingAnswered_ = false;
    SendToWindow(window, XCB_EVENT_MASK_NO_EVENT, window, "WM_PROTOCOLS",
                 {Atom("_NET_WM_PING"), ++LastPing_, window});
}

bool XDisplay::IsPingAnswered() {
    const XWindow ping = Atom("_NET_WM_PING");
    while (const Answer<xcb_generic_event_t> event{xcb_poll_for_event(Connection_)}) {
        if ((event->response_type & 0x7F) != XCB_CLIENT_MESSAGE)
            continue;
        xcb_client_message_event_t message;
        std::memcpy(&message, event.get(), sizeof message);
        // The window manager asks for such signs, too, and numbers them in its own way.
        if (message.data.data32[0] == ping && message.data.data32[1] == LastPing_)
            IsPingAnswered_ = true;
    }
    return IsPingAnswered_;
}

XDisplay::KeyMap XDisplay::ReadKeyMap() {
    const xcb_setup_t &setup = *xcb_get_setup(Connection_);
    const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
    const auto map = Await(xcb_get_keyboard_mapping_reply, Connection_,
                           xcb_get_keyboard_mapping(Connection_, setup.min_keycode, count));
    if (!map)
        return {};
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(map.get());
    return {setup.min_keycode,
            map->keysyms_per_keycode,
            {symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(map.get())}};
}

void XDisplay::Input(std::uint8_t type, std::uint8_t detail, QPoint place) {
    xcb_test_fake_input(Connection_, type, detail, MovementMilliseconds, Root_,
                        static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()),
                        0);
}

void XDisplay::MoveKey(std::uint8_t keyCode, Motion motion) {
    Input(motion == Motion::Press ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keyCode);
}

void XDisplay::ReleaseEveryKey() {
    const auto keys = Await(xcb_query_keymap_reply, Connection_, xcb_query_keymap(Connection_));
    for (unsigned keyCode = 0; keys && keyCode < 256; ++keyCode)
        if (keys->keys[keyCode / 8] & (1U << keyCode % 8))
            MoveKey(static_cast<std::uint8_t>(keyCode), Motion::Release);
}

void XDisplay::MovePointer(QPoint place) {
    constexpr std::uint8_t toThisPlace = 0;
    Input(XCB_MOTION_NOTIFY, toThisPlace, place);
}

void XDisplay::MoveButton(std::uint8_t button, Motion motion) {
    Input(motion == Motion::Press ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, button);
}

void XDisplay::Finish() {
    Await(xcb_get_input_focus_reply, Connection_, xcb_get_input_focus(Connection_));
}

bool XDisplay::HasClipboardOwner() {
    const auto owner = Await(xcb_get_selection_owner_reply, Connection_,
                             xcb_get_selection_owner(Connection_, Atom("CLIPBOARD")));
    return owner && owner->owner != XCB_NONE;
}

} // namespace Quillbox

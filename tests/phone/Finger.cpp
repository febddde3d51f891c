#include "Finger.h"

#include <QTest>
#include <cstring>
#include <linux/input-event-codes.h>
#include <wayland-client.h>

namespace kovamo {

namespace {

// What wayland-scanner would make of the protocol's description: the order of the requests and the
// types of their arguments.
const wl_interface* noTypes[5] = {};
const wl_message pointerRequests[] = {{"motion", "uff", noTypes},
                                      {"motion_absolute", "uuuuu", noTypes},
                                      {"button", "uuu", noTypes},
                                      {"axis", "uuf", noTypes},
                                      {"frame", "", noTypes}};
const wl_interface pointerInterface = {"zwlr_virtual_pointer_v1", 1, 5,
                                       pointerRequests,           0, nullptr};
const wl_interface* createTypes[] = {&wl_seat_interface, &pointerInterface};
const wl_message managerRequests[] = {{"create_virtual_pointer", "?on", createTypes}};
const wl_interface managerInterface = {
    "zwlr_virtual_pointer_manager_v1", 1, 1, managerRequests, 0, nullptr};
enum { create = 0, motionAbsolute = 1, button = 2, frame = 4 };

void takeGlobal(void* manager, wl_registry* registry, uint32_t name, const char* interface,
                uint32_t) {
    if (std::strcmp(interface, managerInterface.name) == 0)
        *static_cast<wl_proxy**>(manager) =
            static_cast<wl_proxy*>(wl_registry_bind(registry, name, &managerInterface, 1));
}

} // namespace

Finger::Finger(const char* display) : m_display(wl_display_connect(display)) {
    if (!m_display)
        return;
    static const wl_registry_listener listener = {takeGlobal, [](void*, wl_registry*, uint32_t) {}};
    wl_registry* registry = wl_display_get_registry(m_display);
    wl_registry_add_listener(registry, &listener, &m_manager);
    wl_display_roundtrip(m_display);
    wl_registry_destroy(registry);
    if (m_manager)
        m_pointer =
            wl_proxy_marshal_flags(m_manager, create, &pointerInterface, 1, 0, nullptr, nullptr);
    send(0);
}

Finger::~Finger() {
    for (wl_proxy* proxy : {m_pointer, m_manager})
        if (proxy)
            wl_proxy_destroy(proxy);
    if (m_display)
        wl_display_disconnect(m_display);
}

void Finger::drag(QPoint from, QPoint to, QSize screen) {
    constexpr int steps = 12;
    move(from, screen);
    press(true);
    for (int step = 1; step <= steps && to != from; ++step)
        move(from + (to - from) * step / steps, screen);
    press(false);
}

void Finger::move(QPoint point, QSize screen) {
    wl_proxy_marshal_flags(m_pointer, motionAbsolute, nullptr, 1, 0, 0U, uint(point.x()),
                           uint(point.y()), uint(screen.width()), uint(screen.height()));
    send(16);
}

void Finger::press(bool down) {
    wl_proxy_marshal_flags(m_pointer, button, nullptr, 1, 0, 0U, uint(BTN_LEFT), uint(down));
    send(60);
}

void Finger::send(int milliseconds) {
    if (!m_pointer)
        return;
    wl_proxy_marshal_flags(m_pointer, frame, nullptr, 1, 0);
    wl_display_roundtrip(m_display);
    QTest::qWait(milliseconds);
}

} // namespace kovamo

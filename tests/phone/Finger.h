#pragma once

#include <QPoint>
#include <QSize>

struct wl_display;
struct wl_proxy;

namespace kovamo {

/// A pointer on the screen of a Wayland compositor, moved through the protocol
/// wlr-virtual-pointer-unstable-v1.
class Finger {
  public:
    /// Joins the compositor at the socket `display`; nothing can be touched where that fails.
    explicit Finger(const char* display);
    ~Finger();
    Q_DISABLE_COPY_MOVE(Finger)

    [[nodiscard]] bool isThere() const { return m_pointer != nullptr; }

    /// Touches a point of a screen of a size.
    void tap(QPoint point, QSize screen) { drag(point, point, screen); }
    /// Touches a point, moves to another and lets go.
    void drag(QPoint from, QPoint to, QSize screen);

  private:
    void move(QPoint point, QSize screen);
    void press(bool down);
    void send(int milliseconds);

    wl_display* m_display = nullptr;
    wl_proxy* m_manager = nullptr;
    wl_proxy* m_pointer = nullptr;
};

} // namespace kovamo

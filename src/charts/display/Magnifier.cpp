#include "Magnifier.h"

#include "platform/views/ShapeViews.h"
#include "platform/views/ViewModifiers.h"

namespace kovamo {

namespace {

constexpr double zoom = 2;

/// The plot as the lens sees it: enlarged about the focus, which stands in the middle.
struct EnlargedPlot {
    Magnifier lens;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        painter.save();
        painter.translate(rect.center());
        painter.scale(zoom, zoom);
        painter.translate(-lens.focus);
        lens.plot.paint(painter, QRectF(QPointF(), lens.plotSize), environment);
        painter.restore();
    }
};

} // namespace

void Magnifier::paint(QPainter& painter, const QRectF& rect,
                      const EnvironmentValues& environment) const {
    const QRectF glass = rect.adjusted(1, 1, -1, -1);
    FilledShape{Capsule{}, Color{SystemColor::cell}}.paint(painter, glass, environment);
    ClippedView{EnlargedPlot{*this}, Capsule{}}.paint(painter, glass, environment);
    StrokedShape{Capsule{}, Color{SystemColor::gray}, StrokeStyle{1}}.paint(painter, glass,
                                                                            environment);
    const QRectF dot(rect.center() - QPointF(5, 5), QSizeF(10, 10));
    FilledShape{Capsule{}, Color{SystemColor::cell}}.paint(painter, dot, environment);
    FilledShape{Capsule{}, color}.paint(painter, dot.adjusted(2, 2, -2, -2), environment);
}

} // namespace kovamo

#pragma once

#include "platform/views/AnyView.h"

#include <QImage>
#include <gtest/gtest.h>
#include <memory>

namespace kovamo {

/// The picture of a view in `rect`, on white, of `size` points with `scale` pixels to a point.
inline QImage raster(const AnyView& view, QSize size, const QRectF& rect, int scale = 1) {
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    view.paint(painter, rect, {});
    return image;
}

inline QImage raster(const AnyView& view, QSize size, int scale = 1) {
    return raster(view, size, QRectF(QPointF(), size), scale);
}

/// Fails unless two colours are the same but for `tolerance` in each component.
inline void expectColor(QColor actual, QColor expected, const char* where = "", int tolerance = 6) {
    const auto near = [=](int a, int b) { return std::abs(a - b) <= tolerance; };
    EXPECT_TRUE(near(actual.red(), expected.red()) && near(actual.green(), expected.green()) &&
                near(actual.blue(), expected.blue()))
        << where << ": " << actual.name().toStdString() << ", not "
        << expected.name().toStdString();
}

inline QColor light(SystemColor color) {
    return resolved(color, ColorScheme::light);
}

/// Whether anything was painted on the white of `image` inside of `area`, in pixels.
inline bool isPainted(const QImage& image, QRect area) {
    QImage blank = image.copy(area);
    blank.fill(Qt::white);
    return image.copy(area) != blank;
}

/// A view that paints nothing and keeps where, and in which appearance, it was painted.
struct Witness {
    std::shared_ptr<std::vector<QRectF>> rects = std::make_shared<std::vector<QRectF>>();
    std::shared_ptr<std::vector<ColorScheme>> schemes =
        std::make_shared<std::vector<ColorScheme>>();

    void paint(QPainter&, const QRectF& rect, const EnvironmentValues& environment) const {
        rects->push_back(rect);
        schemes->push_back(environment.value<ColorSchemeKey>());
    }
};

} // namespace kovamo

#include "SystemColors.h"

#include <QJSEngine>
#include <QQmlEngine>

namespace kovamo {

namespace {

QColor rgb(QRgb value, double opacity = 1) {
    QColor color = QColor::fromRgb(value);
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

} // namespace

QColor resolved(SystemColor color, ColorScheme scheme) {
    const bool dark = scheme == ColorScheme::dark;
    switch (color) {
    case SystemColor::yellow:
        return rgb(dark ? 0xFFD60A : 0xFFCC00);
    case SystemColor::green:
        return rgb(dark ? 0x30D158 : 0x34C759);
    case SystemColor::red:
        return rgb(dark ? 0xFF453A : 0xFF3B30);
    case SystemColor::blue:
    case SystemColor::accent:
        return rgb(dark ? 0x0A84FF : 0x007AFF);
    case SystemColor::purple:
        return rgb(dark ? 0xBF5AF2 : 0xAF52DE);
    case SystemColor::gray:
        return rgb(0x8E8E93);
    case SystemColor::label:
        return rgb(dark ? 0xFFFFFF : 0x000000);
    case SystemColor::secondaryLabel:
        return rgb(dark ? 0xEBEBF5 : 0x3C3C43, 0.60);
    case SystemColor::tertiaryLabel:
        return rgb(dark ? 0xEBEBF5 : 0x3C3C43, 0.30);
    case SystemColor::separator:
        return dark ? rgb(0x545458, 0.60) : rgb(0x3C3C43, 0.29);
    case SystemColor::fill:
        return rgb(0x767680, dark ? 0.24 : 0.12);
    case SystemColor::thumb:
        return rgb(dark ? 0x636366 : 0xFFFFFF);
    case SystemColor::dimming:
        return rgb(0x000000, dark ? 0.48 : 0.20);
    case SystemColor::background:
        return rgb(dark ? 0x000000 : 0xFFFFFF);
    case SystemColor::groupedBackground:
        return rgb(dark ? 0x000000 : 0xF2F2F7);
    case SystemColor::cell:
        return rgb(dark ? 0x1C1C1E : 0xFFFFFF);
    case SystemColor::white:
        return rgb(0xFFFFFF);
    case SystemColor::black:
        return rgb(0x000000);
    }
    Q_UNREACHABLE();
}

SystemColors& SystemColors::shared() {
    static SystemColors colors;
    return colors;
}

SystemColors* SystemColors::create(QQmlEngine*, QJSEngine*) {
    SystemColors* colors = &shared();
    QJSEngine::setObjectOwnership(colors, QJSEngine::CppOwnership);
    return colors;
}

void SystemColors::setColorScheme(ColorScheme scheme) {
    if (scheme == m_scheme)
        return;
    m_scheme = scheme;
    Q_EMIT changed();
}

} // namespace kovamo

#include "RollingNumber.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace kovamo {

namespace {

constexpr int notADigit = -1;

int digitOf(char32_t character) {
    return QChar::digitValue(character);
}

/// The digit `value` of the script that `digit` is of. Unicode keeps the ten of each in a row.
QString sibling(char32_t digit, int value) {
    const char32_t character = digit + static_cast<char32_t>(value - digitOf(digit));
    return QString::fromUcs4(&character, 1);
}

} // namespace

RollingNumber::RollingNumber(QQuickItem* parent) : QQuickPaintedItem(parent) {
    m_roll.setStartValue(0.0);
    m_roll.setEndValue(1.0);
    m_roll.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_roll, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(this, &RollingNumber::textChanged, this, &RollingNumber::roll);
    connect(this, &RollingNumber::fontChanged, this, &RollingNumber::measure);
    connect(this, &RollingNumber::colorChanged, this, [this] { update(); });
}

void RollingNumber::setDuration(int milliseconds) {
    if (milliseconds == m_roll.duration())
        return;
    m_roll.setDuration(milliseconds);
    Q_EMIT durationChanged();
}

double RollingNumber::shown(const Place& place) const {
    const double done = isRolling() ? m_roll.currentValue().toDouble() : 1;
    return place.from + (digitOf(place.character) - place.from) * done;
}

void RollingNumber::roll() {
    const QList<uint> characters = m_text.toUcs4();
    std::vector<Place> places;
    for (auto character = characters.crbegin(); character != characters.crend(); ++character) {
        const std::size_t index = places.size();
        const bool hadDigit =
            index < m_places.size() && digitOf(m_places[index].character) != notADigit;
        places.push_back({*character, hadDigit ? shown(m_places[index]) : 0});
    }
    m_roll.stop();
    m_places = std::move(places);
    measure();
    if (isComponentComplete())
        m_roll.start();
}

void RollingNumber::measure() {
    const QFontMetricsF metrics(m_font);
    double width = 0;
    for (const Place& place : m_places)
        width += metrics.horizontalAdvance(QString::fromUcs4(&place.character, 1));
    setImplicitSize(std::ceil(width), std::ceil(metrics.height()));
    update();
}

void RollingNumber::paint(QPainter* painter) {
    painter->setFont(m_font);
    painter->setPen(m_color);
    const QFontMetricsF metrics(m_font);
    double right = width();
    for (const Place& place : m_places) {
        const QString character = QString::fromUcs4(&place.character, 1);
        const double width = metrics.horizontalAdvance(character);
        right -= width;
        if (isRolling() && digitOf(place.character) != notADigit)
            paintRolling(*painter, place, QRectF(right, 0, width, height()));
        else
            painter->drawText(QPointF(right, metrics.ascent()), character);
    }
}

void RollingNumber::paintRolling(QPainter& painter, const Place& place, const QRectF& area) const {
    const double position = shown(place), above = std::floor(position);
    painter.setClipRect(area);
    for (const double digit : {above, above + 1})
        if (digit <= 9)
            painter.drawText(QPointF(area.x(), painter.fontMetrics().ascent() +
                                                   (digit - position) * area.height()),
                             sibling(place.character, static_cast<int>(digit)));
    painter.setClipping(false);
}

} // namespace kovamo

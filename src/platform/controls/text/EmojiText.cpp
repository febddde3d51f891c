#include "EmojiText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPixmapCache>
#include <QQuickWindow>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <unicode/uchar.h>

namespace kovamo {

namespace {

/// Wider than any list has room for; a pasted text may be of any length.
constexpr qreal widest = 1000;

/// Digits and other letters of ASCII are the beginnings of emoji, but none themselves.
bool beginsWithEmoji(const QString& text) {
    const char32_t first = text.isEmpty() ? 0 : text.toUcs4().constFirst();
    return first > 0x7f && u_hasBinaryProperty(static_cast<UChar32>(first), UCHAR_EMOJI);
}

QFont fontFor(const QString& text, QFont font) {
    if (beginsWithEmoji(text))
        font.setFamilies(QStringList(emojiFontFamily()) + font.families());
    return font;
}

/// `text`, cut at the widest, on a transparent ground, `pixelRatio` pixels a point. It is shaped
/// once: that decodes the emoji's picture, every time.
QPixmap drawn(const QString& text, const QFont& font, const QColor& color, qreal pixelRatio) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setNumColumns(int(text.size()));
    layout.endLayout();
    const QFontMetricsF metrics(font);
    const QSizeF size(std::ceil(std::min(line.naturalTextWidth(), widest)),
                      std::ceil(metrics.height()));
    QPixmap picture((size * pixelRatio).toSize());
    if (picture.isNull())
        return picture;
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(color);
    layout.draw(&painter, QPointF(0, metrics.ascent() - line.ascent()));
    return picture;
}

} // namespace

QString emojiFontFamily() {
    return QStringLiteral("Noto Color Emoji");
}

EmojiText::EmojiText(QQuickItem* parent) : QQuickPaintedItem(parent) {
    for (const auto signal :
         {&EmojiText::textChanged, &EmojiText::fontChanged, &EmojiText::colorChanged})
        connect(this, signal, this, &EmojiText::draw);
    connect(this, &EmojiText::maximumWidthChanged, this, &EmojiText::fit);
}

void EmojiText::componentComplete() {
    QQuickPaintedItem::componentComplete();
    draw();
}

void EmojiText::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        draw();
}

void EmojiText::draw() {
    if (!isComponentComplete() || !window())
        return;
    const QFont font = fontFor(m_text, m_font);
    const qreal pixelRatio = window()->effectiveDevicePixelRatio();
    const QString key = QStringLiteral("%1 %2 %3 ").arg(m_color.rgba()).arg(pixelRatio) +
                        font.key() + u' ' + m_text;
    if (!QPixmapCache::find(key, &m_picture)) {
        m_picture = drawn(m_text, font, m_color, pixelRatio);
        QPixmapCache::insert(key, m_picture);
    }
    fit();
}

void EmojiText::fit() {
    const QSizeF whole = m_picture.deviceIndependentSize();
    m_cut.reset();
    if (whole.width() > m_maximumWidth) {
        const QFontMetricsF metrics(fontFor(m_text, m_font));
        m_cut = metrics.elidedText(m_text, Qt::ElideRight, m_maximumWidth);
        setImplicitSize(std::ceil(metrics.horizontalAdvance(*m_cut)), whole.height());
    } else {
        setImplicitSize(whole.width(), whole.height());
    }
    update();
}

void EmojiText::paint(QPainter* painter) {
    if (!m_cut)
        return painter->drawPixmap(QPointF(), m_picture);
    painter->setFont(fontFor(m_text, m_font));
    painter->setPen(m_color);
    painter->drawText(QPointF(0, QFontMetricsF(painter->font()).ascent()), *m_cut);
}

} // namespace kovamo

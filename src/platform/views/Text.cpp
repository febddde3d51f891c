#include "Text.h"

#include <QFontMetricsF>

namespace kovamo {

void Text::paint(QPainter& painter, const QRectF& rect,
                 const EnvironmentValues& environment) const {
    QFont font;
    font.setPixelSize(size);
    painter.save();
    painter.setFont(font);
    painter.setPen(color.resolved(environment));
    painter.drawText(rect, Qt::AlignCenter | Qt::TextSingleLine,
                     QFontMetricsF(font).elidedText(string, Qt::ElideRight, rect.width()));
    painter.restore();
}

} // namespace kovamo

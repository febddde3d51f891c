#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace kovamo {

/// A panel with continuous corners, filled from its left to its right colour, on a soft
/// shadow of black at 33 % with no offset. All is painted; the shadow lies outside of the panel's
/// bounds, `shadowExtent` points wide.
class GradientPanel : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor leftColor MEMBER m_leftColor NOTIFY changed)
    Q_PROPERTY(QColor rightColor MEMBER m_rightColor NOTIFY changed)
    /// Corner radius in points.
    Q_PROPERTY(qreal cornerRadius MEMBER m_cornerRadius NOTIFY changed)
    /// How far the shadow reaches, in points: the item is that much larger than the panel, on
    /// every side.
    Q_PROPERTY(qreal shadowExtent MEMBER m_shadowExtent NOTIFY changed)

  public:
    explicit GradientPanel(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void changed();

  private:
    QColor m_leftColor;
    QColor m_rightColor;
    qreal m_cornerRadius = 20;
    qreal m_shadowExtent = 10;
};

} // namespace kovamo

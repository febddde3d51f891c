#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace kovamo {

/// A five-pointed star with round points, filled or in outline.
class RatingStar : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(bool filled MEMBER m_filled NOTIFY changed)

  public:
    explicit RatingStar(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void changed();

  private:
    QColor m_color;
    bool m_filled = false;
};

} // namespace kovamo

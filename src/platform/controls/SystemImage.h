#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// A system symbol, found by its name, drawn as strokes in one colour into the largest square of
/// the item's middle. A name that the system does not know paints nothing.
class SystemImage : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

  public:
    explicit SystemImage(QQuickItem* parent = nullptr);

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString& name);

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void nameChanged();
    void colorChanged();

  private:
    QString m_name;
    QColor m_color;
};

} // namespace kovamo

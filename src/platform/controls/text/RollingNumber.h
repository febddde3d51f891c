#pragma once

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QVariantAnimation>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace kovamo {

/// A number whose digits roll to their new value: at each place the column of the ten digits
/// scrolls by. What is first shown stands, and so do characters that are no digits.
class RollingNumber : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// The number as it is read: "1,234", in the digits of any script.
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY fontChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged)
    /// How long a roll takes, in milliseconds; 0 stands still.
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY durationChanged)
    Q_PROPERTY(bool rolling READ isRolling)

  public:
    explicit RollingNumber(QQuickItem* parent = nullptr);

    [[nodiscard]] int duration() const { return m_roll.duration(); }
    void setDuration(int milliseconds);

    /// Whether a digit is on its way.
    [[nodiscard]] bool isRolling() const { return m_roll.state() == QVariantAnimation::Running; }

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void colorChanged();
    void durationChanged();

  private:
    struct Place {
        char32_t character;
        /// The digit that was in sight when the roll began, between two of them if it was caught.
        double from;
    };

    void roll();
    void measure();
    [[nodiscard]] double shown(const Place& place) const;
    void paintRolling(QPainter& painter, const Place& place, const QRectF& area) const;

    QString m_text;
    QFont m_font;
    QColor m_color;
    /// Counted from the right, so that the ones stay the ones when a digit is added.
    std::vector<Place> m_places;
    QVariantAnimation m_roll;
};

} // namespace kovamo

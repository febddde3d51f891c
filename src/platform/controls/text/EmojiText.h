#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>
#include <limits>
#include <optional>

namespace kovamo {

/// The family whose emoji are in colour.
[[nodiscard]] QString emojiFontFamily();

/// One line of text that is meant to be an emoji, in colour even where the language's own font has
/// it in black; any other text looks as usual.
/// Qt's Text decodes an emoji's picture several times at each layout: here what looks
/// alike is drawn once.
class EmojiText : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged)
    /// Its size and weight count.
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY fontChanged)
    /// Of what is no emoji.
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged)
    /// What is wider ends in an ellipsis, and the item with it.
    Q_PROPERTY(qreal maximumWidth MEMBER m_maximumWidth NOTIFY maximumWidthChanged)

  public:
    explicit EmojiText(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void colorChanged();
    void maximumWidthChanged();

  protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

  private:
    void draw();
    void fit();

    QString m_text;
    QFont m_font;
    QColor m_color;
    qreal m_maximumWidth = std::numeric_limits<qreal>::infinity();
    QPixmap m_picture;
    // What is shown in place of a picture that is too wide.
    std::optional<QString> m_cut;
};

} // namespace kovamo

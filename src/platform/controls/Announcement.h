#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// An item whose text a screen reader says by itself when it has changed. What it says first, it
/// says when it is asked.
class Announcement : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

  public:
    explicit Announcement(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString& text);

  Q_SIGNALS:
    void textChanged();

  private:
    QString m_text;
};

} // namespace kovamo

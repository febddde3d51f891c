#pragma once

#include "AnyView.h"

#include <QQuickPaintedItem>

namespace kovamo {

/// The Quick item that paints a view over its whole area, in the appearance in force, at the
/// screen's own resolution. What a view paints beyond its rectangle is cut off at the edge.
class ViewItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kovamo::AnyView view READ view WRITE setView NOTIFY viewChanged)

  public:
    explicit ViewItem(QQuickItem* parent = nullptr);

    [[nodiscard]] const AnyView& view() const { return m_view; }
    void setView(const AnyView& view);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void viewChanged();

  private:
    AnyView m_view;
};

} // namespace kovamo

#pragma once

#include "Focusable.h"

namespace kovamo {

/// A row of a list that can be opened and deleted. To a screen reader it is one thing, whatever it
/// is made of, and offers both as its actions.
class DeletableRow : public Focusable {
    Q_OBJECT
    QML_ELEMENT

  public:
    explicit DeletableRow(QQuickItem* parent = nullptr) : Focusable(parent) {}

  Q_SIGNALS:
    /// The row was tapped, or Enter pressed on it.
    void clicked();
    /// The user wants the row to go.
    void deleteRequested();
};

} // namespace kovamo

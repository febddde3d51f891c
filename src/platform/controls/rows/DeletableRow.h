#pragma once

#include "platform/controls/Focusable.h"

namespace kovamo {

/// A row of a list that can be opened and deleted. To a screen reader it is one thing, whatever it
/// is made of, and offers both as its actions. (The base is written in full for the QML tools.)
class DeletableRow : public kovamo::Focusable {
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

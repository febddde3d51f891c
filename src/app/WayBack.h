#pragma once

#include "platform/objectstore/PersistentContainer.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// The offer to go back to the newest copy of a store that is gone, for as long as the one that was
/// made in its place has no records and the user has not answered.
class WayBack : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the app")
    Q_PROPERTY(bool offered READ isOffered NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString action READ action CONSTANT)

  public:
    /// Requires: `container` is loaded and outlives the offer.
    explicit WayBack(const PersistentContainer& container);

    [[nodiscard]] bool isOffered() const { return m_former.has_value(); }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] QString action() const { return m_action; }

    /// Puts the copy in the store's place; the store is set aside. Where that fails, the message
    /// says why, and the offer stays.
    Q_INVOKABLE void goBack();

    /// Lets the store be as it is.
    Q_INVOKABLE void keepEmpty();

  Q_SIGNALS:
    void changed();

  private:
    const PersistentContainer& m_container;
    std::optional<FormerStore> m_former;
    QString m_message;
    QString m_action;
};

} // namespace kovamo

#pragma once

#include "model/Transaction.h"
#include "platform/objectstore/ManagedObjectContext.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// What was deleted on a screen, to be taken back one after another, the last one first.
class DeletedTransactions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the screen of all transactions")
    Q_PROPERTY(QString sentence READ sentence NOTIFY sentenceChanged)

  public:
    /// Requires: `context` outlives this.
    explicit DeletedTransactions(ManagedObjectContext& context) : m_context(context) {}

    /// The sentence about the last deletion, for eight seconds, until the next one or until it is
    /// taken back; empty otherwise.
    [[nodiscard]] QString sentence() const { return m_sentence; }

    /// A record is about to be deleted.
    void willDelete(const Transaction& record);

    /// Inserts the record that was deleted last, as it was, and saves it at once; one that is
    /// stored again by other means stays as it is. Returns the record; null where nothing is left
    /// to take back, or where it cannot be saved: then it can be tried again.
    Transaction* takeBack();

  Q_SIGNALS:
    void sentenceChanged();

  private:
    [[nodiscard]] Transaction* stored(const Value& id) const;
    void say(const QString& sentence);

    ManagedObjectContext& m_context;
    /// The values of each, the last deleted one last.
    std::vector<std::vector<Value>> m_deleted;
    QString m_sentence;
    // So that a queued call clears its own sentence only, and not a later one.
    int m_sentenceNumber = 0;
};

} // namespace kovamo

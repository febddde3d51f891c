#pragma once

#include "PresentationMode.h"
#include "model/Transaction.h"
#include "platform/objectstore/ManagedObjectContext.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// The form through which a transaction is recorded or changed. It holds a copy of every field;
/// nothing of it reaches the store before save(). Dates are moments, as momentOf() makes them.
class AddTransactionView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(AddTransactionState)
    QML_UNCREATABLE("Made by the screen that opens the form")
    Q_PROPERTY(QString navigationTitle READ navigationTitle CONSTANT)
    Q_PROPERTY(QString emoji READ emoji WRITE setEmoji NOTIFY emojiChanged)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString amount READ amount WRITE setAmount NOTIFY amountChanged)
    Q_PROPERTY(QList<QString> positiveTypes READ positiveTypes CONSTANT)
    Q_PROPERTY(QString selectedPositive READ selectedPositive WRITE setSelectedPositive NOTIFY
                   selectedPositiveChanged)
    Q_PROPERTY(bool isRecurring READ isRecurring WRITE setIsRecurring NOTIFY isRecurringChanged)
    Q_PROPERTY(QList<QString> types READ types CONSTANT)
    Q_PROPERTY(
        QString selectedType READ selectedType WRITE setSelectedType NOTIFY selectedTypeChanged)
    Q_PROPERTY(double startDate READ startDate WRITE setStartDate NOTIFY startDateChanged)
    Q_PROPERTY(double endDate READ endDate WRITE setEndDate NOTIFY endDateChanged)
    Q_PROPERTY(bool canSave READ canSave NOTIFY canSaveChanged)

  public:
    /// A form for a new transaction, or for `existing`. A record without title, emoji or a date
    /// is a fatal error. Requires: context and record outlive the form.
    explicit AddTransactionView(ManagedObjectContext& viewContext, Transaction* existing = nullptr,
                                PresentationMode presentationMode = {});

    /// The record that is being edited; null for a new one.
    [[nodiscard]] Transaction* existingTransaction() const { return m_existingTransaction; }

    [[nodiscard]] QString navigationTitle() const;

    [[nodiscard]] QString emoji() const { return m_emoji; }
    void setEmoji(const QString& emoji);

    [[nodiscard]] QString title() const { return m_title; }
    void setTitle(const QString& title);

    /// The amount as typed: ASCII digits, anything else vanishes as it is set.
    [[nodiscard]] QString amount() const { return m_amount; }
    void setAmount(const QString& amount);

    [[nodiscard]] static QStringList positiveTypes();
    [[nodiscard]] QString selectedPositive() const { return m_selectedPositive; }
    void setSelectedPositive(const QString& positive);

    [[nodiscard]] bool isRecurring() const { return m_isRecurring; }
    void setIsRecurring(bool isRecurring);

    [[nodiscard]] static QStringList types();
    [[nodiscard]] QString selectedType() const { return m_selectedType; }
    void setSelectedType(const QString& type);

    [[nodiscard]] double startDate() const;
    void setStartDate(double moment);

    [[nodiscard]] double endDate() const;
    void setEndDate(double moment);

    /// Whether emoji, title and amount are filled; a blank is.
    [[nodiscard]] bool canSave() const;

    /// Writes the fields into the record, saves the context, posts transactionRefresh() and
    /// dismisses the form. Does nothing while canSave() is false, nor a second time. An amount
    /// beyond 32 bits and a failed save are fatal errors.
    Q_INVOKABLE void save();

  Q_SIGNALS:
    void emojiChanged();
    void titleChanged();
    void amountChanged();
    void selectedPositiveChanged();
    void isRecurringChanged();
    void selectedTypeChanged();
    void startDateChanged();
    void endDateChanged();
    void canSaveChanged();

  private:
    template<typename T>
    bool assign(T& field, const T& value, void (AddTransactionView::*changed)());

    ManagedObjectContext& m_viewContext;
    PresentationMode m_presentationMode;
    QString m_emoji;
    QString m_title;
    QString m_amount;
    bool m_isRecurring = false;
    bool m_isSaved = false;
    Instant m_startDate;
    Instant m_endDate;
    Transaction* m_existingTransaction;
    QString m_selectedType;
    QString m_selectedPositive;
};

} // namespace kovamo

#pragma once

#include "ledger/TransactionContainer.h"
#include "platform/views/AnyView.h"
#include "platform/views/ShapeStyle.h"

#include <QList>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// The card with the balance of a time frame: a verdict, the net amount and the colour of both.
/// With no transaction in the frame there is no card.
class Banner {
    Q_GADGET
    QML_VALUE_TYPE(banner)
    Q_PROPERTY(bool isShown READ isShown)
    Q_PROPERTY(QString infoText MEMBER infoText)
    Q_PROPERTY(QString kovamoText MEMBER kovamoText)
    Q_PROPERTY(QString numberText READ numberText)
    Q_PROPERTY(QString leadingSymbol READ leadingSymbol)
    Q_PROPERTY(QString trailingSymbol READ trailingSymbol)
    Q_PROPERTY(QString sentence READ sentence)
    Q_PROPERTY(kovamo::AnyView card READ card)

  public:
    Banner() = default;

    /// Gathers the frame's transactions and settles the verdict. A sum beyond 64 bits is a fatal
    /// error. Requires: `viewContext` outlives the value.
    Banner(ManagedObjectContext& viewContext, TimeFrame selectedTimeFrame);

    ManagedObjectContext* viewContext = nullptr;
    QList<SharedPresentation> transactions;
    LinearGradient greenGardient{{{SystemColor::yellow}, {SystemColor::green}}};
    LinearGradient redGradient{{{SystemColor::yellow}, {SystemColor::red}}};
    LinearGradient blueGradient{{{SystemColor::gray}, {SystemColor::blue}}};
    /// The size of the net balance.
    std::int64_t kovamo = 0;
    LinearGradient currentGradient = greenGardient;
    /// The verdict.
    QString infoText;
    /// The sign text shown before the number.
    QString kovamoText;

    [[nodiscard]] bool isShown() const { return !transactions.isEmpty(); }

    /// `kovamo` in the digits and grouping of the user's locale.
    [[nodiscard]] QString numberText() const;

    /// What the user's locale puts before an amount of money, if it puts the currency there.
    [[nodiscard]] QString leadingSymbol() const;

    /// What the user's locale puts after an amount of money, if it puts the currency there. Writes
    /// the locale's name as a line to standard output.
    [[nodiscard]] QString trailingSymbol() const;

    /// Verdict and balance as one sentence for a screen reader.
    [[nodiscard]] QString sentence() const;

    /// The filled card.
    [[nodiscard]] AnyView card() const;

  private:
    void judge(std::int64_t sum);
};

} // namespace kovamo

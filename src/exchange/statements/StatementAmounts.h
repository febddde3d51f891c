#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace kovamo {

/// An amount of money as a statement writes it.
struct StatementAmount {
    bool isNegative = false;
    /// The size in hundredths, what is smaller cut off.
    std::int64_t hundredths = 0;
    /// The size as a whole number, half away from zero.
    std::int64_t whole = 0;
    /// The digits alone: "-12.5", the same for "-12,50 €" and "(12.50)".
    QString exact;
};

/// How a statement writes its amounts, learned from all of them.
class StatementAmounts {
  public:
    /// Learns from an amount as the file has it.
    void learn(const QString& text);

    /// The amount that a text says; nothing where it says none, or one of more than 15 digits.
    [[nodiscard]] std::optional<StatementAmount> amount(const QString& text) const;

  private:
    // How many amounts have a decimal point for certain, and how many a decimal comma.
    std::int64_t m_points = 0;
    std::int64_t m_commas = 0;
};

} // namespace kovamo

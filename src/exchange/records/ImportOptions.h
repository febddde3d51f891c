#pragma once

#include "ExchangeFormat.h"

#include <QMap>
#include <functional>

namespace kovamo {

/// How a file is read.
struct ImportOptions {
    /// CSV or JSON.
    ExchangeFormat format = ExchangeFormat::csv;
    /// Passes over lines that cannot be read instead of refusing the file for them.
    bool skipBad = false;
    /// The header's words of a statement, by what they are: "date", "title", "amount", "debit",
    /// "credit". They go before those that are known.
    QMap<QString, QString> columns{};
    /// How a statement writes its dates: "dd.MM.yyyy", made of d, M and y; empty where their shape
    /// tells.
    QString dateFormat{};
    /// What stands beside the records of a statement.
    QString emoji = QStringLiteral("🏦");
    /// Is told, now and then, how many bytes have been read; false stops the import.
    std::function<bool(qint64 bytes)> progress{};
};

} // namespace kovamo

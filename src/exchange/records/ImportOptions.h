#pragma once

#include "ExchangeFormat.h"
#include "platform/objectstore/Value.h"

#include <QMap>
#include <functional>
#include <span>

namespace kovamo {

/// How a file is read.
struct ImportOptions {
    /// CSV or JSON.
    ExchangeFormat format = ExchangeFormat::csv;
    /// Skips lines that cannot be read instead of refusing the file for them.
    bool skipBad = false;
    /// What a statement's header calls its columns, by "date", "title", "amount", "debit" and
    /// "credit". These names take precedence over the known ones.
    QMap<QString, QString> columns{};
    /// How a statement writes its dates, as QDate reads a format: "dd.MM.yyyy". Empty to find out.
    QString dateFormat{};
    /// The emoji of the records of a statement.
    QString emoji = QStringLiteral("🏦");
    /// What keeps a record from coming in, in a few words; empty where nothing does.
    std::function<QString(std::span<const Value>)> objection{};
    /// Called now and then with the number of bytes read; false stops the import.
    std::function<bool(qint64 bytes)> progress{};
};

} // namespace kovamo

#include "exchange/Journal.h"
#include "Device.h"

#include <QProcess>

namespace kovamo {
namespace {

Record record(std::int32_t amount, bool isPositive, const char* title, const char* start,
              const char* type = nullptr, const char* end = "2030-01-01") {
    Record record(Transaction::entity().attributes.size());
    record[Transaction::Amount] = amount;
    record[Transaction::IsPositive] = isPositive;
    record[Transaction::IsRecurring] = type != nullptr;
    record[Transaction::Title] = QString::fromUtf8(title);
    record[Transaction::Emoji] = QStringLiteral("🙂");
    record[Transaction::StartDate] = at(start);
    record[Transaction::EndDate] = at(end);
    if (type)
        record[Transaction::RecurringType] = QString::fromUtf8(type);
    return record;
}

TEST(Journal, IsReadByTheProgramsItIsFor) {
    const World world;
    Device device(QStringLiteral("store"));
    device.add({record(1000, true, "Pay", "2024-01-31", "monthly"), // four times until 15 May
                record(120, false, "Fee", "2023-06-01", "yearly", "2024-01-01"),
                record(7, false, "; a | b  * (c) = {d} @ 3\n! e\t", "2024-05-15"),
                record(-5, false, "(x", "2024-05-14"), record(1, true, "* y", "2024-05-14"),
                record(2147483647, true, "", "1999-12-31"),
                record(9, true, "x", "2024-01-01", "x")});
    QFile file(World::folder() + u"/journal");
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    EXPECT_EQ(exportJournal(device.store, file, Clock::now()), 9);
    file.close();
    constexpr std::int64_t balance = 4000LL - 120 - 7 + 5 + 1 + 2147483647;
    for (const char* program : {"ledger", "hledger"}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        process.setProcessEnvironment(environment);
        process.start(QString::fromUtf8(program),
                      {QStringLiteral("-f"), file.fileName(), QStringLiteral("balance"),
                       QStringLiteral("Assets")});
        ASSERT_TRUE(process.waitForFinished()) << program;
        EXPECT_EQ(process.readAllStandardError().toStdString(), "") << program;
        EXPECT_EQ(process.readAllStandardOutput().trimmed().split(' ').first().toLongLong(),
                  balance)
            << program;
    }
}

} // namespace
} // namespace kovamo

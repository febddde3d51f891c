#include "Device.h"

#include <random>

namespace kovamo {
namespace {

using Random = std::mt19937_64;

template<typename T, std::size_t size>
const T& pick(Random& random, const T (&choices)[size]) {
    return choices[random() % size];
}

Value someText(Random& random) {
    static const char* const pieces[]{
        "a",    "\"",      ",",    ";",      "\r",     "\n",    "\r\n",
        "\t",   " ",       "=1+1", "\\",     "‏",    "עברית", "👨‍👩‍👧‍👦",
        "\x01", "\x7f",    "'",    "\ufeff", "\u2028", "null",  "﷽",
        "é",    "e\u0301", "{}",   "|",      "*"};
    if (random() % 8 == 0)
        return {};
    QString text;
    for (auto count = random() % 6; count > 0; --count)
        text += QString::fromUtf8(pick(random, pieces));
    return random() % 20 ? text : text + QChar(u'\0') + u'x';
}

Value someInstant(Random& random) {
    static const std::int64_t choices[]{0,
                                        -1,
                                        1'715'767'200'123,
                                        253'402'300'799'999,
                                        253'402'300'800'000,
                                        -62'135'596'800'000,
                                        -62'167'219'200'001,
                                        std::numeric_limits<std::int64_t>::max(),
                                        std::numeric_limits<std::int64_t>::min()};
    if (random() % 8 == 0)
        return {};
    const bool isUsual = random() % 4 != 0;
    return Instant(std::chrono::milliseconds(isUsual ? std::int64_t(random() % 2'000'000'000'000)
                                                     : pick(random, choices)));
}

Record someRecord(Random& random) {
    static const std::int32_t amounts[]{0, -1, 42, std::numeric_limits<std::int32_t>::min(),
                                        std::numeric_limits<std::int32_t>::max()};
    static const char* const types[]{"monthly", "yearly", "", "other", "weekly", " monthly"};
    Record record(Transaction::entity().attributes.size());
    record[Transaction::Amount] = pick(random, amounts);
    record[Transaction::Emoji] = someText(random);
    record[Transaction::EndDate] = someInstant(random);
    if (random() % 10)
        record[Transaction::Id] = QUuid(std::uint32_t(random()), 0, 1, 2, 3, 4, 5, 6, 7, 8, 9);
    record[Transaction::IsPositive] = random() % 2 == 0;
    record[Transaction::IsRecurring] = random() % 2 == 0;
    if (random() % 6)
        record[Transaction::RecurringType] = QString::fromUtf8(pick(random, types));
    record[Transaction::StartDate] = someInstant(random);
    record[Transaction::Timestamp] = someInstant(random);
    record[Transaction::Title] = someText(random);
    return record;
}

struct ExchangeLaw : testing::Test {
    World world;
    Random random{7};
};

TEST_F(ExchangeLaw, WhatGoesOutComesIn) {
    for (int round = 0; round < 8; ++round)
        for (const ExchangeFormat format : {ExchangeFormat::csv, ExchangeFormat::json}) {
            const QString name = QStringLiteral("%1-%2").arg(round).arg(int(format));
            Device device(name);
            std::vector<Record> records(random() % 300);
            std::ranges::generate(records, [&] { return someRecord(random); });
            device.add(records);
            const QByteArray file = device.file(format);
            Device other(name + u'b');
            const ImportReport report = other.take(file, {.format = format});
            ASSERT_EQ(report.faultCount, 0)
                << report.faults[0].text.toStdString() << file.toStdString();
            ASSERT_EQ(report.added, std::ssize(records));
            ASSERT_TRUE(other.records() == records) << file.toStdString();
            ASSERT_EQ(other.file(format), file);
            const ImportReport again = other.take(file, {.format = format});
            ASSERT_EQ(again.same, std::ssize(records));
            ASSERT_EQ(other.file(format), file);
        }
}

} // namespace
} // namespace kovamo

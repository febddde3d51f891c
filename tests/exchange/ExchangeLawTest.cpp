#include "Device.h"

#include <array>
#include <map>
#include <random>
#include <set>

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

/// The records by their ids, which all of them have.
std::map<QByteArray, Record> byID(Device& device) {
    std::map<QByteArray, Record> records;
    for (Record& record : device.records()) {
        const QByteArray id = std::get<QUuid>(record[Transaction::Id]).toRfc4122();
        EXPECT_TRUE(records.emplace(id, std::move(record)).second) << "it came twice";
    }
    return records;
}

TEST_F(ExchangeLaw, DevicesThatExchangeInAnyOrderEndAlike) {
    constexpr int deviceCount = 3;
    for (int round = 0; round < 12; ++round) {
        const bool hasConflicts = round % 4 == 0;
        std::vector<std::unique_ptr<Device>> devices;
        for (int i = 0; i < deviceCount; ++i)
            devices.push_back(std::make_unique<Device>(QStringLiteral("%1-%2").arg(round).arg(i)));
        std::vector<std::vector<Record>> records(deviceCount);
        for (std::int64_t i = 0; i < 40; ++i) {
            Record record = someRecord(random);
            record[Transaction::Id] = QUuid(std::uint32_t(i), 1, 2, 3, 4, 5, 6, 7, 8, 9, 10);
            for (int device = 0; device < deviceCount; ++device) {
                if (random() % 3 == 0)
                    continue; // this device never had it
                if (random() % 2) {
                    record[Transaction::Title] = someText(random);
                    if (!hasConflicts || random() % 2)
                        record[Transaction::Timestamp] =
                            Instant(std::chrono::milliseconds(random() % 1000 * 3 + device));
                }
                records[device].push_back(record);
            }
        }
        for (int i = 0; i < deviceCount; ++i)
            devices[i]->add(records[i]);
        std::set<QByteArray> disputed;
        for (bool isOver = false; !isOver;) {
            isOver = true;
            std::vector<std::pair<int, int>> ways;
            for (int from = 0; from < deviceCount; ++from)
                for (int to = 0; to < deviceCount; ++to)
                    if (from != to)
                        ways.emplace_back(from, to);
            std::ranges::shuffle(ways, random);
            for (const auto& [from, to] : ways) {
                const auto format = random() % 2 ? ExchangeFormat::csv : ExchangeFormat::json;
                const auto report =
                    devices[to]->take(devices[from]->file(format), {.format = format});
                isOver = isOver && report.added + report.changed == 0;
                for (const LineFault& conflict : report.conflicts)
                    disputed.insert(QUuid::fromString(conflict.text.first(36)).toRfc4122());
            }
        }
        const auto first = byID(*devices[0]);
        for (const auto& device : devices) {
            const auto other = byID(*device);
            ASSERT_EQ(other.size(), first.size());
            for (const auto& [id, record] : first)
                ASSERT_TRUE(other.at(id) == record || disputed.contains(id));
        }
        ASSERT_TRUE(hasConflicts || disputed.empty());
    }
}

TEST_F(ExchangeLaw, TwoRecordsOfOneIdStayTwo) {
    for (const auto& times : {std::array{1, 5}, std::array{5, 1}, std::array{5, 5}}) {
        Device device(QStringLiteral("%1-%2").arg(times[0]).arg(times[1]));
        std::vector<Record> records(2, someRecord(random));
        for (const int i : {0, 1}) {
            records[i][Transaction::Id] = QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11);
            records[i][Transaction::Timestamp] = Instant(std::chrono::milliseconds(times[i]));
            records[i][Transaction::Amount] = i;
        }
        device.add(records);
        EXPECT_EQ(device.take(device.file()).changed, 0);
        EXPECT_TRUE(device.records() == records);
    }
}

TEST_F(ExchangeLaw, OneBadLineStoresNothing) {
    const QByteArray head = "id,date,title,emoji,amount,kind,timestamp\n";
    const QByteArray good = "7e3c8a1e-0000-4000-8000-000000000001,2024-05-15,a,b,1,earning,\n";
    const struct {
        QByteArray file;
        const char* fault;
        ExchangeFormat format = ExchangeFormat::csv;
    } cases[] = {
        {head + good + "x,,,,1,earning,\n", "3: The id \"x\" is no UUID"},
        {head + "\r\n\r\n" + good + ",2024-05-32,,,1,earning,\n", "5: The date \"2024-05-32\""},
        {head + "\"\r\n\n\",2024\n", "2: There are 2 fields, and 7 in the header"},
        {head + ",,,,1.5,earning,\n", "2: The amount \"1.5\" is no whole number"},
        {head + ",,,,2147483648,earning,\n", "2: The amount \"2147483648\" is no whole"},
        {head + ",,,,,earning,\n", "2: The amount \"\" is no whole"},
        {head + ",,,,1,gift,\n", "2: The kind \"gift\" is no"},
        {head + ",,a\xff,,1,earning,\n", "2: The title"},
        {head + good + ",,\"a\nb,,1,earning,\n" + good, "3: A quoted text has no end"},
        {head + ",,a\"b,,1,earning,\n", "2: A quotation mark is out of place"},
        {"{}\n", "1: The amount", ExchangeFormat::json},
        {"{\"amount\":1.5,\"kind\":\"earning\"}", "1: The amount \"1.5", ExchangeFormat::json},
        {"{\"amount\":1e300,\"kind\":\"earning\"}", "1: The amount \"1", ExchangeFormat::json},
        {"{\"amount\":true,\"kind\":\"earning\"}", "1: The amount is neither",
         ExchangeFormat::json},
        {"\n\n[]\n", "3: This is no JSON object", ExchangeFormat::json},
        {"{\"a\":1} {}", "1: This is no JSON: ", ExchangeFormat::json},
        {R"({"amount":1,"kind":"earning","title":"\ud83d"})", "1: The title has half",
         ExchangeFormat::json},
        {QByteArray(100, '\0'), "1: This is no JSON: ", ExchangeFormat::json},
    };
    Device device(QStringLiteral("store"));
    for (const auto& [file, fault, format] : cases) {
        const ImportReport report = device.take(file, {.format = format});
        EXPECT_TRUE(report.isRefused);
        EXPECT_TRUE(faults(report).starts_with(fault)) << faults(report) << fault;
    }
    EXPECT_TRUE(device.records().empty());
    const ImportReport report =
        device.take(head + QByteArray("bad\n").repeated(12) + good, {.skipBad = true});
    EXPECT_EQ(std::tuple(report.faultCount, report.faults.size(), report.faults[9].line),
              std::tuple(12, 10U, 11));
    EXPECT_EQ(device.records().size(), 1U);
}

} // namespace
} // namespace kovamo

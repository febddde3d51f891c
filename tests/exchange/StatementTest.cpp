#include "Device.h"

namespace kovamo {
namespace {

/// "day amount direction title" of each record, a line for each.
std::string lines(Device& device) {
    std::string lines;
    for (const Record& record : device.records())
        lines += text(std::get<Instant>(record[Transaction::StartDate])).substr(0, 10) + ' ' +
                 (std::get<bool>(record[Transaction::IsPositive]) ? '+' : '-') +
                 std::to_string(std::get<std::int32_t>(record[Transaction::Amount])) + ' ' +
                 std::get<QString>(record[Transaction::Title]).toStdString() + '\n';
    return lines;
}

struct Statement : testing::Test {
    World world;
    Device device{QStringLiteral("store")};
};

TEST_F(Statement, OfManyShapesIsRead) {
    const struct {
        const char* file;
        const char* expected;
        const char* dateFormat = "";
        QMap<QString, QString> columns{};
    } cases[] = {
        // A German bank: a preamble, semicolons, Latin-1, decimal commas, two names for a title.
        {"\"Konto\";\"DE00\"\r\n\r\n"
         "\"Buchungstag\";\"Valuta\";\"Beg\xfcnstigter/Zahlungspflichtiger\";"
         "\"Verwendungszweck\";\"Betrag (EUR)\"\r\n"
         "\"14.05.24\";\"15.05.24\";\"B\xe4"
         "cker\";\"Br\xf6tchen\";\"-1.234,50\"\r\n"
         "\"15.05.24\";\"15.05.24\";\"\";\"Gehalt \x80\";\"3.000,00\"\r\n",
         "2024-05-14 -1235 Bäcker\n2024-05-15 +3000 Gehalt €\n"},
        // A British one: a mark of the byte order, two columns, thousands, a day that tells.
        {"\xef\xbb\xbf"
         "Date,Description,Money Out,Money In,Balance\n"
         "05/04/2024,\"Coffee, black\",3.49,,\"1,000.00\"\n13/04/2024,Pay,,\"£2,000.51\",0\n",
         "2024-04-05 -3 Coffee, black\n2024-04-13 +2001 Pay\n"},
        // Tabs, months first, a sign behind, brackets; quotes amid a text.
        {"Transaction Date\tMerchant\tAmount\n12/31/2023\tThe \"Inn\"\t(12.50)\n"
         "1/2/2024\tx\t1,200.00-\n",
         "2023-12-31 -13 The \"Inn\"\n2024-01-02 -1200 x\n"},
        // Another tracker: a word for the direction, ISO dates with a time, words of one's own.
        {"When;What;How much;Type\n2024-05-15T23:59:00Z;Rent;700;Expense\n2024-05-16 08:00;Gift;"
         "20;Income\n",
         "2024-05-15 -700 Rent\n2024-05-16 +20 Gift\n",
         "",
         {{"date", "When"}, {"title", "what"}, {"amount", "How much"}}},
        {"fecha;concepto;importe\n01/02/2024;pan;-0,5\n", "2024-02-01 -1 pan\n", "dd/MM/yyyy"},
        {"日付,内容,出金,入金\n2024/05/01,家賃,\"80,000\",\n2024年5月2日,給料,,\"250,000\"\n",
         "2024-05-01 -80000 家賃\n2024-05-02 +250000 給料\n"},
    };
    for (const auto& [file, expected, dateFormat, columns] : cases) {
        SCOPED_TRACE(file);
        Device other(QUuid::createUuid().toString());
        const ImportReport report =
            other.take(file, {.columns = columns, .dateFormat = QString::fromUtf8(dateFormat)});
        EXPECT_EQ(faults(report), "");
        EXPECT_EQ(lines(other), expected);
        EXPECT_EQ(
            other.take(file, {.columns = columns, .dateFormat = QString::fromUtf8(dateFormat)})
                .added,
            0);
    }
}

TEST_F(Statement, WhoseMeaningIsUnclearIsRefused) {
    const struct {
        const char* file;
        const char* fault;
    } cases[] = {
        {"date,title,amount\n01/02/2024,a,1\n03/04/2024,b,2\n", "1: The dates can be read in more"},
        {"date,title,amount\n01/02/03,a,1\n", "1: The dates can be read in more"},
        {"a,b\n1,2\n", "1: No line names a date and an amount"},
        {"", "1: The file is empty"},
        {"date,title,amount\n2024-05-15,a,1\n2024-02-30,b,2\n",
         "3: The date \"2024-02-30\" is none"},
        {"date,title,amount\n2024-05-15,a,much\n", "2: The amount \"much\" is no number"},
        {"date,title,amount\n2024-05-15,a,2147483647.5\n", "2: The amount 2147483647.5 is too"},
        {"date,title,debit,credit\n2024-05-15,a,1,2\n", "2: There is not one amount"},
    };
    for (const auto& [file, fault] : cases) {
        const ImportReport report = device.take(file);
        EXPECT_TRUE(report.isRefused);
        EXPECT_TRUE(faults(report).starts_with(fault)) << faults(report);
    }
    EXPECT_TRUE(device.records().empty());
}

TEST_F(Statement, AddsNothingTwiceAndLeavesEditsAlone) {
    const QByteArray head = "date,title,amount\n";
    const QByteArray coffees = "2024-05-15,Coffee,-3.20\n2024-05-15,Coffee,-3.20\n";
    const ImportReport report = device.take(head + "2024-05-14,Tea,-2.50\n" + coffees);
    EXPECT_EQ(std::tuple(report.added, report.rounded, report.roundedSum), std::tuple(3, 3, -10));
    BulkWrite edit(device.store);
    Record record = device.records()[1];
    record[Transaction::Title] = QStringLiteral("Espresso");
    record[Transaction::Timestamp] = at("2024-05-16");
    device.store.forEach([&](ObjectID id, std::span<const Value> values) {
        const bool isIt = values[Transaction::Id] == record[Transaction::Id];
        if (isIt)
            edit.update(id, record);
        return !isIt;
    });
    edit.commit();
    const ImportReport again = device.take(head + coffees + "2024-05-16,Coffee,-3.20\n");
    EXPECT_EQ(std::tuple(again.added, again.same), std::tuple(1, 2));
    EXPECT_EQ(lines(device), "2024-05-14 -3 Tea\n2024-05-15 -3 Espresso\n2024-05-15 -3 Coffee\n"
                             "2024-05-16 -3 Coffee\n");
}

} // namespace
} // namespace kovamo

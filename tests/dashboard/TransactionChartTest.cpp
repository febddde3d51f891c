#include "dashboard/TransactionChart.h"
#include "platform/views/Raster.h"
#include "support/Book.h"

namespace kovamo {
namespace {

Line spending(std::int32_t amount, const char* day) {
    return {amount, day, nullptr, day, false};
}

TEST(TransactionChart, SaysItsFrameAndRange) {
    World::setTime("2024-03-10 10:00");
    Book book({{1200, "2024-03-11"}, spending(7, "2024-03-12")});
    EXPECT_EQ(TransactionChart(book.context, 1).range(), u"**03/01 - 03/31**");
    EXPECT_EQ(TransactionChart(book.context, 2).title(), u"3 Months");
    const TransactionChart year(book.context, 3);
    EXPECT_EQ(year.range(), u"**03/01/24 - 02/28/25**");
    EXPECT_EQ(year.sentence(), u"12 Months, 03/01/24 - 02/28/25: 1 earning, 1 spending, largest "
                               "amount $1,200");
    EXPECT_EQ(year.columnText(0), u"title\n+ $1,200\nMar 11, 2024");
    Book recurring({{3200, "2024-02-01", "monthly", "2024-06-10"}, {480, "2023-04-01", "yearly"}});
    const TransactionChart months(recurring.context, 2);
    EXPECT_EQ(months.columnText(0), u"title\n+ $480\nApr 1, 2023\n$480, yearly");
    EXPECT_EQ(months.columnText(1), u"title\n+ $9,600\nFeb 1, 2024\n3 × $3,200, monthly");
    // The Buddhist year of January is that of March; a Persian year ends with March.
    qputenv("LC_ALL", "th_TH.UTF-8");
    EXPECT_EQ(TransactionChart(book.context, 2).stackDateFormat.dateFormat, u"MM/dd");
    qputenv("LC_ALL", "fa_IR.UTF-8");
    EXPECT_EQ(TransactionChart(book.context, 2).stackDateFormat.dateFormat, u"MM/dd/yy");
}

TEST(TransactionChart, PaintsAColumnWhereItFindsOne) {
    Book book({{100, "2024-05-01"}, spending(50, "2024-05-02")});
    const TransactionChart chart(book.context, 1);
    constexpr int width = 390;
    const QImage image =
        raster(chart.view(), {width, static_cast<int>(TransactionChart::height())});
    const int first = static_cast<int>(chart.columnCenter(0, width));
    const int second = static_cast<int>(chart.columnCenter(1, width));
    EXPECT_EQ(chart.columnAt(first, width), 0);
    EXPECT_EQ(chart.columnAt(second, width), 1);
    EXPECT_EQ(chart.columnAt(chart.columnCenter(2, width), width), -1) << "an empty column";
    const QColor green = image.pixelColor(first, 30), red = image.pixelColor(second, 130);
    EXPECT_GT(green.green(), green.red() + 50);
    EXPECT_GT(red.red(), red.green() + 50);
    EXPECT_EQ(image.pixelColor(second, 110), QColor(Qt::white)) << "it is half as high";
    EXPECT_GT(image.pixelColor(first, 210).red(), 200) << "it ends in yellow";
}

} // namespace
} // namespace kovamo

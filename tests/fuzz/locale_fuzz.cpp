// A locale and a zone as the environment names them, and a moment: the month holds the moment, the
// months of a frame meet, and every formatter finds words.

#include "Fuzz.h"
#include "ledger/TimeFrame.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/Formatters.h"

using namespace kovamo;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    // From 1800 to 2200: no clock is set further off.
    const Instant now(std::chrono::milliseconds(
        input.ConsumeIntegralInRange<std::int64_t>(-5'364'662'400'000, 7'258'118'400'000)));
    qputenv("TZ", input.ConsumeRandomLengthString(40).c_str());
    qputenv("LC_ALL", input.ConsumeRemainingBytesAsString().c_str());
    followHostTimeZone();
    Clock::setSource([now] { return now; });

    for (const TimeFrame timeFrame : {0, 1, 2, 3}) {
        const Period period = periodBounds(timeFrame);
        // A month that a calendar counts twice starts with the first of the two.
        check(period.start <= now && now - period.start < std::chrono::days(62), "now is in it");
        const auto slots = monthSlots(timeFrame);
        check(timeFrame == 0 ? period.end == now : period.end == slots.back().slotEnd, "it ends");
        for (std::size_t i = 1; i < slots.size(); ++i)
            check(slots[i].slotStart == slots[i - 1].slotEnd, "months meet");
        // A month that a calendar leaves out in some years has no length then.
        for (const MonthSlot& slot : slots)
            check(slot.slotStart <= slot.slotEnd && slot.startMonth >= 1 && slot.startMonth <= 13,
                  "months have an order and a number");
    }
    const Calendar calendar;
    const CalendarDay today = calendar.day(now);
    check(calendar.weekday(today) >= 1 && calendar.weekday(today) <= 7, "a day of the week");
    check(calendar.firstWeekday() >= 1 && calendar.firstWeekday() <= 7, "a first of the week");
    check(calendar.daysInMonth(today) >= 1 && calendar.daysInMonth(today) <= 40,
          "a month has days");
    check(calendar.day(calendar.moved(now, today)) == today, "a moment is on its day");
    for (int digit = 0; digit < 10; ++digit)
        check(!digitText(digit).isEmpty(), "a digit");
    check(!currencyText(INT64_MIN).isEmpty() && !currencyText(INT64_MAX).isEmpty(), "money");
    check(!DateFormatter{QStringLiteral("MM/dd/yy")}.string(now).isEmpty(), "a date");
    for (const char* skeleton : {"y", "yMMMd", "yMMMM", "ccc"})
        check(!localizedDateText(now, QLatin1String(skeleton)).isEmpty(), "a local date");
    return 0;
}

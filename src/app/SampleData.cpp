#include "SampleData.h"

#include "model/PersistenceController.h"
#include "model/RecurringType.h"
#include "model/Transaction.h"
#include "platform/foundation/Calendar.h"

namespace kovamo {

namespace {

struct Sample {
    const char* emoji;
    const char* title;
    std::int32_t amount;
    bool isPositive;
    /// The month, counted from the current one, and the day in it.
    int month;
    int day;
    std::optional<RecurringType> recurs = std::nullopt;
    /// For a recurrence, how many months it lasts.
    int months = 24;
};

constexpr Sample samples[] = {
    {"💼", "Salary", 3200, true, -14, 1, RecurringType::monthly, 60},
    {"🏠", "Rent", 1150, false, -14, 3, RecurringType::monthly, 60},
    {"📱", "Phone", 25, false, -9, 12, RecurringType::monthly},
    {"🎧", "Music", 11, false, -5, 9, RecurringType::monthly},
    {"🏋️", "Gym", 35, false, 1, 1, RecurringType::monthly, 6},
    {"🎓", "Course", 90, false, -2, 15, RecurringType::monthly, 4},
    {"🧾", "Tax refund", 640, true, -25, 10, RecurringType::yearly, 120},
    {"🚗", "Car insurance", 480, false, -13, 20, RecurringType::yearly, 120},
    {"🎁", "Birthday money", 150, true, -21, 17, RecurringType::yearly, 120},
    {"🛡️", "Liability insurance", 72, false, -16, 5, RecurringType::yearly, 120},
    {"🛒", "Groceries", 84, false, 0, 2},
    {"☕", "Coffee with Ada", 9, false, 0, 4},
    {"🍕", "Pizza night", 26, false, 0, 6},
    {"🛒", "Groceries", 71, false, 0, 9},
    {"🎬", "Cinema", 22, false, 0, 11},
    {"🚲", "Bike repair", 58, false, 0, 13},
    {"💡", "Electricity", 63, false, 0, 15},
    {"🛒", "Groceries", 92, false, 0, 16},
    {"🧑‍💻", "Freelance website", 420, true, 0, 18},
    {"💊", "Pharmacy", 17, false, 0, 19},
    {"📚", "Books", 44, false, 0, 21},
    {"🪴", "Plants", 31, false, 0, 24},
    {"🛒", "Groceries", 78, false, 0, 25},
    {"👕", "Sold jacket", 45, true, 0, 26},
    {"🍜", "Ramen", 19, false, 0, 27},
    {"🎸", "Concert tickets", 130, false, 1, 8},
    {"🧰", "Toolbox", 66, false, 1, 14},
    {"📦", "Sold bookshelf", 60, true, 1, 20},
    {"✈️", "Flight to Lisbon", 210, false, 2, 5},
    {"🏨", "Lisbon hotel", 340, false, 2, 12},
    {"🦷", "Dentist", 120, false, 3, 7},
    {"🖥️", "Monitor", 280, false, 4, 16},
    {"🎉", "Bonus", 1500, true, 5, 28},
    {"⛺", "Tent", 175, false, 6, 11},
    {"🏖️", "Summer holiday", 980, false, 7, 4},
    {"🚂", "Rail pass", 149, false, 8, 1},
    {"🎻", "Violin strings", 38, false, 9, 22},
    {"🎄", "Presents", 260, false, 10, 12},
    {"🛒", "Groceries", 66, false, -1, 10},
    {"🍽️", "Anniversary dinner", 88, false, -1, 23},
};

constexpr int noon = 12;

} // namespace

void addSampleData(ManagedObjectContext& context) {
    const Calendar calendar;
    const CalendarDay today = calendar.today();
    for (const Sample& sample : samples) {
        const int month = today.month + sample.month;
        auto& transaction = context.insert<Transaction>();
        transaction.setId(QUuid::createUuid());
        transaction.setTimestamp(Clock::now());
        transaction.setEmoji(QString::fromUtf8(sample.emoji));
        transaction.setTitle(QString::fromUtf8(sample.title));
        transaction.setAmount(sample.amount);
        transaction.setIsPositive(sample.isPositive);
        transaction.setIsRecurring(sample.recurs.has_value());
        transaction.setRecurringType(storedName(sample.recurs.value_or(RecurringType::monthly)));
        transaction.setStartDate(calendar.instant({today.year, month, sample.day}, noon));
        transaction.setEndDate(calendar.instant(
            {today.year, month + (sample.recurs ? sample.months : 0), sample.day}, noon));
    }
    try {
        context.save();
    } catch (const StoreError& error) {
        unresolvedError(error);
    }
}

} // namespace kovamo

// What somebody types into the form, in some locale: only digits are an amount, and what is saved
// is what the next start reads and says.

#include "Fuzz.h"
#include "editing/TransactionLine.h"
#include "editing/TransactionsView.h"
#include "platform/foundation/ShownText.h"
#include "platform/objectstore/store/Store.h"

#include <cstring>

using namespace kovamo;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    qputenv("LC_ALL", input.PickValueInArray({"C", "en_US", "de_CH", "ar_EG", "fa_IR", "hi_IN",
                                              "ja_JP", "sw_CD", "my_MM", "en_US@numbers=hanidec"}));
    const auto amount = input.ConsumeIntegral<std::int32_t>();
    const bool isPositive = input.ConsumeBool();
    const QString typed = QString::fromStdString(input.ConsumeRandomLengthString(20));
    const std::string rest = input.ConsumeRemainingBytesAsString();
    const QString title = QString::fromUtf8(rest.data(), static_cast<qsizetype>(rest.size()));
    QString emoji(static_cast<qsizetype>(rest.size() / 2), Qt::Uninitialized);
    std::memcpy(emoji.data(), rest.data(), rest.size() / 2 * 2);

    TransactionPresentation transaction;
    transaction.title = title;
    transaction.emoji = emoji;
    transaction.amount = amount;
    transaction.isPositive = isPositive;
    const TransactionLine line(transaction);
    check(line.amount.size() > 2 && line.amount.startsWith(isPositive ? u"+ " : u"- "),
          "there is an amount");
    check(line.sentence.startsWith(shownText(title)), "a title is a title");

    static Store store(scratchPath(QStringLiteral("store.sqlite")), Transaction::entity());
    ManagedObjectContext context(store, Transaction::entity());
    AddTransactionView form(context);
    form.setTitle(title);
    form.setEmoji(emoji);
    form.setAmount(typed);
    for (const QChar digit : form.amount())
        check(digit >= u'0' && digit <= u'9', "an amount is made of digits");
    try {
        form.save();
    } catch (const Stopped&) {
        return -1;
    }
    ManagedObjectContext again(store, Transaction::entity());
    for (Transaction* record : again.fetch<Transaction>(Transaction::fetchRequest())) {
        check(record->title() == title, "the title is kept");
        check(record->emoji()->toUtf8() == emoji.toUtf8(), "the emoji is kept");
        check(record->amount() == form.amount().toInt(), "the amount is kept");
        check(AddTransactionView(again, record).canSave(), "what was saved can be edited");
        again.deleteObject(*record);
    }
    again.save();
    return 0;
}

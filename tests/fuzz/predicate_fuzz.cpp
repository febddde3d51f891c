// A predicate's text and arguments: it is refused, or the context and the store find the same
// records by it.

#include "Fuzz.h"
#include "model/Transaction.h"
#include "platform/objectstore/ManagedObjectContext.h"
#include "platform/objectstore/Store.h"

using namespace kovamo;

namespace {

const char* const texts[] = {"", "a", "B", "ü", "👍", "monthly", "a\xef\xbf\xbf"};

Value value(FuzzedDataProvider& input, AttributeType type) {
    switch (type) {
    case AttributeType::integer32:
        return input.ConsumeIntegral<std::int32_t>();
    case AttributeType::boolean:
        return input.ConsumeBool();
    case AttributeType::string:
        return QString::fromUtf8(input.PickValueInArray(texts));
    case AttributeType::date:
        return Instant(std::chrono::milliseconds(input.ConsumeIntegral<std::int64_t>()));
    case AttributeType::uuid:
        return QUuid(input.ConsumeIntegral<std::uint32_t>(), 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
    }
    return {};
}

struct Records {
    Store store{scratchPath(QStringLiteral("store.sqlite")), Transaction::entity()};
    ManagedObjectContext context{store, Transaction::entity()};

    Records() {
        for (std::uint8_t i = 0; i < 12; ++i) {
            std::vector<std::uint8_t> bytes(64, i < 6 ? 0 : std::uint8_t(i * 37));
            FuzzedDataProvider input(bytes.data(), bytes.size());
            auto& record = context.insert<Transaction>();
            const auto& attributes = Transaction::entity().attributes;
            for (std::size_t at = 0; at < attributes.size(); ++at)
                if (!attributes[at].isOptional || (at + i) % 5 != 0)
                    record.setValue(at, value(input, attributes[at].type));
        }
        context.save();
    }
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Records records;
    FuzzedDataProvider input(data, size);
    const QString format = QString::fromStdString(input.ConsumeRandomLengthString());
    std::vector<Value> arguments;
    while (input.remaining_bytes() > 0) {
        const auto type = input.ConsumeIntegralInRange<std::size_t>(0, 5);
        arguments.push_back(type == 0 ? Value() : value(input, static_cast<AttributeType>(type)));
    }
    try {
        FetchRequest request = Transaction::fetchRequest();
        std::vector<ObjectID> matching;
        const auto all = records.context.fetch<Transaction>(request);
        request.predicate = Predicate(format, arguments);
        for (const Transaction* record : all)
            if (request.predicate.matches(Transaction::entity(), record->values()))
                matching.push_back(record->objectID());
        check(records.store.select(request) == matching, "store and context agree");
    } catch (const Stopped&) {
        return -1;
    }
    return 0;
}

#include "ExchangeFormat.h"

#include <QFileInfo>

namespace kovamo {

namespace {

struct Name {
    QLatin1String text;
    ExchangeFormat format;
};

template<std::size_t size>
std::optional<ExchangeFormat> found(const Name (&names)[size], QStringView text) {
    for (const Name& name : names)
        if (text.compare(name.text, Qt::CaseInsensitive) == 0)
            return name.format;
    return std::nullopt;
}

} // namespace

std::optional<ExchangeFormat> formatNamed(QStringView name) {
    using enum ExchangeFormat;
    static const Name names[]{{QLatin1String("csv"), csv},
                              {QLatin1String("json"), json},
                              {QLatin1String("ledger"), ledger}};
    return found(names, name);
}

std::optional<ExchangeFormat> formatOfFile(const QString& path) {
    using enum ExchangeFormat;
    static const Name suffixes[]{
        {QLatin1String("csv"), csv},       {QLatin1String("tsv"), csv},
        {QLatin1String("txt"), csv},       {QLatin1String("json"), json},
        {QLatin1String("jsonl"), json},    {QLatin1String("ndjson"), json},
        {QLatin1String("ledger"), ledger}, {QLatin1String("journal"), ledger},
    };
    return found(suffixes, QFileInfo(path).suffix());
}

} // namespace kovamo

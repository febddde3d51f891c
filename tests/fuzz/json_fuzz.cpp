// A JSON file: its records come back from both formats.

#include "RecordFuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kovamo::checkReading({reinterpret_cast<const char*>(data), qsizetype(size)},
                         {.format = kovamo::ExchangeFormat::json});
    return 0;
}

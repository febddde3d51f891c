#pragma once

#include <QString>
#include <fuzzer/FuzzedDataProvider.h>
#include <span>

/// One run of a fuzz target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kovamo {

/// What fatalError() does in a fuzz target instead of stopping the program: it is a right answer
/// to input that is no use.
struct Stopped {};

/// Stops the fuzzer with a finding unless `holds`.
void check(bool holds, const char* what);

/// A path in a scratch folder that is deleted when the process ends.
QString scratchPath(const QString& name);

void writeFile(const QString& path, std::span<const std::uint8_t> bytes);
QByteArray readFile(const QString& path);

} // namespace kovamo

#pragma once

#include "platform/objectstore/ManagedObjectContext.h"

namespace kovamo {

/// Saves some forty transactions of every kind around today into `context`. A failed save is a
/// fatal error.
void addSampleData(ManagedObjectContext& context);

} // namespace kovamo

#pragma once

#include <QString>

namespace kovamo {

/// Has the desktop show each fatal error from now on, as a notification that stays, with the path
/// of the store where the message does not name it. Where no service shows notifications, the
/// program ends as it would without.
void notifyOfFatalErrors(const QString& storePath);

} // namespace kovamo

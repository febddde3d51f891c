#include "NotificationCenter.h"

namespace kovamo {

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

} // namespace kovamo

#include "NotificationCenter.h"

namespace kovamo {

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationPublisher::NotificationPublisher(const QString& name, NotificationCenter& center) {
    connect(&center, &NotificationCenter::posted, this,
            [this, name](const QString& posted, const QVariant& object) {
                if (posted == name)
                    Q_EMIT received(object);
            });
}

} // namespace kovamo

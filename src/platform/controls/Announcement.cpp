#include "Announcement.h"

#include <QAccessible>
#include <utility>

namespace kovamo {

void Announcement::setText(const QString& text) {
    const QString before = std::exchange(m_text, text);
    if (text == before)
        return;
    Q_EMIT textChanged();
    if (before.isEmpty() || text.isEmpty())
        return;
    // Screen readers read a notification out when it is shown.
    QAccessibleEvent event(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

} // namespace kovamo

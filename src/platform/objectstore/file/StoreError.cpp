#include "StoreError.h"

#include <QStringList>

namespace kovamo {

QString StoreError::path() const {
    const auto found = m_userInfo.find(QStringLiteral("path"));
    return found == m_userInfo.end() ? QString() : found->second;
}

QString StoreError::userInfoDescription() const {
    QStringList entries;
    for (const auto& [key, value] : m_userInfo)
        entries.append(QStringLiteral("\"%1\": \"%2\"").arg(key, value));
    return QStringLiteral("[%1]").arg(entries.join(QStringLiteral(", ")));
}

void fail(const QString& description, int code, const QString& path, bool isDamage) {
    throw StoreError(
        description,
        {{QStringLiteral("code"), QString::number(code)}, {QStringLiteral("path"), path}},
        isDamage);
}

} // namespace kovamo

#include "UserDefaults.h"

#include <QSettings>
#include <QStandardPaths>
#include <QVariant>
#include <cstdio>

namespace kovamo {

UserDefaults::UserDefaults()
    : m_settings(std::make_unique<QSettings>(
          QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
              QStringLiteral("/Kovamo/Kovamo.conf"),
          QSettings::IniFormat)) {
    checkStatus("read");
}

UserDefaults::~UserDefaults() = default;

UserDefaults& UserDefaults::standard() {
    static UserDefaults defaults;
    return defaults;
}

std::int64_t UserDefaults::integer(const QString& key) const {
    return m_settings->value(key).toString().toLongLong();
}

std::optional<QString> UserDefaults::string(const QString& key) const {
    const QVariant value = m_settings->value(key);
    return value.canConvert<QString>() ? std::optional(value.toString()) : std::nullopt;
}

bool UserDefaults::boolean(const QString& key) const {
    return m_settings->value(key).toString() == QLatin1String("true");
}

void UserDefaults::set(const QString& key, std::int64_t value) {
    write(key, QVariant::fromValue<qlonglong>(value));
}

void UserDefaults::set(const QString& key, bool value) {
    write(key, value);
}

void UserDefaults::write(const QString& key, const QVariant& value) {
    m_settings->setValue(key, value);
    m_settings->sync();
    checkStatus("written");
}

void UserDefaults::checkStatus(const char* what) const {
    if (m_settings->status() != QSettings::NoError)
        std::fprintf(stderr, "The preferences in %s cannot be %s.\n",
                     qPrintable(m_settings->fileName()), what);
}

} // namespace kovamo

#include "UserDefaults.h"

#include "Bundle.h"
#include "Formatters.h"
#include "SyncFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QVariant>
#include <cstdio>
#include <utility>

namespace kovamo {

namespace {

std::unique_ptr<UserDefaults>& standardInstance() {
    static auto defaults = std::make_unique<UserDefaults>();
    return defaults;
}

QString preferencesPath() {
    const QString name = Bundle::main().text(kCFBundleNameKey);
    return QStringLiteral("%1/%2/%2.conf")
        .arg(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), name);
}

// Preferences are private: only their owner may read the folder.
void makeFolder(const QString& path) {
    const QFileInfo folder(path);
    QDir().mkpath(folder.path());
    if (QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
        syncFolder(folder.path());
}

} // namespace

UserDefaults::UserDefaults()
    : m_settings(std::make_unique<QSettings>(preferencesPath(), QSettings::IniFormat)) {
    // QSettings parses a section when it is first asked for; only then status() knows of faults.
    (void)m_settings->allKeys();
    if (m_settings->status() == QSettings::NoError)
        return;
    m_isBroken = true;
    report("read");
}

UserDefaults::~UserDefaults() = default;

UserDefaults& UserDefaults::standard() {
    return *standardInstance();
}

void UserDefaults::reopenStandard() {
    standardInstance() = std::make_unique<UserDefaults>();
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

void UserDefaults::set(const QString& key, const QString& value) {
    write(key, value);
}

void UserDefaults::write(const QString& key, const QVariant& value) {
    const QString folder = QFileInfo(m_settings->fileName()).path();
    makeFolder(folder);
    if (std::exchange(m_isBroken, false))
        setAside();
    m_settings->setValue(key, value);
    m_settings->sync();
    syncFolder(folder);
    if (m_settings->status() != QSettings::NoError)
        report("written");
}

void UserDefaults::setAside() const {
    const QString base = m_settings->fileName() + u".broken-" + dayText(Clock::now());
    QString path = base;
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = base + u'-' + QString::number(number);
    QFile::copy(m_settings->fileName(), path);
}

void UserDefaults::report(const char* trouble) {
    if (!std::exchange(m_reported, true))
        std::fprintf(stderr, "The preferences in %s cannot be %s.\n",
                     qPrintable(m_settings->fileName()), trouble);
}

} // namespace kovamo

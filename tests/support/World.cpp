#include "World.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

namespace kovamo {

World::World(const char* local, const char* zone, const char* locale) {
    s_folder = m_folder.path();
    Bundle::main().setInfoDictionary({{kCFBundleNameKey, QStringLiteral("App")},
                                      {kCFBundleIdentifierKey, QStringLiteral("org.example.App")},
                                      {kCFBundleVersionKey, QStringLiteral("17")}});
    qputenv("TZ", zone);
    followHostTimeZone();
    qputenv("LC_ALL", locale);
    for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
        const QString folder = m_folder.filePath(QString::fromLatin1(variable).toLower());
        QDir().mkpath(folder);
        qputenv(variable, folder.toUtf8());
    }
    UserDefaults::reopenStandard();
    setTime(local);
}

World::~World() {
    Clock::setSource({});
}

void World::setTime(const char* local) {
    Clock::setSource([now = at(local)] { return now; });
}

Instant at(const char* local) {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, millisecond = 0;
    const int read = std::sscanf(local, "%d-%d-%d %d:%d:%d.%d", &year, &month, &day, &hour, &minute,
                                 &second, &millisecond);
    EXPECT_GE(read, 3) << local;
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar(year, month - 1, day, hour, minute, second, status);
    const auto whole = static_cast<std::int64_t>(calendar.getTime(status));
    return Instant(std::chrono::milliseconds(whole + millisecond));
}

QByteArray content(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

std::string text(Instant instant) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::SimpleDateFormat format("yyyy-MM-dd HH:mm:ss.SSS", icu::Locale::getRoot(), status);
    icu::UnicodeString words;
    std::string utf8;
    format.format(static_cast<UDate>(instant.time_since_epoch().count()), words);
    return words.toUTF8String(utf8);
}

} // namespace kovamo

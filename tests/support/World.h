#pragma once

#include "platform/foundation/Calendar.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace kovamo {

/// The world of one test: a scratch folder for data, config, cache and home, and a clock that
/// stands at `local` o'clock of a zone, in one locale. Every test begins in one by default.
class World {
  public:
    explicit World(const char* local = "2024-05-15 10:00", const char* zone = "Europe/Berlin",
                   const char* locale = "en_US.UTF-8");
    ~World();
    Q_DISABLE_COPY_MOVE(World)

    /// Sets the clock to a moment of the zone.
    static void setTime(const char* local);

    /// The scratch folder of the newest world, which goes with it.
    [[nodiscard]] static QString folder() { return s_folder; }

  private:
    QTemporaryDir m_folder;
    static inline QString s_folder;
};

/// The instant of "2024-05-15" or "2024-05-15 10:00" or "2024-05-15 10:00:00.123", Gregorian, in
/// the zone of the world.
[[nodiscard]] Instant at(const char* local);

/// The bytes of a file.
[[nodiscard]] QByteArray content(const QString& path);

/// The Gregorian text of an instant in the zone of the world: "2024-05-15 10:00:00.000".
[[nodiscard]] std::string text(Instant instant);

} // namespace kovamo

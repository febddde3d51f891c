#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

class QSettings;

namespace kovamo {

/// The user's preferences: `$XDG_CONFIG_HOME/Kovamo/Kovamo.conf`, keys at top level. What cannot
/// be parsed reads as absent, what cannot be written is dropped; either says so once on standard
/// error.
class UserDefaults {
  public:
    UserDefaults();
    ~UserDefaults();
    Q_DISABLE_COPY_MOVE(UserDefaults)

    /// The process's standard preferences, opened at first use.
    static UserDefaults& standard();

    /// The whole number under `key`; 0 where it is absent or no number of 64 bits.
    [[nodiscard]] std::int64_t integer(const QString& key) const;

    /// The text under `key`, if there is one.
    [[nodiscard]] std::optional<QString> string(const QString& key) const;

    /// Whether the flag under `key` is set; false where it is absent or no flag.
    [[nodiscard]] bool boolean(const QString& key) const;

    /// Writes a value under `key` and to the file at once.
    void set(const QString& key, std::int64_t value);
    void set(const QString& key, bool value);

  private:
    void write(const QString& key, const QVariant& value);
    void checkStatus(const char* what) const;

    std::unique_ptr<QSettings> m_settings;
};

} // namespace kovamo

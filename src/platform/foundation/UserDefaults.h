#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

class QSettings;

namespace kovamo {

/// The user's preferences: `$XDG_CONFIG_HOME/name/name.conf` by the bundle's name, keys at top
/// level or under [General], in a folder for its owner alone. Of a file that cannot be parsed
/// in whole, what can be read counts, and the file is kept beside ("name.conf.broken-2026-11-24")
/// before anything is written. A value that cannot be written lasts until the process ends; the
/// first such failure is reported in one line on standard error.
class UserDefaults {
  public:
    UserDefaults();
    ~UserDefaults();
    Q_DISABLE_COPY_MOVE(UserDefaults)

    /// The process's standard preferences, opened at first use.
    static UserDefaults& standard();

    /// Opens the standard preferences afresh, as the next start of the process would.
    static void reopenStandard();

    /// The whole number under `key`; 0 where it is absent or no number of 64 bits.
    [[nodiscard]] std::int64_t integer(const QString& key) const;

    /// The text under `key`, if there is one.
    [[nodiscard]] std::optional<QString> string(const QString& key) const;

    /// Whether the flag under `key` is set; false where it is absent or no flag.
    [[nodiscard]] bool boolean(const QString& key) const;

    /// Writes a value under `key`; it is on the disk when the call returns.
    void set(const QString& key, std::int64_t value);
    void set(const QString& key, bool value);
    void set(const QString& key, const QString& value);

  private:
    void setAside() const;
    void write(const QString& key, const QVariant& value);
    void report(const char* trouble);

    std::unique_ptr<QSettings> m_settings;
    bool m_isBroken = false;
    bool m_reported = false;
};

} // namespace kovamo

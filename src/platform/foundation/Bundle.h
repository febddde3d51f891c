#pragma once

#include <QVariantMap>

namespace kovamo {

/// Keys of the information dictionary, each of a text: the build number (not the version people
/// read), the name of the application's folders, and its identifier ("org.example.App").
inline constexpr QLatin1StringView kCFBundleVersionKey("kCFBundleVersionKey");
inline constexpr QLatin1StringView kCFBundleNameKey("kCFBundleNameKey");
inline constexpr QLatin1StringView kCFBundleIdentifierKey("kCFBundleIdentifierKey");

/// The installed application and what it says of itself.
class Bundle {
  public:
    /// The running application's bundle; it says nothing until the application has described
    /// itself.
    static Bundle& main();

    [[nodiscard]] const QVariantMap& infoDictionary() const { return m_infoDictionary; }
    void setInfoDictionary(const QVariantMap& dictionary) { m_infoDictionary = dictionary; }

    /// The text under `key`; its absence is a fatal error that names it.
    [[nodiscard]] QString text(QLatin1StringView key) const;

  private:
    Bundle() = default;

    QVariantMap m_infoDictionary;
};

} // namespace kovamo

#pragma once

#include <QVariantMap>

namespace kovamo {

/// Key of the information dictionary: the build number, as text (not the version people read).
inline constexpr QLatin1StringView kCFBundleVersionKey("kCFBundleVersionKey");

/// The installed application and what it says of itself.
class Bundle {
  public:
    /// The running application's bundle.
    static Bundle& main();

    [[nodiscard]] const QVariantMap& infoDictionary() const { return m_infoDictionary; }
    void setInfoDictionary(const QVariantMap& dictionary) { m_infoDictionary = dictionary; }

  private:
    Bundle();

    QVariantMap m_infoDictionary;
};

} // namespace kovamo

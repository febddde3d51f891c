#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// The app's pictures, found by name.
class ImageAssets : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    /// The address of the picture `name` in the light or dark appearance, composed for a wide
    /// screen where that is asked for and there is such a one; empty where there is no picture.
    Q_INVOKABLE [[nodiscard]] static QUrl url(const QString& name, bool dark, bool wide = false);
};

} // namespace kovamo

#pragma once

#include <QVariantMap>
#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace kovamo {

/// Loads the window that the QML file `path` of the resources describes ("Notes/Main.qml") by
/// `engine`, which outlives it, its required properties from `properties`. A window that does not
/// load is a fatal error.
[[nodiscard]] std::unique_ptr<QQuickWindow> loadWindow(QQmlEngine& engine, const QString& path,
                                                       const QVariantMap& properties = {});

} // namespace kovamo

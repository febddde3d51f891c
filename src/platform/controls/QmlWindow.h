#pragma once

#include <QVariantMap>

class QQmlApplicationEngine;
class QQuickWindow;

namespace kovamo {

/// Loads the window that the QML file `path` of the resources describes ("Notes/Main.qml")
/// into `engine`, its required properties from `properties`. A window that does not load is a fatal
/// error.
QQuickWindow& loadWindow(QQmlApplicationEngine& engine, const QString& path,
                         const QVariantMap& properties = {});

} // namespace kovamo

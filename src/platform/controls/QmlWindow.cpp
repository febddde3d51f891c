#include "QmlWindow.h"

#include "platform/foundation/FatalError.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace kovamo {

QQuickWindow& loadWindow(QQmlApplicationEngine& engine, const QString& path,
                         const QVariantMap& properties) {
    // Qt 6.4 does not look for modules there by itself.
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.setInitialProperties(properties);
    engine.load(QUrl(u"qrc:/qt/qml/" + path));
    if (engine.rootObjects().isEmpty())
        fatalError(QStringLiteral("The window cannot be built"));
    return *qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

} // namespace kovamo

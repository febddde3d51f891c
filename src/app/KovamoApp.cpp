#include "KovamoApp.h"

#include "RootView.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace kovamo {

QQuickWindow& KovamoApp::showWindow(QQmlApplicationEngine& engine, RootView& root) {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.setInitialProperties({{QStringLiteral("root"), QVariant::fromValue(&root)}});
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Kovamo/App/Main.qml")));
    if (engine.rootObjects().isEmpty())
        fatalError(QStringLiteral("The window cannot be built"));
    return *qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

} // namespace kovamo

#include "KovamoApp.h"

#include "RootView.h"
#include "platform/controls/QmlWindow.h"

namespace kovamo {

QQuickWindow& KovamoApp::showWindow(QQmlApplicationEngine& engine, RootView& root) {
    return loadWindow(engine, QStringLiteral("Kovamo/App/Main.qml"),
                      {{QStringLiteral("root"), QVariant::fromValue(&root)}});
}

} // namespace kovamo

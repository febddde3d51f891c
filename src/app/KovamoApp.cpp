#include "KovamoApp.h"

#include "RootView.h"
#include "platform/controls/QmlWindow.h"
#include "platform/foundation/Bundle.h"

#include <QQuickWindow>

namespace kovamo {

void KovamoApp::describe() {
    Bundle::main().setInfoDictionary({{kCFBundleNameKey, QStringLiteral("Kovamo")},
                                      {kCFBundleIdentifierKey, QStringLiteral("org.kovamo.Kovamo")},
                                      {kCFBundleVersionKey, QStringLiteral(KOVAMO_BUILD_NUMBER)}});
}

std::unique_ptr<QQuickWindow> KovamoApp::showWindow(QQmlEngine& engine, RootView& root) {
    return loadWindow(engine, QStringLiteral("Kovamo/App/Main.qml"),
                      {{QStringLiteral("root"), QVariant::fromValue(&root)}});
}

} // namespace kovamo

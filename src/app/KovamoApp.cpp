#include "KovamoApp.h"

#include "dashboard/ContentView.h"
#include "platform/foundation/Formatters.h"

#include <QQmlApplicationEngine>

namespace kovamo {

void KovamoApp::showWindow(QQmlApplicationEngine& engine, ContentView& content) {
    QStringList digits;
    for (int digit = 0; digit <= 9; ++digit)
        digits.append(digitText(digit));
    engine.addImportPath(QStringLiteral(":/qt/qml"));
    engine.setInitialProperties({{QStringLiteral("content"), QVariant::fromValue(&content)},
                                 {QStringLiteral("digits"), digits}});
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Kovamo/App/Main.qml")));
    if (engine.rootObjects().isEmpty())
        fatalError(QStringLiteral("The window cannot be built"));
}

} // namespace kovamo

#include "platform/controls/QmlWindow.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QQmlEngine engine;
    const auto window =
        kovamo::loadWindow(engine, QStringLiteral("Kovamo/Gallery/GalleryWindow.qml"));
    return QGuiApplication::exec();
}

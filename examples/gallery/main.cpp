#include "platform/controls/QmlWindow.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    kovamo::loadWindow(engine, QStringLiteral("Kovamo/Gallery/GalleryWindow.qml"));
    return QGuiApplication::exec();
}

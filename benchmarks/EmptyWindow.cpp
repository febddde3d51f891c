// The smallest Qt program that shows a window made in QML.

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Empty/EmptyWindow.qml")));
    return QGuiApplication::exec();
}

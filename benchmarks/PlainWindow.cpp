// The smallest Qt program that shows what the app's screens are made of: a line of text, an emoji
// and an icon, in the app's fonts, in a window made in QML.

#include <QFont>
#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QFont font = QGuiApplication::font();
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    QQmlApplicationEngine engine;
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Plain/PlainWindow.qml")));
    return QGuiApplication::exec();
}

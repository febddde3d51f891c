#include "QmlWindow.h"

#include "platform/foundation/FatalError.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlFileSelector>
#include <QQuickWindow>
#include <QTranslator>

namespace kovamo {

namespace {

/// Prepares what Qt's own dialogs need: their texts in the user's language, and the choice of their
/// files by style.
void serveDialogs(QQmlEngine& engine) {
    auto* translator = new QTranslator(&engine);
    if (translator->load(QLocale(), QStringLiteral("qt"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
    new QQmlFileSelector(&engine, &engine);
}

} // namespace

std::unique_ptr<QQuickWindow> loadWindow(QQmlEngine& engine, const QString& path,
                                         const QVariantMap& properties) {
    // Qt 6.4 does not look for modules there by itself.
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&engine, &QQmlEngine::quit, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    QQmlComponent component(&engine, QUrl(u"qrc:/qt/qml/" + path));
    std::unique_ptr<QQuickWindow> window(
        qobject_cast<QQuickWindow*>(component.createWithInitialProperties(properties)));
    if (!window)
        fatalError(QStringLiteral("The window cannot be built"));
    // After the first frame: from then on, each file is looked for in several places.
    QObject::connect(
        window.get(), &QQuickWindow::frameSwapped, &engine, [&engine] { serveDialogs(engine); },
        Qt::SingleShotConnection);
    return window;
}

} // namespace kovamo

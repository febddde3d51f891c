#include "KovamoApp.h"
#include "Options.h"
#include "Pictures.h"
#include "RootView.h"
#include "SampleData.h"
#include "SoleInstance.h"
#include "platform/controls/AccessibleItems.h"
#include "platform/controls/text/EmojiText.h"
#include "platform/desktop/DesktopSettings.h"
#include "platform/foundation/UserDefaults.h"

#include <QDir>
#include <QFontInfo>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <optional>

namespace {

constexpr int usageError = 2;

/// Points the store and the preferences at a folder that goes with the process.
void moveInto(const QTemporaryDir& scratch) {
    qputenv("XDG_DATA_HOME", scratch.filePath(QStringLiteral("data")).toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", scratch.filePath(QStringLiteral("config")).toLocal8Bit());
}

/// Without a render device the toolkit's OpenGL path takes several times as long to its first
/// frame as its software renderer. What the environment asks for goes first.
void chooseRenderer() {
    const QDir devices(QStringLiteral("/dev/dri"));
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") &&
        devices.entryList({QStringLiteral("renderD*")}, QDir::System).isEmpty())
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

/// Puts the colour emoji font right behind those for text, before fonts that draw the same
/// characters in black. A language's own font may lack the digits, which the emoji font has too: a
/// font for Latin goes between.
void preferColourEmoji() {
    QFont font = QGuiApplication::font();
    const QStringList families{QFontInfo(font).family(), QStringLiteral("Noto Sans"),
                               kovamo::emojiFontFamily()};
    // Text fields have a font of their own and are not asked for its families.
    QFont::insertSubstitutions(font.family(), families);
    font.setFamilies(families);
    QGuiApplication::setFont(font);
}

void raise(QWindow& window) {
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.raise();
    window.requestActivate();
}

int showGallery() {
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Kovamo/Gallery/GalleryWindow.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    using namespace kovamo;
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const std::optional<Options> options = parsedOptions(arguments);
    if (!options) {
        std::fprintf(stderr, "%s\n", qPrintable(usage()));
        return usageError;
    }
    if (options->wantsHelp || options->wantsVersion) {
        std::printf(
            "%s\n",
            qPrintable(options->wantsHelp ? usage() : QStringLiteral("Kovamo " KOVAMO_VERSION)));
        return 0;
    }

    std::optional<QTemporaryDir> scratch;
    if (options->isDemo || options->pictures) {
        scratch.emplace();
        moveInto(*scratch);
        std::printf("Sample data in a throwaway store: nothing is kept.\n");
        std::fflush(stdout);
    }
    if (options->pictures && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    chooseRenderer();
    int toolkitArguments = 1;
    const QGuiApplication application(toolkitArguments, argv);
    preferColourEmoji();
    installAccessibleItems();
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Kovamo"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.kovamo.Kovamo"));

    QGuiApplication::setLayoutDirection(RootView::isMirrored() ? Qt::RightToLeft : Qt::LeftToRight);
    if (options->appearance)
        SystemColors::shared().setColorScheme(*options->appearance);
    DesktopSettings desktop(!options->appearance && !options->pictures);

    if (options->isGallery && !options->pictures)
        return showGallery();
    std::optional<SoleInstance> instance;
    if (!scratch)
        instance.emplace(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    if (instance && instance->handedOver())
        return 0;
    const KovamoApp app;
    ManagedObjectContext& viewContext = app.persistenceController.container->viewContext();
    if (options->isDemo && !options->pictures) {
        addSampleData(viewContext);
        UserDefaults::standard().set(RootView::onboardingFinishedKey(), true);
    }
    RootView root(viewContext);
    QQmlApplicationEngine engine;
    QQuickWindow& window = KovamoApp::showWindow(engine, root);
    if (options->pictures) {
        const QList<ColorScheme> both{ColorScheme::light, ColorScheme::dark};
        const QList<ColorScheme> appearances =
            options->appearance ? QList{*options->appearance} : both;
        return drawPictures(window, root, viewContext, appearances, *options->pictures) ? 0 : 1;
    }
    if (instance)
        QObject::connect(&*instance, &SoleInstance::activationRequested, &window,
                         [&] { raise(window); });
    const auto followMotion = [&] { window.setProperty("reducedMotion", desktop.reducedMotion()); };
    QObject::connect(&desktop, &DesktopSettings::reducedMotionChanged, &window, followMotion);
    // On X the size of text is in the screen's resolution, which the toolkit scales everything by.
    const auto followText = [&] { window.setProperty("textScale", desktop.textScale()); };
    if (QGuiApplication::platformName().startsWith(u"wayland"))
        QObject::connect(&desktop, &DesktopSettings::textScaleChanged, &window, followText);
    return QGuiApplication::exec();
}

#include "GuiSetup.h"
#include "KovamoApp.h"
#include "Options.h"
#include "Pictures.h"
#include "RootView.h"
#include "SampleData.h"
#include "SoleInstance.h"
#include "command/CommandLine.h"
#include "platform/desktop/DesktopSettings.h"
#include "platform/desktop/FatalNotification.h"
#include "platform/desktop/TextInput.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/FatalError.h"
#include "platform/foundation/UserDefaults.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <csignal>
#include <cstdio>
#include <optional>

namespace {

using namespace kovamo;

constexpr int wrongCall = 2;

QStringList argumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

/// Prints the help, the version or what is wrong with the command line, and returns the exit
/// status; nothing where the app is to start.
std::optional<int> answered(const Options& options) {
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "%s\nTry: kovamo --help\n", qPrintable(options.error));
        return wrongCall;
    }
    if (!options.wantsHelp && !options.wantsVersion)
        return std::nullopt;
    std::printf("%s\n", options.wantsHelp ? qPrintable(helpText()) : "Kovamo " KOVAMO_VERSION);
    return 0;
}

/// Points the store and the preferences at a folder that is deleted when the app ends.
void moveInto(const QTemporaryDir& scratch) {
    qputenv("XDG_DATA_HOME", scratch.filePath(QStringLiteral("data")).toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", scratch.filePath(QStringLiteral("config")).toLocal8Bit());
    std::printf("Sample data in a throwaway store: nothing is kept.\n");
    std::fflush(stdout);
}

ManagedObjectContext& viewContext(const KovamoApp& app) {
    return app.persistenceController.container->viewContext();
}

void raise(QWindow& window) {
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.raise();
    window.requestActivate();
}

/// Takes the title bar off the window while it fills the screen: on Wayland, Qt draws the bar into
/// the window, where nothing is to be moved then, and a phone has no room for it.
void fitTitleBar(QQuickWindow& window) {
    const bool fills =
        window.visibility() == QWindow::Maximized || window.visibility() == QWindow::FullScreen;
    if (window.flags().testFlag(Qt::FramelessWindowHint) == fills)
        return;
    const QMargins barBefore = window.frameMargins();
    window.setFlag(Qt::FramelessWindowHint, fills);
    // Unless the compositor happens to tell the size once more, Qt leaves the window as small as
    // the bar made it, and black; and without a new size, black when the bar comes back.
    window.resize(window.size().grownBy(barBefore).shrunkBy(window.frameMargins()));
}

/// Keeps the window's motion, size of text and title bar as the desktop wants them.
void follow(const DesktopSettings& desktop, QQuickWindow& window) {
    QObject::connect(&desktop, &DesktopSettings::reducedMotionChanged, &window,
                     [&] { window.setProperty("reducedMotion", desktop.reducedMotion()); });
    if (!QGuiApplication::platformName().startsWith(u"wayland"))
        return;
    // On X the size of text is in the screen's resolution, which Qt scales everything by.
    QObject::connect(&desktop, &DesktopSettings::textScaleChanged, &window,
                     [&] { window.setProperty("textScale", desktop.textScale()); });
    // Queued: the size that comes with the state is to be known.
    QObject::connect(
        &window, &QWindow::visibilityChanged, &window, [&] { fitTitleBar(window); },
        Qt::QueuedConnection);
}

int draw(const Options& options) {
    const KovamoApp app{PersistenceController::shared()};
    RootView root(viewContext(app));
    QQmlEngine engine;
    const auto window = KovamoApp::showWindow(engine, root);
    const QList<ColorScheme> appearances = options.appearance
                                               ? QList{*options.appearance}
                                               : QList{ColorScheme::light, ColorScheme::dark};
    return drawPictures(*window, root, viewContext(app), appearances, *options.pictures) ? 0 : 1;
}

int show(const Options& options, const PersistentContainer& store) {
    const DesktopSettings desktop(!options.appearance);
    std::optional<SoleInstance> instance;
    if (!options.isDemo)
        instance.emplace(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation),
                         options.start);
    if (instance && instance->handedOver())
        return 0;
    notifyOfFatalErrors(store.storePath());
    // Here the store is opened, or the process ends.
    const KovamoApp app{PersistenceController::shared()};
    if (options.isDemo) {
        addSampleData(viewContext(app));
        UserDefaults::standard().set(RootView::onboardingFinishedKey(), true);
    }
    WayBack wayBack(*app.persistenceController.container);
    RootView root(viewContext(app), &wayBack);
    QQmlEngine engine;
    const auto window = KovamoApp::showWindow(engine, root);
    root.perform(options.start);
    if (instance)
        QObject::connect(&*instance, &SoleInstance::activationRequested, window.get(),
                         [&](const Start& start) {
                             raise(*window);
                             root.perform(start);
                         });
    follow(desktop, *window);
    const TextInput textInput;
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    // Otherwise SIGPIPE ends the app where nobody reads what it prints.
    std::signal(SIGPIPE, SIG_IGN);
    forbidCoreDumps();
    KovamoApp::describe();
    followHostTimeZone();
    const QStringList arguments = argumentsOf(argc, argv);
    if (const std::optional<int> status = runCommand(arguments))
        return *status;
    const Options options = parsedOptions(arguments);
    if (const std::optional<int> status = answered(options))
        return *status;
    std::optional<QTemporaryDir> scratch;
    if (options.isDemo || options.pictures)
        moveInto(scratch.emplace());
    if (options.pictures && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    chooseRenderer();
    TextInput::takeFromQt();
    const PersistentContainer store(QStringLiteral("Kovamo"), Transaction::entity());
    // While Qt starts.
    store.readAhead();
    int qtArguments = 1;
    const QGuiApplication application(qtArguments, argv);
    setUpApplication();
    if (options.appearance)
        SystemColors::shared().setColorScheme(*options.appearance);
    return options.pictures ? draw(options) : show(options, store);
}

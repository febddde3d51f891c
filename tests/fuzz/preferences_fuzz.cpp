// The bytes of the preferences' file: every key has some value, and one that is set is there at
// the next start, the others being as they were.

#include "Fuzz.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"

#include <QDir>
#include <QGuiApplication>

using namespace kovamo;

// As in the app: a file can hold pictures and fonts, which need one.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication app(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bundle::main().setInfoDictionary({{kCFBundleNameKey, QStringLiteral("App")}});
    const QString folder = scratchPath(QStringLiteral("App"));
    static const bool made =
        QDir().mkpath(folder) && qputenv("XDG_CONFIG_HOME", scratchPath(QString()).toLocal8Bit());
    check(made, "there is a folder");
    writeFile(folder + u"/App.conf", {data, size});
    const QString count = QStringLiteral("appStartUpsCountKey");
    const QString version = QStringLiteral("lastVersionPromptedForReviewKey");
    const QString flag = QStringLiteral("onboardingFinished");

    UserDefaults defaults;
    const auto text = defaults.string(version);
    const bool isSet = defaults.boolean(flag);
    defaults.set(count, defaults.integer(count) / 2 + 1);
    const auto number = defaults.integer(count);

    const UserDefaults again;
    check(again.integer(count) == number, "the number is kept");
    check(again.string(version) == text, "the text stays");
    check(again.boolean(flag) == isSet, "the flag stays");
    return 0;
}

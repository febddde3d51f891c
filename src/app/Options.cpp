#include "Options.h"

namespace kovamo {

namespace {

std::optional<ColorScheme> scheme(const QString& name) {
    if (name == u"light")
        return ColorScheme::light;
    if (name == u"dark")
        return ColorScheme::dark;
    return std::nullopt;
}

} // namespace

QString usage() {
    return QStringLiteral("Usage: kovamo [--demo] [--appearance light|dark] [--pictures FOLDER] "
                          "[--gallery] [--version] [--help]");
}

std::optional<Options> parsedOptions(const QStringList& arguments) {
    Options options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        const bool hasValue = argument + 1 != arguments.end();
        if (*argument == u"--demo")
            options.isDemo = true;
        else if (*argument == u"--gallery")
            options.isGallery = true;
        else if (*argument == u"--version")
            options.wantsVersion = true;
        else if (*argument == u"--help")
            options.wantsHelp = true;
        else if (*argument == u"--pictures" && hasValue)
            options.pictures = *++argument;
        else if (*argument == u"--appearance" && hasValue && scheme(*(argument + 1)))
            options.appearance = scheme(*++argument);
        else
            return std::nullopt;
    }
    return options;
}

} // namespace kovamo

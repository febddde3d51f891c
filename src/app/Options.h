#pragma once

#include "platform/desktop/SystemColors.h"

#include <QStringList>
#include <optional>

namespace kovamo {

/// What the command line asks for.
struct Options {
    /// Sample data in a throwaway store, nothing of the user's touched.
    bool isDemo = false;
    /// The gallery of shapes, styles and charts in place of the app.
    bool isGallery = false;
    /// The appearance to use in place of the desktop's.
    std::optional<ColorScheme> appearance;
    /// A folder to draw pictures of all screens into, in place of showing them.
    std::optional<QString> pictures;
    /// Only to say which version this is.
    bool wantsVersion = false;
    /// Only to print the usage.
    bool wantsHelp = false;
};

/// The usage line.
[[nodiscard]] QString usage();

/// The options of a command line without the program's name; nothing when it is not understood.
[[nodiscard]] std::optional<Options> parsedOptions(const QStringList& arguments);

} // namespace kovamo

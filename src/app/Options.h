#pragma once

#include "StartAction.h"
#include "platform/desktop/SystemColors.h"

#include <QStringList>
#include <optional>

namespace kovamo {

/// What the command line asks for.
struct Options {
    /// Sample data in a throwaway store, nothing of the user's touched.
    bool isDemo = false;
    /// The appearance to use in place of the desktop's.
    std::optional<ColorScheme> appearance;
    /// A folder to draw pictures of all screens into, in place of showing them.
    std::optional<QString> pictures;
    /// What to open over the main screen, and what is to come in.
    Start start{};
    /// Only to say which version this is.
    bool wantsVersion = false;
    /// Only to explain the options.
    bool wantsHelp = false;
    /// What is wrong with the command line; empty where it is understood.
    QString error;
};

/// The options of a command line without the program's name.
[[nodiscard]] Options parsedOptions(const QStringList& arguments);

/// How to call the program, with a line for each option.
[[nodiscard]] QString helpText();

} // namespace kovamo

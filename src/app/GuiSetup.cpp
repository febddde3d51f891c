#include "GuiSetup.h"

#include "RootView.h"
#include "platform/controls/AccessibleItems.h"
#include "platform/controls/text/EmojiText.h"
#include "platform/foundation/Bundle.h"

#include <QDir>
#include <QGuiApplication>
#include <QQuickWindow>
#include <fontconfig/fontconfig.h>
#include <memory>

namespace kovamo {

namespace {

/// The installed family that `family` stands for in the user's language: "Sans Serif" is none.
/// (QFontInfo knows it too, once it has loaded that font and listed all that could take its place.)
QString installedFamily(const QString& family) {
    using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;
    const QByteArray name = family.toUtf8();
    const Pattern wanted(
        FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, name.constData(), nullptr),
        &FcPatternDestroy);
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Pattern found(FcFontMatch(nullptr, wanted.get(), &result), &FcPatternDestroy);
    FcChar8* installed = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FAMILY, 0, &installed) != FcResultMatch)
        return family;
    return QString::fromUtf8(reinterpret_cast<const char*>(installed));
}

/// Puts the colour emoji font right behind those for text, before fonts that draw the same
/// characters in black. A language's own font may lack the digits, which the emoji font has too: a
/// font for Latin goes between.
void preferColourEmoji() {
    QFont font = QGuiApplication::font();
    const QStringList families{installedFamily(font.family()), QStringLiteral("Noto Sans"),
                               emojiFontFamily()};
    // Text fields ignore the families of the application font, but follow substitutions.
    QFont::insertSubstitutions(font.family(), families);
    font.setFamilies(families);
    QGuiApplication::setFont(font);
}

} // namespace

void chooseRenderer() {
    const QDir devices(QStringLiteral("/dev/dri"));
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") &&
        devices.entryList({QStringLiteral("renderD*")}, QDir::System).isEmpty())
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

void setUpApplication() {
    preferColourEmoji();
    installAccessibleItems();
    QGuiApplication::setApplicationDisplayName(Bundle::main().text(kCFBundleNameKey));
    QGuiApplication::setDesktopFileName(Bundle::main().text(kCFBundleIdentifierKey));
    QGuiApplication::setLayoutDirection(RootView::isMirrored() ? Qt::RightToLeft : Qt::LeftToRight);
}

} // namespace kovamo

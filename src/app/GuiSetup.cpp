#include "GuiSetup.h"

#include "RootView.h"
#include "platform/controls/AccessibleItems.h"
#include "platform/controls/text/EmojiText.h"
#include "platform/foundation/Bundle.h"

#include <QDir>
#include <QFontInfo>
#include <QGuiApplication>
#include <QQuickWindow>

namespace kovamo {

namespace {

/// Puts the colour emoji font right behind those for text, before fonts that draw the same
/// characters in black. A language's own font may lack the digits, which the emoji font has too: a
/// font for Latin goes between.
void preferColourEmoji() {
    QFont font = QGuiApplication::font();
    const QStringList families{QFontInfo(font).family(), QStringLiteral("Noto Sans"),
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

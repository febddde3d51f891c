#pragma once

#include <QString>

class QQuickWindow;

namespace kovamo {

class RootView;

/// Draws every screen of the app in `window` to a PNG in `folder` and prints the path of each.
/// Returns whether all could be written.
bool drawPictures(QQuickWindow& window, RootView& root, const QString& folder);

} // namespace kovamo

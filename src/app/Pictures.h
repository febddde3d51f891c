#pragma once

#include "platform/desktop/SystemColors.h"
#include "platform/objectstore/ManagedObjectContext.h"

class QQuickWindow;

namespace kovamo {

class RootView;

/// Draws every screen of the app in `window`, at each size from a small phone's to a tablet's and
/// in each of `appearances`, to PNG files "screen-WIDTHxHEIGHT-appearance.png" in `folder`, and
/// prints the path of each. Returns whether all could be written. Requires: `context` is empty and
/// is what `root` shows; sample data come into it on the way.
bool drawPictures(QQuickWindow& window, RootView& root, ManagedObjectContext& context,
                  const QList<ColorScheme>& appearances, const QString& folder);

} // namespace kovamo

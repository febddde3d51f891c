#pragma once

namespace kovamo {

/// Chooses how Qt Quick draws, unless the environment says so: by the software renderer on a
/// machine without a render device, where OpenGL takes several times as long to the first frame.
/// Requires: no window has been made yet.
void chooseRenderer();

/// Gives the application its name, fonts, layout direction and what screen readers are told.
/// Requires: no QML has been loaded yet.
void setUpApplication();

} // namespace kovamo

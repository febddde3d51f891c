#pragma once

namespace kovamo {

/// The file descriptor on which a program says that its first frame has been shown.
constexpr int firstFrameFile = 3;

} // namespace kovamo

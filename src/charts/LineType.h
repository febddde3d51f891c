#pragma once

namespace kovamo {

/// How a chart's points are joined: straight, or by a curve that is level at each of them.
enum class LineType { line, quadCurve };

} // namespace kovamo

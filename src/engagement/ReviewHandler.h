#pragma once

namespace kovamo {

/// Decides when to ask the platform for its rating prompt: from the fourth start-up on, unless the
/// user's preferences name this build as the one that has asked already.
class ReviewHandler {
  public:
    ReviewHandler() = delete;

    /// Counts a start-up and, where it is time to ask, does so two seconds later in the scene that
    /// is active by then, if one is. Requires a build version in the main bundle's information
    /// dictionary; without one, and when the count overflows, it stops the program.
    static void requestReviewIfAppropriate();
};

} // namespace kovamo

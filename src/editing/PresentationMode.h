#pragma once

#include <functional>
#include <utility>

namespace kovamo {

/// How a screen closes itself, given by what presents it: its page goes off a stack, or the sheet
/// that holds it closes. One that nobody gave does nothing.
class PresentationMode {
  public:
    PresentationMode() = default;
    explicit PresentationMode(std::function<void()> close) : m_close(std::move(close)) {}

    void dismiss() const {
        if (m_close)
            m_close();
    }

  private:
    std::function<void()> m_close;
};

} // namespace kovamo

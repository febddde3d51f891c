#pragma once

#include "FetchRequest.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace kovamo {

/// What the latest fetches gave. It is right until a record comes, changes or goes; then it must
/// forget.
class FetchMemory {
  public:
    /// The records that `request` gave; null where that is not remembered.
    [[nodiscard]] const std::vector<ManagedObject*>* find(const FetchRequest& request) const {
        const auto found = std::ranges::find(m_fetches, request, &Fetch::first);
        return found == m_fetches.end() ? nullptr : &found->second;
    }

    /// Remembers what `request` gave, and forgets the oldest where there is no room left.
    void keep(const FetchRequest& request, std::vector<ManagedObject*> objects) {
        // A screen's parts ask for the same, and again when the user goes to another choice and
        // back.
        constexpr std::size_t room = 4;
        if (m_fetches.size() == room)
            m_fetches.pop_front();
        m_fetches.emplace_back(request, std::move(objects));
    }

    void forget() { m_fetches.clear(); }

  private:
    using Fetch = std::pair<FetchRequest, std::vector<ManagedObject*>>;

    std::deque<Fetch> m_fetches;
};

} // namespace kovamo

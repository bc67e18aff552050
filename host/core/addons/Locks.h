// Counts the locks that add-ons hold. A lock defers the host's own drawing and nothing else.
#pragma once

#include <map>

struct CorAddOn_s;

namespace corvane::host {

class Locks {
public:
    using Owner = const CorAddOn_s*; ///< null: locks taken before there was an id

    void start(Owner owner);
    /// False when this owner holds none: nothing changes then.
    bool finish(Owner owner);

    int depth() const { return m_total; }
    int depthOf(Owner owner) const;

    /// For putting the counts back behind an add-on.
    using Snapshot = std::map<Owner, int>;
    const Snapshot& snapshot() const { return m_depths; }
    void restore(Snapshot snapshot) noexcept;

private:
    Snapshot m_depths;
    int m_total = 0;
};

} // namespace corvane::host

// Visits the rows of tables, blocks expanded.
#pragma once

#include "wqspcfg/core/settings/Observer.h"

#include <span>

namespace wqspcfg {

// Calls `visit` for each row that is no block, with its iteration, until it returns false. `enter` tells whether the
// rows of a group count.
template <class Enter, class Visit>
bool Walk(std::span<const Setting> rows, const Iteration* iteration, Enter enter, Visit visit)
{
    for (const auto& row : rows) {
        if (row.kind == Kind::Group) {
            if (enter(row) && !Walk(row.rows, iteration, enter, visit)) {
                return false;
            }
        } else if (row.kind == Kind::Repeat) {
            for (unsigned i = 0; i < row.iterations; ++i) {
                const Iteration each{row.iterationNames != nullptr ? row.iterationNames[i] : nullptr,
                                     row.firstIteration + i, i};
                if (!Walk(row.rows, &each, enter, visit)) {
                    return false;
                }
            }
        } else if (!visit(row, iteration)) {
            return false;
        }
    }
    return true;
}

inline bool EnterAll(const Setting&)
{
    return true;
}

} // namespace wqspcfg

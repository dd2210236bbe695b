// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace Quillbox::Bench {

/// Runs `action` that many times; the shortest time in seconds of processor time, which other
/// programs on the machine do not change. `prepare` runs before each and is not counted.
double ShortestTime(int runs, const std::function<void()> &action,
                    const std::function<void()> &prepare = {});

struct Goal {
    enum class Direction { AtMost, AtLeast };
    Direction Bound;
    double Value;
};

/// A figure that is judged by its ratio to a reference measured in the same run.
struct Figure {
    std::string Name;
    double Value;
    double Reference;
    std::string Unit;
    Goal RatioGoal;
};
void Print(const Figure &figure);

/// A figure that is judged by itself.
void Print(const std::string &name, double value, const std::string &unit, Goal goal);

} // namespace Quillbox::Bench

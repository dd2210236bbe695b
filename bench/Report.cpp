// SPDX-License-Identifier: GPL-3.0-or-later
#include "Report.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>

namespace Quillbox::Bench {

namespace {

bool IsMet(double value, Goal goal) {
    return goal.Bound == Goal::Direction::AtMost ? value <= goal.Value : value >= goal.Value;
}

const char *Sign(Goal goal) { return goal.Bound == Goal::Direction::AtMost ? "<=" : ">="; }

} // namespace

double ShortestTime(int runs, const std::function<void()> &action,
                    const std::function<void()> &prepare) {
    double shortest = std::numeric_limits<double>::infinity();
    for (int run = 0; run < runs; ++run) {
        if (prepare)
            prepare();
        const std::clock_t start = std::clock();
        action();
        const auto ticks = static_cast<double>(std::clock() - start);
        shortest = std::min(shortest, ticks / CLOCKS_PER_SEC);
    }
    return shortest;
}

void Print(const Figure &figure) {
    const double ratio = figure.Value / figure.Reference;
    std::printf("%s: %.3f %s, reference %.3f %s, ratio %.2f, goal %s %g, %s\n", figure.Name.c_str(),
                figure.Value, figure.Unit.c_str(), figure.Reference, figure.Unit.c_str(), ratio,
                Sign(figure.RatioGoal), figure.RatioGoal.Value,
                IsMet(ratio, figure.RatioGoal) ? "met" : "missed");
    std::fflush(stdout);
}

void Print(const std::string &name, double value, const std::string &unit, Goal goal) {
    std::printf("%s: %.2f %s, goal %s %g, %s\n", name.c_str(), value, unit.c_str(), Sign(goal),
                goal.Value, IsMet(value, goal) ? "met" : "missed");
    std::fflush(stdout);
}

} // namespace Quillbox::Bench

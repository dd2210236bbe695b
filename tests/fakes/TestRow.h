// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>

namespace Quillbox {

/// First part of a row in a table of cases. Its name, letters and digits only, is the end of the
/// test's name.
struct TestRow {
    const char *Name;
};

inline std::ostream &operator<<(std::ostream &stream, const TestRow &row) {
    return stream << row.Name;
}

/// Fourth argument of INSTANTIATE_TEST_SUITE_P.
inline constexpr auto RowName = [](const auto &row) { return std::string(row.param.Name); };

} // namespace Quillbox

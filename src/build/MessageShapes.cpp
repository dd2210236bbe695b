// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/MessageShapes.h"

#include "base/RuntimeError.h"
#include "base/TextItems.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Quillbox {
namespace {

/// How a compiler writes an error.
struct MessageShape {
    QRegularExpression Beginning; ///< makes a line an error line
    QRegularExpression Parts;     ///< its groups "file" and "line" are the parts of the line
};

QRegularExpression Expression(const char *pattern) {
    return QRegularExpression(QString::fromUtf8(pattern),
                              QRegularExpression::DotMatchesEverythingOption);
}

/// The first shape that fits a line counts.
const MessageShape Shapes[] = {
    // Error in file NAME at line NUMBER: MESSAGE. The name ends at the first " at line"; the line
    // begins behind the first "at line", be it in the name, and ends at the last colon of all.
    {Expression("^Error in file"), Expression("^(?=(?>.*?at line)(?<line>.*):)"
                                              "Error in file(?! at line).(?<file>.*?) at line")},
};

const MessageShape *FindShape(const QString &line) {
    const auto *const shape = std::ranges::find_if(Shapes, [&](const MessageShape &candidate) {
        return candidate.Beginning.match(line).hasMatch();
    });
    return shape == std::end(Shapes) ? nullptr : shape;
}

} // namespace

std::optional<QString> FindErrorLine(const QString &log) {
    for (const QString &line : WholeLines(log))
        if (FindShape(line) != nullptr)
            return line;
    return std::nullopt;
}

ErrorLocation LocateError(const QString &errorLine) {
    const MessageShape *shape = FindShape(errorLine);
    if (shape == nullptr)
        throw InvalidArgument();
    const QRegularExpressionMatch parts = shape->Parts.match(errorLine);
    if (!parts.hasMatch())
        throw InvalidArgument();
    return {parts.captured(QStringLiteral("file")), parts.captured(QStringLiteral("line"))};
}

} // namespace Quillbox

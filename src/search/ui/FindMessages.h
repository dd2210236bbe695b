// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/ui/ScintillaReplace.h"

namespace Quillbox {

/// What the person is told about a search; empty when the match says it all.
QString MessageOf(const FindOutcome &outcome, const FindTask &task, FindDirection direction);
QString MessageOf(const Replaced &replaced, const FindTask &task);
QString MessageOf(const ReplacedAll &replaced, const FindTask &task);

} // namespace Quillbox

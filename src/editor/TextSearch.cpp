// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/TextSearch.h"

#include "editor/ExpressionSearch.h"
#include "editor/PlainSearch.h"

namespace Quillbox {

MadeSearch MakeSearch(const FindRequest &request, std::chrono::milliseconds timeLimit) {
    if (request.IsExpression)
        return MakeExpressionSearch(request, timeLimit);
    return std::make_unique<PlainSearch>(request);
}

} // namespace Quillbox

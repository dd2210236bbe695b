// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/TextSearch.h"

#include "search/ExpressionSearch.h"
#include "search/PlainSearch.h"

namespace Quillbox {

MadeSearch MakeSearch(const FindRequest &request, std::chrono::milliseconds timeLimit) {
    if (request.IsExpression)
        return MakeExpressionSearch(request, timeLimit);
    return std::make_unique<PlainSearch>(request);
}

} // namespace Quillbox

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "checker/BlockStack.h"
#include "checker/StructureMistake.h"
#include "checker/TokenWalk.h"

#include <optional>
#include <string_view>

namespace Quillbox {

// Reads a program from its first to its last token and follows its blocks.
class StructureReader {
  public:
    explicit StructureReader(std::string_view source);

    std::optional<StructureMistake> Read();

  private:
    void ReadNext();
    void ReadKeyword(Keyword word);
    void ReadIf();
    void ReadElse(Keyword word);
    void ReadFor();
    void ReadBranch(Keyword word);
    void ReadDeclaration(Keyword word);
    void ReadBlockStart(Keyword word);
    void ReadBlockEnd(Keyword word);

    void PassThen();
    void PassWordAndExpression();
    // Whether the innermost block begins with `opener`; a mistake at `word` when not.
    bool RequireInside(Keyword opener, Keyword word);
    // Notes the Else or Default of the innermost block; a mistake when it already has one.
    void NoteLastBranch(Keyword word);
    void ReportWithout(Keyword word, Keyword opener);
    void ReportInside(Keyword word);

    TokenWalk Walk_;
    BlockStack Blocks_;
};

} // namespace Quillbox

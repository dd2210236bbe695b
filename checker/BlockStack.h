// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "checker/Keywords.h"

#include <string>
#include <vector>

namespace Quillbox {

enum class BlockForm {
    Closed,  // ends with its closing word
    OneLine, // an If with statements behind its condition: ends with its line
};

struct Block {
    Keyword Opener;
    int LineNumber; // 1-based, of the opening word
    BlockForm Form = BlockForm::Closed;
    bool HasLastBranch = false; // its Else or its Default has been read
};

// The word that begins the blocks which `closer` ends; None when it ends no block.
Keyword OpenerOf(Keyword closer);

// The words that end a block, as a message names them: "Until" o "Forever".
std::string ClosersOf(Keyword opener);

// A keyword in quotes.
std::string Quoted(Keyword word);

// How messages name a block: "If" de la línea 3.
std::string Described(const Block &block);

// The blocks that are open at a place of the program, the innermost last.
class BlockStack {
  public:
    bool IsEmpty() const { return Blocks_.empty(); }
    bool IsInside(Keyword opener) const;
    Block &Innermost() { return Blocks_.back(); }

    void Open(Block block) { Blocks_.push_back(block); }
    void CloseInnermost() { Blocks_.pop_back(); }
    // At the end of a line.
    void CloseOneLineIfs();
    // In "If a Then If b Then x Else y Else z" the second Else belongs to the first If.
    void CloseOneLineIfsWithElse();
    // In "For i=1 To 9 : If a(i) Then Exit : Next" the Next reaches past the If.
    void CloseOneLineIfsBesideTheirBlock();

  private:
    bool InnermostIsOneLine() const;

    std::vector<Block> Blocks_;
};

} // namespace Quillbox

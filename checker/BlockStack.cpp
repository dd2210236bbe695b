// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/BlockStack.h"

#include <algorithm>
#include <array>

namespace Quillbox {

namespace {

struct BlockWords {
    Keyword Opener;
    Keyword Closer;
};

constexpr std::array Pairs{
    BlockWords{Keyword::If, Keyword::EndIf},
    BlockWords{Keyword::For, Keyword::Next},
    BlockWords{Keyword::While, Keyword::Wend},
    BlockWords{Keyword::Repeat, Keyword::Until},
    BlockWords{Keyword::Repeat, Keyword::Forever},
    BlockWords{Keyword::Select, Keyword::EndSelect},
    BlockWords{Keyword::Function, Keyword::EndFunction},
    BlockWords{Keyword::Type, Keyword::EndType},
};

} // namespace

Keyword OpenerOf(Keyword closer) {
    const auto pair = std::ranges::find(Pairs, closer, &BlockWords::Closer);
    return pair == Pairs.end() ? Keyword::None : pair->Opener;
}

std::string ClosersOf(Keyword opener) {
    std::string closers;
    for (const BlockWords &pair : Pairs)
        if (pair.Opener == opener)
            closers += (closers.empty() ? "" : " o ") + Quoted(pair.Closer);
    return closers;
}

std::string Quoted(Keyword word) { return '"' + std::string(SpellingOf(word)) + '"'; }

std::string Described(const Block &block) {
    return Quoted(block.Opener) + " de la línea " + std::to_string(block.LineNumber);
}

bool BlockStack::IsInside(Keyword opener) const {
    return !Blocks_.empty() && Blocks_.back().Opener == opener;
}

bool BlockStack::InnermostIsOneLine() const {
    return !Blocks_.empty() && Blocks_.back().Form == BlockForm::OneLine;
}

void BlockStack::CloseOneLineIfs() {
    while (InnermostIsOneLine())
        Blocks_.pop_back();
}

void BlockStack::CloseOneLineIfsWithElse() {
    while (InnermostIsOneLine() && Blocks_.back().HasLastBranch && Blocks_.size() > 1 &&
           Blocks_[Blocks_.size() - 2].Form == BlockForm::OneLine)
        Blocks_.pop_back();
}

void BlockStack::CloseOneLineIfsBesideTheirBlock() {
    while (InnermostIsOneLine() && Blocks_.size() > 1 &&
           Blocks_[Blocks_.size() - 2].LineNumber == Blocks_.back().LineNumber)
        Blocks_.pop_back();
}

} // namespace Quillbox

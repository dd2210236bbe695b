// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/BlockStack.h"

#include <gtest/gtest.h>

namespace Quillbox {

namespace {

const Block OneLineIf{Keyword::If, 4, BlockForm::OneLine};

} // namespace

TEST(BlockWords, NameTheBlockThatAWordEnds) {
    EXPECT_EQ(OpenerOf(Keyword::Wend), Keyword::While);
    EXPECT_EQ(OpenerOf(Keyword::Forever), Keyword::Repeat);
    EXPECT_EQ(OpenerOf(Keyword::Else), Keyword::None);
}

TEST(BlockWords, NameEveryWordThatEndsABlock) {
    EXPECT_EQ(ClosersOf(Keyword::Select), "\"End Select\"");
    EXPECT_EQ(ClosersOf(Keyword::Repeat), "\"Until\" o \"Forever\"");
}

TEST(BlockStack, IsInsideItsInnermostBlockOnly) {
    BlockStack blocks;
    EXPECT_FALSE(blocks.IsInside(Keyword::If));
    blocks.Open({Keyword::If, 1});
    blocks.Open({Keyword::For, 2});
    EXPECT_TRUE(blocks.IsInside(Keyword::For));
    EXPECT_FALSE(blocks.IsInside(Keyword::If));
}

TEST(BlockStack, ClosesOneLineIfsDownToTheNextOtherBlock) {
    BlockStack blocks;
    blocks.Open(OneLineIf);
    blocks.Open({Keyword::For, 4});
    blocks.Open(OneLineIf);
    blocks.Open(OneLineIf);
    blocks.CloseOneLineIfs();
    EXPECT_TRUE(blocks.IsInside(Keyword::For));
}

TEST(BlockStack, PassesElseOnOnlyToAnotherOneLineIf) {
    BlockStack blocks;
    blocks.Open({Keyword::If, 1});
    blocks.Open(OneLineIf);
    blocks.Innermost().HasLastBranch = true;
    blocks.CloseOneLineIfsWithElse();
    EXPECT_EQ(blocks.Innermost().LineNumber, OneLineIf.LineNumber);
    blocks.Open(OneLineIf);
    blocks.Innermost().HasLastBranch = true;
    blocks.CloseOneLineIfsWithElse();
    EXPECT_TRUE(blocks.Innermost().HasLastBranch);
    blocks.CloseInnermost();
    EXPECT_EQ(blocks.Innermost().LineNumber, 1);
}

TEST(BlockStack, ReachesPastAOneLineIfOnlyInItsOwnLine) {
    BlockStack blocks;
    blocks.Open({Keyword::For, 4});
    blocks.Open(OneLineIf);
    blocks.CloseOneLineIfsBesideTheirBlock();
    EXPECT_TRUE(blocks.IsInside(Keyword::For));
    blocks.Open({Keyword::If, 5, BlockForm::OneLine});
    blocks.CloseOneLineIfsBesideTheirBlock();
    EXPECT_TRUE(blocks.IsInside(Keyword::If));
}

} // namespace Quillbox

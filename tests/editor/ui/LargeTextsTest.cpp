// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"

#include <random>

namespace Quillbox {

using LargeTexts = EditorTest;

TEST_F(LargeTexts, MayHaveManyShortLines) {
    constexpr int count = 200'000;
    QByteArray lines;
    for (int line = 0; line < count; ++line)
        lines += "if\r\n";
    Load(lines);
    Editor->SetLineNumbers(true);
    Editor->show();
    EXPECT_EQ(Editor->LineCount(), count + 1);
    Editor->SetCaretPos(At(count - 1, 2));
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Keyword);
    Editor->ReplaceSel("x");
    EXPECT_EQ(Editor->LineText({count - 1}), "ifx");
    Editor->grab();
    ASSERT_TRUE(Editor->SaveFile(PathOf("copia.bb")));
    EXPECT_TRUE(Read(PathOf("copia.bb")) == lines.chopped(2) + "x\r\n");
}

TEST_F(LargeTexts, MayHaveOneVeryLongLine) {
    QByteArray line;
    while (line.size() < 1'000'000)
        line += "if a\xF1o = 12 : ";
    Load(line);
    Editor->show();
    Editor->grab();
    const auto length = static_cast<int>(Editor->LineText({0}).size());
    EXPECT_EQ(length, line.size());
    Editor->SetCaretPos(At(0, length - 14));
    EXPECT_EQ(Editor->CurrentWord(), "if");
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Keyword);
    Editor->ReplaceSel("x");
    EXPECT_EQ(Caret(), At(0, length - 13));
    Editor->grab();
    EXPECT_EQ(Editor->CurrentWord(), "xif");
    Editor->Undo();
    ASSERT_TRUE(Editor->SaveFile(PathOf("copia.bb")));
    EXPECT_TRUE(Read(PathOf("copia.bb")) == line);
}

TEST_F(LargeTexts, MayBeNoTextAtAll) {
    std::mt19937 random(7);
    QByteArray bytes;
    for (int count = 0; count < 10'000'000; ++count)
        bytes += static_cast<char>(random());
    Load(bytes);
    Editor->show();
    Editor->grab();
    Editor->SetTopIndex({Editor->LineCount()});
    Editor->grab();
    ASSERT_TRUE(Editor->SaveFile(PathOf("copia.bb")));
    EXPECT_TRUE(Read(PathOf("copia.bb")) == bytes);
}

} // namespace Quillbox

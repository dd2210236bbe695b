// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Sources.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::HasSubstr;

Reference Complete() {
    return {{{"Cls", "Cls", "Borra."}, {"Flip", "Flip", "Muestra."}},
            {{"graphics", {"2d"}, "Gráficos", "Dibujo", "Dibujar.", {"Cls", "Flip"}, {}}},
            {{"a.bb", "A", {"2D"}, "Una."}}};
}

std::string OnlyGapOf(const Reference &reference) {
    const QStringList gaps = FindGaps(reference);
    EXPECT_EQ(gaps.size(), 1) << gaps.join('\n').toStdString();
    return gaps.join(u'\n').toStdString();
}

TEST(Gaps, AreNoneInACompleteReference) { EXPECT_TRUE(FindGaps(Complete()).isEmpty()); }

TEST(Gaps, AreWordsWithoutATheme) {
    Reference reference = Complete();
    reference.Themes[0].Words.removeLast();
    EXPECT_THAT(OnlyGapOf(reference), HasSubstr("the word Flip has no theme"));
}

TEST(Gaps, AreWordsInTwoThemes) {
    Reference reference = Complete();
    reference.Themes[0].Words += "Cls";
    EXPECT_THAT(OnlyGapOf(reference), HasSubstr("the word Cls stands 2 times"));
}

TEST(Gaps, AreWordsThatTheLanguageLacks) {
    Reference reference = Complete();
    reference.Themes[0].Words += "Clz";
    EXPECT_THAT(OnlyGapOf(reference), HasSubstr("Clz is no word"));
}

TEST(Gaps, AreThemesWithoutATitle) {
    Reference reference = Complete();
    reference.Themes[0].Title.clear();
    EXPECT_THAT(OnlyGapOf(reference), HasSubstr("the theme graphics lacks"));
}

TEST(Gaps, AreExamplesOfAnUnknownTheme) {
    Reference reference = Complete();
    reference.Examples[0].Themes = {"cocina"};
    EXPECT_THAT(OnlyGapOf(reference), HasSubstr("a.bb: there is no theme \"cocina\""));
}

} // namespace
} // namespace Quillbox

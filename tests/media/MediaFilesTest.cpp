// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/MediaFiles.h"

#include "fakes/CallLog.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MediaPatternList, HoldsSixteenEndingsAsUsersKnowThem) {
    EXPECT_EQ(MediaPatterns, "*.x;*.3ds;*.md2;*.bmp;*.jpg;*.png;*.pcx;*.tga;*.iff;*.wav;*.mp3;"
                             "*.mid;*.mod;*.x3m;*.xm;*.it");
    EXPECT_EQ(MediaPatterns.split(';').size(), 16);
}

TEST(MediaPatternList, ChoosesFilesWhateverTheirLetterCase) {
    EXPECT_THAT(NamesMatching({"a.PNG", "b.txt", "c.x3m"}, MediaPatterns),
                ElementsAre("a.PNG", "c.x3m"));
}

TEST(MediaPatternList, ChoosesAFileOfEachEnding) {
    QStringList names;
    for (const QString &pattern : MediaPatterns.split(';'))
        names.append("nave" + pattern.mid(1));
    EXPECT_EQ(NamesMatching(names, MediaPatterns), names);
}

TEST(MediaPatternList, LooksAtTheWholeName) {
    EXPECT_THAT(NamesMatching({"a.x.bak", "ax", "a.xx", "a.jpeg", "png", "a.png\n"}, MediaPatterns),
                IsEmpty());
}

TEST(MediaPatternList, TakesEveryOtherLetterAsItIs) {
    EXPECT_THAT(NamesMatching({"año [1] (b)*?.png", "nave espacial.2.x"}, MediaPatterns),
                ElementsAre("año [1] (b)*?.png", "nave espacial.2.x"));
}

TEST(MediaKinds, FollowTheEnding) {
    EXPECT_EQ(MediaKindOf("a.X"), MediaKind::Model);
    EXPECT_EQ(MediaKindOf("a.x.Tga"), MediaKind::Picture);
    EXPECT_EQ(MediaKindOf("a.mid"), MediaKind::Sound);
}

TEST(MediaFileOrder, DoesNotCountLetterCase) {
    EXPECT_THAT(SortedForPeople({"b.x", "A.x", "C.x", "a2.x"}),
                ElementsAre("A.x", "a2.x", "b.x", "C.x"));
}

TEST(MediaFileOrder, PutsAccentsWhereADictionaryHasThem) {
    EXPECT_THAT(SortedForPeople({"zorro.x", "ángel.x", "ñu.x", "nube.x", "osa.x", "anca.x"}),
                ElementsAre("anca.x", "ángel.x", "nube.x", "ñu.x", "osa.x", "zorro.x"));
}

TEST(MediaFileOrder, CountsNumbersAsNumbers) {
    EXPECT_THAT(SortedForPeople({"nave10.x", "nave2.x", "nave1.x"}),
                ElementsAre("nave1.x", "nave2.x", "nave10.x"));
}

TEST(MediaFileOrder, IsTheSameForNamesThatDifferInCaseAlone) {
    EXPECT_EQ(SortedForPeople({"a.x", "A.x"}), SortedForPeople({"A.x", "a.x"}));
}

} // namespace
} // namespace Quillbox

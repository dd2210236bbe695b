// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/FileNames.h"

#include "base/Paths.h"
#include "fakes/CallLog.h"
#include "fakes/ErrorNumber.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

struct Case {
    QString Path;
    QString Directory;
    QString FileName;
};

void ExpectSplits(std::initializer_list<Case> cases) {
    for (const Case &one : cases) {
        const FileNameParts parts = SplitFileName(one.Path);
        EXPECT_EQ(parts.Directory, one.Directory) << one.Path.toStdString();
        EXPECT_EQ(parts.FileName, one.FileName) << one.Path.toStdString();
    }
}

TEST(FileNames, SplitAtTheLastSeparator) {
    const QString s = PathSeparator;
    ExpectSplits({
        {s + "juegos" + s + "a.prg", s + "juegos" + s, "a.prg"},
        {s + "a.prg", s, "a.prg"},
        {"juegos" + s + "a.prg", "juegos" + s, "a.prg"},
        {s + "mis juegos" + s + "mi juego.prg", s + "mis juegos" + s, "mi juego.prg"},
        {s + "j.d" + s + "sin_extension", s + "j.d" + s, "sin_extension"},
        {s + "j" + s + s + "a.prg", s + "j" + s + s, "a.prg"},
        {s + "juegos" + s, s + "juegos" + s, ""},
    });
}

TEST(FileNames, SplitWindowsFormsAtTheLastBackslash) {
    ExpectSplits({
        {"C:\\juegos\\a.prg", "C:\\juegos\\", "a.prg"},
        {"C:\\a.prg", "C:\\", "a.prg"},
        {"juegos\\a.prg", "juegos\\", "a.prg"},
    });
}

TEST(FileNames, HaveNoFolderWithoutASeparator) {
    ExpectSplits({{"a.prg", "", "a.prg"}, {"", "", ""}});
}

TEST(WithoutLast, DropsTheLastCharacters) {
    EXPECT_EQ(WithoutLast("juego.prg", 3), QString("juego."));
    EXPECT_EQ(WithoutLast("juego.prg", 0), QString("juego.prg"));
    EXPECT_EQ(WithoutLast("ab", 2), QString());
    EXPECT_EQ(WithoutLast("", 0), QString());
}

TEST(WithoutLast, EndsInRunTimeErrorFiveWhenTheTextIsShorter) {
    EXPECT_EQ(ErrorNumberOf([] { WithoutLast("a", 2); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { WithoutLast("", 1); }), 5);
}

} // namespace
} // namespace Quillbox

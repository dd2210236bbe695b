// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProfileFiles.h"

#include "platform/TestFiles.h"

namespace Quillbox {

namespace {

class TheProfileFiles : public FolderTest {
  protected:
    QString Read(const QString &key, const QString &defaultValue = "otro", int capacity = 256) {
        return Profile.ReadString("Uno", key, defaultValue, capacity, PathOf("a.ini"));
    }

    ProfileFiles Profile;
};

} // namespace

TEST_F(TheProfileFiles, ReadsAnsiText) {
    WriteTestFile(PathOf("a.ini"), "[Uno]\r\nA\xF1o=\x80 \xF1\r\n");
    EXPECT_EQ(Read("AÑO"), "€ ñ");
}

TEST_F(TheProfileFiles, YieldsTheDefaultWithoutItsLastBlanksWhenSomethingIsMissing) {
    EXPECT_EQ(Read("A", " otro \t "), " otro");
    WriteTestFile(PathOf("a.ini"), "[Uno]\r\nB=1\r\n");
    EXPECT_EQ(Read("A", " otro \t "), " otro");
    EXPECT_EQ(Profile.ReadString("Dos", "B", "2", 256, PathOf("a.ini")), "2");
}

TEST_F(TheProfileFiles, YieldsTheEmptyTextOfAnEmptyKey) {
    WriteTestFile(PathOf("a.ini"), "[Uno]\r\nA=\r\n");
    EXPECT_EQ(Read("A"), "");
}

TEST_F(TheProfileFiles, CutsToOneCharacterLessThanTheCapacity) {
    WriteTestFile(PathOf("a.ini"), "[Uno]\r\nA=12345\r\n");
    const std::pair<int, QString> cases[] = {{7, "12345"}, {6, "12345"}, {5, "1234"},
                                             {2, "1"},     {1, ""},      {0, ""}};
    for (const auto &[capacity, value] : cases)
        EXPECT_EQ(Read("A", "", capacity), value) << capacity;
    EXPECT_EQ(Read("B", "abcde", 4), "abc");
}

TEST_F(TheProfileFiles, EndsAValueAtANul) {
    WriteTestFile(PathOf("a.ini"), QByteArray("[Uno]\r\nA=ab\0cd\r\n", 16));
    EXPECT_EQ(Read("A"), "ab");
}

TEST_F(TheProfileFiles, CreatesAMissingFile) {
    EXPECT_TRUE(Profile.WriteStrings("Uno", {{"A", "ñ"}, {"B", ""}}, PathOf("a.ini")));
    EXPECT_EQ(ReadTestFile(PathOf("a.ini")), "[Uno]\r\nA=\xF1\r\nB=\r\n");
}

TEST_F(TheProfileFiles, WritesValuesInTheirOrder) {
    WriteTestFile(PathOf("a.ini"), ";mío\r\n[Uno]\r\nB=1\r\n\r\n[Dos]\r\nX=1");
    EXPECT_TRUE(Profile.WriteStrings("Uno", {{"C", "3"}, {"B", "2"}, {"A", "1"}, {"C", "4"}},
                                     PathOf("a.ini")));
    EXPECT_EQ(ReadTestFile(PathOf("a.ini")),
              ";mío\r\n[Uno]\r\nB=2\r\nC=4\r\nA=1\r\n\r\n[Dos]\r\nX=1");
}

TEST_F(TheProfileFiles, FindsWindowsPaths) {
    QDir().mkdir(PathOf("Juego"));
    WriteTestFile(PathOf("Juego/Proyecto.fnp"), "[Uno]\r\nA=1\r\n");
    EXPECT_EQ(Profile.ReadString("Uno", "A", "", 256, "juego\\proyecto.FNP"), "1");
    EXPECT_TRUE(Profile.WriteStrings("Uno", {{"A", "2"}}, "juego\\proyecto.FNP"));
    EXPECT_EQ(ReadTestFile(PathOf("Juego/Proyecto.fnp")), "[Uno]\r\nA=2\r\n");
}

TEST_F(TheProfileFiles, SaysThatTheFileCannotBeWritten) {
    EXPECT_FALSE(Profile.WriteStrings("Uno", {{"A", "1"}}, PathOf("no/a.ini")));
    QDir().mkdir(PathOf("carpeta"));
    EXPECT_FALSE(Profile.WriteStrings("Uno", {{"A", "1"}}, PathOf("carpeta")));
    WriteTestFile(PathOf("a.ini"), "[Uno]\r\nA=1\r\n");
    SetMode(PathOf("a.ini"), 0444);
    EXPECT_FALSE(Profile.WriteStrings("Uno", {{"A", "2"}}, PathOf("a.ini")));
    EXPECT_EQ(Read("A"), "1");
}

TEST_F(TheProfileFiles, NeverOverwritesAFileThatCannotBeRead) {
    WriteTestFile(PathOf("a.ini"), "[Uno]\r\nA=1\r\n");
    SetMode(PathOf("a.ini"), 0222);
    SetMode(PathOf("."), 0777);
    {
        const OrdinaryUser user;
        EXPECT_FALSE(Profile.WriteStrings("Uno", {{"B", "2"}}, PathOf("a.ini")));
    }
    SetMode(PathOf("a.ini"), 0644);
    EXPECT_EQ(ReadTestFile(PathOf("a.ini")), "[Uno]\r\nA=1\r\n");
}

} // namespace Quillbox

// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeProgram.h"

namespace Quillbox {
namespace {

using ClosingDocuments = FakeProgram;

TEST_F(ClosingDocuments, MovesLaterDocumentsDownIntoTheEarlierWindows) {
    Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"});
    FakeDocumentWindow &windowOfA = WindowOf(1);
    FakeDocumentWindow &windowOfB = WindowOf(2);
    FakeDocumentWindow &windowOfC = WindowOf(3);
    Walk.tabDocuments_Click(3);

    Documents.CloseDocument();

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(&WindowOf(1), &windowOfA);
    EXPECT_EQ(&WindowOf(2), &windowOfB);
    EXPECT_EQ(windowOfB.Caption(), QString("/j/c.prg"));
    EXPECT_EQ(windowOfB.TextEditor.Content, QString("text of /j/c.prg"));
    EXPECT_TRUE(windowOfC.Closed);
    EXPECT_FALSE(windowOfB.Closed);
}

} // namespace
} // namespace Quillbox

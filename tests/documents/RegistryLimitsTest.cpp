// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/ErrorNumber.h"
#include "fakes/FakeProgram.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

class RegistryLimits : public FakeProgram {
  protected:
    void MakeDocuments(int count) {
        for (int made = Registry.DocumentCount; made < count; ++made)
            Documents.NewDocument();
        Log.Clear();
    }
    void ExpectRefused() {
        ASSERT_EQ(Questions.Messages.size(), 1U);
        EXPECT_EQ(Questions.Messages[0].Text,
                  QString("No se pueden abrir más de 1000 documentos a la vez."));
        EXPECT_EQ(Questions.Messages[0].Caption, QString("Error"));
        EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Critical);
        EXPECT_EQ(Questions.Messages[0].Buttons, MessageButtons::Ok);
        EXPECT_EQ(Log.Calls().size(), 1U);
        EXPECT_EQ(Registry.DocumentCount, 1000);
        EXPECT_EQ(Main.Windows.size(), 1000U);
    }
};

TEST_F(RegistryLimits, LeaveTheThousandthPositionToANewDocument) {
    MakeDocuments(999);

    Documents.NewDocument();

    EXPECT_EQ(Registry.DocumentCount, 1000);
    EXPECT_EQ(Registry.CurrentIndex, 1000);
    EXPECT_EQ(Tabs.Selected, 1001);
    EXPECT_TRUE(Questions.Messages.empty());
}

TEST_F(RegistryLimits, LeaveTheThousandthPositionToAnOpenedFile) {
    MakeDocuments(999);
    Disk.Texts["/j/a.prg"] = "text of a";

    Documents.OpenDocument("/j/a.prg");

    EXPECT_EQ(Registry.CurrentIndex, 1000);
    EXPECT_EQ(EditorOf(1000).Content, QString("text of a"));
    EXPECT_TRUE(Questions.Messages.empty());
}

TEST_F(RegistryLimits, RefuseANewDocumentAboveThem) {
    MakeDocuments(1000);

    Documents.NewDocument();

    ExpectRefused();
}

TEST_F(RegistryLimits, RefuseAFileAboveThem) {
    MakeDocuments(1000);
    Disk.Texts["/j/a.prg"] = "text of a";

    Documents.OpenDocument("/j/a.prg");

    ExpectRefused();
}

TEST_F(RegistryLimits, RefuseBeforeAskingForAFile) {
    MakeDocuments(1000);
    Questions.Choices = {"/j/a.prg"};

    Documents.OpenDocument(QString());

    ExpectRefused();
}

/// The full table is looked at first, so not even an open document is activated.
TEST_F(RegistryLimits, RefuseAFileThatIsOpenAlready) {
    Open({"/j/a.prg"});
    MakeDocuments(1000);

    Documents.OpenDocument("/j/a.prg");

    ExpectRefused();
    EXPECT_EQ(Registry.CurrentIndex, 1000);
}

TEST_F(RegistryLimits, AcceptADocumentAgainAfterOneWasClosed) {
    MakeDocuments(1000);
    Walk.tabDocuments_Click(2);

    Documents.CloseDocument();
    Documents.NewDocument();

    EXPECT_EQ(Registry.DocumentCount, 1000);
    EXPECT_TRUE(Questions.Messages.empty());
}

TEST(DocumentRegistry, HasNoDocumentForTheHelpPage) {
    DocumentRegistry registry;

    EXPECT_EQ(ErrorNumberOf([&] { registry.Current(); }), 9);
}

TEST(DocumentRegistry, HasPositionsOneToOneThousand) {
    DocumentRegistry registry;

    registry.Documents[1].FileName = "a.prg";
    registry.Documents[1000].FileName = "z.prg";

    EXPECT_EQ(registry.Documents[1000].FileName, QString("z.prg"));
    EXPECT_EQ(ErrorNumberOf([&] { registry.Documents[1001].FileName = "x"; }), 9);
}

} // namespace
} // namespace Quillbox

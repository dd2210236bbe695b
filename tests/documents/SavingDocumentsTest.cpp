// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SavingDocuments : public FakeProgram {
  protected:
    void OpenModified(const QString &path) {
        Open({path});
        Change(Registry.CurrentIndex);
    }
    void Change(int position) {
        EditorOf(position).Content = "changed";
        EditorOf(position).Modified = true;
        WindowOf(position).PanelsEnabled[StatusPanel::Modified] = true;
    }
    bool ShowsModified(int position) {
        return WindowOf(position).PanelsEnabled.at(StatusPanel::Modified);
    }
};

TEST_F(SavingDocuments, WritesTheTextUnderFolderAndName) {
    OpenModified("/j/a.prg");

    Documents.SaveDocument();

    EXPECT_THAT(Log.Calls(),
                ElementsAre("editor.SaveFile /j/a.prg", "window.EnablePanel Modified false"));
    EXPECT_EQ(Disk.Texts["/j/a.prg"], QString("changed"));
}

TEST_F(SavingDocuments, TurnsTheModifiedIndicatorOff) {
    OpenModified("/j/a.prg");

    Documents.SaveDocument();

    EXPECT_FALSE(ShowsModified(1));
}

TEST_F(SavingDocuments, KeepsTheModifiedIndicatorWhenTheFileCannotBeWritten) {
    OpenModified("/j/a.prg");
    Disk.Broken.insert("/j/a.prg");

    Documents.SaveDocument();

    EXPECT_TRUE(ShowsModified(1));
    EXPECT_TRUE(EditorOf(1).Modified);
    EXPECT_THAT(Log.CallsOf({"dialogs."}), IsEmpty());
}

TEST_F(SavingDocuments, WritesAnUnmodifiedDocumentAsWell) {
    Open({"/j/a.prg"});

    Documents.SaveDocument();

    EXPECT_THAT(Log.CallsOf({"editor.SaveFile"}), ElementsAre("editor.SaveFile /j/a.prg"));
}

TEST_F(SavingDocuments, WritesOnlyTheCurrentDocument) {
    Open({"/j/a.prg", "/j/b.prg"});
    Change(1);
    Change(2);

    Documents.SaveDocument();

    EXPECT_THAT(Log.CallsOf({"editor.SaveFile"}), ElementsAre("editor.SaveFile /j/b.prg"));
    EXPECT_TRUE(ShowsModified(1));
}

TEST_F(SavingDocuments, DoesNothingOnTheHelpPage) {
    OpenModified("/j/a.prg");
    Walk.tabDocuments_Click(1);
    Log.Clear();

    Documents.SaveDocument();

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(SavingDocuments, AsksForTheNameOfAnUntitledDocument) {
    Documents.NewDocument();
    Questions.Choices = {"/j/a.prg"};

    Documents.SaveDocument();

    ASSERT_EQ(Questions.Choosers.size(), 1U);
    EXPECT_EQ(Questions.Choosers[0].Flags, FileChooserFlags::OverwritePrompt);
    EXPECT_EQ(static_cast<int>(Questions.Choosers[0].Flags), 2);
    EXPECT_EQ(Questions.Choosers[0].Filter, QString("Programas de Fenix (*.prg)|*.prg"));
    EXPECT_EQ(Registry.Current().FileName, QString("a.prg"));
}

TEST_F(SavingDocuments, AsksNothingForANamedDocument) {
    OpenModified("/j/a.prg");

    Documents.SaveDocument();

    EXPECT_TRUE(Questions.Choosers.empty());
}

TEST_F(SavingDocuments, TakesOverTheChosenName) {
    OpenModified("/j/a.prg");
    Questions.Choices = {"/k/nuevo.prg"};

    Documents.SaveDocumentAs();

    EXPECT_EQ(Registry.Current().FileName, QString("nuevo.prg"));
    EXPECT_EQ(Registry.Current().Directory, QString("/k/"));
    EXPECT_EQ(WindowOf(1).Caption(), QString("/k/nuevo.prg"));
    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda", "nuevo.prg"));
    EXPECT_EQ(Disk.Texts["/k/nuevo.prg"], QString("changed"));
    EXPECT_EQ(Disk.Texts["/j/a.prg"], QString("text of /j/a.prg"));
    EXPECT_FALSE(ShowsModified(1));
}

TEST_F(SavingDocuments, TakesItsStepsInOrderUnderANewName) {
    OpenModified("/j/a.prg");
    Questions.Choices = {"/k/nuevo.prg"};

    Documents.SaveDocumentAs();

    EXPECT_THAT(Log.Calls(),
                ElementsAre("dialogs.ShowSave Programas de Fenix (*.prg)|*.prg",
                            "editor.SaveFile /k/nuevo.prg", "window.SetCaption /k/nuevo.prg",
                            "tabs.SetTabCaption 2 nuevo.prg", "window.EnablePanel Modified false"));
}

TEST_F(SavingDocuments, ChangesNothingWhenTheChooserIsCancelled) {
    OpenModified("/j/a.prg");

    Documents.SaveDocumentAs();

    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowSave Programas de Fenix (*.prg)|*.prg"));
    EXPECT_EQ(Registry.Current().FileName, QString("a.prg"));
    EXPECT_EQ(Registry.Current().Directory, QString("/j/"));
    EXPECT_TRUE(EditorOf(1).Modified);
}

TEST_F(SavingDocuments, LeavesAnUntitledDocumentUntitledWhenTheChooserIsCancelled) {
    Documents.NewDocument();

    Documents.SaveDocument();

    EXPECT_TRUE(IsUntitled(Registry.Current()));
    EXPECT_TRUE(Disk.Texts.empty());
}

TEST_F(SavingDocuments, SavesUnderTheNewNameFromThenOn) {
    Documents.NewDocument();
    Questions.Choices = {"/j/a.prg"};
    Documents.SaveDocument();
    Log.Clear();

    Documents.SaveDocument();

    EXPECT_THAT(Log.CallsOf({"dialogs.", "editor.SaveFile"}),
                ElementsAre("editor.SaveFile /j/a.prg"));
}

TEST_F(SavingDocuments, KeepsADocumentModifiedThatCannotBeWrittenUnderItsNewName) {
    OpenModified("/j/a.prg");
    Disk.Broken.insert("/k/nuevo.prg");
    Questions.Choices = {"/k/nuevo.prg"};

    Documents.SaveDocumentAs();

    EXPECT_TRUE(ShowsModified(1));
    EXPECT_EQ(WindowOf(1).Caption(), QString("/k/nuevo.prg"));
}

TEST_F(SavingDocuments, RenamesTheTabOfTheCurrentDocumentOnly) {
    Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"});
    Walk.tabDocuments_Click(3);
    Questions.Choices = {"/j/nuevo.prg"};

    Documents.SaveDocumentAs();

    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda", "a.prg", "nuevo.prg", "c.prg"));
}

TEST_F(SavingDocuments, WritesAllNamedDocumentsWithoutAQuestion) {
    Open({"/j/a.prg"});
    Documents.NewDocument();
    Open({"/j/c.prg"});
    for (const int position : {1, 2, 3})
        Change(position);

    Documents.SaveNamedDocuments();

    EXPECT_THAT(Log.CallsOf({"editor.SaveFile", "dialogs."}),
                ElementsAre("editor.SaveFile /j/a.prg", "editor.SaveFile /j/c.prg"));
    EXPECT_FALSE(ShowsModified(1));
    EXPECT_TRUE(ShowsModified(2));
    EXPECT_FALSE(ShowsModified(3));
}

TEST_F(SavingDocuments, WritesAllNamedDocumentsUnderTheirWindowsCaptions) {
    Open({"/j/a.prg"});
    WindowOf(1).SetCaption("/k/other.prg");

    Documents.SaveNamedDocuments();

    EXPECT_THAT(Log.CallsOf({"editor.SaveFile"}), ElementsAre("editor.SaveFile /k/other.prg"));
}

TEST_F(SavingDocuments, WritesAllNamedDocumentsWithoutMoving) {
    Open({"/j/a.prg", "/j/b.prg"});
    Walk.tabDocuments_Click(1);
    Log.Clear();

    Documents.SaveNamedDocuments();

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Log.CallsOf({"tabs.", "window.Activate", "main."}), IsEmpty());
}

TEST_F(SavingDocuments, GoesOnBehindANamedDocumentThatCannotBeWritten) {
    Open({"/j/a.prg", "/j/b.prg"});
    Change(1);
    Change(2);
    Disk.Broken.insert("/j/a.prg");

    Documents.SaveNamedDocuments();

    EXPECT_TRUE(ShowsModified(1));
    EXPECT_FALSE(ShowsModified(2));
    EXPECT_EQ(Disk.Texts["/j/b.prg"], QString("changed"));
}

TEST_F(SavingDocuments, WritesNothingWithoutDocuments) {
    Documents.SaveNamedDocuments();

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

using PrintingDocuments = FakeProgram;

TEST_F(PrintingDocuments, PrintsTheCurrentDocumentThroughItsEditor) {
    Open({"/j/a.prg", "/j/b.prg"});
    Walk.tabDocuments_Click(2);
    Log.Clear();

    Documents.mnuArchivo_Imprimir_Click();

    EXPECT_THAT(Log.Calls(), ElementsAre("editor.Print a.prg"));
}

} // namespace
} // namespace Quillbox

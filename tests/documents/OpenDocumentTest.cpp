// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Paths.h"
#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OpeningDocuments : public FakeProgram {
  protected:
    OpeningDocuments() { Disk.Texts = {{"/j/a.prg", "text of a"}, {"/j/b.prg", "text of b"}}; }
};

TEST_F(OpeningDocuments, LoadsTheFile) {
    Documents.OpenDocument("/j/a.prg");

    EXPECT_EQ(Registry.DocumentCount, 1);
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(Registry.Current().Index, 1);
    EXPECT_EQ(Registry.Current().FileName, QString("a.prg"));
    EXPECT_EQ(Registry.Current().Directory, QString("/j/"));
    EXPECT_EQ(WindowOf(1).Caption(), QString("/j/a.prg"));
    EXPECT_EQ(EditorOf(1).Content, QString("text of a"));
    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda", "a.prg"));
    EXPECT_EQ(Tabs.Selected, 2);
}

TEST_F(OpeningDocuments, TakesItsStepsInOrder) {
    Tabs.Click = [](int) {};

    Documents.OpenDocument("/j/a.prg");

    EXPECT_THAT(Log.CallsOf({"main.EnableCommand mnuEdicion", "events.", "main.Create", "window.",
                             "editor.", "tabs.", "dialogs."}),
                ElementsAre("main.EnableCommand mnuEdicion true", "events.ProcessWindowEvents",
                            "main.CreateDocumentWindow", "editor.OpenFile /j/a.prg",
                            "window.SetCaption /j/a.prg", "window.Show /j/a.prg",
                            "tabs.AddTab 2 a.prg", "tabs.SelectTab 2"));
}

TEST_F(OpeningDocuments, ActivatesTheDocumentThroughItsTab) {
    Documents.OpenDocument("/j/a.prg");

    EXPECT_THAT(
        Log.CallsOf({"tabs.Select", "window.Activate", "window.Maximize", "editor.SetFocus"}),
        ElementsAre("tabs.SelectTab 2", "window.Activate /j/a.prg", "window.Maximize /j/a.prg",
                    "editor.SetFocus"));
}

TEST_F(OpeningDocuments, AddsEveryFileBehindTheOthers) {
    Documents.OpenDocument("/j/a.prg");
    Walk.tabDocuments_Click(1);
    Documents.OpenDocument("/j/b.prg");

    EXPECT_EQ(Registry.CurrentIndex, 2);
    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda", "a.prg", "b.prg"));
    EXPECT_EQ(EditorOf(2).Content, QString("text of b"));
}

TEST_F(OpeningDocuments, ActivatesAnOpenDocumentInsteadOfReadingItAgain) {
    Open({"/j/a.prg", "/j/b.prg"});
    EditorOf(1).Content = "unsaved";

    Documents.OpenDocument("/j/a.prg");

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(Tabs.Selected, 2);
    EXPECT_EQ(EditorOf(1).Content, QString("unsaved"));
    EXPECT_THAT(Log.CallsOf({"editor.OpenFile", "main.Create", "tabs.AddTab"}), IsEmpty());
}

TEST_F(OpeningDocuments, FindsAnOpenDocumentInAnyLetterCase) {
    Open({"/j/año.prg", "/j/b.prg"});

    for (const char *path : {"/J/AÑO.PRG", "/j/Año.prg", "/j/año.PRG"}) {
        Walk.tabDocuments_Click(3);
        Documents.OpenDocument(path);
        EXPECT_EQ(Registry.CurrentIndex, 1) << path;
        EXPECT_EQ(Registry.DocumentCount, 2) << path;
    }
}

TEST_F(OpeningDocuments, FindsADocumentThatWasOpenedByItsWindowsForm) {
    Open({"C:\\j\\a.prg", "/j/b.prg"});

    Documents.OpenDocument("c:\\J\\A.PRG");

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 1);
}

/// A compiler that runs through Wine names a file in its Windows form.
TEST_F(OpeningDocuments, FindsADocumentWhoseWindowsFormIsGiven) {
    const QString windowsForm = "Z:\\j\\nowhere.prg";
    Open({SystemPath(windowsForm), "/j/b.prg"});

    Documents.OpenDocument(windowsForm);

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 1);
}

TEST_F(OpeningDocuments, ComparesWholePaths) {
    Open({"/j/a.prg"});
    Disk.Texts["/k/a.prg"] = "another one";

    Documents.OpenDocument("/k/a.prg");

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(EditorOf(2).Content, QString("another one"));
}

TEST_F(OpeningDocuments, ComparesWithTheWindowsCaptions) {
    Open({"/j/a.prg"});
    WindowOf(1).SetCaption("/k/other.prg");

    Documents.OpenDocument("/k/other.prg");

    EXPECT_EQ(Registry.DocumentCount, 1);
}

TEST_F(OpeningDocuments, TakesTheFirstOfSeveralMatches) {
    Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"});
    WindowOf(2).SetCaption("/j/A.PRG");

    Documents.OpenDocument("/j/a.prg");

    EXPECT_EQ(Registry.CurrentIndex, 1);
}

TEST_F(OpeningDocuments, OnlyRefreshesTheTabOfTheDocumentThatIsForward) {
    Open({"/j/a.prg"});

    Documents.OpenDocument("/j/a.prg");

    EXPECT_THAT(Log.Calls(), ElementsAre("tabs.SetTabCaption 2 a.prg"));
}

TEST_F(OpeningDocuments, AsksForTheFileWithoutAPath) {
    Questions.Choices = {"/j/b.prg"};

    Documents.OpenDocument(QString());

    ASSERT_EQ(Questions.Choosers.size(), 1U);
    EXPECT_EQ(Questions.Choosers[0].Flags, FileChooserFlags::FileMustExist);
    EXPECT_EQ(static_cast<int>(Questions.Choosers[0].Flags), 4096);
    EXPECT_EQ(Questions.Choosers[0].Filter, QString("Programas de Fenix (*.prg)|*.prg"));
    EXPECT_EQ(WindowOf(1).Caption(), QString("/j/b.prg"));
    EXPECT_EQ(EditorOf(1).Content, QString("text of b"));
}

TEST_F(OpeningDocuments, DoesNotAskWithAPath) {
    Documents.OpenDocument("/j/a.prg");

    EXPECT_THAT(Log.CallsOf({"dialogs."}), IsEmpty());
}

TEST_F(OpeningDocuments, LeavesEverythingWhenTheChooserIsCancelled) {
    Open({"/j/a.prg"});

    Documents.OpenDocument(QString());

    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowOpen Programas de Fenix (*.prg)|*.prg"));
    EXPECT_EQ(Registry.DocumentCount, 1);
    EXPECT_EQ(Registry.CurrentIndex, 1);
}

TEST_F(OpeningDocuments, ActivatesAnOpenDocumentThatIsChosenAgain) {
    Open({"/j/a.prg", "/j/b.prg"});
    Questions.Choices = {"/J/A.prg"};

    Documents.OpenDocument(QString());

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_THAT(Log.CallsOf({"editor.OpenFile"}), IsEmpty());
}

/// The editor tells why. A document under the file's name would be saved over the file, empty, as
/// soon as the file can be reached again.
TEST_F(OpeningDocuments, LeavesNoDocumentForAFileThatCannotBeRead) {
    Open({"/j/a.prg"});

    Documents.OpenDocument("/j/missing.prg");

    EXPECT_EQ(Registry.DocumentCount, 1);
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_TRUE(Main.Windows.back()->Closed);
    EXPECT_EQ(Registry.Documents[2].Window, nullptr);
    EXPECT_EQ(Tabs.Captions.size(), 2U);
    EXPECT_TRUE(Main.Enabled["mnuEdicion"]);
    EXPECT_THAT(Log.CallsOf({"dialogs."}), IsEmpty());
}

TEST_F(OpeningDocuments, StaysOnTheHelpPageWhenTheFirstFileCannotBeRead) {
    Documents.OpenDocument("/j/missing.prg");

    EXPECT_EQ(Registry.DocumentCount, 0);
    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_FALSE(Main.Enabled["mnuEdicion"]);
    EXPECT_FALSE(Main.Enabled["mnuVentana"]);
}

TEST_F(OpeningDocuments, SplitsAPathWithoutAFolder) {
    Disk.Texts["main.bb"] = "x";

    Documents.OpenDocument("main.bb");

    EXPECT_EQ(Registry.Current().FileName, QString("main.bb"));
    EXPECT_EQ(Registry.Current().Directory, QString());
}

TEST_F(OpeningDocuments, LeavesUntitledDocumentsAlone) {
    Documents.NewDocument();

    Documents.OpenDocument("/j/a.prg");

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_TRUE(IsUntitled(Registry.Documents[1]));
}

} // namespace
} // namespace Quillbox

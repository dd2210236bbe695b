// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/HelpLinks.h"

#include "base/Paths.h"
#include "fakes/ErrorNumber.h"
#include "fakes/FakeProgram.h"
#include "language/SymbolScanner.h"
#include "surfaces/HelpViewer.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LinksOfHelpPages : public FakeProgram {
  protected:
    LinksOfHelpPages() { Options.ShowFunctions = Options.ShowLabels = Options.ShowTypes = true; }

    NavigationAnswer Follow(const QString &url) { return Links.htmlAyuda_BeforeNavigate(url); }
    /// Loading, scanning and activating, in their order.
    std::vector<std::string> Steps() const {
        return Log.CallsOf({"editor.OpenFile", "languages.", "tabs.SelectTab", "tabs.AddTab",
                            "window.Activate", "help.", "programs.", "dialogs."});
    }
    /// Back to the help page, as a person goes to click a link.
    void ShowHelp() {
        Walk.mnuVentana_Ayuda_Click();
        Log.Clear();
    }

    LanguageDefinition Language;
    SymbolScanner Scanner{Registry, Options, Lists, {Language, Languages}, Events};
    HelpLinks Links{Registry, Documents, Scanner, Launcher};
};

TEST_F(LinksOfHelpPages, OpenASourceAsADocumentAndLoadItOnceMoreAfterAScan) {
    Disk.Texts["/ayuda/ejemplo.bb"] = "Cls";

    EXPECT_EQ(Follow("file:///ayuda/ejemplo.bb"), NavigationAnswer::Cancel);

    EXPECT_EQ(Registry.DocumentCount, 1);
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(WindowOf(1).Caption(), "/ayuda/ejemplo.bb");
    EXPECT_THAT(Steps(),
                ElementsAre("editor.OpenFile /ayuda/ejemplo.bb", "tabs.AddTab 2 ejemplo.bb",
                            "tabs.SelectTab 2", "window.Activate /ayuda/ejemplo.bb",
                            "languages.RegisterLanguage Blitz3D",
                            "editor.OpenFile /ayuda/ejemplo.bb"));
}

TEST_F(LinksOfHelpPages, ActivateAnOpenSourceAndLoadItFromDiskAgain) {
    Open({"/j/a.bb", "/j/b.bb"});
    ShowHelp();
    EditorOf(1).Content = "cambiado";
    EditorOf(1).Modified = true;

    EXPECT_EQ(Follow("file:///j/a.bb"), NavigationAnswer::Cancel);

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(EditorOf(1).Content, "text of /j/a.bb");
    EXPECT_FALSE(EditorOf(1).Modified);
    EXPECT_THAT(Steps(),
                ElementsAre("tabs.SelectTab 2", "window.Activate /j/a.bb",
                            "languages.RegisterLanguage Blitz3D", "editor.OpenFile /j/a.bb"));
}

TEST_F(LinksOfHelpPages, LeaveTheScanningFlagCleared) {
    Disk.Texts["/j/a.bb"] = "Cls";
    Follow("file:///j/a.bb");
    EXPECT_FALSE(Registry.Documents[1].Scanning);
}

TEST_F(LinksOfHelpPages, SetTheScanningFlagBeforeTheScan) {
    Open({"/j/a.bb"});
    ShowHelp();
    bool scanning = false;
    Events.WhileYielding = [&] { scanning = Registry.Documents[1].Scanning; };
    Follow("file:///j/a.bb");
    EXPECT_TRUE(scanning);
}

TEST_F(LinksOfHelpPages, OnlyActivateASourceWhoseScanIsPending) {
    Open({"/j/a.bb"});
    ShowHelp();
    Registry.Documents[1].Scanning = true;
    EditorOf(1).Content = "cambiado";

    EXPECT_EQ(Follow("file:///j/a.bb"), NavigationAnswer::Cancel);

    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(EditorOf(1).Content, "cambiado");
    EXPECT_TRUE(Registry.Documents[1].Scanning);
    EXPECT_THAT(Steps(), ElementsAre("tabs.SelectTab 2", "window.Activate /j/a.bb"));
}

/// With all lists off a scan never ends, so the flag stays set from the first link on.
TEST_F(LinksOfHelpPages, LoadASourceAgainOnlyOnceWhileAllListsAreOff) {
    Options.ShowFunctions = Options.ShowLabels = Options.ShowTypes = false;
    Open({"/j/a.bb"});
    ShowHelp();

    Follow("file:///j/a.bb");
    EXPECT_THAT(Log.CallsOf({"editor.OpenFile"}), ElementsAre("editor.OpenFile /j/a.bb"));
    EXPECT_TRUE(Registry.Documents[1].Scanning);

    ShowHelp();
    Follow("file:///j/a.bb");
    EXPECT_THAT(Log.CallsOf({"editor.OpenFile"}), IsEmpty());
}

TEST_F(LinksOfHelpPages, LoadNothingAgainWhenThePersonLeavesDuringTheScan) {
    Open({"/j/a.bb"});
    EditorOf(1).Content = "process uno()";
    ShowHelp();
    Events.WhileYielding = [&] { Registry.CurrentIndex = 0; };
    Follow("file:///j/a.bb");
    EXPECT_THAT(Log.CallsOf({"editor.OpenFile"}), IsEmpty());
}

TEST_F(LinksOfHelpPages, AddNothingToTheEditorsOwnReportWhenASourceIsMissing) {
    EXPECT_EQ(Follow("file:///j/falta.bb"), NavigationAnswer::Cancel);
    EXPECT_EQ(Registry.DocumentCount, 0);
    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Steps(), ElementsAre("editor.OpenFile /j/falta.bb"));
}

TEST_F(LinksOfHelpPages, AddNothingToTheEditorsOwnReportWhenAnOpenSourceHasGone) {
    Open({"/j/a.bb"});
    ShowHelp();
    Disk.Texts.clear();
    Follow("file:///j/a.bb");
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(EditorOf(1).Content, "text of /j/a.bb");
    EXPECT_THAT(Log.CallsOf({"dialogs."}), IsEmpty());
}

/// HelpPath may name a source, and the home button works while a document is active.
TEST_F(LinksOfHelpPages, LeaveTheCurrentDocumentAloneWhenAnotherCannotBeOpened) {
    Open({"/j/a.bb"});
    EditorOf(1).Content = "cambiado";
    Follow("file:///j/falta.bb");
    EXPECT_EQ(EditorOf(1).Content, "cambiado");
}

TEST_F(LinksOfHelpPages, RefuseAThousandAndFirstSourceAsEveryOpeningDoes) {
    Registry.DocumentCount = DocumentRegistry::Capacity;
    EXPECT_EQ(Follow("file:///j/a.bb"), NavigationAnswer::Cancel);
    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Steps(),
                ElementsAre("dialogs.ShowMessage No se pueden abrir más de 1000 documentos a la "
                            "vez."));
}

TEST_F(LinksOfHelpPages, AreFollowedInTheViewerWhenTheyEndInAnythingButThatEnding) {
    for (const char *url :
         {"file:///j/a.BB", "file:///j/a.Bb", "file:///j/a.bb#x", "file:///j/a.bb?x",
          "file:///j/a.htm", "file:///j/abb", "file:///j/a.bbs", "file:///j/"})
        EXPECT_EQ(Follow(url), NavigationAnswer::Proceed) << url;
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(LinksOfHelpPages, GoToThePersonsOwnBrowserWhenTheyLeadIntoTheWeb) {
    for (const char *url : {"http://ejemplo.org/", "https://ejemplo.org/a?b=c#d", "mailto:a@b.es",
                            "ftp://ejemplo.org/x"}) {
        Log.Clear();
        EXPECT_EQ(Follow(url), NavigationAnswer::Cancel);
        EXPECT_THAT(Log.Calls(), ElementsAre(std::string("programs.OpenAddress ") + url));
    }
}

TEST_F(LinksOfHelpPages, RunNoScriptAndShowNothingButFiles) {
    for (const char *url :
         {"javascript:alert(1)", "data:text/html,x", "about:blank", "vbscript:x", ""})
        EXPECT_EQ(Follow(url), NavigationAnswer::Cancel) << url;
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(LinksOfHelpPages, LeaveAMissingWebBrowserToTheErrorBox) {
    Launcher.Missing = true;
    EXPECT_EQ(ErrorNumberOf([this] { Follow("http://ejemplo.org/"); }), 53);
}

TEST(LocalPathOf, DecodesAFileAddressOnceAsUtf8) {
    const auto path = [](const char *url) {
        return LocalPathOf(QString::fromUtf8(url)).replace(PathSeparator, u'/');
    };
    EXPECT_EQ(path("file:///home/eva/mis%20juegos/a%C3%B1o.bb"), "/home/eva/mis juegos/año.bb");
    EXPECT_EQ(path("file:///home/eva/100%25/a.bb"), "/home/eva/100%/a.bb");
    EXPECT_EQ(path("file:///home/eva/%2541.bb"), "/home/eva/%41.bb");
    EXPECT_EQ(path("file:///home/eva/a%23b.bb"), "/home/eva/a#b.bb");
    EXPECT_EQ(path("file:///C:/juegos/a.bb"), "C:/juegos/a.bb");
}

TEST(LocalPathOf, LeavesEveryOtherAddressAsItIs) {
    EXPECT_EQ(LocalPathOf("http://ejemplo.org/a%20b.bb"), "http://ejemplo.org/a%20b.bb");
    EXPECT_EQ(LocalPathOf("a%20b.bb"), "a%20b.bb");
}

} // namespace
} // namespace Quillbox

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/RuntimeError.h"
#include "platform/ProgramTest.h"
#include "platform/SystemPrograms.h"

namespace Quillbox {
namespace {

/// A desktop that has only the programs that a test puts into its one search folder.
class TheDesktopPrograms : public ProgramTest {
  protected:
    /// The program writes its name and its arguments into the file "marca".
    void Install(const QString &name) {
        MakeScript("ruta/" + name, "PATH=" + UsualPath +
                                       "\n{ echo \"${0##*/}\"; printf '%s|' \"$@\"; } "
                                       "> nueva; mv nueva marca");
    }
    void SearchOnlyHere() const { SearchOnlyIn("ruta"); }
    std::string Mark() const {
        EXPECT_TRUE(BecomesTrue([this] { return QFile::exists(PathOf("marca")); }));
        EXPECT_TRUE(BecomesTrue([] { return HasNoChild(); }));
        return ReadTestFile(PathOf("marca")).toStdString();
    }
    QString ErrorTextOf(const std::function<void()> &action) {
        try {
            action();
            return {};
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.Number, 53);
            return error.Text;
        }
    }

    const QByteArray UsualPath = qgetenv("PATH");
    SystemPrograms Programs;
};

TEST_F(TheDesktopPrograms, TheFirstCalculatorOfTheListThatIsThereIsStarted) {
    Install("xcalc");
    Install("galculator");
    SearchOnlyHere();
    Programs.Start("calc.exe", WindowStyle::Minimized);
    EXPECT_EQ(Mark(), "galculator\n|");
}

TEST_F(TheDesktopPrograms, ACalculatorForWindowsThatIsThereIsPreferred) {
    Install("xcalc");
    Install("calc.exe");
    SearchOnlyHere();
    Programs.Start("calc.exe", WindowStyle::Minimized);
    EXPECT_EQ(Mark(), "calc.exe\n|");
}

TEST_F(TheDesktopPrograms, WithoutACalculatorTheErrorSaysSo) {
    SearchOnlyHere();
    EXPECT_EQ(ErrorTextOf([&] { Programs.Start("calc.exe", WindowStyle::Minimized); }),
              "No se encuentra ninguna calculadora en este sistema");
    EXPECT_TRUE(HasNoChild());
}

TEST_F(TheDesktopPrograms, AllBehindTheExplorerIsOnePath) {
    Install("xdg-open");
    QDir().mkpath(PathOf("mis juegos/100% año"));
    WriteTestFile(PathOf("mis juegos/100% año/index.htm"), "");
    SearchOnlyHere();
    const QString page = PathOf("mis juegos/100% año/index.htm");
    Programs.Start("explorer.exe " + page, WindowStyle::Maximized);
    EXPECT_EQ(Mark(), "xdg-open\n" + page.toStdString() + "|");
}

TEST_F(TheDesktopPrograms, TheExplorerTakesAQuotedPathInItsWindowsFormToo) {
    Install("xdg-open");
    QDir().mkpath(PathOf("Ayuda"));
    WriteTestFile(PathOf("Ayuda/index.htm"), "");
    SearchOnlyHere();
    Programs.Start("EXPLORER.EXE \"" + PathOf("ayuda") + "\\INDEX.HTM\"", WindowStyle::Normal);
    EXPECT_EQ(Mark(), "xdg-open\n" + PathOf("Ayuda/index.htm").toStdString() + "|");
}

TEST_F(TheDesktopPrograms, APageThatIsNotThereIsHandedOverAllTheSame) {
    Install("xdg-open");
    SearchOnlyHere();
    Programs.Start("explorer.exe /no/hay/tal pagina.htm", WindowStyle::Maximized);
    EXPECT_EQ(Mark(), "xdg-open\n/no/hay/tal pagina.htm|");
}

TEST_F(TheDesktopPrograms, AnotherProgramOpensThePageWhenTheFirstIsMissing) {
    Install("gio");
    Install("firefox");
    SearchOnlyHere();
    Programs.Start("explorer.exe /a b.htm", WindowStyle::Maximized);
    EXPECT_EQ(Mark(), "gio\nopen|/a b.htm|");
}

TEST_F(TheDesktopPrograms, NoShellLooksAtThePath) {
    Install("xdg-open");
    SearchOnlyHere();
    Programs.Start("explorer.exe /a;touch $(x) & `y`.htm", WindowStyle::Maximized);
    EXPECT_EQ(Mark(), "xdg-open\n/a;touch $(x) & `y`.htm|");
}

TEST_F(TheDesktopPrograms, WithoutAnythingToOpenAPageTheErrorSaysSo) {
    SearchOnlyHere();
    const QString text = "No se encuentra ningún programa que pueda mostrarlo";
    EXPECT_EQ(ErrorTextOf([&] { Programs.Start("explorer.exe /a.htm", WindowStyle::Maximized); }),
              text);
    EXPECT_EQ(ErrorTextOf([&] { Programs.OpenAddress("http://ejemplo.org/"); }), text);
}

TEST_F(TheDesktopPrograms, AWebAddressReachesTheBrowserAsItIs) {
    Install("xdg-open");
    SearchOnlyHere();
    Programs.OpenAddress("https://ejemplo.org//a%20b?c=d&e=%C3%B1#f");
    EXPECT_EQ(Mark(), "xdg-open\nhttps://ejemplo.org//a%20b?c=d&e=%C3%B1#f|");
}

TEST_F(TheDesktopPrograms, AnyOtherMissingProgramKeepsTheUsualError) {
    SearchOnlyHere();
    EXPECT_EQ(ErrorTextOf([&] { Programs.Start("calculadora.exe", WindowStyle::Normal); }),
              FileNotFound().Text);
}

} // namespace
} // namespace Quillbox

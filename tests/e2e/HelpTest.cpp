// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

/// The first line of the page, and the line below it, when both are of the largest heading.
constexpr QPoint FirstLink(60, 132);
constexpr QPoint SecondLink(60, 179);
constexpr QPoint HelpTab(30, 105);
constexpr QPoint HomeButton(615, 40);
constexpr QPoint BackButton(649, 40);
constexpr QPoint ForwardButton(682, 40);

const QString AboutTitle = QStringLiteral("^Acerca de Quillbox$");

/// Help pages of the test's own, and a desktop with just the programs that a test installs.
class Help : public ProgramTest {
  protected:
    void WritePage(const QString &name, const QByteArray &bytes) {
        const QString path = ProgramFile(QStringLiteral("Ayuda/") + name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void WriteLinks(const QByteArray &first, const QByteArray &second = {}) {
        WritePage(QStringLiteral("index.htm"), "<h1><a href=\"" + first +
                                                   "\">primero</a></h1><h1><a href=\"" + second +
                                                   "\">segundo</a></h1>");
    }
    /// A script that writes its name and its arguments into the file `Called`.
    void Install(const QString &path) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n{ printf '%s|' \"${0##*/}\" \"$@\"; } >'" +
                   QFile::encodeName(Called) + "'\n");
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    void InstallOnDesktop(const QString &name) { Install(Tools + u'/' + name); }
    /// Only the program sees this desktop; the person's own tools stay where they are.
    bool StartOnDesktop() {
        QDir().mkpath(Tools);
        const QByteArray usual = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(Tools));
        const bool started = Run_.Start();
        qputenv("PATH", usual);
        return started && Person_.PressIn(MainTitle, {});
    }
    bool Click(QPoint place) { return Person_.ClickIn(MainTitle, place); }
    bool Choose(const QString &menu, const QString &item) {
        if (!Press({menu}) || !Person_.WaitForMenu())
            return false;
        Person_.Press({item});
        return Person_.WaitForNoMenu();
    }
    bool PageReads(const QString &text) {
        return WaitUntil([&] { return Person_.CopyAll() == text; });
    }
    QByteArray CalledOnceIt(const QByteArray &expected) { return BytesOnceThey(expected, Called); }

    const QString Tools = Place_.filePath(QStringLiteral("escritorio"));
    const QString Called = Place_.filePath(QStringLiteral("llamada"));
};

} // namespace

TEST_F(Help, IsBrowsedWithTheMouse) {
    WriteLinks("otra.htm", "falta.htm");
    WritePage(QStringLiteral("otra.htm"), "<p>La otra p\xE1gina</p>");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Click(BackButton)); // nothing to go back to
    ASSERT_TRUE(Click(FirstLink));
    ASSERT_TRUE(PageReads(QStringLiteral("La otra página")));
    ASSERT_TRUE(Click(BackButton));
    ASSERT_TRUE(PageReads(QStringLiteral("primero\nsegundo")));
    ASSERT_TRUE(Click(ForwardButton));
    ASSERT_TRUE(PageReads(QStringLiteral("La otra página")));
    ASSERT_TRUE(Click(BackButton));
    ASSERT_TRUE(PageReads(QStringLiteral("primero\nsegundo")));
    ASSERT_TRUE(Click(SecondLink));
    EXPECT_TRUE(WaitUntil([&] { return Person_.CopyAll().contains(QStringLiteral("falta.htm")); }));
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, IsBrowsedWithTheKeyboard) {
    WriteLinks("otra.htm");
    WritePage(QStringLiteral("otra.htm"), "<p>La otra</p>");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Press({QStringLiteral("Tab"), QStringLiteral("Return")}));
    ASSERT_TRUE(PageReads(QStringLiteral("La otra")));
    ASSERT_TRUE(Press({QStringLiteral("alt+Left")}));
    ASSERT_TRUE(PageReads(QStringLiteral("primero\nsegundo")));
    ASSERT_TRUE(Press({QStringLiteral("alt+Right")}));
    EXPECT_TRUE(PageReads(QStringLiteral("La otra")));
}

TEST_F(Help, FindsATextInThePage) {
    WritePage(QStringLiteral("index.htm"), "<p>Una nave y otra NAVE.</p>");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Press({QStringLiteral("ctrl+f")}));
    Person_.Type(QStringLiteral("nave\n"));
    ASSERT_TRUE(
        Press({QStringLiteral("Escape"), QStringLiteral("ctrl+c"), QStringLiteral("ctrl+n")}));
    ASSERT_TRUE(Shows(Untitled));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+v")}));
    ASSERT_TRUE(Press({})); // before reading the document takes the clipboard
    EXPECT_TRUE(PageReads(QStringLiteral("NAVE")));
}

TEST_F(Help, OpensAnExampleAndShowsItFromDiskEachTime) {
    WriteLinks("mis%20ejemplos/el%20a%C3%B1o.bb", "otra.htm");
    WritePage(QStringLiteral("mis ejemplos/el año.bb"), "Cls");
    WritePage(QStringLiteral("otra.htm"), "<p>La otra</p>");
    const QString example = ProgramFile(QStringLiteral("Ayuda/mis ejemplos/el año.bb"));
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Click(FirstLink));
    ASSERT_TRUE(Shows(example));
    Person_.Type(QStringLiteral("uno"));
    ASSERT_TRUE(PageReads(QStringLiteral("unoCls")));

    ASSERT_TRUE(Click(BackButton)); // a document is active
    ASSERT_TRUE(Shows(example));
    ASSERT_TRUE(Click(HelpTab));
    ASSERT_TRUE(ShowsHelp());
    ASSERT_TRUE(PageReads(QStringLiteral("primero\nsegundo")));
    ASSERT_TRUE(Click(FirstLink));
    ASSERT_TRUE(Shows(example));
    EXPECT_TRUE(PageReads(QStringLiteral("Cls")));

    ASSERT_TRUE(Press({QStringLiteral("F1")}));
    ASSERT_TRUE(ShowsHelp());
    ASSERT_TRUE(Click(SecondLink));
    ASSERT_TRUE(PageReads(QStringLiteral("La otra")));
    ASSERT_TRUE(Click(BackButton));
    ASSERT_TRUE(PageReads(QStringLiteral("primero\nsegundo")));
    ASSERT_TRUE(Click(ForwardButton));
    EXPECT_TRUE(PageReads(QStringLiteral("La otra")));
    EXPECT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(example), "Cls");
}

TEST_F(Help, ReportsAMissingExampleAndStaysForward) {
    WriteLinks("falta.bb");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Click(FirstLink));
    ASSERT_TRUE(Person_.PressIn(ErrorTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(ErrorTitle));
    EXPECT_TRUE(ShowsHelp());
    EXPECT_TRUE(PageReads(QStringLiteral("primero\nsegundo")));
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, ShowsTheChosenPageOnTheHomeButton) {
    const QString page = Write(QStringLiteral("lenguaje.htm"), "<p>El lenguaje</p>");
    WriteSettings("[Quillbox]\r\nHelpPath=" + QFile::encodeName(page) + "\r\n");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenNew());
    ASSERT_TRUE(Click(HomeButton));
    ASSERT_TRUE(ShowsHelp());
    EXPECT_TRUE(PageReads(QStringLiteral("El lenguaje")));
}

TEST_F(Help, HandsWebLinksToThePersonsBrowser) {
    WriteLinks("https://ejemplo.org/a%20b?c=d");
    InstallOnDesktop(QStringLiteral("xdg-open"));
    ASSERT_TRUE(StartOnDesktop());
    ASSERT_TRUE(Click(FirstLink));
    EXPECT_EQ(CalledOnceIt("xdg-open|https://ejemplo.org/a%20b?c=d|"),
              "xdg-open|https://ejemplo.org/a%20b?c=d|");
    EXPECT_TRUE(PageReads(QStringLiteral("primero\nsegundo")));
    EXPECT_TRUE(WaitUntil([&] { return ChildrenOf(Run_.ProcessId()).isEmpty(); }));
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, HandsItsIndexPageToTheSystem) {
    InstallOnDesktop(QStringLiteral("xdg-open"));
    ASSERT_TRUE(StartOnDesktop());
    ASSERT_TRUE(Choose(QStringLiteral("alt+y"), QStringLiteral("q")));
    const QByteArray expected =
        "xdg-open|" + QFile::encodeName(ProgramFile(QStringLiteral("Ayuda/index.htm"))) + "|";
    EXPECT_EQ(CalledOnceIt(expected), expected);
    EXPECT_TRUE(WaitUntil([&] { return ChildrenOf(Run_.ProcessId()).isEmpty(); }));
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, SaysThatNothingCanShowItsIndexPageAndGoesOn) {
    ASSERT_TRUE(StartOnDesktop());
    ASSERT_TRUE(Choose(QStringLiteral("alt+y"), QStringLiteral("q")));
    EXPECT_EQ(Person_.ReadMessage(NoticeTitle),
              QStringLiteral("Se ha producido el error 53 en tiempo de ejecución:\n\n"
                             "No se encuentra ningún programa que pueda mostrarlo."));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, HasACalculatorBesideIt) {
    InstallOnDesktop(QStringLiteral("xcalc"));
    InstallOnDesktop(QStringLiteral("kcalc"));
    ASSERT_TRUE(StartOnDesktop());
    ASSERT_TRUE(Choose(QStringLiteral("alt+h"), QStringLiteral("a")));
    EXPECT_EQ(CalledOnceIt("kcalc|"), "kcalc|");
    EXPECT_TRUE(WaitUntil([&] { return ChildrenOf(Run_.ProcessId()).isEmpty(); }));
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, SaysThatThereIsNoCalculatorAndGoesOn) {
    ASSERT_TRUE(StartOnDesktop());
    ASSERT_TRUE(Choose(QStringLiteral("alt+h"), QStringLiteral("a")));
    EXPECT_EQ(Person_.ReadMessage(NoticeTitle),
              QStringLiteral("Se ha producido el error 53 en tiempo de ejecución:\n\n"
                             "No se encuentra ninguna calculadora en este sistema."));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, HasACodeGeneratorBesideIt) {
    Install(ProgramFile(QStringLiteral("Scaffolder/Scaffolder.exe")));
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Choose(QStringLiteral("alt+h"), QStringLiteral("s")));
    EXPECT_EQ(CalledOnceIt("Scaffolder.exe|"), "Scaffolder.exe|");
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, WarnsThatThereIsNoCodeGenerator) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Choose(QStringLiteral("alt+h"), QStringLiteral("s")));
    EXPECT_EQ(Person_.ReadMessage(ErrorTitle),
              QStringLiteral("El archivo ") +
                  ProgramFile(QStringLiteral("Scaffolder/Scaffolder.exe")) +
                  QStringLiteral(" no existe."));
    ASSERT_TRUE(Person_.PressIn(ErrorTitle, {QStringLiteral("Return")}));
    EXPECT_TRUE(Leaves());
}

TEST_F(Help, ShowsTheAboutBoxUntilItIsClosed) {
    ASSERT_TRUE(Start());
    for (const QString &key : {QStringLiteral("Return"), QStringLiteral("Escape")}) {
        ASSERT_TRUE(Choose(QStringLiteral("alt+y"), QStringLiteral("a")));
        ASSERT_TRUE(Person_.PressIn(AboutTitle, {key}));
        EXPECT_TRUE(Person_.WaitForNoWindow(AboutTitle));
    }
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
